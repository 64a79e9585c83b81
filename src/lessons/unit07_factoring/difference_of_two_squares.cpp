// The student can factor a difference of two squares such as 4x^2 - 25, also behind a common factor
// and with fourth powers, and knows that a sum of two squares has no such factors.
#include "lessons/families/polynomials/square_difference.h"
#include "lessons/families/polynomials/square_figures.h"
#include "lessons/lesson.h"

namespace course {
namespace {

using namespace polynomials;

constexpr double kCol = 4;  // of lines of mathematics

// "(2x + 5)(2x - 5)" in a sentence or a line, for whole numbers.
std::string Pair(int a, int b, const std::string& letter = "x") {
  return SquareDifference{DifferenceForm::Bare, letter, a, b}.SumTimesDifference();
}

// --- Screen 1: a^2 - b^2 -------------------------------------------------------------------------

void AreaWithoutCorner() {
  constexpr double kRow = 5.5;
  constexpr double kFigureCol = 1.3;
  const TextPlace beside = {.col = 14};
  NewScreen();
  SayAt(3, "This square loses a corner with side 2:");
  const SquareWithoutCorner figure(kRow, kFigureCol);
  SayAt(6, R"(\yTry it:\z  What area is left?)", beside);
  PageEnd();
  figure.TakeCornerAway();
  SayAt(8, "5^2^ is 25, and 2^2^ is 4.", beside);
  SayAt(9.5, "5^2^ - 2^2^ = 25 - 4 = 21", beside);
  PageEnd();
  figure.CutInTwo();
  SayAt(12, "We cut what is left in two.  The parts are 5 by 3 and 3 by 2.");
  PageEnd();
  figure.MoveBeside();
  Say(R"(\yTry it:\z  How long and how high is the new rectangle?)");
  PageEnd();
  Say("It is 5 + 2 = 7 long and 5 - 2 = 3 high.  Its area is the same:");
  Show("(5 + 2)(5 - 2) = 7 " + tutor::Times + " 3 = 21", kCol);
  Show(R"(5^2^ - 2^2^ = \y(5 + 2)(5 - 2))", kCol);
  PageEnd();
}

void RuleForLetters() {
  NewScreen();
  SayAt(3, R"(A \cdifference\z is what subtracting gives.)");
  Say(R"(\yTry it:\z  Multiply out this product:)");
  Show(Pair(1, 3), kCol);
  PageEnd();
  Show("= x^2^ - 3x + 3x - 9", kCol);
  Show(R"(= \yx^2^ - 9)", kCol);
  Say("The middle terms cancel:  -3x + 3x = 0.");
  PageEnd();
  Say("They cancel for all terms a and b:");
  RuleBox("Difference of Two Squares", {"a^2^ - b^2^ = (a + b)(a - b)"}, {.width = 32});
  Say(R"(\yTry it:\z  Go back, and factor )" + Text("{}.", "x^2^ - 49"));
  PageEnd();
  Say("x^2^ is x times x, so a is x.  49 is 7 times 7, so b is 7:");
  Show(R"(x^2^ - 49 = \y)" + Pair(1, 7), kCol);
  PageEnd();
}

void NotASquareOfADifference() {
  NewScreen();
  SayAt(3, R"(\yTry it:\z  Ann writes  )" + Text("{}.  Is she right?", "x^2^ - 49 = (x - 7)^2^"));
  PageEnd();
  Say("No.  Her square has a middle term:");
  Show("(x - 7)^2^ = x^2^ - 7x - 7x + 49", kCol);
  Show("         = x^2^ - 14x + 49", kCol);
  PageEnd();
  Say(R"(\yWatch out:\z  The two signs are different.)");
  PaperBox(
      {R"(x^2^ - 49 = (x + 7)(x - 7),)", R"(\rnot (x - 7)(x - 7),\z  \rnot (x + 7)(x + 7)\z)"});
  PageEnd();

  NewScreen();
  SayAt(3, R"(\yTry it:\z  x^2^ + 49 is a \ysum\z of two squares.  Does it have such factors?)");
  PageEnd();
  Say("No.  (x + 7)(x - 7) ends in -49, and the same sign twice gives a middle term.");
  Say("In a sum of two squares, only a common factor can be taken out.");
  PageEnd();
}

void NumberInFront() {
  NewScreen();
  SayAt(3, "Let's factor this expression.  Both terms are squares:");
  ShowAt(6, "4x^2^ - 25", 12);
  Note(7.2, 6, "the square of 2x");
  Note(7.2, 18, "the square of 5");
  PageEnd();
  SayAt(9.5, "The factors are the sum and the difference of the values 2x and 5:");
  Show(R"(4x^2^ - 25 = \y)" + Pair(2, 5), kCol);
  PageEnd();
  Say(R"(\yWatch out:\z  These give other products.)");
  PaperBox({R"(\r(4x + 25)(4x - 25)\z = 16x^2^ - 625)", R"(\r(5x + 2)(5x - 2)\z = 25x^2^ - 4)"});
  Say(R"(\yTry it:\z  Factor  )" + Text("{}.", "64y^2^ - 1"));
  PageEnd();
  Say("64y^2^ is 8y times 8y, not 32y times 32y.  And 1 is 1 times 1:");
  Show(R"(64y^2^ - 1 = \y)" + Pair(8, 1, "y"), kCol);
  PageEnd();
}

// --- Screen 2: more factors ----------------------------------------------------------------------

void CommonFactorFirst() {
  NewScreen();
  SayAt(3, "In 3x^2^ - 75, 3 and 75 are not squares.  But 3 is a factor of both terms:");
  Show("3x^2^ - 75 = 3(x^2^ - 25)", kCol);
  Say(R"(\yTry it:\z  Can we go on?)");
  PageEnd();
  Say("Yes.  x^2^ and 25 are squares:");
  Show(R"(3x^2^ - 75 = \y3)" + Pair(1, 5), kCol);
  Say("A common factor is taken out first, and kept in front.");
  PageEnd();
  Say(R"(To \cfactor completely\z means to go on until no factor can be factored again.)");
  PaperBox({R"(\rnot (3x + 15)(x - 5),\z  3x + 15 is 3(x + 5))",
            R"(\rnot (x + 5)(x - 5),\z    that is x^2^ - 25)"});
  PageEnd();
}

void FindTheCommonFactor() {
  NewScreen();
  SayAt(3, R"(\yTry it:\z  Which number divides both terms of )" + Text("{}?", "147y^2^ - 75"));
  PageEnd();
  Say("1 + 4 + 7 = 12 and 7 + 5 = 12, so 3 divides both:");
  Show("147 = 3 " + tutor::Times + " 49 and 75 = 3 " + tutor::Times + " 25", kCol);
  Show("147y^2^ - 75 = 3(49y^2^ - 25)", kCol);
  PageEnd();
  Say("49y^2^ is 7y times 7y, and 25 is 5 times 5:");
  Show(R"(147y^2^ - 75 = \y3)" + Pair(7, 5, "y"), kCol);
  PageEnd();

  NewScreen();
  SayAt(3,
        R"(\yTry it:\z  Ben writes  )" + Text("{}.  Is he done?", "4x^2^ - 36 = (2x + 6)(2x - 6)"));
  PageEnd();
  Say("No.  Both factors have 2 in common.  We take out the 4 first:");
  Show("4x^2^ - 36 = 4(x^2^ - 9)", kCol);
  Show(R"(         = \y4)" + Pair(1, 3), kCol);
  PageEnd();
}

void FourthPowers() {
  constexpr double kWide = 2;  // column of wide lines
  NewScreen();
  SayAt(3, "x^4^ is x^2^ times x^2^, and 16 is 4 times 4.  Both are squares.");
  Say(R"(\yTry it:\z  What are the two factors of )" + Text("{}?", "x^4^ - 16"));
  PageEnd();
  Show("x^4^ - 16 = (x^2^ + 4)(x^2^ - 4)", kWide);
  Say(R"(\yTry it:\z  Which of the two factors can be factored again?)");
  PageEnd();
  Say("x^2^ - 4 is a difference of squares.  The sum x^2^ + 4 stays as it is.");
  Show(R"(x^4^ - 16 = \y(x^2^ + 4))" + Pair(1, 2), kWide);
  PageEnd();
  Say(R"(\yWatch out:\z  These are not right.)");
  PaperBox({R"(\r(x^2^ + 4)(x^2^ - 4)\z is not factored completely)",
            R"(\r(x + 2)^2^(x - 2)^2^:\z  x^2^ + 4 is not (x + 2)(x - 2))"});
  PageEnd();

  NewScreen();
  SayAt(3, R"(\yTry it:\z  Factor completely:  )" + Text("{}", "81y^4^ - 1"));
  PageEnd();
  Say("81y^4^ is 9y^2^ times 9y^2^:");
  Show("81y^4^ - 1 = (9y^2^ + 1)(9y^2^ - 1)", kWide);
  Say("9y^2^ - 1 goes on, with 3y and 1:");
  Show(R"(81y^4^ - 1 = \y(9y^2^ + 1))" + Pair(3, 1, "y"), kWide);
  PageEnd();
}

// --- The lesson ----------------------------------------------------------------------------------

class DifferenceOfTwoSquares final : public LessonScript {
 public:
  using LessonScript::LessonScript;

 private:
  std::vector<Screen> Screens() override {
    return {{AreaWithoutCorner, RuleForLetters, NotASquareOfADifference, NumberInFront},
            {CommonFactorFirst, FindTheCommonFactor, FourthPowers}};
  }
  void DrawProblem(RandomStream& random) override;
  void ShowProblem() override;
  void ExplainProblem() override;

  void BeginPage() const;
  void ShowEquation(const std::string& factors) const;
  std::string CommonFactorSeen() const;
  void TakeCommonFactorOut() const;
  void FactorDifference(const SquareDifference& difference) const;
  void FactorAgain() const;
  void Check() const;

  SquareDifference asked_;
};

// --- Generator -----------------------------------------------------------------------------------

void DifferenceOfTwoSquares::DrawProblem(RandomStream& random) {
  asked_ = DrawSquareDifference(random);
  problem.question = {"Factor this expression completely:", asked_.Asked()};
  problem.kind = choice_kind::FiveShuffled;
  problem.Right(1, asked_.Factored());
  int slot = 1;
  for (const WrongFactors& wrong : WrongFactorings(asked_, random))
    problem.Wrong(++slot, wrong.mistake, wrong.text);
}

// --- Problem page --------------------------------------------------------------------------------

void DifferenceOfTwoSquares::ShowProblem() {
  SayAt(5, problem.question[0]);
  ShowAt(7, problem.question[1], kCol);
  ShowAnswersInOneColumn(problem, {.row = 10, .width = 32});
}

// --- Worked explanation --------------------------------------------------------------------------

void DifferenceOfTwoSquares::ExplainProblem() {
  BeginPage();
  PageEnd();
  if (asked_.common > 1) TakeCommonFactorOut();
  FactorDifference(asked_);
  if (asked_.form == DifferenceForm::FourthPowers) FactorAgain();
  NewScreen();
  BeginPage();
  Check();
  Conclude(problem);
}

void DifferenceOfTwoSquares::BeginPage() const {
  ProblemBanner();
  SayAt(5, problem.question[0]);
  ShowAt(6.5, problem.question[1], kCol);
}

void DifferenceOfTwoSquares::ShowEquation(const std::string& factors) const {
  constexpr double kWideCol = 2;
  Show(asked_.Asked() + " = " + factors, kWideCol);
}

// "147 = 3 x 49 and 48 = 3 x 16"; a number that is the common factor itself needs no word.
std::string DifferenceOfTwoSquares::CommonFactorSeen() const {
  const int common = asked_.common;
  std::string seen;
  for (const int square : {asked_.a * asked_.a, asked_.b * asked_.b})
    if (square > 1)
      seen += (seen.empty() ? "" : " and ") +
              Text("{}", NumStr(common * square) + " = " + NumStr(common) + " " + tutor::Times +
                             " " + NumStr(square));
  return seen;
}

void DifferenceOfTwoSquares::TakeCommonFactorOut() const {
  if (asked_.commonRoot > 1) {
    Say("Both terms are squares, but they have a common factor.");
    PageEnd();
  }
  Say(Text("{} is a factor of both terms:  {}.  We take it out:", asked_.common,
           Words{CommonFactorSeen()}));
  ShowEquation(NumStr(asked_.common) + "(" + asked_.WithoutCommon() + ")");
  PageEnd();
}

void DifferenceOfTwoSquares::FactorDifference(const SquareDifference& difference) const {
  const std::string first = difference.FirstRoot();
  const int last = difference.LastRoot();
  Say(Text(R"({} is a \ydifference of two squares\z.  {} is {} times {}, and {} is {} times {}.)",
           difference.WithoutCommon(), difference.FirstSquare(), first, first,
           difference.LastSquare(), last, last));
  PageEnd();
  Say(Text("Write the factors as the sum and difference of the values {} and {}.", first, last));
  ShowEquation(CoefText(asked_.common) + difference.SumTimesDifference());
  PageEnd();
}

void DifferenceOfTwoSquares::FactorAgain() const {
  NewScreen();
  BeginPage();
  ShowEquation(asked_.SumTimesDifference());
  const SquareDifference inner = asked_.Bared();
  Say(Text(R"({} is a difference of two squares, too, of {} and {}.)", inner.WithoutCommon(),
           inner.FirstRoot(), inner.LastRoot()));
  Show(inner.WithoutCommon() + " = " + inner.SumTimesDifference(), kCol);
  PageEnd();
  Say("The sum of two squares stays as it is:");
  ShowEquation(asked_.Factored());
  PageEnd();
}

void DifferenceOfTwoSquares::Check() const {
  const bool bare = asked_.form == DifferenceForm::Bare;
  const SquareDifference inner = asked_.Bared();
  const std::string middle = PowerTerm(inner.a * inner.b, inner.letter, 1);
  WhiteBox({.row = 8.5, .rows = bare ? 7.0 : 10.0});
  SayInBox(R"(\bCheck:\z  We multiply out.)");
  SayInBox("  " + inner.SumTimesDifference());
  SayInBox(Text("= {} - {} + {} - {}", inner.FirstSquare(), middle, middle, inner.LastSquare()));
  SayInBox("= " + inner.WithoutCommon());
  PageEnd();
  if (bare) return;
  const std::string before =
      asked_.common > 1 ? NumStr(asked_.common) : FactorOf(asked_.FirstRoot(), asked_.LastRoot());
  SayInBox("The other factor comes in:");
  SayInBox(Text("  {}({}) = {}", before, inner.WithoutCommon(), asked_.Asked()));
  PageEnd();
}

const LessonRegistration<DifferenceOfTwoSquares> kRegistration("Difference of Two Squares");

}  // namespace
}  // namespace course
