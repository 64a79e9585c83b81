// Choosing and sorting the records of a view.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "records/record_report.h"

namespace course {

enum class SortOrder { Name = 1, Percent = 2, Date = 3, Lesson = 4 };
enum class SortDirection { Increasing = 1, Decreasing = 2 };

inline constexpr int kMaxViewedRecords = 1000;
inline constexpr int kAllStudents = -1;

// The text by which a record is sorted; its place in the file, from 1, makes every key another one.
std::string SortKey(const ExpandedRecord& record, SortOrder order, int place);

// The records of one student, or of all, in the order and direction wanted.  More than
// kMaxViewedRecords stop the program.
std::vector<ExpandedRecord> SelectRecords(
    const std::vector<std::string>& records, int student,
    const std::function<std::string(int student)>& nameFromNumber, SortOrder order,
    SortDirection direction);

}  // namespace course
