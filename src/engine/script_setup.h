// What every run begins with: tabs, tally, entry mode and seed.
#pragma once

namespace course {

// Sets the activity tabs, the result labels, gMode and the seed by gActivity.  An activity or a mode
// that does not exist stops the program.
void SetUpScriptRun();

}  // namespace course
