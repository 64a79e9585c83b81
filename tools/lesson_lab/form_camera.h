// A user who takes a picture of every modal form that comes up, and closes it.
#pragma once

#include <functional>
#include <string>

#include "lesson_check/pages/idle_user.h"
#include "platform/form.h"

namespace lesson_lab {

class FormCamera final : public lesson_check::IdleUser {
 public:
  // The pictures go into the folder; the other one, which is there for the work only, goes when the
  // program is stopped.
  FormCamera(std::string folder, std::string workFolder);

  std::string nextName;  // of the picture's file, without ".png"
  bool written = true;   // every picture so far

  void Take(platform::Form& form, const std::string& name);
  void AtWait(const std::string& place) override;
  // Tells at which form.
  [[noreturn]] void AtStop(const std::string& message) override;

 private:
  std::string folder_;
  std::string workFolder_;
};

// Takes pictures into a folder, with one for record files that is there for the work only; the exit
// status.  What stops the program ends it here, and is told with the name of the form.
int TakePictures(const std::string& folder,
                 const std::function<void(FormCamera& camera, const std::string& records)>& work);

}  // namespace lesson_lab
