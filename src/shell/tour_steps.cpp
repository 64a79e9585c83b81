#include "shell/tour_steps.h"

#include <algorithm>
#include <climits>
#include <initializer_list>

#include "assessment/lesson_test_results.h"
#include "guidance/tour_pictures.h"
#include "platform/form_inspection.h"
#include "platform/look.h"
#include "platform/stop.h"
#include "records/diagnostic_forms.h"
#include "records/login_form.h"
#include "records/record_text.h"
#include "records/rosters.h"
#include "shell/tour_stage.h"

namespace course {
namespace {

using platform::Form;
using platform::PixelRect;
using platform::Surface;
using platform::look::kPaper;
using platform::look::kSlate;

constexpr const char* kStudent = "Elena Novak";
constexpr const char* kLesson = "Order of Operations";  // the first one of the menu
constexpr int kSeed = 5;

// --- Pictures of forms -----------------------------------------------------------------------

// A picture, and where on it the client area of a form begins.
struct Shot {
  std::shared_ptr<const Surface> picture;
  int left = 0;
  int top = 0;
};

Shot ShotOf(Form& form) {
  std::shared_ptr<const Surface> picture = form.Grab();
  return {picture, 0, picture->PixelHeight() - form.Height() / platform::TwipsPerPixelY};
}

// With its caption on a bar, as it stands before another window.
Shot ShotOfDialog(Form& form) {
  constexpr int kBar = 28;  // pixels
  const Shot inside = ShotOf(form);
  const int width = inside.picture->PixelWidth();
  const int height = inside.picture->PixelHeight();
  auto picture = std::make_shared<Surface>(width + 2, height + kBar + 1);
  picture->FillRect({0, 0, width + 2, height + kBar + 1}, kSlate);
  picture->FontName = "MS Sans Serif";
  picture->FontSize = 10;
  picture->ForeColor = kPaper;
  picture->CurrentX = 10;
  picture->CurrentY = 6;
  picture->Print(form.Caption());
  picture->BitBlt(1, kBar, width, height, *inside.picture, 0, 0);
  return {picture, 1, kBar + inside.top};
}

// The dialog on a copy of what lies under it.
Shot ShotOver(const Surface& ground, const Shot& dialog, int left, int top) {
  auto picture = std::make_shared<Surface>(ground.PixelWidth(), ground.PixelHeight());
  picture->BitBlt(0, 0, ground.PixelWidth(), ground.PixelHeight(), ground, 0, 0);
  picture->BitBlt(left, top, dialog.picture->PixelWidth(), dialog.picture->PixelHeight(),
                  *dialog.picture, 0, 0);
  return {picture, left + dialog.left, top + dialog.top};
}

Shot ShotInFront(const Surface& ground, const Shot& dialog, int top) {
  return ShotOver(ground, dialog, (ground.PixelWidth() - dialog.picture->PixelWidth()) / 2, top);
}

// The smallest rectangle around these controls of the form, in pixels of the shot.
PixelRect Around(Form& form, const Shot& shot, std::initializer_list<const char*> names) {
  platform::inspection::Edges around = {INT_MAX, INT_MAX, INT_MIN, INT_MIN};
  for (const char* name : names) {
    const platform::Control* control = form.Find(name);
    if (control == nullptr)
      platform::Stop("Around: no " + std::string(name) + " on " + form.Name());
    const auto [left, top, right, bottom] = platform::inspection::EdgesOf(*control);
    around = {std::min(around.left, left), std::min(around.top, top), std::max(around.right, right),
              std::max(around.bottom, bottom)};
  }
  return {shot.left + around.left, shot.top + around.top, around.right - around.left,
          around.bottom - around.top};
}

// --- The steps ---------------------------------------------------------------------------------

class TourMaker {
 public:
  std::vector<TourStep> Make() {
    Login();
    Menu();
    Lesson();
    Example();
    Practice();
    Explanation();
    LessonTest();
    ProgressCodes();
    Diagnostics();
    return std::move(steps_);
  }

 private:
  // The part is what the callout points at.
  void Add(const Shot& shot, const PixelRect& part, TourSide side, const std::string& heading,
           const std::string& text) {
    steps_.push_back({shot.picture, heading, text, side, part});
  }

  void Login() {
    std::vector<std::string> items;
    for (const char* name : {"Ben Carter", kStudent, "Grace Miller", "Noah Silva", "Ruth Weber"})
      items.push_back(Padded(name, kStudentNameLength) + std::string(kHiddenGap, ' ') + "01");
    const auto look = [this](Form& form) {
      dynamic_cast<platform::ListBox&>(*form.Find("lstStudents")).SetListIndex(1);
      // With room beside it.
      const Shot dialog = ShotOfDialog(form);
      Surface ground(2 * dialog.picture->PixelWidth() - 60, dialog.picture->PixelHeight() + 120);
      ground.BackColor = platform::colour::FormGrey;
      ground.Cls();
      const Shot shot = ShotOver(ground, dialog, 20, 60);
      Add(shot, Around(form, shot, {"lstStudents", "cmdLogin", "cmdSkip"}), TourSide::Right,
          "Who are you?",
          "Click your name, then Login, and your work is recorded.  Without a name everything "
          "works in the same way: click Skip Login.");
    };
    stage_.PlayForm([&items] { LoginForm(items).form.ShowModal(); }, look);
  }

  // The menu of a student who has got that far.
  void LoadMenuOf(const std::function<void()>& readProgress) {
    StartUp startUp;
    startUp.ReadSettings = [] { return platform::InstallationSettings{}; };
    startUp.Login = [] {
      session.gRecordKeepingEnabled = 1;
      session.gStudentName = kStudent;
    };
    startUp.ReadProgress = readProgress;
    const auto opened = [] {};
    startUp.forms = {opened, opened, opened, opened, opened, opened, opened};
    frmMenu = std::make_unique<MainMenu>(startUp);
    frmMenu->Form_Load();
  }

  void Menu() {
    LoadMenuOf({});
    Form& form = frmMenu->form;
    const Shot shot = ShotOf(form);
    Add(shot, Around(form, shot, {"lstChapter", "lblLessons1", "lstLesson", "picLegend"}),
        TourSide::Above, "Units and lessons",
        "The units of the course stand on the left, the lessons of the selected unit on the "
        "right.  Click a unit, then a lesson.");
    Add(shot, Around(form, shot, {"cmdStart"}), TourSide::Left, "Start Lesson",
        "Now click Start Lesson.  A double click on the lesson does the same.");
    frmMenu.reset();
  }

  void Lesson() {
    stage_.PlayLesson({.title = kLesson, .activity = activity::Lesson}, [this](Form& form) {
      const Shot shot = ShotOf(form);
      Add(shot, Around(form, shot, {"picNav(1)", "picNav(4)"}), TourSide::Right, "Four sections",
          "Concept, examples, practice problems and a lesson test: each has its tab.");
      Add(shot, Around(form, shot, {"picScreenNum(1)", "cmdNavigate(2)"}), TourSide::Above,
          "Page by page",
          "CONTINUE adds a little to the page, and so does a click on the page itself.  Click "
          "a number to go to that screen.");
    });
  }

  void Example() {
    stage_.PlayLesson(
        {.title = kLesson, .activity = activity::Example, .seed = kSeed, .page = 4},
        [this](Form& form) {
          const Shot shot = ShotOf(form);
          Add(shot, Around(form, shot, {"cmdNavigate(2)", "cmdNavigate(5)"}), TourSide::Above,
              "Examples",
              "An example is solved for you step by step.  You may ask for another one as often as "
              "you like.");
        });
  }

  void Practice() {
    const auto lookAtPage = [this](Form& form) {
      page_ = ShotOf(form);
      Add(page_, Around(form, page_, {"picAnswer(1)", "picAnswer(3)", "picAnswer(5)"}),
          TourSide::Above, "Practice problems",
          "Work the problem on paper, then click the box of your answer.");
    };
    const auto lookAtVerdict = [this](Form& form) {
      const Shot shot = ShotInFront(*page_.picture, ShotOfDialog(form), 216);
      Add(shot, Around(form, shot, {"cmdOption(0)", "cmdOption(4)"}), TourSide::Below,
          "Right or wrong?",
          "You are told at once.  Try the problem again, go on to a different one, or see how it "
          "is done.");
    };
    stage_.PlayWrongAnswer({.title = kLesson, .activity = activity::Practice, .seed = kSeed},
                           lookAtPage, lookAtVerdict);
  }

  void Explanation() {
    stage_.PlayLesson({.title = kLesson,
                       .activity = activity::Practice,
                       .seed = kSeed,
                       .explained = true,
                       .page = 4},
                      [this](Form& form) {
                        const Shot shot = ShotOf(form);
                        Add(shot, Around(form, shot, {"cmdNavigate(2)", "cmdNavigate(6)"}),
                            TourSide::Above, "Explanations",
                            "The problem that you missed is worked out "
                            "with its own numbers.  Then you go on practicing.");
                      });
  }

  void LessonTest() {
    stage_.PlayLesson({.title = kLesson, .activity = activity::LessonTest, .seed = kSeed},
                      [this](Form& form) { page_ = ShotOf(form); });
    for (std::size_t i = 1; i <= kLessonTestProblems; ++i)
      session.gLessonTestAnswers.at(i) = {"A", i == 4 ? "C" : "A"};
    stage_.PlayForm(ShowLessonTestResultsForm, [this](Form& form) {
      const Shot shot = ShotInFront(*page_.picture, ShotOfDialog(form), 8);
      Add(shot, Around(form, shot, {"picRows", "lblPercent", "cmdContinue"}), TourSide::Below,
          "Lesson test",
          "A lesson test has five problems.  At the end you see your score, and you can review "
          "each problem.");
    });
  }

  void ProgressCodes() {
    LoadMenuOf([] {
      auto& codes = session.gProgressCodes.at(1);
      codes.at(1) = "C";
      codes.at(2) = "T";
      codes.at(3) = "W";
    });
    Form& form = frmMenu->form;
    const Shot shot = ShotOf(form);
    Add(shot, Around(form, shot, {"picProgress2"}), TourSide::Below, "Progress codes",
        "W means that you have worked on the lesson, T that you took its test, and the check mark "
        "that you passed it.");
    frmMenu.reset();
  }

  void Diagnostics() {
    constexpr int kRows = 11;  // of the plan, under the arrow
    const std::string record =
        "C29901011526" + std::string("ABCAADABAACABAADABCAABADAAEABA") + std::string(30, 'A');
    const auto look = [this](Form& form) {
      auto& list = dynamic_cast<platform::ListBox&>(*form.Find("lstRecords"));
      ScrollTo(list, "RECOMMENDED PLAN OF STUDY");
      const Shot shot = ShotOfDialog(form);
      PixelRect plan = Around(form, shot, {"lstRecords"});
      plan.height = kRows * list.RowHeight() / platform::TwipsPerPixelY;
      Add(shot, plan, TourSide::Below, "Diagnostic test",
          "The diagnostic test finds out what you know already.  Its report ends with a plan of "
          "study.");
    };
    stage_.PlayForm([&record] { ShowDiagnosticReport(kStudent, {{record, kStudent}}); }, look);
  }

  // The first line that holds the text becomes the upper one.
  static void ScrollTo(platform::ListBox& list, const std::string& text) {
    int line = 0;
    while (line < list.ListCount() && list.List(line).find(text) == std::string::npos) ++line;
    list.SetListIndex(list.ListCount() - 1);
    list.SetListIndex(line);
  }

  TourStage stage_;
  Shot page_;
  std::vector<TourStep> steps_;
};

// Made when the first picture is wanted.
class HeldSteps {
 public:
  const TourStep& At(int number) {
    if (steps_.empty()) steps_ = TourSteps();
    return steps_.at(static_cast<std::size_t>(number - 1));
  }

 private:
  std::vector<TourStep> steps_;
};

}  // namespace

std::vector<TourStep> TourSteps() {
  return TourMaker().Make();
}

std::vector<PictureHolder> TourHolders() {
  const auto held = std::make_shared<HeldSteps>();
  return {{"Tour texts", kTourSteps,
           [held](int number) {
             const TourStep& step = held->At(number);
             return TourTextPicture(step.heading, step.text);
           }},
          {"Tour arrows", kTourSteps,
           [held](int number) { return TourArrowPicture(held->At(number).side); }},
          {"Tour screens", kTourSteps, [held](int number) {
             const Surface& screen = *held->At(number).screen;
             auto copy = std::make_unique<Surface>(screen.PixelWidth(), screen.PixelHeight());
             copy->BitBlt(0, 0, screen.PixelWidth(), screen.PixelHeight(), screen, 0, 0);
             return copy;
           }}};
}

}  // namespace course
