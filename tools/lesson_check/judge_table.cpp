#include <algorithm>
#include <array>
#include <string_view>

#include "lesson_check/judge.h"
#include "lesson_check/judges/judges.h"
#include "mathkit/tutor_codes.h"

namespace lesson_check {
namespace {

struct JudgeRow {
  std::string_view title;
  Judge judge;
};

constexpr auto kJudges = std::to_array<JudgeRow>({
    {"Order of Operations", ReadOrderOfOperations},
    {"Solving Linear Equations With 2 Operations", ReadLinearEquation},
    {"Distance-Rate-Time Problems", ReadMotionProblem},
    {"Multiplying with Exponents", ReadProductOfPowers},
    {"Trinomials of the Form x\xB2+bx+c", ReadMonicTrinomial},
    {"Solving Systems by Graphing", ReadLinearSystem},
    {"Simple Inequalities", ReadIntervalFigure},
    {"Complex Inequalities", ReadIntervalFigure},
    {"Solving Inequalities", ReadLinearInequality},
    {"The Quadratic Formula", ReadQuadraticEquation},
    {"Adding Fractions", ReadSumOfFractions},
    {"Blank Lesson", ReadArithmetic},
});

}  // namespace

Judge JudgeOf(const std::string& title) {
  const std::string key = course::UpperCase(title);
  const auto row = std::ranges::find_if(kJudges, [&](const JudgeRow& candidate) {
    return course::UpperCase(std::string(candidate.title)) == key;
  });
  return row == kJudges.end() ? nullptr : row->judge;
}

}  // namespace lesson_check
