#include "lessons/families/quadratics/formula_steps.h"

#include <cstdlib>
#include <vector>

#include "display/grid.h"
#include "display/wiper_box.h"
#include "display/word_wrap.h"
#include "engine/page.h"
#include "lessons/page/page_lines.h"
#include "mathkit/expressions.h"
#include "mathkit/tutor_codes.h"

namespace course::quadratics {
namespace {

using namespace page;

// Columns of the terms of a spread equation; each leaves room for "a = -9" in its place.
constexpr int kSquareColumn = 4;
constexpr int kLinearColumn = 14;
constexpr int kConstantColumn = 24;
constexpr int kZeroColumn = 33;
constexpr int kValueWidth = 6;
constexpr int kTermRow = 9;
constexpr int kValueRow = 12;

std::string SubstitutedDiscriminant(const Quadratic& q) {
  return InParentheses(q.b) + "^2^ - 4" + tutor::Dot + InParentheses(q.a) + tutor::Dot +
         InParentheses(q.c);
}

void PrintSpread(double row, const std::string& square, const std::string& linear,
                 const std::string& constant) {
  PrintRow(row, square, kSquareColumn);
  PrintRow(row, linear, kLinearColumn);
  PrintRow(row, constant, kConstantColumn);
  PrintRow(row, "= 0", kZeroColumn);
}

void ShowWhiteBox(double row, double height) {
  wbPrepare(row, 36, height, platform::colour::White, platform::colour::Black);
  wbShow();
}

void TurnIntoValue(const std::string& term, const std::string& letter, int value, int column) {
  if (!term.empty()) AnimHere(kTermRow, column, kValueWidth, 1, 2, kValueRow - kTermRow, 50, 0);
  ClearCells(kValueRow, column, kValueWidth, 1);
  PrintRow(kValueRow, letter + " = " + NumStr(value), column);
}

}  // namespace

std::string QuadraticFormulaText() {
  return "x = (-b " + tutor::PlusOrMinus + " `b^2^ - 4ac`)/(2a)";
}

void PrintStandardForm(double row) {
  PrintSpread(row, R"(\ya\zx^2^)", R"(+ \yb\zx)", R"(+ \yc\z)");
}

std::string RootsOver(int centre, const std::string& spread, int den) {
  return "(" + NumStr(centre) + " " + tutor::PlusOrMinus + " " + spread + ")/" + InParentheses(den);
}

void PrintSpreadEquation(const Quadratic& equation) {
  PrintSpread(kTermRow, SquareTerm(equation.a), LinearTerm(equation.b), ConstantTerm(equation.c));
}

void TurnTermsIntoValues(const Quadratic& equation) {
  TurnIntoValue(SquareTerm(equation.a), "a", equation.a, kSquareColumn);
  TurnIntoValue(LinearTerm(equation.b), "b", equation.b, kLinearColumn);
  TurnIntoValue(ConstantTerm(equation.c), "c", equation.c, kConstantColumn);
}

void CarryAcross(double row, int column, int width, int columns) {
  AnimHere(row, column, width, 1, 2, 1, 50, 1);
  AnimHere(row + 1, column, width, 1, 4, columns, 50, 1);
  AnimHere(row + 1, column + columns, width, 1, 1, 1, 50, 1);
}

namespace {

// The steps of one solution, in their order.
class FormulaSteps {
 public:
  explicit FormulaSteps(const Quadratic& equation) : equation_(equation) {}
  void Run();

 private:
  void ReadOff();
  void ShowNotes() const;
  void PutIn();
  void WorkOutDiscriminant();
  void ConcludeNoRealRoots();
  void DiscriminantUnderRadical();
  void SimplifyRadical();
  void ReduceRoots();
  void SplitRoots();
  void CheckRoot();
  void WriteAnswer(double row);

  std::string Unreduced(const std::string& spread) const;
  std::string InsertedRoot(const Fraction& root) const;
  std::string InsertedValues(const Fraction& root) const;

  int Discriminant() const { return equation_.Discriminant(); }
  Radical Root() const { return RootOf(Discriminant()); }
  RootPair Answer() const { return *RootsOf(-equation_.b, Discriminant(), 2 * equation_.a); }

  const Quadratic equation_;
};

void FormulaSteps::Run() {
  ReadOff();
  PutIn();
  WorkOutDiscriminant();
  if (Discriminant() < 0) return ConcludeNoRealRoots();
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

// What is not plain to see about the three values, in a box as high as it needs to be.
void FormulaSteps::ShowNotes() const {
  const auto [a, b, c] = equation_;
  std::vector<std::string> notes;
  if (std::abs(a) == 1)
    notes.push_back(SquareTerm(a) + " is the same as " + NumStr(a) + "x^2^, so a is " + NumStr(a) +
                    ".");
  if (std::abs(b) == 1) {
    const std::string sign = b < 0 ? "- " : "+ ";
    notes.push_back(sign + "x is the same as " + sign + "1x, so b is " + NumStr(b) + ".");
  }
  if (b == 0) notes.push_back("There is no term with x, so b is 0.");
  if (c == 0) notes.push_back("There is no number alone, so c is 0.");
  notes.push_back(R"(Each number takes \bits sign\z along.)");
  ShowWhiteBox(15, static_cast<double>(notes.size()) + 0.6);
  for (const std::string& note : notes) wbWordWrap(note);
}

void FormulaSteps::ReadOff() {
  WrapAt(5, "We compare the equation with the standard form.");
  PrintStandardForm(7.5);
  PrintSpreadEquation(equation_);
  PageEnd();
  TurnTermsIntoValues(equation_);
  ShowNotes();
  PageEnd();
  wbHide();
}

void FormulaSteps::PutIn() {
  const auto [a, b, c] = equation_;
  // The three values slide to the top and wipe the rest away.
  AnimHere(kValueRow, 1, 40, 1, 1, kValueRow - 2, 30, 1);
  PrintStackedRow(5, QuadraticFormulaText());
  PageEnd();
  WrapAt(8, R"(We put the numbers in, \ynegative ones in parentheses\z.)");
  PrintStackedRow(12, "x = (-" + InParentheses(b) + " " + tutor::PlusOrMinus + " `" +
                          SubstitutedDiscriminant(equation_) + "`)/(2" + tutor::Dot +
                          InParentheses(a) + ")");
  PageEnd();
}

// --- The discriminant ----------------------------------------------------------------------------

void FormulaSteps::WorkOutDiscriminant() {
  const auto [a, b, c] = equation_;
  const int product = 4 * a * c;
  ShowWhiteBox(15, 5.6);
  wbWordWrap(R"(The number under the radical is called the \bdiscriminant\z.)");
  wbWordWrap("b^2^ - 4ac = " + SubstitutedDiscriminant(equation_));
  PageEnd();
  wbWordWrap("         = " + NumStr(b * b) + (product < 0 ? " + " : " - ") +
             NumStr(std::abs(product)));
  wbWordWrap("         = " + NumStr(Discriminant()));
  PageEnd();
}

void FormulaSteps::ConcludeNoRealRoots() {
  WrapAt(22, R"(Since the discriminant is \ynegative\z, there are \yno real roots\z.)");
  PageEnd();
  wbHide();
  // The sentence slides up and wipes the steps away.
  AnimHere(22, 1, 40, 2, 1, 20, 30, 1);
  WrapAt(5.5, "No real number times itself is " + NumStr(Discriminant()) +
                  ", so the radical in the formula is no real number.");
  PageEnd();
  WrapAt(10, "The answer is:");
  PrintRow(12, kNoRealRoots, 7);
  PageEnd();
}

std::string FormulaSteps::Unreduced(const std::string& spread) const {
  return "x = " + RootsOver(-equation_.b, spread, 2 * equation_.a);
}

void FormulaSteps::DiscriminantUnderRadical() {
  wbHide();
  WrapAt(15, "The discriminant goes under the radical.");
  PrintStackedRow(18, Unreduced(RadicalSignText(Discriminant())));
  PageEnd();
  // The line slides up, with the row above for the radical's bar, and wipes the steps away.
  AnimHere(16, 1, 40, 4, 1, 14, 30, 1);
  WrapAt(6.5, "Simplify the expression on the right side of the equation.");
  PageEnd();
}

// --- Irrational roots ----------------------------------------------------------------------------

void FormulaSteps::SimplifyRadical() {
  const Radical root = Root();
  const std::string discriminant = NumStr(Discriminant());
  const std::string sign = RadicalSignText(Discriminant());
  if (root.outside == 1) {
    WrapAt(9.5, discriminant + R"( has no square factor, so the \yradical\z stays as it is.)");
    PageEnd();
    return;
  }
  const std::string outside = NumStr(root.outside);
  const std::string radicand = outside + "^2^" + tutor::Dot + NumStr(root.radicand);
  WrapAt(9, discriminant + " is " + radicand + R"(, so \y)" + outside +
                R"(\z can leave the radical.)");
  PrintStackedRow(12, sign + " =    `" + radicand + "`");
  PageEnd();
  // Under the radical to its left side: the sign stands four columns behind the first blank.
  const int width = static_cast<int>(outside.size());
  const int start = 3 + static_cast<int>(sign.size()) + 6;
  CarryAcross(12, start, width, -width - 1);
  ClearRows(11.4, 2);
  PrintStackedRow(12, sign + " = " + RadicalText(root));
  PrintStackedRow(15, Unreduced(RadicalText(root)));
  PageEnd();
}

void FormulaSteps::ReduceRoots() {
  const auto [a, b, c] = equation_;
  const bool unchanged = Root().outside == 1;  // the line to reduce stands at the top already
  const int common = 2 * a / Answer().den;
  if (common == 1) return WriteAnswer(unchanged ? 13 : 18);
  if (unchanged)
    ClearRows(6, 6);
  else
    AnimHere(13, 1, 40, 4, 1, 11, 30, 1);
  std::string text = "We divide by -1 to make the denominator positive.";
  if (std::abs(common) != 1) {
    const std::string outside = NumStr(Root().outside);
    text = (b == 0 ? outside : NumStr(-b) + ", " + outside) + " and " + NumStr(2 * a) +
           " have the factor " + NumStr(common) + ".  We divide by it.";
  }
  if (common < 0)
    text += R"(  \y)" + tutor::PlusOrMinus + R"(\z stands for both signs, so it stays.)";
  WrapAt(7, text);
  PrintStackedRow(12, "x = " + RootsText(Answer()));
  PageEnd();
  WriteAnswer(15);
}

// --- Rational roots ------------------------------------------------------------------------------

void FormulaSteps::SplitRoots() {
  const int den = 2 * equation_.a;
  const int spread = Root().outside;
  const auto printRoot = [&](int row, const std::string& sign, const Fraction& root) {
    ClearRows(row - 1, 3);
    PrintStackedRow(row, "x = (" + NumStr(-equation_.b) + sign + NumStr(spread) + ")/" +
                             InParentheses(den) + " = " + ValueText(root));
  };
  if (spread == 0) {
    WrapAt(9.5, "The square root of 0 is 0, so both signs give the same number.");
    printRoot(13, " + ", Answer().Larger());
    PageEnd();
    return;
  }
  WrapAt(9, NumStr(Discriminant()) + " is " + NumStr(spread) + "^2^, so its square root is " +
                NumStr(spread) + R"(.  We take \y+\z first, then \y-\z.)");
  PrintStackedRow(13, Unreduced(NumStr(spread)));
  PageEnd();
  // The line with both signs becomes a line for each.
  AnimHere(12, 1, 40, 3, 2, 5, 30, 0);
  printRoot(13, " + ", Reduced(-equation_.b + spread, den));
  printRoot(18, " - ", Reduced(-equation_.b - spread, den));
  PageEnd();
}

// "2.(3/4)^2^ - 5.(3/4) - 3"
std::string FormulaSteps::InsertedRoot(const Fraction& root) const {
  const auto [a, b, c] = equation_;
  const bool plain = root.den == 1 && root.num >= 0;
  const std::string text = plain ? ValueText(root) : "(" + ValueText(root) + ")";
  const auto factor = [](int n) { return CoefText(n) + (std::abs(n) == 1 ? "" : tutor::Dot); };
  std::string line = factor(a) + text + "^2^";
  if (b != 0) line += (b < 0 ? " - " : " + ") + factor(std::abs(b)) + text;
  return c == 0 ? line : line + " " + ConstantTerm(c);
}

// The values of its terms.
std::string FormulaSteps::InsertedValues(const Fraction& root) const {
  const auto [a, b, c] = equation_;
  const Fraction linear = Reduced(b * root.num, root.den);
  std::string line = ValueText(Reduced(a * root.num * root.num, root.den * root.den));
  if (b != 0)
    line += (linear.num < 0 ? " - " : " + ") + ValueText({std::abs(linear.num), linear.den});
  return c == 0 ? line : line + " " + ConstantTerm(c);
}

// One root goes back into the equation, and not 0 if there is another.
void FormulaSteps::CheckRoot() {
  const Fraction larger = Answer().Larger();
  const Fraction root = larger.num == 0 ? Answer().Smaller() : larger;
  NewScreen();
  PrintRow(3, EquationText(equation_));
  WrapAt(5, R"(We check \yx = )" + ValueText(root) + R"(\z on the left side.)");
  PrintStackedRow(8, InsertedRoot(root));
  PageEnd();
  PrintStackedRow(12, "= " + InsertedValues(root));
  PageEnd();
  PrintStackedRow(15, "= 0");
  PageEnd();
  WriteAnswer(18);
}

void FormulaSteps::WriteAnswer(double row) {
  const RootPair answer = Answer();
  WrapAt(row, answer.Double() ? "The only root is" : "The roots are");
  PrintStackedRow(row + 2, RootsText(answer), 7);
  PageEnd();
}

}  // namespace

void SolveByFormula(const Quadratic& equation) {
  FormulaSteps(equation).Run();
}

}  // namespace course::quadratics
