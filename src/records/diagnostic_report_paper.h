// The report on a diagnostic test on paper: two sheets for each student.
#pragma once

#include <vector>

#include "platform/printer.h"
#include "records/diagnostic_report.h"

namespace course {

// Upright pages in a type small enough for the widest line between margins of half an inch.
platform::PrintDocument DiagnosticDocument(const std::vector<DiagnosticResult>& results);

}  // namespace course
