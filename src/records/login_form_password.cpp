#include "records/login_form_password.h"

#include "platform/dialogs.h"
#include "platform/look.h"
#include "records/record_text.h"
#include "session/session.h"

namespace course {

std::string gStudentPassword;

namespace {

using platform::look::MovePixels;
using platform::look::SetType;

constexpr int kPixel = platform::TwipsPerPixelX;
constexpr int kBackspace = 8;
constexpr int kMaxAttempts = 3;

// All in pixels.
constexpr int kMargin = 24;
constexpr int kTextWidth = 336;
constexpr int kPromptHeight = 48;
constexpr int kBoxTop = kMargin + kPromptHeight + 8;
constexpr int kBoxHeight = 34;
constexpr int kButtonTop = kBoxTop + kBoxHeight + 24;
constexpr int kButtonWidth = 160;
constexpr int kButtonHeight = 40;
constexpr int kWidth = kTextWidth + 2 * kMargin;
constexpr int kHeight = kButtonTop + kButtonHeight + kMargin;

}  // namespace

PasswordForm::PasswordForm()
    : form("frmPassword", kWidth * kPixel, kHeight * kPixel),
      Label1_(form, "Label1", "Enter Password For:\r" + session.gStudentName),
      txtPassword_(form, "txtPassword"),
      cmdOK_(form, "cmdOK", "OK"),
      cmdCancel_(form, "cmdCancel", "Cancel") {
  form.SetCaption("Password");
  Place();
  txtPassword_.SetAccessibleName("Password");
  txtPassword_.HideCharacters();
  txtPassword_.OnKeyPress = [this](int code) { return txtPassword_KeyPress(code); };
  txtPassword_.SetFocus();
  cmdOK_.OnClick = [this] { cmdOK_Click(); };
  cmdCancel_.OnClick = [this] { cmdCancel_Click(); };
  form.SetDefaultButton(cmdOK_);
  form.SetNeutralButton(cmdCancel_);
}

void PasswordForm::Place() {
  MovePixels(Label1_, kMargin, kMargin, kTextWidth, kPromptHeight);
  SetType(Label1_, 12);
  MovePixels(txtPassword_, kMargin, kBoxTop, kTextWidth, kBoxHeight);
  txtPassword_.SetFont("MS Sans Serif", 12);
  MovePixels(cmdOK_, kMargin, kButtonTop, kButtonWidth, kButtonHeight);
  MovePixels(cmdCancel_, kWidth - kMargin - kButtonWidth, kButtonTop, kButtonWidth, kButtonHeight);
}

// Letters, in upper case, and digits go in.
int PasswordForm::txtPassword_KeyPress(int code) {
  if (code == kBackspace) {
    std::string text = txtPassword_.Text();
    if (!text.empty()) text.pop_back();
    txtPassword_.SetText(text);
    return 0;
  }
  if (code >= 'a' && code <= 'z') return code - 'a' + 'A';
  const bool goesIn = (code >= '0' && code <= '9') || (code >= 'A' && code <= 'Z');
  return goesIn ? code : 0;
}

void PasswordForm::cmdOK_Click() {
  ++attempts_;
  if (Trimmed(txtPassword_.Text()) == gStudentPassword) {
    session.gDialogResult = kTrue;
    form.Close();
    return;
  }
  const bool last = attempts_ >= kMaxAttempts;
  platform::MessageBox(
      {.text = last ? "3 Password attempts have failed." : "Password is incorrect.",
       .title = "Password"});
  if (last) return form.Close();
  txtPassword_.SetText("");
  txtPassword_.SetFocus();
}

void PasswordForm::cmdCancel_Click() {
  form.Close();
}

bool KnowsPassword(const std::string& password) {
  gStudentPassword = password;
  if (password.empty()) return true;
  session.gDialogResult = 0;
  PasswordForm().form.ShowModal();
  return session.gDialogResult == kTrue;
}

}  // namespace course
