// What stands on every form and button is kept, in tests/journeys/captions.txt, and pictures that
// tell the student something are those that belong there.
//
// COURSE_BLESS_CAPTIONS=1 renews the text; look at what it changes.
#include <algorithm>
#include <fstream>
#include <iterator>

#include "engine/result_form.h"
#include "journeys/engine_fixture.h"
#include "lesson_lab/form_gallery.h"
#include "mathkit/tutor_codes.h"
#include "platform/events.h"
#include "platform/form_inspection.h"
#include "platform/robot.h"
#include "session/catalogue.h"
#include "shell/menu.h"
#include "support/record_fixture.h"

namespace course::testing {
namespace {

namespace inspection = platform::inspection;
namespace robot = platform::robot;
using platform::Form;

std::string Quoted(std::string text) {
  constexpr std::size_t kMost = 50;  // long texts are read where they stand
  for (char& c : text)
    if (c == '\n' || c == '\r') c = '/';
  if (text.size() > kMost) text = text.substr(0, kMost) + "...";
  return " \"" + ToUtf8(text) + "\"";
}

// A line a control that can be seen and says something: its caption, its picture, and what a screen
// reader says where that is something else.
std::string LineOf(const platform::Control& control) {
  std::string caption;
  std::string line;
  if (const auto* label = dynamic_cast<const platform::Label*>(&control)) {
    if (control.Name().ends_with(')')) return "";  // a row of results
    caption = label->Caption();
  } else if (const auto* button = dynamic_cast<const platform::Button*>(&control)) {
    caption = button->Caption();
    if (!button->Picture().empty()) line += " [" + button->Picture() + "]";
  }
  if (!caption.empty()) line += Quoted(caption);
  std::string plain = caption;
  std::erase(plain, '&');
  const std::string spoken = robot::Spoken(control);
  if (!spoken.empty() && spoken != plain) line += " spoken" + Quoted(spoken);
  return line.empty() ? "" : "  " + control.Name() + line + "\n";
}

std::string TextOf(const Form& form, const std::string& what) {
  std::string text = form.Name() + " (" + what + ")" + Quoted(form.Caption()) + "\n";
  for (const platform::MenuItem* item : inspection::MenuItems(form))
    text += "  " + item->Name() + Quoted(item->Caption()) + "\n";
  for (const platform::Control* control : inspection::Controls(form))
    if (inspection::IsSeen(*control)) text += LineOf(*control);
  return text;
}

std::string CaptionsFile() {
  return std::string(std::getenv("COURSE_SOURCE_DIR")) + "/tests/journeys/captions.txt";
}

class CaptionsTest : public CourseTest {
 protected:
  void TearDown() override {
    frmPR.reset();
    frmMenu.reset();
    CourseTest::TearDown();
  }
  std::string TextOfAllForms() {
    std::string text;
    for (const lesson_lab::GalleryForm& form : lesson_lab::ModalForms(folder_.Path())) {
      user.Do("look at " + form.name, [&] {
        platform::PumpEvents();
        text += TextOf(*Form::FrontForm(), form.name);
        platform::Button* neutral = inspection::NeutralButton(*Form::FrontForm());
        (neutral != nullptr ? *neutral : FindControl("cmdOption(4)")).Click();
      });
      form.Show();
    }
    return text;
  }
  std::string TextOfMenu() {
    StartUp startUp;
    startUp.ReadSettings = [] { return platform::InstallationSettings{}; };
    startUp.ReadScreen = [] { return ScreenFacts{}; };
    LoadMenu(startUp);
    return TextOf(frmMenu->form, "menu");
  }
  // All of its controls, those too that come and go.
  static std::string TextOfLessonWindow() {
    LoadLessonWindow();
    for (platform::Control* control : inspection::Controls(frmPR->form)) control->SetVisible(true);
    return TextOf(frmPR->form, "lesson window");
  }

 private:
  ScratchFolder folder_;
};

TEST_F(CaptionsTest, AreThoseThatWereKept) {
  std::string text = TextOfAllForms();
  text += TextOfMenu();
  text += TextOfLessonWindow();
  if (const char* bless = std::getenv("COURSE_BLESS_CAPTIONS"); bless && *bless == '1') {
    std::ofstream(CaptionsFile()) << text;
    return;
  }
  std::ifstream file(CaptionsFile());
  const std::string kept{std::istreambuf_iterator<char>(file), {}};
  const auto [here, there] = std::ranges::mismatch(text, kept);
  const auto from = static_cast<std::size_t>(here - text.begin());
  const std::size_t line = text.rfind('\n', from) + 1;
  EXPECT_TRUE(text == kept) << "shown: " << text.substr(line, text.find('\n', from) - line)
                            << "\nkept:  " << kept.substr(line, kept.find('\n', from) - line)
                            << "\nIf it has to change: COURSE_BLESS_CAPTIONS=1 "
                               "build/bin/journeys_tests --gtest_filter='CaptionsTest*'";
}

// Whether the artwork of this name stands on the box, with its upper left corner there.
bool Shows(const platform::PictureBox& box, const std::string& name, int left = 0, int top = 0) {
  platform::Surface expected(box.PixelWidth(), box.PixelHeight());
  expected.BackColor = box.BackColor;
  expected.Cls();
  expected.DrawPicture(name, left, top);
  bool any = false;
  for (int y = 0; y < expected.PixelHeight(); ++y)
    for (int x = 0; x < expected.PixelWidth(); ++x) {
      if (expected.Pixel(x, y) == box.BackColor) continue;
      any = true;
      if (expected.Pixel(x, y) != box.Pixel(x, y)) return false;
    }
  return any;
}

class PicturesTest : public LessonJourney {};

TEST_F(PicturesTest, TabsAndAnswerBoxesShowTheirOwn) {
  plan.kind = choice_kind::FiveShuffled;
  Check("AnswerWait", [] {
    const char* const tabs[] = {"lesson", "examples", "practice", "test"};
    for (int i = 1; i <= 4; ++i) {
      const std::string look = i == activity::Practice ? "_selected" : "_plain";
      EXPECT_TRUE(Shows(frmPR->picNav[i], "tab_" + std::string(tabs[i - 1]) + look)) << i;
    }
    for (int i = 1; i <= 5; ++i)
      EXPECT_TRUE(Shows(frmPR->picAnswer[i], "letter_" + std::string(1, "abcde"[i - 1]), 5, 8))
          << i;
  });
  Leave("AnswerWait");
  Run(activity::Practice);
}

// How many pixels of the control have the colour.
int CountOf(platform::Colour colour, const platform::Control& control) {
  const auto picture = control.OwnForm()->Grab();
  const inspection::Edges edges = inspection::EdgesOf(control);
  int count = 0;
  for (int y = edges.top; y < edges.bottom; ++y)
    for (int x = edges.left; x < edges.right; ++x) count += picture->Pixel(x, y) == colour ? 1 : 0;
  return count;
}

TEST_F(PicturesTest, TheVerdictHasItsOwnPictureAndColour) {
  LoadLessonWindow();
  for (const bool right : {true, false}) {
    Check("frmCorrect", [right] {
      platform::PumpEvents();
      const auto& picture = dynamic_cast<platform::PictureBox&>(FindControl("picResult"));
      EXPECT_EQ(Shows(picture, "verdict_correct"), right);
      EXPECT_EQ(Shows(picture, "verdict_incorrect"), !right);
      EXPECT_EQ(CountOf(platform::colour::Blue, FindControl("lblInfo2")) > 10, right);
      EXPECT_EQ(CountOf(platform::colour::Red, FindControl("lblInfo2")) > 10, !right);
    });
    user.Click(kLeave);
    ShowResultForm(right ? Verdict::Correct : Verdict::Incorrect);
  }
}

}  // namespace
}  // namespace course::testing
