// Rules beside a practice problem, and the window of hints.
#include <gtest/gtest.h>

#include "display/images.h"
#include "engine/rules_and_hints.h"
#include "journeys/engine_fixture.h"

namespace course::testing {
namespace {

class Rules : public LessonJourney {
 protected:
  void SetUp() override {
    LessonJourney::SetUp();
    plan.offersRules = true;
    plan.onProblemPage = [] { ShowRulesPicture(gallery::OrderOfOperations); };
  }
  static bool PictureShown() { return frmPR->picGalleryImage[1].Visible(); }
  static std::string Order() {
    std::string order;
    for (int i = 1; i <= session.gChoiceCount; ++i) order += TextInBox(i) + " ";
    return order;
  }
  void Toggle() { Click("AnswerWait", "cmdShowRulesandReminders"); }
};

TEST_F(Rules, AClickShowsThemBesideTheSameProblem) {
  std::string before;
  Check("AnswerWait", [&] {
    EXPECT_FALSE(PictureShown());
    EXPECT_EQ(frmPR->cmdShowRulesandReminders.Caption(), "Show Rules and Reminders");
    before = Order();
  });
  Toggle();
  Check("AnswerWait", [&] {
    EXPECT_TRUE(PictureShown());
    EXPECT_EQ(frmPR->cmdShowRulesandReminders.Caption(), "Hide Rules and Reminders");
    EXPECT_EQ(Order(), before);
  });
  Pick(1);  // a retry: not counted
  Click("frmCorrect", kDifferent);
  Check("AnswerWait", [] {
    EXPECT_EQ(session.gProblemsAttempted, 0);
    EXPECT_TRUE(PictureShown()) << "from problem to problem";
  });
  Toggle();
  Check("AnswerWait", [] { EXPECT_FALSE(PictureShown()); });
  Leave("AnswerWait");
  Run(activity::Practice);
  EXPECT_EQ(ModesOfRuns(), "2 1 2 1 ");
  EXPECT_EQ(NumberOf(0), NumberOf(1));
  EXPECT_NE(NumberOf(1), NumberOf(2));
  EXPECT_EQ(NumberOf(2), NumberOf(3));
  EXPECT_EQ(session.gRulesShown, kFalse);
}

TEST_F(Rules, AnExplanationAndAnExampleShowNone) {
  Toggle();
  Pick(1);
  Click("frmCorrect", kExplain);
  Check("PageEnd", [] {
    EXPECT_FALSE(PictureShown());
    EXPECT_FALSE(frmPR->cmdShowRulesandReminders.Visible());
  });
  Leave("PageEnd");
  Run(activity::Practice);
}

TEST_F(Rules, HintsOpenInAWindowOfTheirOwn) {
  Check("AnswerWait", [] {
    platform::Button& button = frmPR->cmdShowRulesAndHints;
    EXPECT_FALSE(button.Visible());
    button.SetVisible(true);
    ASSERT_TRUE(button.Click());
    EXPECT_FALSE(button.Visible());
    platform::Control& picture = FindControl("picRulesAndHints");
    EXPECT_EQ(picture.OwnForm()->Width(), picture.Width());
    EXPECT_EQ(picture.OwnForm()->Height(), picture.Height() + 900);
    const platform::Control& close = FindControl("cmdClose");
    EXPECT_EQ(close.Left() + close.Width() / 2, picture.Width() / 2);
    ASSERT_TRUE(FindControl("cmdClose").Click());
    EXPECT_TRUE(button.Visible());
    EXPECT_EQ(frmPR->frmRulesAndHints, nullptr);

    ASSERT_TRUE(button.Click());
    Header("");
    EXPECT_EQ(frmPR->frmRulesAndHints, nullptr) << "a new page closes it";
    EXPECT_FALSE(button.Visible());
  });
  Leave("AnswerWait");
  Run(activity::Practice);
}

TEST_F(Rules, TheListOfRulesNeverLooksSelected) {
  Check("AnswerWait", [] {
    frmPR->picRules1.SetVisible(true);
    frmPR->lstRules1.AddItem("a + b = b + a");
    frmPR->lstRules1.SetListIndex(0);
    EXPECT_EQ(frmPR->lstRules1.ListIndex(), -1);
    Header("");
    EXPECT_FALSE(frmPR->picRules1.Visible());
  });
  Leave("AnswerWait");
  Run(activity::Practice);
}

}  // namespace
}  // namespace course::testing
