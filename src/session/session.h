// The one record through which the menu, the dispatcher, the running script, the lesson window's
// handlers, the tests and the records talk to each other.
//
// Flags hold 0 or 1 and are compared with 1.  Fields of type Bool hold 0 or kTrue (-1).  All
// counting is from 1: element 0 of a table is unused unless its comment says otherwise.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

namespace course {

using Bool = int;
constexpr Bool kTrue = -1;
constexpr Bool kFalse = 0;

// Values of gMode: in which way a script is entered.
namespace mode {
constexpr int SameProblem = 1;  // practice problem again; not counted
constexpr int NewProblem = 2;   // practice
constexpr int Explanation = 3;  // of the practice problem
constexpr int Example = 4;
constexpr int Leave = 5;  // never an entry: "Leave Lesson" of the results dialog
constexpr int LessonTestProblem = 6;
constexpr int LessonTestReview = 7;  // the problem shown again
constexpr int LessonTestExplanation = 8;
constexpr int Lesson = 9;  // teaching screens
constexpr int UnitTestProblem = 10;
constexpr int UnitTestReview = 11;
constexpr int UnitTestExplanation = 12;
constexpr int DiagnosticProblem = 13;
}  // namespace mode

// Values of gActivity: what the student is doing.
namespace activity {
constexpr int None = 0;  // start of a lesson
constexpr int Lesson = 1;
constexpr int Example = 2;
constexpr int Practice = 3;
constexpr int LessonTest = 4;
constexpr int UnitTest = 5;
constexpr int DiagnosticTest = 6;
}  // namespace activity

// Columns of gChapterTestData.
namespace unit_test_column {
constexpr int Title = 1;
constexpr int Seed = 2;
constexpr int CorrectLetter = 3;
constexpr int StudentLetter = 4;
constexpr int ShortTitle = 5;
}  // namespace unit_test_column

// Columns of gDiagnosticData: the two letters stand the other way round.
namespace diagnostic_column {
constexpr int Title = 1;
constexpr int Seed = 2;
constexpr int StudentLetter = 3;
constexpr int CorrectLetter = 4;
}  // namespace diagnostic_column

constexpr int kMaxUnits = 20;
constexpr int kMaxLessons = 20;
constexpr int kLessonTestProblems = 5;
constexpr int kMaxTestProblems = 30;
constexpr int kMaxDrawnPoints = 5;

struct Session {
  // --- Lesson control: written by the dispatcher, scripts and lesson window handlers
  // -----------------
  std::string gLessonName;     // title of the running script; the window's caption
  std::string gChosenTitle;    // title the dispatcher looks up
  int gMode = 0;               // entry mode, see namespace mode
  int gActivity = 0;           // see namespace activity
  std::string gLastActivity;   // gActivity of the previous run as text; "" at the start of a lesson
  int gProceed = 0;            // flag: 0 while a script waits at a pause
  double gPauseStartTime = 0;  // seconds since midnight at the last pause
  int gLeaveLesson = 0;        // flag: unwind the script and go back to the menu
  int gRunAgain = 0;           // flag: unwind the script and let the dispatcher run one again
  int gAnswerPicked = 0;       // 0, or the box 1 to 5 that was clicked
  int gChoiceCount = 0;        // 4 or 5 boxes; 0 when no problem stands on the screen
  int gScreenCount = 0;        // numbered screens of the lesson, 1 to 10
  int gScreenNum = 0;          // screen to run or running; 0 at the start of a lesson
  int gFirstPageOfScreen = 0;  // flag: 1 until the first page of a screen has been left
  Bool gEndExample = kFalse;
  Bool gEndExplanation = kFalse;
  Bool gEndTestExplanation = kFalse;
  Bool gBeginExample = kFalse;
  Bool gBeginExplanation = kFalse;
  Bool gBeginTestExplanation = kFalse;
  int gProblemSeed = 0;       // 0 to 32766: the problem in hand can be drawn again from it
  int gSeedIsNew = 0;         // flag: this run is the first one to draw from gProblemSeed
  std::string gLastType;      // title and type of the last new problem of a lesson that has types
  int gRepeatExample = 0;     // flag: the next example run keeps gProblemSeed
  int gRepeatProblem = 0;     // flag: the next practice run is the same problem again
  int gExplainProblem = 0;    // flag: the next practice run explains the problem
  int gExampleRunLength = 0;  // chain of examples shown without asking: no lesson sets one
  int gExampleRunIndex = 0;
  int gRetryProblem = 0;             // flag: the answered problem is a retry and is not counted
  Bool gHasRules = kFalse;           // the lesson offers a rules panel in practice
  Bool gRulesShown = kFalse;         // the panel is up
  int gInDelay = 0;                  // flag: a timed delay runs; handlers ignore input
  int gInAnimation = 0;              // flag: an animation runs; handlers ignore input
  double gAnimDelayUnit = 0.005;     // seconds a pixel step: 0.005, 0.002 or 0
  int gAnimSpeedOption = 1;          // chosen optAnimSpeed button, 1 to 3
  double gPi = 0;                    // assigned by every script on entry
  int gTestingCounter = 0;           // further practice problems to run without a student
  Bool gShowDocumentation = kFalse;  // the hidden documentation lesson is being started

  // --- Scratch fields of scripts: cleared where the contract says so, read by nobody
  // -----------------
  const void* gCtrl = nullptr;  // a control in hand; cleared when a script ends
  int gScratchFlag = 0;
  std::array<double, kMaxDrawnPoints + 1> gDrawnPoints{};
  int gDrawnPointCount = 0;

  // --- Course position and tallies
  // -------------------------------------------------------------------
  int gUnitNum = 0;    // unit selected in the menu
  int gLessonNum = 0;  // row selected in the unit's lesson list
  int gProblemsAttempted =
      0;  // practice since the last save; for a finished test its problem count
  int gProblemsCorrect = 0;
  long gLessonStartTime = 0;  // seconds since midnight, rounded
  std::array<std::array<int, kMaxLessons + 1>, kMaxUnits + 1> gProblemsGenerated{};  // counted only

  // --- Lesson test
  // -----------------------------------------------------------------------------------
  int gLessonTest = 0;      // flag: from the first problem until the student leaves the results
  int gLessonTestProb = 0;  // problem to present, 1 to 5; 6 when all are answered
  std::array<int, kLessonTestProblems + 1> gTestSeeds{};
  struct AnswerLetters {
    std::string correct;
    std::string student;
  };
  std::array<AnswerLetters, kLessonTestProblems + 1> gLessonTestAnswers;
  int gLessonTestReviewNum = 0;      // problem under review, 0 for none
  int gLessonTestReviewExplain = 0;  // flag: the review wants the explanation

  // --- Unit test
  // -------------------------------------------------------------------------------------
  int gChapterTest = 0;        // flag
  int gChapterTestStatus = 0;  // 0 not set up, 1 table to build, 2 problems running, 3 all answered
  int gChapterTestType = 0;    // 1 when started from the menu
  int gChapterTestProb = 0;
  int gChapterTestProbCount = 0;
  int gChapterTestLessonCount = 0;  // the start dialog's choices
  int gChapterTestProbsPerLesson = 0;
  std::array<std::array<std::string, 6>, kMaxTestProblems + 1> gChapterTestData;
  int gChapterTestReviewNum = 0;
  int gChapterTestReviewExplain = 0;

  // --- Diagnostic test
  // -------------------------------------------------------------------------------
  int gDiagnosticTest = 0;  // flag
  int gDiagnosticProb = 0;
  int gDiagnosticProbCount = 0;
  std::array<std::array<std::string, 6>, kMaxTestProblems + 1> gDiagnosticData;
  int gDiagnosticStatus = 0;      // 0 table to build, 1 running, 2 finished
  int gDiagnosticEndedEarly = 0;  // flag
  int gDiagnosticRecordNum = -1;  // record the result replaces, -1 for a new one

  Bool gHideNav = kFalse;  // the activity tabs stay hidden: unit and diagnostic tests
  int gTestPassPercent = 60;

  // --- Course catalogue: filled once at start
  // --------------------------------------------------------
  int gUnitCount = 0;
  std::array<std::string, kMaxUnits + 1> gUnitName;
  std::array<int, kMaxUnits + 1> gLessonCount{};
  std::array<std::array<std::string, kMaxLessons + 1>, kMaxUnits + 1> gLessonTitle;
  std::array<std::array<std::string, kMaxLessons + 1>, kMaxUnits + 1> gLessonShortTitle;

  // --- Student and installation
  // ----------------------------------------------------------------------
  int gversion = 2;               // 1 no records, 2 local, 3 network
  int gRecordKeepingEnabled = 0;  // flag: a student is logged in
  std::string gDataPath;          // folder of the record files
  int gClassNum = 0;              // both positive when a student is logged in
  int gStudentNum = 0;
  std::string gClassName;
  std::string gStudentName;
  std::vector<std::string> gSessionRecords;  // up to 100, from element 0
  int gSessionRecordCount = 0;
  // Codes "W", "T", "C" by unit and lesson row; column 0 is the unit's own code.
  std::array<std::array<std::string, kMaxLessons + 1>, kMaxUnits + 1> gProgressCodes;
  Bool gShowProgressCodes = kTrue;
  int gDialogResult = 0;            // result of a modal form: kTrue or 0
  std::string gWindowsVersionName;  // "XP", "VISTA", "7" or "NOTA"
};

// The one instance; it lives as long as the process.
extern Session session;

// Clears the fields that every handler which leaves a test clears together.
void ClearTestBlock(Session& s);

// A test of any kind is running.
bool TestRunning(const Session& s);

}  // namespace course
