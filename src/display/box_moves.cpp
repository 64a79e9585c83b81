#include <cmath>
#include <string>

#include "display/animation.h"
#include "display/animation_frame.h"
#include "display/comment_panel.h"
#include "display/lesson_window.h"
#include "mathkit/tutor_codes.h"
#include "platform/stop.h"

namespace course {
namespace {

// Pixel by pixel; a negative count moves up or to the left.
void Slide(platform::PictureBox& box, double pixels, bool horizontal, double pause) {
  const int steps = StepCount(std::abs(pixels));
  const int direction = pixels < 0 ? -1 : 1;
  for (int i = 1; i <= steps; ++i) {
    if (horizontal)
      box.SetLeft(box.Left() + direction * platform::TwipsPerPixelX);
    else
      box.SetTop(box.Top() + direction * platform::TwipsPerPixelY);
    box.Refresh();
    Delay(pause);
  }
}

void MoveBox(const char* routine, platform::PictureBox& box, double rows, double cols,
             const std::string& first, double speed) {
  const std::string order = UpperCase(first);
  if (rows != 0 && cols != 0 && order != "H" && order != "V")
    platform::Stop(std::string(routine) + ": first = \"" + first + "\"");
  const AnimationFrame frame;
  const double pause = StepPause(speed);
  const auto horizontally = [&] { Slide(box, cols * gCellWidth, true, pause); };
  const auto vertically = [&] { Slide(box, rows * gCellHeight, false, pause); };
  if (order == "V") {
    vertically();
    horizontally();
  } else {
    horizontally();
    vertically();
  }
}

}  // namespace

void picCommentBoxMove(int index, double rows, double cols, const std::string& first,
                       double speed) {
  MoveBox("picCommentBoxMove", CommentPanel(index, "picCommentBoxMove").surface, rows, cols, first,
          speed);
}

void picPrintCellBoxMove(double rows, double cols, const std::string& first, double speed) {
  MoveBox("picPrintCellBoxMove", frmPR->picPrintCellBox, rows, cols, first, speed);
}

}  // namespace course
