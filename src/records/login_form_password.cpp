#include "records/login_form_password.h"

#include "platform/dialogs.h"
#include "records/record_text.h"
#include "session/session.h"

namespace course {

std::string gStudentPassword;

namespace {

constexpr int kWidth = 384;  // pixels: the widest name fits
constexpr int kBackspace = 8;
constexpr int kMaxAttempts = 3;

}  // namespace

PasswordForm::PasswordForm()
    : dialog_("frmPassword", "txtPassword", kWidth, "Password",
              "Enter Password For:\r" + session.gStudentName) {
  dialog_.textBox.SetAccessibleName("Password");
  dialog_.textBox.HideCharacters();
  dialog_.textBox.OnKeyPress = [this](int code) { return txtPassword_KeyPress(code); };
  dialog_.cmdOK.OnClick = [this] { cmdOK_Click(); };
  dialog_.cmdCancel.OnClick = [this] { dialog_.form.Close(); };
}

// Letters, in upper case, and digits go in.
int PasswordForm::txtPassword_KeyPress(int code) {
  if (code == kBackspace) {
    std::string text = dialog_.textBox.Text();
    if (!text.empty()) text.pop_back();
    dialog_.textBox.SetText(text);
    return 0;
  }
  if (code >= 'a' && code <= 'z') return code - 'a' + 'A';
  const bool goesIn = (code >= '0' && code <= '9') || (code >= 'A' && code <= 'Z');
  return goesIn ? code : 0;
}

void PasswordForm::cmdOK_Click() {
  ++attempts_;
  if (Trimmed(dialog_.textBox.Text()) == gStudentPassword) {
    session.gDialogResult = kTrue;
    dialog_.form.Close();
    return;
  }
  const bool last = attempts_ >= kMaxAttempts;
  platform::MessageBox(
      {.text = last ? "3 Password attempts have failed." : "Password is incorrect.",
       .title = "Password"});
  if (last) return dialog_.form.Close();
  dialog_.textBox.SetText("");
  dialog_.AskAgain();
}

bool KnowsPassword(const std::string& password) {
  gStudentPassword = password;
  if (password.empty()) return true;
  session.gDialogResult = 0;
  PasswordForm().ShowModal();
  return session.gDialogResult == kTrue;
}

}  // namespace course
