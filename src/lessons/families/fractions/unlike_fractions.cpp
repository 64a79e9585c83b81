#include "lessons/families/fractions/unlike_fractions.h"

#include <algorithm>
#include <cstdlib>

#include "engine/header.h"
#include "engine/page.h"
#include "lessons/families/fractions/fraction_steps.h"
#include "lessons/page/boxes.h"
#include "lessons/page/say.h"
#include "lessons/page/show.h"
#include "mathkit/integers.h"
#include "mathkit/tutor_codes.h"

namespace course::fractions {
namespace {

using namespace page;

constexpr int kLargestCommonDenominator = 180;

const char* OperationSign(Operation operation) {
  return operation == Operation::Add ? " + " : " - ";
}
const char* ResultName(Operation operation) {
  return operation == Operation::Add ? "sum" : "difference";
}

Fraction DrawFraction(RandomStream& random, int kind) {
  const int denominator = kind == 1 ? random.Rand(3, 15) : random.Rand(2, 30);
  const int numerator = random.Rand(1, denominator - 1);
  return Reduced(numerator, denominator);
}

// The cheap questions come first: most fractions of the second kind are thrown away.
bool Unsuitable(const UnlikeFractions& pair, int kind) {
  const int common = Gcf(pair.first.den, pair.second.den);
  if (kind == 2 && common == 1) return true;
  const int lcd = pair.first.den / common * pair.second.den;
  // One of the denominators would do as it is.
  if (lcd == pair.first.den || lcd == pair.second.den) return true;
  if (lcd > kLargestCommonDenominator) return true;  // too much to multiply by hand
  const int result = pair.ResultNumerator();
  if (result <= 0) return true;  // no negative result
  if (pair.operation == Operation::Add) return false;
  return std::abs(pair.SecondNumerator()) >= pair.FirstNumerator()  // the larger one stands first
         || result > lcd;  // mixed numbers belong to adding
}

std::string FactorsLine(const std::string& label, int n, int lcd) {
  constexpr std::size_t kLabelWidth = 3;
  return std::string(kLabelWidth - std::min(kLabelWidth, label.size()), ' ') + label + " = " +
         AlignedProduct(PrimeFactorsOf(n), PrimeFactorsOf(lcd));
}

void ExplainOneRenaming(const Fraction& f, int den) {
  const int factor = den / f.den;
  Say(Text(R"({} = {}, so we multiply numerator and denominator by \y{}\z:)",
           NumStr(f.den) + " " + tutor::Times + " " + NumStr(factor), den, factor));
  Show(RenamedLine(f, den));
  PageEnd();
}

}  // namespace

int UnlikeFractions::Denominator() const {
  return LeastCommonDenominator(first, second);
}
int UnlikeFractions::FirstNumerator() const {
  return RenamedNumerator(first, Denominator());
}
int UnlikeFractions::SecondNumerator() const {
  return RenamedNumerator(second, Denominator());
}
int UnlikeFractions::ResultNumerator() const {
  const int sign = operation == Operation::Add ? 1 : -1;
  return FirstNumerator() + sign * SecondNumerator();
}
Fraction UnlikeFractions::Result() const {
  return operation == Operation::Add ? first + second : first - second;
}
std::string UnlikeFractions::Text() const {
  return OverText(first) + OperationSign(operation) + OverText(second);
}
std::string UnlikeFractions::RenamedText() const {
  const int den = Denominator();
  return OverText(FirstNumerator(), den) + OperationSign(operation) +
         OverText(SecondNumerator(), den);
}

// The kind is drawn once, so that both are as many.  Of what is drawn then for a sum, 57 % of the
// first kind and 6.5 % of the second are accepted; for a difference 29 % and 3.3 %.
UnlikeFractions DrawUnlikeFractions(RandomStream& random, Operation operation) {
  UnlikeFractions pair;
  pair.operation = operation;
  const int kind = random.Rand(1, 2);
  do {
    pair.first = DrawFraction(random, kind);
    pair.second = DrawFraction(random, kind);
    pair.second.num *= random.Sign();
  } while (Unsuitable(pair, kind));
  return pair;
}

std::string FactorsLine(int n, int lcd) {
  return FactorsLine(NumStr(n), n, lcd);
}

std::string LcdLine(int lcd) {
  const std::string line = FactorsLine("LCD", lcd, lcd);
  return PrimeFactorsOf(lcd).size() > 1 ? line + " = " + NumStr(lcd) : line;
}

void ExplainDenominator(const UnlikeFractions& pair) {
  const int first = pair.first.den;
  const int second = pair.second.den;
  const int lcd = pair.Denominator();
  Say(Text("We need the LCD of {} and {}.  What are their prime factors?", first, second));
  PageEnd();
  GoBelow();
  // Columns without a common prime would only pull the lines apart.
  const bool share = CommonPrimeFactors(first, second) != 0;
  Show(FactorsLine(first, share ? lcd : first));
  Show(FactorsLine(second, share ? lcd : second));
  PageEnd();
  Show(LcdLine(lcd));
  Say(!share ? "They share no prime, so the LCD needs all of them."
             : "We take each prime as many times as the line has it that has it most.");
  PageEnd();
}

void ExplainRenaming(const UnlikeFractions& pair) {
  NewScreen();
  ProblemBanner();
  ShowAt(5, pair.Text());
  SayAt(5, Text("LCD = {}", pair.Denominator()), {.col = 25});
  Say("Now we rename both fractions.");
  PageEnd();
  ExplainOneRenaming(pair.first, pair.Denominator());
  ExplainOneRenaming(pair.second, pair.Denominator());
}

void ShowRenamed(const UnlikeFractions& pair) {
  NewScreen();
  ProblemBanner();
  ShowAt(5, pair.Text() + " = " + pair.RenamedText());
}

void ExplainLowestTerms(const UnlikeFractions& pair) {
  const Fraction result = pair.Result();
  const int numerator = pair.ResultNumerator();
  const int common = Gcf(numerator, pair.Denominator());
  if (common == 1) {
    Say(Text("None of the primes of {} goes into {}.  So the {} is in lowest terms.",
             pair.Denominator(), numerator, ResultName(pair.operation)));
  } else {
    Say(Text("{} goes into both, so we strike it out:", common));
    ShowReduced(numerator, pair.Denominator(), common);
  }
  PageEnd();
  if (result.num < result.den) return;
  Say(Text("{} goes into {} once, and {} is left:", result.den, result.num,
           result.num - result.den));
  Show(ValueText(result) + " = " + MixedText(result));
  PageEnd();
}

}  // namespace course::fractions
