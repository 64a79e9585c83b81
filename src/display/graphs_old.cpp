// Figures that were laid out in the pixels of an older screen.
#include <cmath>

#include "display/graphs.h"
#include "display/grid.h"
#include "display/lesson_window.h"

namespace course {
namespace {

// From 0 to below 360.
double WithinCircle(double degrees) {
  const double rest = std::fmod(degrees, 360);
  return rest < 0 ? rest + 360 : rest;
}

}  // namespace

void OldPSet(double x, double y) {
  frmPR->pnlLesson.PSet(Pixel7X(x), Pixel8Y1(y));
  frmPR->pnlLesson.Refresh();
}

void OldLine(double x1, double y1, double x2, double y2, platform::Colour colour) {
  frmPR->pnlLesson.Line(Pixel7X(x1), Pixel8Y1(y1), Pixel7X(x2), Pixel8Y1(y2), colour);
  frmPR->pnlLesson.Refresh();
}

void OldBox(double x1, double y1, double x2, double y2, platform::Colour colour) {
  frmPR->pnlLesson.Box(Pixel7X(x1), Pixel8Y1(y1), Pixel7X(x2), Pixel8Y1(y2), colour);
  frmPR->pnlLesson.Refresh();
}

void OldFilledBox(double x1, double y1, double x2, double y2, int mode) {
  constexpr int kBandOffset = 4;  // pixels: where the band of a text begins in its cell
  platform::PictureBox& panel = frmPR->pnlLesson;
  const int left = Pixel7X(x1);
  const int top = Pixel8Y1(y1);
  const int right = Pixel7X(x2);
  const int bottom = Pixel8Y1(y2);
  if (mode == 1) {
    panel.DrawMode = platform::DrawModes::Xor;
    panel.FilledBox(left, top + kBandOffset, right, bottom + kBandOffset, platform::colour::Yellow);
    panel.DrawMode = platform::DrawModes::CopyPen;
  } else {
    panel.Line(left, top, right, bottom);
  }
  panel.Refresh();
}

void OldCircle(double x, double y, double r, double aspect, platform::Colour colour, double start,
               double end) {
  const double from = WithinCircle(start);
  const double to = WithinCircle(end);
  platform::PictureBox& panel = frmPR->pnlLesson;
  // 0 to 360 comes out as 0 to 0: equal angles are the whole circle.
  panel.Circle(Pixel7X(x), Pixel8Y1(y), r * 480 / 280, colour, from == to ? 0 : from,
               from == to ? 360 : to, aspect * 1.2);
  panel.Refresh();
}

}  // namespace course
