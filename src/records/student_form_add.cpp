#include "records/student_form_add.h"

#include <algorithm>

#include "platform/dialogs.h"
#include "platform/look.h"
#include "records/name_order.h"
#include "records/record_text.h"
#include "records/rosters.h"
#include "session/session.h"

namespace course {

std::string gNewStudentName;

namespace {

using platform::look::MovePixels;
using platform::look::SetType;

constexpr int kPixel = platform::TwipsPerPixelX;

// All in pixels.
constexpr int kMargin = 24;
constexpr int kTextWidth = 472;
constexpr int kPromptHeight = 44;  // two lines: a long name begins a new one
constexpr int kBoxTop = kMargin + kPromptHeight + 8;
constexpr int kBoxHeight = 34;
constexpr int kButtonTop = kBoxTop + kBoxHeight + 24;
constexpr int kButtonWidth = 140;
constexpr int kButtonHeight = 40;
constexpr int kWidth = kTextWidth + 2 * kMargin;
constexpr int kHeight = kButtonTop + kButtonHeight + kMargin;

}  // namespace

bool NameIsTaken(const std::string& name, const std::vector<std::string>& items) {
  const std::string wanted = NameInUpperCase(Trimmed(name));
  return std::any_of(items.begin(), items.end(), [&](const std::string& item) {
    return NameInUpperCase(Trimmed(StudentNameOf(item))) == wanted;
  });
}

AddStudentForm::AddStudentForm(const std::string& caption, const std::string& prompt,
                               const std::string& name, std::vector<std::string> takenItems)
    : form("frmAddStudent", kWidth * kPixel, kHeight * kPixel),
      takenItems_(std::move(takenItems)),
      Label1_(form, "Label1", prompt),
      txtName_(form, "txtName"),
      cmdOK_(form, "cmdOK", "OK"),
      cmdCancel_(form, "cmdCancel", "Cancel") {
  form.SetCaption(caption);
  Place();
  txtName_.SetAccessibleName(prompt);
  txtName_.SetText(name);
  txtName_.SelectAll();
  txtName_.SetFocus();
  cmdOK_.OnClick = [this] { cmdOK_Click(); };
  cmdCancel_.OnClick = [this] { cmdCancel_Click(); };
  form.SetDefaultButton(cmdOK_);
  form.SetNeutralButton(cmdCancel_);
}

void AddStudentForm::Place() {
  MovePixels(Label1_, kMargin, kMargin, kTextWidth, kPromptHeight);
  SetType(Label1_, 12);
  MovePixels(txtName_, kMargin, kBoxTop, kTextWidth, kBoxHeight);
  txtName_.SetFont("MS Sans Serif", 12);
  const int right = kWidth - kMargin;
  MovePixels(cmdOK_, right - 2 * kButtonWidth - 12, kButtonTop, kButtonWidth, kButtonHeight);
  MovePixels(cmdCancel_, right - kButtonWidth, kButtonTop, kButtonWidth, kButtonHeight);
}

void AddStudentForm::cmdOK_Click() {
  gNewStudentName = Trimmed(txtName_.Text());
  if (NameIsTaken(gNewStudentName, takenItems_)) {
    platform::MessageBox({.text = "Another student already has the name \"" + gNewStudentName +
                                  "\".\n\nPlease try another name.",
                          .title = form.Caption(),
                          .icon = platform::Icon::Warning});
    txtName_.SelectAll();
    txtName_.SetFocus();
    return;
  }
  session.gDialogResult = kTrue;
  form.Close();
}

void AddStudentForm::cmdCancel_Click() {
  session.gDialogResult = 0;
  form.Close();
}

}  // namespace course
