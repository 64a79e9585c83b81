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
  constexpr double kFigureCol = 4;
  const TextPlace beside = {.col = 17};
  NewScreen();
  SayAt(3, "A square loses its lower right corner:");
  const SquareWithoutCorner figure(kRow, kFigureCol);
  PageEnd();
  figure.TakeCornerAway();
  SayAt(5.5, R"(\yTry it:\z  What area is left?)", beside);
  PageEnd();
  SayAt(8, "5^2^ is 25, and 2^2^ is 4.", beside);
  SayAt(9.5, "5^2^ - 2^2^ = 25 - 4 = 21", beside);
  PageEnd();
  figure.CutInTwo();
  SayAt(12, "We cut what is left in two.  The parts are 5 by 3 and 3 by 2.");
  PageEnd();
  Say("The lower part stands up beside the upper one.");
  figure.MoveBeside();
  Say(R"(\yTry it:\z  How long and how high is it?)");
  PageEnd();
  Say("It is 5 + 2 = 7 long and 5 - 2 = 3 high.  Its area is the same:");
  Show("(5 + 2)(5 - 2) = 7 " + tutor::Times + " 3 = 21", kCol);
  Show(R"(5^2^ - 2^2^ = \y(5 + 2)(5 - 2))", kCol);
  PageEnd();
}

void RuleForLetters() {
  NewScreen();
  SayAt(3, R"(A \cdifference\z is what subtracting gives.)");
  RuleBox("Difference of Two Squares", {"a^2^ - b^2^ = (a + b)(a - b)"}, {.width = 32});
  Say(R"(\yTry it:\z  Multiply out  )" + Text("{}.", Pair(1, 3)));
  PageEnd();
  Show(Pair(1, 3) + " = x^2^ - 3x + 3x - 9", kCol);
  Show(R"(               = \yx^2^ - 9)", kCol);
  Say("The middle terms cancel:  -3x + 3x = 0.");
  PageEnd();
  Say(R"(To \cfactor\z means to go back, from x^2^ - 9 to the factors.)");
  Say(R"(\yTry it:\z  Factor  )" + Text("{}.", "x^2^ - 49"));
  PageEnd();
  Say("49 is 7 times 7, so b is 7:");
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
  Say(R"(\yTry it:\z  x^2^ + 49 is a \ysum\z of two squares.  Does it have such factors?)");
  PageEnd();
  Say("No.  Two factors with the same sign give a middle term, 14x or -14x.  With different signs "
      "the last term is -49.  The sum stays as it is.");
  PageEnd();
}

void NumberInFront() {
  NewScreen();
  SayAt(3, "Let's factor this expression.  Both terms are squares:");
  ShowAt(6, "4x^2^ - 25", 12);
  Note(7.2, 6, "the square of 2x");
  Note(7.2, 18, "the square of 5");
  PageEnd();
  Say("We write the factors as the sum and difference of the values 2x and 5:");
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
  SayAt(3, "In 3x^2^ - 75 the numbers are no squares.  But 3 is a factor of both terms.");
  Say(R"(\yTry it:\z  What is left when we take the 3 out?)");
  PageEnd();
  Show("3x^2^ - 75 = 3(x^2^ - 25)", kCol);
  Say("In the parentheses stand the squares of x and 5:");
  Show(R"(3x^2^ - 75 = \y3)" + Pair(1, 5), kCol);
  PageEnd();
  Say(R"(To \cfactor completely\z, we take the common factor out first, and keep it in front.)");
  PageEnd();

  NewScreen();
  SayAt(3, R"(\yWatch out:\z  3 must not stay inside, or be lost.)");
  PaperBox({"3x^2^ - 75 = 3(x + 5)(x - 5)", R"(\rnot (3x + 15)(x - 5),\z  3x + 15 is 3(x + 5))",
            R"(\rnot (x + 5)(x - 5),\z    that is x^2^ - 25)"});
  PageEnd();
  Say(R"(\yTry it:\z  Factor completely:  )" + Text("{}", "20y^2^ - 45"));
  PageEnd();
  Say("5 is a factor of both terms.  Then 4y^2^ is 2y times 2y, and 9 is 3 times 3:");
  Show("20y^2^ - 45 = 5(4y^2^ - 9)", kCol);
  Show(R"(20y^2^ - 45 = \y5)" + Pair(2, 3, "y"), kCol);
  PageEnd();
}

void FourthPowers() {
  constexpr double kWide = 2;  // column of wide lines
  NewScreen();
  SayAt(3, "x^4^ is a square, too:  x^2^ times x^2^.");
  Show("x^4^ - 16 = (x^2^ + 4)(x^2^ - 4)", kWide);
  Say(R"(\yTry it:\z  Which of the two factors can be factored again?)");
  PageEnd();
  Say("x^2^ - 4 is a difference of squares.  The sum x^2^ + 4 stays as it is.");
  Show(R"(x^4^ - 16 = \y(x^2^ + 4))" + Pair(1, 2), kWide);
  PageEnd();
  Say(R"(\yWatch out:\z  These are not right.)");
  PaperBox({R"(\r(x^2^ + 4)(x^2^ - 4)\z  stops too early)",
            R"(\r(x + 2)^2^(x - 2)^2^\z  but x^2^ + 4 is a sum)"});
  PageEnd();
  Say(R"(\yTry it:\z  Factor completely:  )" + Text("{}", "81y^4^ - 1"));
  PageEnd();
  Say("81y^4^ is 9y^2^ times 9y^2^:");
  Show("81y^4^ - 1 = (9y^2^ + 1)(9y^2^ - 1)", kWide);
  Show(R"(         = \y(9y^2^ + 1))" + Pair(3, 1, "y"), kWide);
  PageEnd();
}

// --- The lesson ----------------------------------------------------------------------------------

class DifferenceOfTwoSquares final : public LessonScript {
 public:
  using LessonScript::LessonScript;

 private:
  std::vector<Screen> Screens() override {
    return {{AreaWithoutCorner, RuleForLetters, NotASquareOfADifference, NumberInFront},
            {CommonFactorFirst, FourthPowers}};
  }
  void DrawProblem(RandomStream& random) override;
  void ShowProblem() override;
  void ExplainProblem() override;

  void BeginPage() const;
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

void DifferenceOfTwoSquares::TakeCommonFactorOut() const {
  Say(Text("{} is a factor of both terms.  We take it out:", asked_.common));
  Show("= " + NumStr(asked_.common) + "(" + asked_.WithoutCommon() + ")", kCol);
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
  Show("= " + CoefText(asked_.common) + difference.SumTimesDifference(), kCol);
  PageEnd();
}

void DifferenceOfTwoSquares::FactorAgain() const {
  NewScreen();
  BeginPage();
  Show("= " + asked_.SumTimesDifference(), kCol);
  const SquareDifference inner = asked_.Bared();
  Say(Text(R"({} is a difference of two squares, too, of {} and {}.)", inner.WithoutCommon(),
           inner.FirstRoot(), inner.LastRoot()));
  Show(inner.WithoutCommon() + " = " + inner.SumTimesDifference(), kCol);
  PageEnd();
  Say("The sum of two squares stays as it is:");
  Show("= " + asked_.Factored(), kCol);
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
  const std::string before = asked_.common > 1
                                 ? NumStr(asked_.common)
                                 : FactorOf(asked_.FirstRoot(), asked_.LastRoot());
  SayInBox("The other factor comes in:");
  SayInBox(Text("  {}({}) = {}", before, inner.WithoutCommon(), asked_.Asked()));
  PageEnd();
}

const LessonRegistration<DifferenceOfTwoSquares> kRegistration("Difference of Two Squares");

}  // namespace
}  // namespace course
