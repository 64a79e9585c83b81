#include "platform/stop.h"

#include <QApplication>
#include <cstdio>
#include <cstdlib>
#include <utility>

#include "platform/dialogs_impl.h"
#include "platform/leave_request.h"
#include "platform/user.h"

namespace platform {

void Stop(const std::string& message) {
  if (User* user = InstalledUser()) user->AtStop(message);
  std::fprintf(stderr, "%s\n", message.c_str());
  static bool stopping = false;
  const bool again = std::exchange(stopping, true);  // while the message is painted
  OnLeaveRequest(nullptr);                           // what fails now must not be tried once more
  const bool hasToolkit = qobject_cast<QApplication*>(QCoreApplication::instance()) != nullptr;
  if (hasToolkit && !again && !NobodyIsThere())
    ShowMessage({message, "Algebra 1", Buttons::Ok, Icon::Warning});
  std::fflush(nullptr);
  std::_Exit(1);
}

void EndProgram() {
  if (User* user = InstalledUser()) user->AtEnd();
  // Loops and handlers are still on the stack; no destructor may take their widgets away.
  std::fflush(nullptr);
  std::_Exit(0);
}

}  // namespace platform
