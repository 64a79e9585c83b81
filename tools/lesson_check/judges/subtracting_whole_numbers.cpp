// What is asked in "...", and how it is worked out here.
#include "lesson_check/exact/unreadable.h"
#include "lesson_check/judge.h"

namespace lesson_check {
namespace {

Reading ReadSubtractingWholeNumbers(const course::Problem& problem) {
  throw Unreadable("the judge of \"" + problem.question.front() + "\" is not written yet");
}

const JudgeRegistration kRegistration(ReadSubtractingWholeNumbers, {"Subtracting Whole Numbers"});

}  // namespace
}  // namespace lesson_check
