#include "assessment/unit_test_start.h"

#include <string>

#include "assessment/result_sheet.h"
#include "display/lesson_window.h"
#include "platform/dialogs.h"
#include "platform/look.h"
#include "session/session.h"

namespace course {
namespace {

using platform::look::MovePixels;
using platform::look::SetType;

constexpr int kPixel = platform::TwipsPerPixelX;
constexpr int kOptions = 3;  // option i stands for i + 1 problems

// All in pixels.
constexpr int kWidth = 540;
constexpr int kMargin = 32;
constexpr int kInside = kWidth - 2 * kMargin;
constexpr int kLineHeight = 28;
constexpr int kNumberWidth = 48;
constexpr int kLessonsTop = HeadingBand::kHeight + 24;
constexpr int kQuestionTop = kLessonsTop + 44;
constexpr int kFrameTop = kQuestionTop + 32;
constexpr int kFrameHeight = 48;
constexpr int kOptionWidth = 64;
constexpr int kOptionStep = 112;
constexpr int kProblemsTop = kFrameTop + kFrameHeight + 16;
constexpr int kButtonsTop = kProblemsTop + 52;
constexpr int kButtonHeight = 44;
constexpr int kStartWidth = 180;
constexpr int kCancelWidth = 120;
constexpr int kButtonGap = 16;
constexpr int kHeight = kButtonsTop + kButtonHeight + 24;

class UnitTestStart {
 public:
  UnitTestStart()
      : form_("frmChapterTestStart", kWidth * kPixel, kHeight * kPixel),
        band_(form_, kWidth, "lblTitle", "lblChapterName"),
        lblNumberOfLessons_(form_, "lblNumberOfLessons", "Number of Lessons in Unit:"),
        lblNum1_(form_, "lblNum1"),
        lblNumberofProbsPerLesson_(form_, "lblNumberofProbsPerLesson",
                                   "Select Number of Problems from Each Lesson in the Unit"),
        fraNumberOfProbs_(form_, "fraNumberOfProbs"),
        lblNumberOfProbsOnTest_(form_, "lblNumberOfProbsOnTest", "Number of Problems on Test:"),
        lblNum2_(form_, "lblNum2"),
        cmdStart_(form_, "cmdStart", "Begin Unit Test"),
        cmdCancel_(form_, "cmdCancel", "Cancel") {
    form_.SetCaption(session.gLessonName);
    PlaceNumbers();
    PlaceOptions();
    PlaceButtons();
    Load();
  }

  void Show() {
    optNumProbs_[1].SetFocus();
    form_.ShowModal();
  }

 private:
  void PlaceNumbers() {
    PlaceNumber(lblNumberOfLessons_, lblNum1_, kLessonsTop);
    PlaceNumber(lblNumberOfProbsOnTest_, lblNum2_, kProblemsTop);
    MovePixels(lblNumberofProbsPerLesson_, kMargin, kQuestionTop, kInside, kLineHeight);
    SetType(lblNumberofProbsPerLesson_, 12);
    lblNumberofProbsPerLesson_.CentreVertically();
  }

  static void PlaceNumber(platform::Label& name, platform::Label& number, int top) {
    constexpr int kNameWidth = 260;
    MovePixels(name, kMargin, top, kNameWidth, kLineHeight);
    SetType(name, 12);
    MovePixels(number, kMargin + kNameWidth, top, kNumberWidth, kLineHeight);
    SetType(number, 14, true);
    name.CentreVertically();
    number.CentreVertically();
  }

  void PlaceOptions() {
    MovePixels(fraNumberOfProbs_, kMargin, kFrameTop, kInside, kFrameHeight);
    fraNumberOfProbs_.SetAccessibleName("Number of problems from each lesson");
    for (int i = 1; i <= kOptions; ++i) {
      optNumProbs_.MakeOne(i, "optNumProbs", fraNumberOfProbs_, std::to_string(i + 1));
      platform::OptionButton& option = optNumProbs_[i];
      MovePixels(option, (i - 1) * kOptionStep, 8, kOptionWidth, 32);
      option.SetFont("MS Sans Serif", 13, true);
      option.SetAccessibleName(std::to_string(i + 1) + " problems from each lesson");
      option.OnClick = [this, i] { Choose(i); };
    }
  }

  void PlaceButtons() {
    const int cancelLeft = kWidth - kMargin - kCancelWidth;
    MovePixels(cmdStart_, cancelLeft - kButtonGap - kStartWidth, kButtonsTop, kStartWidth,
               kButtonHeight);
    MovePixels(cmdCancel_, cancelLeft, kButtonsTop, kCancelWidth, kButtonHeight);
    cmdStart_.SetFont("MS Sans Serif", 11, true);
    cmdCancel_.SetFont("MS Sans Serif", 11, true);
    cmdStart_.OnClick = [this] { Start(); };
    cmdCancel_.OnClick = [this] { Cancel(); };
    form_.SetDefaultButton(cmdStart_);
    form_.SetNeutralButton(cmdCancel_);
  }

  // The counts of an earlier test must not pass for a choice.
  void Load() {
    session.gChapterTestLessonCount = session.gLessonCount.at(session.gUnitNum) - 1;
    session.gChapterTestProbsPerLesson = 0;
    session.gChapterTestProbCount = 0;
    band_.Show("Unit Test", session.gUnitName.at(session.gUnitNum));
    lblNum1_.SetCaption(std::to_string(session.gChapterTestLessonCount));
    const int most = MostProblemsPerLesson(session.gChapterTestLessonCount);
    for (int i = 1; i <= kOptions; ++i) optNumProbs_[i].SetEnabled(i + 1 <= most);
  }

  void Choose(int option) {
    session.gChapterTestProbsPerLesson = option + 1;
    session.gChapterTestProbCount =
        session.gChapterTestLessonCount * session.gChapterTestProbsPerLesson;
    optNumProbs_[option].SetValue(true);
    lblNum2_.SetCaption(std::to_string(session.gChapterTestProbCount));
  }

  void Start() {
    if (session.gChapterTestProbsPerLesson == 0) {
      platform::MessageBox({.text = "You must select the number of problems from each lesson\n"
                                    "that will appear on the test.",
                            .title = "Unit Test",
                            .icon = platform::Icon::Warning});
      return;
    }
    session.gActivity = activity::UnitTest;
    session.gChapterTest = 1;
    session.gChapterTestStatus = 1;
    session.gRunAgain = 1;
    session.gLeaveLesson = 0;
    form_.Close();
  }

  void Cancel() {
    session.gChapterTest = 0;
    session.gLeaveLesson = 1;
    session.gRunAgain = 0;
    form_.Close();
  }

  platform::Form form_;
  HeadingBand band_;
  platform::Label lblNumberOfLessons_;
  platform::Label lblNum1_;
  platform::Label lblNumberofProbsPerLesson_;
  platform::Frame fraNumberOfProbs_;
  ControlArray<platform::OptionButton, 1, kOptions> optNumProbs_;
  platform::Label lblNumberOfProbsOnTest_;
  platform::Label lblNum2_;
  platform::Button cmdStart_;
  platform::Button cmdCancel_;
};

}  // namespace

int MostProblemsPerLesson(int lessons) {
  if (lessons >= 7) return 2;
  return lessons == 6 ? 3 : 4;
}

void ShowUnitTestStartForm() {
  UnitTestStart().Show();
}

}  // namespace course
