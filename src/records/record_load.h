// Loading the records of a view: the choice that the person made last, and what it shows.
#pragma once

#include <string>
#include <vector>

#include "records/record_report_order.h"

namespace course {

// How the views and the printer sort.  They hold until the program ends or frmRecords is opened.
extern SortOrder gRecordsSortOrder;
extern SortDirection gRecordsSortDirection;

inline constexpr int kLastStudent = -99;  // whoever was loaded last

// The records of a student's number, of kAllStudents or of kLastStudent in the order chosen.  None
// is told to the person.
std::vector<ExpandedRecord> LoadRecords(int student);
// Whether the last ones loaded are those of a single student.
bool OneStudentIsLoaded();

// "All Students", or the name without its blanks.
std::string NameOfLoaded();

}  // namespace course
