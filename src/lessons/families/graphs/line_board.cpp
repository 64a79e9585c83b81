#include "lessons/families/graphs/line_board.h"

#include <cstdlib>
#include <numeric>

#include "lessons/families/graphs/plane_figure.h"
#include "lessons/page/boxes.h"
#include "lessons/page/say.h"
#include "lessons/page/show.h"
#include "mathkit/expressions.h"
#include "mathkit/tutor_codes.h"

namespace course::graphs {
namespace {

using namespace page;

constexpr int kPlane = 1;
constexpr int kGridEnd = 5;
constexpr double kKnownRow = 11.5;  // of what is known, beside the plane
constexpr double kSlopeCol = 3;
constexpr double kInterceptCol = 13;
constexpr platform::Colour kLineColour = platform::colour::Blue;

bool IsOnGrid(const GridPoint& point) {
  return std::abs(point.x) <= kGridEnd && std::abs(point.y) <= kGridEnd;
}

double ValueOf(const Fraction& fraction) {
  return static_cast<double>(fraction.num) / fraction.den;
}

Fraction Whole(int number) {
  return {number, 1};
}

void SayBelow(const std::string& text) {
  ClearBelow(LineBoard::kBelowPlane);
  SayAt(LineBoard::kBelowPlane, text);
}

// "-1 - (-3)", in parentheses that a fraction bar makes needless.
std::string DifferenceText(int a, int b) {
  return "(" + NumStr(a) + " - " + InParentheses(b) + ")";
}

// "-3/7"; before it "6/(-14)" where that is another fraction.
std::string QuotientText(int rise, int run) {
  if (run == 0) return NumStr(rise) + "/0";
  const std::string value = ValueText(Reduced(rise, run));
  if (run > 1 && std::gcd(rise, run) == 1) return value;
  const auto part = [](int n) { return n < 0 ? "(" + NumStr(n) + ")" : NumStr(n); };
  return part(rise) + "/" + part(run) + " = " + value;
}

// The slope times a number in place of x: "-3/7 (2)", "-2(-3)", "-(-3)", "4".
std::string ProductText(const Fraction& slope, int x) {
  const std::string number = "(" + NumStr(x) + ")";
  if (slope.den != 1) return ValueText(slope) + tutor::Gap + number;
  if (slope.num == 1) return NumStr(x);
  return CoefText(slope.num) + (slope.num == -1 && x >= 0 ? NumStr(x) : number);
}

// b = y - product, with a common denominator where there is one.
std::string DifferenceSteps(int y, const Fraction& product) {
  const Fraction result = Whole(y) - product;
  const Fraction turned = Whole(0) - product;
  std::string steps = NumStr(y) + SignedText(turned);
  if (product.den != 1 && y != 0) {
    steps +=
        " = " + FractionOfTexts(NumStr(y * product.den), NumStr(product.den)) + SignedText(turned);
    const int sum = y * product.den - product.num;
    if (result.den != product.den)
      steps += " = " + FractionOfTexts(NumStr(sum), NumStr(product.den));
  }
  return steps + " = " + ValueText(result);
}

}  // namespace

LineBoard::LineBoard(const LineThroughPoints& line) : line_(line) {}

bool LineBoard::IsOnPlane() const {
  return IsOnGrid(line_.first) && IsOnGrid(line_.second);
}

Fraction LineBoard::Product() const {
  return line_.Slope() * Whole(line_.first.x);
}

// --- The plane -----------------------------------------------------------------------------------

void LineBoard::ShowPoints() const {
  if (!IsOnPlane()) return;
  ShowPlaneAtRight(kPlaneRow);
  const LineEquation equation = line_.Equation();
  KeepLabelsClearOf(
      kPlane, {equation.vertical ? UprightItem(line_.first.x)
                                 : LineItem(ValueOf(equation.slope), ValueOf(equation.constant))});
  for (const GridPoint& point : {line_.first, line_.second})
    DrawOnPlane(kPlane, {PointItem(point.x, point.y, PointText(point))});
}

// Fractions make a label that is hard to read along a line.
void LineBoard::DrawLine() const {
  if (!IsOnPlane()) return;
  const LineEquation equation = line_.Equation();
  const bool isWhole = equation.slope.den == 1 && equation.constant.den == 1;
  const std::string label = isWhole ? EquationText(equation) : "";
  DrawOnPlane(
      kPlane,
      {equation.vertical ? UprightItem(line_.first.x, label)
                         : LineItem(ValueOf(equation.slope), ValueOf(equation.constant), label)},
      kLineColour);
}

// --- The steps -----------------------------------------------------------------------------------

void LineBoard::FindSlope() const {
  const auto& [first, second] = line_;
  ShowAt(kKnownRow, line_.IsVertical() ? "Slope:  Undefined" : "m = " + SlopeText(line_),
         kSlopeCol);
  SayBelow("The slope m is rise over run:");
  Show("m = " + DifferenceText(second.y, first.y) + "/" + DifferenceText(second.x, first.x) +
       " = " + QuotientText(line_.Rise(), line_.Run()));
  if (line_.IsVertical()) AddLine("We cannot divide by 0.");
}

void LineBoard::PutFirstPointIn() const {
  const auto [x, y] = line_.first;
  const std::string left = NumStr(y) + " = ";
  const std::string product = ProductText(line_.Slope(), x);
  const std::string value = ValueText(Product());
  const Fraction slope = line_.Slope();
  const std::string unreduced =
      FractionOfTexts(NumStr(slope.num * x), NumStr(slope.den)) + " + b = ";
  const bool isReduced = slope.den == 1 || Product().den == slope.den;
  SayBelow(Text("We put m and {} into y = mx + b:", PointText(line_.first)));
  Show(left + product + " + b");
  if (product != value) Show(left + (isReduced ? "" : unreduced) + value + " + b");
}

void LineBoard::SolveForIntercept() const {
  const Fraction product = Product();
  const std::string intercept = "b = " + ValueText(line_.Intercept());
  const Fraction size = {std::abs(product.num), product.den};
  ShowAt(kKnownRow, intercept, kInterceptCol);
  if (product.num == 0) {
    SayBelow("0 plus b is b:");
    Show(intercept);
  } else {
    const int y = line_.first.y;
    SayBelow(Text(product.num > 0 ? "Subtracting {} from both sides:" : "Adding {} to both sides:",
                  ValueText(size)));
    if (product.den != 1 && y != 0)
      AddLine(Text("{} is {}.", y, NumStr(y * product.den) + "/" + NumStr(product.den)));
    Show("b = " + DifferenceSteps(line_.first.y, product));
  }
}

void LineBoard::ShowEquationAndCheck() const {
  const Fraction slope = line_.Slope();
  const auto [x, y] = line_.second;
  const Fraction constant = line_.Intercept();
  SayBelow("The equation y = mx + b becomes:");
  ShowAt(kBelowPlane + 2.3, EquationText(line_.Equation()));
  DrawLine();
  SayAt(kBelowPlane + 4.6,
        Text(R"(\yCheck:\z  x = {} gives the y of {}.)", x, PointText(line_.second)));
  const std::string product = ProductText(slope, x);
  const std::string value = ValueText(slope * Whole(x));
  std::string work = product + SignedText(constant);
  if (product != value && constant.num != 0) work += " = " + value + SignedText(constant);
  ShowAt(kBelowPlane + 6.9, work + " = " + NumStr(y));
}

void LineBoard::ShowHorizontal() const {
  SayBelow(
      Text("With m = 0 only y = b is left.  Both points have the y coordinate {}:", line_.first.y));
  Show(EquationText(line_.Equation()));
  DrawLine();
}

void LineBoard::ShowVertical() const {
  SayBelow("There is no m, so it is not y = mx + b.");
  Say(Text("All its points have the x coordinate {}:", line_.first.x));
  Show(EquationText(line_.Equation()));
  DrawLine();
}

}  // namespace course::graphs
