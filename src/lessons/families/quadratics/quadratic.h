// A quadratic equation with whole coefficients, its two roots exactly, and how both are written.
#pragma once

#include <optional>
#include <string>

#include "mathkit/fraction.h"
#include "mathkit/square_roots.h"

namespace course::quadratics {

struct Quadratic {
  int a = 1;  // not 0
  int b = 0;
  int c = 0;
  int Discriminant() const { return b * b - 4 * a * c; }
};

// "2x^2^", "-x^2^" for the first term; "- 4x", "+ 3" for the later ones, "" for a zero.
std::string SquareTerm(int a);
std::string LinearTerm(int b);
std::string ConstantTerm(int c);
// "2x^2^ - 4x - 3 = 0"; a zero term is left out.
std::string EquationText(const Quadratic& q);

// (centre + spread)/den and (centre - spread)/den in lowest terms, den positive: the same two roots
// always have the same three.
struct RootPair {
  int centre = 0;
  Radical spread;
  int den = 1;
  bool Rational() const { return spread.Whole(); }
  bool Double() const { return spread.outside == 0; }
  Fraction Smaller() const;  // of rational roots
  Fraction Larger() const;
  bool operator==(const RootPair&) const = default;
};
// The roots with the square root of radicand as spread; nothing when it is negative.  den of either
// sign, not 0.
std::optional<RootPair> RootsOf(int centre, int radicand, int den);

inline constexpr const char* kNoRealRoots = "No real roots";
// On one line, both roots: "-1/2 or 3", "(-3 +- v17)/4" with plus-or-minus and radical sign, "3"
// for a double root, "No real roots".
std::string RootsText(const std::optional<RootPair>& roots);

}  // namespace course::quadratics
