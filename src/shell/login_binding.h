// Ties the login and the roster of students to the program's start and the menu.
#pragma once

#include "shell/menu.h"

namespace course {

void BindLogin(StartUp& startUp);

}  // namespace course
