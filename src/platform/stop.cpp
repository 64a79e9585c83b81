#include "platform/stop.h"

#include <QApplication>
#include <QMessageBox>
#include <cstdio>
#include <cstdlib>
#include <utility>

#include "platform/user.h"
#include "platform/widgets_impl.h"

namespace platform {
namespace {

void ShowStop(const std::string& message) {
  QMessageBox box(QMessageBox::Critical, "Algebra 1", ToText(message), QMessageBox::Ok,
                  FrontWindow());
  box.setTextFormat(Qt::PlainText);
  box.exec();
}

}  // namespace

void Stop(const std::string& message) {
  if (User* user = InstalledUser()) user->AtStop(message);
  std::fprintf(stderr, "%s\n", message.c_str());
  static bool stopping = false;
  const bool again = std::exchange(stopping, true);  // while the message is painted
  const bool hasToolkit = qobject_cast<QApplication*>(QCoreApplication::instance()) != nullptr;
  if (hasToolkit && !again && !NobodyIsThere()) ShowStop(message);
  std::_Exit(1);
}

void EndProgram() {
  if (User* user = InstalledUser()) user->AtEnd();
  // Loops and handlers are still on the stack; no destructor may take their widgets away.
  std::fflush(nullptr);
  std::_Exit(0);
}

}  // namespace platform
