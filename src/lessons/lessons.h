// The makers of all lessons, one a script, in the order of the course.  lesson_table.cpp binds them
// to their titles.
#pragma once

#include <memory>

#include "engine/lesson_script.h"

namespace course {

// Unit 1, "Review of Arithmetic".
std::unique_ptr<LessonScript> MakeOrderOfOperations();

// Unit 3, "Equations".
std::unique_ptr<LessonScript> MakeTwoOperations();

// Unit 4, "Solving Word Problems".
std::unique_ptr<LessonScript> MakeDistanceRateTimeProblems();

// Unit 5, "Exponents and Powers".
std::unique_ptr<LessonScript> MakeMultiplyingWithExponents();

// Unit 7, "Factoring".
std::unique_ptr<LessonScript> MakeTrinomialsX2BxC();

// Unit 9, "Systems of Linear Equations".
std::unique_ptr<LessonScript> MakeSystemsByGraphing();

// Unit 10, "Inequalities".
std::unique_ptr<LessonScript> MakeSimpleInequalities();
std::unique_ptr<LessonScript> MakeComplexInequalities();
std::unique_ptr<LessonScript> MakeSolvingInequalities();

// Unit 12, "Quadratic Equations".
std::unique_ptr<LessonScript> MakeTheQuadraticFormula();

// Outside the units.
std::unique_ptr<LessonScript> MakeAddingFractions();

}  // namespace course
