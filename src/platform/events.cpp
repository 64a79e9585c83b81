#include "platform/events.h"

#include <QCoreApplication>

#include "platform/clock.h"
#include "platform/handler_queue_impl.h"
#include "platform/leave_request.h"
#include "platform/painting.h"
#include "platform/user.h"

namespace platform {

void PumpEvents() {
  QCoreApplication::processEvents();
  RunHandlers();
}

void PumpPaintEvents() {
  // Input is taken, too, but what it does waits with the handlers.  Left in the toolkit's queue it
  // would lie there, on some displays, until more input came.
  QCoreApplication::processEvents();
}

void WaitEvents(const std::string& place) {
  LeaveIfAsked();
  // What was noted while no handler could be called may be what the caller waits for.
  if (RunHandlers()) return;
  User* const user = InstalledUser();
  if (user == nullptr) {
    QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    RunHandlers();
    return;
  }
  // He sees the page as it is painted, and acts when nothing else is about to happen.
  if (!PaintingOff::Active()) QCoreApplication::processEvents();
  if (!RunHandlers()) user->AtWait(place);
}

void Pause(double seconds) {
  const double end = TheClock().Counter() + seconds;
  if (User* user = InstalledUser()) user->AtPause(seconds);
  TheClock().WaitUntil(end);
}

}  // namespace platform
