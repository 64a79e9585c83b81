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

void RunAgain() {
  session.gRunAgain = 1;
  throw RunAbandoned{};
}

void GoToActivity(int index) {
  picNav_Click(index);
  throw RunAbandoned{};
}

}  // namespace course
