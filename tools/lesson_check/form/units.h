// Quantities in a text: whether unit, number and sign fit together.
#pragma once

#include <string>
#include <vector>

namespace lesson_check {

// Faults of one text, as complaints about it: "1 hours", "2 minute", "-3 hours", "0 minutes", 90
// minutes beside hours.
std::vector<std::string> UnitFaults(const std::string& text);

// Faults of the choices among each other: one of them in another kind of unit than the others, or
// 60 minutes and more where another counts hours.
std::vector<std::string> UnitFaultsAmong(const std::vector<std::string>& choices);

}  // namespace lesson_check
