// The roll-up of lesson codes to the code of a unit.
#pragma once

namespace course {

// Sets column 0 of session.gProgressCodes for every listed unit: "" when nothing is recorded in it,
// "C" when all its rows, the unit test included, are "C", else "W".
void UpdateUnitProgress();

}  // namespace course
