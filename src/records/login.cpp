#include "records/login.h"

#include "records/login_form.h"
#include "records/login_form_network.h"
#include "records/rosters.h"
#include "records/student_form.h"
#include "session/session.h"

namespace course {
namespace {

constexpr int kLocalVersion = 2;
constexpr int kNetworkVersion = 3;

void Call(const std::function<void()>& show) {
  if (show) show();
}

void LogInHere(const LoginForms& forms) {
  Call(forms.ShowLogo);
  if (CountStudents() == 0) {
    Call(forms.ShowWelcome);
    ShowStudents();
  }
  LoginForm(ReadStudents(session.gClassNum)).form.ShowModal();
}

void LogInOnNetwork(const LoginForms& forms) {
  Call(forms.ShowLogo);
  NetworkLoginForm(ReadClasses()).form.ShowModal();
}

}  // namespace

void LogIn(const LoginForms& forms) {
  if (session.gversion == kLocalVersion) LogInHere(forms);
  if (session.gversion == kNetworkVersion) LogInOnNetwork(forms);
}

}  // namespace course
