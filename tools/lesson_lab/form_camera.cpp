#include "lesson_lab/form_camera.h"

#include "platform/surface.h"

namespace lesson_lab {

FormCamera::FormCamera(std::string folder) : folder_(std::move(folder)) {}

void FormCamera::Take(platform::Form& form, const std::string& name) {
  written = form.Grab()->SavePng(folder_ + "/" + name + ".png") && written;
}

void FormCamera::AtWait(const std::string&) {
  platform::Form& form = *platform::Form::ModalForm();
  Take(form, nextName);
  form.Close();
}

}  // namespace lesson_lab
