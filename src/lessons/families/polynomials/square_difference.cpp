#include "lessons/families/polynomials/square_difference.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "mathkit/expressions.h"
#include "mathkit/integers.h"
#include "mathkit/tutor_codes.h"

namespace course::polynomials {
namespace {

constexpr int kLargestValue = 8;
constexpr int kLargestOfFourthPowers = 3;  // the fourth power of 4 is 256 already
constexpr int kLargestCoefficient = 300;
constexpr std::string_view kCommonFactors = " 2 3 5 71113";  // two characters each

int DrawCommonFactor(RandomStream& random) {
  const int at = (random.Index(static_cast<int>(kCommonFactors.size()) / 2) - 1) * 2;
  return std::stoi(std::string(kCommonFactors.substr(static_cast<std::size_t>(at), 2)));
}

// Equal values can be exchanged without a mistake; values with a common factor would leave it in
// the factors; and large numbers take time that the lesson is not about.
bool IsAdmitted(const SquareDifference& drawn) {
  if (drawn.a == drawn.b || Gcf(drawn.a, drawn.b) > 1) return false;
  const int larger = std::max(drawn.a, drawn.b);
  if (drawn.form == DifferenceForm::FourthPowers) return larger <= kLargestOfFourthPowers;
  return drawn.common * larger * larger <= kLargestCoefficient;
}

}  // namespace

// --- Texts ---------------------------------------------------------------------------------------

std::string PowerTerm(int coefficient, const std::string& letter, int exponent) {
  return CoefText(coefficient) + letter + ExponentText(exponent);
}

std::string FactorOf(const std::string& term, int number) {
  return "(" + term + tutor::Gap + SignedNumberText(number) + ")";
}

std::string SquareDifference::Asked() const {
  const int degree = form == DifferenceForm::FourthPowers ? 4 : 2;
  const int coefficient = form == DifferenceForm::FourthPowers ? a * a * a * a : common * a * a;
  return PowerTerm(coefficient, letter, degree) + tutor::Gap +
         SignedNumberText(-common * LastSquare());
}

std::string SquareDifference::WithoutCommon() const {
  return FirstSquare() + tutor::Gap + SignedNumberText(-LastSquare());
}

std::string SquareDifference::FirstSquare() const {
  return form == DifferenceForm::FourthPowers ? PowerTerm(a * a * a * a, letter, 4)
                                              : PowerTerm(a * a, letter, 2);
}

std::string SquareDifference::FirstRoot() const {
  return form == DifferenceForm::FourthPowers ? PowerTerm(a * a, letter, 2)
                                              : PowerTerm(a, letter, 1);
}

int SquareDifference::LastRoot() const {
  return form == DifferenceForm::FourthPowers ? b * b : b;
}

std::string SquareDifference::SumTimesDifference() const {
  return FactorOf(FirstRoot(), LastRoot()) + FactorOf(FirstRoot(), -LastRoot());
}

std::string SquareDifference::Factored() const {
  if (form == DifferenceForm::FourthPowers)
    return FactorOf(FirstRoot(), LastRoot()) + Inner().SumTimesDifference();
  return CoefText(common) + SumTimesDifference();
}

SquareDifference SquareDifference::Inner() const {
  SquareDifference inner = *this;
  inner.form = DifferenceForm::Bare;
  return inner;
}

// --- The draw ------------------------------------------------------------------------------------

// Two in five are bare, two have a common factor.
SquareDifference DrawSquareDifference(RandomStream& random) {
  constexpr std::array kForms = {DifferenceForm::Bare, DifferenceForm::Bare,
                                 DifferenceForm::CommonFactor, DifferenceForm::CommonFactor,
                                 DifferenceForm::FourthPowers};
  SquareDifference drawn;
  drawn.form = kForms[static_cast<std::size_t>(random.Rand(0, 4))];
  drawn.letter = random.OneOf(kVariableLettersWithoutAB);
  do {
    if (drawn.form == DifferenceForm::CommonFactor) drawn.common = DrawCommonFactor(random);
    drawn.a = random.Rand(1, kLargestValue);
    drawn.b = random.Rand(1, kLargestValue);
  } while (!IsAdmitted(drawn));  // of fourth powers one draw in eleven is
  return drawn;
}

// --- Wrong choices -------------------------------------------------------------------------------

namespace {

// Both factors with the same sign: a wrong choice beside the right one and beside another wrong
// one, so that neither is the box most like the others.
struct SameSigns {
  int sign;
  std::string mistake;
};

SameSigns DrawSameSigns(RandomStream& random) {
  if (random.Rnd() < 0.5) return {1, "writes two plus signs"};
  return {-1, "takes it for the square of a difference"};
}

// A first term and a number, as they stand in both factors, and the mistake that leads to them.
struct Terms {
  std::string mistake;
  std::string before;  // the parentheses
  std::string first;
  int last;

  WrongFactors Mixed() const {
    return {mistake, before + FactorOf(first, last) + FactorOf(first, -last)};
  }
  WrongFactors With(const SameSigns& signs) const {
    const std::string factor = FactorOf(first, signs.sign * last);
    return {mistake.empty() ? signs.mistake : mistake + " and " + signs.mistake,
            before + factor + factor};
  }
};

Terms RightTerms(const SquareDifference& asked) {
  return {"", CoefText(asked.common), asked.FirstRoot(), asked.LastRoot()};
}

Terms TermsWithoutRoots(const SquareDifference& asked) {
  return {"forgets to take the square roots", CoefText(asked.common),
          PowerTerm(asked.a * asked.a, asked.letter, 1), asked.LastSquare()};
}

// One of the squares is 1, which stays, and the other one is even.  Half of 4 is its root.
bool CanBeHalved(const SquareDifference& asked) {
  const int larger = std::max(asked.a, asked.b);
  return asked.a * asked.b == larger && larger % 2 == 0 && larger > 2;
}
int Halved(int square) {
  return square == 1 ? 1 : square / 2;
}

// Exchanged numbers and, at times, halved ones beside those without roots, in any order.
std::vector<Terms> WrongTermsOfBare(const SquareDifference& asked, RandomStream& random) {
  Terms other = {"exchanges the two numbers", "", PowerTerm(asked.b, asked.letter, 1), asked.a};
  if (CanBeHalved(asked) && random.Rnd() < 0.5)
    other = {"takes half in place of the square root", "",
             PowerTerm(Halved(asked.a * asked.a), asked.letter, 1), Halved(asked.LastSquare())};
  std::vector<Terms> terms = {TermsWithoutRoots(asked), other};
  if (random.Rnd() < 0.5) std::swap(terms[0], terms[1]);
  return terms;
}

std::vector<WrongFactors> WrongFactoringsOfBare(const SquareDifference& asked,
                                                RandomStream& random) {
  const SameSigns same = DrawSameSigns(random);
  const std::vector<Terms> terms = WrongTermsOfBare(asked, random);
  const bool mixed = random.Rnd() < 0.5;
  return {RightTerms(asked).With(same), terms[0].Mixed(), terms[0].With(same),
          mixed ? terms[1].Mixed() : terms[1].With(same)};
}

// The common factor stays in one of the two factors.
WrongFactors CommonFactorInside(const SquareDifference& asked, bool inSum) {
  const auto factor = [&](int times, int sign) {
    return FactorOf(PowerTerm(times * asked.a, asked.letter, 1), sign * times * asked.b);
  };
  return {"leaves the common factor inside",
          factor(inSum ? asked.common : 1, 1) + factor(inSum ? 1 : asked.common, -1)};
}

std::vector<WrongFactors> WrongFactoringsWithCommonFactor(const SquareDifference& asked,
                                                          RandomStream& random) {
  const SameSigns same = DrawSameSigns(random);
  Terms terms = TermsWithoutRoots(asked);
  if (random.Rnd() < 0.6) {
    terms = RightTerms(asked);
    terms.mistake = "forgets the common factor";
    terms.before = "";
  }
  return {RightTerms(asked).With(same), terms.Mixed(), terms.With(same),
          CommonFactorInside(asked, random.Rnd() < 0.5)};
}

std::vector<WrongFactors> WrongFactoringsOfFourthPowers(const SquareDifference& asked,
                                                        RandomStream& random) {
  const SquareDifference inner = asked.Inner();
  const std::string sum = FactorOf(asked.FirstRoot(), asked.LastRoot());
  const std::string squaredSum = FactorOf(inner.FirstRoot(), inner.b) + "^2^";
  const std::string squaredDifference = FactorOf(inner.FirstRoot(), -inner.b) + "^2^";
  const SameSigns same = DrawSameSigns(random);
  const Terms terms = RightTerms(inner);
  Terms withSum = terms;
  withSum.before = sum;
  Terms withoutSum = terms;
  withoutSum.mistake = "forgets the sum of squares";
  const bool mixed = random.Rnd() < 0.5;
  return {{"leaves a difference of squares inside", asked.SumTimesDifference()},
          {"takes a sum of squares for a difference", squaredSum + squaredDifference},
          withSum.With(same),
          mixed ? withoutSum.Mixed() : withoutSum.With(same)};
}

}  // namespace

std::vector<WrongFactors> WrongFactorings(const SquareDifference& asked, RandomStream& random) {
  switch (asked.form) {
    case DifferenceForm::CommonFactor:
      return WrongFactoringsWithCommonFactor(asked, random);
    case DifferenceForm::FourthPowers:
      return WrongFactoringsOfFourthPowers(asked, random);
    default:
      return WrongFactoringsOfBare(asked, random);
  }
}

}  // namespace course::polynomials
