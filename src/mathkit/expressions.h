// How a number or a term becomes a printed string.
//
// An expression is joined from left to right: CoefText for the first term, SignedCoefText in front
// of a later letter.  A constant behind a term is tutor::Gap + SignedNumberText, because
// SignedCoefText has no digit for 1 and no sign for 0.
#pragma once

#include <string>

namespace course {

// Plain decimal text with up to 15 significant digits: 5 is "5", -5 "-5", 0.5 ".5", -0.5 "-.5", 0
// "0". From 10^21 up and below 10^-15 with an exponent: "2E+21".  What is no number stops the
// program.
std::string NumStr(double x);
// A coefficient at the head of an expression: "" for 1, "-" for -1, "0" for 0.
std::string CoefText(double c);
// A signed coefficient inside an expression, its sign between two gaps; no digit for 1 and -1; for
// 0 a "0" and a gap without a sign.
std::string SignedCoefText(double c);
// A signed constant: sign, gap, digits.  No gap in front.
std::string SignedNumberText(double n);
// A number as a factor or a base: a negative one in parentheses.
std::string InParentheses(int n);
// On one line, reduced, with sign: "-3/4".  "undefined" when either part is 0.
std::string FractionText(int n, int d);
// "n/d" of two texts, as they stand.
std::string FractionOfTexts(const std::string& n, const std::string& d);
// A value as whole number, fraction or mixed number with a denominator up to 18; its decimal text
// when none fits.  A whole part of 0 is left out and the sign stands before the fraction.
std::string MixedNumberText(double value);
// Dollars: "$12.00".  More than two decimals are not cut.
std::string MoneyText(double x);
// "" for 1, "s" otherwise.
std::string PluralSuffix(double n);
// "^n^", an exponent in an expression; "" for 1.
std::string ExponentText(int n);

}  // namespace course
