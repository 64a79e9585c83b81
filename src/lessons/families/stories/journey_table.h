// The table of two vehicles: rate x time = distance, a row for A and a row for B.
#pragma once

#include <string>

#include "platform/geometry.h"

namespace course::stories {

enum class Journey { A = 1, B };

// Empty, from a row of the lesson screen on; vehicle is "Train".
void ShowJourneyTable(double row, const std::string& vehicle);
// Prints into the cells of a row, in place of what stands there; "" leaves a cell as it is.
void FillJourney(Journey row, const std::string& rate, const std::string& time,
                 const std::string& distance, platform::Colour colour = platform::colour::Black);

}  // namespace course::stories
