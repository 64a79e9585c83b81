// Two fractions with different denominators that are added or subtracted: how they are drawn, and
// the steps of an explanation, which are the same for both.
#pragma once

#include <string>

#include "mathkit/fraction.h"
#include "mathkit/random_stream.h"

namespace course::fractions {

enum class Operation { Add, Subtract };

struct UnlikeFractions {
  Operation operation = Operation::Add;
  Fraction first;   // proper, positive
  Fraction second;  // proper, of either sign

  // Their least common denominator, and the three numerators over it; the result's is not reduced.
  int Denominator() const;
  int FirstNumerator() const;
  int SecondNumerator() const;
  int ResultNumerator() const;
  Fraction Result() const;
  // "5/6 + (-3)/4"
  std::string Text() const;
  // "10/12 + (-9)/12"
  std::string RenamedText() const;
};

// Two kinds with equal chances.  The first has denominators up to 15 of which neither is a multiple
// of the other; in the second, with denominators up to 30, they also share a factor.  The result is
// always positive.  Of a subtraction the first fraction is the larger one, and the result, also of
// a negative fraction taken away, is below 1.
UnlikeFractions DrawUnlikeFractions(RandomStream& random, Operation operation);

// " 12 = 2 x 2 x 3": a number and its prime factors, those of the LCD in columns of their own.
std::string FactorsLine(int n, int lcd);
// "LCD = 2 x 2 x 3 x 3 = 36"
std::string LcdLine(int lcd);

// The pages of an explanation.  The first begins under the problem; the second on a new screen, as
// the third, which adds or subtracts nothing yet.
void ExplainDenominator(const UnlikeFractions& pair);
void ExplainRenaming(const UnlikeFractions& pair);
void ShowRenamed(const UnlikeFractions& pair);
void ExplainLowestTerms(const UnlikeFractions& pair);

}  // namespace course::fractions
