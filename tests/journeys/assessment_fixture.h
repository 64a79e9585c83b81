// Tests of a lesson and of a unit, with their forms, as the menu starts them.
#pragma once

#include <string>
#include <vector>

#include "assessment/unit_test.h"
#include "journeys/engine_fixture.h"
#include "session/catalogue.h"
#include "shell/test_hooks.h"

namespace course::testing {

class AssessmentJourney : public LessonJourney {
 protected:
  void SetUp() override {
    LessonJourney::SetUp();
    FillCourseTables();
    BindTests();
    engineHooks.SaveTestRecord = [this] {
      saved.push_back(std::to_string(session.gProblemsCorrect) + "/" +
                      std::to_string(session.gProblemsAttempted));
      session.gProblemsCorrect = 0;
      session.gProblemsAttempted = 0;
    };
    plan.kind = choice_kind::FourInOrder;  // box A is right
  }

  // A row of a unit, with the test's own script in place of every lesson of the course.
  void RunRow(int unit, int row) {
    RunRow(unit, row, [this](const std::string& title) {
      plan.title = title;
      titles.push_back(title);
      TestLesson(plan, runs).Run();
    });
  }
  void RunRow(int unit, int row, std::function<void(const std::string&)> runScript) {
    session.gChapterTestType = 1;
    LessonCalls calls;
    calls.RunScript = std::move(runScript);
    calls.Chapter_Test = Chapter_Test;
    RunLesson({session.gLessonTitle.at(unit).at(row), unit, row}, calls);
  }
  // The unit's test: its last row.
  void RunUnitTest(int unit) { RunRow(unit, session.gLessonCount.at(unit)); }

  // Picks boxes, one a letter, one a problem.
  void PickBoxes(const std::string& letters) {
    for (const char letter : letters)
      Click("AnswerWait", "picAnswer(" + std::to_string(letter - 'A' + 1) + ")");
  }
  void BeginUnitTest(int problemsPerLesson) {
    Click("frmChapterTestStart", "optNumProbs(" + std::to_string(problemsPerLesson - 1) + ")");
    Click("frmChapterTestStart", "cmdStart");
  }

  static std::string CaptionOf(const std::string& label) {
    return dynamic_cast<platform::Label&>(FindControl(label)).Caption();
  }
  // A row of a results form: "1 A B No".
  static std::string ResultRow(int row) {
    std::string text;
    for (const std::string name : {"lblTestProbNo", "lblCorrectAns", "lblYourAns", "lblIsCorrect"})
      text += (text.empty() ? "" : " ") + CaptionOf(name + "(" + std::to_string(row) + ")");
    return text;
  }
  // What the student reads of the present problem, from the top of the panel to the last box.
  static std::string ProblemOnScreen() {
    std::string text;
    for (const std::string& line : TranscriptLines(frmPR->lessonText)) text += line + "\n";
    for (int i = 1; i <= session.gChoiceCount; ++i) text += TextInBox(i) + "\n";
    return text;
  }
  static std::string FrontFormName() { return platform::Form::ShownForms().back()->Name(); }

  std::vector<std::string> saved;   // "correct/attempted" of every saved test
  std::vector<std::string> titles;  // of the scripts that were run
};

}  // namespace course::testing
