// Handlers that wait until the toolkit has returned: for the .cpp files of this folder alone.
//
// A handler may run a whole lesson, destroy the control that it belongs to or throw.  None of this
// may happen inside the toolkit's own routines, so what the person does is noted there, and done
// between two looks into the event queue.
#pragma once

#include <functional>
#include <memory>

namespace platform {

// Something that handlers belong to holds one of these for as long as it lives.
using Life = std::shared_ptr<const char>;
inline Life NewLife() {
  return std::make_shared<const char>();
}

// Calls the handler at the next RunHandlers, in order, unless its owner is gone by then.
void CallLater(const Life& owner, std::function<void()> handler);
// Calls what waits, with what comes up meanwhile; false when there was nothing.  A handler may call
// this in turn, as one that waits for events does.
bool RunHandlers();

// Calls a handler that is set; it may destroy the control that holds it.
inline void CallHandler(const std::function<void()>& handler) {
  if (const std::function<void()> call = handler) call();
}

}  // namespace platform
