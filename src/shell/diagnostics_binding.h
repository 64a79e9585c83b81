// Ties the menu's entries for the diagnostic test, once all its lessons stand, and for its results
// to what they open.
#pragma once

#include "shell/menu.h"

namespace course {

void BindDiagnostics(StartUp& startUp);

}  // namespace course
