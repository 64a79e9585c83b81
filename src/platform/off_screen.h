// Forms that nobody sees: a picture of a form is taken without the screen flickering.
#pragma once

namespace platform {

// While one lives, forms that are shown stay off the screen.  All else is as ever: they run
// modally, take input by their routines and can be grabbed.
class OffScreen {
 public:
  OffScreen();
  ~OffScreen();
  OffScreen(const OffScreen&) = delete;
  OffScreen& operator=(const OffScreen&) = delete;

  static bool Active();
};

}  // namespace platform
