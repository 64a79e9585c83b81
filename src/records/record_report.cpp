#include "records/record_report.h"

#include "platform/stop.h"
#include "records/record_text.h"
#include "records/rosters.h"
#include "session/session.h"

namespace course {
namespace {

constexpr int kTestOffset = 50;
constexpr int kGradedFrom = 5;      // problems: fewer say too little
constexpr int kMixedPractice = 99;  // unit field of other courses' tests of various types

struct Course {
  std::string_view code;
  const char* title;
};
constexpr Course kCourses[] = {
    {"C1", "Pre-Algebra - Groundwork Series"},
    {"C2", "Algebra 1 - Groundwork Series"},
    {"C3", "Geometry - Groundwork Series"},
    {"C4", "Algebra 2 - Groundwork Series"},
    {"C5", "Trigonometry and Adv. Topics - Groundwork Series"},
    {"C6", "Introductory Calculus - Groundwork Series"},
    {"C7", "Everyday Business Sums"},
    {"C8", "Pre-Base"},
    {"P1", "Pre-Algebra - Drillbook Series"},
    {"P2", "Algebra 1 - Drillbook Series"},
    {"P3", "Geometry - Drillbook Series"},
    {"P4", "Algebra 2 - Drillbook Series"},
    {"P5", "Trigonometry and Adv. Topics - Drillbook Series"},
    {"P6", "Introductory Calculus - Drillbook Series"},
    {"P7", "Entrance Exam Math"},
};

// "S1" is an old name of "C7".
std::string CodeOf(std::string_view record) {
  const std::string code(record.substr(0, 2));
  return code == "S1" ? "C7" : code;
}

// Courses whose records tell tests from practice, and share the catalogue's numbering.
bool HasTests(const std::string& code) {
  return code[0] == 'B' || code[0] == 'C';
}

void TakeKind(ExpandedRecord& record) {
  if (!HasTests(record.code)) return;
  if (record.lesson > kTestOffset) {
    record.kind = RecordKind::LessonTest;
    record.lesson -= kTestOffset;
  } else if (record.unit > kTestOffset) {
    record.kind = RecordKind::UnitTest;
    record.unit -= kTestOffset;
  }
}

// At least so many characters, the number at the right end.
std::string AtRight(int number, std::size_t width) {
  const std::string digits = std::to_string(number);
  return std::string(width - std::min(width, digits.size()), ' ') + digits;
}

std::string Blanks(std::size_t count) {
  return std::string(count, ' ');
}

// Where the screen and the paper differ; widths in characters.
struct LineForm {
  std::size_t titleWidth;
  std::size_t blanksBeforeGrade;
  std::size_t blanksAfterGrade;
  const char* passed;
  const char* failed;
  std::size_t minutesWidth;
};
constexpr LineForm kDisplayForm = {.titleWidth = 24,
                                   .blanksBeforeGrade = 10,
                                   .blanksAfterGrade = 3,
                                   .passed = "         Yes  ",
                                   .failed = "         No   ",
                                   .minutesWidth = 3};
constexpr LineForm kPrintedForm = {.titleWidth = 36,
                                   .blanksBeforeGrade = 11,
                                   .blanksAfterGrade = 4,
                                   .passed = "           Yes  ",
                                   .failed = "           No   ",
                                   .minutesWidth = 4};

std::string Verdict(const ExpandedRecord& record, int percent, const LineForm& form) {
  if (record.kind != RecordKind::Practice)
    return percent >= session.gTestPassPercent ? form.passed : form.failed;
  return Blanks(form.blanksBeforeGrade) + PracticeGrade(record.attempted, percent) +
         Blanks(form.blanksAfterGrade);
}

std::string FullLine(const ExpandedRecord& record, const LineForm& form) {
  const int percent = PercentCorrect(record.attempted, record.correct);
  const std::string mmddyy = record.date.substr(2) + record.date.substr(0, 2);
  return Blanks(2) + Padded(record.name, 16) + mmddyy + Blanks(2) +
         Padded(RecordTitle(record, UnitTitles::None), form.titleWidth) + Blanks(2) +
         Padded(ActivityName(record.kind), 11) + Blanks(1) + AtRight(record.attempted, 3) +
         Blanks(2) + AtRight(record.correct, 4) + Blanks(2) + AtRight(percent, 4) + Blanks(2) +
         Verdict(record, percent, form) + AtRight(record.minutes, form.minutesWidth);
}

}  // namespace

int StudentOfRecord(std::string_view record) {
  return ParseNumber(record.substr(4, 2));
}

ExpandedRecord ExpandRecord(std::string_view record, std::string_view name) {
  const std::string mmddyy(record.substr(6, 6));
  ExpandedRecord expanded = {.name = Padded(name, kStudentNameLength),
                             .date = mmddyy.substr(4) + mmddyy.substr(0, 4),
                             .code = CodeOf(record),
                             .unit = ParseNumber(record.substr(12, 2)),
                             .lesson = ParseNumber(record.substr(14, 2)),
                             .attempted = ParseNumber(record.substr(16, 3)),
                             .correct = ParseNumber(record.substr(19, 3)),
                             .minutes = ParseNumber(record.substr(22, 3))};
  TakeKind(expanded);
  return expanded;
}

const char* ActivityName(RecordKind kind) {
  switch (kind) {
    case RecordKind::LessonTest:
      return "Lesson Test";
    case RecordKind::UnitTest:
      return "Unit Test";
    default:
      return "Practice";
  }
}

std::string CourseTitleFromCode(std::string_view code) {
  for (const Course& course : kCourses)
    if (course.code == code) return course.title;
  return "";
}

int PercentCorrect(int attempted, int correct) {
  if (attempted == 0) return 100;
  return (correct * 200 + attempted) / (2 * attempted);
}

std::string PracticeGrade(int attempted, int percent) {
  if (attempted < kGradedFrom) return " ";
  if (percent >= 90) return "A";
  if (percent >= 80) return "B";
  return percent >= 70 ? "C" : "D";
}

bool HasTitle(const ExpandedRecord& record) {
  return !HasTests(record.code) || (record.unit <= kMaxUnits && record.lesson <= kMaxLessons);
}

std::string RecordTitle(const ExpandedRecord& record, UnitTitles unitTitles) {
  if (!HasTests(record.code))
    return record.unit == kMixedPractice ? "Test...various prob types" : "";
  if (!HasTitle(record))
    platform::Stop("RecordTitle: unit " + std::to_string(record.unit) + ", lesson " +
                   std::to_string(record.lesson) + " is not in the catalogue");
  if (record.kind != RecordKind::UnitTest)
    return session.gLessonShortTitle[record.unit][record.lesson];
  return "Unit " + std::to_string(record.unit) + ": " +
         (unitTitles == UnitTitles::Catalogue ? session.gUnitName[record.unit] : "");
}

std::string DisplayLine(const ExpandedRecord& record) {
  return FullLine(record, kDisplayForm);
}

std::string PrintedLine(const ExpandedRecord& record) {
  return FullLine(record, kPrintedForm);
}

std::string SessionLine(const ExpandedRecord& record) {
  return Padded(RecordTitle(record, UnitTitles::Catalogue), 27) + Blanks(2) +
         Padded(ActivityName(record.kind), 11) + Blanks(2) + AtRight(record.attempted, 3) +
         Blanks(5) + AtRight(record.correct, 4) + Blanks(5) +
         AtRight(PercentCorrect(record.attempted, record.correct), 4);
}

std::vector<std::string> PrintedColumnHeadings() {
  return {
      "                                                                             #     #     %  "
      " "
      "Practice  Pass     # ",
      "       Name        Date                Lesson                    Activity   Att   Cor   Cor "
      " "
      "  Grade   Test?  Mins",
      "----------------  ------  ------------------------------------  ----------- ---  ----  ---- "
      " "
      "--------  -----  ----",
  };
}

}  // namespace course
