// The report on a diagnostic test: from the 72 characters of a result's record to lines of text.
//
// It has three parts: the scored table of the questions, the analysis by skill areas, and the plan
// of study with the lessons that teach what was answered wrongly.  The screen, the printer and a
// test take the same lines.
#pragma once

#include <string>
#include <vector>

namespace course {

// A record as it stands in the file, with the name of the student that it belongs to.
struct DiagnosticResult {
  std::string record;
  std::string studentName;
};

// The report's lines, up to 87 of them and up to 86 characters each.  A record of another length or
// of an unknown program code stops the program.
std::vector<std::string> DiagnosticReport(const DiagnosticResult& result);

// The reports one after the other, with two rules and a blank line between them.
std::vector<std::string> DiagnosticReports(const std::vector<DiagnosticResult>& results);

// The report on two sheets of paper, up to 57 lines each: table and analysis, then the plan of
// study.  Each is headed with title, sheet, student and date.
std::vector<std::vector<std::string>> DiagnosticReportPages(const DiagnosticResult& result);

}  // namespace course
