// The view of records, frmDisplay: a line a record, sorted as the person chooses.
#pragma once

#include <string>

#include "platform/form.h"
#include "records/record_report_order.h"

namespace course {

// Loads the records of a student's number or of kAllStudents and shows them, if there are any,
// modally under this caption.
void ShowRecordView(int student, const std::string& caption);

}  // namespace course
