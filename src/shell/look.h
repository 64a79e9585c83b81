// Colours and type of the shell's forms.
#pragma once

#include "platform/form.h"

namespace course::look {

inline constexpr platform::Colour kNavy = platform::Rgb(22, 40, 79);
inline constexpr platform::Colour kPaper = platform::Rgb(250, 247, 240);
inline constexpr platform::Colour kAmber = platform::Rgb(244, 168, 54);
inline constexpr platform::Colour kSlate = platform::Rgb(92, 107, 134);

// Places a control in pixels of its parent.
inline void MovePixels(platform::Control& control, int left, int top, int width, int height) {
  control.Move(left * platform::TwipsPerPixelX, top * platform::TwipsPerPixelY,
               width * platform::TwipsPerPixelX, height * platform::TwipsPerPixelY);
}

// Sets a label's type and colours; the ground is that of the form.
inline void SetType(platform::Label& label, double points, bool bold = false,
                    platform::Colour colour = kNavy,
                    platform::Colour ground = platform::colour::FormGrey) {
  label.SetFont("MS Sans Serif", points, bold);
  label.SetColours(colour, ground);
}

}  // namespace course::look
