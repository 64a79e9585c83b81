#include "lessons/families/polynomials/square_difference.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "lessons/page/say.h"
#include "mathkit/expressions.h"
#include "mathkit/integers.h"
#include "mathkit/tutor_codes.h"

namespace course::polynomials {
namespace {

using page::Text;

constexpr int kLargestValue = 8;
constexpr int kLargestOfFourthPowers = 3;  // the fourth power of 4 is 256 already
constexpr int kLargestCoefficient = 300;
constexpr std::string_view kCommonFactors = " 2 3 5 71113";  // two characters each

int DrawCommonFactor(RandomStream& random) {
  const int at = (random.Index(static_cast<int>(kCommonFactors.size()) / 2) - 1) * 2;
  return std::stoi(std::string(kCommonFactors.substr(static_cast<std::size_t>(at), 2)));
}

// Equal values can be exchanged without a mistake; values with a common factor leave it in the
// factors, which is what one form is about; and large numbers take time that the lesson is not
// about.
bool IsAdmitted(const SquareDifference& drawn) {
  if (drawn.a == drawn.b) return false;
  const bool isCommon = Gcf(drawn.a, drawn.b) > 1;
  if (isCommon != (drawn.form == DifferenceForm::CommonSquare)) return false;
  if (isCommon) return true;
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
    return FactorOf(FirstRoot(), LastRoot()) + Bared().SumTimesDifference();
  return CoefText(common) + SumTimesDifference();
}

SquareDifference SquareDifference::Bared() const {
  SquareDifference inner = *this;
  inner.form = DifferenceForm::Bare;
  inner.common = 1;
  return inner;
}

// --- The draw ------------------------------------------------------------------------------------

// Of ten, four are bare, three have a prime in common, one a square, and two are fourth powers.
SquareDifference DrawSquareDifference(RandomStream& random) {
  using enum DifferenceForm;
  constexpr std::array kForms = {Bare,         Bare,         Bare,         Bare,
                                 CommonFactor, CommonFactor, CommonFactor, CommonSquare,
                                 FourthPowers, FourthPowers};
  SquareDifference drawn;
  drawn.form = kForms[static_cast<std::size_t>(random.Rand(0, 9))];
  drawn.letter = random.OneOf(kVariableLettersWithoutAB);
  do {
    if (drawn.form == CommonFactor) drawn.common = DrawCommonFactor(random);
    drawn.a = random.Rand(1, kLargestValue);
    drawn.b = random.Rand(1, kLargestValue);
  } while (!IsAdmitted(drawn));  // of fourth powers one draw in eleven is
  if (drawn.form == CommonSquare) {
    drawn.commonRoot = Gcf(drawn.a, drawn.b);
    drawn.common = drawn.commonRoot * drawn.commonRoot;
    drawn.a /= drawn.commonRoot;
    drawn.b /= drawn.commonRoot;
  }
  return drawn;
}

// --- Wrong choices: each is one slip -------------------------------------------------------------

namespace {

// With these shares the right choice is seldom the box most like the others.
constexpr double kShareOfNear = 0.85;
constexpr double kShareOfBothInside = 0.8;

// "7(2x + 5)(2x - 5)", the number only when it is not 1.
std::string Mixed(int before, const std::string& first, int last) {
  return CoefText(before) + FactorOf(first, last) + FactorOf(first, -last);
}

std::string Twice(const std::string& before, const std::string& factor) {
  return before + factor + factor;
}

// Both factors with the same sign, behind what stands before them.
WrongFactors SameSigns(const std::string& before, const SquareDifference& inner,
                       RandomStream& random) {
  if (random.Rnd() < 0.5)
    return {"writes two plus signs", Twice(before, FactorOf(inner.FirstRoot(), inner.LastRoot()))};
  return {"writes two minus signs", Twice(before, FactorOf(inner.FirstRoot(), -inner.LastRoot()))};
}

// The two terms, and the numbers whose squares stand there.
enum class Side { First, Second };

std::vector<Side> SidesWithRoots(const SquareDifference& asked) {
  if (asked.a == 1) return {Side::Second};
  if (asked.b == 1) return {Side::First};
  return {Side::First, Side::Second};
}

int RootOf(const SquareDifference& asked, Side side) {
  return side == Side::First ? asked.a : asked.b;
}

// Another number in place of one of the roots.
std::string WithNumber(const SquareDifference& asked, Side side, int number) {
  if (side == Side::First) return Mixed(asked.common, PowerTerm(number, asked.letter, 1), asked.b);
  return Mixed(asked.common, asked.FirstRoot(), number);
}

WrongFactors ForgottenRoot(const SquareDifference& asked, Side side) {
  const int root = RootOf(asked, side);
  return {side == Side::First ? "forgets the square root of the first number"
                              : "forgets the square root of the second number",
          WithNumber(asked, side, root * root)};
}

WrongFactors ForgottenRoots(const SquareDifference& asked) {
  return {"forgets both square roots",
          Mixed(asked.common, PowerTerm(asked.a * asked.a, asked.letter, 1), asked.LastSquare())};
}

WrongFactors HalvedSquare(const SquareDifference& asked, Side side) {
  const int square = RootOf(asked, side) * RootOf(asked, side);
  return {Text("takes half of {} in place of its square root", square),
          WithNumber(asked, side, square / 2)};
}

// Half of 4 is its root, and of 1 nobody takes half.
bool CanBeHalved(int root) {
  return root % 2 == 0 && root > 2;
}

// Factors whose first and last products are right, but not the middle term: (25x + 2)(x - 2).
WrongFactors SplitSquare(const SquareDifference& asked, Side side) {
  const int square = RootOf(asked, side) * RootOf(asked, side);
  const std::string factors =
      side == Side::First
          ? FactorOf(PowerTerm(square, asked.letter, 1), asked.b) + FactorOf(asked.letter, -asked.b)
          : FactorOf(asked.FirstRoot(), square) + FactorOf(asked.FirstRoot(), -1);
  return {Text("splits {} into {} and 1", square, square), factors};
}

// So many of them, in any order.
std::vector<WrongFactors> AnyOf(std::vector<WrongFactors> wrong, std::size_t count,
                                RandomStream& random) {
  for (std::size_t i = 0; i < count; ++i) {
    const int other = random.Rand(static_cast<int>(i), static_cast<int>(wrong.size()) - 1);
    std::swap(wrong[i], wrong[static_cast<std::size_t>(other)]);
  }
  wrong.resize(count);
  return wrong;
}

void Append(std::vector<WrongFactors>& wrong, const std::vector<WrongFactors>& more) {
  wrong.insert(wrong.end(), more.begin(), more.end());
}

// Three that lie around the first of them, and then any other.
std::vector<WrongFactors> WrongFactoringsOfBare(const SquareDifference& asked,
                                                RandomStream& random) {
  std::vector<Side> sides = SidesWithRoots(asked);
  if (random.Rnd() < 0.5) std::ranges::reverse(sides);
  const WrongFactors exchanged = {"exchanges the two numbers",
                                  Mixed(1, PowerTerm(asked.b, asked.letter, 1), asked.a)};
  std::vector<WrongFactors> near = {ForgottenRoot(asked, sides[0]), SplitSquare(asked, sides[0])};
  std::vector<WrongFactors> others = {SameSigns("", asked, random)};
  near.push_back(sides.size() == 2 ? ForgottenRoots(asked) : exchanged);
  if (sides.size() == 2)
    Append(others, {exchanged, ForgottenRoot(asked, sides[1]), SplitSquare(asked, sides[1])});
  for (const Side side : sides)
    if (CanBeHalved(RootOf(asked, side))) others.push_back(HalvedSquare(asked, side));
  if (random.Rnd() < kShareOfNear) {
    Append(near, AnyOf(others, 1, random));
    return near;
  }
  Append(others, near);
  return AnyOf(others, 4, random);
}

// "3(49x^2^ - 16)", which can be factored again.
std::string Unfinished(const SquareDifference& asked) {
  return NumStr(asked.common) + "(" + asked.WithoutCommon() + ")";
}

// The common factor stays in one of the two factors.
std::vector<WrongFactors> CommonFactorInside(const SquareDifference& asked) {
  const std::string times = PowerTerm(asked.common * asked.a, asked.letter, 1);
  const int number = asked.common * asked.b;
  return {{"leaves the common factor in the first factor",
           FactorOf(times, number) + FactorOf(asked.FirstRoot(), -asked.b)},
          {"leaves the common factor in the second factor",
           FactorOf(asked.FirstRoot(), asked.b) + FactorOf(times, -number)}};
}

std::vector<WrongFactors> WrongFactoringsWithCommonFactor(const SquareDifference& asked,
                                                          RandomStream& random) {
  std::vector<WrongFactors> wrong = {
      {"forgets the common factor", Mixed(1, asked.FirstRoot(), asked.b)}};
  if (random.Rnd() < kShareOfBothInside) {
    Append(wrong, CommonFactorInside(asked));
  } else {
    Append(wrong, AnyOf(CommonFactorInside(asked), 1, random));
    const std::vector<Side> sides = SidesWithRoots(asked);
    std::vector<WrongFactors> forgotten = {ForgottenRoot(asked, sides.front())};
    if (sides.size() == 2)
      Append(forgotten, {ForgottenRoot(asked, sides.back()), ForgottenRoots(asked)});
    Append(wrong, AnyOf(forgotten, 1, random));
  }
  if (random.Rnd() < 0.5)
    wrong.push_back(SameSigns(NumStr(asked.common), asked.Bared(), random));
  else
    wrong.push_back({"leaves a difference of squares inside", Unfinished(asked)});
  return wrong;
}

// Of 4x^2^ - 36, where the roots 2x and 6 can be taken without a look at the common factor.
std::vector<WrongFactors> WrongFactoringsWithCommonSquare(const SquareDifference& asked,
                                                          RandomStream& random) {
  const int times = asked.commonRoot;
  std::vector<WrongFactors> wrong = {
      {"leaves a common factor in both factors",
       Mixed(1, PowerTerm(times * asked.a, asked.letter, 1), times * asked.b)},
      {"takes the common factor out of one factor only", Mixed(times, asked.FirstRoot(), asked.b)},
      {"forgets the common factor", Mixed(1, asked.FirstRoot(), asked.b)}};
  if (random.Rnd() < 0.5)
    wrong.push_back(SameSigns(NumStr(asked.common), asked.Bared(), random));
  else
    Append(wrong, AnyOf(CommonFactorInside(asked), 1, random));
  return wrong;
}

std::vector<WrongFactors> WrongFactoringsOfFourthPowers(const SquareDifference& asked,
                                                        RandomStream& random) {
  const SquareDifference inner = asked.Bared();
  const std::string sum = FactorOf(asked.FirstRoot(), asked.LastRoot());
  const WrongFactors same = SameSigns(sum, inner, random);
  const std::string again =
      Mixed(1, PowerTerm(inner.a * inner.a, inner.letter, 1), inner.b * inner.b);
  std::vector<WrongFactors> wrong = {
      {"leaves a difference of squares inside", asked.SumTimesDifference()},
      {"takes a sum of squares for a difference", FactorOf(inner.FirstRoot(), inner.b) + "^2^" +
                                                      FactorOf(inner.FirstRoot(), -inner.b) +
                                                      "^2^"},
      {"forgets the sum of squares", inner.SumTimesDifference()}};
  if (random.Rnd() < 0.5)
    wrong.push_back(same);
  else
    wrong.push_back({"forgets the square roots in the second step", sum + again});
  return wrong;
}

}  // namespace

std::vector<WrongFactors> WrongFactorings(const SquareDifference& asked, RandomStream& random) {
  switch (asked.form) {
    case DifferenceForm::CommonFactor:
      return WrongFactoringsWithCommonFactor(asked, random);
    case DifferenceForm::CommonSquare:
      return WrongFactoringsWithCommonSquare(asked, random);
    case DifferenceForm::FourthPowers:
      return WrongFactoringsOfFourthPowers(asked, random);
    default:
      return WrongFactoringsOfBare(asked, random);
  }
}

}  // namespace course::polynomials
