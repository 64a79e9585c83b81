#include "records/progress.h"

#include "session/session.h"

namespace course {
namespace {

std::string UnitCode(int unit) {
  bool anything = false;
  bool complete = true;
  for (int row = 1; row <= session.gLessonCount[unit]; ++row) {
    const std::string& code = session.gProgressCodes[unit][row];
    anything |= !code.empty();
    complete &= code == "C";
  }
  if (!anything) return "";
  return complete ? "C" : "W";
}

}  // namespace

void UpdateUnitProgress() {
  for (int unit = 1; unit <= session.gUnitCount; ++unit)
    session.gProgressCodes[unit][0] = UnitCode(unit);
}

}  // namespace course
