// How a prime shows that it is a divisor: the tests of 2, 3 and 5 in words.
#pragma once

#include <string>

namespace course::factoring {

// "120 ends in 0, so 2 is a divisor.": why a prime divides a number, as a sentence.
std::string ReasonForDivisor(int number, int prime);
// "1 + 2 + 0 = 3".
std::string DigitSumText(int number);
// "  7   It's divisible only by 7 and 1."
std::string EndAtPrime(int prime);
// "2 fails, and 3 x 3 is too large.": why no further prime has to be tried; from 5 on.
std::string ReasonForPrime(int prime);

}  // namespace course::factoring
