#include "shell/login_binding.h"

#include "records/login.h"
#include "records/student_form.h"
#include "shell/start_forms.h"

namespace course {

void BindLogin(StartUp& startUp) {
  startUp.Login = [] { LogIn({.ShowLogo = ShowLogo, .ShowWelcome = ShowWelcome}); };
  startUp.forms.Students = ShowStudents;
}

}  // namespace course
