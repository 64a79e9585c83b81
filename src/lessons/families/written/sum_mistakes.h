// What the slips of written addition lead to.
#pragma once

#include <vector>

#include "lessons/families/written/whole_number_choices.h"

namespace course::written {

// The sum of the digits in a place, without a carry.
int ColumnOf(const std::vector<int>& addends, int place);
// Places of the longest addend.
int PlacesOf(const std::vector<int>& addends);
// Whether a carry goes to a column that has digits of its own.
bool CarriesInside(const std::vector<int>& addends);

std::vector<NumberMistake> SumMistakes(const std::vector<int>& addends);

}  // namespace course::written
