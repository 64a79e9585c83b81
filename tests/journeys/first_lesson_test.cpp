// A student's first visit: from the main menu through the whole of "Simple Inequalities" and back.
#include "display/lesson_window.h"
#include "engine/lesson_script.h"
#include "journeys/shell_fixture.h"
#include "lessons/registry.h"

namespace course::testing {
namespace {

constexpr int kUnit = 10;
constexpr int kEsc = 27;

class FirstLesson : public MenuTest {
 protected:
  void SetUp() override {
    MenuTest::SetUp();
    Load();
    Choose(kUnit, 1);
  }
  void Continue(int pages) {
    for (int i = 0; i < pages; ++i) {
      Rest();
      user.At("PageEnd").Click("cmdNavigate(2)");
    }
  }
  // Buttons count a tenth of a second after a wait has begun.
  void Rest() {
    user.At("PageEnd").Do("rest", [this] {
      clock.Advance(0.2);
      session.gProceed = 0;
    });
  }
  void Check(const std::string& place, const std::function<void()>& look) {
    user.At(place).Do("look", look);
  }
  static LessonScript::DrawnProblem Drawn() {
    return MakeLesson("Simple Inequalities")->Draw(session.gProblemSeed);
  }
  void Pick(bool right) {
    user.At("AnswerWait").Do("pick a box", [right] {
      const int box = right ? Drawn().CorrectBox() : Drawn().CorrectBox() % 4 + 1;
      EXPECT_TRUE(frmPR->picAnswer[box].Click());
    });
  }
  static std::string LastLine() { return TranscriptLines(frmPR->lessonText).back(); }
};

TEST_F(FirstLesson, ReadsSeesPractisesAndComesBackWithHisSelection) {
  // Both teaching screens: by CONTINUE, by a click on the panel, and the first one again by number.
  Continue(5);
  Check("PageEnd", [] {
    EXPECT_EQ(session.gScreenNum, 2);
    EXPECT_EQ(frmPR->lblScreenNumber.Caption(), "Lesson\nConcept\nScreen\n2 of 2");
  });
  Rest();
  user.Click("picScreenNum(1)");
  Check("PageEnd", [] { EXPECT_EQ(session.gScreenNum, 1); });
  for (int page = 0; page < 11; ++page) user.At("PageEnd").Click("pnlLesson");
  // A worked example, begun again, and ended before its time; then practice.
  Check("PageEnd", [] { EXPECT_EQ(session.gMode, mode::Example); });
  user.At("PageEnd").Click("optAnimSpeed(3)");
  Rest();
  user.Click("cmdNavigate(8)");
  Rest();
  user.Click("cmdNavigate(5)").Answer(platform::Answer::No);
  // A wrong answer, the same problem again, another one, and the explanation of the one missed.
  int missed = 0;
  Pick(false);
  user.At("frmCorrect").Click("cmdOption(0)");
  Pick(true);
  user.At("frmCorrect").Click("cmdOption(1)");
  Pick(false);
  Check("frmCorrect", [&] { missed = session.gProblemSeed; });
  user.At("frmCorrect").Click("cmdOption(2)");
  Continue(8);
  Check("frmCorrect", [&] {
    EXPECT_EQ(session.gProblemSeed, missed);
    EXPECT_EQ(LastLine().substr(LastLine().find('x')),
              ChoiceText(Drawn().problem, Drawn().problem.correct));
    EXPECT_EQ(session.gAnimDelayUnit, 0);
  });
  user.At("frmCorrect").Click("cmdOption(1)");
  Check("AnswerWait", [] {
    EXPECT_EQ(frmPR->lblPracticeResults.Caption(), " Practice Probs Attempted: 2  Correct: 0 ");
  });
  user.At("AnswerWait").Press(kEsc);

  ASSERT_TRUE(frmMenu->lstLesson.DblClick());

  EXPECT_EQ(frmPR, nullptr);
  EXPECT_TRUE(frmMenu->form.Enabled());
  EXPECT_EQ(frmMenu->lstChapter.ListIndex(), kUnit - 1);
  EXPECT_EQ(frmMenu->lstLesson.ListIndex(), 0);
  EXPECT_EQ(user.pauses, 13 * 25) << "the last sentence slides up 13 rows";
}

TEST_F(FirstLesson, ChoosesEveryActivityByItsTabAndLeavesByItsMenuAndItsCloseBox) {
  user.At("PageEnd").Click("picNav(3)");
  user.At("AnswerWait").Click("picNav(2)");
  Check("PageEnd", [] { EXPECT_EQ(session.gMode, mode::Example); });
  user.At("PageEnd").Click("picNav(1)");
  Check("PageEnd", [] { EXPECT_EQ(session.gMode, mode::Lesson); });
  user.At("PageEnd").Menu("mnuFileReturn");
  ASSERT_TRUE(frmMenu->cmdStart.Click());
  user.At("PageEnd").CloseBox();
  ASSERT_TRUE(frmMenu->cmdStart.Click());
  EXPECT_EQ(frmPR, nullptr);
}

}  // namespace
}  // namespace course::testing
