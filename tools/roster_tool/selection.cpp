#include "roster_tool/selection.h"

#include <algorithm>
#include <vector>

#include "records/name_order.h"
#include "records/record_report.h"
#include "records/record_text.h"
#include "roster_tool/terminal_text.h"

namespace roster_tool {
namespace {

using course::NameInUpperCase;

// What was typed, as the rosters have it, to be compared.
std::string Wanted(const std::string& typed) {
  return NameInUpperCase(course::Trimmed(Latin1From(typed).value_or(typed)));
}

std::optional<int> NumberIn(const std::string& typed) {
  if (typed.empty() || typed.size() > 2 ||
      typed.find_first_not_of("0123456789") != std::string::npos)
    return std::nullopt;
  return course::ParseNumber(typed);
}

std::optional<int> FindClass(const Rosters& rosters, const std::string& typed) {
  for (const ClassEntry& entry : rosters.classes)
    if (NameInUpperCase(entry.name) == Wanted(typed)) return entry.number;
  return NumberIn(typed);
}

std::vector<StudentEntry> FindStudents(const Rosters& rosters, const Whose& whose,
                                       const Selection& selection) {
  std::vector<StudentEntry> found;
  for (const StudentEntry& student : rosters.students)
    if ((!selection.classNumber || student.classNumber == *selection.classNumber) &&
        NameInUpperCase(student.name) == Wanted(whose.student))
      found.push_back(student);
  return found;
}

std::string Numbered(int number) {
  return "(number " + std::to_string(number) + ")";
}

}  // namespace

bool Selection::Has(const std::string& record) const {
  return (!classNumber || ClassOfRecord(record) == *classNumber) &&
         (!studentNumber || course::StudentOfRecord(record) == *studentNumber);
}

Selection Select(const Rosters& rosters, const Whose& whose, Complaints& complaints) {
  Selection selection;
  const auto refuse = [&](const std::string& complaint) {
    complaints.push_back(complaint);
    return Selection();
  };
  if (!whose.className.empty()) {
    selection.classNumber = FindClass(rosters, whose.className);
    if (!selection.classNumber) return refuse("there is no class " + ShownPath(whose.className));
  }
  if (whose.student.empty()) return selection;
  const std::vector<StudentEntry> found = FindStudents(rosters, whose, selection);
  if (found.size() > 1)
    return refuse("several classes have a student " + ShownPath(whose.student) +
                  "; --class tells which");
  if (found.size() == 1) return {found[0].classNumber, found[0].number};
  selection.studentNumber = NumberIn(whose.student);
  if (!selection.studentNumber || !selection.classNumber)
    return refuse("there is no student " + ShownPath(whose.student));
  return selection;
}

int ClassOfRecord(const std::string& record) {
  return course::ParseNumber(record.substr(2, 2));
}

std::string StudentName(const Rosters& rosters, int classNumber, int studentNumber) {
  for (const StudentEntry& student : rosters.students)
    if (student.classNumber == classNumber && student.number == studentNumber) return student.name;
  return Numbered(studentNumber);
}

std::string ClassName(const Rosters& rosters, int classNumber) {
  for (const ClassEntry& entry : rosters.classes)
    if (entry.number == classNumber) return entry.name;
  return Numbered(classNumber);
}

int PassPercent(const Rosters& rosters, int classNumber) {
  constexpr int kUsual = 60;
  for (const ClassEntry& entry : rosters.classes)
    if (entry.number == classNumber && !entry.percent.empty() &&
        entry.percent.find_first_not_of("0123456789") == std::string::npos)
      return course::ParseNumber(entry.percent);
  return kUsual;
}

}  // namespace roster_tool
