#include "records/diagnostic_report_paper.h"

#include "records/report_pages.h"

namespace course {
namespace {

constexpr double kPoints = 10;  // 12 characters an inch: 86 of them fill 7.2 inches

}  // namespace

platform::PrintDocument DiagnosticDocument(const std::vector<DiagnosticResult>& results) {
  ReportPages pages("Diagnostic Test Results", platform::Orientation::Portrait, kPoints);
  for (const DiagnosticResult& result : results) {
    for (const std::vector<std::string>& lines : DiagnosticReportPages(result)) {
      pages.StartPage();
      for (const std::string& line : lines) pages.PrintLine(line);
    }
  }
  return pages.Document();
}

}  // namespace course
