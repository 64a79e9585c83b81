#include "assessment/unit_test_results.h"

#include <memory>
#include <string>
#include <vector>

#include "assessment/result_sheet.h"
#include "assessment/test_scores.h"
#include "display/lesson_window.h"
#include "platform/events.h"
#include "platform/look.h"
#include "platform/stop.h"
#include "session/session.h"

namespace course {
namespace {

using platform::look::kNavy;
using platform::look::kPaper;
using platform::look::MovePixels;
using platform::look::SetType;

constexpr int kPixel = platform::TwipsPerPixelX;

// The form's size beyond the lesson window's, in twips.
constexpr int kMoreWidth = 1585;
constexpr int kMoreHeight = 745;

constexpr int kRowsPerSheet = 10;
constexpr int kRows = 2 * kRowsPerSheet;

// All in pixels.
constexpr int kMargin = 32;
constexpr int kSheetGap = 24;
constexpr int kHeadingTop = HeadingBand::kHeight + 18;
constexpr int kHeadingHeight = 36;
constexpr int kSheetTop = kHeadingTop + kHeadingHeight + 6;
constexpr int kRowHeight = 40;
constexpr int kRowsTop = 11;  // of the first row on a sheet
constexpr int kSheetHeight = kRowsTop + kRowsPerSheet * kRowHeight + 11;
constexpr int kSheetBottom = kSheetTop + kSheetHeight;
constexpr int kFootBlank = 6;  // the line of the percent begins with a blank, so wide
constexpr int kButtonWidth = 180;
constexpr int kButtonHeight = 48;

// A lesson's name: one line, or two when the title is long.  Both have their middle in that of the
// row.
constexpr int kLessonLeft = 40;
constexpr int kLessonWidth = 150;
constexpr std::size_t kLongTitle = 17;  // characters
constexpr int kShortTop = 18;
constexpr int kShortHeight = 26;
constexpr int kLongTop = 14;
constexpr int kLongHeight = 34;

constexpr ResultColumns kColumns = {
    .number = 4, .correct = 186, .yours = 240, .verdict = 298, .review = 358};

struct Heading {
  const char* text;
  int left;
  int width;
};
constexpr Heading kHeadings[] = {{"No.", kColumns.number, kNumberWidth + 4},
                                 {"Lesson", kLessonLeft, kLessonWidth},
                                 {"Correct\nAnswer", kColumns.correct, kLetterWidth},
                                 {"Your\nAnswer", kColumns.yours, kLetterWidth},
                                 {"Correct?", kColumns.verdict, kLetterWidth}};

class UnitTestResults {
 public:
  UnitTestResults()
      : form_("frmChapterTestResults", frmPR->form.Width() + kMoreWidth,
              frmPR->form.Height() + kMoreHeight),
        width_(form_.Width() / kPixel),
        band_(form_, width_, "lblTitle", "lblChapterName"),
        picLeft_(form_, "picLeft"),
        picRight_(form_, "picRight"),
        lblPercent_(form_, "lblPercent"),
        cmdContinue_(form_, "cmdContinue", "Continue") {
    form_.SetCaption(session.gLessonName);
    const int sheetWidth = (width_ - 2 * kMargin - kSheetGap) / 2;
    PlaceSheet(picLeft_, "lblHdgLeft", kMargin, sheetWidth);
    PlaceSheet(picRight_, "lblHdgRight", width_ - kMargin - sheetWidth, sheetWidth);
    for (int i = 1; i <= kRows; ++i) MakeRow(i);
    PlaceFoot();
    Load();
  }

  void Show() {
    cmdContinue_.SetFocus();
    form_.ShowModal();
    // The window below stands bare before the next script draws on it.  The person's input waits.
    platform::PumpPaintEvents();
  }

 private:
  struct Row {
    Row(platform::PictureBox& sheet, int index, int middle)
        : result(sheet, index, middle, kColumns),
          lblLessonDesc(sheet, ArrayName("lblLessonDesc", index)) {
      SetType(lblLessonDesc, 10, false, kNavy, kPaper);
      lblLessonDesc.CentreVertically();
    }
    void SetVisible(bool visible) {
      result.SetVisible(visible);
      lblLessonDesc.SetVisible(visible);
    }
    ResultRow result;
    platform::Label lblLessonDesc;
  };

  void PlaceSheet(platform::PictureBox& sheet, const std::string& headingName, int left,
                  int width) {
    int index = 0;
    for (const Heading& heading : kHeadings) {
      headings_.push_back(std::make_unique<platform::Label>(
          form_, headingName + std::to_string(++index), heading.text));
      platform::Label& label = *headings_.back();
      MovePixels(label, left + heading.left, kHeadingTop, heading.width, kHeadingHeight);
      SetType(label, 9, true);
      label.CentreVertically();
      if (heading.left != kLessonLeft) label.SetAlignment(platform::Label::Align::Centre);
    }
    MovePixels(sheet, left, kSheetTop, width, kSheetHeight);
    RuleSheet(sheet, kRowsTop, kRowHeight, kRowsPerSheet);
  }

  void MakeRow(int i) {
    platform::PictureBox& sheet = i <= kRowsPerSheet ? picLeft_ : picRight_;
    const int middle = kRowsTop + (i - 1) % kRowsPerSheet * kRowHeight + kRowHeight / 2;
    rows_.push_back(std::make_unique<Row>(sheet, i, middle));
    rows_.back()->result.cmdReview.OnClick = [this, i] { Review(i); };
  }

  void PlaceFoot() {
    const int buttonLeft = width_ - kMargin - kButtonWidth;
    const int top = (kSheetBottom + form_.Height() / kPixel - kButtonHeight) / 2;
    MovePixels(lblPercent_, kMargin - kFootBlank, top, buttonLeft - kMargin, kButtonHeight);
    SetType(lblPercent_, 15, true);
    lblPercent_.CentreVertically();
    MovePixels(cmdContinue_, buttonLeft, top, kButtonWidth, kButtonHeight);
    cmdContinue_.SetFont("MS Sans Serif", 12, true);
    cmdContinue_.OnClick = [this] { Continue(); };
    form_.SetDefaultButton(cmdContinue_);
    form_.SetNeutralButton(cmdContinue_);
  }

  void Load() {
    session.gChapterTestReviewNum = 0;
    session.gChapterTestReviewExplain = 0;
    band_.Show("Unit Test", session.gUnitName.at(session.gUnitNum));
    const int count = session.gChapterTestProbCount;
    if (count > kRows)
      platform::Stop("frmChapterTestResults: the test has " + std::to_string(count) +
                     " problems, and there are " + std::to_string(kRows) + " rows");
    for (const auto& row : rows_) row->SetVisible(false);
    int correct = 0;
    for (int i = 1; i <= count; ++i)
      if (FillRow(i)) ++correct;
    lblPercent_.SetCaption(UnitTestPercentText(correct, count));
  }

  // True when the problem was answered correctly.
  bool FillRow(int i) {
    Row& row = *rows_[static_cast<std::size_t>(i - 1)];
    const auto& data = session.gChapterTestData.at(static_cast<std::size_t>(i));
    const Session::AnswerLetters letters = UnitTestLetters(i);
    const bool right = letters.correct == letters.student;
    row.result.Fill(i, letters, right ? "Y" : "N");
    row.lblLessonDesc.SetCaption(data[unit_test_column::ShortTitle]);
    PlaceLesson(row.lblLessonDesc, (i - 1) % kRowsPerSheet,
                data[unit_test_column::Title].size() < kLongTitle);
    row.SetVisible(true);
    return right;
  }

  static void PlaceLesson(platform::Label& label, int row, bool oneLine) {
    const int top = row * kRowHeight + (oneLine ? kShortTop : kLongTop);
    MovePixels(label, kLessonLeft, top, kLessonWidth, oneLine ? kShortHeight : kLongHeight);
  }

  void Continue() {
    session.gChapterTest = 0;
    session.gChapterTestProb = 0;
    session.gChapterTestReviewNum = 0;
    session.gChapterTestReviewExplain = 0;
    session.gActivity = activity::None;
    form_.Close();
  }

  void Review(int problem) {
    session.gRunAgain = 1;
    session.gChapterTestReviewNum = problem;
    form_.Close();
  }

  platform::Form form_;
  int width_;  // pixels
  HeadingBand band_;
  std::vector<std::unique_ptr<platform::Label>> headings_;
  platform::PictureBox picLeft_;
  platform::PictureBox picRight_;
  std::vector<std::unique_ptr<Row>> rows_;
  platform::Label lblPercent_;
  platform::Button cmdContinue_;
};

}  // namespace

void ShowUnitTestResultsForm() {
  UnitTestResults().Show();
}

}  // namespace course
