#include "engine/run_exit.h"

#include "engine/navigation.h"
#include "session/session.h"

namespace course {

bool WantsElsewhere() {
  return session.gLeaveLesson == 1 || session.gRunAgain == 1;
}

void ExitIfWanted() {
  if (WantsElsewhere()) throw RunAbandoned{};
}

void SaveThenExitIfLeft(const std::function<void()>& save) {
  const bool askedBefore = session.gLeaveLesson == 1;
  save();
  if (session.gLeaveLesson == 1 && !askedBefore) throw RunAbandoned{};
}

void RunAgain() {
  session.gRunAgain = 1;
  throw RunAbandoned{};
}

void GoToActivity(int index) {
  picNav_Click(index);
  throw RunAbandoned{};
}

}  // namespace course
