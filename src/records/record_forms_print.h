// Records on paper.
#pragma once

#include <vector>

#include "records/record_report.h"
#include "records/report_pages.h"

namespace course {

// The pages of records that belong to a student, or to "All Students".
ReportPages RecordPages(const std::vector<ExpandedRecord>& records, const std::string& name);

// Loads the records of a student's number or of kAllStudents, asks the person to turn on the
// printer, and prints after a preview.
void PrintRecords(int student);

}  // namespace course
