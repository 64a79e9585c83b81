#include "shell/guidance_binding.h"

#include "engine/hooks.h"
#include "guidance/dpi_alert_form.h"
#include "guidance/guidance_forms.h"
#include "guidance/tour_form.h"
#include "platform/screen.h"
#include "shell/tour_steps.h"

namespace course {
namespace {

// The menu takes no input while the screens are made, and is hidden while they are shown.
void ShowProgramTour() {
  platform::SetMousePointer(platform::MousePointer::Hourglass);
  frmMenu->form.SetEnabled(false);
  const std::vector<TourStep> steps = TourSteps();
  frmMenu->form.SetEnabled(true);
  platform::SetMousePointer(platform::MousePointer::Default);
  frmMenu->form.Hide();
  ShowTour(steps);
  frmMenu->form.Show();
}

}  // namespace

void BindGuidance(StartUp& startUp) {
  startUp.ShowDpiAlert = ShowDpiAlert;
  startUp.forms.ProgramTour = ShowProgramTour;
  engineHooks.ShowProgramOverview = ShowHelp;
  engineHooks.ShowTechSupport = ShowTechSupportForm;
  engineHooks.ShowAbout = ShowAboutForm;
}

}  // namespace course
