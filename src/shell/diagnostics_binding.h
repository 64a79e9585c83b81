// Ties the menu's entry for diagnostic results to their form.
#pragma once

#include "shell/menu.h"

namespace course {

void BindDiagnostics(StartUp& startUp);

}  // namespace course
