#include "lessons/families/quadratics/formula_steps.h"

#include <cstdlib>
#include <vector>

#include "display/grid.h"
#include "display/word_wrap.h"
#include "engine/header.h"
#include "engine/page.h"
#include "lessons/page/boxes.h"
#include "lessons/page/page_lines.h"
#include "lessons/page/say.h"
#include "lessons/page/show.h"
#include "lessons/page/slides.h"
#include "mathkit/expressions.h"
#include "mathkit/tutor_codes.h"

namespace course::quadratics {
namespace {

using namespace page;

const std::string kTimes = tutor::Gap + tutor::Dot + tutor::Gap;

// Columns of the terms of a spread equation; each leaves room for "a = -9" in its place.
constexpr int kSquareColumn = 4;
constexpr int kLinearColumn = 14;
constexpr int kConstantColumn = 24;
constexpr int kZeroColumn = 33;
constexpr int kValueWidth = 6;
constexpr int kTermRow = 9;
constexpr int kValueRow = 12;

constexpr double kEquationRow = 5;
constexpr double kSimplifyRow = 7;

void ShowSpread(double row, const std::string& square, const std::string& linear,
                const std::string& constant) {
  ShowAt(row, square, kSquareColumn);
  if (!linear.empty()) ShowAt(row, linear, kLinearColumn);
  if (!constant.empty()) ShowAt(row, constant, kConstantColumn);
  ShowAt(row, "= 0", kZeroColumn);
}

void TurnIntoValue(const std::string& term, const std::string& letter, int value, int column) {
  if (!term.empty())
    SlideDown({kTermRow, static_cast<double>(column), kValueWidth}, kValueRow - kTermRow,
              Leaving::Copy);
  ClearCells(kValueRow, column, kValueWidth, 1);
  ShowAt(kValueRow, letter + " = " + NumStr(value), column);
}

}  // namespace

std::string ProductText(int a, int b, int c) {
  return InParentheses(a) + kTimes + InParentheses(b) + kTimes + InParentheses(c);
}

std::string QuadraticFormulaText() {
  return "x = (-b " + tutor::PlusOrMinus + " `b^2^ - 4ac`)/(2a)";
}

void ShowStandardForm(double row) {
  ShowSpread(row, R"(\ya\zx^2^)", R"(+ \yb\zx)", R"(+ \yc\z)");
}

std::string RootsOver(int centre, const std::string& spread, int den) {
  const std::string start = centre == 0 ? "" : NumStr(centre) + " ";
  return "(" + start + tutor::PlusOrMinus + (centre == 0 ? "" : " ") + spread + ")/" +
         InParentheses(den);
}

void ShowSpreadEquation(const Quadratic& equation) {
  ShowSpread(kTermRow, SquareTerm(equation.a), LinearTerm(equation.b), ConstantTerm(equation.c));
}

void TurnTermsIntoValues(const Quadratic& equation) {
  TurnIntoValue(SquareTerm(equation.a), "a", equation.a, kSquareColumn);
  TurnIntoValue(LinearTerm(equation.b), "b", equation.b, kLinearColumn);
  TurnIntoValue(ConstantTerm(equation.c), "c", equation.c, kConstantColumn);
}

void CarryAcross(double row, double column, double width, double columns) {
  SlideDown({row, column, width}, 1);
  if (columns < 0)
    SlideLeft({row + 1, column, width}, -columns);
  else
    SlideRight({row + 1, column, width}, columns);
  SlideUp({row + 1, column + columns, width}, 1);
}

namespace {

class FormulaSteps {
 public:
  explicit FormulaSteps(const Quadratic& equation) : equation_(equation) {}
  void ReadOff() const;
  void Solve() const;

 private:
  void StartPage() const;
  void ShowNotes() const;
  void PutIn() const;
  void WorkOutDiscriminant() const;
  void TellNoRealRoots() const;
  void DiscriminantUnderRadical() const;
  void SimplifyRadical() const;
  void ReduceRoots() const;
  void SplitRoots() const;
  void CheckRoot() const;

  // What stands under the radical; b^2^ of 0 is left out as soon as it is worked out.
  std::string PutInDiscriminant() const {
    const auto [a, b, c] = equation_;
    return InParentheses(b) + "^2^ - " + ProductText(4, a, c);
  }
  std::string Unreduced(const std::string& spread) const {
    return "x = " + RootsOver(-equation_.b, spread, 2 * equation_.a);
  }
  std::string OneRoot(int spread) const;
  std::string InsertedWhole(int root) const;
  std::string InsertedFraction(const Fraction& root) const;
  std::string InsertedValues(const Fraction& root) const;

  int Discriminant() const { return equation_.Discriminant(); }
  Radical Root() const { return RootOf(Discriminant()); }
  RootPair Answer() const { return *RootsOf(-equation_.b, Discriminant(), 2 * equation_.a); }

  const Quadratic equation_;
};

void FormulaSteps::StartPage() const {
  NewScreen();
  ProblemBanner();
  const std::string heading = BannerText().empty() ? "Solve:  " : "";  // on a teaching screen
  ShowAt(kEquationRow, heading + EquationText(equation_));
}

void FormulaSteps::Solve() const {
  PutIn();
  WorkOutDiscriminant();
  if (Discriminant() < 0) return TellNoRealRoots();
  DiscriminantUnderRadical();
  if (Answer().Rational()) {
    SplitRoots();
    CheckRoot();
  } else {
    SimplifyRadical();
    ReduceRoots();
  }
}

// --- a, b and c ----------------------------------------------------------------------------------

// What is not plain to see about the three values.
void FormulaSteps::ShowNotes() const {
  const auto [a, b, c] = equation_;
  std::vector<std::string> notes;
  if (std::abs(a) == 1)
    notes.push_back(Text("{} is the same as {}x^2^, so a is {}.", SquareTerm(a), a, a));
  if (std::abs(b) == 1) {
    const std::string sign = b < 0 ? "- " : "+ ";
    notes.push_back(Text("{} is the same as {}, so b is {}.", sign + "x", sign + "1x", b));
  }
  if (b == 0) notes.push_back("There is no term with x, so b is 0.");
  if (c == 0) notes.push_back("There is no number alone, so c is 0.");
  if ((b < 0 || c < 0 || a < 0) && notes.size() < 3)
    notes.push_back(R"(Each number takes \bits sign\z along.)");
  if (notes.empty()) return;
  WhiteBox({14.5, 1.6 * static_cast<double>(notes.size()) + 0.8});
  for (const std::string& note : notes) SayInBox(note);
}

void FormulaSteps::ReadOff() const {
  SayAt(5, "We compare the equation with the standard form.  What are a, b and c?");
  ShowStandardForm(7.5);
  ShowSpreadEquation(equation_);
  PageEnd();
  TurnTermsIntoValues(equation_);
  ShowNotes();
  PageEnd();
}

void FormulaSteps::PutIn() const {
  const auto [a, b, c] = equation_;
  StartPage();
  ShowAt(6.5, Text(R"(\ya = {},  b = {},  c = {}\z)", a, b, c));
  ShowAt(9.5, QuadraticFormulaText());
  const bool negative = a < 0 || b < 0 || c < 0;
  SayAt(12, negative ? R"(\yNegative\z numbers go into \yparentheses\z.)"
                     : "Now we put the numbers in.");
  PageEnd();
  const std::string minusB = b == 0 ? "0" : "-" + InParentheses(b);
  ShowAt(15, "x = (" + minusB + " " + tutor::PlusOrMinus + " `" + PutInDiscriminant() + "`)/(2" +
                 kTimes + InParentheses(a) + ")");
}

// --- The discriminant ----------------------------------------------------------------------------

void FormulaSteps::WorkOutDiscriminant() const {
  const auto [a, b, c] = equation_;
  const int product = 4 * a * c;
  WhiteBox({17.5, 6});
  SayInBox(R"(The number under the radical is called the \bdiscriminant\z:)");
  SayInBox(PutInDiscriminant());
  PageEnd();
  std::string line = NumStr(b * b) + " - " + InParentheses(product);
  if (product < 0) line += " = " + NumStr(b * b) + " + " + NumStr(-product);
  SayInBox(Text(R"(= {} = \b{}\z)", line, Discriminant()));
  PageEnd();
}

void FormulaSteps::TellNoRealRoots() const {
  StartPage();
  SayAt(7, "The discriminant goes under the radical:");
  ShowAt(10, Unreduced("`" + NumStr(Discriminant()) + "`"));
  PageEnd();
  SayAt(13, R"(Since the discriminant is \ynegative\z, there are \yno real roots\z.)");
  Say(Text("No real number times itself is {}.", Discriminant()));
  PageEnd();
}

void FormulaSteps::DiscriminantUnderRadical() const {
  const auto [a, b, c] = equation_;
  StartPage();
  SayAt(kSimplifyRow, "Simplify the expression on the right side of the equation.");
  const std::string twice = Text("2a is {}", 2 * a);
  SayAt(9.5, b == 0 ? twice + ":" : Text("-b is {}, and {}:", -b, twice));
  ShowAt(12, Unreduced(RadicalSignText(Discriminant())));
  PageEnd();
}

// --- Irrational roots ----------------------------------------------------------------------------

void FormulaSteps::SimplifyRadical() const {
  const Radical root = Root();
  const int discriminant = Discriminant();
  const std::string sign = RadicalSignText(discriminant);
  if (root.outside == 1) {
    SayAt(14.5,
          Text(R"({} has no square factor, so the \yradical\z stays as it is.)", discriminant));
    return;
  }
  const std::string outside = NumStr(root.outside);
  const std::string radicand = outside + "^2^" + kTimes + NumStr(root.radicand);
  SayAt(14.5,
        Text(R"({} is {}, so \y{}\z can leave the radical.)", discriminant, radicand, outside));
  constexpr double kRow = 17.5;
  ShowAt(kRow, sign + " =    `" + radicand + "`");
  PageEnd();
  // Under the radical to its left side: the sign stands four columns behind the first blank.
  const auto width = static_cast<double>(outside.size());
  const double start = 3 + static_cast<double>(sign.size()) + 6;
  CarryAcross(kRow, start, width, -width - 1);
  ClearCells(kRow - 0.6, 1, 40, 2);
  ShowAt(kRow, sign + " = " + RadicalText(root));
  ShowAt(20.5, Unreduced(RadicalText(root)));
  PageEnd();
}

void FormulaSteps::ReduceRoots() const {
  const auto [a, b, c] = equation_;
  const int outside = Root().outside;
  const int common = 2 * a / Answer().den;
  if (common == 1) return;
  if (outside == 1) PageEnd();  // the radical was told to stay
  StartPage();
  ShowAt(8, Unreduced(RadicalText(Root())));
  if (common == -1) {
    Say("We divide by -1 to make the denominator positive.");
  } else {
    const std::string first = b == 0 ? NumStr(outside) : Text("{}, {}", -b, outside);
    Say(Text(R"(We divide {} and {} by \y{}\z:)", Words{first}, 2 * a, common));
  }
  if (common < 0) {
    Say(R"(\y)" + tutor::PlusOrMinus + R"(\z stands for both signs, so it stays.)");
    PageEnd();
  }
  Show("x = " + RootsText(Answer()));
}

// --- Rational roots ------------------------------------------------------------------------------

// "x = (5 - 7)/2 = -2/2 = -1": one operation at a time.
std::string FormulaSteps::OneRoot(int spread) const {
  const int den = 2 * equation_.a;
  const int centre = -equation_.b;
  const int numerator = centre + spread;
  const std::string over = "/" + InParentheses(den);
  const std::string value = ValueText(Reduced(numerator, den));
  std::string line = "x = ";
  if (centre != 0 && spread != 0)
    line += "(" + NumStr(centre) + (spread < 0 ? " - " : " + ") + NumStr(std::abs(spread)) + ")" +
            over + " = ";
  line += InParentheses(numerator) + over;
  return Reduced(numerator, den).den == den ? line : line + " = " + value;
}

void FormulaSteps::SplitRoots() const {
  const int spread = Root().outside;
  if (spread == 0) {
    SayAt(14.5, "The square root of 0 is 0, so both signs give the same number:");
    Show(OneRoot(0));
    PageEnd();
    return;
  }
  SayAt(14.5, Text("{} is {}, so its square root is {}:", Discriminant(), NumStr(spread) + "^2^",
                   spread));
  constexpr double kRow = 17.5;
  constexpr double kTop = 9;  // of what moves to the next step
  ShowAt(kRow, Unreduced(NumStr(spread)));
  PageEnd();
  SlideUp(WholeRows(kRow - 1.5, 4), kRow - kTop);
  ClearBelow(kTop + 2);
  ClearCells(6.5, 1, 40, kTop - 1.5 - 6.5);
  SayAt(12, R"(We take \y+\z first:)");
  ShowAt(14.5, OneRoot(spread));
  SayAt(17, R"(Then we take \y-\z:)");
  ShowAt(19.5, OneRoot(-spread));
  PageEnd();
}

// "2 . 3^2^ - 5 . 3 - 3", negative numbers in parentheses.
std::string FormulaSteps::InsertedWhole(int root) const {
  const auto [a, b, c] = equation_;
  const auto times = [&](int n) { return n == 1 ? "" : NumStr(n) + kTimes; };
  std::string line = times(a) + InParentheses(root) + "^2^";
  if (b != 0) line += (b < 0 ? " - " : " + ") + times(std::abs(b)) + InParentheses(root);
  return line + (c == 0 ? "" : " " + ConstantTerm(c)) + " = 0";
}

// The same with the root and its square built up: "2 . 9/4 - 5 . 3/2 - 3".
std::string FormulaSteps::InsertedFraction(const Fraction& root) const {
  const auto [a, b, c] = equation_;
  const auto times = [&](int n) { return n == 1 ? "" : NumStr(n) + " " + tutor::Dot + " "; };
  std::string line = times(a) + ValueText(root * root);
  if (b != 0)
    line += (b < 0 ? " - " : " + ") + times(std::abs(b)) + InParentheses(root.num) + "/" +
            NumStr(root.den);
  return line + (c == 0 ? "" : " " + ConstantTerm(c)) + " = 0";
}

// The values of its terms.
std::string FormulaSteps::InsertedValues(const Fraction& root) const {
  const auto [a, b, c] = equation_;
  const Fraction linear = Reduced(b * root.num, root.den);
  std::string line = ValueText(Reduced(a * root.num * root.num, root.den * root.den));
  if (b != 0)
    line += (linear.num < 0 ? " - " : " + ") + ValueText({std::abs(linear.num), linear.den});
  return line + (c == 0 ? "" : " " + ConstantTerm(c)) + " = 0";
}

// One root goes back into the equation, and not 0 if there is another: the whole one, if one is.
void FormulaSteps::CheckRoot() const {
  const Fraction larger = Answer().Larger();
  const Fraction smaller = Answer().Smaller();
  const bool first = larger.num != 0 && (larger.den == 1 || smaller.den != 1 || smaller.num == 0);
  const Fraction root = first ? larger : smaller;
  StartPage();
  if (root.den == 1) {
    SayAt(7, Text(R"(\yCheck:\z  Put {} in for x.)", root.num));
    ShowAt(9, InsertedWhole(root.num));
  } else {
    SayAt(7, Text(R"(\yCheck:\z  x is {}, so {} is {}.)", ValueText(root), "x^2^",
                  ValueText(root * root)));
    ShowAt(10, InsertedFraction(root));
  }
  Say("Simplify the left and right sides of the equation.");
  PageEnd();
  Show(InsertedValues(root));
  Show("0 = 0");
}

}  // namespace

void ReadOff(const Quadratic& equation) {
  FormulaSteps(equation).ReadOff();
}

void SolveWithFormula(const Quadratic& equation) {
  FormulaSteps(equation).Solve();
}

}  // namespace course::quadratics
