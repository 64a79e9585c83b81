// What the lessons on fractions share: common denominators by prime factors, the lines in which a
// fraction is renamed, choices with built-up fractions, and strips cut into equal parts.
#pragma once

#include <string>
#include <vector>

#include "engine/problem.h"
#include "mathkit/fraction.h"
#include "mathkit/random_stream.h"
#include "platform/geometry.h"

namespace course::fractions {

// Prime factors of n in ascending order, with repetition; n from 2 on, its primes up to 97.
std::vector<int> PrimeFactorsOf(int n);
// "2 x 2 x 3", with multiplication signs.
std::string ProductText(const std::vector<int>& factors);
// The same with each factor in the column that it has in another product, of which all factors are
// taken; both ascend.
std::string AlignedProduct(const std::vector<int>& factors, const std::vector<int>& columns);
int LeastCommonDenominator(const Fraction& a, const Fraction& b);

// "15/36", as it stands.  The minus sign belongs to the numerator: "(-15)/36" is built up without
// the parentheses.
std::string OverText(int num, int den);
std::string OverText(const Fraction& f);
// "5 + 7", "5 + (-7)".
std::string SumText(int first, int second);
// "5/12 = (5 x 3)/(12 x 3) = 15/36", the factor in yellow.  den is a multiple of f.den.
std::string RenamedLine(const Fraction& f, int den);
int RenamedNumerator(const Fraction& f, int den);
// A yellow line through so many digits, from a cell on.
void StrikeOut(double row, double col, int digits);
// Shows "46/30 = (23 x 2)/(15 x 2) = 23/15" with the common factor, 2, struck out.
void ShowReduced(int num, int den, int common);

// A wrong answer and the mistake that leads to it.
struct FractionMistake {
  std::string name;
  int num;
  int den;
};
// Five shuffled choices, the right one first, written as mixed numbers.  A mistake that gives no
// positive number, or the value of another choice, is passed over; random neighbours of the right
// answer over the denominator den fill what stays free.
void FillFractionChoices(Problem& problem, const Fraction& right,
                         const std::vector<FractionMistake>& mistakes, int den,
                         RandomStream& random);

// A strip over wd columns from (row, col), one row high, cut into equal parts.  The first parts
// are filled with one colour, the next ones with another.
struct StripFill {
  int parts;
  platform::Colour colour;
};
void DrawStrip(double row, double col, double wd, int parts, const std::vector<StripFill>& fills);

}  // namespace course::fractions
