// The ends of the program: the entry File, Exit of the menu and of the lesson window, and a logout.
#pragma once

namespace course {

// Starts the launcher of the series if one stands in the folder above the program's, then ends the
// program at once: nothing is saved, the tally of a running practice is lost.
[[noreturn]] void ExitProgram();

// The same at the wish of the machine, which nobody at the screen has uttered: the tally of a
// running practice is saved first.
[[noreturn]] void SaveAndExit();

}  // namespace course
