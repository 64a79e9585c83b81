#include "lessons/families/systems/elimination_board.h"

#include <algorithm>
#include <cstdlib>

#include "display/animation.h"
#include "display/drawing.h"
#include "display/lesson_window.h"
#include "display/print_cells.h"
#include "engine/page.h"
#include "lessons/families/systems/system_steps.h"
#include "lessons/page/boxes.h"
#include "lessons/page/page_lines.h"
#include "lessons/page/say.h"
#include "lessons/page/show.h"
#include "mathkit/expressions.h"
#include "mathkit/tutor_codes.h"

namespace course::systems {
namespace {

using namespace page;

constexpr double kLabelCol = 1;
constexpr double kEquationCol = 14;  // behind "Equation 1:"
constexpr double kFactorCol = 33;

constexpr double RowOfEquation(int line) {
  return line == 1 ? 4.5 : 5.5;
}
constexpr double RowOfAddend(int line) {
  return line == 1 ? 7.2 : 8.2;
}
constexpr double kRuleRow = 8.85;  // the bar goes through the middle of its row
constexpr double kSumRow = 9.5;
constexpr double kWorkColumns = 40;  // "Multiply both sides of Equation 2 by -2" stays on one line

// The print cell that travels, in columns.
constexpr int kCellColumns = 18;
constexpr double kCellPoints = 16;
constexpr double kTravelSpeed = 30;

std::string AtRight(const std::string& text, std::size_t width) {
  std::string padded;
  for (std::size_t i = text.size(); i < width; ++i) padded += tutor::Gap;
  return padded + text;
}

void SlideInCell(const std::string& text, double fromRow, double toRow) {
  PrintCellTable cell;
  cell.widthPixels = kCellColumns * gCellWidth;
  cell.heightPixels = gCellHeight + 6;
  cell.cells = {{0, 0, 100, 100}};
  CellTable(cell, fromRow);
  frmPR->picPrintCellBox.SetLeft(frmPR->pnlLesson.Left() +
                                 static_cast<int>(gLeftMargin + (kEquationCol - 1) * gCellWidth) *
                                     platform::TwipsPerPixelX);
  picPrintCellPrint(1, text, platform::colour::Blue, kCellPoints);
  picPrintCellBoxMove(toRow - fromRow, 0, "V", kTravelSpeed);
  picPrintCellBoxHide();
}

}  // namespace

EliminationBoard::EliminationBoard(const LinearSystem& system)
    : system_(system), plan_(PlanFor(system)) {
  for (const LinearEquation& equation : {MultipleOf(1), MultipleOf(2), Sum()}) {
    columns_.x = std::max(columns_.x, LetterTermText(equation.a, 'x').size());
    columns_.y = std::max(columns_.y, LetterTermText(std::abs(equation.b), 'y').size());
    columns_.constant = std::max(columns_.constant, NumStr(equation.c).size());
  }
}

LinearEquation EliminationBoard::MultipleOf(int line) const {
  return Multiplied(system_.Line(line), plan_.Factor(line));
}

LinearEquation EliminationBoard::Sum() const {
  const LinearEquation first = MultipleOf(1);
  const LinearEquation second = MultipleOf(2);
  return {first.a + second.a, first.b + second.b, first.c + second.c};
}

// --- Columns -------------------------------------------------------------------------------------

constexpr std::size_t kSignWidth = 3;  // " + ", " = "

std::size_t EliminationBoard::Columns::LeftWidth() const {
  return x + kSignWidth + y;
}

std::size_t EliminationBoard::Columns::Width() const {
  return LeftWidth() + kSignWidth + constant;
}

// What drops out is yellow.
std::string EliminationBoard::InColumns(const LinearEquation& equation) const {
  const auto coloured = [&](const std::string& term, char letter) {
    return DropsOut(letter) ? R"(\y)" + term + R"(\z)" : term;
  };
  const std::string sign = tutor::Gap + (equation.b < 0 ? "-" : "+") + tutor::Gap;
  const std::string y = LetterTermText(std::abs(equation.b), 'y');
  return coloured(AtRight(LetterTermText(equation.a, 'x'), columns_.x), 'x') +
         coloured(sign + AtRight(y, columns_.y), 'y') + tutor::Gap + "=" + tutor::Gap +
         AtRight(NumStr(equation.c), columns_.constant);
}

std::string EliminationBoard::SumInColumns() const {
  const LinearEquation sum = Sum();
  std::string left = "0";
  if (sum.a != 0)
    left = AtRight(LetterTermText(sum.a, 'x'), columns_.x) + AtRight("", kSignWidth + columns_.y);
  else if (sum.b != 0)
    left = LetterTermText(sum.b, 'y');
  return AtRight(left, columns_.LeftWidth()) + tutor::Gap + "=" + tutor::Gap +
         AtRight(NumStr(sum.c), columns_.constant);
}

// --- The steps -----------------------------------------------------------------------------------

void EliminationBoard::ShowEquations() const {
  const std::string first = EquationText(system_.first);
  const std::string second = EquationText(system_.second);
  for (const int line : {1, 2}) ShowAt(RowOfEquation(line), Text("Equation {}:", line), kLabelCol);
  ShowAt(RowOfEquation(1), first, kEquationCol + ColumnsToAlign(first, second));
  ShowAt(RowOfEquation(2), second, kEquationCol + ColumnsToAlign(second, first));
}

void EliminationBoard::ShowFactors() const {
  for (const int line : {1, 2})
    if (plan_.Factor(line) != 1)
      ShowAt(RowOfEquation(line), Text("times {}", plan_.Factor(line)), kFactorCol);
}

void EliminationBoard::OpenWorkBox(double rows) const {
  ClearBelow(kBelowEquations);
  WhiteBox({.row = kBelow, .rows = rows, .width = kWorkColumns});
}

void EliminationBoard::MoveDown(int line) const {
  const LinearEquation multiple = MultipleOf(line);
  SlideInCell(EquationText(multiple), RowOfEquation(line), RowOfAddend(line));
  ShowAt(RowOfAddend(line), InColumns(multiple), kEquationCol);
}

// A factor at every term: "2(6x) + 2(-3y) = 2(-3)", "-2(6x) - 2(3y) = -2(5)".
std::string EliminationBoard::TermByTerm(int line) const {
  const auto [a, b, c] = system_.Line(line);
  const int factor = plan_.Factor(line);
  const auto inParentheses = [](const std::string& term) { return "(" + term + ")"; };
  return CoefText(factor) + inParentheses(LetterTermText(a, 'x')) + SignedCoefText(factor) +
         inParentheses(LetterTermText(b, 'y')) + " = " + CoefText(factor) +
         inParentheses(NumStr(c));
}

void EliminationBoard::SayMultiplication(int line) const {
  const std::string factor = NumStr(plan_.Factor(line));
  const std::string sides = EquationText(system_.Line(line));
  const std::size_t equals = sides.find(" = ");
  SayInBoxAnew(Text(R"(\bMultiply both sides of Equation {} by{}\z)", line, " " + factor));
  if (MultipliesBoth())  // else the page has no room
    SayInBox(AlignedEquation(factor + "(" + sides.substr(0, equals) + ") = " + factor + "(" +
                             sides.substr(equals + 3) + ")"));
  SayInBox(AlignedEquation(TermByTerm(line)));
}

void EliminationBoard::BringDown() const {
  for (const int line : {1, 2}) {
    if (MultipliesBoth() && line == 2) PageEnd();
    if (plan_.Factor(line) != 1) SayMultiplication(line);
    MoveDown(line);
  }
  if (plan_.firstFactor != 1 || plan_.secondFactor != 1) PageEnd();
}

void EliminationBoard::ShowSum() const {
  constexpr int kRulePixels = 2;
  isDrawHorizLine(kRuleRow, kEquationCol, kEquationCol + static_cast<double>(columns_.Width()),
                  kRulePixels);
  ShowAt(kSumRow, SumInColumns(), kEquationCol);
}

void EliminationBoard::Add() const {
  SayInBoxAnew(R"(\bAddition Principle of Equality:\z)");
  SayInBox("We add left sides and right sides.");
  ShowSum();
  if (Sum().a == 0 && Sum().b == 0) {
    SayInBox("Both letters drop out.");
  } else {
    const int coefficient = CoefficientOf(MultipleOf(1), plan_.letter);
    SayInBox(Text("{} and {} add up to 0.", LetterTermText(coefficient, plan_.letter),
                  LetterTermText(-coefficient, plan_.letter)));
  }
  PageEnd();
}

void EliminationBoard::SolveForLetter() const {
  const char letter = OtherLetter();
  const int coefficient = CoefficientOf(Sum(), letter);
  SayInBoxAnew(R"(\bSolve the new equation for the variable.\z)");
  SayInBox(AlignedEquation(LetterTermText(coefficient, letter) + " = " + NumStr(Sum().c)));
  if (coefficient != 1)
    SayStepInBox({ActionToIsolate(coefficient),
                  LetterTermText(1, letter) + " = " + NumStr(ValueOf(letter))});
}

// The number that is known, in Equation 1.
void EliminationBoard::SubstituteBack() const {
  const auto [a, b, c] = system_.first;
  const char found = OtherLetter();
  const int value = ValueOf(found);
  const int product = CoefficientOf(system_.first, found) * value;
  const int coefficient = CoefficientOf(system_.first, plan_.letter);
  const std::string right = " = " + NumStr(c);
  const std::string term = LetterTermText(coefficient, plan_.letter);
  SayInBoxAnew(Text("With {} = {} in Equation 1:", std::string(1, found), value));
  if (found == 'x') {
    SayInBox(AlignedEquation(TermText(a, value) + SignedCoefText(b) + "y" + right));
    SayInBox(AlignedEquation(NumStr(product) + SignedCoefText(b) + "y" + right));
  } else {
    SayInBox(AlignedEquation(term + LaterTermText(b, value) + right));
    SayInBox(AlignedEquation(term + tutor::Gap + SignedNumberText(product) + right));
  }
  PageEnd();
  SayStepInBox({ActionToRemove(product, ""), term + " = " + NumStr(c - product)});
  if (coefficient != 1)
    SayStepInBox({ActionToIsolate(coefficient),
                  LetterTermText(1, plan_.letter) + " = " + NumStr(ValueOf(plan_.letter))});
  PageEnd();
}

void EliminationBoard::Check() const {
  WhiteBox({.row = kBelow, .rows = kBelowCheck - 0.5 - kBelow});
  SayPairInBox(system_.x, system_.y);
  TryPairInBox(system_.first, system_.x, system_.y);
  TryPairInBox(system_.second, system_.x, system_.y);
}

}  // namespace course::systems
