// A lesson made for tests, and a student who goes through it.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "display/grid.h"
#include "display/lesson_window.h"
#include "display/paragraph.h"
#include "display/print.h"
#include "engine/answers.h"
#include "engine/choices.h"
#include "engine/header.h"
#include "engine/hooks.h"
#include "engine/lesson_script.h"
#include "engine/navigation.h"
#include "engine/page.h"
#include "shell/dispatcher.h"
#include "support/course_fixture.h"
#include "support/expect_stop.h"

namespace course::testing {

// Three screens of two pages, one number a problem, an explanation of two pages, two
// named mistakes.  What a test wants
// to be different stands in the fields below.
struct TestLessonPlan {
  std::string title = "Test Lesson";
  int screens = 3;
  int kind = choice_kind::FourShuffledAndNone;
  int correct = 1;
  bool setsParameters = true;
  bool offersRules = false;
  std::function<void()> onScreen;       // as a teaching screen begins
  std::function<void()> onProblemPage;  // before the answers are set out
  std::function<void()> onLastPage;     // behind the explanation's last page
};

class TestLesson final : public LessonScript {
 public:
  TestLesson(const TestLessonPlan& plan, std::vector<std::string>& runs)
      : LessonScript(plan.title), plan_(plan), runs_(runs) {}

 private:
  std::vector<Screen> Screens() override {
    std::vector<Screen> screens;
    for (int i = 1; i <= plan_.screens; ++i)
      screens.push_back({[this, i] { Teach("screen " + std::to_string(i)); }});
    return screens;
  }
  void DrawProblem(RandomStream& random) override {
    number_ = random.Rand(1, 1000000);
    problem.kind = plan_.kind;
    const std::string mistakes[] = {"",      "",      "adds 2 and keeps it", "takes 3 for 2",
                                    kFiller, "adds 5"};
    for (int i = 1; i <= 5; ++i) problem.Wrong(i, mistakes[i], std::to_string(number_ + i));
    problem.correct = plan_.correct;
  }
  bool OffersRules() const override { return plan_.offersRules; }
  void ShowProblem() override {
    Log();
    Locate(5, 1);
    isPrint("What is " + std::to_string(number_) + "?");
    if (plan_.onProblemPage) plan_.onProblemPage();
    if (plan_.setsParameters) picAnswerSetParameters(2, 10, 1, 21, 0, 16, 50, 27);
  }
  void ExplainProblem() override {
    Log();
    ProblemBanner();
    Locate(5, 1);
    isPrint("first page");
    PageEnd();
    isPrint("last page");
    if (plan_.onLastPage) plan_.onLastPage();
  }

  void Teach(const std::string& name) {
    runs_.push_back(name);
    if (plan_.onScreen) plan_.onScreen();
    NewScreen();
    isPrint(name + ", first page");
    PageEnd();
    isPrint(name + ", last page");
    PageEnd();
  }
  // "mode:number", from which a test sees that the problem is the same or another one.
  void Log() { runs_.push_back(std::to_string(session.gMode) + ":" + std::to_string(number_)); }

  const TestLessonPlan& plan_;
  std::vector<std::string>& runs_;
  int number_ = 0;
};

class LessonJourney : public CourseTest {
 protected:
  void SetUp() override {
    CourseTest::SetUp();
    engineHooks = EngineHooks{};
  }
  void TearDown() override {
    frmPR.reset();
    engineHooks = EngineHooks{};
    CourseTest::TearDown();
  }

  // Goes through the lesson as the menu starts it, from the given activity on.
  void Run(int startActivity = activity::Lesson) {
    LessonCalls calls;
    calls.RunScript = [&, first = true](const std::string&) mutable {
      if (std::exchange(first, false)) session.gActivity = startActivity;
      TestLesson(plan, runs).Run();
    };
    RunLesson({"Test Lesson", 1, 2}, calls);
  }

  // Clicks, at the next wait, when the student has had time to read.
  void Click(const std::string& place, const std::string& control) {
    user.At(place).Do("click " + control, [=, this] {
      clock.Advance(1);
      EXPECT_TRUE(FindControl(control).Click()) << control;
    });
  }
  void Continue(int pages = 1) {
    for (int i = 0; i < pages; ++i) Click("PageEnd", "cmdNavigate(2)");
  }
  // Picks a box, then takes an option of the result dialog.
  void Answer(const std::string& box, const std::string& option) {
    Click("AnswerWait", box);
    Click("frmCorrect", option);
  }
  void Leave(const std::string& place) { user.At(place).Press(27); }
  void Check(const std::string& place, std::function<void()> action) {
    user.At(place).Do("look", std::move(action));
  }

  // The number behind "mode:" of a run.
  std::string NumberOf(std::size_t run) const {
    return runs.at(run).substr(runs.at(run).find(':') + 1);
  }
  std::string ModesOfRuns() const {
    std::string modes;
    for (const std::string& run : runs) modes += run.substr(0, run.find(':')) + " ";
    return modes;
  }
  static std::string TextInBox(int box) {
    return LTrim(TranscriptLines(*frmPR->answerText[static_cast<std::size_t>(box)]).at(0));
  }
  // What the page of mistakes says below its banner, in one text.
  static std::string MistakesTold() {
    std::string text;
    for (const std::string& line : TranscriptLines(frmPR->lessonText)) text += LTrim(line) + " ";
    std::ranges::replace(text, '\xFF', ' ');
    return text.substr(BannerText().size() + 1);
  }
  // The box, by the text in it, of the problem on the screen: choice 1 is always right.
  static std::string BoxWith(const std::string& text) {
    for (int i = 1; i <= session.gChoiceCount; ++i)
      if (TextInBox(i) == text) return "picAnswer(" + std::to_string(i) + ")";
    return "no box shows " + text;
  }
  // Picks the box of the n-th choice.
  void Pick(int choice) {
    user.At("AnswerWait").Do("pick choice", [=, this] {
      const int number = std::stoi(NumberOf(runs.size() - 1));
      EXPECT_TRUE(FindControl(BoxWith(std::to_string(number + choice))).Click());
    });
  }

  TestLessonPlan plan;
  std::vector<std::string> runs;
};

inline constexpr const char* kSame = "cmdOption(0)";
inline constexpr const char* kDifferent = "cmdOption(1)";
inline constexpr const char* kExplain = "cmdOption(2)";
inline constexpr const char* kLeave = "cmdOption(4)";

}  // namespace course::testing
