#include "lessons/families/fractions/fraction_steps.h"

#include <algorithm>

#include "display/drawing.h"
#include "display/stacked_text.h"
#include "engine/choices.h"
#include "lessons/page/say.h"
#include "lessons/page/show.h"
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
  return AlignedProduct(factors, factors);
}

std::string AlignedProduct(const std::vector<int>& factors, const std::vector<int>& columns) {
  const std::string times = " " + tutor::Times + " ";
  std::string text;
  std::size_t printed = 0;
  for (const int column : columns) {
    const std::string number = NumStr(column);
    const bool here = printed < factors.size() && factors[printed] == column;
    if (!text.empty()) text += here && printed > 0 ? times : std::string(times.size(), ' ');
    text += here ? number : std::string(number.size(), ' ');
    if (here) ++printed;
  }
  return text.substr(0, text.find_last_not_of(' ') + 1);
}

int LeastCommonDenominator(const Fraction& a, const Fraction& b) {
  return a.den / Gcf(a.den, b.den) * b.den;
}

std::string OverText(int num, int den) {
  const std::string text = NumStr(num);
  return FractionOfTexts(num < 0 ? "(" + text + ")" : text, NumStr(den));
}

std::string OverText(const Fraction& f) {
  return OverText(f.num, f.den);
}

std::string SumText(int first, int second) {
  const std::string text = NumStr(second);
  return NumStr(first) + " + " + (second < 0 ? "(" + text + ")" : text);
}

int RenamedNumerator(const Fraction& f, int den) {
  return f.num * (den / f.den);
}

std::string RenamedLine(const Fraction& f, int den) {
  const std::string factor = " " + tutor::Times + R"( \y)" + NumStr(den / f.den) + R"(\z)";
  return OverText(f) + " = " +
         FractionOfTexts("(" + NumStr(f.num) + factor + ")", "(" + NumStr(f.den) + factor + ")") +
         " = " + OverText(RenamedNumerator(f, den), den);
}

void StrikeOut(double row, double col, int digits) {
  constexpr double kRows = 0.34;
  constexpr double kCols = 0.45;
  isDrawDiagonalLineWithColor(row + kRows, col - kCols, row - kRows, col + digits - 1 + kCols, 2,
                              platform::colour::Yellow);
}

void ShowReduced(int num, int den, int common) {
  const std::string whole = OverText(num, den) + " = ";
  const std::string above = ProductText({num / common, common});
  const std::string below = ProductText({den / common, common});
  page::Show(whole + FractionOfTexts("(" + above + ")", "(" + below + ")") + " = " +
             OverText(num / common, den / common));
  const double row = page::NextRow() - 2.5;  // of the bar
  const int digits = static_cast<int>(NumStr(common).size());
  const double start = page::kMathCol + StackedTextWidth(whole);
  const std::size_t width = std::max(above.size(), below.size());
  const auto strike = [&](double part, const std::string& text) {
    const double indent = static_cast<double>(width - text.size()) / 2;
    StrikeOut(part, start + indent + static_cast<double>(text.size()) - digits, digits);
  };
  strike(row - 1, above);
  strike(row + 1, below);
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
