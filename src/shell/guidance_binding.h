// Hands the forms of the help to the menu and to the lesson window.
#pragma once

#include "shell/menu.h"

namespace course {

void BindGuidance(StartUp& startUp);

}  // namespace course
