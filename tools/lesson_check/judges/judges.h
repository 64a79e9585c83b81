// The judges, one a family of questions, each in a file of its own.
#pragma once

#include "lesson_check/judge.h"

namespace lesson_check {

// "What is the value of 3(4 + 5)?": the expression in the question, worked out.
Reading ReadArithmetic(const course::Problem& problem);
// Which inequality describes the rays and segments of the figure.
Reading ReadIntervalFigure(const course::Problem& problem);

}  // namespace lesson_check
