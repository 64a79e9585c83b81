// Figures in words, for a student who cannot see them.
#pragma once

#include <string>
#include <vector>

#include "display/figure_item.h"

namespace course {

// "a ray from -3, the point left out, to the right".  A line is told by two of its points, since
// its slope may be what is asked for.
std::string WordsOf(const FigureItem& item);
// One item a line.
std::string WordsOf(const std::vector<FigureItem>& items);

}  // namespace course
