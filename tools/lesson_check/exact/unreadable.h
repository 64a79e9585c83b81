// What the exact readers throw at a text that they cannot read as mathematics.
#pragma once

#include <stdexcept>

namespace lesson_check {

struct Unreadable : std::runtime_error {
  using std::runtime_error::runtime_error;
};

}  // namespace lesson_check
