// What the diagnostic report knows of the two courses: skill areas, bounds of the verdicts, and the
// lesson that teaches each of the 30 questions.
#pragma once

#include <array>
#include <span>
#include <string>
#include <string_view>

namespace course {

inline constexpr int kDiagnosticQuestions = 30;

// The questions of an area: a run from first to last, and one outside of it.
struct SkillArea {
  std::string_view title;  // 34 characters
  int first;
  int last;
  int extra = 0;  // 0 for none

  bool Holds(int question) const {
    return (question >= first && question <= last) || question == extra;
  }
};

// A lesson of the plan of study.  The key is the series ("PA" or "PB"), the unit and the lesson,
// two digits each, so that keys sort in course order.
struct StudyLesson {
  std::string_view key;
  std::string_view lesson;
};

struct DiagnosticProgram {
  std::string_view code;
  std::string_view title;  // of the report
  std::span<const SkillArea> areas;
  std::array<StudyLesson, kDiagnosticQuestions> lessons;  // element n - 1 teaches question n
};

// The tables of a program code, nullptr when the code is not known.
const DiagnosticProgram* FindDiagnosticProgram(std::string_view code);

// The key of six characters and the line that is printed behind it.
std::string StudyCell(const StudyLesson& lesson);

// "Poor", "Fair" or "Good" for so many right answers in an area of 3 to 10 questions; other areas
// stop the program.
std::string SkillVerdict(int questions, int correct);

}  // namespace course
