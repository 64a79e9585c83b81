#include "shell/guidance_binding.h"

#include "engine/hooks.h"
#include "guidance/dpi_alert_form.h"
#include "guidance/guidance_forms.h"

namespace course {

void BindGuidance(StartUp& startUp) {
  startUp.ShowDpiAlert = ShowDpiAlert;
  engineHooks.ShowProgramOverview = ShowHelp;
  engineHooks.ShowTechSupport = ShowTechSupportForm;
  engineHooks.ShowAbout = ShowAboutForm;
}

}  // namespace course
