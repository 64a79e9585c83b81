// The login on a network, frmNetworkLogin: the classes, then the students of the class that was
// picked, then the password of a student who has one.
#pragma once

#include <string>
#include <vector>

#include "platform/form.h"

namespace course {

class NetworkLoginForm {
 public:
  // The items of the classes, see rosters.h.
  explicit NetworkLoginForm(const std::vector<std::string>& classItems);
  platform::Form form;  // frmNetworkLogin

 private:
  void Place();
  void lstClasses_Click();
  void cmdLogin_Click();
  void cmdSkip_Click();

  platform::Label lblHeading_;
  platform::Label lblClasses_;
  platform::ListBox lstClasses_;
  platform::Label lblSelectClass_;
  platform::Label lblStudents_;
  platform::ListBox lstStudents_;
  platform::Label lblSelectStudent_;
  platform::Button cmdLogin_;
  platform::Button cmdSkip_;
};

}  // namespace course
