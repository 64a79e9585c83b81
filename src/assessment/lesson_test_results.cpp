#include "assessment/lesson_test_results.h"

#include <memory>
#include <vector>

#include "assessment/result_sheet.h"
#include "assessment/test_scores.h"
#include "platform/look.h"
#include "session/session.h"

namespace course {
namespace {

using platform::look::MovePixels;
using platform::look::SetType;

constexpr int kPixel = platform::TwipsPerPixelX;

// All in pixels.
constexpr int kMargin = 32;
constexpr int kSheetWidth = 556;
constexpr int kWidth = kSheetWidth + 2 * kMargin;
constexpr int kPictureWidth = 72;
constexpr int kPictureHeight = 80;
constexpr int kHeadingTop = HeadingBand::kHeight + 20;
constexpr int kHeadingWidth = 96;
constexpr int kHeadingHeight = 36;
constexpr int kSheetTop = kHeadingTop + kHeadingHeight + 6;
constexpr int kRowHeight = 44;
constexpr int kSheetHeight = kLessonTestProblems * kRowHeight;
constexpr int kFootTop = kSheetTop + kSheetHeight + 24;
constexpr int kButtonWidth = 160;
constexpr int kButtonHeight = 44;
constexpr int kHeight = kFootTop + kButtonHeight + 24;

constexpr ResultColumns kColumns = {
    .number = 32, .correct = 124, .yours = 230, .verdict = 336, .review = 446};

struct Heading {
  const char* text;
  int left;  // of its column
  int width;
};
constexpr Heading kHeadings[] = {{"Problem", kColumns.number, kNumberWidth},
                                 {"Correct\nAnswer", kColumns.correct, kLetterWidth},
                                 {"Your\nAnswer", kColumns.yours, kLetterWidth},
                                 {"Correct?", kColumns.verdict, kLetterWidth}};

class LessonTestResults {
 public:
  LessonTestResults()
      : form_("frmLessonTestResults", kWidth * kPixel, kHeight * kPixel),
        band_(form_, kWidth, "lblTitle", "lblLessonName", kPictureWidth),
        picture1_(form_, "Picture1"),
        picRows_(form_, "picRows"),
        lblPercent_(form_, "lblPercent"),
        cmdContinue_(form_, "cmdContinue", "Continue") {
    form_.SetCaption("Lesson Test Results");
    PlacePicture();
    PlaceHeadings();
    PlaceRows();
    PlaceFoot();
    Load();
  }

  void Show() {
    cmdContinue_.SetFocus();
    form_.ShowModal();
  }

 private:
  void PlacePicture() {
    const int top = (HeadingBand::kHeight - kPictureHeight) / 2 - 2;
    MovePixels(picture1_, kWidth - kMargin - kPictureWidth, top, kPictureWidth, kPictureHeight);
    picture1_.DrawPicture("test_results", 0, 0);
    picture1_.Refresh();
  }

  void PlaceHeadings() {
    for (const Heading& heading : kHeadings) {
      const int index = static_cast<int>(lblHeadings_.size()) + 1;
      lblHeadings_.push_back(
          std::make_unique<platform::Label>(form_, ArrayName("lblHeading", index), heading.text));
      platform::Label& label = *lblHeadings_.back();
      MovePixels(label, kMargin + heading.left + (heading.width - kHeadingWidth) / 2, kHeadingTop,
                 kHeadingWidth, kHeadingHeight);
      SetType(label, 10, true);
      label.SetAlignment(platform::Label::Align::Centre);
      label.CentreVertically();
    }
  }

  void PlaceRows() {
    MovePixels(picRows_, kMargin, kSheetTop, kSheetWidth, kSheetHeight);
    RuleSheet(picRows_, 0, kRowHeight, kLessonTestProblems);
    for (int i = 1; i <= kLessonTestProblems; ++i) {
      const int middle = (i - 1) * kRowHeight + kRowHeight / 2;
      rows_.push_back(std::make_unique<ResultRow>(picRows_, i, middle, kColumns));
      rows_.back()->lblTestProbNo.SetAlignment(platform::Label::Align::Centre);
      rows_.back()->cmdReview.OnClick = [this, i] { Review(i); };
    }
  }

  void PlaceFoot() {
    const int buttonLeft = kWidth - kMargin - kButtonWidth;
    MovePixels(lblPercent_, kMargin, kFootTop, buttonLeft - kMargin, kButtonHeight);
    SetType(lblPercent_, 13, true);
    lblPercent_.CentreVertically();
    MovePixels(cmdContinue_, buttonLeft, kFootTop, kButtonWidth, kButtonHeight);
    cmdContinue_.SetFont("MS Sans Serif", 11, true);
    cmdContinue_.OnClick = [this] { Continue(); };
    form_.SetDefaultButton(cmdContinue_);
    form_.SetNeutralButton(cmdContinue_);
  }

  void Load() {
    session.gLessonTestReviewNum = 0;
    session.gLessonTestReviewExplain = 0;
    band_.Show("Lesson Test", session.gLessonName);
    int correct = 0;
    for (int i = 1; i <= kLessonTestProblems; ++i) {
      const Session::AnswerLetters& letters =
          session.gLessonTestAnswers[static_cast<std::size_t>(i)];
      const bool right = letters.correct == letters.student;
      if (right) ++correct;
      rows_[static_cast<std::size_t>(i - 1)]->Fill(i, letters, right ? "Yes" : "No");
    }
    lblPercent_.SetCaption(LessonTestPercentText(correct));
  }

  void Continue() {
    session.gLessonTest = 0;
    session.gLessonTestProb = 0;
    session.gLessonTestReviewNum = 0;
    session.gLessonTestReviewExplain = 0;
    session.gActivity = activity::None;
    form_.Close();
  }

  void Review(int problem) {
    session.gLessonTestReviewNum = problem;
    form_.Close();
  }

  platform::Form form_;
  HeadingBand band_;
  platform::PictureBox picture1_;
  std::vector<std::unique_ptr<platform::Label>> lblHeadings_;
  platform::PictureBox picRows_;
  std::vector<std::unique_ptr<ResultRow>> rows_;
  platform::Label lblPercent_;
  platform::Button cmdContinue_;
};

}  // namespace

void ShowLessonTestResultsForm() {
  LessonTestResults().Show();
}

}  // namespace course
