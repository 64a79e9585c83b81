#include "guidance/tour_form.h"

#include <algorithm>

#include "guidance/form_frame.h"
#include "guidance/tour_pictures.h"
#include "platform/stop.h"

namespace course {
namespace {

using platform::PixelRect;
using platform::look::kAmber;
using platform::look::MovePixels;
using platform::look::SetType;

// Pixels.  Screen and buttons stand side by side and fit a screen of 1024 x 768.
constexpr int kMargin = 8;
constexpr int kButtonWidth = 100;
constexpr int kButtonHeight = 46;
constexpr int kButtonGap = 12;
constexpr int kBand = 5;         // of the frame
constexpr int kClear = 3;        // between the frame and what it frames
constexpr int kEdge = 10;        // between a text and the edge of the screen
constexpr int kFromCorner = 30;  // of the arrow

// The widest and the highest screen; they may be two.
PixelRect ExtentOf(const std::vector<TourStep>& steps) {
  if (steps.empty()) platform::Stop("TourForm: a tour without a step");
  PixelRect extent;
  for (const TourStep& step : steps) {
    extent.width = std::max(extent.width, step.screen->PixelWidth());
    extent.height = std::max(extent.height, step.screen->PixelHeight());
  }
  return extent;
}

int FormWidth(const std::vector<TourStep>& steps) {
  return ExtentOf(steps).width + kButtonWidth + 3 * kMargin;
}

int FormHeight(const std::vector<TourStep>& steps) {
  return ExtentOf(steps).height + 2 * kMargin;
}

PixelRect Widened(const PixelRect& rect, int by) {
  return {rect.left - by, rect.top - by, rect.width + 2 * by, rect.height + 2 * by};
}

bool Fits(const PixelRect& place, const platform::Surface& ground) {
  return place.left >= kEdge && place.top >= kEdge &&
         place.left + place.width <= ground.PixelWidth() - kEdge &&
         place.top + place.height <= ground.PixelHeight() - kEdge;
}

// Where a text of this size stands beside the frame; along the frame it gives way to the edges.
PixelRect TextPlace(TourSide side, const PixelRect& frame, int width, int height,
                    const platform::Surface& ground) {
  const int right = ground.PixelWidth() - kEdge - width;
  const int bottom = ground.PixelHeight() - kEdge - height;
  PixelRect place = {std::clamp(frame.left + (frame.width - width) / 2, kEdge, right),
                     std::clamp(frame.top + (frame.height - height) / 2, kEdge, bottom), width,
                     height};
  if (side == TourSide::Left) place.left = frame.left - kTourArrowLength - width;
  if (side == TourSide::Right) place.left = frame.left + frame.width + kTourArrowLength;
  if (side == TourSide::Above) place.top = frame.top - kTourArrowLength - height;
  if (side == TourSide::Below) place.top = frame.top + frame.height + kTourArrowLength;
  return place;
}

// The arrow leaves the text opposite to the frame's middle, and not at a corner.
platform::PixelPoint ArrowStart(TourSide side, const PixelRect& text, const PixelRect& frame) {
  const int x = std::clamp(frame.left + frame.width / 2, text.left + kFromCorner,
                           text.left + text.width - kFromCorner);
  const int y = std::clamp(frame.top + frame.height / 2, text.top + kFromCorner,
                           text.top + text.height - kFromCorner);
  switch (side) {
    case TourSide::Left:
      return {text.left + text.width, y};
    case TourSide::Right:
      return {text.left - 1, y};
    case TourSide::Above:
      return {x, text.top + text.height};
    default:
      return {x, text.top - 1};
  }
}

}  // namespace

TourForm::TourForm(std::vector<TourStep> steps)
    : form("frmTour", FormTwips(FormWidth(steps)), FormTwips(FormHeight(steps))),
      steps_(std::move(steps)),
      picTourBkgd_(form, "picTourBkgd"),
      picTourNavBoxOuter_(picTourBkgd_, "picTourNavBoxOuter"),
      picTourNavBoxInner_(picTourNavBoxOuter_, "picTourNavBoxInner"),
      lblStep_(form, "lblStep"),
      cmdRestart_(form, "cmdNav(1)", "Restart Tour"),
      cmdNext_(form, "cmdNav(2)", "Next"),
      cmdEnd_(form, "cmdNav(3)", "End Tour") {
  form.SetCaption("Program Tour");
  const PixelRect extent = ExtentOf(steps_);
  Place(extent.width, extent.height);
  Bind();
  ShowStep();
}

void TourForm::Place(int width, int height) {
  MovePixels(picTourBkgd_, kMargin, kMargin, width, height);
  picTourBkgd_.BackColor = platform::colour::FormGrey;
  picTourNavBoxOuter_.BackColor = kAmber;
  picTourNavBoxOuter_.SetBorder(true);
  const int left = width + 2 * kMargin;
  MovePixels(lblStep_, left, kMargin + 8, kButtonWidth, 44);
  SetType(lblStep_, 11, true);
  lblStep_.SetAlignment(platform::Label::Align::Centre);
  int top = kMargin + 64;
  for (platform::Button* button : {&cmdRestart_, &cmdNext_, &cmdEnd_}) {
    MovePixels(*button, left, top, kButtonWidth, kButtonHeight);
    button->SetFont("MS Sans Serif", 10, true);
    top += kButtonHeight + kButtonGap;
  }
}

void TourForm::Bind() {
  cmdRestart_.OnClick = [this] {
    step_ = 1;
    ShowStep();
  };
  cmdNext_.OnClick = [this] {
    ++step_;
    ShowStep();
  };
  cmdEnd_.OnClick = [this] { form.Close(); };
  cmdNext_.SetRepeats(true);
  form.SetDefaultButton(cmdNext_);
  form.SetNeutralButton(cmdEnd_);
}

void TourForm::ShowStep() {
  const TourStep& step = steps_.at(static_cast<std::size_t>(step_ - 1));
  PlaceScreen(step);
  PlaceTexts(step);
  const PixelRect frame = Widened(FrameOnGround(step), kBand);
  MoveNavBox(FormTwips(frame.left), FormTwips(frame.top), FormTwips(frame.width),
             FormTwips(frame.height));
  picTourBkgd_.SetAccessibleName(step.heading);
  picTourBkgd_.SetAccessibleText(step.text);
  const bool last = step_ == static_cast<int>(steps_.size());
  lblStep_.SetCaption("Step " + std::to_string(step_) + "\nof " + std::to_string(steps_.size()));
  cmdNext_.SetEnabled(!last);
  (last ? cmdEnd_ : cmdNext_).SetFocus();
}

// In the middle of the ground, which is that of the forms.
void TourForm::PlaceScreen(const TourStep& step) {
  const int width = step.screen->PixelWidth();
  const int height = step.screen->PixelHeight();
  const int left = (picTourBkgd_.PixelWidth() - width) / 2;
  const int top = (picTourBkgd_.PixelHeight() - height) / 2;
  picTourBkgd_.Cls();
  picTourBkgd_.BitBlt(left, top, width, height, *step.screen, 0, 0);
}

// The frame and what it frames, in pixels of the ground.
PixelRect TourForm::FrameOnGround(const TourStep& step) const {
  PixelRect frame = Widened(step.frame, kClear);
  frame.left += (picTourBkgd_.PixelWidth() - step.screen->PixelWidth()) / 2;
  frame.top += (picTourBkgd_.PixelHeight() - step.screen->PixelHeight()) / 2;
  return frame;
}

void TourForm::PlaceTexts(const TourStep& step) {
  const PixelRect frame = Widened(FrameOnGround(step), kBand);
  const auto text = TourTextPicture(step.heading, step.text);
  const PixelRect place =
      TextPlace(step.side, frame, text->PixelWidth(), text->PixelHeight(), picTourBkgd_);
  if (!Fits(place, picTourBkgd_))
    platform::Stop("TourForm: there is no room for the text \"" + step.heading + "\"");
  picTourBkgd_.BitBlt(place.left, place.top, place.width, place.height, *text, 0, 0);
  DrawTourArrow(picTourBkgd_, step.side, ArrowStart(step.side, place, frame));
  picTourBkgd_.Refresh();
}

// The outer box is the frame; the inner one shows what the outer one hides.  In twips.
void TourForm::MoveNavBox(int left, int top, int width, int height) {
  picTourNavBoxOuter_.Move(left, top, width, height);
  picTourNavBoxOuter_.Cls();
  const int band = FormTwips(kBand);
  picTourNavBoxInner_.Move(band, band, width - 2 * band, height - 2 * band);
  picTourNavBoxInner_.BitBlt(
      0, 0, picTourNavBoxInner_.PixelWidth(), picTourNavBoxInner_.PixelHeight(), picTourBkgd_,
      left / platform::TwipsPerPixelX + kBand, top / platform::TwipsPerPixelY + kBand);
  picTourNavBoxOuter_.Refresh();
  picTourNavBoxInner_.Refresh();
}

void ShowTour(const std::vector<TourStep>& steps) {
  TourForm(steps).form.ShowModal();
}

}  // namespace course
