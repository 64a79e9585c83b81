#include "roster_tool/entries.h"

#include <algorithm>
#include <map>
#include <set>
#include <tuple>

#include "records/name_order.h"
#include "records/rosters.h"
#include "roster_tool/terminal_text.h"

namespace roster_tool {
namespace {

using course::NameInUpperCase;

constexpr std::size_t kPasswordLength = 6;

bool IsPercent(const std::string& text) {
  if (text.size() > 3 || text.find_first_not_of("0123456789") != std::string::npos) return false;
  const int percent = std::stoi(text);
  return percent >= 1 && percent <= 100;
}

bool IsPasswordCharacter(char c) {
  return (c >= '0' && c <= '9') || (c >= 'A' && c <= 'Z');
}

void CheckName(const std::string& place, const std::string& name, int most,
               Complaints& complaints) {
  const int length = static_cast<int>(name.size());
  if (length == 0) complaints.push_back(place + ": the name is missing");
  if (length > most)
    complaints.push_back(place + ": the name " + Quoted(name) + " has " + std::to_string(length) +
                         " characters; there is place for " + std::to_string(most));
}

void CheckNumber(const std::string& place, int number, int most, Complaints& complaints) {
  if (number < 0 || number > most)
    complaints.push_back(place + ": a number is 1 to " + std::to_string(most));
}

void CheckPassword(const StudentEntry& student, Complaints& complaints) {
  const std::string& password = student.password;
  if (password.size() > kPasswordLength)
    complaints.push_back(student.place + ": the password has " + std::to_string(password.size()) +
                         " characters; there is place for " + std::to_string(kPasswordLength));
  if (!std::all_of(password.begin(), password.end(), IsPasswordCharacter))
    complaints.push_back(student.place + ": a password has letters and digits only");
}

// The first number from 1 on that is in neither set; 0 when there is none.
int FreeNumber(const std::set<int>& taken, const std::set<int>& before, int most) {
  for (int number = 1; number <= most; ++number)
    if (!taken.contains(number) && !before.contains(number)) return number;
  return 0;
}

// Finds what two entries share.
template <class Key>
class Seen {
 public:
  // The place of the entry that was there first, "" for none.
  std::string Earlier(const Key& key, const std::string& place) {
    const auto [found, isNew] = places_.emplace(key, place);
    return isNew ? "" : found->second;
  }

 private:
  std::map<Key, std::string> places_;
};

void CheckClassesTogether(const std::vector<ClassEntry>& classes, Complaints& complaints) {
  Seen<std::string> names;
  Seen<int> numbers;
  for (const ClassEntry& entry : classes) {
    const std::string other = names.Earlier(NameInUpperCase(entry.name), entry.place);
    const std::string same = entry.number == 0 ? "" : numbers.Earlier(entry.number, entry.place);
    if (!other.empty())
      complaints.push_back(entry.place + ": another class has the name " + Quoted(entry.name) +
                           ": " + other);
    else if (!same.empty())
      complaints.push_back(entry.place + ": another class has the number " +
                           std::to_string(entry.number) + ": " + same);
  }
}

// What tells a student's class: its name where it has one, else its number.
std::string ClassOf(const StudentEntry& student) {
  return student.className.empty() ? "number " + std::to_string(student.classNumber)
                                   : NameInUpperCase(student.className);
}

// At most one complaint a student: a line that is there twice has name and number of the first.
void CheckStudentsTogether(const std::vector<StudentEntry>& students, Complaints& complaints) {
  Seen<std::pair<std::string, std::string>> names;
  Seen<std::pair<std::string, int>> numbers;
  std::map<std::string, int> sizes;
  for (const StudentEntry& student : students) {
    const std::string inClass = ClassOf(student);
    const int size = ++sizes[inClass];
    const std::string other =
        names.Earlier({inClass, NameInUpperCase(student.name)}, student.place);
    const std::string same =
        student.number == 0 ? "" : numbers.Earlier({inClass, student.number}, student.place);
    if (!other.empty())
      complaints.push_back(student.place + ": another student of the class has the name " +
                           Quoted(student.name) + ": " + other);
    else if (!same.empty())
      complaints.push_back(student.place + ": another student of the class has the number " +
                           std::to_string(student.number) + ": " + same);
    else if (size == kMostStudents + 1)
      complaints.push_back(student.place + ": a class has place for " +
                           std::to_string(kMostStudents) + " students");
  }
}

const ClassEntry* FindClass(const Rosters& rosters, const StudentEntry& student) {
  for (const ClassEntry& entry : rosters.classes) {
    const bool found = student.className.empty()
                           ? entry.number == student.classNumber
                           : NameInUpperCase(entry.name) == NameInUpperCase(student.className);
    if (found) return &entry;
  }
  return nullptr;
}

// A class that is missing is told where its first student stands.
void CheckClassesOfStudents(const Rosters& rosters, Complaints& complaints) {
  std::set<std::string> missing;
  for (const StudentEntry& student : rosters.students) {
    if (FindClass(rosters, student) != nullptr || !missing.insert(ClassOf(student)).second)
      continue;
    const std::string name = student.className.empty()
                                 ? "with the number " + std::to_string(student.classNumber)
                                 : Quoted(student.className);
    complaints.push_back(student.place + ": there is no class " + name);
  }
}

// One kind of entry, within one class or over all: known numbers stay, the others are found.  The
// numbers from before the rosters are in nobody's hands.
template <class Entry>
Complaints Number(const std::vector<Entry*>& entries, const std::vector<const Entry*>& old,
                  std::set<int> before, int most) {
  std::set<int> taken;
  std::map<std::string, int> oldNumberOf;
  for (const Entry* entry : entries) taken.insert(entry->number);
  for (const Entry* entry : old) {
    before.insert(entry->number);
    oldNumberOf[NameInUpperCase(entry->name)] = entry->number;
  }
  for (Entry* entry : entries) {
    const auto found = oldNumberOf.find(NameInUpperCase(entry->name));
    if (entry->number != 0 || found == oldNumberOf.end() || taken.contains(found->second)) continue;
    entry->number = found->second;
    taken.insert(entry->number);
  }
  Complaints complaints;
  for (Entry* entry : entries) {
    if (entry->number != 0) continue;
    entry->number = FreeNumber(taken, before, most);
    taken.insert(entry->number);
    if (entry->number == 0)
      complaints.push_back(entry->place + ": no number of 1 to " + std::to_string(most) +
                           " is left that nobody had before; give one in the column \"number\"");
  }
  return complaints;
}

}  // namespace

Complaints CheckFields(const Rosters& rosters) {
  Complaints complaints;
  for (const ClassEntry& entry : rosters.classes) {
    CheckName(entry.place, entry.name, course::kClassNameLength, complaints);
    CheckNumber(entry.place, entry.number, kMostClasses, complaints);
    if (!entry.percent.empty() && !IsPercent(entry.percent))
      complaints.push_back(entry.place + ": a percent is 1 to 100, not " + Quoted(entry.percent));
  }
  for (const StudentEntry& student : rosters.students) {
    CheckName(student.place, student.name, course::kStudentNameLength, complaints);
    CheckNumber(student.place, student.number, kMostStudents, complaints);
    CheckPassword(student, complaints);
  }
  return complaints;
}

Complaints CheckTogether(const Rosters& rosters) {
  Complaints complaints;
  CheckClassesTogether(rosters.classes, complaints);
  CheckStudentsTogether(rosters.students, complaints);
  if (!rosters.classes.empty()) CheckClassesOfStudents(rosters, complaints);
  return complaints;
}

Complaints AssignNumbers(Rosters& rosters, const Rosters& old, const UsedNumbers& used) {
  std::vector<ClassEntry*> classes;
  std::vector<const ClassEntry*> oldClasses;
  for (ClassEntry& entry : rosters.classes) classes.push_back(&entry);
  for (const ClassEntry& entry : old.classes) oldClasses.push_back(&entry);
  std::set<int> usedClasses;
  for (const auto& [classNumber, students] : used) usedClasses.insert(classNumber);
  Complaints complaints = Number(classes, oldClasses, usedClasses, kMostClasses);
  if (!complaints.empty()) return complaints;

  std::map<int, std::vector<StudentEntry*>> students;
  for (StudentEntry& student : rosters.students) {
    student.classNumber = FindClass(rosters, student)->number;
    students[student.classNumber].push_back(&student);
  }
  for (const auto& [classNumber, entries] : students) {
    std::vector<const StudentEntry*> before;
    for (const StudentEntry& student : old.students)
      if (student.classNumber == classNumber) before.push_back(&student);
    const auto found = used.find(classNumber);
    const Complaints more = Number(
        entries, before, found == used.end() ? std::set<int>() : found->second, kMostStudents);
    complaints.insert(complaints.end(), more.begin(), more.end());
  }
  return complaints;
}

}  // namespace roster_tool
