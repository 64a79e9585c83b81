// The login on this machine, frmLogin: the names of the roster, and a way past it.
#pragma once

#include <string>
#include <vector>

#include "platform/form.h"

namespace course {

class LoginForm {
 public:
  // The items of the students, see rosters.h.
  explicit LoginForm(const std::vector<std::string>& studentItems);
  platform::Form form;  // frmLogin

 private:
  void Place();
  void cmdLogin_Click();
  void cmdSkip_Click();

  platform::Label lblHeading_;
  platform::Label lblInstruction_;
  platform::ListBox lstStudents_;
  platform::Button cmdLogin_;
  platform::Button cmdSkip_;
};

}  // namespace course
