#include "records/diagnostic_forms.h"

#include "platform/dialogs.h"
#include "platform/look.h"
#include "platform/printer.h"
#include "platform/stop.h"
#include "records/diagnostic_file.h"
#include "records/diagnostic_report_paper.h"
#include "records/record_text.h"
#include "records/rosters.h"

namespace course {
namespace {

using platform::look::MovePixels;
using platform::look::SetType;

constexpr int kPixel = platform::TwipsPerPixelX;
constexpr int kNameColumn = 50;  // characters of an item in front of the record
constexpr std::size_t kNumberPlace = 4;

// The grid, in pixels.
constexpr int kMargin = 24;
constexpr int kGap = 12;
constexpr int kHeadingHeight = 32;
constexpr int kListTop = kMargin + kHeadingHeight + 34;
constexpr int kListWidth = 300;  // the record, 50 characters to the right, stays out of sight
constexpr int kListRows = 14;
constexpr int kButtonWidth = 124;
constexpr int kButtonHeight = 46;
constexpr int kFrameTitle = 18;
constexpr int kFramePadding = 16;
constexpr int kFrameWidth = 3 * kButtonWidth + 2 * kGap + 2 * kFramePadding;
constexpr int kFrameHeight = kFrameTitle + kButtonHeight + 2 * kFramePadding;
constexpr int kFrameLeft = kMargin + kListWidth + kMargin;
constexpr int kWidth = kFrameLeft + kFrameWidth + kMargin;
constexpr int kListHeight = kListRows * 27 + 4;
constexpr int kHeight = kListTop + kListHeight + kMargin;

// The report's lines are up to 94 characters wide.
constexpr int kReportWidth = 94 * 8 + 32;
constexpr int kReportRow = 18;
constexpr int kReportRows = 28;
constexpr int kReportTop = kMargin + kHeadingHeight + kGap;
constexpr int kReportHeight = kReportRows * kReportRow + 4;

std::string ItemOf(const std::string& record) {
  const int number = ParseNumber(record.substr(kNumberPlace, 2));
  return Padded(StudentNameFromNumber(number), kNameColumn) + record;
}

DiagnosticResult ResultOf(const std::string& item) {
  return {item.substr(kNameColumn, kDiagnosticRecordLength), Trimmed(item.substr(0, kNameColumn))};
}

bool Confirmed(const std::string& question) {
  return platform::MessageBox({.text = question,
                               .title = "Diagnostic Test Results",
                               .buttons = platform::Buttons::YesNo,
                               .icon = platform::Icon::Warning}) == platform::Answer::Yes;
}

void Display(const std::string& whose, const std::vector<DiagnosticResult>& results) {
  DisplayDiagnosticsForm display;
  display.lblHeading.SetCaption("Diagnostic Test Results: " + whose);
  display.ShowDiagnosticReport(results);
  display.form.ShowModal();
}

void PlaceChoice(platform::Frame& frame, std::array<platform::Button, 3>& buttons) {
  frame.SetFont("MS Sans Serif", 10, true);
  int left = kFramePadding;
  for (platform::Button& button : buttons) {
    button.SetFont("MS Sans Serif", 11, true);
    button.SetAccessibleName(button.Caption() + " " + frame.AccessibleName());
    MovePixels(button, left, kFrameTitle + kFramePadding, kButtonWidth, kButtonHeight);
    left += kButtonWidth + kGap;
  }
}

}  // namespace

DiagnosticsForm::DiagnosticsForm()
    : form("frmDiagnostics", kWidth * kPixel, kHeight * kPixel),
      lblHeading(form, "lblHeading", "Diagnostic Test Results"),
      lblStudents(form, "lblStudents", "Students"),
      lstStudents(form, "lstStudents"),
      fraAll(form, "fraAll", "for All Students Shown In List"),
      cmdAll{platform::Button(fraAll, "cmdAll(0)", "Display"),
             platform::Button(fraAll, "cmdAll(1)", "Print"),
             platform::Button(fraAll, "cmdAll(2)", "Erase")},
      fraSelected(form, "fraSelected", "for Selected Student"),
      cmdSelected{platform::Button(fraSelected, "cmdSelected(0)", "Display"),
                  platform::Button(fraSelected, "cmdSelected(1)", "Print"),
                  platform::Button(fraSelected, "cmdSelected(2)", "Erase")},
      cmdMenu(form, "cmdMenu", "&Return to Menu") {
  form.SetCaption("Manage Diagnostic Test Results");
  PlaceControls();
  BindControls();
  UpdateStudentList();
}

void DiagnosticsForm::PlaceControls() {
  MovePixels(lblHeading, kMargin, kMargin, kWidth - 2 * kMargin, kHeadingHeight);
  SetType(lblHeading, 18, true);
  MovePixels(lblStudents, kMargin, kListTop - 24, kListWidth, 20);
  SetType(lblStudents, 10);
  lstStudents.SetFont("Courier New", 11);
  lstStudents.SetAccessibleName("Students");
  MovePixels(lstStudents, kMargin, kListTop, kListWidth, kListHeight);
  fraAll.SetAccessibleName("for All Students Shown In List");
  MovePixels(fraAll, kFrameLeft, kListTop, kFrameWidth, kFrameHeight);
  PlaceChoice(fraAll, cmdAll);
  fraSelected.SetAccessibleName("for Selected Student");
  MovePixels(fraSelected, kFrameLeft, kListTop + kFrameHeight + kMargin, kFrameWidth, kFrameHeight);
  PlaceChoice(fraSelected, cmdSelected);
  MovePixels(cmdMenu, kWidth - kMargin - 200, kHeight - kMargin - kButtonHeight, 200,
             kButtonHeight);
  cmdMenu.SetFont("MS Sans Serif", 11, true);
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
  for (const std::string& record : ReadDiagnosticRecords()) lstStudents.AddItem(ItemOf(record));
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
  Display("All Students", AllResults());
}

void DiagnosticsForm::DisplayDiagnosticData() {
  const DiagnosticResult result = SelectedResult();
  Display(result.studentName, {result});
}

void DiagnosticsForm::PrintDiagnosticDataAll() {
  platform::PrintAfterPreview(DiagnosticDocument(AllResults()));
}

void DiagnosticsForm::PrintDiagnosticData() {
  platform::PrintAfterPreview(DiagnosticDocument({SelectedResult()}));
}

void DiagnosticsForm::EraseDiagnosticDataAll() {
  if (!Confirmed("Are you sure you want to erase the Diagnostic Test results for ALL students?"))
    return;
  EraseDiagnosticResults(-1);
  UpdateStudentList();
}

void DiagnosticsForm::EraseDiagnosticData() {
  const DiagnosticResult result = SelectedResult();
  if (!Confirmed(result.studentName +
                 "\n\nAre you sure you want to erase this student's Diagnostic Test results?"))
    return;
  EraseDiagnosticResults(ParseNumber(result.record.substr(kNumberPlace, 2)));
  UpdateStudentList();
}

DisplayDiagnosticsForm::DisplayDiagnosticsForm()
    : form("frmDisplayDiagnostics", (kReportWidth + 2 * kMargin) * kPixel,
           (kReportTop + kReportHeight + kGap + kButtonHeight + kMargin) * kPixel),
      lblHeading(form, "lblHeading"),
      lstRecords(form, "lstRecords"),
      cmdOK(form, "cmdOK", "Close") {
  form.SetCaption("Diagnostic Test Results");
  MovePixels(lblHeading, kMargin, kMargin, kReportWidth, kHeadingHeight);
  SetType(lblHeading, 18, true);
  lstRecords.SetFont("Courier New", 10);
  lstRecords.SetRowHeight(kReportRow * kPixel);
  lstRecords.SetAccessibleName("Diagnostic Test Results");
  MovePixels(lstRecords, kMargin, kReportTop, kReportWidth, kReportHeight);
  MovePixels(cmdOK, kMargin + kReportWidth - 140, kReportTop + kReportHeight + kGap, 140,
             kButtonHeight);
  cmdOK.SetFont("MS Sans Serif", 11, true);
  cmdOK.OnClick = [this] { form.Close(); };
  form.SetDefaultButton(cmdOK);
  form.SetNeutralButton(cmdOK);
}

void DisplayDiagnosticsForm::ShowDiagnosticReport(const std::vector<DiagnosticResult>& results) {
  lstRecords.Clear();
  for (const std::string& line : DiagnosticReports(results)) lstRecords.AddItem(line);
}

void ShowDiagnostics() {
  DiagnosticsForm().form.ShowModal();
}

}  // namespace course
