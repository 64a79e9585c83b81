// What all forms have in common: nothing is cut or covered, the keyboard reaches everything in the
// order of reading, Enter and Esc have their buttons.
#include <algorithm>
#include <set>

#include "lesson_lab/form_gallery.h"
#include "platform/events.h"
#include "platform/form_inspection.h"
#include "platform/robot.h"
#include "support/course_fixture.h"
#include "support/record_fixture.h"

namespace course::testing {
namespace {

namespace inspection = platform::inspection;
namespace robot = platform::robot;
using inspection::Edges;
using platform::Control;
using platform::Form;
using platform::Label;

class AllFormsTest : public CourseTest {
 protected:
  // Shows every form; the person looks at it, and closes it.
  void LookAtAll(const std::function<void(Form&)>& look, const std::function<void(Form&)>& close) {
    for (const lesson_lab::GalleryForm& form : lesson_lab::ModalForms(folder_.Path())) {
      SCOPED_TRACE(form.name);
      user.Do("look at " + form.name, [&] {
        platform::PumpEvents();
        look(*Form::ModalForm());
      });
      user.Do("close " + form.name, [&] { close(*Form::ModalForm()); });
      form.Show();
    }
  }
  // By its neutral button; where there is none the last button leaves.
  static void CloseByButton(Form& form) {
    platform::Button* neutral = inspection::NeutralButton(form);
    (neutral != nullptr ? *neutral : FindControl("cmdOption(4)")).Click();
  }
  static std::vector<Control*> SeenControls(const Form& form) {
    std::vector<Control*> seen = inspection::Controls(form);
    std::erase_if(seen, [](const Control* control) { return !inspection::IsSeen(*control); });
    return seen;
  }
  static bool IsLabel(const Control& control) { return dynamic_cast<const Label*>(&control); }

 private:
  ScratchFolder folder_;
};

bool Contains(const Edges& outer, const Edges& inner) {
  return outer.left <= inner.left && outer.top <= inner.top && outer.right >= inner.right &&
         outer.bottom >= inner.bottom;
}

bool Meet(const Edges& a, const Edges& b) {
  return a.left < b.right && b.left < a.right && a.top < b.bottom && b.top < a.bottom;
}

TEST_F(AllFormsTest, ShowAllOfTheLongestTexts) {
  const auto look = [](const Form& form) {
    for (const Control* control : SeenControls(form)) {
      const auto [right, below] = inspection::ExcessOfText(*control);
      EXPECT_EQ(right, 0) << control->Name();
      EXPECT_EQ(below, 0) << control->Name();
    }
  };
  LookAtAll(look, CloseByButton);
}

TEST_F(AllFormsTest, CoverNothingAndHaveEvenMargins) {
  constexpr int kPixel = platform::TwipsPerPixelX;
  static constexpr int kLeast = 8;      // pixels between a control and the edge
  static constexpr int kTolerance = 6;  // a text that begins with a blank stands out by that
  const auto look = [](const Form& form) {
    const std::vector<Control*> seen = SeenControls(form);
    const int width = form.Width() / kPixel;
    const int height = form.Height() / kPixel;
    int left = width;
    int right = width;
    for (const Control* a : seen) {
      const Edges edges = inspection::EdgesOf(*a);
      if (edges.right - edges.left == width) continue;  // a band
      left = std::min(left, edges.left);
      right = std::min(right, width - edges.right);
      EXPECT_GE(edges.top, 4) << a->Name();
      EXPECT_GE(height - edges.bottom, kLeast) << a->Name();
      for (const Control* b : seen) {
        const Edges other = inspection::EdgesOf(*b);
        const bool nested = Contains(edges, other) || Contains(other, edges);
        if (a == b || nested || (IsLabel(*a) && IsLabel(*b))) continue;
        EXPECT_FALSE(Meet(edges, other)) << a->Name() << " and " << b->Name();
      }
    }
    EXPECT_GE(left, kLeast);
    EXPECT_NEAR(left, right, kTolerance);
  };
  LookAtAll(look, CloseByButton);
}

// The controls at which Tab stops, from the first one on, until it comes round.
std::vector<Control*> WalkByTab(Form& form) {
  std::vector<Control*> stops;
  for (int i = 0; i < 100; ++i) {
    robot::Type(form, robot::Key::Tab);
    platform::PumpEvents();
    Control* focused = inspection::Focused(form);
    if (!stops.empty() && focused == stops.front()) break;
    stops.push_back(focused);
  }
  return stops;
}

// Options that exclude each other are one stop: the chosen one, or any when there is none.
std::string StopName(const Control& control, const std::vector<Control*>& all) {
  if (dynamic_cast<const platform::OptionButton*>(&control) == nullptr) return control.Name();
  const std::string group = control.Name().substr(0, control.Name().find('(') + 1);
  for (const Control* other : all) {
    const auto* option = dynamic_cast<const platform::OptionButton*>(other);
    if (option != nullptr && option->Value() && option->Name().starts_with(group))
      return &control == option ? option->Name() : "";
  }
  return group;
}

TEST_F(AllFormsTest, AreWalkedByTabInTheOrderOfReading) {
  const auto look = [](Form& form) {
    const std::vector<Control*> seen = SeenControls(form);
    std::set<std::string> expected;
    for (const Control* control : seen)
      if (inspection::TakesTab(*control) && control->CanBeClicked())
        expected.insert(StopName(*control, seen));
    expected.erase("");
    const std::vector<Control*> stops = WalkByTab(form);
    std::set<std::string> reached;
    int upwards = 0;
    for (std::size_t i = 0; i < stops.size(); ++i) {
      ASSERT_NE(stops[i], nullptr);
      reached.insert(StopName(*stops[i], seen));
      EXPECT_NE(robot::Spoken(*stops[i]), "") << stops[i]->Name();
      const Edges here = inspection::EdgesOf(*stops[i]);
      const Edges next = inspection::EdgesOf(*stops[(i + 1) % stops.size()]);
      if (next.top < here.bottom && next.left < here.right) ++upwards;
    }
    EXPECT_EQ(reached, expected);
    EXPECT_EQ(upwards, 1) << "from the last to the first, and nowhere else";
  };
  LookAtAll(look, CloseByButton);
}

TEST_F(AllFormsTest, EnterAndEscHaveButtonsAndShortcutsAreUnique) {
  const auto look = [](const Form& form) {
    if (form.Name() != "frmCorrect") {  // there the student has to choose
      const platform::Button* standard = inspection::DefaultButton(form);
      ASSERT_NE(standard, nullptr);
      EXPECT_TRUE(inspection::IsSeen(*standard));
      // Enter is not another button's when the form comes up.
      Control* focused = inspection::Focused(form);
      EXPECT_TRUE(focused == standard || dynamic_cast<platform::Button*>(focused) == nullptr);
    }
    std::set<char> shortcuts;
    for (const Control* control : SeenControls(form)) {
      const auto* button = dynamic_cast<const platform::Button*>(control);
      const std::size_t mark = button ? button->Caption().find('&') : std::string::npos;
      if (mark == std::string::npos) continue;
      const char letter = static_cast<char>(std::toupper(button->Caption()[mark + 1]));
      EXPECT_TRUE(shortcuts.insert(letter).second) << button->Name();
    }
  };
  const auto closeBy = [](bool (*way)(Form&)) {
    return [way](Form& form) {
      EXPECT_TRUE(way(form) || form.Name() == "frmCorrect");
      EXPECT_EQ(form.Shown(), form.Name() == "frmCorrect");
      if (form.Shown()) CloseByButton(form);
    };
  };
  LookAtAll(look, closeBy([](Form& form) { return form.Press(27); }));
  LookAtAll([](Form&) {}, closeBy([](Form& form) { return form.ClickCloseBox(); }));
}

}  // namespace
}  // namespace course::testing
