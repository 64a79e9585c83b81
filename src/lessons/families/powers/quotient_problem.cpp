#include "lessons/families/powers/quotient_problem.h"

#include <array>
#include <string_view>
#include <utility>

#include "lessons/families/powers/quotient.h"
#include "mathkit/expressions.h"

namespace course::powers {
namespace {

// The letters of the forms, in their order.
constexpr std::array<std::string_view, 8> kLetters = {"", "b", "n", "k", "xy", "c", "pq", "t"};

constexpr const char* kAdds = "adds the exponents";
constexpr const char* kDivides = "divides the exponents";
constexpr const char* kWrongPart = "puts the power on the wrong side of the fraction bar";
constexpr const char* kTakesAsFactor =
    "subtracts the exponents, but then multiplies the result by the base";

std::string OneSide(int number, const std::vector<Power>& powers) {
  std::string text = CoefText(number);
  // An exponent of 0 is written.
  for (const Power& power : powers)
    if (!power.base.empty()) text += power.base + "^" + NumStr(power.exponent) + "^";
  return text;
}

}  // namespace

QuotientProblem DrawQuotient(RandomStream& random) {
  QuotientProblem quotient;
  quotient.form = static_cast<QuotientForm>(random.Rand(1, 7));
  const std::string_view letters = kLetters[static_cast<std::size_t>(quotient.form)];
  quotient.letter = letters.substr(0, 1);
  quotient.other = letters.substr(1);
  quotient.above = random.Rand(2, 9);
  do {
    quotient.below = random.Rand(2, 9);
  } while (quotient.below == quotient.above);  // equal ones are a form of their own
  const bool moreBelow =
      quotient.form == QuotientForm::MoreBelow || quotient.form == QuotientForm::NegativeAnswer;
  if (quotient.form == QuotientForm::AsMany) quotient.below = quotient.above;
  if (quotient.form == QuotientForm::TwoLetters) {
    quotient.otherAbove = random.Rand(2, 9);
    do {
      quotient.otherBelow = random.Rand(2, 9);
    } while (quotient.otherBelow == quotient.otherAbove);  // no letter cancels as a whole
  } else if (moreBelow != (quotient.below > quotient.above)) {
    std::swap(quotient.above, quotient.below);
  }
  if (quotient.form == QuotientForm::Numbers) {
    quotient.numberBelow = random.Rand(2, 9);
    quotient.numberAbove = quotient.numberBelow * random.Rand(2, 9);
  }
  return quotient;
}

std::string QuotientProblem::Expression() const {
  const bool otherIsBelow = otherBelow != 0;
  const std::string denominator =
      OneSide(numberBelow, {{letter, below}, {otherIsBelow ? other : "", otherBelow}});
  const bool single = numberBelow == 1 && !otherIsBelow;
  return FractionOfTexts(OneSide(numberAbove, {{letter, above}, {other, otherAbove}}),
                         single ? denominator : "(" + denominator + ")");
}

std::string QuotientProblem::Quotient(int number, int exponent) const {
  return QuotientText(number, {{letter, exponent}});
}

std::string QuotientProblem::Simplified() const {
  if (form == QuotientForm::NegativeAnswer) return PowerText({letter, Difference()});
  return QuotientText(Number(), {{letter, Difference()}, {other, otherAbove - otherBelow}});
}

QuotientMistake QuotientProblem::WrongOperation() const {
  if (above % below == 0) return {kDivides, Quotient(above / below)};
  return {kAdds, Quotient(above + below)};
}

std::vector<QuotientMistake> QuotientProblem::Mistakes(RandomStream& random) const {
  switch (form) {
    case QuotientForm::MoreAbove:
      return MistakesOfMoreAbove();
    case QuotientForm::MoreBelow:
      return MistakesOfMoreBelow();
    case QuotientForm::AsMany:
      return MistakesOfAsMany();
    case QuotientForm::TwoLetters:
      return MistakesOfTwoLetters();
    case QuotientForm::Numbers:
      return MistakesOfNumbers(random);
    case QuotientForm::ZeroExponent:
      return MistakesOfZeroExponent(random);
    default:
      return MistakesOfNegativeAnswer(random);
  }
}

std::vector<QuotientMistake> QuotientProblem::MistakesOfMoreAbove() const {
  const QuotientMistake operation = WrongOperation();
  return {{kTakesAsFactor, Quotient(Difference(), 1)},
          operation,
          {kWrongPart, Quotient(-Difference())},
          {kAdds, Quotient(above + below)},
          {"multiplies the exponents", Quotient(above * below)},
          {"keeps the exponent above the bar", Quotient(above)}};
}

// The right one and the first three are two mistakes, made or not made.
std::vector<QuotientMistake> QuotientProblem::MistakesOfMoreBelow() const {
  std::vector<QuotientMistake> mistakes = {
      {kWrongPart, Quotient(-Difference())},
      {kAdds, Quotient(above + below)},
      {"adds the exponents and keeps the power below the bar", Quotient(-above - below)}};
  // With 1 factor left there is nothing to multiply by.
  if (Difference() != -1)
    mistakes.push_back(
        {kTakesAsFactor, FractionOfTexts("1", "(" + NumStr(-Difference()) + letter + ")")});
  mistakes.push_back({"keeps the exponent below the bar", Quotient(-below)});
  return mistakes;
}

std::vector<QuotientMistake> QuotientProblem::MistakesOfAsMany() const {
  return {{"takes " + letter + "^0^ for 0", "0"},
          {"takes " + letter + "^0^ for " + letter, letter},
          {kAdds, Quotient(above + below)},
          {"keeps the exponent above the bar", Quotient(above)}};
}

// The right one and the first three are two mistakes, made or not made.
std::vector<QuotientMistake> QuotientProblem::MistakesOfTwoLetters() const {
  const int first = Difference();
  const int second = otherAbove - otherBelow;
  const auto quotient = [&](int exponent, int otherExponent) {
    return QuotientText(1, {{letter, exponent}, {other, otherExponent}});
  };
  return {{"puts the first letter on the wrong side of the bar", quotient(-first, second)},
          {"puts the second letter on the wrong side of the bar", quotient(first, -second)},
          {"puts both letters on the wrong side of the bar", quotient(-first, -second)},
          {kAdds, quotient(above + below, otherAbove + otherBelow)}};
}

// The fifth is now like the right one, now like those that subtract the numbers.
std::vector<QuotientMistake> QuotientProblem::MistakesOfNumbers(RandomStream& random) const {
  const int difference = numberAbove - numberBelow;
  const bool divides = above % below == 0;
  const int exponent = divides ? above / below : above + below;
  return {{"subtracts the numbers in front", Quotient(difference, Difference())},
          {divides ? kDivides : kAdds, Quotient(exponent)},
          {divides ? "subtracts the numbers in front and divides the exponents"
                   : "subtracts the numbers in front and adds the exponents",
           Quotient(difference, exponent)},
          random.Rand(1, 2) == 1
              ? QuotientMistake{kWrongPart, Quotient(-Difference())}
              : QuotientMistake{"subtracts the numbers in front and keeps the first exponent",
                                Quotient(difference, above)},
          {kTakesAsFactor, Quotient(Number() * Difference(), 1)},
          {kAdds, Quotient(above + below)},
          {"keeps the exponent above the bar", Quotient(above)}};
}

std::vector<QuotientMistake> QuotientProblem::MistakesOfZeroExponent(RandomStream& random) const {
  const auto withOther = [&](int exponent) {
    return QuotientText(1, {{letter, exponent}, {other, 1}});
  };
  const std::string takesForOne = "takes " + other + "^0^ for " + other;
  return {{"takes " + other + "^0^ for 0", "0"},
          {takesForOne, withOther(Difference())},
          random.Rand(1, 2) == 1
              ? QuotientMistake{kAdds, Quotient(above + below)}
              : QuotientMistake{"keeps the first exponent and " + takesForOne, withOther(above)},
          {"adds the exponents and " + takesForOne, withOther(above + below)}};
}

// Now the minus sign in front stands before a power, now before a multiple.
std::vector<QuotientMistake> QuotientProblem::MistakesOfNegativeAnswer(RandomStream& random) const {
  const auto power = [&](int exponent) { return PowerText({letter, exponent}); };
  const QuotientMistake signInFront = {"takes the minus sign of the exponent for one in front",
                                       "-" + power(-Difference())};
  const QuotientMistake multiple = {kTakesAsFactor, CoefText(Difference()) + letter};
  return {{"subtracts the wrong way round", power(-Difference())},
          {kAdds, power(above + below)},
          {"adds the exponents and makes the sum negative", power(-above - below)},
          random.Rand(1, 2) == 1 ? signInFront : multiple};
}

}  // namespace course::powers
