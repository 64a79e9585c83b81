#include "shell/diagnostics_binding.h"

#include "records/diagnostic_forms.h"

namespace course {

void BindDiagnostics(StartUp& startUp) {
  startUp.forms.DiagnosticResults = ShowDiagnostics;
}

}  // namespace course
