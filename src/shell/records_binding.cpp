#include "shell/records_binding.h"

#include "records/record_forms.h"
#include "records/session_form.h"
#include "session/session.h"

namespace course {

void BindRecordViews(StartUp& startUp) {
  startUp.forms.Records = [] {
    ShowRecords([] {
      frmMenu->lblTestPassPercent.SetCaption(
          "Test Passing Percent: " + std::to_string(session.gTestPassPercent) + "%");
    });
  };
  startUp.forms.SeeSession = ShowSession;
  startUp.forms.ClearSession = ClearSession;
}

}  // namespace course
