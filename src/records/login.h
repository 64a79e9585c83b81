// Who works here: the login at the start of the program, on this machine or on a network.
#pragma once

#include <functional>

namespace course {

// Forms of the program's start that the login shows.
struct LoginForms {
  std::function<void()> ShowLogo;
  std::function<void()> ShowWelcome;
};

// Lets the student log in or skip, by session.gversion: 1 nobody is asked, 2 frmLogin, 3
// frmNetworkLogin.  Leaves who it is in the session: gRecordKeepingEnabled is 1 after a login, and
// gClassName, gClassNum, gStudentName (21 characters) and gStudentNum tell the student.  Files that
// cannot be read stop the program.
void LogIn(const LoginForms& forms);

}  // namespace course
