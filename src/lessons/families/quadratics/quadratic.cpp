#include "lessons/families/quadratics/quadratic.h"

#include <cstdlib>
#include <numeric>

#include "mathkit/expressions.h"
#include "mathkit/tutor_codes.h"
#include "platform/stop.h"

namespace course::quadratics {
namespace {

std::string SpacedSign(int n) {
  return n < 0 ? "- " : "+ ";
}

// With a blank in front when there is a term.
std::string Spaced(const std::string& term) {
  return term.empty() ? "" : " " + term;
}

}  // namespace

std::string SquareTerm(int a) {
  return CoefText(a) + "x^2^";
}

std::string LinearTerm(int b) {
  return b == 0 ? "" : SpacedSign(b) + CoefText(std::abs(b)) + "x";
}

std::string ConstantTerm(int c) {
  return c == 0 ? "" : SpacedSign(c) + NumStr(std::abs(c));
}

std::string EquationText(const Quadratic& q) {
  return SquareTerm(q.a) + Spaced(LinearTerm(q.b)) + Spaced(ConstantTerm(q.c)) + " = 0";
}

Fraction RootPair::Smaller() const {
  return Reduced(centre - spread.outside, den);
}

Fraction RootPair::Larger() const {
  return Reduced(centre + spread.outside, den);
}

std::optional<RootPair> RootsOf(int centre, int radicand, int den) {
  if (den == 0) platform::Stop("RootsOf: a denominator of 0");
  if (radicand < 0) return {};
  Radical spread = RootOf(radicand);
  const int common = std::gcd(std::gcd(centre, spread.outside), den) * (den < 0 ? -1 : 1);
  // Both signs of the spread occur, so its own one stays positive.
  spread.outside /= std::abs(common);
  return RootPair{centre / common, spread, den / common};
}

std::string RootsText(const std::optional<RootPair>& roots) {
  if (!roots) return kNoRealRoots;
  if (roots->Double()) return ValueText(roots->Larger());
  if (roots->Rational()) return ValueText(roots->Smaller()) + " or " + ValueText(roots->Larger());
  const std::string over = roots->den == 1 ? "" : "/" + NumStr(roots->den);
  const std::string radical = RadicalText(roots->spread);
  if (roots->centre == 0) return tutor::PlusOrMinus + radical + over;
  const std::string sum = NumStr(roots->centre) + " " + tutor::PlusOrMinus + " " + radical;
  return over.empty() ? sum : "(" + sum + ")" + over;
}

}  // namespace course::quadratics
