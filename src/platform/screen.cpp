#include "platform/screen.h"

#include <QApplication>
#include <QScreen>
#include <cmath>

namespace platform {

int ScreenDotsPerInch() {
  return static_cast<int>(std::lround(QGuiApplication::primaryScreen()->logicalDotsPerInch()));
}

int ScreenWidth() {
  return QGuiApplication::primaryScreen()->size().width();
}

std::string SystemVersion() {
  return "NOTA";
}

void SetMousePointer(MousePointer pointer) {
  // The pointer is one for the whole program, not a stack.
  while (QGuiApplication::overrideCursor() != nullptr) QGuiApplication::restoreOverrideCursor();
  if (pointer == MousePointer::Hourglass) QGuiApplication::setOverrideCursor(Qt::WaitCursor);
}

}  // namespace platform
