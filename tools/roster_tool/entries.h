// The classes of a school and their students, as a CSV file or the two roster files tell them, and
// what is wrong with them.
#pragma once

#include <map>
#include <set>
#include <string>
#include <vector>

namespace roster_tool {

// A number of 0 is not known as yet, -1 cannot be read.  The place, "students.csv:12" for example,
// is where a complaint leads.
struct ClassEntry {
  std::string place;
  std::string name;
  std::string percent;  // "" for the usual one
  int number = 0;
};

struct StudentEntry {
  std::string place;
  std::string className;  // "" when only the number is known
  int classNumber = 0;
  std::string name;
  std::string password;  // capital letters and digits, "" for none
  int number = 0;
};

struct Rosters {
  std::vector<ClassEntry> classes;
  std::vector<StudentEntry> students;
};

// A line each; empty when all is well.
using Complaints = std::vector<std::string>;

inline constexpr int kMostClasses = 98;   // number 99 stands for a machine without a network
inline constexpr int kMostStudents = 99;  // of one class

// Whether every field can be kept: lengths, characters, ranges.
Complaints CheckFields(const Rosters& rosters);
// Whether names and numbers tell classes, and the students of a class, apart, and every student has
// a class.  Only for fields that can be kept.
Complaints CheckTogether(const Rosters& rosters);

// Numbers that stand in records and results: those of classes, and of students within each.
using UsedNumbers = std::map<int, std::set<int>>;

// Gives every entry without a number one: the number of the same name in the old rosters, else the
// smallest that neither they nor the new ones nor any record use, so that nobody inherits another
// one's records.
Complaints AssignNumbers(Rosters& rosters, const Rosters& old, const UsedNumbers& used);

}  // namespace roster_tool
