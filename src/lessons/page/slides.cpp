#include "lessons/page/slides.h"

#include "display/animation.h"
#include "lessons/page/page_error.h"

namespace course::page {
namespace {

constexpr double kUsualSpeed = 50;
constexpr double kBriskSpeed = 30;

struct Way {
  int direction;  // as Anim counts them
  int down;       // 1 down, -1 up
  int right;      // 1 to the right, -1 to the left
};
constexpr Way kUp = {1, -1, 0};
constexpr Way kDown = {2, 1, 0};
constexpr Way kLeft = {3, 0, -1};
constexpr Way kRight = {4, 0, 1};

// A copy is asked for by another flag on the level than up and down.
int EraseFlag(const Way& way, Leaving leaving) {
  if (leaving == Leaving::Nothing) return 1;
  return way.down != 0 ? 0 : -1;
}

void Slide(const Way& way, const Cells& cells, double distance, Leaving leaving, Pace pace) {
  const double row = cells.row + way.down * distance;
  const double col = cells.col + way.right * distance;
  if (distance < 0 || row < 2 || row + cells.height > 25 || col < 0 || col + cells.width > 42)
    StopPage("a slide by " + CellText(distance) + " ends at row " + CellText(row) + ", column " +
             CellText(col));
  Anim2(cells.row, cells.col, cells.width, cells.height, way.direction, distance,
        pace == Pace::Usual ? kUsualSpeed : kBriskSpeed, EraseFlag(way, leaving));
}

}  // namespace

void SlideUp(const Cells& cells, double rows, Leaving leaving, Pace pace) {
  Slide(kUp, cells, rows, leaving, pace);
}
void SlideDown(const Cells& cells, double rows, Leaving leaving, Pace pace) {
  Slide(kDown, cells, rows, leaving, pace);
}
void SlideLeft(const Cells& cells, double columns, Leaving leaving, Pace pace) {
  Slide(kLeft, cells, columns, leaving, pace);
}
void SlideRight(const Cells& cells, double columns, Leaving leaving, Pace pace) {
  Slide(kRight, cells, columns, leaving, pace);
}

}  // namespace course::page
