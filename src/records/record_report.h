// The lines in which activity records are read: on the screen, on paper, and for the session.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace course {

enum class RecordKind { Practice, LessonTest, UnitTest };

// A record taken apart.  Numbers that are no numbers are 0.
struct ExpandedRecord {
  std::string name;  // 21 characters
  std::string date;  // yymmdd
  std::string code;  // of the program, two characters
  int unit = 0;      // without a test's offset, as is the lesson
  int lesson = 0;
  int attempted = 0;
  int correct = 0;
  int minutes = 0;
  RecordKind kind = RecordKind::Practice;
};

// The number of the student whose record of 25 characters this is.
int StudentOfRecord(std::string_view record);
// A record of 25 characters or an entry of the session, which begins like one.
ExpandedRecord ExpandRecord(std::string_view record, std::string_view name);

// "Practice", "Lesson Test" or "Unit Test".
const char* ActivityName(RecordKind kind);

// The printed title of a course of the series, "" for an unknown code.
std::string CourseTitleFromCode(std::string_view code);

// Whole percent, half rounded up; 100 when nothing was attempted.
int PercentCorrect(int attempted, int correct);
// "A" to "D", " " for fewer than 5 problems.
std::string PracticeGrade(int attempted, int percent);

// Where the title of a unit test's unit comes from: the full views have no titles of units.
enum class UnitTitles { None, Catalogue };
// Whether the catalogue has a place for unit and lesson, or the course has no catalogue here.
bool HasTitle(const ExpandedRecord& record);
// Lessons by their short titles.  A unit or lesson beyond the catalogue's bounds stops the program.
std::string RecordTitle(const ExpandedRecord& record, UnitTitles unitTitles);

// The line of frmDisplay, 98 characters; of the printed page, 113; and of frmDisplaySession, 63.
// Tests pass at session.gTestPassPercent.
std::string DisplayLine(const ExpandedRecord& record);
std::string PrintedLine(const ExpandedRecord& record);
std::string SessionLine(const ExpandedRecord& record);

// The three heading lines of the printed page.
std::vector<std::string> PrintedColumnHeadings();

}  // namespace course
