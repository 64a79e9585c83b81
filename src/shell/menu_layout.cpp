// Where the menu's controls stand, and how they look.
#include "engine/hooks.h"
#include "platform/look.h"
#include "shell/menu.h"
#include "shell/progress_marks.h"

namespace course {
namespace {

using platform::colour::FormGrey;
using platform::look::kAmber;
using platform::look::kNavy;
using platform::look::kPaper;
using platform::look::kSlate;
using platform::look::MovePixels;
using platform::look::SetType;

constexpr int kFormWidth = 13005;  // twips
constexpr int kFormHeight = 10395;
constexpr int kPixel = platform::TwipsPerPixelX;

// The grid, in pixels: the outer margin, the two columns, the rows.
constexpr int kMargin = 32;
constexpr int kFormPixels = kFormWidth / kPixel;
constexpr int kBandHeight = 120;
constexpr int kFactsWidth = 303;  // as wide as the heading leaves: the widest name fits
constexpr int kUnitsWidth = 320;
constexpr int kMarksLeft = 376;
constexpr int kMarksWidth = 40;
constexpr int kLessonsLeft = kMarksLeft + kMarksWidth + 16;
constexpr int kLessonsWidth = kFormPixels - kMargin - kLessonsLeft;
constexpr int kInstructionsTop = 148;
constexpr int kHeadingTop = 200;
constexpr int kColumnHeadingTop = 234;
constexpr int kListTop = 258;
constexpr int kStartTop = 510;
constexpr int kStartHeight = 76;
constexpr int kLegendLeft = 638;  // under it stands lblTestPassPercent
constexpr int kListFrame = 2;     // pixels around a list's rows

int ListPixels(const platform::ListBox& list, int rows) {
  return rows * list.RowHeight() / kPixel + 2 * kListFrame;
}

// An entry whose form is missing is there, and disabled.
void Offer(platform::MenuItem& item, const std::function<void()>& form) {
  item.OnClick = form;
  item.SetEnabled(form != nullptr);
}

}  // namespace

MainMenu::MainMenu(const StartUp& startUp)
    : form("frmMenu", kFormWidth, kFormHeight),
      lblBand(form, "lblBand"),
      lblBandEdge(form, "lblBandEdge"),
      lblProgramMenu(form, "lblProgramMenu"),
      Label1(form, "Label1"),
      lblStudent(form, "lblStudent"),
      lblInstructions(form, "lblInstructions",
                      "Select a unit and a lesson.  Then click Start Lesson."),
      lblUnits(form, "lblUnits", "Units"),
      lstChapter(form, "lstChapter"),
      lblLessons1(form, "lblLessons1", "Unit"),
      lblLessons2(form, "lblLessons2"),
      lblLessons3(form, "lblLessons3"),
      lblLessons4(form, "lblLessons4", "Progress"),
      lblLessons5(form, "lblLessons5", "Lesson"),
      lstLesson(form, "lstLesson"),
      cmdStart(form, "cmdStart", "Start Lesson"),
      picProgress1(form, "picProgress1"),
      picProgress2(form, "picProgress2"),
      picLegend(form, "picLegend"),
      linProgress(form, "linProgress"),
      lblTestPassPercent(form, "lblTestPassPercent"),
      startUp_(startUp) {
  PlaceHeadings();
  PlaceUnits();
  PlaceLessons();
  PlaceStart();
  MakeMenus();
  MakeHelpMenu();
  BindControls();
}

MainMenu::~MainMenu() = default;

void MainMenu::PlaceHeadings() {
  MovePixels(lblBand, 0, 0, kFormPixels, kBandHeight);
  lblBand.SetColours(kPaper, kNavy);
  MovePixels(lblBandEdge, 0, kBandHeight, kFormPixels, 4);
  lblBandEdge.SetColours(kAmber, kAmber);
  MovePixels(lblProgramMenu, kMargin, 22, 500, 80);
  lblProgramMenu.SetColours(kPaper, kNavy);
  const int right = kFormPixels - kMargin - kFactsWidth;
  MovePixels(lblStudent, right, 26, kFactsWidth, 46);
  SetType(lblStudent, 11, true, kAmber, kNavy);
  lblStudent.SetAlignment(platform::Label::Align::Right);
  lblStudent.SetVisible(false);
  MovePixels(Label1, right, 78, kFactsWidth, 22);
  SetType(Label1, 10, false, kPaper, kNavy);
  Label1.SetAlignment(platform::Label::Align::Right);
  MovePixels(lblInstructions, kMargin, kInstructionsTop, kFormPixels - 2 * kMargin, 24);
  SetType(lblInstructions, 12);
}

void MainMenu::PlaceUnits() {
  MovePixels(lblUnits, kMargin, kColumnHeadingTop, kUnitsWidth, 20);
  SetType(lblUnits, 10);
  lstChapter.SetFont("Courier New", 11);  // in which a blank is as wide as a digit
  lstChapter.SetAccessibleName("Units");
  MovePixels(lstChapter, kMargin, kListTop, kUnitsWidth, ListPixels(lstChapter, kUnitMarkRows));
  MovePixels(picProgress1, kMargin - 24, kListTop + kListFrame, 20,
             kUnitMarkRows * lstChapter.RowHeight() / kPixel);
  picProgress1.BackColor = FormGrey;
  picProgress1.SetVisible(false);
}

void MainMenu::PlaceLessons() {
  MovePixels(lblLessons1, kLessonsLeft, kHeadingTop, 38, 24);
  MovePixels(lblLessons2, kLessonsLeft + 40, kHeadingTop, 24, 24);
  MovePixels(lblLessons3, kLessonsLeft + 70, kHeadingTop, kLessonsWidth - 70, 24);
  for (platform::Label* label : {&lblLessons1, &lblLessons2, &lblLessons3})
    SetType(*label, 12, true);
  MovePixels(lblLessons4, kMarksLeft - 10, kColumnHeadingTop, kMarksWidth + 24, 20);
  MovePixels(lblLessons5, kLessonsLeft, kColumnHeadingTop, kLessonsWidth, 20);
  SetType(lblLessons4, 10);
  SetType(lblLessons5, 10);
  lstLesson.SetFont("Courier New", 11);
  lstLesson.SetAccessibleName("Lessons");
  const int listHeight = ListPixels(lstLesson, kLessonMarkRows);
  MovePixels(lstLesson, kLessonsLeft, kListTop, kLessonsWidth, listHeight);
  MovePixels(picProgress2, kMarksLeft, kListTop + kListFrame, kMarksWidth,
             listHeight - 2 * kListFrame);
  picProgress2.BackColor = FormGrey;
  picProgress2.SetAccessibleName("Progress");
  MovePixels(linProgress, kMarksLeft - 10, kListTop, 1, listHeight);
  linProgress.SetColours(kSlate, kSlate);
}

void MainMenu::PlaceStart() {
  MovePixels(cmdStart, kLessonsLeft, kStartTop, kLegendLeft - 24 - kLessonsLeft, kStartHeight);
  cmdStart.SetFont("MS Sans Serif", 14, true);
  MovePixels(picLegend, kLegendLeft, kStartTop, 150, 96);
  picLegend.BackColor = FormGrey;
  picLegend.SetAccessibleName("W: worked, no test yet.  T: tested.  Check mark: completed.");
  lblTestPassPercent.Move(9570, 9250, 3000, 2000);
  SetType(lblTestPassPercent, 10);
}

void MainMenu::MakeMenus() {
  mnuFileExit = &form.AddMenu("&File").AddItem("mnuFileExit", "E&xit");

  platform::Menu& records = form.AddMenu("&Records");
  mnuRecordsStudents = &records.AddItem("mnuRecordsStudents", "Manage Student &Names");
  mnuRecordsRecords = &records.AddItem("mnuRecordsRecords", "Manage Student &Records");
  records.AddSeparator("mnuRecordsSeparator1");
  mnuRecordsProgress = &records.AddItem("mnuRecordsProgress", "Hide Student Progress Codes");
  records.AddSeparator("mnuRecordsSeparator2");
  mnuRecordsSessionSee = &records.AddItem("mnuRecordsSessionSee", "&See Session Records");
  mnuRecordsSessionClear = &records.AddItem("mnuRecordsSessionClear", "&Clear Session Records");

  platform::Menu& diagnostics = form.AddMenu("&Diagnostics");
  mnuDiagnosticsTest = &diagnostics.AddItem("mnuDiagnosticsTest", "&Take Diagnostic Test");
  mnuDiagnosticsSeparator1 = &diagnostics.AddSeparator("mnuDiagnosticsSeparator1");
  mnuDiagnosticsResults =
      &diagnostics.AddItem("mnuDiagnosticsResults", "Manage Diagnostic Test &Results");

  const MenuForms& forms = startUp_.forms;
  Offer(*mnuRecordsStudents, forms.Students);
  Offer(*mnuRecordsRecords, forms.Records);
  Offer(*mnuRecordsSessionSee, forms.SeeSession);
  Offer(*mnuRecordsSessionClear, forms.ClearSession);
  Offer(*mnuDiagnosticsTest, forms.DiagnosticTest);
  Offer(*mnuDiagnosticsResults, forms.DiagnosticResults);
}

void MainMenu::MakeHelpMenu() {
  platform::Menu& help = form.AddMenu("&Help");
  mnuHelpProgramOverview = &help.AddItem("mnuHelpProgramOverview", "&Program Overview");
  mnuHelpProgramTour = &help.AddItem("mnuHelpProgramTour", "Program &Tour");
  mnuHelpSeparator2 = &help.AddSeparator("mnuHelpSeparator2");
  mnuHelpTechSupport = &help.AddItem("mnuHelpTechSupport", "&Technical Support");
  mnuHelpAbout = &help.AddItem("mnuHelpAbout", "&About");
  Offer(*mnuHelpProgramOverview, engineHooks.ShowProgramOverview);
  Offer(*mnuHelpProgramTour, startUp_.forms.ProgramTour);
  Offer(*mnuHelpTechSupport, engineHooks.ShowTechSupport);
  Offer(*mnuHelpAbout, engineHooks.ShowAbout);
}

}  // namespace course
