#include "records/record_load.h"

#include <map>

#include "platform/dialogs.h"
#include "records/activity_records.h"
#include "records/record_text.h"
#include "records/rosters.h"

namespace course {

SortOrder gRecordsSortOrder = SortOrder::Name;
SortDirection gRecordsSortDirection = SortDirection::Increasing;

namespace {

int lastStudent = kAllStudents;

// All names by number, read once: a view asks for one a record.
std::map<int, std::string> NamesByNumber() {
  std::map<int, std::string> names;
  for (const std::string& item : StudentListItems())
    names.emplace(StudentNumberOf(item), StudentNameOf(item));
  return names;
}

}  // namespace

std::vector<ExpandedRecord> LoadRecords(int student) {
  if (student != kLastStudent) lastStudent = student;
  const std::map<int, std::string> names = NamesByNumber();
  const auto nameFromNumber = [&names](int number) {
    const auto found = names.find(number);
    return found == names.end() ? std::string() : found->second;
  };
  std::vector<ExpandedRecord> records = SelectRecords(
      ReadActivityRecords(), lastStudent, nameFromNumber, gRecordsSortOrder, gRecordsSortDirection);
  if (records.empty())
    platform::MessageBox({.text = "No records found.", .title = "Student Records"});
  return records;
}

bool OneStudentIsLoaded() {
  return lastStudent != kAllStudents;
}

std::string NameOfLoaded() {
  return OneStudentIsLoaded() ? Trimmed(StudentNameFromNumber(lastStudent)) : "All Students";
}

}  // namespace course
