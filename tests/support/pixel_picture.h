// Pictures of small areas as text: a test shows what it expects, a failure shows what was drawn.
#pragma once

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

#include "platform/surface.h"

namespace course::testing {

using PixelPicture = std::vector<std::string>;

// A letter a pixel, for one of the eight colours of the course: "." blue, "#" white, K black, C
// cyan, G green, M magenta, R red, Y yellow; "?" any other.
inline char PixelLetter(platform::Colour colour) {
  namespace c = platform::colour;
  constexpr std::pair<platform::Colour, char> kLetters[] = {
      {c::Blue, '.'},  {c::White, '#'},   {c::Black, 'K'}, {c::Cyan, 'C'},
      {c::Green, 'G'}, {c::Magenta, 'M'}, {c::Red, 'R'},   {c::Yellow, 'Y'}};
  for (const auto& [value, letter] : kLetters)
    if (value == colour) return letter;
  return '?';
}

inline PixelPicture PictureOf(const platform::Surface& surface, int left, int top, int width,
                              int height) {
  PixelPicture rows;
  for (int y = top; y < top + height; ++y) {
    std::string row;
    for (int x = left; x < left + width; ++x) row += PixelLetter(surface.Pixel(x, y));
    rows.push_back(row);
  }
  return rows;
}

inline PixelPicture PictureOf(const platform::Surface& surface) {
  return PictureOf(surface, 0, 0, surface.PixelWidth(), surface.PixelHeight());
}

// The smallest rectangle that holds all pixels of a colour; width 0 when there is none.
inline platform::PixelRect ExtentOf(const platform::Surface& surface, platform::Colour colour) {
  int left = surface.PixelWidth();
  int top = surface.PixelHeight();
  int right = -1;
  int bottom = -1;
  for (int y = 0; y < surface.PixelHeight(); ++y)
    for (int x = 0; x < surface.PixelWidth(); ++x)
      if (surface.Pixel(x, y) == colour) {
        left = std::min(left, x);
        top = std::min(top, y);
        right = std::max(right, x);
        bottom = std::max(bottom, y);
      }
  if (right < 0) return {};
  return {left, top, right - left + 1, bottom - top + 1};
}

// "(x, y) width x height".
inline std::string PlaceOf(const platform::PixelRect& rect) {
  return "(" + std::to_string(rect.left) + ", " + std::to_string(rect.top) + ") " +
         std::to_string(rect.width) + " x " + std::to_string(rect.height);
}

}  // namespace course::testing
