// The student can subtract two fractions: find their least common denominator, rename both,
// subtract the numerators, and write the difference in lowest terms.
//
// Problems are those of Adding Fractions with a minus sign: two kinds with equal chances, one of
// which has denominators that share a factor.  Either kind may have a negative second fraction.
// The larger fraction stands first, and no difference is above 1.
#include "lessons/families/fractions/fraction_steps.h"
#include "lessons/families/fractions/unlike_fractions.h"
#include "lessons/lesson.h"

namespace course {
namespace {

using namespace fractions;

using platform::colour::Cyan;
using platform::colour::Yellow;

const std::string kTimes = " " + tutor::Times + " ";

// --- Teaching screens --------------------------------------------------------

constexpr double kStripCol = 3;
constexpr double kStripWidth = 30;
constexpr double kStripDrop = 1.5;  // rows from strip to strip

// So many parts of a strip are yellow.
void ShowParts(double row, int parts, int filled) {
  DrawStrip(row, kStripCol, kStripWidth, parts, {{filled, Yellow}});
}

// The last ones of the yellow parts slide down out of the strip.
void TakeAway(double row, int parts, int filled, int taken) {
  constexpr double kAbove = 0.1;
  constexpr double kPixel = 1.0 / gCellWidth;  // a line begins one pixel before its cell
  const double part = kStripWidth / parts;
  const double left = kStripCol + (filled - taken) * part;
  SlideDown({row - kAbove, left - kPixel, taken * part + kPixel, kStripDrop}, kStripDrop);
  ShowParts(row, parts, filled - taken);
}

void SameDenominator() {
  NewScreen();
  ShowAt(4, "4/5 - 1/5");
  SayAt(3, R"(\cnumerator\z: how many parts)", {.col = 12});
  SayAt(5, R"(\cdenominator\z: how many make 1)", {.col = 12});
  ShowParts(7, 5, 4);
  PageEnd();
  SayAt(10.5, R"(Both fractions count fifths.  We have 4 parts and take 1 part away:)");
  TakeAway(7, 5, 4, 1);
  PageEnd();
  SayAt(13.5, R"(So we \ysubtract the numerators\z and keep the denominator.  The parts stay )"
              "fifths.");
  ShowAt(17, "4/5 - 1/5 = (4 - 1)/5 = 3/5");
  AddLine(R"(3/5 is the \cdifference\z.)");
  PageEnd();

  NewScreen();
  SayAt(3, R"(\yTry it:\z  What is 5/6 - 4/6?)");
  PageEnd();
  ShowAt(6, "5/6 - 4/6 = (5 - 4)/6 = 1/6");
  ShowParts(8.5, 6, 5);
  TakeAway(8.5, 6, 5, 4);
  SayAt(12, R"(\yTry it:\z  What is 1 - 1/3?)");
  PageEnd();
  SayAt(14, "1 whole is 3 thirds.  We take one away:");
  ShowAt(16.5, "1 - 1/3 = 3/3 - 1/3 = 2/3");
  ShowParts(19.5, 3, 3);
  TakeAway(19.5, 3, 3, 1);
  PageEnd();
}

void DifferentDenominators() {
  NewScreen();
  ShowAt(4, "1/2 - 1/3");
  Say("Halves and thirds are parts of different sizes.  We cannot subtract yet.");
  ShowParts(9, 2, 1);
  DrawStrip(10.5, kStripCol, kStripWidth, 3, {{1, Cyan}});
  PageEnd();
  SayAt(12.5, "We cut both strips into sixths:");
  ShowParts(9, 6, 3);
  DrawStrip(10.5, kStripCol, kStripWidth, 6, {{2, Cyan}});
  ShowAt(15, RenamedLine({1, 2}, 6));
  ShowAt(15, RenamedLine({1, 3}, 6), 22);
  PageEnd();
  SayAt(17.5, "Now all parts are sixths.  We take 2 of the 3 parts away:");
  ClearCells(10.4, 1, 40, 1.6);
  TakeAway(9, 6, 3, 2);
  ShowAt(21, "1/2 - 1/3 = 3/6 - 2/6 = 1/6");
  PageEnd();

  NewScreen();
  SayAt(3, R"(\yWatch out:\z  Someone does this:)");
  PaperBox({R"(\r5/6 - 3/8 = (5 - 3)/(8 - 6) = 2/2 = 1\z)"});
  Say("5/6 is less than 1.  Can 1 be left when we take something away from it?");
  PageEnd();
  Say("No: the rest must be less than 5/6.  We never subtract denominators.  They tell only how "
      "large the parts are.");
  Say(R"(\yTry it:\z  What is 3/4 - 1/2?)");
  PageEnd();
  Say("A half is 2 fourths:");
  Show("3/4 - 1/2 = 3/4 - 2/4 = 1/4");
  PageEnd();
}

void LeastCommonDenominators() {
  NewScreen();
  ShowAt(4, "11/12 - 5/18");
  Say(R"(We need a denominator that 12 and 18 both go into.  The smallest one is the )"
      R"(\cleast common denominator\z, or LCD.)");
  PageEnd();
  Say(R"(We find it with \cprime numbers\z: 2, 3, 5, 7, and so on.  Only 1 and the number )"
      "itself go into a prime.");
  PageEnd();
  GoBelow();
  Show(FactorsLine(12, 36));
  Show(FactorsLine(18, 36));
  PageEnd();
  Show(LcdLine(36));
  Say("12 has the 2 twice, and 18 has the 3 twice.  The LCD needs both.");
  PageEnd();

  NewScreen();
  ShowAt(4, "11/12 - 5/18");
  SayAt(4, "LCD = 36", {.col = 25});
  SayAt(7, R"(We \crename\z both, with the same value:)");
  ShowAt(10, RenamedLine({11, 12}, 36));
  ShowAt(13.5, RenamedLine({5, 18}, 36));
  PageEnd();
  Say("Now we can subtract the numerators:");
  Show("33/36 - 10/36 = (33 - 10)/36 = 23/36");
  PageEnd();

  NewScreen();
  SayAt(3, R"(\yWatch out:\z  Someone changes the denominators only:)");
  PaperBox({R"(\r11/12 - 5/18 = 11/36 - 5/36 = 6/36\z)"});
  Say("Is 11/36 the same number as 11/12?");
  PageEnd();
  Say("No.  A 36th is a third of a 12th, so we need three times as many.");
  Say(R"(\yTry it:\z  What is 5/6 - 3/4?)");
  PageEnd();
  Say("The LCD of 6 and 4 is 12:");
  Show("(5" + kTimes + "2)/12 - (3" + kTimes + "3)/12 = 10/12 - 9/12 = 1/12");
  PageEnd();
}

void LowestTerms() {
  NewScreen();
  ShowAt(4, "5/6 - 3/10");
  Say(Text("6 = {} and 10 = {}: LCD = 30.", ProductText({2, 3}), ProductText({2, 5})));
  Show("(5" + kTimes + "5)/30 - (3" + kTimes + "3)/30 = 25/30 - 9/30 = 16/30");
  Say(R"(Is 16/30 in \clowest terms\z?)");
  PageEnd();
  Say("No: 2 goes into 16 and into 30.  We strike it out, above and below:");
  ShowReduced(16, 30, 2);
  PageEnd();
  Say(R"(\yCheck:\z  What we took away, we add again:)");
  Show("16/30 + 9/30 = 25/30 = 5/6");
  PageEnd();
}

void NegativeFractions() {
  NewScreen();
  SayAt(3, R"(What if the second fraction is \cnegative\z?)");
  ShowAt(6, "3/7 - 1/7 = 2/7");
  ShowAt(9.5, "3/7 - 0/7 = 3/7");
  SayAt(12, "Each line takes 1/7 less.  What is next?");
  PageEnd();
  ClearBelow(12);
  ShowAt(13, "3/7 - (-1)/7 = 4/7");
  SayAt(15.5, R"(Each time 1/7 more is left.  So \ysubtracting -1/7 is the same as adding 1/7\z.)");
  PageEnd();
  Say(R"(\yWatch out:\z  There are two minus signs.  Do not leave one out: 3/7 - 1/7 is only )"
      "2/7.");
  PageEnd();

  NewScreen();
  SayAt(3, R"(\yTry it:\z  What is 1/4 - (-1/6)?)");
  PageEnd();
  SayAt(5, "The LCD is 12.  The numerator takes the minus sign along:");
  ShowAt(8.5, "1/4 - (-1)/6 = 3/12 - (-2)/12");
  PageEnd();
  SayAt(11, "Subtracting -2 is the same as adding 2:");
  ShowAt(13.5, "(3 - (-2))/12 = (3 + 2)/12 = 5/12");
  PageEnd();
}

// --- The lesson ------------------------------------------------------------

class SubtractingFractions final : public LessonScript {
 public:
  using LessonScript::LessonScript;

 private:
  std::vector<Screen> Screens() override {
    return {{SameDenominator, DifferentDenominators, LeastCommonDenominators, LowestTerms,
             NegativeFractions}};
  }
  void DrawProblem(RandomStream& random) override;
  void ShowProblem() override;
  void ExplainProblem() override;

  std::vector<FractionMistake> Mistakes() const;
  void ExplainDifference();
  void ExplainCheck();

  UnlikeFractions pair_;
};

// --- Generator ---------------------------------------------------------------

void SubtractingFractions::DrawProblem(RandomStream& random) {
  pair_ = DrawUnlikeFractions(random, Operation::Subtract);
  problem.question = {"Subtract the fractions below.", pair_.Text()};
  FillFractionChoices(problem, pair_.Result(), Mistakes(), pair_.Denominator(), random);
}

// Some lead to more than the difference and some to less: else its size would tell the right one.
std::vector<FractionMistake> SubtractingFractions::Mistakes() const {
  const int lcd = pair_.Denominator();
  const auto [a, firstDen] = pair_.first;
  const auto [b, secondDen] = pair_.second;
  const int first = pair_.FirstNumerator();
  const int second = pair_.SecondNumerator();
  const int difference = pair_.ResultNumerator();
  const int common = Gcf(difference, lcd);
  std::vector<FractionMistake> mistakes;
  const auto add = [&](const char* name, int num, int den) {
    mistakes.push_back({name, num, den});
  };
  if (b < 0) {
    add("leaves out one of the minus signs", first + second, lcd);
    add("adds the denominators too", a - b, firstDen + secondDen);
  } else if (a > b && firstDen > secondDen) {
    add("subtracts the denominators too", a - b, firstDen - secondDen);
  } else {
    add("takes the smaller number from the larger above and below", std::abs(a - b),
        std::abs(firstDen - secondDen));
  }
  if (common > 1)
    add("divides only the denominator by the common factor", difference, lcd / common);
  if (a > b) {
    add("keeps both numerators over the common denominator", a - b, lcd);
  } else {
    add("keeps both numerators and takes the smaller from the larger", b - a, lcd);
  }
  add("multiplies each numerator by the factor of the other fraction",
      a * (lcd / secondDen) - b * (lcd / firstDen), lcd);
  if (b > 0) add("adds in place of subtracting", first + second, lcd);
  add("renames the second fraction only", a - second, lcd);
  add("renames the first fraction only", first - b, lcd);
  if (common > 1) add("divides only the numerator by the common factor", difference / common, lcd);
  return mistakes;
}

// --- Problem page ------------------------------------------------------------

void SubtractingFractions::ShowProblem() {
  SayAt(5, problem.question[0]);
  ShowAt(8, pair_.Text(), 5);
  SayAt(11, "Find the difference in lowest terms.");
  ShowAnswersInThreeColumns(problem, {.row = 14});
}

// --- Worked explanation ------------------------------------------------------

void SubtractingFractions::ExplainProblem() {
  ProblemBanner();
  ShowAt(5, pair_.Text());
  ExplainDenominator(pair_);
  ExplainRenaming(pair_);
  ExplainDifference();
  ExplainLowestTerms(pair_);
  ExplainCheck();
  Conclude(problem);
}

void SubtractingFractions::ExplainDifference() {
  const std::string over = ")/" + NumStr(pair_.Denominator());
  const std::string first = NumStr(pair_.FirstNumerator());
  const int second = pair_.SecondNumerator();
  const std::string result = " = " + OverText(pair_.ResultNumerator(), pair_.Denominator());
  ShowRenamed(pair_);
  if (second > 0) {
    Say("We subtract the numerators:");
    Show("(" + first + " - " + NumStr(second) + over + result);
  } else {
    const std::string opposite = NumStr(-second);
    Say(Text("Subtracting {} means adding {}:", second, opposite));
    Show("(" + first + " - (" + NumStr(second) + ")" + over + " = (" + first + " + " + opposite +
         over + result);
  }
  PageEnd();
}

void SubtractingFractions::ExplainCheck() {
  const int den = pair_.Denominator();
  Say(R"(\yCheck:\z  We add again what we took away:)");
  Show(OverText(pair_.ResultNumerator(), den) + " + " + OverText(pair_.SecondNumerator(), den) +
       " = " + OverText(pair_.FirstNumerator(), den) + " = " + OverText(pair_.first));
  PageEnd();
}

const LessonRegistration<SubtractingFractions> kRegistration("Subtracting Fractions");

}  // namespace
}  // namespace course
