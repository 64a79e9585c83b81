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

void TakeAll(FormCamera& camera, const std::string& folder, const std::string& records) {
  camera.nextName = "menu";
  ShowMenu(camera);
  for (const GalleryForm& form : ModalForms(records)) {
    camera.nextName = form.name;
    form.Show();
  }
  for (const GalleryDocument& paper : Documents(records)) {
    camera.nextName = paper.name;
    const auto printer = platform::MakePaperPrinter(folder + "/" + paper.name + ".pdf");
    camera.written = platform::PrintOut(*printer, paper.document) && camera.written;
  }
}

}  // namespace

int WriteForms(const std::string& folder) {
  return TakePictures(folder, [&folder](FormCamera& camera, const std::string& records) {
    TakeAll(camera, folder, records);
  });
}

}  // namespace lesson_lab
