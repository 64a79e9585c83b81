// The course's table of contents, and the 30 problems of the diagnostic test.
#pragma once

#include <span>
#include <string_view>
#include <vector>

namespace course {

// Fills gUnitCount, gUnitName, gLessonCount, gLessonTitle, gLessonShortTitle and
// gDiagnosticProbCount. Thirteen units are defined, twelve are listed.
void FillCourseTables();

// Fills gDiagnosticData and sets gDiagnosticStatus to 1.
void FillDiagnosticTable();
// The titles of its rows; some stand there twice.
std::vector<std::string_view> DiagnosticTitles();

// A lesson that a script teaches, with the number of its screens.
struct CatalogueLesson {
  std::string_view title;
  int screens;
};
// Those that only the diagnostic test reaches, in proper case.
std::span<const CatalogueLesson> DiagnosticLessons();
// All of them in the order of the course: the listed units, then those outside of the units.
std::vector<CatalogueLesson> CatalogueLessons();

// The sample lesson: no menu lists it, and the documentation runs it.
inline constexpr std::string_view kBlankLesson = "Blank Lesson";

// Screens of a listed lesson as the catalogue tells it; 0 for a unit test or a row without a
// script.
int CatalogueScreens(int unit, int row);

}  // namespace course
