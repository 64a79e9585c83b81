// The course: brings up the toolkit, then the menu, whose start-up is that of the program.
#include "engine/program_exit.h"
#include "platform/leave_request.h"
#include "platform/program.h"
#include "shell/diagnostics_binding.h"
#include "shell/guidance_binding.h"
#include "shell/login_binding.h"
#include "shell/menu.h"
#include "shell/record_hooks.h"
#include "shell/records_binding.h"
#include "shell/test_hooks.h"

int main(int argc, char** argv) {
  platform::Application application(argc, argv);
  platform::OnLeaveRequest(course::SaveAndExit);
  course::StartUp startUp;
  course::BindRecords(startUp);
  course::BindLogin(startUp);
  course::BindRecordViews(startUp);
  course::BindDiagnostics(startUp);
  course::BindGuidance(startUp);
  course::BindTests();
  course::LoadMenu(startUp);
  const int status = application.Run();
  course::frmMenu.reset();  // no form outlives the toolkit
  return status;
}
