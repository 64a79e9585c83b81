#include "guidance/tour_pictures.h"

#include <array>
#include <vector>

#include "platform/look.h"

namespace course {
namespace {

using platform::PixelPoint;
using platform::Surface;
using platform::look::kAmber;
using platform::look::kNavy;
using platform::look::kPaper;

// Pixels.
constexpr int kTextWidth = 330;
constexpr int kPadding = 16;
constexpr int kBorder = 3;
constexpr int kBelowHeading = 8;
constexpr int kLineHeight = 22;
constexpr int kHeadingHeight = 26;

constexpr double kTextPoints = 12;
constexpr double kHeadingPoints = 14;

void SetType(Surface& surface, double points, bool bold) {
  surface.FontName = "MS Sans Serif";
  surface.FontSize = points;
  surface.FontBold = bold;
  surface.ForeColor = kNavy;
}

std::vector<std::string> LinesOf(const Surface& surface, const std::string& text, int width) {
  std::vector<std::string> lines;
  std::string rest = text;
  while (!rest.empty()) {
    std::size_t end = rest.size();
    while (surface.TextWidth(rest.substr(0, end)) > width) {
      const std::size_t blank = rest.rfind(' ', end - 1);
      if (blank == std::string::npos || blank == 0) break;  // a word that is too wide stands alone
      end = blank;
    }
    lines.push_back(rest.substr(0, end));
    const std::size_t next = rest.find_first_not_of(' ', end);
    rest.erase(0, next == std::string::npos ? rest.size() : next);
  }
  return lines;
}

void PrintAt(Surface& surface, int x, int y, const std::string& line) {
  surface.CurrentX = x;
  surface.CurrentY = y;
  surface.Print(line);
}

// A point so far along the arrow and so far beside it.
PixelPoint AlongArrow(TourSide side, PixelPoint start, int along, int beside) {
  switch (side) {
    case TourSide::Left:
      return {start.x + along, start.y + beside};
    case TourSide::Right:
      return {start.x - along, start.y + beside};
    case TourSide::Above:
      return {start.x + beside, start.y + along};
    default:
      return {start.x + beside, start.y - along};
  }
}

void FillArrow(Surface& surface, TourSide side, PixelPoint start, int edge,
               platform::Colour colour) {
  constexpr int kShaft = 7;  // pixels on either side of the middle
  constexpr int kHead = 18;
  constexpr int kHeadLength = 22;
  const int neck = kTourArrowLength - kHeadLength;
  // The edge runs evenly around the slanting sides of the head.
  const std::array<PixelPoint, 7> corners = {
      AlongArrow(side, start, 0, -kShaft - edge),
      AlongArrow(side, start, neck - edge, -kShaft - edge),
      AlongArrow(side, start, neck - edge, -kHead - 2 * edge),
      AlongArrow(side, start, kTourArrowLength - 3 + edge, 0),
      AlongArrow(side, start, neck - edge, kHead + 2 * edge),
      AlongArrow(side, start, neck - edge, kShaft + edge),
      AlongArrow(side, start, 0, kShaft + edge)};
  surface.Polygon(corners, colour);
}

}  // namespace

std::unique_ptr<Surface> TourTextPicture(const std::string& heading, const std::string& text) {
  auto picture = std::make_unique<Surface>(kTextWidth, 1);
  const int width = kTextWidth - 2 * kPadding;
  SetType(*picture, kTextPoints, false);
  const std::vector<std::string> lines = LinesOf(*picture, text, width);
  const int textTop = kPadding + kHeadingHeight + kBelowHeading;
  picture->Resize(kTextWidth, textTop + static_cast<int>(lines.size()) * kLineHeight + kPadding);
  picture->FillRect({0, 0, picture->PixelWidth(), picture->PixelHeight()}, kNavy);
  picture->FillRect(
      {kBorder, kBorder, picture->PixelWidth() - 2 * kBorder, picture->PixelHeight() - 2 * kBorder},
      kPaper);
  SetType(*picture, kHeadingPoints, true);
  PrintAt(*picture, kPadding, kPadding, heading);
  SetType(*picture, kTextPoints, false);
  int y = textTop;
  for (const std::string& line : lines) {
    PrintAt(*picture, kPadding, y, line);
    y += kLineHeight;
  }
  return picture;
}

void DrawTourArrow(Surface& surface, TourSide side, PixelPoint start) {
  FillArrow(surface, side, start, 2, kNavy);
  FillArrow(surface, side, start, 0, kAmber);
}

std::unique_ptr<Surface> TourArrowPicture(TourSide side) {
  constexpr int kSide = kTourArrowLength + 8;
  auto picture = std::make_unique<Surface>(kSide, kSide);
  const PixelPoint middle = {kSide / 2, kSide / 2};
  DrawTourArrow(*picture, side, AlongArrow(side, middle, -kTourArrowLength / 2, 0));
  return picture;
}

}  // namespace course
