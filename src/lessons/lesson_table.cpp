#include "lessons/lesson_table.h"

#include <algorithm>
#include <array>

#include "lessons/lessons.h"
#include "mathkit/tutor_codes.h"

namespace course {
namespace {

struct LessonRow {
  std::string_view title;  // as the catalogue lists it
  std::unique_ptr<LessonScript> (*make)();
};

// In the order of the course; those that only the diagnostic test reaches come last.
constexpr auto kLessons = std::to_array<LessonRow>({
    {"Order of Operations", MakeOrderOfOperations},
    {"Solving Linear Equations With 2 Operations", MakeTwoOperations},
    {"Distance-Rate-Time Problems", MakeDistanceRateTimeProblems},
    {"Multiplying with Exponents", MakeMultiplyingWithExponents},
    {"Trinomials of the Form x\xB2+bx+c", MakeTrinomialsX2BxC},
    {"Solving Systems by Graphing", MakeSystemsByGraphing},
    {"Simple Inequalities", MakeSimpleInequalities},
    {"Complex Inequalities", MakeComplexInequalities},
    {"Solving Inequalities", MakeSolvingInequalities},
    {"The Quadratic Formula", MakeTheQuadraticFormula},
    {"Adding Fractions", MakeAddingFractions},
});

}  // namespace

std::unique_ptr<LessonScript> MakeLesson(const std::string& title) {
  const std::string key = UpperCase(title);
  const auto row = std::ranges::find_if(kLessons, [&](const LessonRow& lesson) {
    return UpperCase(std::string(lesson.title)) == key;
  });
  return row == kLessons.end() ? nullptr : row->make();
}

std::vector<std::string_view> LessonTitles() {
  std::vector<std::string_view> titles;
  for (const LessonRow& lesson : kLessons) titles.push_back(lesson.title);
  return titles;
}

}  // namespace course
