#include "records/diagnostic_forms.h"

#include "platform/look.h"
#include "platform/printer.h"
#include "platform/stop.h"
#include "records/diagnostic_file.h"
#include "records/diagnostic_report_paper.h"
#include "records/form_parts.h"
#include "records/record_text.h"
#include "records/rosters.h"

namespace course {
namespace {

using platform::look::MovePixels;
using namespace grid;

constexpr const char* kTitle = "Diagnostic Test Results";
constexpr int kNameColumn = 50;  // characters of an item in front of the record
constexpr std::size_t kNumberPlace = 4;

// In pixels: the list on the left, two boxes of buttons on the right.
constexpr int kListWidth = 300;
constexpr int kListRows = 14;
constexpr int kButtonWidth = 124;
constexpr int kFrameHeading = 30;
constexpr int kFrameMargin = 16;
constexpr int kFrameWidth = 3 * kButtonWidth + 2 * kGap + 2 * kFrameMargin;
constexpr int kFrameHeight = kFrameHeading + kButtonHeight + kFrameMargin;
constexpr int kFrameLeft = kMargin + kListWidth + kMargin;
constexpr int kWidth = kFrameLeft + kFrameWidth + kMargin;
constexpr int kHeight = kListTop + ListHeight(kListRows) + kMargin;
constexpr int kMenuWidth = 200;

constexpr ListView::Layout kReport = {.name = "frmDisplayDiagnostics",
                                      .width = 784,  // 94 characters and a scroll bar
                                      .rows = 28,
                                      .rowHeight = 18,
                                      .points = 10};

std::string ItemOf(const std::string& record) {
  const int number = ParseNumber(record.substr(kNumberPlace, 2));
  return Padded(StudentNameFromNumber(number), kNameColumn) + record;
}

DiagnosticResult ResultOf(const std::string& item) {
  return {item.substr(kNameColumn, kDiagnosticRecordLength), Trimmed(item.substr(0, kNameColumn))};
}

void PlaceChoice(platform::Frame& frame, std::array<platform::Button, 3>& buttons) {
  constexpr const char* kCommands[] = {"Display ", "Print ", "Erase "};
  int left = kFrameMargin;
  for (std::size_t i = 0; i < buttons.size(); ++i) {
    PlaceButton(buttons[i], left, kFrameHeading, kButtonWidth);
    buttons[i].SetAccessibleName(kCommands[i] + frame.AccessibleName());
    left += kButtonWidth + kGap;
  }
}

}  // namespace

DiagnosticsForm::DiagnosticsForm()
    : form("frmDiagnostics", kWidth * kPixel, kHeight * kPixel),
      lblHeading(form, "lblHeading", kTitle),
      lblStudents(form, "lblStudents", "Students"),
      lstStudents(form, "lstStudents"),
      fraAll(form, "fraAll", "for All Students Shown In List"),
      cmdAll{platform::Button(fraAll, "cmdAll(0)", "&Display"),
             platform::Button(fraAll, "cmdAll(1)", "&Print"),
             platform::Button(fraAll, "cmdAll(2)", "&Erase")},
      fraSelected(form, "fraSelected", "for Selected Student"),
      cmdSelected{platform::Button(fraSelected, "cmdSelected(0)", "D&isplay"),
                  platform::Button(fraSelected, "cmdSelected(1)", "P&rint"),
                  platform::Button(fraSelected, "cmdSelected(2)", "Er&ase")},
      cmdMenu(form, "cmdMenu", "Return to &Menu") {
  form.SetCaption("Manage Diagnostic Test Results");
  PlaceControls();
  BindControls();
  UpdateStudentList();
}

void DiagnosticsForm::PlaceControls() {
  PlaceHeading(lblHeading, kWidth);
  PlaceNames(lblStudents, lstStudents, kMargin, kListWidth, kListRows);
  lstStudents.SetFont("Courier New", 11);
  lstStudents.SetAccessibleName("Students");
  fraAll.SetAccessibleName("for All Students Shown In List");
  MovePixels(fraAll, kFrameLeft, kListTop, kFrameWidth, kFrameHeight);
  PlaceChoice(fraAll, cmdAll);
  fraSelected.SetAccessibleName("for Selected Student");
  MovePixels(fraSelected, kFrameLeft, kListTop + kFrameHeight + 16, kFrameWidth, kFrameHeight);
  PlaceChoice(fraSelected, cmdSelected);
  PlaceButton(cmdMenu, kWidth - kMargin - kMenuWidth, kHeight - kMargin - kButtonHeight,
              kMenuWidth);
}

void DiagnosticsForm::BindControls() {
  lstStudents.OnClick = [this] { lstStudents_Click(); };
  lstStudents.OnDblClick = [this] { cmdSelected[0].Click(); };
  cmdAll[0].OnClick = [this] { DisplayDiagnosticDataAll(); };
  cmdAll[1].OnClick = [this] { PrintDiagnosticDataAll(); };
  cmdAll[2].OnClick = [this] { EraseDiagnosticDataAll(); };
  cmdSelected[0].OnClick = [this] { DisplayDiagnosticData(); };
  cmdSelected[1].OnClick = [this] { PrintDiagnosticData(); };
  cmdSelected[2].OnClick = [this] { EraseDiagnosticData(); };
  cmdMenu.OnClick = [this] { form.Close(); };
  form.SetDefaultButton(cmdSelected[0]);
  form.SetNeutralButton(cmdMenu);
}

void DiagnosticsForm::UpdateStudentList() {
  lstStudents.Clear();
  record_.clear();
  for (const std::string& record : ReadDiagnosticRecords())
    lstStudents.AddItem(ItemOf(record), kNameColumn);
  for (platform::Button& button : cmdAll) button.SetEnabled(lstStudents.ListCount() > 0);
  for (platform::Button& button : cmdSelected) button.SetEnabled(false);
}

void DiagnosticsForm::lstStudents_Click() {
  record_ = ResultOf(lstStudents.Text()).record;
  if (record_.size() != kDiagnosticRecordLength)
    platform::Stop("lstStudents_Click: a record of " + std::to_string(record_.size()) +
                   " characters");
  for (platform::Button& button : cmdSelected) button.SetEnabled(true);
}

std::vector<DiagnosticResult> DiagnosticsForm::AllResults() const {
  std::vector<DiagnosticResult> results;
  for (int i = 0; i < lstStudents.ListCount(); ++i)
    results.push_back(ResultOf(lstStudents.List(i)));
  return results;
}

DiagnosticResult DiagnosticsForm::SelectedResult() const {
  return {record_, ResultOf(lstStudents.Text()).studentName};
}

void DiagnosticsForm::DisplayDiagnosticDataAll() {
  ShowDiagnosticReport("All Students", AllResults());
}

void DiagnosticsForm::DisplayDiagnosticData() {
  const DiagnosticResult result = SelectedResult();
  ShowDiagnosticReport(result.studentName, {result});
}

void DiagnosticsForm::PrintDiagnosticDataAll() {
  platform::PrintAfterPreview(DiagnosticDocument(AllResults()));
}

void DiagnosticsForm::PrintDiagnosticData() {
  platform::PrintAfterPreview(DiagnosticDocument({SelectedResult()}));
}

void DiagnosticsForm::EraseDiagnosticDataAll() {
  if (!IsSure(kTitle,
              "Are you sure you want to erase the Diagnostic Test results for ALL students?"))
    return;
  EraseDiagnosticResults(-1);
  UpdateStudentList();
}

void DiagnosticsForm::EraseDiagnosticData() {
  const DiagnosticResult result = SelectedResult();
  if (!IsSure(kTitle,
              result.studentName +
                  "\n\nAre you sure you want to erase this student's Diagnostic Test results?"))
    return;
  EraseDiagnosticResults(ParseNumber(result.record.substr(kNumberPlace, 2)));
  UpdateStudentList();
}

void ShowDiagnosticReport(const std::string& whose, const std::vector<DiagnosticResult>& results) {
  ListView view(kReport, kTitle, kTitle + (": " + whose));
  view.lstRecords.SetAccessibleName(kTitle);
  view.MakeClose("Close");
  view.Show(DiagnosticReports(results));
  view.form.ShowModal();
}

void ShowDiagnostics() {
  DiagnosticsForm().form.ShowModal();
}

}  // namespace course
