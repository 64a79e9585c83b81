#include "lesson_check/pages/idle_user.h"

#include <cstdio>
#include <cstdlib>

#include "mathkit/tutor_codes.h"
#include "session/session.h"

namespace lesson_check {

using course::session;

void EndProcess(int status) {
  std::fflush(nullptr);
  std::_Exit(status);
}

IdleUser::IdleUser() {
  platform::InstallUser(this);
  platform::InstallClock(&clock_);
}

IdleUser::~IdleUser() {
  platform::InstallClock(nullptr);
  platform::InstallUser(nullptr);
}

void IdleUser::AtPause(double) {}

platform::Answer IdleUser::AtMessage(const platform::Message&) {
  return platform::Answer::No;
}

std::optional<std::string> IdleUser::AtInput(const std::string&) {
  return {};
}

void IdleUser::AtStop(const std::string& message) {
  std::fprintf(stderr, "%s#%d: %s\n", course::ToUtf8(session.gLessonName).c_str(),
               session.gProblemSeed, message.c_str());
  EndProcess(1);
}

void IdleUser::AtEnd() {
  EndProcess(0);
}

}  // namespace lesson_check
