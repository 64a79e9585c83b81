// Compares what the figures of a page show with what is judged.
#pragma once

#include <string>
#include <vector>

#include "lesson_check/judge.h"
#include "lesson_check/pages/page_text.h"

namespace lesson_check {

// Whether the problem's page shows problem.figure, one thing after the other and with its labels.
// "" when it does.
std::string FigureFault(const PageText& page, const course::Problem& problem);

// What an explanation shows must be judged: no other ray, segment or line than those of the problem
// and of atEnd, no point but those and others of a judged line.  Its last page shows atEnd.
std::vector<std::string> FigureFaultsOfExplanation(const std::vector<PageText>& pages,
                                                   const course::Problem& problem,
                                                   const std::vector<course::FigureItem>& atEnd);

}  // namespace lesson_check
