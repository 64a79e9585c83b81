#include "lesson_lab/form_camera.h"

#include "platform/form_inspection.h"
#include "platform/surface.h"
#include "platform/tab_control.h"

namespace lesson_lab {

FormCamera::FormCamera(std::string folder) : folder_(std::move(folder)) {}

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

}  // namespace lesson_lab
