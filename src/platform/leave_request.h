// The machine's wish that the program end: a logout, a closed terminal, Ctrl+C, a shutdown.
#pragma once

#include <functional>

namespace platform {

// From now on such a wish calls leave, which must not return, instead of ending the process: at the
// next wait for the person, so that nothing is broken off half-way, or at once under an open
// message box, which would keep the program waiting.  nullptr gives the machine its own way back.
void OnLeaveRequest(std::function<void()> leave);

// Leaves if that is wished.  For waits.
void LeaveIfAsked();

}  // namespace platform
