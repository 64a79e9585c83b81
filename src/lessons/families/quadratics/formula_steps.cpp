#include "lessons/families/quadratics/formula_steps.h"

#include <cstdlib>
#include <vector>

#include "display/grid.h"
#include "display/stacked_text.h"
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

// "one, two and three".
std::string Listed(const std::vector<std::string>& items) {
  std::string list;
  for (std::size_t i = 0; i < items.size(); ++i)
    list += (i == 0 ? "" : i + 1 < items.size() ? ", " : " and ") + items[i];
  return list;
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
  explicit FormulaSteps(const Quadratic& equation, Asked asked = Asked::Nothing)
      : equation_(equation), asked_(asked) {}
  void ReadOff() const;
  void Solve() const;
  void CheckRoot() const;
  void CheckEveryRoot() const;

 private:
  void StartPage() const;
  void ShowValues() const;
  void ShowNotes() const;
  void PutIn() const;
  void WorkOutDiscriminant() const;
  void TellNoRealRoots() const;
  void DiscriminantUnderRadical() const;
  void SimplifyRadical() const;
  void ReduceRoots() const;
  void SplitRoots() const;
  void PutBack(const Fraction& root) const;

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
  const Asked asked_;
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
  if (Answer().Rational()) return SplitRoots();
  SimplifyRadical();
  ReduceRoots();
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

void FormulaSteps::ShowValues() const {
  const auto [a, b, c] = equation_;
  ShowAt(6.5, Text(R"(\ya = {},  b = {},  c = {}\z)", a, b, c));
}

void FormulaSteps::PutIn() const {
  const auto [a, b, c] = equation_;
  StartPage();
  ShowAt(9.5, QuadraticFormulaText());
  if (asked_ == Asked::ValuesToo) {
    SayAt(12, R"(\yTry it:\z  What are a, b and c?)");
    PageEnd();
    ShowValues();
  } else {
    ShowValues();
    const bool negative = a < 0 || b < 0 || c < 0;
    SayAt(12, negative ? R"(\yNegative\z numbers go into \yparentheses\z.)"
                       : "Now we put the numbers in.");
    PageEnd();
  }
  const std::string minusB = b == 0 ? "0" : "-" + InParentheses(b);
  ShowAt(15, "x = (" + minusB + " " + tutor::PlusOrMinus + " `" + PutInDiscriminant() + "`)/(2" +
                 kTimes + InParentheses(a) + ")");
}

// --- The discriminant ----------------------------------------------------------------------------

void FormulaSteps::WorkOutDiscriminant() const {
  const auto [a, b, c] = equation_;
  const int product = 4 * a * c;
  WhiteBox({17.5, 6});
  if (asked_ == Asked::ValuesToo)
    SayInBox(R"(\bTry it:\z  Find the discriminant.)");
  else
    SayInBox(R"(The number under the radical is called the \bdiscriminant\z)" +
             std::string(asked_ == Asked::Nothing ? ":" : R"(.  \bTry it:\z  Find it.)"));
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

// A square leaves the radical at once, another number on pages of its own.
void FormulaSteps::DiscriminantUnderRadical() const {
  const auto [a, b, c] = equation_;
  StartPage();
  SayAt(kSimplifyRow, "Simplify the expression on the right side of the equation.");
  std::vector<std::string> values;
  if (b != 0) values.push_back(Text("-b is {}", -b));
  values.push_back(Text("2a is {}", 2 * a));
  std::string line = Unreduced(RadicalSignText(Discriminant()));
  if (Root().Whole()) {
    const std::string spread = NumStr(Root().outside);
    values.push_back(Text("{} is {}", Discriminant(), spread + "^2^"));
    line += " = " + RootsOver(-b, spread, 2 * a);
  }
  SayAt(9.5, Listed(values) + ":");
  ShowAt(12, line);
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
  constexpr double kRow = 17;
  const std::string line = sign + " = `" + radicand + "`";
  ShowAt(kRow, line);
  if (asked_ == Asked::Nothing) PageEnd();
  // A copy of the number under the radical goes to the end of the line.
  const auto width = static_cast<double>(outside.size());
  const double start = 3 + StackedTextWidth(sign + " = ") + 1;
  const double end = 3 + StackedTextWidth(line) + 3;
  SlideDown({kRow, start, width}, 1.5, Leaving::Copy);
  SlideRight({kRow + 1.5, start, width}, end - start);
  SlideUp({kRow + 1.5, end, width}, 1.5);
  ShowAt(kRow, line + " = " + RadicalText(root));
  ShowAt(20, Unreduced(RadicalText(root)));
  PageEnd();
}

void FormulaSteps::ReduceRoots() const {
  const auto [a, b, c] = equation_;
  const Radical root = Root();
  const int common = 2 * a / Answer().den;
  if (common == 1 && root.outside == 1) return;
  if (root.outside == 1) PageEnd();  // the radical was told to stay
  StartPage();
  ShowAt(8, Unreduced(RadicalText(root)));
  if (common == 1) return;
  if (common == -1) {
    Say(R"(We divide the numerator and the denominator by \y-1\z.)");
  } else {
    const std::string first = b == 0 ? NumStr(root.outside) : Text("{}, {}", -b, root.outside);
    Say(Text(R"(We divide the numbers outside the radical, {} and {}, by \y{}\z.)", Words{first},
             2 * a, common));
    if (common > 0) AddLine(Text("The {} under the radical stays.", root.radicand));
  }
  if (common < 0) Say("+ becomes - and - becomes +, so " + tutor::PlusOrMinus + " stays.");
  if (asked_ == Asked::Nothing) PageEnd();
  ShowRoots("  x = ", Answer());
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
    SayAt(14.5, "Adding 0 and subtracting 0 give the same number:");
    Show(OneRoot(0));
    PageEnd();
    return;
  }
  SayAt(14.25, R"(We take \y+\z first:)");
  ShowAt(16.75, OneRoot(spread));
  SayAt(19.25, R"(Then we take \y-\z:)");
  ShowAt(21.75, OneRoot(-spread));
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
  PutBack(first ? larger : smaller);
}

void FormulaSteps::CheckEveryRoot() const {
  PutBack(Answer().Smaller());
  if (Answer().Double()) return;
  PageEnd();
  PutBack(Answer().Larger());
}

// On a new screen.
void FormulaSteps::PutBack(const Fraction& root) const {
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
  GoBelow();
  const std::string values = InsertedValues(root);
  Show(values);
  const std::string end = "0 = 0";
  Show(end, kMathCol + StackedTextWidth(values) - StackedTextWidth(end));
}

}  // namespace

void ShowRoots(const std::string& words, const RootPair& roots, const std::string& end) {
  const std::string text = RootsText(roots);
  const double row = RowBelow() + (text.find('/') == std::string::npos ? 0.5 : 1);
  const auto behindWords = static_cast<double>(words.size()) + 1;
  ShowAt(row, words, 1);
  SetColor(platform::colour::Yellow);
  ShowAt(row, text, behindWords);
  SetColor(platform::colour::White);
  if (!end.empty()) ShowAt(row, end, behindWords + StackedTextWidth(text));
  GoBelow();
}

void ReadOff(const Quadratic& equation) {
  FormulaSteps(equation).ReadOff();
}

void SolveWithFormula(const Quadratic& equation, Asked asked) {
  FormulaSteps(equation, asked).Solve();
}

void CheckRoot(const Quadratic& equation) {
  FormulaSteps(equation).CheckRoot();
}

void CheckEveryRoot(const Quadratic& equation) {
  FormulaSteps(equation).CheckEveryRoot();
}

}  // namespace course::quadratics
