// Ties the records to the rooms that know nothing of files: the engine's save calls, the progress
// at start-up, the marks on the menu after an erase.
#pragma once

#include "shell/menu.h"

namespace course {

// Sets the engine's and the records' hooks, and what start-up makes and reads of files.
void BindRecords(StartUp& startUp);

}  // namespace course
