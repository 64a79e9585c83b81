#include "records/record_forms_view.h"

#include <array>
#include <memory>
#include <utility>
#include <vector>

#include "platform/look.h"
#include "records/form_parts.h"
#include "records/list_columns.h"
#include "records/record_load.h"
#include "records/record_report.h"
#include "session/session.h"

namespace course {
namespace {

using platform::Label;
using platform::look::MovePixels;
using namespace grid;

// In pixels.  Under the list two lines of comments, the frames of options, and beside them the
// button.
constexpr int kCommentHeight = 20;
constexpr int kCommentsTop = 10;  // below the list, as the frames
constexpr int kFramesTop = kCommentsTop + 2 * kCommentHeight + 14;
constexpr int kFrameHeight = 64;
constexpr int kSortByWidth = 400;
constexpr int kDirectionWidth = 232;
constexpr int kFrameGap = 16;

constexpr ListView::Layout kLayout = {.name = "frmDisplay",
                                      .width = 806,  // 98 characters and a scroll bar
                                      .labelHeight = 34,
                                      .rows = 17,
                                      .rowHeight = 20,
                                      .points = 10,
                                      .below = kFramesTop + kFrameHeight - kButtonHeight};

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
      : view_(kLayout, caption, caption),
        columns_(MakeColumnLabels(view_.lstRecords, kColumns, kLayout.labelHeight)),
        lblPracticeGradeComment_(
            view_.form, "lblPracticeGradeComment",
            " * - Practice grades are given when 5 or more problems are attempted "),
        lblTestPassingGradeComment_(view_.form, "lblTestPassingGradeComment",
                                    " ** - The passing grade for a test is " +
                                        std::to_string(session.gTestPassPercent) + " percent "),
        fraSortBy_(view_.form, "fraSortBy", "Sort By:"),
        fraSortDirection_(view_.form, "fraSortDirection", "Sort Direction:") {
    view_.lstRecords.SetAccessibleName("Records");
    PlaceComments();
    PlaceOrders();
    PlaceDirections();
    view_.MakeClose("Close");
    ShowRecords(records);
  }

  void ShowModal() { view_.form.ShowModal(); }

 private:
  void PlaceComments() {
    int top = view_.ListBottom() + kCommentsTop;
    for (Label* comment : {&lblPracticeGradeComment_, &lblTestPassingGradeComment_}) {
      MovePixels(*comment, kMargin, top, kLayout.width, kCommentHeight);
      platform::look::SetType(*comment, 10);
      top += kCommentHeight;
    }
  }

  void PlaceOrders() {
    MovePixels(fraSortBy_, kMargin, view_.ListBottom() + kFramesTop, kSortByWidth, kFrameHeight);
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
    MovePixels(fraSortDirection_, kMargin + kSortByWidth + kFrameGap,
               view_.ListBottom() + kFramesTop, kDirectionWidth, kFrameHeight);
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
    std::vector<std::string> lines;
    for (const ExpandedRecord& record : records) lines.push_back(DisplayLine(record));
    view_.Show(lines);
  }

  ListView view_;
  ColumnLabels columns_;
  Label lblPracticeGradeComment_;
  Label lblTestPassingGradeComment_;
  platform::Frame fraSortBy_;
  platform::Frame fraSortDirection_;
  std::array<std::unique_ptr<platform::OptionButton>, 4> optSort_;
  std::array<std::unique_ptr<platform::OptionButton>, 2> optSortDir_;
};

}  // namespace

void ShowRecordView(int student, const std::string& caption) {
  // The records of one student all bear one name.
  if (student != kAllStudents && gRecordsSortOrder == SortOrder::Name)
    gRecordsSortOrder = SortOrder::Date;
  const std::vector<ExpandedRecord> records = LoadRecords(student);
  if (!records.empty()) RecordView(caption, records).ShowModal();
}

}  // namespace course
