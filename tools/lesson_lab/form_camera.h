// A user who takes a picture of every modal form that comes up, and closes it.
#pragma once

#include <string>

#include "lesson_check/pages/idle_user.h"
#include "platform/form.h"

namespace lesson_lab {

class FormCamera final : public lesson_check::IdleUser {
 public:
  explicit FormCamera(std::string folder);

  std::string nextName;  // of the picture's file, without ".png"
  bool written = true;   // every picture so far

  void Take(platform::Form& form, const std::string& name);
  void AtWait(const std::string& place) override;

 private:
  std::string folder_;
};

}  // namespace lesson_lab
