// What an author types to try a layout: told in place what the wrap would stop the program at.
#pragma once

#include <string>

namespace course {

// What is wrong with a paragraph that is to be wrapped into so many columns, as a sentence; "" when
// it can be printed.
std::string FaultOfTyped(const std::string& typed, int columns);

}  // namespace course
