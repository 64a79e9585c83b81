// A box that is typed into, and a list that hides fields: by the keys of the machine.
#include "platform/text_box.h"

#include "platform/events.h"
#include "platform/robot.h"
#include "platform/surface.h"
#include "support/course_fixture.h"

namespace course::testing {
namespace {

namespace robot = platform::robot;

class TextBoxTest : public CourseTest {
 protected:
  TextBoxTest() : form("frmTyping", 3000, 1500), txtLine(form, "txtLine") {
    txtLine.Move(0, 0, 3000, 500);
  }
  void SetUp() override {
    CourseTest::SetUp();
    form.Show();
    txtLine.SetFocus();
    platform::PumpEvents();
  }
  std::string Text() {
    platform::PumpEvents();
    return txtLine.Text();
  }
  platform::Form form;
  platform::TextBox txtLine;
};

TEST_F(TextBoxTest, HoldsSingleBytesWhateverComes) {
  for (const char key : {'Z', 'o', '\xEB', '\b', '\xE9'}) robot::Type(form, key);
  EXPECT_EQ(Text(), "Zo\xE9");
  robot::Type(form, robot::Key::Left);
  robot::Type(form, '-');
  EXPECT_EQ(Text(), "Zo-\xE9");
  robot::TypeWithAlt(form, 'r');  // a shortcut that nobody has
  EXPECT_EQ(Text(), "Zo-\xE9");
  txtLine.SelectAll();
  robot::Paste(form, "\xC5\x81ukasz\n\xE2\x82\xAC \xC3\xBC\tx");
  EXPECT_EQ(Text(), "ukasz \xFCx");
}

TEST_F(TextBoxTest, AsksForEveryCharacterThatComesIn) {
  txtLine.OnKeyPress = [](int code) { return code == 'a' ? 'A' : code == '!' ? 0 : code; };
  robot::Type(form, 'a');
  robot::Type(form, '!');
  robot::Paste(form, "!ab\xE2\x82\xAC!");
  EXPECT_EQ(Text(), "AAb");
  EXPECT_TRUE(txtLine.Type("!a"));
  EXPECT_EQ(Text(), "AAbA");
  txtLine.SetText("a!");  // the program's own text is not asked for
  EXPECT_EQ(Text(), "a!");
  txtLine.SetEnabled(false);
  EXPECT_FALSE(txtLine.Type("b"));
  EXPECT_EQ(Text(), "a!");
}

TEST_F(TextBoxTest, ShowsDotsForWhatIsHidden) {
  txtLine.HideCharacters();
  txtLine.SetText("AB");
  platform::PumpEvents();
  const auto before = form.Grab();
  txtLine.SetText("XY");
  platform::PumpEvents();
  const auto after = form.Grab();
  EXPECT_EQ(Text(), "XY");
  for (int y = 0; y < before->PixelHeight(); ++y)
    for (int x = 0; x < before->PixelWidth(); ++x)
      ASSERT_EQ(before->Pixel(x, y), after->Pixel(x, y)) << x << ", " << y;
}

class HidingListTest : public CourseTest {
 protected:
  HidingListTest() : form("frmList", 9000, 1500), lstNames(form, "lstNames") {
    lstNames.Move(0, 0, 9000, 1500);
  }
  platform::Form form;
  platform::ListBox lstNames;
};

TEST_F(HidingListTest, KeepsHiddenFieldsOutOfSightAtAnyWidth) {
  const std::string item = "Ada" + std::string(100, ' ') + "7 KL;";
  form.Show();
  platform::PumpEvents();  // the focus comes now, and marks no row
  const auto picture = [this](const std::string& text) {
    lstNames.Clear();
    lstNames.AddItem(text);
    platform::PumpEvents();
    return form.Grab();
  };
  const auto plain = picture("Ada");
  const auto hiding = picture(item);
  EXPECT_EQ(lstNames.List(0), item);
  for (int y = 0; y < plain->PixelHeight(); ++y)
    for (int x = 0; x < plain->PixelWidth(); ++x)
      ASSERT_EQ(plain->Pixel(x, y), hiding->Pixel(x, y)) << x << ", " << y;
}

TEST_F(HidingListTest, NeitherSpeaksNorCopiesHiddenFields) {
  lstNames.AddItem("Ada" + std::string(100, ' ') + "7 KL;");
  lstNames.AddItem("Bob   C299", 6);
  form.Show();
  platform::PumpEvents();
  lstNames.SetFocus();
  const char* const names[] = {"Ada", "Bob"};
  for (int row = 0; row < 2; ++row) {
    lstNames.SetListIndex(row);
    EXPECT_EQ(robot::SpokenRow(lstNames, row), names[row]);
    EXPECT_EQ(robot::Copied(form), names[row]);
  }
  EXPECT_EQ(lstNames.Text(), "Bob   C299");
}

TEST_F(HidingListTest, TheFirstArrowSelectsTheFirstRow) {
  for (const char* name : {"Ada", "Bob"}) lstNames.AddItem(name);
  int clicks = 0;
  lstNames.OnClick = [&] { ++clicks; };
  form.Show();
  lstNames.SetFocus();
  platform::PumpEvents();
  EXPECT_EQ(lstNames.ListIndex(), -1);
  robot::Type(form, robot::Key::Down);
  platform::PumpEvents();
  EXPECT_EQ(lstNames.Text(), "Ada");
  robot::Type(form, robot::Key::Down);
  platform::PumpEvents();
  EXPECT_EQ(lstNames.Text(), "Bob");
  EXPECT_EQ(clicks, 2);
}

}  // namespace
}  // namespace course::testing
