// Who may log in: STUDENTS.DAT and CLASSES.DAT.
//
// Local STUDENTS.DAT, 25 characters: name 21, number 2, class 2 ("99").  On a network 31: the same
// with the student's class, and 6 characters of password; CLASSES.DAT, 32: name 25, 2 not read,
// passing percent 3, number 2.  An outside tool writes the network's two; they are only read here.
//
// List items hold what the person must not see 100 blanks to the right of the name.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace course {

inline constexpr int kStudentNameLength = 21;
inline constexpr int kClassNameLength = 25;
inline constexpr int kHiddenGap = 100;        // blanks between name and hidden fields
inline constexpr int kMaxRosterEntries = 99;  // students of a class, and classes

// --- Reading for the login: any error, and a 100th entry, shows a message and ends the program
// ----

// Items of the students who may log in, in file order: all of a local roster (name, gap, number:
// 123 characters), or those of one class of a network (the same and the password field: 129).  A
// local tail of 13 characters or more counts as a student; what is missing of it reads as blanks.
std::vector<std::string> ReadStudents(int classNum);
// Items of all classes (name, gap, percent, number: 130 characters).  Empties gClassNum and
// gClassName.
std::vector<std::string> ReadClasses();
// Whole records of the local roster; a missing file is made, empty.
long CountStudents();

// What the item of a list hides.
std::string StudentNameOf(const std::string& item);  // 21 characters
int StudentNumberOf(const std::string& item);
std::string PasswordOf(const std::string& networkItem);  // as the student types it; "" for none
std::string ClassNameOf(const std::string& item);        // 25 characters
int ClassNumberOf(const std::string& item);
int ClassPercentOf(const std::string& item);  // 60 unless the field is a number

// --- The local roster: any error stops the program
// --------------------------------------------------

// Items of all students in file order, as ReadStudents gives them, without a limit.
std::vector<std::string> StudentListItems();
bool StudentNumberExists(int number);
// The 21 characters of the name, "" when nobody has the number.
std::string StudentNameFromNumber(int number);
// The record of 25 characters.  A number has place for two digits.
std::string MakeStudentRecord(const std::string& name, int number);

// Adds a student under the smallest free number.
void FileAddStudent(const std::string& name);
// Gives another name to everybody with the number.
void FileEditStudent(int number, const std::string& name);
// Removes everybody with the number, or all.  STUDENTS.TMP stays behind.
enum class DeleteMode { OneStudent = 1, All = 2 };
void FileDeleteStudent(int number, DeleteMode mode);

}  // namespace course
