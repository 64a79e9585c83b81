// The forms that a login shows before the menu: the logo, and the welcome of a first user.
#pragma once

#include "platform/form.h"
#include "platform/picture_box.h"

namespace course {

class LogoForm {
 public:
  LogoForm();
  platform::Form form;  // frmLogo

 private:
  platform::PictureBox picLogo_;
  platform::Label lblRelease_;
  platform::Button Command1_;
};

class WelcomeForm {
 public:
  WelcomeForm();
  platform::Form form;  // frmWelcome

 private:
  platform::Label lblWelcome_;
  platform::Label lblText_;
  platform::Button cmdOK_;
};

// Modal: they return when their button, Esc or the close box was used.
void ShowLogo();
void ShowWelcome();

}  // namespace course
