// A user to whom an author's error is something to tell, not the end of the program.
#pragma once

#include <stdexcept>
#include <string>

#include "lesson_check/pages/idle_user.h"

namespace lesson_check {

// The author's error that would have ended the program.
struct StoppedRun : std::runtime_error {
  using std::runtime_error::runtime_error;
};

// Installed as long as it lives.
class StopCatcher : public IdleUser {
 public:
  void AtWait(const std::string&) override {}
  [[noreturn]] void AtStop(const std::string& message) override { throw StoppedRun(message); }
};

}  // namespace lesson_check
