#include "records/session_form.h"

#include <string>

#include "platform/dialogs.h"
#include "platform/form.h"
#include "platform/look.h"
#include "records/list_columns.h"
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
constexpr int kListWidth = 564;  // 63 characters and a scroll bar
constexpr int kWidth = kListWidth + 2 * kMargin;
constexpr int kHeadingHeight = 30;
constexpr int kLabelHeight = 50;
constexpr int kListTop = kMargin + kHeadingHeight + 14 + kLabelHeight + 4;
constexpr int kRowHeight = 22;
constexpr int kListHeight = 15 * kRowHeight + 4;
constexpr int kButtonTop = kListTop + kListHeight + 20;
constexpr int kButtonWidth = 140;
constexpr int kButtonHeight = 46;
constexpr int kHeight = kButtonTop + kButtonHeight + kMargin;

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
    MovePixels(lstRecords_, kMargin, kListTop, kListWidth, kListHeight);
    lstRecords_.SetFont("Courier New", 11);
    lstRecords_.SetRowHeight(kRowHeight * kPixel);
    columns_ = MakeColumnLabels(lstRecords_, kColumns, kLabelHeight);
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
  ColumnLabels columns_;
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
