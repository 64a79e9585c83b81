// The program tour, frmTour: step by step a screen of the course, with a text about a part of it.
//
// It takes the screens as pictures and knows no other room; the steps are composed in
// shell/tour_steps.h.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "platform/form.h"
#include "platform/picture_box.h"

namespace course {

// Where the text stands, seen from the part that it is about.  The arrow points back.
enum class TourSide { Left, Right, Above, Below };

struct TourStep {
  std::shared_ptr<const platform::Surface> screen;
  std::string heading;
  std::string text;
  TourSide side = TourSide::Below;
  platform::PixelRect frame;  // the part under discussion, in pixels of the screen
};

class TourForm {
 public:
  // At least one step.  The form is as large as the largest screen wants it.
  explicit TourForm(std::vector<TourStep> steps);

  platform::Form form;  // frmTour

 private:
  void Place(int width, int height);
  void Bind();
  void ShowStep();
  void PlaceScreen(const TourStep& step);
  void PlaceTexts(const TourStep& step);
  void MoveNavBox(int left, int top, int width, int height);
  platform::PixelRect FrameOnGround(const TourStep& step) const;

  std::vector<TourStep> steps_;
  std::int16_t step_ = 1;
  platform::PictureBox picTourBkgd_;
  platform::PictureBox picTourNavBoxOuter_;
  platform::PictureBox picTourNavBoxInner_;
  platform::Label lblStep_;
  platform::Button cmdRestart_;  // cmdNav(1)
  platform::Button cmdNext_;     // cmdNav(2)
  platform::Button cmdEnd_;      // cmdNav(3)
};

// Modal.
void ShowTour(const std::vector<TourStep>& steps);

}  // namespace course
