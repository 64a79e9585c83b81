// Colours and type of the forms: what makes them look like one product.
#pragma once

#include "platform/form.h"

namespace platform::look {

inline constexpr Colour kNavy = Rgb(22, 40, 79);
inline constexpr Colour kPaper = Rgb(250, 247, 240);
inline constexpr Colour kAmber = Rgb(244, 168, 54);
inline constexpr Colour kSlate = Rgb(92, 107, 134);

// Places a control in pixels of its parent.
inline void MovePixels(Control& control, int left, int top, int width, int height) {
  control.Move(left * TwipsPerPixelX, top * TwipsPerPixelY, width * TwipsPerPixelX,
               height * TwipsPerPixelY);
}

// Sets a label's type and colours; the ground is that of the form.
inline void SetType(Label& label, double points, bool bold = false, Colour fore = kNavy,
                    Colour ground = colour::FormGrey) {
  label.SetFont("MS Sans Serif", points, bold);
  label.SetColours(fore, ground);
}

}  // namespace platform::look
