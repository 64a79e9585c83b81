#include "records/record_forms_view.h"

#include <array>
#include <memory>
#include <utility>
#include <vector>

#include "platform/look.h"
#include "records/list_columns.h"
#include "records/record_load.h"
#include "records/record_report.h"
#include "session/session.h"

namespace course {
namespace {

using platform::Label;
using platform::look::MovePixels;
using platform::look::SetType;

constexpr int kPixel = platform::TwipsPerPixelX;

// All in pixels.
constexpr int kMargin = 24;
constexpr int kListWidth = 800;  // 98 characters and a scroll bar
constexpr int kWidth = kListWidth + 2 * kMargin;
constexpr int kHeadingHeight = 30;
constexpr int kLabelHeight = 34;
constexpr int kListTop = kMargin + kHeadingHeight + 14 + kLabelHeight + 4;
constexpr int kRowHeight = 20;
constexpr int kListHeight = 17 * kRowHeight + 4;
constexpr int kCommentTop = kListTop + kListHeight + 10;
constexpr int kCommentHeight = 20;
constexpr int kFrameTop = kCommentTop + 2 * kCommentHeight + 14;
constexpr int kFrameHeight = 64;
constexpr int kSortByWidth = 400;
constexpr int kDirectionWidth = 232;
constexpr int kButtonWidth = 120;
constexpr int kButtonHeight = 46;
constexpr int kHeight = kFrameTop + kFrameHeight + kMargin;

using enum Label::Align;
// A grade and a verdict stand in one place: a record is either practice or a test.
constexpr ColumnLabel kColumns[] = {
    {"lblName", "\nName", 2, 17, Left},
    {"lblDate", "\nDate", 18, 24, Left},
    {"lblLesson", "\nLesson", 26, 49, Left},
    {"lblActivity", "\nActivity", 52, 63, Left},
    {"lblProbsAtt", "Probs\nAtt.", 61, 67, Right},
    {"lblProbsCorr", "Probs\nCorr.", 67, 73, Right},
    {"lblPctCorr", "Pct.\nCorr.", 73, 79, Right},
    {"lblPracticeGrade", "Practice Grade*", 79, 93, Right},
    {"lblPassTest", "\nPass Test?**", 79, 93, Right},
    {"lblMins", "\nMins.", 93, 98, Right},
};

constexpr const char* kOrderNames[] = {"Name", "Percent", "Date", "Lesson"};
constexpr const char* kDirectionNames[] = {"Increasing", "Decreasing"};

class RecordView {
 public:
  RecordView(const std::string& caption, const std::vector<ExpandedRecord>& records)
      : form("frmDisplay", kWidth * kPixel, kHeight * kPixel),
        lblHeading_(form, "lblHeading", caption),
        lstRecords_(form, "lstRecords"),
        lblPracticeGradeComment_(
            form, "lblPracticeGradeComment",
            " * - Practice grades are given when 5 or more problems are attempted "),
        lblTestPassingGradeComment_(form, "lblTestPassingGradeComment",
                                    " ** - The passing grade for a test is " +
                                        std::to_string(session.gTestPassPercent) + " percent "),
        fraSortBy_(form, "fraSortBy", "Sort By:"),
        fraSortDirection_(form, "fraSortDirection", "Sort Direction:"),
        cmdOK_(form, "cmdOK", "Close") {
    form.SetCaption(caption);
    PlaceList();
    PlaceOrders();
    PlaceDirections();
    MovePixels(cmdOK_, kWidth - kMargin - kButtonWidth, kFrameTop + kFrameHeight - kButtonHeight,
               kButtonWidth, kButtonHeight);
    cmdOK_.SetFont("MS Sans Serif", 11, true);
    cmdOK_.OnClick = [this] { form.Close(); };
    form.SetDefaultButton(cmdOK_);
    form.SetNeutralButton(cmdOK_);
    ShowRecords(records);
  }

  platform::Form form;

 private:
  void PlaceList() {
    MovePixels(lblHeading_, kMargin, kMargin, kListWidth, kHeadingHeight);
    SetType(lblHeading_, 16, true);
    MovePixels(lstRecords_, kMargin, kListTop, kListWidth, kListHeight);
    lstRecords_.SetFont("Courier New", 10);
    lstRecords_.SetRowHeight(kRowHeight * kPixel);
    columns_ = MakeColumnLabels(lstRecords_, kColumns, kLabelHeight);
    lstRecords_.SetAccessibleName("Records");
    int top = kCommentTop;
    for (Label* comment : {&lblPracticeGradeComment_, &lblTestPassingGradeComment_}) {
      MovePixels(*comment, kMargin, top, kListWidth, kCommentHeight);
      SetType(*comment, 10);
      top += kCommentHeight;
    }
  }

  void PlaceOrders() {
    MovePixels(fraSortBy_, kMargin, kFrameTop, kSortByWidth, kFrameHeight);
    for (int i = 0; i < 4; ++i) {
      auto& option = optSort_[static_cast<std::size_t>(i)];
      option = std::make_unique<platform::OptionButton>(
          fraSortBy_, "optSort(" + std::to_string(i + 1) + ")", kOrderNames[i]);
      MovePixels(*option, 16 + i * 95, 26, 91, 26);
      option->OnClick = [this, i] { optSort_Click(static_cast<SortOrder>(i + 1)); };
    }
    if (OneStudentIsLoaded()) optSort_[0]->SetEnabled(false);
    optSort_[static_cast<std::size_t>(gRecordsSortOrder) - 1]->SetValue(true);
  }

  void PlaceDirections() {
    MovePixels(fraSortDirection_, kMargin + kSortByWidth + 16, kFrameTop, kDirectionWidth,
               kFrameHeight);
    for (int i = 0; i < 2; ++i) {
      auto& option = optSortDir_[static_cast<std::size_t>(i)];
      option = std::make_unique<platform::OptionButton>(
          fraSortDirection_, "optSortDir(" + std::to_string(i + 1) + ")", kDirectionNames[i]);
      MovePixels(*option, 16 + i * 106, 26, 102, 26);
      option->OnClick = [this, i] { optSortDir_Click(static_cast<SortDirection>(i + 1)); };
    }
    optSortDir_[static_cast<std::size_t>(gRecordsSortDirection) - 1]->SetValue(true);
  }

  void optSort_Click(SortOrder order) {
    if (std::exchange(gRecordsSortOrder, order) != order) Reload();
  }

  void optSortDir_Click(SortDirection direction) {
    if (std::exchange(gRecordsSortDirection, direction) != direction) Reload();
  }

  void Reload() {
    const std::vector<ExpandedRecord> records = LoadRecords(kLastStudent);
    if (!records.empty()) ShowRecords(records);
  }

  void ShowRecords(const std::vector<ExpandedRecord>& records) {
    lstRecords_.Clear();
    for (const ExpandedRecord& record : records) lstRecords_.AddItem(DisplayLine(record));
  }

  Label lblHeading_;
  ColumnLabels columns_;
  platform::ListBox lstRecords_;
  Label lblPracticeGradeComment_;
  Label lblTestPassingGradeComment_;
  platform::Frame fraSortBy_;
  platform::Frame fraSortDirection_;
  std::array<std::unique_ptr<platform::OptionButton>, 4> optSort_;
  std::array<std::unique_ptr<platform::OptionButton>, 2> optSortDir_;
  platform::Button cmdOK_;
};

}  // namespace

void ShowRecordView(int student, const std::string& caption) {
  // The records of one student all bear one name.
  if (student != kAllStudents && gRecordsSortOrder == SortOrder::Name)
    gRecordsSortOrder = SortOrder::Date;
  const std::vector<ExpandedRecord> records = LoadRecords(student);
  if (!records.empty()) RecordView(caption, records).form.ShowModal();
}

}  // namespace course
