#include "lessons/families/quadratics/square_steps.h"

#include <cstdlib>
#include <string>

#include "display/drawing.h"
#include "display/stacked_text.h"
#include "engine/header.h"
#include "engine/page.h"
#include "lessons/families/quadratics/formula_steps.h"
#include "lessons/page/boxes.h"
#include "lessons/page/say.h"
#include "lessons/page/show.h"
#include "mathkit/expressions.h"
#include "mathkit/tutor_codes.h"

namespace course::quadratics {
namespace {

using namespace page;

bool IsWhole(const Fraction& value) {
  return value.den == 1;
}

Fraction SizeOf(const Fraction& value) {
  return {std::abs(value.num), value.den};
}

// "+ 3/4", "- 5" behind a term.
std::string Signed(const Fraction& value) {
  return (value.num < 0 ? "- " : "+ ") + ValueText(SizeOf(value));
}

// "x^2^ - 3/4 x", "x^2^ + x".
std::string SquareAndLinear(const Fraction& linear) {
  const Fraction size = SizeOf(linear);
  const std::string coefficient = size == Fraction{1, 1} ? ""
                                  : IsWhole(size)        ? ValueText(size)
                                                         : ValueText(size) + " ";
  return std::string("x^2^ ") + (linear.num < 0 ? "- " : "+ ") + coefficient + "x";
}

// A parenthesis as high as a built-up fraction whose middle row it stands on.
void DrawParenthesis(double row, double col, bool opens) {
  constexpr int kThickness = 2;   // pixels
  constexpr double kBend = 0.25;  // columns
  constexpr double kStraight = 0.6;
  constexpr double kHeight = 1.1;  // rows to either side
  const double ends = col + (opens ? kBend : -kBend);
  const double middle = col - (opens ? kBend : -kBend);
  const auto line = [&](double row1, double col1, double row2, double col2) {
    isDrawDiagonalLineWithColor(row1, col1, row2, col2, kThickness, platform::colour::White);
  };
  line(row - kHeight, ends, row - kStraight, middle);
  line(row - kStraight, middle, row + kStraight, middle);
  line(row + kStraight, middle, row + kHeight, ends);
}

// "(x + 3/4)^2^ = 5/16" with a built-up fraction inside high parentheses.
void ShowSquareOfSum(double row, const Fraction& half, const std::string& right) {
  const std::string sum = "x " + Signed(half);
  if (IsWhole(half)) return ShowAt(row, "(" + sum + ")^2^ = " + right);
  const double end = kMathCol + 1 + StackedTextWidth(sum);
  ShowAt(row, sum, kMathCol + 1);
  DrawParenthesis(row, kMathCol, true);
  DrawParenthesis(row, end, false);
  ShowAt(row - 0.75, "^2^", end + 1);
  ShowAt(row, "= " + right, end + 3);
}

// The numbers of one solution.
class SquareSteps {
 public:
  explicit SquareSteps(const Quadratic& equation)
      : equation_(equation),
        linear_(Reduced(equation.b, equation.a)),
        right_(Reduced(-equation.c, equation.a)),
        half_(Reduced(equation.b, 2 * equation.a)),
        square_(half_ * half_),
        sum_(right_ + square_) {}
  void Solve() const;

 private:
  void StartPage() const;
  void DivideByLeading() const;
  void MoveNumber() const;
  void Complete() const;
  void TakeRoots() const;
  void FindX() const;

  std::string Moved() const { return SquareAndLinear(linear_) + " = " + ValueText(right_); }
  // Plus or minus the root of the right side, worked out.
  std::string RootText() const;

  const Quadratic equation_;
  const Fraction linear_;  // in front of x, after the division
  const Fraction right_;
  const Fraction half_;
  const Fraction square_;
  const Fraction sum_;  // of the right side and the square
};

void SquareSteps::Solve() const {
  DivideByLeading();
  MoveNumber();
  Complete();
  TakeRoots();
  FindX();
}

void SquareSteps::StartPage() const {
  NewScreen();
  ProblemBanner();
  ShowAt(5, EquationText(equation_));
}

void SquareSteps::DivideByLeading() const {
  StartPage();
  Say(Text(R"(We divide both sides by \y{}\z, so that x^2^ stands without a number:)",
           equation_.a));
  PageEnd();
  Show(SquareAndLinear(linear_) + " " + Signed(Reduced(equation_.c, equation_.a)) + " = 0");
  if (equation_.a < 0) Say("Dividing by a negative number changes each sign.");
  PageEnd();
}

void SquareSteps::MoveNumber() const {
  Say(Text(right_.num < 0 ? "We subtract {} from both sides:" : "We add {} to both sides:",
           ValueText(SizeOf(right_))));
  Show(Moved());
  PageEnd();
}

void SquareSteps::Complete() const {
  StartPage();
  ShowAt(7.5, Moved());
  GoBelow();
  SayAt(9.5, Text(R"(Half of {} is \y{}\z.  Its square is \y{}\z.  We add it to both sides:)",
                  ValueText(linear_), ValueText(half_), ValueText(square_)));
  PageEnd();
  Show(SquareAndLinear(linear_) + " + " + ValueText(square_) + " = " + ValueText(right_) + " + " +
       ValueText(square_));
  PageEnd();
  SayAt(16, "The left side is a square now.  The right side is one number:");
  ShowSquareOfSum(20, half_, ValueText(sum_));
  PageEnd();
}

// "3/4", "v17/4" with the radical sign for v: numerator and denominator are rooted each by itself.
std::string SquareSteps::RootText() const {
  const Radical top = RootOf(sum_.num * sum_.den);
  const int common = Reduced(top.outside, sum_.den).num;
  const int den = Reduced(top.outside, sum_.den).den;
  const std::string text = RadicalText({common, top.radicand});
  return den == 1 ? text : text + "/" + NumStr(den);
}

void SquareSteps::TakeRoots() const {
  StartPage();
  ShowSquareOfSum(7.5, half_, ValueText(sum_));
  GoBelow();
  SayAt(9.5,
        Text("We take the square root of both sides.  It has both signs, {}:", tutor::PlusOrMinus));
  PageEnd();
  const std::string under = IsWhole(sum_)
                                ? RadicalSignText(sum_.num)
                                : RadicalSignText(sum_.num) + "/" + RadicalSignText(sum_.den);
  Show("x " + Signed(half_) + " = " + tutor::PlusOrMinus + under);
  PageEnd();
  Show("x " + Signed(half_) + " = " + tutor::PlusOrMinus + RootText());
  PageEnd();
}

void SquareSteps::FindX() const {
  StartPage();
  ShowAt(7.5, "x " + Signed(half_) + " = " + tutor::PlusOrMinus + RootText());
  GoBelow();
  SayAt(9.5, Text(half_.num > 0 ? "We subtract {} from both sides:" : "We add {} to both sides:",
                  ValueText(SizeOf(half_))));
  Show("x = " + ValueText(Reduced(-half_.num, half_.den)) + " " + tutor::PlusOrMinus + " " +
       RootText());
  PageEnd();
  const auto roots = RootsOf(-equation_.b, equation_.Discriminant(), 2 * equation_.a);
  if (roots->Rational() || roots->den > 1) ShowRoots("  x = ", *roots);
}

}  // namespace

void SolveByCompleting(const Quadratic& equation) {
  SquareSteps(equation).Solve();
}

}  // namespace course::quadratics
