#include "shell/start_forms.h"

#include <string>

#include "mathkit/tutor_codes.h"
#include "platform/look.h"
#include "session/course_name.h"

namespace course {
namespace {

using platform::look::MovePixels;
using platform::look::SetType;

constexpr int kPixel = platform::TwipsPerPixelX;
constexpr int kMargin = 24;  // pixels

constexpr int kLogoWidth = 360;  // of the picture
constexpr int kLogoHeight = 240;

constexpr int kTextWidth = 520;
constexpr int kTextHeight = 232;

constexpr const char* kWelcomeText =
    "Thank you for purchasing this program.  We sincerely hope you will enjoy using it.\n\n"
    "In order to keep records on students, you must add names to the student file "
    "(which is currently empty).\n\n"
    "The next screen that appears will allow you to add one or more names to the student "
    "file.\n\n"
    "When you are done, click RETURN TO MENU.\n\n"
    "Now, click OK below to proceed to the next screen.";

}  // namespace

LogoForm::LogoForm()
    : form("frmLogo", (kLogoWidth + 2 * kMargin) * kPixel, (kLogoHeight + 140) * kPixel),
      picLogo_(form, "picLogo"),
      lblRelease_(form, "lblRelease", kReleaseName),
      Command1_(form, "Command1", "OK") {
  form.SetCaption(kCourseName);
  MovePixels(picLogo_, kMargin, kMargin, kLogoWidth, kLogoHeight);
  picLogo_.DrawPicture("logo", 0, 0);
  picLogo_.Refresh();
  picLogo_.SetAccessibleName(std::string(kSeriesName) + ", " + kCourseName);
  MovePixels(lblRelease_, kMargin, kLogoHeight + kMargin + 16, kLogoWidth, 24);
  SetType(lblRelease_, 12);
  lblRelease_.SetAlignment(platform::Label::Align::Centre);
  MovePixels(Command1_, kMargin + (kLogoWidth - 140) / 2, kLogoHeight + kMargin + 52, 140, 40);
  Command1_.SetFont("MS Sans Serif", 11, true);
  Command1_.OnClick = [this] { form.Close(); };
  form.SetDefaultButton(Command1_);
  form.SetNeutralButton(Command1_);
}

WelcomeForm::WelcomeForm()
    : form("frmWelcome", (kTextWidth + 2 * kMargin) * kPixel, (kTextHeight + 152) * kPixel),
      lblWelcome_(form, "lblWelcome", "Welcome to " + UpperCase(kCourseName)),
      lblText_(form, "lblText", kWelcomeText),
      cmdOK_(form, "cmdOK", "OK") {
  form.SetCaption(kCourseName);
  MovePixels(lblWelcome_, kMargin, kMargin, kTextWidth, 36);
  SetType(lblWelcome_, 20, true);
  MovePixels(lblText_, kMargin, kMargin + 52, kTextWidth, kTextHeight);
  SetType(lblText_, 12);
  MovePixels(cmdOK_, kMargin + kTextWidth - 140, kMargin + 52 + kTextHeight + 12, 140, 40);
  cmdOK_.SetFont("MS Sans Serif", 11, true);
  cmdOK_.OnClick = [this] { form.Close(); };
  form.SetDefaultButton(cmdOK_);
  form.SetNeutralButton(cmdOK_);
}

void ShowLogo() {
  LogoForm logo;
  logo.form.ShowModal();
}

void ShowWelcome() {
  WelcomeForm welcome;
  welcome.form.ShowModal();
}

}  // namespace course
