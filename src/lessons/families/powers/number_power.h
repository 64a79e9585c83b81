// Powers of whole numbers, as text and worked out.
#pragma once

#include <string>

namespace course::powers {

// The exponent is not negative; of 9 and below with a base up to 10 the value fits.
long long ValueOfPower(int base, int exponent);
// "2^5^", "(-3)^4^"; the exponent is written also when it is 1 or 0.
std::string PowerOf(int base, int exponent);
// "3 x 3 x 3"; negative factors stand side by side in their parentheses.  At least one factor.
std::string FactorsOf(int base, int exponent);

}  // namespace course::powers
