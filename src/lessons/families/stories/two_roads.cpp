#include "lessons/families/stories/two_roads.h"

#include <algorithm>
#include <cmath>

#include "display/drawing.h"
#include "display/grid.h"
#include "lessons/page/page_lines.h"
#include "lessons/page/say.h"
#include "lessons/page/slides.h"

namespace course::stories {
namespace {

using namespace page;

using platform::colour::Cyan;
using platform::colour::White;
using platform::colour::Yellow;

// Columns: the names of the roads, then the roads.
constexpr double kNameCol = 1;
constexpr double kRoadStart = 3;
constexpr double kRoadEnd = 40.5;
constexpr double kVehicleLength = 1.5;
constexpr double kHalfCell = 0.5;  // lines and arrows end in the middle of a cell

// Rows below the first one.
constexpr double kRoadStep = 1;  // from a road to the next
constexpr double kVehicleHeight = 0.6;
constexpr double kVehicleDrop = 0.1;
constexpr double kClearedHeight = 0.8;  // down to below the road, which a slide touches
constexpr double kRoadDrop = 0.3;       // a bar goes through the middle of its row
constexpr double kGapDrop = 2.1;

// So much of the roads is left free for the vehicles themselves.
constexpr double kUsable = kRoadEnd - kRoadStart - 2 * kVehicleLength;

}  // namespace

TwoRoads::TwoRoads(double row, RoadsGo way, double firstMiles, double secondMiles)
    : row_(row),
      townCol_(kRoadStart + kVehicleLength),
      milesOfColumn_(std::max(firstMiles, secondMiles) / kUsable),
      first_{row, 1},
      second_{row + kRoadStep, 1} {
  if (way == RoadsGo::SameWay) return;
  first_.direction = -1;
  milesOfColumn_ = (firstMiles + secondMiles) / kUsable;
  townCol_ += firstMiles / milesOfColumn_;
}

void TwoRoads::Draw(const std::string& town) {
  for (const Vehicle* vehicle : {&first_, &second_}) {
    SayAt(vehicle->row, vehicle == &first_ ? R"(\yA\z)" : R"(\cB\z)", {.col = kNameCol});
  }
  if (!town.empty()) {
    const double col = townCol_ - static_cast<double>(town.size()) / 2;
    SayAt(row_ - 1, town, {.col = std::max(kRoadStart, std::round(col))});
  }
  Place(0, 0);
}

void TwoRoads::Place(double firstMiles, double secondMiles) {
  for (Vehicle* vehicle : {&first_, &second_}) {
    const double top = vehicle->row + kVehicleDrop;
    isDrawBoxFilled(top, kRoadStart, top + kClearedHeight - 1, kRoadEnd - 1,
                    screenState.gBackColor);
    isDrawHorizLineWithColor(vehicle->row + kRoadDrop, kRoadStart, kRoadEnd - 1, 2, White);
    isDrawVertLineWithColor(townCol_ - kHalfCell, top, top - kVehicleDrop, 2, White);
    vehicle->miles = vehicle == &first_ ? firstMiles : secondMiles;
    DrawVehicle(*vehicle);
  }
  ClearGap();
}

void TwoRoads::GoTo(double firstMiles, double secondMiles) {
  ClearGap();
  Slide(first_, firstMiles);
  Slide(second_, secondMiles);
  Place(firstMiles, secondMiles);  // to the pixel, and mends the roads
}

void TwoRoads::ShowGap(const std::string& text) const {
  const double nextRow = NextRow();
  ClearGap();
  const double row = row_ + kGapDrop;
  const double from = std::min(FrontOf(first_), FrontOf(second_));
  const double to = std::max(FrontOf(first_), FrontOf(second_));
  const double length = static_cast<double>(text.size());
  constexpr double kBothArrows = 4;  // columns
  constexpr double kShortest = 1;
  if (to - from >= length + kBothArrows) {
    const double col = std::round((from + to - length) / 2);
    isDrawArrow1Segment(row, from - kHalfCell, row, col - 1 - kHalfCell, Yellow, "A", "NA");
    isDrawArrow1Segment(row, col + length + kHalfCell, row, to - kHalfCell, Yellow, "NA", "A");
    SayAt(row, text, {.col = col});
  } else {
    if (to - from >= kShortest)
      isDrawArrow1Segment(row, from - kHalfCell, row, to - kHalfCell, Yellow, "A", "A");
    const double behind = std::ceil(to) + 1;
    const bool fits = behind + length <= kRoadEnd;
    SayAt(row, text, {.col = fits ? behind : std::floor(from) - length - 1});
  }
  Locate(nextRow, 1);
}

double TwoRoads::FrontOf(const Vehicle& vehicle) const {
  return townCol_ + vehicle.direction * vehicle.miles / milesOfColumn_;
}

double TwoRoads::LeftOf(const Vehicle& vehicle) const {
  return FrontOf(vehicle) - (vehicle.direction > 0 ? kVehicleLength : 0);
}

void TwoRoads::DrawVehicle(const Vehicle& vehicle) const {
  const double top = vehicle.row + kVehicleDrop;
  const double left = LeftOf(vehicle);
  isDrawBoxFilled(top, left, top + kVehicleHeight - 1, left + kVehicleLength - 1,
                  vehicle.row == row_ ? Yellow : Cyan);
}

void TwoRoads::Slide(const Vehicle& vehicle, double miles) const {
  const Cells body = {vehicle.row + kVehicleDrop, LeftOf(vehicle), kVehicleLength, kVehicleHeight};
  const double columns = (miles - vehicle.miles) / milesOfColumn_;
  if (columns <= 0) return;
  (vehicle.direction > 0 ? SlideRight : SlideLeft)(body, columns, Leaving::Nothing, Pace::Brisk);
}

void TwoRoads::ClearGap() const {
  ClearCells(row_ + kGapDrop, 1, 40, 1);
}

}  // namespace course::stories
