// The password of a student who logs in on a network, frmPassword.
#pragma once

#include <string>

#include "records/form_parts.h"

namespace course {

// What the student picked must type: capital letters and digits.
extern std::string gStudentPassword;

// Asks for gStudentPassword.  The third wrong one closes the form.  session.gDialogResult is kTrue
// when the right one was typed; otherwise it is left alone.
class PasswordForm {
 public:
  PasswordForm();
  void ShowModal() { dialog_.form.ShowModal(); }

 private:
  int txtPassword_KeyPress(int code);
  void cmdOK_Click();

  int attempts_ = 0;
  TextDialog dialog_;  // frmPassword
};

// Whether session.gStudentName types the password that was stored for him; without one he does.
bool KnowsPassword(const std::string& password);

}  // namespace course
