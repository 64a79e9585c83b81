// What a page refuses is an author's error: the program stops with the lesson's title.
#pragma once

#include <string>

namespace course::page {

[[noreturn]] void StopPage(const std::string& what);
// A row or column as it is told there, to a tenth.
std::string CellText(double value);

}  // namespace course::page
