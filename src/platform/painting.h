// Windows that are read and never looked at.
#pragma once

namespace platform {

// While one lives, no form comes to the screen, though it counts as shown, a wait looks for no
// input, and a picture box that is made never paints: it keeps size, font, cursor and the widths of
// texts, but its pixels mean nothing.  For tools that turn a lesson's pages by the hundred thousand
// and read only what is printed; drawing would be most of their work.
class PaintingOff {
 public:
  PaintingOff() { ++active_; }
  ~PaintingOff() { --active_; }
  PaintingOff(const PaintingOff&) = delete;
  PaintingOff& operator=(const PaintingOff&) = delete;

  static bool Active() { return active_ > 0; }

 private:
  static inline int active_ = 0;
};

}  // namespace platform
