// What the tests of surfaces share: where something was drawn, and the font of the lesson pages.
#pragma once

#include <algorithm>

#include "platform/surface.h"

namespace platform {

// Pixels that are not the ground's, as the smallest rectangle; nothing has width 0.
inline PixelRect InkBounds(const Surface& surface, Colour ground) {
  int left = surface.PixelWidth();
  int right = -1;
  int top = surface.PixelHeight();
  int bottom = -1;
  for (int y = 0; y < surface.PixelHeight(); ++y)
    for (int x = 0; x < surface.PixelWidth(); ++x) {
      if (surface.Pixel(x, y) == ground) continue;
      left = std::min(left, x);
      right = std::max(right, x);
      top = std::min(top, y);
      bottom = std::max(bottom, y);
    }
  if (right < 0) return {};
  return {left, top, right - left + 1, bottom - top + 1};
}

inline void SetTutorFont(Surface& surface, double points = 20) {
  surface.FontName = "Courier New";
  surface.FontBold = true;
  surface.FontSize = points;
}

}  // namespace platform
