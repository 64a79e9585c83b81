// RECORDS.DAT, one record of 25 characters for each stretch of practice and each finished test:
// building and saving them, reading a student's progress back, erasing.
//
//   offset  0  2  program code, "C2"        12  2  unit, plus 50 for a unit test
//           2  2  class                     14  2  lesson, plus 50 for a lesson test
//           4  2  student                   16  3  problems attempted
//           6  6  date, mmddyy              19  3  problems correct
//                                           22  3  minutes, 1 to 999
#pragma once

#include <functional>
#include <string>
#include <vector>

namespace course {

inline constexpr int kActivityRecordLength = 25;
inline constexpr int kMaxSessionRecords = 100;

// What the menu hands down.
struct RecordHooks {
  std::function<void()> RefreshProgress;  // draws the marks of the unit selected in the menu
};
extern RecordHooks recordHooks;

// The save calls of a lesson.  Each adds an entry to session.gSessionRecords (the record, "P" or
// "T", and the time of day as five digits), writes the record to the file if records are kept for
// somebody, changes the lesson's progress code and zeroes the tally.  Without a problem attempted
// they do nothing.  A record that is not 25 characters long, more than 100 entries, and test flags
// that contradict each other stop the program.  (The engine's calls of the same names lead here.)
namespace records {
void SavePracticeRecord();
void SaveTestRecord();
}  // namespace records

// Whether records are written for the one who works here; an unknown gversion stops the program.
bool RecordsAreKept();

// Appends a record to the file; waits up to 45 seconds for it, then shows a message and ends the
// program.
void SaveActivityRecord(const std::string& record);

// Fills session.gProgressCodes from the file, for class 99 from the records of all courses and
// classes that bear the student's number.  An error shows a message and ends the program.
void ReadStudentProgress(int classNum, int studentNum);

// All records of the file in its order, for the views.  An error stops the program.
std::vector<std::string> ReadActivityRecords();

// Removes one student's records, of every class and course, or all records; then reads the progress
// again and has the menu refreshed.
enum class EraseMode { OneStudent = 1, All = 2 };
void EraseStudentRecords(int studentNum, EraseMode mode);

}  // namespace course
