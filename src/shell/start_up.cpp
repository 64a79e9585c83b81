#include "display/grid.h"
#include "display/special_characters.h"
#include "engine/hooks.h"
#include "platform/dialogs.h"
#include "platform/screen.h"
#include "platform/stop.h"
#include "session/catalogue.h"
#include "session/course_name.h"
#include "session/session.h"
#include "shell/menu.h"
#include "shell/progress_marks.h"

namespace course {
namespace {

constexpr int kLongCourseName = 28;  // characters that no longer fit at the usual size
constexpr int kHighDotsPerInch = 100;
constexpr int kNarrowScreen = 801;  // pixels that the lesson window wants

void SetDefaults() {
  session.gAnimSpeedOption = 1;
  session.gAnimDelayUnit = 0.005;
  screenState.gRightColumn = 40;
  session.gShowProgressCodes = kTrue;
  session.gTestPassPercent = 60;
  FillTutorCharTable();
}

void WarnOfNarrowScreen() {
  platform::MessageBox({.text = "The screen resolution setting for your monitor\n"
                                "is too low.  Some of the windows in the Sumwright lessons\n"
                                "will be cut off.\n"
                                "To fix this problem:\n"
                                "   - Click OK below, then leave this program.\n"
                                "   - Use the 'Display' choice in the Windows Control Panel\n"
                                "     to set your screen resolution to 1024 x 768 or higher.\n"
                                "   - Restart your PC, and then restart the Sumwright program.",
                        .title = "Screen Resolution Problem",
                        .icon = platform::Icon::Warning});
}

}  // namespace

ScreenFacts ReadScreenFacts() {
  return {.dotsPerInch = platform::ScreenDotsPerInch(),
          .width = platform::ScreenWidth(),
          .systemVersion = platform::SystemVersion()};
}

int HeadingFontSize(const std::string& courseName) {
  return static_cast<int>(courseName.size()) >= kLongCourseName ? 22 : 24;
}

void LoadMenu(const StartUp& startUp) {
  frmMenu = std::make_unique<MainMenu>(startUp);
  frmMenu->Form_Load();
  frmMenu->form.Show();
  frmMenu->lstChapter.SetFocus();
}

void MainMenu::Form_Load() {
  SetDefaults();
  form.Center();
  ReadSettings();
  ShowHeadings();
  // Deleting a student inside the first login refreshes the marks of a menu that lists no unit yet.
  CallHook(startUp_.Login);
  if (session.gversion == 1 || session.gversion == 3) {
    mnuRecordsStudents->SetEnabled(false);
    mnuRecordsRecords->SetEnabled(false);
  }
  FillCourseTables();
  ShowStudent();
  OfferByVersion();
  mnuHelpProgramTour->SetVisible(false);
  mnuHelpSeparator2->SetVisible(false);
  lblTestPassPercent.SetCaption(
      "Test Passing Percent: " + std::to_string(session.gTestPassPercent) + "%");
  ShowProgressControls();
  BuildUnitList();
}

void MainMenu::ReadSettings() {
  const platform::InstallationSettings settings = startUp_.ReadSettings();
  session.gversion = settings.gversion;
  // On a network every workstation runs the program from a folder below that of the records.
  const auto folder = settings.gversion == 3 ? settings.gDataPath / ".." : settings.gDataPath;
  session.gDataPath = (folder / "").string();
  if (session.gversion != 1) CallHook(startUp_.MakeDataFiles);
}

void MainMenu::ShowHeadings() {
  lblProgramMenu.SetFont("Arial", HeadingFontSize(kCourseName), true);
  lblProgramMenu.SetCaption(std::string(kSeriesName) + "\n" + kCourseName);
  Label1.SetCaption(kReleaseName);
  mnuHelpAbout->SetCaption("&About " + std::string(kCourseName));
  form.SetCaption(kCourseName);
}

void MainMenu::ShowStudent() {
  if (session.gRecordKeepingEnabled != 1) {
    mnuRecordsProgress->SetEnabled(false);
    return;
  }
  CallHook(startUp_.ReadProgress);
  // The name is kept as wide as the roster's field; its blanks would push it from the right edge.
  std::string name = session.gStudentName;
  name.erase(name.find_last_not_of(' ') + 1);
  lblStudent.SetCaption("Student: \n" + name);
  lblStudent.SetVisible(true);
}

void MainMenu::OfferByVersion() {
  const int version = session.gversion;
  const int records = session.gRecordKeepingEnabled;
  const bool known = version == 1 || ((version == 2 || version == 3) && (records & ~1) == 0);
  if (!known) platform::Stop("Incorrect value for gversion% or gRecordKeepingEnabled%");
  if (version == 3) {
    mnuDiagnosticsSeparator1->SetVisible(false);
    mnuDiagnosticsResults->SetVisible(false);
  }
  if (version == 1 || records == 0) {
    mnuDiagnosticsTest->SetEnabled(false);
    mnuDiagnosticsResults->SetEnabled(false);
  }
}

void MainMenu::Form_Activate() {
  if (activated_) return;
  activated_ = true;
  const ScreenFacts screen = startUp_.ReadScreen();
  session.gWindowsVersionName = screen.systemVersion;
  if (screen.dotsPerInch > kHighDotsPerInch) CallHook(startUp_.ShowDpiAlert);
  if (screen.width < kNarrowScreen) WarnOfNarrowScreen();
}

}  // namespace course
