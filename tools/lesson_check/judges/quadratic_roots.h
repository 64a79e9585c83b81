// A quadratic equation in a question, and its roots as choices print them: two numbers, one
// expression with plus or minus, one number, or none.
#pragma once

#include <string>
#include <vector>

#include "engine/problem.h"
#include "lesson_check/exact/polynomial.h"

namespace lesson_check {

inline constexpr const char* kNoRealRoots = "No real roots";

struct Quadratic {
  Rational a, b, c;
  Rational Discriminant() const { return b * b - 4 * a * c; }
};

// The only equation among the lines of the question, all its terms on one side.
Quadratic ReadQuadratic(const course::Problem& problem);

// Roots as a set, in a canonical order; the same root twice is one.
std::string TextOfRoots(const std::vector<Polynomial>& roots);
// (first plus or minus the root of under) over below.
std::string RootsText(const Rational& first, const Rational& under, const Rational& below);

// The roots that a choice names, in the same text.
std::string ValueOfRoots(const std::string& choice);
// A radicand that keeps a square factor, a fraction that keeps a common one; "" for none.
std::string FlawOfRoots(const std::string& choice);

}  // namespace lesson_check
