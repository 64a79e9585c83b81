// A table of print cells with two rows: what belongs together stands in one column, such as the
// ages of two people from year to year.
#pragma once

#include <string>

namespace course::stories {

inline constexpr int kPairs = 4;

// Under all that stands on the page, or at a row; its cells are empty at first.
void ShowPairedRows(const std::string& above, const std::string& below, double row = 0,
                    int pairs = kPairs);
enum class WorkedOut { Nothing, Above, Below };  // in blue

// Fills column 1 to kPairs of such a table anew.
void FillPair(int column, const std::string& above, const std::string& below, int pairs = kPairs,
              WorkedOut workedOut = WorkedOut::Below);

}  // namespace course::stories
