#include "engine/choices.h"

#include "mathkit/tutor_codes.h"
#include "session/session.h"

namespace course {
namespace {

// An answer is not broken at the end of a line, unless it is a sentence.
std::string OnOneLine(std::string text) {
  constexpr std::size_t kLongest = 26;  // cells, behind "The answer is "
  return text.size() <= kLongest ? WithoutBreaks(std::move(text)) : text;
}

}  // namespace

void HideRight(Problem& problem) {
  if (!HasNoneOfTheAbove(problem.kind) || problem.correct != 1 || problem.choices[5].text.empty())
    platform::Stop("HideRight: slot " + std::to_string(problem.correct) + " of kind " +
                   std::to_string(problem.kind) + " cannot change places with \"" +
                   problem.choices[5].text + "\"");
  std::swap(problem.choices[1], problem.choices[5]);
  problem.correct = 5;
}

void HideRightAtTimes(Problem& problem, RandomStream& random, double share) {
  if (random.Rnd() < share) HideRight(problem);
}

bool RightIsHidden(const Problem& problem) {
  return problem.correct == 5 && HasNoneOfTheAbove(problem.kind);
}

bool BoxesStood() {
  return session.gMode == mode::Explanation || session.gMode == mode::LessonTestExplanation ||
         session.gMode == mode::UnitTestExplanation;
}

bool EndsAtNone(const Problem& problem) {
  return RightIsHidden(problem) && BoxesStood();
}

std::string RightText(const Problem& problem) {
  return problem.choices.at(static_cast<std::size_t>(problem.correct)).text;
}

std::string ConclusionText(const Problem& problem, char colour) {
  const std::string start = std::string("\\") + colour;
  const std::string right = RightText(problem);
  const std::string answer =
      "The answer is " + start + OnOneLine(right) + (right.ends_with('.') ? R"(\z)" : R"(\z.)");
  if (!EndsAtNone(problem)) return answer;
  return answer + "  It is not among the choices, so the right one is " + start + kNoneOfTheAbove +
         R"(\z.)";
}

}  // namespace course
