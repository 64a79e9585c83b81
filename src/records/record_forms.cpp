#include "records/record_forms.h"

#include <string>

#include "platform/look.h"
#include "records/activity_records.h"
#include "records/form_parts.h"
#include "records/record_forms_print.h"
#include "records/record_forms_view.h"
#include "records/record_load.h"
#include "records/record_text.h"
#include "records/rosters.h"
#include "session/session.h"

namespace course {
namespace {

using platform::look::MovePixels;
using namespace grid;

constexpr const char* kTitle = "Manage Student Records";
constexpr int kPercents[] = {60, 70, 80, 90, 100};

// In pixels: the list on the left, two boxes of buttons and the percents on the right.
constexpr int kListWidth = 320;
constexpr int kListRows = 14;
constexpr int kButtonWidth = 200;
constexpr int kFrameMargin = 16;
constexpr int kFrameHeading = 30;
constexpr int kFrameWidth = kButtonWidth + 2 * kFrameMargin;
constexpr int kFrameHeight = kFrameHeading + 3 * kButtonHeight + 2 * kGap + kFrameMargin;
constexpr int kFramesLeft = kMargin + kListWidth + kMargin;
constexpr int kFrameGap = 16;
constexpr int kFramesWidth = 2 * kFrameWidth + kFrameGap;
constexpr int kPercentsTop = kListTop + kFrameHeight + 16;
constexpr int kPercentsHeight = 64;
constexpr int kPercentStep = (kFramesWidth - 2 * kFrameMargin) / 5;
constexpr int kWidth = kFramesLeft + kFramesWidth + kMargin;
constexpr int kHeight = kListTop + ListHeight(kListRows) + kMargin;

}  // namespace

RecordsForm::RecordsForm(std::function<void()> showPassPercent)
    : form("frmRecords", kWidth * kPixel, kHeight * kPixel),
      showPassPercent_(std::move(showPassPercent)),
      lblHeading_(form, "lblHeading", kTitle),
      lblStudents_(form, "lblStudents", "Students"),
      lstStudents_(form, "lstStudents"),
      fraAll_(form, "fraAll", "All Students"),
      fraSelected_(form, "fraSelected", "Selected Student"),
      fraTestPassingPercent_(form, "fraTestPassingPercent", "Test Passing Percent") {
  form.SetCaption(kTitle);
  PlaceList();
  MovePixels(fraAll_, kFramesLeft, kListTop, kFrameWidth, kFrameHeight);
  PlaceButtons(fraAll_, cmdAll_, "cmdAll", {"&Display Records", "&Print Records", "&Erase Records"},
               " of all students");
  MovePixels(fraSelected_, kFramesLeft + kFrameWidth + kFrameGap, kListTop, kFrameWidth,
             kFrameHeight);
  PlaceButtons(fraSelected_, cmdSelected_, "cmdSelected",
               {"D&isplay Records", "P&rint Records", "Er&ase Records"},
               " of the selected student");
  PlacePercents();
  PlaceMenu();
  Bind();
  gRecordsSortOrder = SortOrder::Name;
  gRecordsSortDirection = SortDirection::Increasing;
  ListStudents();
  optTestPassingPercent_[0]->SetValue(true);
  optTestPassingPercent_Click(0);
}

void RecordsForm::PlaceList() {
  PlaceHeading(lblHeading_, kWidth);
  PlaceNames(lblStudents_, lstStudents_, kMargin, kListWidth, kListRows);
  lstStudents_.SetAccessibleName("Students");
}

void RecordsForm::PlaceButtons(platform::Frame& frame, Buttons& buttons, const char* name,
                               const std::array<const char*, 3>& captions, const char* whose) {
  constexpr const char* kCommands[] = {"Display", "Print", "Erase"};
  int top = kFrameHeading;
  for (std::size_t i = 0; i < buttons.size(); ++i) {
    buttons[i] = std::make_unique<platform::Button>(
        frame, std::string(name) + "(" + std::to_string(i) + ")", captions[i]);
    PlaceButton(*buttons[i], kFrameMargin, top, kButtonWidth);
    buttons[i]->SetAccessibleName(std::string(kCommands[i]) + " records" + whose);
    top += kButtonHeight + kGap;
  }
}

void RecordsForm::PlacePercents() {
  MovePixels(fraTestPassingPercent_, kFramesLeft, kPercentsTop, kFramesWidth, kPercentsHeight);
  for (std::size_t i = 0; i < optTestPassingPercent_.size(); ++i) {
    auto& option = optTestPassingPercent_[i];
    option = std::make_unique<platform::OptionButton>(
        fraTestPassingPercent_, "optTestPassingPercent(" + std::to_string(i + 1) + ")",
        std::to_string(kPercents[i]) + "%");
    MovePixels(*option, kFrameMargin + static_cast<int>(i) * kPercentStep, 26, kPercentStep - 8,
               26);
    option->OnClick = [this, i] { optTestPassingPercent_Click(static_cast<int>(i)); };
  }
}

// Made last: Tab comes to it last.
void RecordsForm::PlaceMenu() {
  cmdMenu_ = std::make_unique<platform::Button>(form, "cmdMenu", "Return to &Menu");
  PlaceButton(*cmdMenu_, kWidth - kMargin - kFrameWidth, kHeight - kMargin - kButtonHeight,
              kFrameWidth);
}

void RecordsForm::Bind() {
  lstStudents_.OnClick = [this] { OfferSelected(true); };
  cmdAll_[Display]->OnClick = [this] { DisplayAll(); };
  cmdAll_[Print]->OnClick = [this] { PrintAll(); };
  cmdAll_[Erase]->OnClick = [this] { EraseAll(); };
  cmdSelected_[Display]->OnClick = [this] { DisplayRecords(); };
  cmdSelected_[Print]->OnClick = [this] { PrintRecords(); };
  cmdSelected_[Erase]->OnClick = [this] { EraseRecords(); };
  cmdMenu_->OnClick = [this] { form.Close(); };
  form.SetDefaultButton(*cmdAll_[Display]);
  form.SetNeutralButton(*cmdMenu_);
}

void RecordsForm::DisplayAll() {
  ShowRecordView(kAllStudents, "STUDENT RECORDS: All Students");
}

void RecordsForm::DisplayRecords() {
  const std::string item = lstStudents_.Text();
  ShowRecordView(StudentNumberOf(item), "STUDENT RECORDS: " + Trimmed(StudentNameOf(item)));
}

void RecordsForm::EraseAll() {
  if (IsSure(kTitle, "Are you sure you want to erase the records for ALL students?"))
    EraseStudentRecords(0, EraseMode::All);
}

void RecordsForm::EraseRecords() {
  const std::string item = lstStudents_.Text();
  if (IsSure(kTitle, Trimmed(StudentNameOf(item)) +
                         "\n\nAre you sure you want to erase this student's records?"))
    EraseStudentRecords(StudentNumberOf(item), EraseMode::OneStudent);
}

void RecordsForm::PrintAll() {
  course::PrintRecords(kAllStudents);
}

void RecordsForm::PrintRecords() {
  course::PrintRecords(StudentNumberOf(lstStudents_.Text()));
}

void RecordsForm::optTestPassingPercent_Click(int index) {
  session.gTestPassPercent = kPercents[index];
  if (showPassPercent_) showPassPercent_();
}

void RecordsForm::ListStudents() {
  ListNames(lstStudents_, StudentListItems());
  OfferSelected(false);
}

void RecordsForm::OfferSelected(bool offered) {
  for (const auto& button : cmdSelected_) button->SetEnabled(offered);
}

void ShowRecords(std::function<void()> showPassPercent) {
  RecordsForm(std::move(showPassPercent)).form.ShowModal();
}

}  // namespace course
