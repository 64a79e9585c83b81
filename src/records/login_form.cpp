#include "records/login_form.h"

#include "platform/dialogs.h"
#include "platform/look.h"
#include "records/form_parts.h"
#include "records/rosters.h"
#include "session/session.h"

namespace course {
namespace {

using platform::look::MovePixels;
using namespace grid;

constexpr int kLocalClass = 99;

// In pixels: the list, and under it the two buttons.
constexpr int kTextWidth = 416;
constexpr int kInstructionTop = kHeadingBottom + 8;
constexpr int kInstructionHeight = 44;
constexpr int kNamesTop = kInstructionTop + kInstructionHeight + 8;
constexpr int kNamesHeight = ListHeight(10);
constexpr int kButtonTop = kNamesTop + kNamesHeight + 20;
constexpr int kButtonWidth = (kTextWidth - kGap) / 2;
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
  ListNames(lstStudents_, studentItems);
  cmdLogin_.OnClick = [this] { cmdLogin_Click(); };
  cmdSkip_.OnClick = [this] { cmdSkip_Click(); };
  form.SetDefaultButton(cmdLogin_);
  form.SetNeutralButton(cmdSkip_);
  lstStudents_.SetFocus();
}

void LoginForm::Place() {
  PlaceHeading(lblHeading_, kWidth);
  MovePixels(lblInstruction_, kMargin, kInstructionTop, kTextWidth, kInstructionHeight);
  platform::look::SetType(lblInstruction_, 12);
  MovePixels(lstStudents_, kMargin, kNamesTop, kTextWidth, kNamesHeight);
  lstStudents_.SetFont("MS Sans Serif", 11);
  lstStudents_.SetAccessibleName("Students");
  PlaceButton(cmdLogin_, kMargin, kButtonTop, kButtonWidth);
  PlaceButton(cmdSkip_, kWidth - kMargin - kButtonWidth, kButtonTop, kButtonWidth);
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
