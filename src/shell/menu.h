// The main menu, frmMenu: the home of the course.  It lists units and lessons, starts a lesson, and
// holds the menus for records, diagnostics and help.  It stays loaded until the program ends.
#pragma once

#include <functional>
#include <memory>
#include <string>

#include "platform/form.h"
#include "platform/picture_box.h"
#include "platform/settings.h"

namespace course {

// What the entries of the menus open: forms of other rooms.  An entry whose form is not set is
// disabled.
struct MenuForms {
  std::function<void()> Students;
  std::function<void()> Records;
  std::function<void()> SeeSession;
  std::function<void()> ClearSession;
  std::function<void()> DiagnosticTest;
  std::function<void()> DiagnosticResults;
  std::function<void()> ProgramTour;
};

// What the screen is like at start, see screen.h.
struct ScreenFacts {
  int dotsPerInch = 96;
  int width = 1024;  // pixels
  std::string systemVersion;
};
ScreenFacts ReadScreenFacts();

// What start-up reads and calls.  A routine that is not set does nothing.
struct StartUp {
  std::function<platform::InstallationSettings()> ReadSettings = platform::ReadInstallationSettings;
  std::function<void()> MakeDataFiles;  // what must be there, where records are kept
  std::function<void()> Login;          // by gversion; not set: nobody logs in
  std::function<void()> ReadProgress;   // fills gProgressCodes for the student who logged in
  std::function<ScreenFacts()> ReadScreen = ReadScreenFacts;
  std::function<void()> ShowDpiAlert;
  MenuForms forms;
};

class MainMenu {
 public:
  explicit MainMenu(const StartUp& startUp);
  ~MainMenu();
  MainMenu(const MainMenu&) = delete;
  MainMenu& operator=(const MainMenu&) = delete;

  platform::Form form;

  // Headings, on a band across the top.
  platform::Label lblBand;
  platform::Label lblBandEdge;
  platform::Label lblProgramMenu;  // series and course
  platform::Label Label1;          // release
  platform::Label lblStudent;

  platform::Label lblInstructions;
  platform::Label lblUnits;
  platform::ListBox lstChapter;
  platform::Label lblLessons1;  // "Unit"
  platform::Label lblLessons2;  // its number
  platform::Label lblLessons3;  // its title
  platform::Label lblLessons4;  // "Progress"
  platform::Label lblLessons5;  // "Lesson"
  platform::ListBox lstLesson;
  platform::Button cmdStart;

  // Progress marks, see progress_marks.h.
  platform::PictureBox picProgress1;
  platform::PictureBox picProgress2;
  platform::PictureBox picLegend;
  platform::Label linProgress;  // the rule beside them
  platform::Label lblTestPassPercent;

  platform::MenuItem* mnuFileExit = nullptr;
  platform::MenuItem* mnuRecordsStudents = nullptr;
  platform::MenuItem* mnuRecordsRecords = nullptr;
  platform::MenuItem* mnuRecordsProgress = nullptr;
  platform::MenuItem* mnuRecordsSessionSee = nullptr;
  platform::MenuItem* mnuRecordsSessionClear = nullptr;
  platform::MenuItem* mnuDiagnosticsTest = nullptr;
  platform::MenuItem* mnuDiagnosticsSeparator1 = nullptr;
  platform::MenuItem* mnuDiagnosticsResults = nullptr;
  platform::MenuItem* mnuHelpProgramOverview = nullptr;
  platform::MenuItem* mnuHelpProgramTour = nullptr;
  platform::MenuItem* mnuHelpSeparator2 = nullptr;
  platform::MenuItem* mnuHelpTechSupport = nullptr;
  platform::MenuItem* mnuHelpAbout = nullptr;

  // Start-up: settings, headings, login, catalogue, menus and lists, in this order.
  void Form_Load();
  // The checks of the screen; once, however often it is called.
  void Form_Activate();
  // The hidden key of the course's writers.  True swallows the key.
  bool Form_KeyPress(int code);

  void cmdStart_Click();
  void lstLesson_DblClick();
  void mnuRecordsProgress_Click();

  // Fills lstChapter and selects the first unit.
  void BuildUnitList();
  // Fills lstLesson and shows the marks of the selected unit.
  void DisplayLessonData();
  // Runs what is selected, see dispatcher.h; the menu is disabled until it returns.
  void RunSelectedLesson();

 private:
  void PlaceHeadings();
  void PlaceUnits();
  void PlaceLessons();
  void PlaceStart();
  void MakeMenus();
  void MakeHelpMenu();
  void BindControls();
  void ReadSettings();
  void ShowHeadings();
  void ShowStudent();
  void OfferByVersion();

  StartUp startUp_;
  bool activated_ = false;
};

// The menu; empty before start-up.
extern std::unique_ptr<MainMenu> frmMenu;

// Loads the menu, which starts the course up, and shows it.
void LoadMenu(const StartUp& startUp = {});

// Point size of a heading with this course name.
int HeadingFontSize(const std::string& courseName);

}  // namespace course
