#include "platform/events.h"

#include <QCoreApplication>

#include "platform/clock.h"
#include "platform/user.h"

namespace platform {

void PumpEvents() {
  QCoreApplication::processEvents();
}

void PumpPaintEvents() {
  QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

void WaitEvents(const std::string& place) {
  if (User* user = InstalledUser()) {
    user->AtWait(place);
  } else {
    QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
  }
}

void Pause(double seconds) {
  const double end = TheClock().Counter() + seconds;
  if (User* user = InstalledUser())
    user->AtPause(seconds);
  else
    PumpEvents();
  TheClock().WaitUntil(end);
}

}  // namespace platform
