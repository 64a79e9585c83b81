// The entry File, Exit of the menu and of the lesson window.
#pragma once

namespace course {

// Starts the launcher of the series if one stands in the folder above the program's, then ends the
// program at once: nothing is saved, the tally of a running practice is lost.
[[noreturn]] void ExitProgram();

}  // namespace course
