#include "records/login_form.h"

#include "platform/dialogs.h"
#include "platform/look.h"
#include "records/name_order.h"
#include "records/rosters.h"
#include "session/session.h"

namespace course {
namespace {

using platform::look::MovePixels;
using platform::look::SetType;

constexpr int kPixel = platform::TwipsPerPixelX;
constexpr int kLocalClass = 99;

// All in pixels: the list, and under it the two buttons.
constexpr int kMargin = 24;
constexpr int kTextWidth = 416;
constexpr int kHeadingHeight = 30;
constexpr int kInstructionTop = kMargin + kHeadingHeight + 8;
constexpr int kInstructionHeight = 44;
constexpr int kListTop = kInstructionTop + kInstructionHeight + 8;
constexpr int kListHeight = 10 * 27 + 4;
constexpr int kButtonTop = kListTop + kListHeight + 20;
constexpr int kButtonWidth = 200;
constexpr int kButtonHeight = 46;
constexpr int kWidth = kTextWidth + 2 * kMargin;
constexpr int kHeight = kButtonTop + kButtonHeight + kMargin;

}  // namespace

LoginForm::LoginForm(const std::vector<std::string>& studentItems)
    : form("frmLogin", kWidth * kPixel, kHeight * kPixel),
      lblHeading_(form, "lblHeading", "Student Login"),
      lblInstruction_(form, "lblInstruction",
                      "In order to keep records for a student, select the student's name and "
                      "click \"Login\"."),
      lstStudents_(form, "lstStudents"),
      cmdLogin_(form, "cmdLogin", "&Login"),
      cmdSkip_(form, "cmdSkip", "&Skip Login") {
  form.SetCaption("Student Login");
  Place();
  for (const std::string& item : InAlphabeticalOrder(studentItems)) lstStudents_.AddItem(item);
  lstStudents_.SetListIndex(-1);
  cmdLogin_.OnClick = [this] { cmdLogin_Click(); };
  cmdSkip_.OnClick = [this] { cmdSkip_Click(); };
  form.SetDefaultButton(cmdLogin_);
  form.SetNeutralButton(cmdSkip_);
  lstStudents_.SetFocus();
}

void LoginForm::Place() {
  MovePixels(lblHeading_, kMargin, kMargin, kTextWidth, kHeadingHeight);
  SetType(lblHeading_, 16, true);
  MovePixels(lblInstruction_, kMargin, kInstructionTop, kTextWidth, kInstructionHeight);
  SetType(lblInstruction_, 12);
  MovePixels(lstStudents_, kMargin, kListTop, kTextWidth, kListHeight);
  lstStudents_.SetFont("MS Sans Serif", 11);
  lstStudents_.SetAccessibleName("Students");
  MovePixels(cmdLogin_, kMargin, kButtonTop, kButtonWidth, kButtonHeight);
  MovePixels(cmdSkip_, kWidth - kMargin - kButtonWidth, kButtonTop, kButtonWidth, kButtonHeight);
  for (platform::Button* button : {&cmdLogin_, &cmdSkip_})
    button->SetFont("MS Sans Serif", 11, true);
}

// The button is enabled without a selection, too: it tells what is missing.
void LoginForm::cmdLogin_Click() {
  if (lstStudents_.ListIndex() < 0) {
    platform::MessageBox({.text = "Be sure to select a student before clicking the LOGIN button",
                          .title = "Login Warning",
                          .icon = platform::Icon::Warning});
    return;
  }
  session.gClassName = "Non-Network";
  session.gClassNum = kLocalClass;
  session.gStudentName = StudentNameOf(lstStudents_.Text());
  session.gStudentNum = StudentNumberOf(lstStudents_.Text());
  session.gRecordKeepingEnabled = 1;
  form.Close();
}

void LoginForm::cmdSkip_Click() {
  session.gRecordKeepingEnabled = 0;
  form.Close();
}

}  // namespace course
