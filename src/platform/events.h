// The event queue: the only ways in which the program waits.
#pragma once

#include <string>

namespace platform {

// Takes what is in the queue and returns at once.
void PumpEvents();
// Paints what is due; what the person did meanwhile takes effect at the next wait, pump or pause.
void PumpPaintEvents();
// Sleeps until something comes, then takes it.  The place ("PageEnd", a form's name) is told to a
// test's user, and shown when he has nothing left to do.
void WaitEvents(const std::string& place);
// Lasts exactly so many seconds while events are served: it sleeps in the event loop, and spins for
// the last 0.3 milliseconds only.
void Pause(double seconds);

}  // namespace platform
