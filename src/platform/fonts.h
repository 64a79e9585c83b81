// The faces that the course names, and the installed ones that stand in for them.
#pragma once

#include <string>

namespace platform {

// Makes the fonts of the machine known without the rules of its desktop.  Before the toolkit
// starts.
void ReadFontsPlainly();

// Stops the program when a face that the course prints in is not installed; the message names the
// package to install.  Needs the running toolkit.
void CheckFonts();

// The installed family for a face of the course, such as "Liberation Mono" for "Courier New".  A
// face that the course does not know gets the family of "MS Sans Serif".
const std::string& FamilyOf(const std::string& face);

}  // namespace platform
