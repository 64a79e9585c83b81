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

constexpr double kSecondRow = 7.5;  // of what the problem has become, under it
constexpr double kUnderSecond = 10;

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

// The smallest number whose square is a multiple of n.
int RootOfSquareOver(int n) {
  int root = 1;
  while (root * root % n != 0) ++root;
  return root;
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
        sum_(right_ + square_),
        rootOfDen_(RootOfSquareOver(sum_.den)),
        toSquare_(rootOfDen_ * rootOfDen_ / sum_.den),
        overSquare_{sum_.num * toSquare_, rootOfDen_ * rootOfDen_} {}
  void Solve() const;

 private:
  void StartPage() const;
  void DivideByLeading() const;
  void MoveNumber() const;
  void Complete() const;
  void TakeRoots() const;
  void FindX() const;

  std::string Moved() const { return SquareAndLinear(linear_) + " = " + ValueText(right_); }
  // "(35 x 3)" with the times sign.
  std::string Multiplied(int part) const {
    return "(" + NumStr(part) + " " + tutor::Times + " " + NumStr(toSquare_) + ")";
  }
  // Not in lowest terms.
  std::string OverSquareText() const {
    return NumStr(overSquare_.num) + "/" + NumStr(overSquare_.den);
  }
  // Plus or minus the root of the right side, worked out.
  std::string RootText() const;

  const Quadratic equation_;
  const Fraction linear_;  // in front of x, after the division
  const Fraction right_;
  const Fraction half_;
  const Fraction square_;
  const Fraction sum_;  // of the right side and the square
  const int rootOfDen_;
  const int toSquare_;         // times the denominator of the sum: the square of that number
  const Fraction overSquare_;  // the sum with the square of this number as its denominator
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
  const std::string heading = BannerText().empty() ? "Solve:  " : "";  // on a teaching screen
  ShowAt(5, heading + EquationText(equation_));
}

void SquareSteps::DivideByLeading() const {
  StartPage();
  Say(Text(R"(We divide both sides by \y{}\z, so that x^2^ stands without a number:)",
           equation_.a));
  Show(SquareAndLinear(linear_) + " " + Signed(Reduced(equation_.c, equation_.a)) + " = 0");
  if (equation_.a < 0) Say("Each sign changes.");
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
  ShowAt(kSecondRow, Moved());
  GoBelow();
  SayAt(kUnderSecond,
        Text(R"(Half of {} is \y{}\z.  Its square is \y{}\z.  We add it to both sides:)",
             ValueText(linear_), ValueText(half_), ValueText(square_)));
  PageEnd();
  Show(SquareAndLinear(linear_) + " + " + ValueText(square_) + " = " + ValueText(right_) + " + " +
       ValueText(square_));
  PageEnd();
  SayAt(16, "The left side is a square now.  The right side is one number:");
  ShowSquareOfSum(19.75, half_, ValueText(sum_));
  PageEnd();
}

// "3/4", "v17/4" with the radical sign for v.
std::string SquareSteps::RootText() const {
  const Radical top = RootOf(overSquare_.num);
  const Fraction outside = Reduced(top.outside, rootOfDen_);
  const std::string text = RadicalText({outside.num, top.radicand});
  return outside.den == 1 ? text : text + "/" + NumStr(outside.den);
}

void SquareSteps::TakeRoots() const {
  StartPage();
  ShowSquareOfSum(kSecondRow, half_, ValueText(sum_));
  GoBelow();
  if (overSquare_.den != sum_.den) {
    SayAt(kUnderSecond, Text("{} is not a perfect square.  We multiply the numerator and the "
                             "denominator by {}:",
                             sum_.den, toSquare_));
    Show(ValueText(sum_) + " = " + Multiplied(sum_.num) + "/" + Multiplied(sum_.den) + " = " +
         OverSquareText());
    PageEnd();
    StartPage();
    ShowSquareOfSum(kSecondRow, half_, OverSquareText());
    GoBelow();
  }
  SayAt(kUnderSecond,
        Text("We take the square root of both sides.  It has both signs, {}:", tutor::PlusOrMinus));
  PageEnd();
  const std::string start = "x " + Signed(half_) + " = " + tutor::PlusOrMinus;
  const std::string top = RadicalSignText(overSquare_.num);
  const std::string under =
      overSquare_.den == 1 ? top : top + "/" + RadicalSignText(overSquare_.den);
  Show(start + under);
  if (under != RootText()) Show(start + RootText());
  PageEnd();
}

void SquareSteps::FindX() const {
  StartPage();
  ShowAt(kSecondRow, "x " + Signed(half_) + " = " + tutor::PlusOrMinus + RootText());
  GoBelow();
  SayAt(kUnderSecond,
        Text(half_.num > 0 ? "We subtract {} from both sides:" : "We add {} to both sides:",
             ValueText(SizeOf(half_))));
  const Fraction centre = {-half_.num, half_.den};
  Show("x = " + ValueText(centre) + " " + tutor::PlusOrMinus + " " + RootText());
  PageEnd();
  const RootPair roots = *RootsOf(-equation_.b, equation_.Discriminant(), 2 * equation_.a);
  if (roots.Rational()) {
    const Fraction root = Reduced(RootOf(overSquare_.num).outside, rootOfDen_);
    Say("+ gives one root, and - the other:");
    Show("x = " + ValueText(centre) + " + " + ValueText(root) + " = " + ValueText(centre + root));
    Show("x = " + ValueText(centre) + " - " + ValueText(root) + " = " + ValueText(centre - root));
  } else if (roots.den > 1) {
    Say(Text("Both over the denominator {}:", roots.den));
    ShowRoots("  x = ", roots);
  }
}

}  // namespace

void SolveByCompleting(const Quadratic& equation) {
  SquareSteps(equation).Solve();
}

}  // namespace course::quadratics
