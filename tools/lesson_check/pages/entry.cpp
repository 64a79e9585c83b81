#include "lesson_check/pages/entry.h"

#include <string>

#include "session/session.h"

namespace lesson_check {
namespace {

using course::session;
namespace mode = course::mode;
namespace activity = course::activity;

std::string PickedLetter(int seed) {
  return std::string(1, static_cast<char>('A' + PickedBox(seed) - 1));
}

void WantPractice(int entry, int seed) {
  session.gActivity = activity::Practice;
  session.gProblemSeed = seed;
  session.gAnswerPicked = PickedBox(seed);
  (entry == mode::Explanation ? session.gExplainProblem : session.gRepeatProblem) = 1;
}

void WantLessonTest(int entry, int seed) {
  session.gActivity = activity::LessonTest;
  session.gLessonTest = 1;
  session.gLessonTestProb = 1;
  session.gTestSeeds[1] = seed;
  session.gLessonTestAnswers[1].student = PickedLetter(seed);
  session.gLessonTestReviewNum = entry == mode::LessonTestProblem ? 0 : 1;
  session.gLessonTestReviewExplain = entry == mode::LessonTestExplanation ? 1 : 0;
}

void WantUnitTest(int entry, int seed) {
  session.gActivity = activity::UnitTest;
  session.gChapterTest = 1;
  session.gChapterTestStatus = 2;
  session.gChapterTestProb = 1;
  session.gChapterTestProbCount = 1;
  session.gChapterTestData[1][course::unit_test_column::Seed] = std::to_string(seed);
  session.gChapterTestData[1][course::unit_test_column::StudentLetter] = PickedLetter(seed);
  session.gChapterTestReviewNum = entry == mode::UnitTestProblem ? 0 : 1;
  session.gChapterTestReviewExplain = entry == mode::UnitTestExplanation ? 1 : 0;
}

}  // namespace

int PickedBox(int seed) {
  return 1 + seed % 4;
}

void WantEntry(int entry, int seed) {
  switch (entry) {
    case mode::Lesson:
      session.gActivity = activity::Lesson;
      break;
    case mode::Example:
      session.gActivity = activity::Example;
      session.gProblemSeed = seed;
      session.gRepeatExample = 1;
      break;
    case mode::LessonTestProblem:
    case mode::LessonTestReview:
    case mode::LessonTestExplanation:
      WantLessonTest(entry, seed);
      break;
    case mode::UnitTestProblem:
    case mode::UnitTestReview:
    case mode::UnitTestExplanation:
      WantUnitTest(entry, seed);
      break;
    case mode::DiagnosticProblem:
      session.gActivity = activity::DiagnosticTest;
      session.gDiagnosticTest = 1;
      session.gDiagnosticProb = 1;
      session.gDiagnosticData[1][course::diagnostic_column::Seed] = std::to_string(seed);
      break;
    default:
      WantPractice(entry, seed);
  }
}

}  // namespace lesson_check
