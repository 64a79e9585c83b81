#include "assessment/unit_test.h"

#include <string>

#include "assessment/unit_test_results.h"
#include "assessment/unit_test_start.h"
#include "engine/header.h"
#include "platform/stop.h"
#include "session/session.h"

namespace course {
namespace {

[[noreturn]] void StopAt(const std::string& point) {
  platform::Stop(point + "\ngChapterTestStatus% = " + std::to_string(session.gChapterTestStatus) +
                 "\ngChapterTestType% = " + std::to_string(session.gChapterTestType));
}

// A test of this type has its counts already and needs no dialog.  No present caller starts one.
void StartWithoutForm() {
  session.gChapterTest = 1;
  session.gChapterTestStatus = 1;
  session.gActivity = activity::UnitTest;
  session.gLeaveLesson = 0;
  session.gRunAgain = 1;
}

void StartTest() {
  switch (session.gChapterTestType) {
    case 1:
      return ShowUnitTestStartForm();
    case 2:
      return StartWithoutForm();
    default:
      StopAt("Stop Point 5");
  }
}

}  // namespace

void Chapter_Test() {
  session.gLessonName = "Unit Test - Unit " + std::to_string(session.gUnitNum);
  Header(session.gLessonName);
  switch (session.gChapterTestStatus) {
    case 0:
      return StartTest();
    case 3:
      return ShowUnitTestResultsForm();
    default:
      StopAt("Stop Point 4");
  }
}

}  // namespace course
