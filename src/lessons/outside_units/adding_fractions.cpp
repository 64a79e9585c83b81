// The student can add two fractions: find their least common denominator, rename both, add the
// numerators, and write the sum in lowest terms, as a mixed number when it is above 1.
//
// Problems are of two kinds with equal chances.  The first has denominators up to 15 of which
// neither is a multiple of the other; in the second, with denominators up to 30, they also share a
// factor, so that the least common denominator is smaller than their product.  Either kind may have
// a negative second fraction, but the sum is always positive.
#include "lessons/families/fractions/fraction_steps.h"
#include "lessons/families/fractions/unlike_fractions.h"
#include "lessons/lesson.h"

namespace course {
namespace {

using namespace fractions;

using platform::colour::Cyan;
using platform::colour::Yellow;

// --- Teaching screens --------------------------------------------------------

// Parts one strip below the row slide up into the strip there.
void JoinParts(double row, double col, double wd) {
  constexpr double kDrop = 1.5;  // rows from strip to strip
  constexpr double kAbove = 0.1;
  constexpr double kPixel = 1.0 / gCellWidth;  // a line begins one pixel before its cell
  SlideUp({row + kDrop - kAbove, col - kPixel, wd + kPixel, 1.5}, kDrop);
}

void SameDenominator() {
  NewScreen();
  ShowAt(4, "3/7");
  SayAt(3, R"(the \cnumerator\z: how many parts)", {.col = 7});
  SayAt(5, R"(the \cdenominator\z: how many make 1)", {.col = 7});
  DrawStrip(7, 3, 35, 7, {{3, Yellow}});
  PageEnd();
  DrawStrip(8.5, 18, 10, 2, {{2, Cyan}});
  SayAt(11, R"(Fractions with the \ysame denominator\z count parts of the same size.  We add the )"
            R"(numerators and keep the denominator.)");
  PageEnd();
  JoinParts(7, 18, 10);
  ShowAt(15.5, "3/7 + 2/7 = (3 + 2)/7 = 5/7");
  PageEnd();
  Say(R"(\yWatch out:\z  Do not add the denominators.  That gives 5/14, but 3/7 alone is already )"
      "6/14.");
  PageEnd();

  NewScreen();
  SayAt(3, R"(\yTry it:\z  What is the sum of 1/5 and 3/5?)");
  PageEnd();
  ShowAt(6, "1/5 + 3/5 = (1 + 3)/5 = 4/5");
  DrawStrip(8.5, 3, 35, 5, {{1, Yellow}, {3, Cyan}});
  SayAt(10.5, "The four parts have the same size.");
  SayAt(13, R"(\yTry it:\z  What is 2/5 + 3/5?)");
  PageEnd();
  ShowAt(16, "2/5 + 3/5 = (2 + 3)/5 = 5/5 = 1");
  DrawStrip(18.5, 3, 35, 5, {{2, Yellow}, {3, Cyan}});
  SayAt(20.5, "All five parts make 1 whole.");
  PageEnd();
}

void CommonDenominators() {
  NewScreen();
  ShowAt(4, "1/2 + 1/3");
  Say("Halves and thirds are parts of different sizes: we cannot add them yet.");
  DrawStrip(9, 3, 36, 2, {{1, Yellow}});
  DrawStrip(10.5, 3, 36, 3, {{1, Cyan}});
  PageEnd();
  SayAt(12.5, "But we can cut both strips into sixths:");
  DrawStrip(9, 3, 36, 6, {{3, Yellow}});
  DrawStrip(10.5, 3, 36, 6, {{2, Cyan}});
  PageEnd();
  ShowAt(15, RenamedLine({1, 2}, 6));
  ShowAt(15, RenamedLine({1, 3}, 6), 22);
  Say(R"(6 is a \ccommon denominator\z: 2 and 3 both go into it evenly.)");
  PageEnd();
  ClearCells(10.4, 1, 40, 1.6);
  DrawStrip(10.5, 3, 12, 2, {{2, Cyan}});
  SlideRight({10.4, 2, 14, 1.5}, 18);
  JoinParts(9, 21, 12);
  ShowAt(21.5, "1/2 + 1/3 = 3/6 + 2/6 = 5/6");
  PageEnd();
}

void LeastCommonDenominators() {
  NewScreen();
  ShowAt(4, "5/12 + 7/18");
  Say(R"(The smallest common denominator is the \cleast common denominator\z, or LCD.)");
  PageEnd();
  Say(R"(We find it with \cprime numbers\z: 2, 3, 5, 7, and so on.  Only 1 and the number )"
      "itself go into a prime evenly.");
  PageEnd();
  Say("We write both denominators as products of primes:");
  GoBelow();
  Show(FactorsLine(12, 36));
  Show(FactorsLine(18, 36));
  PageEnd();
  Show(LcdLine(36));
  Say("12 has the 2 twice, and 18 has the 3 twice.  The LCD needs both, so that 12 and 18 go into "
      "it.");
  PageEnd();

  NewScreen();
  SayAt(3, R"(With the LCD we \crename\z both fractions: the same value, the new denominator.)");
  ShowAt(6.5, RenamedLine({5, 12}, 36));
  ShowAt(10, RenamedLine({7, 18}, 36));
  PageEnd();
  Say("Now we can add the numerators:");
  Show("15/36 + 14/36 = 29/36");
  PageEnd();

  NewScreen();
  SayAt(3, R"(\yTry it:\z  What is the LCD of 4 and 6?)");
  PageEnd();
  GoBelow();
  Show(FactorsLine(4, 12));
  Show(FactorsLine(6, 12));
  Show(LcdLine(12));
  Say("24 would do, too, but it is larger.");
  PageEnd();
}

void SumAboveOne() {
  NewScreen();
  SayAt(3, "Let's add two fractions step by step.");
  ShowAt(5.5, "5/6 + 7/10");
  PageEnd();
  Say(Text("6 = {} and 10 = {}: LCD = 30.", ProductText({2, 3}), ProductText({2, 5})));
  ShowAt(10.5, RenamedLine({5, 6}, 30));
  ShowAt(10.5, RenamedLine({7, 10}, 30), 23);
  PageEnd();
  Say("We add the numerators:");
  Show("25/30 + 21/30 = (25 + 21)/30 = 46/30");
  PageEnd();
  Say(R"(We \creduce\z to lowest terms: strike out 2.)");
  ShowReduced(46, 30, 2);
  PageEnd();
  ShowAt(NextRow() - 2.5, "= 1 8/15", 20);
  GoBelow();
  AddLine(R"(The sum is a \cmixed number\z: 23 = 15 + 8.)");
  PageEnd();
}

void NegativeFractions() {
  NewScreen();
  SayAt(3, R"(When a fraction is \cnegative\z, its numerator takes the minus sign along.)");
  ShowAt(6.5, "5/6 + (-3)/4");
  PageEnd();
  Say("The LCD is 12:");
  Show("(5 " + tutor::Times + " 2)/12 + (-3 " + tutor::Times + " 3)/12 = 10/12 + (-9)/12");
  PageEnd();
  Say("Adding -9 takes 9 parts away:");
  Show("(10 + (-9))/12 = 1/12");
  PageEnd();

  NewScreen();
  SayAt(3, R"(\yTry it:\z  What is 1/2 + (-1/3)?)");
  PageEnd();
  Show("3/6 + (-2)/6");
  DrawStrip(8.5, 3, 36, 6, {{3, Yellow}});
  PageEnd();
  SlideDown({8.4, 9, 12, 1.5}, 1.5);
  DrawStrip(8.5, 3, 36, 6, {{1, Yellow}});
  SayAt(12.5, "We take 2 of the 3 parts away:");
  Show("3/6 + (-2)/6 = 1/6");
  PageEnd();

  NewScreen();
  Say(R"(\yTry it:\z  What is the sum of 3/4 and 5/6?)");
  PageEnd();
  Show("9/12 + 10/12 = 19/12 = 1 7/12");
  Say("12 of the 19 parts make 1 whole.");
  PageEnd();
}

// --- The lesson ------------------------------------------------------------

class AddingFractions final : public LessonScript {
 public:
  using LessonScript::LessonScript;

 private:
  std::vector<Screen> Screens() override {
    return {{SameDenominator},
            {CommonDenominators, LeastCommonDenominators},
            {SumAboveOne, NegativeFractions}};
  }
  void DrawProblem(RandomStream& random) override;
  void ShowProblem() override;
  void ExplainProblem() override;

  std::vector<FractionMistake> Mistakes() const;
  void ExplainSum();

  UnlikeFractions pair_;
};

// --- Generator ---------------------------------------------------------------

void AddingFractions::DrawProblem(RandomStream& random) {
  pair_ = DrawUnlikeFractions(random, Operation::Add);
  problem.question = {"Add the fractions below.", pair_.Text()};
  FillFractionChoices(problem, pair_.Result(), Mistakes(), pair_.Denominator(), random);
}

// Some lead to more than the sum and some to less: else its size would tell the right one.
std::vector<FractionMistake> AddingFractions::Mistakes() const {
  const int lcd = pair_.Denominator();
  const auto [a, firstDen] = pair_.first;
  const auto [b, secondDen] = pair_.second;
  const int first = pair_.FirstNumerator();
  const int second = pair_.SecondNumerator();
  const int sum = pair_.ResultNumerator();
  const int common = Gcf(sum, lcd);
  std::vector<FractionMistake> mistakes;
  const auto add = [&](const char* name, int num, int den) {
    mistakes.push_back({name, num, den});
  };
  if (b < 0) add("leaves out the minus sign", first - second, lcd);
  add("adds the denominators too", a + b, firstDen + secondDen);
  if (common > 1) add("divides only the denominator by the common factor", sum, lcd / common);
  if (sum > lcd) add("puts the remainder over the numerator", 2 * sum - lcd, sum);
  const int crossed = a * (lcd / secondDen) + b * (lcd / firstDen);
  const auto addCrossed = [&] {
    add("multiplies each numerator by the factor of the other fraction", crossed, lcd);
  };
  add("keeps the larger denominator", a + b, std::max(firstDen, secondDen));
  if (sum > lcd && crossed > sum) addCrossed();
  add("keeps both numerators over the common denominator", a + b, lcd);
  addCrossed();  // passed over when it is there
  if (common > 1) add("divides only the numerator by the common factor", sum / common, lcd);
  if (sum < lcd) {
    add("renames the first fraction only", first + b, lcd);
    add("renames the second fraction only", a + second, lcd);
  }
  return mistakes;
}

// --- Problem page ------------------------------------------------------------

void AddingFractions::ShowProblem() {
  SayAt(5, problem.question[0]);
  ShowAt(8, pair_.Text(), 5);
  SayAt(11, "Find the sum in lowest terms.  A sum above 1 is written as a mixed number.");
  ShowAnswersInThreeColumns(problem, {.row = 14});
}

// --- Worked explanation ------------------------------------------------------

void AddingFractions::ExplainProblem() {
  ProblemBanner();
  ShowAt(5, pair_.Text());
  ExplainDenominator(pair_);
  ExplainRenaming(pair_);
  ExplainSum();
  ExplainLowestTerms(pair_);
  Conclude(problem);
}

void AddingFractions::ExplainSum() {
  ShowRenamed(pair_);
  Say("We add the numerators:");
  Show("(" + SumText(pair_.FirstNumerator(), pair_.SecondNumerator()) + ")/" +
       NumStr(pair_.Denominator()) + " = " +
       OverText(pair_.ResultNumerator(), pair_.Denominator()));
  PageEnd();
}

const LessonRegistration<AddingFractions> kRegistration("Adding Fractions");

}  // namespace
}  // namespace course
