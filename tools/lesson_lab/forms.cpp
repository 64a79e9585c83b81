#include <cstdio>
#include <cstdlib>
#include <filesystem>

#include "lesson_lab/commands.h"
#include "lesson_lab/form_camera.h"
#include "lesson_lab/form_gallery.h"
#include "shell/menu.h"

namespace lesson_lab {
namespace {

// The menu as after a skipped login, with the unit of the longest titles.
void ShowMenu(FormCamera& camera) {
  course::StartUp startUp;
  startUp.ReadSettings = [] { return platform::InstallationSettings{}; };
  course::LoadMenu(startUp);
  course::frmMenu->lstChapter.SetListIndex(3);
  camera.Take(course::frmMenu->form, "menu");
  course::frmMenu.reset();
}

}  // namespace

int WriteForms(const std::string& folder) {
  std::error_code error;
  std::filesystem::create_directories(folder, error);
  std::string records = std::filesystem::temp_directory_path() / "lesson-lab-XXXXXX";
  if (mkdtemp(records.data()) == nullptr) {
    std::fprintf(stderr, "Cannot make the folder \"%s\".\n", records.c_str());
    return 1;
  }
  FormCamera camera(folder);
  ShowMenu(camera);
  for (const GalleryForm& form : ModalForms(records + "/")) {
    camera.nextName = form.name;
    form.Show();
  }
  for (const GalleryDocument& paper : Documents(records + "/")) {
    const auto printer = platform::MakePaperPrinter(folder + "/" + paper.name + ".pdf");
    camera.written = platform::PrintOut(*printer, paper.document) && camera.written;
  }
  std::filesystem::remove_all(records, error);
  if (!camera.written) std::fprintf(stderr, "Cannot write the forms to \"%s\".\n", folder.c_str());
  return camera.written ? 0 : 1;
}

}  // namespace lesson_lab
