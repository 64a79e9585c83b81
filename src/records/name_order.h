// Names as people order and compare them: case aside.
#pragma once

#include <string>
#include <vector>

namespace course {

// Latin-1, accented letters included.
std::string NameInUpperCase(std::string name);

// The items of a list of names in alphabetical order; those of equal names keep the order of what
// stands behind the name.
std::vector<std::string> InAlphabeticalOrder(std::vector<std::string> items);

}  // namespace course
