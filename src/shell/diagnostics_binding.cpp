#include "shell/diagnostics_binding.h"

#include "records/diagnostic_forms.h"
#include "shell/diagnostic_test.h"

namespace course {

void BindDiagnostics(StartUp& startUp) {
  startUp.forms.DiagnosticResults = ShowDiagnostics;
  if (DiagnosticTestIsComplete())
    startUp.forms.DiagnosticTest = [] {
      StartDiagnosticTest([] { frmMenu->RunSelectedLesson(); });
    };
}

}  // namespace course
