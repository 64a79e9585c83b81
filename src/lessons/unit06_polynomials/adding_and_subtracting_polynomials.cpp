// The student can add and subtract polynomials: removes the parentheses, with every sign of the
// second polynomial changed in a subtraction, and combines like terms in columns.
//
// A problem is two sums of three terms in parentheses, x^2^, x and a number, with + or - between
// them.
#include "lessons/families/polynomials/combining_mistakes.h"
#include "lessons/families/polynomials/combining_steps.h"
#include "lessons/families/polynomials/distributing_table.h"
#include "lessons/families/polynomials/gathering_table.h"
#include "lessons/families/polynomials/headed_cells.h"
#include "lessons/families/polynomials/sum_of_terms.h"
#include "lessons/families/polynomials/sum_with_products.h"
#include "lessons/lesson.h"

namespace course {
namespace {

using namespace polynomials;

constexpr std::string_view kLetters = "cdhkmnpqrtuvwxyz";
constexpr int kLargest = 9;  // size of a coefficient
constexpr double kExpressionCol = 4;

// A screen with the expression above the table in which its opened terms are gathered.
GatheringTable OpenedTable(const std::string& expression, const Sum& opened) {
  NewScreen();
  ShowAt(3, expression, kExpressionCol);
  return GatheringTable(opened, 4.5);
}

void AddAll(GatheringTable& table) {
  table.GatherAll();
  table.AddUpAll();
}

// --- Teaching screens --------------------------------------------------------

void AddingInColumns() {
  NewScreen();
  SayAt(3, "To add two polynomials we write like terms in the same column:");
  Show("(3x^2^ + 5x + 2) + (2x^2^ + x + 4)", kExpressionCol);
  ShowHeadedCells(6.5, {"terms with x" + tutor::SquaredSign, "terms with x", "numbers"}, 3);
  PrintCells(1, {"3x^2^", "5x", "2", "2x^2^", "x", "4"});
  SayAt(12.5, R"(\yTry it:\z  What is the sum of each column?)");
  PageEnd();
  PrintCells(7, {"5x^2^", "6x", "6"}, platform::colour::Blue);
  ClearBelow(12.5);
  SayAt(12.5, Text(R"(x means 1x, so {}.  The sum is \y{}\z.)", "5x + x = 6x", "5x^2^ + 6x + 6"));
  PaperBox({R"(5x + x = 6x,  \rnot 5x\z)", R"(x^2^ + 3x^2^ = 4x^2^,  \rnot 3x^2^\z)"});
  PageEnd();

  NewScreen();
  SayAt(3, "Why columns?  We put 10 in place of x:");
  Show("3x^2^ + 5x + 2 = 352", kExpressionCol);
  Show("2x^2^ + x + 4 = 214", kExpressionCol);
  Show("5x^2^ + 6x + 6 = 566", kExpressionCol);
  PageEnd();
  Say("In 352 + 214 = 566, too, hundreds, tens and ones are added in columns.");
  PageEnd();
}

void PlusInFront() {
  const std::string asked = "(4x^2^ - 3x + 7) + (-2x^2^ - 5x - 1)";
  NewScreen();
  SayAt(3, R"(After a \yplus\z sign every term in the parentheses is added just as it is:)");
  Show(asked, kExpressionCol);
  Note(NextRow() + 0.2, 20, "no sign changes");
  PageEnd();
  GoBelow();
  AddLine(Text("We remove the parentheses.  {} is written {}:", "+ (-2x^2^)", "- 2x^2^"));
  Show("4x^2^ - 3x + 7 - 2x^2^ - 5x - 1", kExpressionCol);
  Say(R"(\yTry it:\z  What are the three sums?)");
  PageEnd();
  GatheringTable table =
      OpenedTable(asked, {{4, "xx"}, {-3, "x"}, {7, ""}, {-2, "xx"}, {-5, "x"}, {-1, ""}});
  AddAll(table);
  SayAt(table.RowBelow(), Text("{},  {},  {}.", "4 + (-2) = 2", "-3 + (-5) = -8", "7 + (-1) = 6"));
  AddLine(Text(R"(We get \y{}\z.)", "2x^2^ - 8x + 6"));
  PageEnd();
  Say(R"(\yWatch out:\z  The sum of two negative numbers is negative.  The exponent is kept.)");
  PaperBox({R"(-3x - 5x = -8x,  \rnot 8x\z, \rnot -8x^2^\z)"});
  PageEnd();

  NewScreen();
  SayAt(3, R"(\yWatch out:\z  Each term takes its sign along, and unlike terms stay apart:)");
  PaperBox({R"(7 - 1 = 6,  \rnot 8\z)", R"(2x^2^ - 8x + 6,  \rnot 2x^2^ - 2x\z)"});
  PageEnd();
}

void TakingAwayASum() {
  NewScreen();
  SayAt(3, "You have 20 dollars and spend 5 and 3:");
  Show("20 - (5 + 3) = 20 - 8 = 12", kExpressionCol);
  Show("20 - 5 - 3 = 12", kExpressionCol);
  Say(R"(\yTry it:\z  Is 20 - 5 + 3 the same?)");
  PageEnd();
  Say("No, that is 18.  The 3 is given back.");
  PageEnd();
  Say("A shirt costs 5 dollars, less 3 for a coupon.  You pay 5 - 3 dollars:");
  Show("20 - (5 - 3) = 20 - 2 = 18", kExpressionCol);
  Show("20 - 5 + 3 = 18", kExpressionCol);
  PageEnd();
  Say("Taking away 5 takes 3 too many, so 3 is added.  A minus sign in front of parentheses "
      "changes "
      "every sign in them.");
  PageEnd();
  NewScreen();
  RuleBox("Removing Parentheses", {"After + every sign stays.", "After - every sign changes."},
          {.row = 3, .width = 32});
  Say(Text(R"(\yTry it:\z  Remove them from  {}.)", "8 - (x - 6)"));
  PageEnd();
  Say("x has the sign +, which is not written.  Both signs change:");
  Show(R"(\y8 - x + 6)", kExpressionCol);
  PageEnd();
}

void MinusInFront() {
  const std::string difference = "(5x^2^ + 2x - 3) - (3x^2^ - 4x + 1)";
  NewScreen();
  SayAt(3,
        R"(A \yminus\z sign in front of the parentheses is the factor -1 for each term in them.)");
  Show(difference, kExpressionCol);
  DistributingTable factors(-1, {{3, "xx"}, {-4, "x"}, {1, ""}});
  SayAt(factors.RowBelow(), R"(\yTry it:\z  What are the three products?)");
  PageEnd();
  for (int term = 0; term < 3; ++term) factors.Multiply(term);
  ClearBelow(factors.RowBelow());
  SayAt(factors.RowBelow(), "Every sign has changed:");
  Show("5x^2^ + 2x - 3 - 3x^2^ + 4x - 1", kExpressionCol);
  PageEnd();
  GatheringTable table =
      OpenedTable(difference, {{5, "xx"}, {2, "x"}, {-3, ""}, {-3, "xx"}, {4, "x"}, {-1, ""}});
  SayAt(table.RowBelow(), R"(\yTry it:\z  What are the three sums?)");
  PageEnd();
  ClearBelow(table.RowBelow());
  AddAll(table);
  SayAt(table.RowBelow(), Text(R"({},  {},  {}.  We get \y{}\z.)", "5 + (-3) = 2", "2 + 4 = 6",
                               "-3 + (-1) = -4", "2x^2^ + 6x - 4"));
  PageEnd();
  Say(R"(\yWatch out:\z  The minus sign is not for the first term alone.)");
  PaperBox({"    5x^2^ + 2x - 3 - 3x^2^ + 4x - 1", R"(not 5x^2^ + 2x - 3 - 3x^2^ \r- 4x + 1\z)"});
  PageEnd();

  NewScreen();
  SayAt(3, R"(\yWatch out:\z  Look at the sign between the parentheses first.)");
  PaperBox({"(3x^2^ + x) + (2x^2^ - 4x) = 5x^2^ - 3x", "(3x^2^ + x) - (2x^2^ - 4x) = x^2^ + 5x"});
  PageEnd();
}

void OrderOfADifference() {
  NewScreen();
  SayAt(3, "Who is right, Ann or Ben?");
  ShowAt(5, "(x + 7) - (4x + 2)", kExpressionCol);
  ShowAt(7, "Ann:  x + 7 - 4x - 2 = -3x + 5");
  ShowAt(8, "Ben:  4x + 2 - x - 7 = 3x - 5");
  PageEnd();
  Say("Ann is right.  The second polynomial is taken away from the first.  Ben did it the other "
      "way around, so both of his signs are wrong.");
  PageEnd();
}

void TermsThatVanish() {
  const std::string difference = "(4y^2^ + 5y - 6) - (4y^2^ + 3y + 2)";
  NewScreen();
  SayAt(3, R"(\yTry it:\z  Remove the parentheses.)");
  Show(difference, kExpressionCol);
  PageEnd();
  GatheringTable table =
      OpenedTable(difference, {{4, "yy"}, {5, "y"}, {-6, ""}, {-4, "yy"}, {-3, "y"}, {-2, ""}});
  SayAt(table.RowBelow(), R"(Every sign after the minus has changed.)");
  Say(R"(\yTry it:\z  What are the three sums?)");
  PageEnd();
  ClearBelow(table.RowBelow());
  AddAll(table);
  SayAt(table.RowBelow(),
        "4y^2^ and -4y^2^ are opposites.  Their sum is 0, so no term with y^2^ is written.");
  AddLine(Text(R"(We get \y{}\z.)", "2y - 8"));
  PageEnd();
  Say(R"(\yWatch out:\z  0y^2^ means 0 times y^2^.  That is 0.)");
  PaperBox({R"(4y^2^ - 4y^2^ = 0,  \rnot y^2^\z)"});
  PageEnd();
}

void OneMore() {
  const std::string difference = "(x^2^ - 6x + 5) - (-3x^2^ - x + 8)";
  NewScreen();
  SayAt(3, R"(\yTry it:\z  Subtract, and check with 2 in place of x.)");
  Show(difference, kExpressionCol);
  PageEnd();
  Say(Text("{} and {} become {} and {}, and 8 becomes -8:", "-3x^2^", "-x", "3x^2^", "x"));
  Show("x^2^ - 6x + 5 + 3x^2^ + x - 8", kExpressionCol);
  PageEnd();
  GatheringTable table =
      OpenedTable(difference, {{1, "xx"}, {-6, "x"}, {5, ""}, {3, "xx"}, {1, "x"}, {-8, ""}});
  AddAll(table);
  SayAt(table.RowBelow(), Text("{},  {},  and {}, since -6 is farther from 0.", "1 + 3 = 4",
                               "5 + (-8) = -3", "-6 + 1 = -5"));
  AddLine(Text(R"(We get \y{}\z.)", "4x^2^ - 5x - 3"));
  PaperBox({R"(-6x + x = -5x,  \rnot 5x\z)"});
  PageEnd();
  Say(R"(\yCheck:\z  Both have the same value.)");
  Show("(4 - 12 + 5) - (-12 - 2 + 8)", kExpressionCol);
  Show("  = -3 - (-6) = -3 + 6 = 3", kExpressionCol);
  Show("16 - 10 - 3 = 3", kExpressionCol);
  PageEnd();
}

// --- The lesson --------------------------------------------------------------

class AddingAndSubtractingPolynomials final : public LessonScript {
 public:
  using LessonScript::LessonScript;

 private:
  std::vector<Screen> Screens() override {
    return {{AddingInColumns, PlusInFront, TakingAwayASum, MinusInFront, OrderOfADifference,
             TermsThatVanish, OneMore}};
  }
  void DrawProblem(RandomStream& random) override;
  void ShowProblem() override;
  void ExplainProblem() override;

  bool Subtracts() const { return expression_[1].factor < 0; }
  void RemoveParentheses() const;

  SumWithProducts expression_;  // two sums in parentheses
};

// --- Generator ---------------------------------------------------------------

int DrawCoefficient(RandomStream& random) {
  const int size = random.Index(kLargest);
  return size * random.Sign();
}

Sum DrawPolynomial(RandomStream& random, const std::string& letter) {
  Sum polynomial;
  for (const std::string& letters : {letter + letter, letter, std::string()})
    polynomial.push_back({DrawCoefficient(random), letters});
  return polynomial;
}

void AddingAndSubtractingPolynomials::DrawProblem(RandomStream& random) {
  const int factor = random.Sign();
  const std::string letter = random.OneOf(kLetters);
  Sum terms;
  do {
    const Sum first = DrawPolynomial(random, letter);
    const Sum second = DrawPolynomial(random, letter);
    expression_ = {{first, 1}, {second, factor}};
    terms = MultipliedOut(expression_);
  } while (Combined(terms).empty());  // nothing is left

  problem.question = {Subtracts() ? "Find the difference:" : "Find the sum:", SumText(expression_)};
  FillCombinedChoices(problem, terms, BracketSlips(expression_), random,
                      {.termsMayVanish = true, .aboutUnlike = 8, .lastSignsDiffer = true});
}

// --- Problem page ------------------------------------------------------------

void AddingAndSubtractingPolynomials::ShowProblem() {
  SayAt(5, problem.question[0]);
  ShowAt(7, problem.question[1], kExpressionCol);
  ShowAnswersInOneColumn(problem, {.row = 10, .width = 24});  // three terms are long
}

// --- Worked explanation ------------------------------------------------------

void AddingAndSubtractingPolynomials::ExplainProblem() {
  RemoveParentheses();
  NewScreen();
  ProblemBanner();
  ShowAt(4.5, problem.question[1], kExpressionCol);
  CombineAloud(MultipliedOut(expression_), 6);
  PageEnd();
  CheckInNumbers(expression_);
  Conclude(problem);
}

// On a screen of its own; every sign of a second polynomial that is subtracted changes.
void AddingAndSubtractingPolynomials::RemoveParentheses() const {
  const Sum& second = expression_[1].inside;
  ProblemBanner();
  SayAt(5, problem.question[0]);
  ShowAt(6, problem.question[1], kExpressionCol);
  const int toSign = StackedTextWidth("(" + SumText(expression_[0].inside) + ")") + 1;
  Note(7.2, kExpressionCol + toSign, Subtracts() ? "every sign changes" : "no sign changes");
  GoBelow();
  if (Subtracts()) {
    AddLine(
        "The minus sign in front of the second parentheses is the factor -1 for each of its "
        "terms.");
    DistributingTable table(-1, second);
    PageEnd();
    for (int term = 0; term < std::ssize(second); ++term) table.Multiply(term);
    SayAt(table.RowBelow(), "Every sign in the second parentheses changes.");
  } else {
    AddLine(
        "A plus sign stands in front of the second parentheses.  Each term in them is added as it "
        "is.");
    if (second[0].coef < 0)
      Say(Text("{} is written {}.", "+ (" + TermText(second[0]) + ")",
               "- " + TermText({-second[0].coef, second[0].letters})));
  }
  PageEnd();
  Say("We remove the parentheses:");
  Show(R"(\y)" + SumText(MultipliedOut(expression_)), kExpressionCol);
  PageEnd();
}

const LessonRegistration<AddingAndSubtractingPolynomials> kRegistration(
    "Adding and Subtracting Polynomials");

}  // namespace
}  // namespace course
