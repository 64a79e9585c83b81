// Units and small values that every room uses: colours, pixels and twips.
//
// A twip is 1/15 of a device-independent pixel.  Forms and controls are placed in twips, everything
// that is drawn on a surface is placed in pixels.
#pragma once

#include <cstdint>

namespace platform {

// 0xBBGGRR: red in the low byte.
using Colour = std::uint32_t;

constexpr Colour Rgb(int red, int green, int blue) {
  return static_cast<Colour>(red | (green << 8) | (blue << 16));
}

namespace colour {
constexpr Colour Black = 0x000000;
constexpr Colour Blue = 0xFF0000;
constexpr Colour Cyan = 0xFFFF00;
constexpr Colour Green = 0x00FF00;
constexpr Colour Magenta = 0xFF00FF;
constexpr Colour Red = 0x0000FF;
constexpr Colour White = 0xFFFFFF;
constexpr Colour Yellow = 0x00FFFF;
constexpr Colour FormGrey = Rgb(192, 192, 192);
constexpr Colour AnswerBox = Rgb(128, 255, 255);
}  // namespace colour

constexpr int TwipsPerPixelX = 15;
constexpr int TwipsPerPixelY = 15;

// Pixels of a surface.  Right and bottom edges (left + width, top + height) lie outside.
struct PixelRect {
  int left = 0;
  int top = 0;
  int width = 0;
  int height = 0;
};

struct PixelPoint {
  int x = 0;
  int y = 0;
};

}  // namespace platform
