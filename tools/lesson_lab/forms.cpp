#include <cstdio>
#include <filesystem>
#include <functional>

#include "engine/navigation.h"
#include "engine/result_form.h"
#include "lesson_lab/commands.h"
#include "lesson_lab/form_camera.h"
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
           {"explained", [] { ShowResult(course::Verdict::None); }}}) {
    camera.nextName = name;
    show();
  }
  if (!camera.written) std::fprintf(stderr, "Cannot write the forms to \"%s\".\n", folder.c_str());
  return camera.written ? 0 : 1;
}

}  // namespace lesson_lab
