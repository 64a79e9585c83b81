#include "lessons/families/fractions/fraction_steps.h"

#include <algorithm>

#include "display/drawing.h"
#include "engine/choices.h"
#include "mathkit/expressions.h"
#include "mathkit/integers.h"
#include "mathkit/tutor_codes.h"

namespace course::fractions {
namespace {

// Rows by which letters stand below the top of their cells: a strip stands among text as a line.
constexpr double kTextDrop = 0.2;

}  // namespace

std::vector<int> PrimeFactorsOf(int n) {
  std::vector<int> factors;
  for (int i = 1; i <= kPrimeCount; ++i)
    for (; n % PrimeAt(i) == 0; n /= PrimeAt(i)) factors.push_back(PrimeAt(i));
  return factors;
}

std::string ProductText(const std::vector<int>& factors) {
  std::string text;
  for (const int factor : factors) text += (text.empty() ? "" : tutor::Dot) + NumStr(factor);
  return text;
}

int LeastCommonDenominator(const Fraction& a, const Fraction& b) {
  return a.den / Gcf(a.den, b.den) * b.den;
}

std::string OverText(int num, int den) {
  return FractionOfTexts(NumStr(num), NumStr(den));
}

std::string SumText(const std::string& first, const std::string& second) {
  return first + " + " + (second.front() == '-' ? "(" + second + ")" : second);
}

int RenamedNumerator(const Fraction& f, int den) {
  return f.num * (den / f.den);
}

std::string RenamedLine(const Fraction& f, int den) {
  const std::string factor = tutor::Dot + R"(\y)" + NumStr(den / f.den) + R"(\z)";
  return ValueText(f) + " = " + FractionOfTexts(NumStr(f.num) + factor, NumStr(f.den) + factor) +
         " = " + OverText(RenamedNumerator(f, den), den);
}

void FillFractionChoices(Problem& problem, const Fraction& right,
                         const std::vector<FractionMistake>& mistakes, int den,
                         RandomStream& random) {
  Choices choices(problem, choice_kind::FiveShuffled, MixedText);
  choices.Right(right);
  for (const FractionMistake& mistake : mistakes)
    if (mistake.num > 0) choices.Wrong(mistake.name, Reduced(mistake.num, mistake.den));
  const int nearest = std::max(1, right.num * (den / right.den) - 9);
  choices.Fill([&] { return Reduced(random.Rand(nearest, nearest + 18), den); });
}

void DrawStrip(double row, double col, double wd, int parts, const std::vector<StripFill>& fills) {
  row += kTextDrop;
  const double part = wd / parts;
  double start = col;
  for (const StripFill& fill : fills) {
    const double end = start + fill.parts * part;
    isDrawBoxFilled(row, start, row, end - 1, fill.colour);
    start = end;
  }
  for (int i = 0; i < parts; ++i)
    isDrawBox(row, col + i * part, row, col + (i + 1) * part - 1, platform::colour::White, 2);
}

}  // namespace course::fractions
