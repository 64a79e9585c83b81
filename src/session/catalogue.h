// The course's table of contents, and the 30 problems of the diagnostic test.
#pragma once

#include <span>
#include <string>
#include <string_view>

namespace course {

// Fills gUnitCount, gUnitName, gLessonCount, gLessonTitle, gLessonShortTitle and
// gDiagnosticProbCount. Thirteen units are defined, twelve are listed.
void FillCourseTables();

// Fills gDiagnosticData and sets gDiagnosticStatus to 1.
void FillDiagnosticTable();

// Titles of the scripts that only the diagnostic test reaches, in proper case, with their screen
// count.
struct DiagnosticLesson {
  std::string_view title;
  int screens;
};
std::span<const DiagnosticLesson> DiagnosticLessons();

// Screens of a listed lesson as the catalogue tells it; 0 for a unit test or a row without a
// script.
int CatalogueScreens(int unit, int row);

}  // namespace course
