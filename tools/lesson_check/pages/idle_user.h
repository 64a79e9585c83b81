// A user who wants nothing, with a clock that stands: the program runs without a person and without
// waiting.
#pragma once

#include "platform/manual_clock.h"
#include "platform/user.h"

namespace lesson_check {

// Ends this program at once: the toolkit is in use further up the stack, and is not taken down.
[[noreturn]] void EndProcess(int status);

// Installed as long as it lives.
class IdleUser : public platform::User {
 public:
  IdleUser();
  ~IdleUser() override;
  IdleUser(const IdleUser&) = delete;
  IdleUser& operator=(const IdleUser&) = delete;

  void AtPause(double seconds) override;
  platform::Answer AtMessage(const platform::Message& message) override;  // No
  std::optional<std::string> AtInput(const std::string& prompt) override;
  // Prints the message with the problem's name, and ends this program.
  [[noreturn]] void AtStop(const std::string& message) override;
  [[noreturn]] void AtEnd() override;

 private:
  platform::ManualClock clock_;
};

}  // namespace lesson_check
