// The one way in which the program ends on an author's error, and the one way at the person's wish.
#pragma once

#include <string>

namespace platform {

// Shows the message and ends the process with exit status 1.  The message names routine and value.
[[noreturn]] void Stop(const std::string& message);

// Ends the process at once and successfully; nothing is saved, no destructor runs.
[[noreturn]] void EndProgram();

}  // namespace platform
