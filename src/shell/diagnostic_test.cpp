#include "shell/diagnostic_test.h"

#include <algorithm>
#include <string>

#include "lessons/registry.h"
#include "platform/dialogs.h"
#include "platform/stop.h"
#include "records/diagnostic_file.h"
#include "session/catalogue.h"
#include "session/course_name.h"
#include "session/session.h"

namespace course {
namespace {

constexpr const char* kTeacherPrints =
    "Your teacher will be able to print out the results\nand review them with you.";

// The student reads the results by himself, except on a network, where they are the teacher's.
std::string Announcement() {
  const std::string start = "The " + std::string(kCourseName) + " Diagnostic Test contains " +
                            std::to_string(session.gDiagnosticProbCount) +
                            " questions.\nIt measures your skill level in areas covered by a "
                            "course\nin algebra 1";
  if (session.gversion == 3)
    return start + ".\n\n" + kTeacherPrints + "\n\nWould you like to begin the test?";
  return start +
         ", and provides a suggested study plan\nbased on your performance.\n\nAfter the test you "
         "will be able to view or print\nthe results using the Diagnostics Menu.\n\nWould you like "
         "to begin the test?";
}

bool SaysYes(const std::string& question) {
  return platform::MessageBox({.text = question,
                               .title = "",
                               .buttons = platform::Buttons::YesNo,
                               .icon = platform::Icon::Information}) == platform::Answer::Yes;
}

bool MayReplaceAnEarlierResult() {
  return session.gDiagnosticRecordNum == kNoDiagnosticRecord ||
         SaysYes("You have already taken a " + std::string(kCourseName) +
                 " Diagnostic Test.\nIf you take the test again it will erase the previous\n"
                 "results.\n\nWould you like to take the test again (and erase the previous "
                 "results)?");
}

// The session is in the test for as long as one of these lives.  The lesson window takes the
// caption of its last button from there.
class RunningTest {
 public:
  RunningTest() {
    session.gDiagnosticEndedEarly = 0;
    session.gDiagnosticTest = 1;
    session.gDiagnosticProb = 1;
    session.gHideNav = kTrue;
  }
  ~RunningTest() {
    session.gDiagnosticTest = 0;
    session.gHideNav = kFalse;
  }
  RunningTest(const RunningTest&) = delete;
  RunningTest& operator=(const RunningTest&) = delete;
};

}  // namespace

bool DiagnosticTestIsComplete() {
  return std::ranges::all_of(DiagnosticTitles(),
                             [](std::string_view title) { return MakeLesson(title) != nullptr; });
}

void StartDiagnosticTest(const std::function<void()>& run) {
  if (!SaysYes(Announcement())) return;
  if (session.gClassNum <= 0 || session.gStudentNum <= 0)
    platform::Stop("gClassNum% or gStudentNum% do not have proper values");
  session.gDiagnosticRecordNum = FindDiagnosticRecord(session.gClassNum, session.gStudentNum);
  if (!MayReplaceAnEarlierResult()) return;
  const RunningTest running;
  run();
  if (session.gDiagnosticEndedEarly == 1) return;
  platform::MessageBox({.text = "You have completed the " + std::string(kCourseName) +
                                " Diagnostic Test.\n\n" + kTeacherPrints,
                        .title = "",
                        .buttons = platform::Buttons::Ok,
                        .icon = platform::Icon::Information});
}

}  // namespace course
