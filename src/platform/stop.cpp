#include "platform/stop.h"

#include <QApplication>
#include <QMessageBox>
#include <cstdio>
#include <cstdlib>

#include "platform/user.h"
#include "platform/widgets_impl.h"

namespace platform {

void Stop(const std::string& message) {
  if (User* user = InstalledUser()) user->AtStop(message);
  std::fprintf(stderr, "%s\n", message.c_str());
  if (qobject_cast<QApplication*>(QCoreApplication::instance()) != nullptr)
    QMessageBox::critical(nullptr, "Algebra 1", ToText(message));
  std::_Exit(1);
}

void EndProgram() {
  if (User* user = InstalledUser()) user->AtEnd();
  // Loops and handlers are still on the stack; no destructor may take their widgets away.
  std::fflush(nullptr);
  std::_Exit(0);
}

}  // namespace platform
