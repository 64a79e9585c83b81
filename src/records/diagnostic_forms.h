// The forms of the diagnostic results: frmDiagnostics, in which the teacher picks a student and
// says what to do with the result, and frmDisplayDiagnostics, which shows the report.
#pragma once

#include <array>
#include <string>
#include <vector>

#include "platform/form.h"
#include "records/diagnostic_report.h"

namespace course {

class DiagnosticsForm {
 public:
  // Loads the list.  A missing or busy Diag.dat stops the program.
  DiagnosticsForm();

  platform::Form form;  // frmDiagnostics
  platform::Label lblHeading;
  platform::Label lblStudents;
  platform::ListBox lstStudents;  // an item: the name, 50 characters, then the record
  platform::Frame fraAll;
  std::array<platform::Button, 3> cmdAll;  // 0 display, 1 print, 2 erase
  platform::Frame fraSelected;
  std::array<platform::Button, 3> cmdSelected;
  platform::Button cmdMenu;

  void DisplayDiagnosticDataAll();
  void DisplayDiagnosticData();
  void PrintDiagnosticDataAll();
  void PrintDiagnosticData();
  void EraseDiagnosticDataAll();
  void EraseDiagnosticData();
  // Reads the file again; nobody is selected then.
  void UpdateStudentList();

 private:
  void PlaceControls();
  void BindControls();
  void lstStudents_Click();
  std::vector<DiagnosticResult> AllResults() const;
  DiagnosticResult SelectedResult() const;

  std::string record_;  // of the selected student
};

// Shows the reports of these students in frmDisplayDiagnostics, modally, under the name of one or
// "All Students".  A result of an unknown program code stops the program.
void ShowDiagnosticReport(const std::string& whose, const std::vector<DiagnosticResult>& results);

// Shows frmDiagnostics modally.
void ShowDiagnostics();

}  // namespace course
