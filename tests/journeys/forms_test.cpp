// Forms and controls as a person meets them: by the mouse and the keys of the machine, and by the
// scripted user.
#include <optional>

#include "platform/events.h"
#include "platform/robot.h"
#include "support/course_fixture.h"
#include "support/sample_form.h"

namespace course::testing {
namespace {

namespace robot = platform::robot;
using platform::Answer;
using Names = std::vector<std::string>;

class FormsTest : public CourseTest {
 protected:
  // Shows the sample, and lets it be painted and take presses.
  void ShowSample() {
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

TEST_F(FormsTest, MousePressesWhatIsUnderIt) {
  ShowSample();
  robot::ClickAt(sample.cmdContinue, 20, 20);
  robot::ClickAt(sample.picPanel, 5, 5);
  robot::ClickAt(sample.picInner, 5, 5);
  robot::ClickAt(sample.optFaster, 8, 12);
  EXPECT_EQ(Done(), (Names{"cmdContinue", "picPanel", "picInner", "optFaster"}));
  EXPECT_TRUE(sample.optFaster.Value());
}

TEST_F(FormsTest, MouseOnADisabledControlIsLost) {
  ShowSample();
  sample.picInner.SetEnabled(false);
  robot::ClickAt(sample.picInner, 5, 5);
  robot::ClickAt(sample.cmdRefused, 5, 5);
  EXPECT_EQ(Done(), Names{});
}

// Input that has come in already takes no effect before the next wait.
TEST_F(FormsTest, HandlersWaitWhilePainting) {
  ShowSample();
  robot::ClickAt(sample.cmdContinue, 20, 20);
  robot::Type(sample.form, 27);
  platform::PumpPaintEvents();
  EXPECT_EQ(sample.done, Names{});
  EXPECT_EQ(Done(), (Names{"cmdContinue", "cmdCancel"}));
}

TEST_F(FormsTest, ClickThatCameTooLateIsDropped) {
  ShowSample();
  sample.cmdContinue.OnClick = [this] { sample.cmdOK.SetVisible(false); };
  robot::ClickAt(sample.cmdContinue, 20, 20);
  robot::ClickAt(sample.cmdOK, 20, 20);
  EXPECT_EQ(Done(), Names{});
}

// What a handler throws reaches whoever waited, and a control may go in its own handler.
TEST_F(FormsTest, HandlersRunOutsideOfTheToolkit) {
  ShowSample();
  std::optional<SampleForm> other(std::in_place, "frmOther");
  other->form.Show();
  other->cmdContinue.OnClick = [&other] { other.reset(); };
  other->cmdContinue.SetRepeats(true);
  platform::PumpEvents();
  clock.Advance(1);
  robot::DoubleClickAt(other->cmdContinue, 20, 20);
  platform::PumpEvents();
  EXPECT_FALSE(other);

  sample.cmdContinue.OnClick = [] { throw 1; };
  robot::ClickAt(sample.cmdContinue, 20, 20);
  EXPECT_THROW(platform::PumpEvents(), int);
}

TEST_F(FormsTest, KeysReachTheFormBeforeItsControls) {
  ShowSample();
  sample.cmdContinue.SetFocus();
  sample.form.OnKeyPress = [this](int code) {
    sample.done.push_back("key " + std::to_string(code));
    return code == 27;
  };
  robot::Type(sample.form, 27);
  robot::Type(sample.form, 254);
  robot::Type(sample.form, ' ');
  EXPECT_EQ(Done(), (Names{"key 27", "key 254", "key 32", "cmdContinue"}))
      << "the blank that the form let pass presses the button";
  EXPECT_TRUE(sample.form.Shown());
}

TEST_F(FormsTest, EnterAndEscPressTheirButtons) {
  ShowSample();
  sample.optFaster.SetFocus();
  robot::Type(sample.form, 13);
  EXPECT_EQ(Done(), Names{"cmdOK"});
  ShowSample();
  sample.cmdContinue.SetFocus();
  robot::Type(sample.form, 13);
  EXPECT_EQ(Done(), Names{"cmdContinue"}) << "a button with the focus comes first";
  sample.lstUnits.SetFocus();
  robot::Type(sample.form, 13);
  EXPECT_EQ(Done(), Names{"double click on lstUnits"});
  robot::Type(sample.form, 27);
  EXPECT_EQ(Done(), Names{"cmdCancel"});
}

TEST_F(FormsTest, KeyboardGoesOnWhereItWas) {
  ShowSample();
  sample.cmdContinue.SetFocus();
  sample.form.SetEnabled(false);
  {
    SampleForm lesson("frmLesson");
    lesson.form.Show();
    platform::PumpEvents();
  }
  sample.form.SetEnabled(true);
  platform::PumpEvents();
  robot::Type(sample.form, ' ');
  EXPECT_EQ(Done(), Names{"cmdContinue"});
}

TEST_F(FormsTest, TabWalksInTheOrderOfMaking) {
  ShowSample();
  sample.cmdContinue.SetFocus();
  robot::Type(sample.form, robot::Key::Tab);
  robot::Type(sample.form, ' ');
  platform::PumpEvents();
  EXPECT_EQ(Done(), Names{"cmdOK"}) << "cmdRefused is disabled";
}

TEST_F(FormsTest, ListTellsOnceOfEveryChange) {
  ShowSample();
  EXPECT_EQ(sample.lstUnits.ListIndex(), -1);
  sample.lstUnits.SetFocus();
  EXPECT_EQ(sample.lstUnits.ListIndex(), -1) << "the focus selects nothing";
  sample.lstUnits.SetListIndex(0);
  sample.lstUnits.SetListIndex(0);
  EXPECT_EQ(Done(), Names{"lstUnits"});
  robot::Type(sample.form, robot::Key::Down);
  EXPECT_EQ(Done(), Names{"lstUnits"});
  EXPECT_EQ(sample.lstUnits.Text(), " 2 - Equations");
  robot::DoubleClickAt(sample.lstUnits, 40, 2 * sample.lstUnits.RowHeight() / 15 + 10);
  EXPECT_EQ(Done(), (Names{"lstUnits", "double click on lstUnits"}));
  EXPECT_EQ(sample.lstUnits.Text(), " 3 - x\xB2 and roots");
  sample.lstUnits.Clear();
  EXPECT_EQ(Done(), Names{});
  EXPECT_EQ(sample.lstUnits.ListIndex(), -1);
  EXPECT_EQ(sample.lstUnits.List(0), "");
}

TEST_F(FormsTest, ClicksAreRefusedWhereAPersonCouldNot) {
  EXPECT_FALSE(sample.cmdContinue.Click()) << "the form is hidden";
  ShowSample();
  EXPECT_TRUE(sample.cmdContinue.Click());
  EXPECT_FALSE(sample.cmdRefused.Click());
  sample.picPanel.SetVisible(false);
  EXPECT_TRUE(sample.picInner.Visible());
  EXPECT_FALSE(sample.picInner.Click()) << "its parent is hidden";
  sample.fraSpeed.SetEnabled(false);
  EXPECT_TRUE(sample.optSlower.Enabled());
  EXPECT_FALSE(sample.optSlower.Click()) << "its parent is disabled";
  sample.form.SetEnabled(false);
  EXPECT_FALSE(sample.cmdContinue.Click());
  EXPECT_FALSE(sample.mnuSave->Click());
  EXPECT_FALSE(sample.form.Press(27));
  EXPECT_FALSE(sample.form.ClickCloseBox());
  sample.form.SetEnabled(true);
  sample.mnuSave->SetVisible(false);
  EXPECT_FALSE(sample.mnuSave->Click());
  EXPECT_TRUE(sample.mnuSave->Enabled());
  EXPECT_TRUE(sample.mnuExit->Click());
  EXPECT_EQ(Done(), (Names{"cmdContinue", "mnuExit"}));
}

TEST_F(FormsTest, OptionsExcludeEachOther) {
  ShowSample();
  sample.optSlower.SetValue(true);
  EXPECT_EQ(Done(), Names{}) << "only a click is told";
  EXPECT_TRUE(sample.optFaster.Click());
  EXPECT_TRUE(sample.optFaster.Value());
  EXPECT_FALSE(sample.optSlower.Value());
}

TEST_F(FormsTest, ModalFormTakesAllInput) {
  ShowSample();
  SampleForm dialog("frmDialog");
  SampleForm inner("frmInner");
  dialog.cmdContinue.OnClick = [&] {
    inner.form.ShowModal();
    dialog.done.push_back("inner closed");
  };
  user.At("frmDialog").Do("try the form behind", [this] {
    EXPECT_FALSE(sample.cmdContinue.Click());
    robot::ClickAt(sample.cmdContinue, 20, 20);
  });
  user.At("frmDialog").Click("cmdContinue");
  user.At("frmInner").Do("try both", [&] {
    EXPECT_EQ(platform::Form::ModalForm(), &inner.form);
    EXPECT_FALSE(dialog.cmdOK.Click());
    EXPECT_TRUE(inner.cmdOK.Click());
  });
  user.At("frmDialog").Press(27);
  dialog.form.ShowModal();
  EXPECT_EQ(dialog.done, (Names{"inner closed", "cmdCancel"}));
  EXPECT_EQ(platform::Form::ModalForm(), nullptr);
  EXPECT_EQ(Done(), Names{});
  EXPECT_TRUE(sample.cmdContinue.Click());
}

TEST_F(FormsTest, ModalFormThatIsClosedAtOnceDoesNotWait) {
  sample.form.OnFirstShown = [this] { sample.form.Close(); };
  sample.form.ShowModal();
  EXPECT_FALSE(sample.form.Shown());
}

TEST_F(FormsTest, ModalFormIsTakenDownByAnException) {
  user.Do("give up", [] { throw 1; });
  EXPECT_THROW(sample.form.ShowModal(), int);
  EXPECT_EQ(platform::Form::ModalForm(), nullptr);
  EXPECT_FALSE(sample.form.Shown());
}

TEST_F(FormsTest, CloseBoxClosesNothingByItself) {
  ShowSample();
  robot::CloseWindow(sample.form);
  EXPECT_EQ(Done(), Names{"cmdCancel"}) << "the neutral button";
  SampleForm stubborn("frmStubborn");
  stubborn.form.OnCloseBox = [&] { stubborn.done.push_back("close box"); };
  stubborn.form.Show();
  robot::CloseWindow(stubborn.form);
  platform::PumpEvents();
  EXPECT_EQ(stubborn.done, Names{"close box"});
  EXPECT_TRUE(stubborn.form.Shown());
}

TEST_F(FormsTest, FirstPaintingIsToldOnceAShowing) {
  int shown = 0;
  sample.form.OnFirstShown = [&] { ++shown; };
  ShowSample();
  sample.form.SetEnabled(false);
  platform::PumpEvents();
  EXPECT_EQ(shown, 1);
  sample.form.Hide();
  ShowSample();
  EXPECT_EQ(shown, 2);
}

TEST_F(FormsTest, RefreshShowsADrawingAtOnce) {
  ShowSample();
  sample.picPanel.FillRect({0, 0, 280, 180}, platform::colour::Yellow);
  sample.picPanel.Refresh();
  const auto picture = sample.form.Grab();
  const int menuHeight = picture->PixelHeight() - sample.form.Height() / 15;
  EXPECT_GT(menuHeight, 15) << "the menu bar stands above the client area";
  EXPECT_EQ(picture->PixelWidth(), sample.form.Width() / 15);
  EXPECT_EQ(picture->Pixel(16, menuHeight + 48), platform::colour::Yellow);
  EXPECT_EQ(picture->Pixel(15, menuHeight + 48), platform::colour::FormGrey);
  EXPECT_EQ(picture->Pixel(16 + 40, menuHeight + 48 + 60), platform::colour::Black) << "border";
  EXPECT_EQ(picture->Pixel(16 + 41, menuHeight + 48 + 61), platform::colour::White) << "inner box";
}

TEST_F(FormsTest, MovingKeepsTheDrawingAndResizingClearsIt) {
  sample.picPanel.FillRect({0, 0, 10, 10}, platform::colour::Red);
  sample.picPanel.SetLeft(300);
  EXPECT_EQ(sample.picPanel.Pixel(3, 3), platform::colour::Red);
  sample.picPanel.Move(300, 720, 150 * 15, 80 * 15);
  EXPECT_EQ(sample.picPanel.PixelWidth(), 150);
  EXPECT_EQ(sample.picPanel.PixelHeight(), 80);
  EXPECT_EQ(sample.picPanel.Pixel(3, 3), platform::colour::Blue);
}

TEST_F(FormsTest, ScreenReaderSpeaksAndPressesABox) {
  ShowSample();
  sample.picPanel.SetAccessibleName("Answer A");
  sample.picPanel.SetAccessibleText("x\xB2 < 3");
  EXPECT_EQ(sample.picPanel.AccessibleText(), "x\xB2 < 3");
  EXPECT_EQ(robot::Spoken(sample.picPanel), "Answer A: x\xB2 < 3");
  EXPECT_TRUE(robot::PressBySpeech(sample.picPanel));
  EXPECT_EQ(Done(), Names{"picPanel"});
  sample.picPanel.OnClick = nullptr;
  EXPECT_FALSE(robot::PressBySpeech(sample.picPanel));
  sample.cmdContinue.SetAccessibleName("Continue");
  EXPECT_EQ(robot::Spoken(sample.cmdContinue), "Continue");
}

TEST_F(FormsTest, KeyboardReachesABoxThatTabStopsAt) {
  ShowSample();
  sample.picPanel.SetTabStop(true);
  sample.lstUnits.SetFocus();
  robot::Type(sample.form, robot::Key::BackTab);
  robot::Type(sample.form, ' ');
  EXPECT_EQ(Done(), Names{"picPanel"});
  robot::Type(sample.form, 13);
  EXPECT_EQ(Done(), Names{"picPanel"});
}

TEST_F(FormsTest, ControlsAreFoundByName) {
  EXPECT_EQ(sample.form.Find("optFaster"), &sample.optFaster);
  EXPECT_EQ(sample.form.Find("optTurbo"), nullptr);
  EXPECT_EQ(sample.form.FindMenuItem("mnuExit"), sample.mnuExit);
}

}  // namespace
}  // namespace course::testing
