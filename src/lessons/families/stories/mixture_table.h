// The mixture table, for any substance: percent, quantity and amount of the original, the additive
// and the final mixture.
#pragma once

#include <string>

#include "platform/geometry.h"

namespace course::stories {

enum class MixtureRow { Original = 1, Additive, Final };

inline constexpr double kMixtureTableRows = 8;  // its height

// Empty, from a row of the lesson screen on.
void ShowMixtureTable(double row, const std::string& substance);
// Prints into the cells of a row, in place of what stands there; "" leaves a cell as it is.
void FillMixture(MixtureRow row, const std::string& percent, const std::string& quantity,
                 const std::string& amount, platform::Colour colour = platform::colour::Black);

}  // namespace course::stories
