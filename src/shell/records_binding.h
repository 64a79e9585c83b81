// Ties the views of records and of the session to the menu.
#pragma once

#include "shell/menu.h"

namespace course {

void BindRecordViews(StartUp& startUp);

}  // namespace course
