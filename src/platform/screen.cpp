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
  const bool isHourglass = QGuiApplication::overrideCursor() != nullptr;
  if (isHourglass == (pointer == MousePointer::Hourglass)) return;
  if (isHourglass)
    QGuiApplication::restoreOverrideCursor();
  else
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
}

}  // namespace platform
