// What the results of a test say: letters, counts and percents, without a form.
#pragma once

#include <string>

#include "session/session.h"

namespace course {

// The letters of a graded problem of the unit test, from 1.
Session::AnswerLetters UnitTestLetters(int problem);

// The line under the results.  The percent of a unit test is rounded by RoundWhole.
std::string LessonTestPercentText(int correct);
std::string UnitTestPercentText(int correct, int count);

}  // namespace course
