// Presses and keys that were meant for what stood there before, and what a program that waits for a
// file lets through.
#include "engine/result_form.h"
#include "journeys/engine_fixture.h"
#include "platform/events.h"
#include "platform/form_inspection.h"
#include "platform/robot.h"
#include "records/activity_records.h"
#include "records/patience.h"
#include "support/record_fixture.h"
#include "support/sample_form.h"

namespace course::testing {
namespace {

namespace robot = platform::robot;
using Names = std::vector<std::string>;

class PressesTest : public LessonJourney {
 protected:
  // At the next wait, when the window has stood there for a while.
  void Mouse(const std::string& place, std::function<void()> presses) {
    Check(place, [this, presses = std::move(presses)] {
      clock.Advance(1);
      presses();
    });
  }
  // Its second press comes when the first one has had its effect.
  void DoubleClick(const std::string& place, platform::Control& (*control)(),
                   const std::string& placeThen) {
    Mouse(place, [control] { robot::ClickAt(control(), 10, 10); });
    Check(placeThen, [this, control] {
      clock.Advance(0.2);
      robot::SecondClickAt(control(), 10, 10);
    });
  }
};

TEST_F(PressesTest, ADoubleClickDoesOneThing) {
  const auto panel = []() -> platform::Control& { return frmPR->pnlLesson; };
  const auto next = []() -> platform::Control& { return frmPR->cmdNavigate[2]; };
  DoubleClick("PageEnd", panel, "PageEnd");
  Check("PageEnd", [] { EXPECT_EQ(session.gFirstPageOfScreen, 0) << "screen 1, page 2"; });
  DoubleClick("PageEnd", next, "PageEnd");
  Check("PageEnd", [] { EXPECT_EQ(session.gFirstPageOfScreen, 1) << "screen 2, page 1"; });
  DoubleClick(
      "PageEnd", []() -> platform::Control& { return frmPR->picScreenNum[2]; }, "PageEnd");
  DoubleClick(
      "PageEnd", []() -> platform::Control& { return frmPR->picNav[4]; }, "AnswerWait");
  const auto box = []() -> platform::Control& { return frmPR->picAnswer[2]; };
  for (int problem = 1; problem <= 2; ++problem) {
    Check("AnswerWait", [problem] { EXPECT_EQ(session.gLessonTestProb, problem); });
    DoubleClick("AnswerWait", box, "AnswerWait");
  }
  Check("AnswerWait", [] { EXPECT_EQ(session.gLessonTestProb, 3); });
  user.Answer(platform::Answer::Yes);
  Leave("AnswerWait");
  Run();
  EXPECT_EQ(runs.front() + runs.at(1), "screen 1screen 2");
  EXPECT_EQ(user.messages.size(), 1u) << "whether the test is to be ended, when it was left";
}

TEST_F(PressesTest, WhatHasJustOpenedTakesNoPress) {
  const auto pressLeave = [] { robot::ClickAt(FindControl(kLeave), 20, 20); };
  Mouse("AnswerWait", [] { robot::ClickAt(frmPR->picAnswer[1], 20, 20); });
  Check("frmCorrect", pressLeave);
  Check("frmCorrect", [&, this] {
    clock.Advance(0.39);
    pressLeave();
  });
  Check("frmCorrect", [&, this] {
    EXPECT_EQ(platform::Form::FrontForm()->Name(), "frmCorrect");
    clock.Advance(0.01);
    pressLeave();
  });
  Run(activity::Practice);
  EXPECT_EQ(session.gMode, mode::Leave);
}

TEST_F(PressesTest, ALessonThatHasJustOpenedTakesNoPress) {
  Check("PageEnd", [] { robot::ClickAt(frmPR->pnlLesson, 20, 20); });
  Check("PageEnd", [] { EXPECT_EQ(session.gFirstPageOfScreen, 1); });
  Leave("PageEnd");
  Run();
}

class SamplePressesTest : public CourseTest {
 protected:
  void SetUp() override {
    CourseTest::SetUp();
    sample.form.Show();
    platform::PumpEvents();
    clock.Advance(1);
  }
  Names Done() {
    platform::PumpEvents();
    return std::exchange(sample.done, {});
  }
  SampleForm sample;
};

TEST_F(SamplePressesTest, TheSecondPressIsLostUnlessAButtonRepeats) {
  robot::DoubleClickAt(sample.picPanel, 5, 5);
  robot::DoubleClickAt(sample.cmdContinue, 5, 5);
  EXPECT_EQ(Done(), (Names{"picPanel", "cmdContinue"}));
  sample.cmdContinue.SetRepeats(true);
  robot::DoubleClickAt(sample.cmdContinue, 5, 5);
  EXPECT_EQ(Done(), (Names{"cmdContinue", "cmdContinue"}));
}

TEST_F(SamplePressesTest, AKeyThatIsHeldDownCountsOnce) {
  sample.cmdContinue.SetFocus();
  for (const int code : {13, 13, 27}) robot::HoldKey(sample.form, code);
  sample.picPanel.SetTabStop(true);
  sample.picPanel.SetFocus();
  robot::HoldKey(sample.form, ' ');
  EXPECT_EQ(Done(), Names{});
  robot::Type(sample.form, 13);
  EXPECT_EQ(Done(), Names{"picPanel"});
}

class SaveWaitTest : public RecordsTest {};

// Everything that a person could try while a file is held by somebody else.
TEST_F(SaveWaitTest, WhileASaveWaitsTheFrontFormTakesEscAlone) {
  SampleForm behind("frmBehind");
  behind.form.Show();
  SampleForm sample;
  Names keys;
  sample.form.OnKeyPress = [&](int code) {
    keys.push_back(std::to_string(code));
    return true;
  };
  sample.form.OnCloseBox = [&] { keys.push_back("close box"); };
  sample.cmdContinue.OnClick = [&] {
    bool wasTried = false;
    user.OnPause = [&](double) {
      clock.Advance(1);
      if (std::exchange(wasTried, true)) return;
      EXPECT_FALSE(sample.cmdOK.Click());
      EXPECT_FALSE(sample.mnuSave->Click());
      EXPECT_FALSE(sample.form.ClickCloseBox());
      EXPECT_FALSE(sample.form.Press('a'));
      EXPECT_TRUE(sample.form.Press(27));
      robot::ClickAt(sample.cmdOK, 5, 5);
      robot::ClickAt(sample.optFaster, 8, 12);
      robot::ClickAt(sample.lstUnits, 40, 10);
      robot::ClickAt(behind.cmdOK, 5, 5);
      robot::CloseWindow(sample.form);
      for (const int code : {int{'a'}, 13, 27}) robot::Type(sample.form, code);
      platform::PumpEvents();
      EXPECT_FALSE(sample.optFaster.Value());
      EXPECT_EQ(sample.lstUnits.ListIndex(), -1);
    };
    int attempts = 0;
    EXPECT_FALSE(TryFor45Seconds([&] {
      if (++attempts < 3) throw platform::FileError(EAGAIN, "The file is in use");
    }));
    EXPECT_TRUE(wasTried);
  };
  user.Do("save", [&] { sample.cmdContinue.Click(); });
  user.Do("look", [&] {
    EXPECT_EQ(keys, (Names{"27", "27"}));
    EXPECT_EQ(sample.done, Names{});
    EXPECT_TRUE(sample.cmdOK.Click()) << "behind the wait all is as before";
  });
  sample.form.ShowModal();
  EXPECT_EQ(behind.done, Names{});
}

class MessagesTest : public CourseTest {};

TEST_F(MessagesTest, AreAsWideAsTheirLongestLine) {
  using platform::inspection::Shown;
  const std::string line =
      "     to set your screen resolution to 1024 x 768 or higher, line by line.";
  EXPECT_EQ(Shown({.text = line + "\n" + line + "\r\n" + line, .title = "T"}).lines, 3);
  EXPECT_EQ(Shown({.text = line, .title = "", .buttons = platform::Buttons::YesNo}).lines, 1);
  EXPECT_GT(Shown({.text = std::string(60, 'w') + " " + std::string(60, 'w'), .title = ""}).lines,
            1)
      << "what no screen is wide enough for is wrapped";
}

TEST_F(MessagesTest, HaveTheirTitleOrNone) {
  using platform::inspection::Shown;
  EXPECT_EQ(Shown({.text = "x", .title = "Login Warning"}).title, "Login Warning");
  // For an empty one the toolkit puts in the name of the program's file.
  EXPECT_EQ(Shown({.text = "x", .title = ""}).title, " ");
}

}  // namespace
}  // namespace course::testing
