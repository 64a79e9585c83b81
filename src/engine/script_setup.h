// What every run begins with: tabs, tally, entry mode and seed.
#pragma once

namespace course {

// Sets the activity tabs, the status labels, gMode and the seed by gActivity, and saves a practice
// that has just been left.  An activity that does not exist, a test without such a problem, and a
// practice that is to be repeated and explained at once stop the program.
void SetUpScriptRun();

}  // namespace course
