#include "records/session_form.h"

#include <memory>
#include <string>
#include <vector>

#include "platform/dialogs.h"
#include "platform/form.h"
#include "platform/look.h"
#include "records/activity_records.h"
#include "records/record_report.h"
#include "session/session.h"

namespace course {
namespace {

using platform::Label;
using platform::look::MovePixels;
using platform::look::SetType;

constexpr int kPixel = platform::TwipsPerPixelX;
constexpr int kSessionPercent = 70;

// All in pixels.
constexpr int kMargin = 24;
constexpr int kLineLength = 63;   // characters
constexpr double kCharacter = 9;  // width of one in the list
constexpr int kTextLeft = 6;      // from the list's left edge to a row's first character
constexpr int kScrollBar = 20;
constexpr int kListWidth = 2 * kTextLeft + static_cast<int>(kLineLength * kCharacter) + kScrollBar;
constexpr int kWidth = kListWidth + 2 * kMargin;
constexpr int kHeadingHeight = 30;
constexpr int kLabelsTop = kMargin + kHeadingHeight + 14;
constexpr int kLabelHeight = 50;
constexpr int kListTop = kLabelsTop + kLabelHeight + 4;
constexpr int kListHeight = 12 * 27 + 4;
constexpr int kButtonTop = kListTop + kListHeight + 20;
constexpr int kButtonWidth = 140;
constexpr int kButtonHeight = 46;
constexpr int kHeight = kButtonTop + kButtonHeight + kMargin;

// A heading over the columns first to last of the rows, counted in characters from 0.
struct ColumnLabel {
  const char* name;
  const char* caption;
  int first;
  int last;
  Label::Align align;
};
using enum Label::Align;
constexpr ColumnLabel kColumns[] = {
    {"lblLesson", "\n\nLesson", 0, 27, Left},
    {"lblActivity", "\n\nActivity", 29, 40, Left},
    {"lblAttempted", "# of Probs\nAttempted", 35, 45, Right},
    {"lblCorrect", "# of\nCorrect\nAnswers", 46, 54, Right},
    {"lblPercent", "\nPercent\nCorrect", 55, 63, Right},
};

class SessionForm {
 public:
  SessionForm()
      : form("frmDisplaySession", kWidth * kPixel, kHeight * kPixel),
        lblHeading_(form, "lblHeading", "Session Results"),
        lstRecords_(form, "lstRecords"),
        cmdOK_(form, "cmdOK", "Close") {
    form.SetCaption("Session Results");
    Place();
    cmdOK_.OnClick = [this] { form.Close(); };
    form.SetDefaultButton(cmdOK_);
    form.SetNeutralButton(cmdOK_);
    Activate();
  }

  platform::Form form;

 private:
  void Place() {
    MovePixels(lblHeading_, kMargin, kMargin, kListWidth, kHeadingHeight);
    SetType(lblHeading_, 16, true);
    for (const ColumnLabel& column : kColumns) {
      columns_.push_back(std::make_unique<Label>(form, column.name, column.caption));
      const auto pixel = [](int character) {
        return kMargin + kTextLeft + static_cast<int>(character * kCharacter);
      };
      MovePixels(*columns_.back(), pixel(column.first), kLabelsTop,
                 pixel(column.last) - pixel(column.first), kLabelHeight);
      columns_.back()->SetFont("MS Sans Serif", 9.5, true);
      columns_.back()->SetAlignment(column.align);
    }
    MovePixels(lstRecords_, kMargin, kListTop, kListWidth, kListHeight);
    lstRecords_.SetFont("Courier New", 11);
    lstRecords_.SetAccessibleName("Session Results");
    MovePixels(cmdOK_, kWidth - kMargin - kButtonWidth, kButtonTop, kButtonWidth, kButtonHeight);
    cmdOK_.SetFont("MS Sans Serif", 11, true);
  }

  void Activate() {
    session.gTestPassPercent = kSessionPercent;
    lstRecords_.Clear();
    if (session.gSessionRecordCount == 0) lstRecords_.AddItem("No records found");
    for (const std::string& entry : session.gSessionRecords)
      lstRecords_.AddItem(SessionLine(ExpandRecord(entry, "")));
  }

  Label lblHeading_;
  std::vector<std::unique_ptr<Label>> columns_;
  platform::ListBox lstRecords_;
  platform::Button cmdOK_;
};

}  // namespace

void ShowSession() {
  SessionForm().form.ShowModal();
}

void ClearSession() {
  const platform::Message question = {
      .text = "Are you sure you want to clear this session's records?",
      .title = "Session Results",
      .buttons = platform::Buttons::YesNo,
      .icon = platform::Icon::Question};
  if (platform::MessageBox(question) != platform::Answer::Yes) return;
  session.gSessionRecords.clear();
  session.gSessionRecordCount = 0;
}

}  // namespace course
