// Products of whole numbers as lists of their factors, in ascending order, and as powers: what the
// lessons on prime factors calculate with.
#pragma once

#include <string>
#include <vector>

namespace course::factoring {

// Ascending, with repetition: {2, 2, 2, 3, 5} is a factorization of 120.
using FactorList = std::vector<int>;

int ProductOf(const FactorList& factors);
int CountOf(const FactorList& factors, int factor);
// Each number once.
FactorList Different(const FactorList& factors);
FactorList WithFactor(const FactorList& factors, int factor);
// One of the factors fewer; there is one.
FactorList WithoutFactor(const FactorList& factors, int factor);
// Two of the factors multiplied.
FactorList Merged(const FactorList& factors, int first, int second);

// "2^3^ x 3 x 5", with multiplication signs.
std::string PowersText(const FactorList& factors);

bool IsPrime(int number);

}  // namespace course::factoring
