#include "assessment/test_scores.h"

#include "mathkit/integers.h"

namespace course {
namespace {

std::string PercentText(int percent, int correct, int count) {
  return "Percent Correct: " + std::to_string(percent) + "% (" + std::to_string(correct) +
         " out of " + std::to_string(count) + ")";
}

}  // namespace

Session::AnswerLetters UnitTestLetters(int problem) {
  const auto& row = session.gChapterTestData.at(static_cast<std::size_t>(problem));
  return {row[unit_test_column::CorrectLetter], row[unit_test_column::StudentLetter]};
}

std::string LessonTestPercentText(int correct) {
  return PercentText(correct * 100 / kLessonTestProblems, correct, kLessonTestProblems);
}

std::string UnitTestPercentText(int correct, int count) {
  const double share = static_cast<double>(correct) / count;
  return " " + PercentText(static_cast<int>(RoundWhole(share * 100)), correct, count);
}

}  // namespace course
