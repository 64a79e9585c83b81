// The person before the machine.
//
// Wherever the program would block (an event wait, a modal form, a message box, a pause) it asks
// the installed user first.  Without one the toolkit's event queue is the user, and dialogs are
// shown.
#pragma once

#include <optional>
#include <string>

#include "platform/dialogs.h"

namespace platform {

class User {
 public:
  virtual ~User() = default;
  // The program waits at a place; the user does one thing (clicks, types) or several, and returns.
  virtual void AtWait(const std::string& place) = 0;
  // The program pauses, in an animation for example; the user may try something.
  virtual void AtPause(double seconds) = 0;
  virtual Answer AtMessage(const Message& message) = 0;
  virtual std::optional<std::string> AtInput(const std::string& prompt) = 0;
  // The program stops on an author's error, or ends at the person's wish.  These must not return.
  [[noreturn]] virtual void AtStop(const std::string& message) = 0;
  [[noreturn]] virtual void AtEnd() = 0;
};

User* InstalledUser();
void InstallUser(User* user);  // nullptr: the event queue again

}  // namespace platform
