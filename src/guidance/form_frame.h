// What the forms of this room have in common: a margin, and a button at the lower right that closes
// the form, as Esc, Enter and the close box do.
#pragma once

#include "platform/form.h"
#include "platform/look.h"

namespace course {

// Pixels.
inline constexpr int kFormMargin = 24;
inline constexpr int kFormButtonWidth = 140;
inline constexpr int kFormButtonHeight = 42;

inline constexpr int FormTwips(int pixels) {
  return pixels * platform::TwipsPerPixelX;
}

inline void PlaceFormButton(platform::Button& button, int left, int top, int width) {
  platform::look::MovePixels(button, left, top, width, kFormButtonHeight);
  button.SetFont("MS Sans Serif", 11, true);
}

inline void MakeClosingButton(platform::Form& form, platform::Button& button) {
  PlaceFormButton(button, form.Width() / platform::TwipsPerPixelX - kFormMargin - kFormButtonWidth,
                  form.Height() / platform::TwipsPerPixelY - kFormMargin - kFormButtonHeight,
                  kFormButtonWidth);
  button.OnClick = [&form] { form.Close(); };
  form.SetDefaultButton(button);
  form.SetNeutralButton(button);
}

}  // namespace course
