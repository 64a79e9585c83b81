#include "lessons/families/lines/missing_coordinate.h"

#include "display/grid.h"
#include "engine/page.h"
#include "lessons/families/graphs/plane_figure.h"
#include "lessons/families/systems/system_steps.h"
#include "lessons/page/boxes.h"
#include "lessons/page/say.h"
#include "lessons/page/show.h"
#include "mathkit/expressions.h"
#include "mathkit/fraction.h"

namespace course::lines {
namespace {

using namespace graphs;
using namespace page;

constexpr int kPlane = 1;
constexpr int kSquare = 16;  // pixels
constexpr double kPlaneCol = 27;
constexpr TextPlace kBeside = {.lastCol = 26};
constexpr double kBelow = 9.2;  // rows from the top of the plane

// A part of a built-up fraction that may be negative.
std::string PartText(int number) {
  return number < 0 ? "(" + NumStr(number) + ")" : NumStr(number);
}

std::string PartText(const std::string& text) {
  return text.size() == 1 ? text : "(" + text + ")";
}

// "a - (-1) = a + 1", and "a - 1" as it is.
std::string DifferenceFromA(int subtracted) {
  const std::string difference = "a - " + InParentheses(subtracted);
  return subtracted > 0 ? difference : difference + " = " + LessThanA(subtracted);
}

Fraction SlopeOf(const SlopeStep& step) {
  return Reduced(step.Rise(), step.Run());
}

}  // namespace

MissingCoordinate::MissingCoordinate(const SlopeStep& step, bool isX, bool knownFirst)
    : step_(step), isX_(isX), knownFirst_(knownFirst) {}

std::string MissingCoordinate::OtherText() const {
  return isX_ ? GraphPointText("a", RaisedNumberText(step_.to.y))
              : GraphPointText(RaisedNumberText(step_.to.x), "a");
}

std::string MissingCoordinate::Question() const {
  const std::string known = GraphPointText(step_.from);
  return "The slope of the line connecting the points " + (knownFirst_ ? known : OtherText()) +
         " and " + (knownFirst_ ? OtherText() : known) + " is " + SlopeText(step_) + ".";
}

// --- The steps -----------------------------------------------------------------------------------

void MissingCoordinate::Find(double row) const {
  ShowPlane(kPlane, row, kPlaneCol, kSquare);
  KeepClearOf(step_);
  PlotNamed(step_.from);
  PageEnd();
  const std::string rise =
      isX_ ? DifferenceText(step_.to.y, step_.from.y) + " = " + NumStr(step_.Rise())
           : DifferenceFromA(step_.from.y);
  const std::string run =
      isX_ ? DifferenceFromA(step_.from.x)
           : DifferenceText(step_.to.x, step_.from.x) + " = " + NumStr(step_.Run());
  SayAt(row + 0.4, Text("From {} to {}:", GraphPointText(step_.from), OtherText()), kBeside);
  AddLine("rise = " + rise, kBeside);
  AddLine("run = " + run, kBeside);
  PageEnd();
  WriteSlope();
  PageEnd();
  Locate(row + kBelow, 1);
  CompareParts();
  PageEnd();
  SolveForA();
  DrawLineOf(step_);
  PlotNamed(step_.to);
  PageEnd();
  ClearBelow(row + kBelow);
}

// slope = rise/run, once with the number and once with a.
void MissingCoordinate::WriteSlope() const {
  const Fraction slope = SlopeOf(step_);
  const std::string rise = isX_ ? PartText(step_.Rise()) : PartText(LessThanA(step_.from.y));
  const std::string run = isX_ ? PartText(LessThanA(step_.from.x)) : PartText(step_.Run());
  Say(R"(Slope is \yrise over run\z:)", kBeside);
  Show(PartText(slope.num) + "/" + NumStr(slope.den) + " = " + rise + "/" + run);
}

// Both fractions are equal: what multiplies one part multiplies the other.
void MissingCoordinate::CompareParts() const {
  const Fraction slope = SlopeOf(step_);
  const int factor = step_.Rise() / slope.num;
  const int known = isX_ ? slope.num : slope.den;
  const int asked = isX_ ? slope.den : slope.num;
  if (factor == 1)
    AddLine(Text("Both {} are {}, so both {} are {}:", Words{isX_ ? "numerators" : "denominators"},
                 known, Words{isX_ ? "denominators" : "numerators"}, asked));
  else
    AddLine(Text("We multiply both parts of the slope by {}, since {}({}) = {}:", factor, known,
                 factor, known * factor));
  Show(LessThanA(Partner()) + " = " + NumStr(asked * factor));
}

void MissingCoordinate::SolveForA() const {
  if (Partner() == 0) return;
  AddLine(systems::ActionToRemove(-Partner(), ""));
  Show(Text("a = {}", Value()));
}

void MissingCoordinate::Check() const {
  AddLine(Text(R"(\yCheck:\z  From {} to {} we go {} and {}.)", GraphPointText(step_.from),
               GraphPointText(step_.to), Words{RunWords(step_.Run())},
               Words{RiseWords(step_.Rise())}));
  DrawOnPlane(kPlane, {StepItem(step_.from.x, step_.from.y, step_.Run(), step_.Rise())},
              kStepColour);
  Show(SlopeWorkedOut(step_));
}

}  // namespace course::lines
