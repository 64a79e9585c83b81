#include "lesson_lab/form_camera.h"

#include <cstdio>
#include <cstdlib>
#include <filesystem>

#include "platform/form_inspection.h"
#include "platform/surface.h"
#include "platform/tab_control.h"

namespace lesson_lab {
namespace {

// A fresh folder for record files; "" when there cannot be one.
std::string MakeWorkFolder() {
  std::error_code error;
  const std::filesystem::path parent = std::filesystem::temp_directory_path(error);
  std::string folder = parent / "lesson-lab-XXXXXX";
  if (!error && mkdtemp(folder.data()) != nullptr) return folder;
  std::fprintf(stderr, "There is no folder for temporary files; TMPDIR names one.\n");
  return "";
}

}  // namespace

FormCamera::FormCamera(std::string folder, std::string workFolder)
    : folder_(std::move(folder)), workFolder_(std::move(workFolder)) {}

void FormCamera::Take(platform::Form& form, const std::string& name) {
  written = form.Grab()->SavePng(folder_ + "/" + name + ".png") && written;
}

void FormCamera::AtWait(const std::string&) {
  platform::Form& form = *platform::Form::ModalForm();
  Take(form, nextName);
  if (auto* tabs = dynamic_cast<platform::TabControl*>(form.Find("sstabHelp")))
    for (int page = 1; page < tabs->PageCount(); ++page) {
      tabs->SetPage(page);
      Take(form, nextName + "_" + std::to_string(page + 1));
    }
  // The steps of the tour.
  if (platform::Control* next = form.Find("cmdNav(2)"))
    for (int step = 2; next->Click(); ++step) Take(form, nextName + "_" + std::to_string(step));
  // Where something can be selected, the form with a selection, too.
  bool selected = false;
  for (platform::Control* control : platform::inspection::Controls(form))
    if (auto* list = dynamic_cast<platform::ListBox*>(control); list && list->OnClick) {
      list->SetListIndex(0);
      selected = true;
    }
  if (selected) Take(form, nextName + "_selected");
  form.Close();
}

void FormCamera::AtStop(const std::string& message) {
  std::fprintf(stderr, "%s: %s\n", nextName.c_str(), message.c_str());
  std::error_code ignored;
  std::filesystem::remove_all(workFolder_, ignored);
  lesson_check::EndProcess(1);
}

int TakePictures(const std::string& folder,
                 const std::function<void(FormCamera& camera, const std::string& records)>& work) {
  std::error_code error;
  std::filesystem::create_directories(folder, error);
  const std::string records = MakeWorkFolder();
  if (records.empty()) return 1;
  FormCamera camera(folder, records);
  work(camera, records + "/");
  std::filesystem::remove_all(records, error);
  if (!camera.written) std::fprintf(stderr, "Cannot write the forms to \"%s\".\n", folder.c_str());
  return camera.written ? 0 : 1;
}

}  // namespace lesson_lab
