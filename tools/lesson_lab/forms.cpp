#include <cstdio>
#include <filesystem>
#include <functional>

#include "engine/navigation.h"
#include "engine/result_form.h"
#include "guidance/dpi_alert_form.h"
#include "guidance/guidance_forms.h"
#include "lesson_lab/commands.h"
#include "lesson_lab/form_camera.h"
#include "records/login_form.h"
#include "records/login_form_network.h"
#include "records/login_form_password.h"
#include "records/record_text.h"
#include "records/rosters.h"
#include "records/student_form_add.h"
#include "session/session.h"
#include "shell/menu.h"
#include "shell/start_forms.h"

namespace lesson_lab {
namespace {

using course::session;

// The menu as after a skipped login, with the unit of the longest titles.
void ShowMenu(FormCamera& camera) {
  course::StartUp startUp;
  startUp.ReadSettings = [] { return platform::InstallationSettings{}; };
  course::LoadMenu(startUp);
  course::frmMenu->lstChapter.SetListIndex(3);
  camera.Take(course::frmMenu->form, "menu");
  course::frmMenu.reset();
}

void ShowResult(course::Verdict verdict) {
  session.gActivity = course::activity::Practice;
  course::LoadLessonWindow();
  course::ShowResultForm(verdict);
  course::UnloadLessonWindow();
}

// An item of a roster: a name, and hidden fields of this length.
std::string Item(const std::string& name, std::size_t nameLength, std::size_t hidden) {
  return course::Padded(name, nameLength) + std::string(course::kHiddenGap, ' ') +
         std::string(hidden, '1');
}

std::vector<std::string> StudentItems() {
  std::vector<std::string> items = {
      Item(std::string(course::kStudentNameLength, 'W'), course::kStudentNameLength, 2)};
  for (int i = 1; i <= 30; ++i)
    items.push_back(Item("Student " + std::to_string(i), course::kStudentNameLength, 2));
  return items;
}

void ShowLogin() {
  course::LoginForm(StudentItems()).form.ShowModal();
}

void ShowNetworkLogin() {
  std::vector<std::string> classes = {
      Item(std::string(course::kClassNameLength, 'W'), course::kClassNameLength, 5)};
  for (int i = 1; i <= 30; ++i)
    classes.push_back(Item("Period " + std::to_string(i), course::kClassNameLength, 5));
  course::NetworkLoginForm(classes).form.ShowModal();
}

void ShowPassword() {
  session.gStudentName = std::string(course::kStudentNameLength, 'W');
  course::PasswordForm().form.ShowModal();
}

void ShowStudentName() {
  const std::string name(course::kStudentNameLength, 'W');
  course::AddStudentForm("Edit Student Name",
                         "In the box below, enter new name of student: " + name, name, {})
      .form.ShowModal();
}

std::function<void()> ShowDpiAlertOf(const std::string& system) {
  return [system] {
    session.gWindowsVersionName = system;
    course::ShowDpiAlert();
  };
}

}  // namespace

int WriteForms(const std::string& folder) {
  std::error_code error;
  std::filesystem::create_directories(folder, error);
  FormCamera camera(folder);
  ShowMenu(camera);
  for (const auto& [name, show] :
       std::initializer_list<std::pair<const char*, std::function<void()>>>{
           {"logo", course::ShowLogo},
           {"welcome", course::ShowWelcome},
           {"correct", [] { ShowResult(course::Verdict::Correct); }},
           {"incorrect", [] { ShowResult(course::Verdict::Incorrect); }},
           {"explained", [] { ShowResult(course::Verdict::None); }},
           {"login", ShowLogin},
           {"network_login", ShowNetworkLogin},
           {"password", ShowPassword},
           {"student_name", ShowStudentName},
           {"help", course::ShowHelp},
           {"dpi_alert", ShowDpiAlertOf("XP")},
           {"dpi_alert_unknown", ShowDpiAlertOf("NOTA")},
           {"tech_support", course::ShowTechSupportForm},
           {"about", course::ShowAboutForm}}) {
    camera.nextName = name;
    show();
  }
  if (!camera.written) std::fprintf(stderr, "Cannot write the forms to \"%s\".\n", folder.c_str());
  return camera.written ? 0 : 1;
}

}  // namespace lesson_lab
