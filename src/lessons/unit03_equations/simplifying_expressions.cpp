// The student can simplify an expression with parentheses: carries the factor in front of them to
// each term, sign and all, and combines like terms.
//
// Four kinds of expressions, as many of each: 3(2x - 5) + 7, 3(2x - 5) - x, 7 - 3(2x - 5), and two
// products.
#include "lessons/families/polynomials/combining_mistakes.h"
#include "lessons/families/polynomials/combining_steps.h"
#include "lessons/families/polynomials/distributing_table.h"
#include "lessons/families/polynomials/gathering_table.h"
#include "lessons/families/polynomials/sum_of_terms.h"
#include "lessons/families/polynomials/sum_with_products.h"
#include "lessons/lesson.h"

namespace course {
namespace {

using namespace polynomials;

constexpr std::string_view kLetters = "defxrzmn";
constexpr int kLargestResult = 99;
constexpr double kExpressionCol = 6;

enum class Form { NumberBehind = 1, LetterBehind, NumberInFront, TwoProducts };
constexpr int kForms = 4;

// --- Teaching screens --------------------------------------------------------

void ThreeTimesTheSum() {
  NewScreen();
  SayAt(3, Text("{} means 3 times the whole sum:", "3(2x + 5)"));
  Show("(2x + 5) + (2x + 5) + (2x + 5)", kExpressionCol);
  Say(R"(\yTry it:\z  How many x are there, and what do the numbers add up to?)");
  PageEnd();
  Say("2x + 2x + 2x = 6x, and 5 + 5 + 5 = 15:");
  Show(R"(3(2x + 5) = \y6x + 15)", kExpressionCol);
  PageEnd();
}

// The factor of 3(2x + 5) slides down and in front of both terms.
void CarryFactor(double row) {
  constexpr double kDrop = 1.52;  // rows; whole pixels
  constexpr double kCol = 8;
  constexpr double kSecond = kCol + 9;
  const double lower = row + kDrop;
  ShowAt(row, R"(\y3\z(2x + 5))", kCol);
  SlideDown({row, kCol, 1}, kDrop, Leaving::Copy);
  SlideRight({lower, kCol, 1}, kSecond - kCol);
  SlideDown({row, kCol, 1}, kDrop, Leaving::Copy);
  ShowAt(lower, "=", kCol - 2);
  ShowAt(lower, tutor::Times + " 2x +", kCol + 2);
  ShowAt(lower, tutor::Times + " 5", kSecond + 2);
  Locate(lower + 1, 1);
}

void FactorToEachTerm() {
  Say(R"(So the factor 3 is carried to \yeach\z term.  This is the \cdistributive property\z.)");
  CarryFactor(NextRow() + 0.5);
  PageEnd();
  Say(R"(\yWatch out:\z  Both terms are multiplied.  Nothing is added to them.)");
  PaperBox({R"(6x + 15,  \rnot 6x + 5\z, \rnot 5x + 8\z)"});
  PageEnd();
}

void MultiplyThenCombine() {
  NewScreen();
  SayAt(3, Text(R"(To \csimplify\z {} we write it with as few terms as we can.)", "3(2x + 5) - 8"));
  DistributingTable table(3, {{2, "x"}, {5, ""}}, 5.5);
  SayAt(table.RowBelow(), R"(\yTry it:\z  What are the two products?)");
  PageEnd();
  ClearBelow(table.RowBelow());
  table.Multiply(0);
  table.Multiply(1);
  SayAt(table.RowBelow(), "First we multiply out the parentheses:");
  Show("3(2x + 5) - 8 = 6x + 15 - 8", kExpressionCol);
  Say(R"(\yTry it:\z  Which of these terms are like?)");
  PageEnd();
  Say("15 and -8 are like, and 15 - 8 = 7.  We combine them:");
  Show(R"(3(2x + 5) - 8 = \y6x + 7)", kExpressionCol);
  PageEnd();

  RuleBox("Simplifying", {"1. Multiply out the parentheses.", "2. Combine like terms."},
          {.width = 30});
  PageEnd();

  NewScreen();
  SayAt(3,
        Text(R"(\yCheck:\z  We put 2 in place of x in {} and in {}:)", "3(2x + 5) - 8", "6x + 7"));
  Show("3(4 + 5) - 8 = 27 - 8 = 19", kExpressionCol);
  Show("12 + 7 = 19", kExpressionCol);
  PageEnd();
  Say("Both have the same value, as they must.");
  Say(Text(R"(\yTry it:\z  Simplify {}.)", "4(2x - 3) - x"));
  PageEnd();
}

void LetterBehind() {
  NewScreen();
  ShowAt(3, "4(2x - 3) - x", kExpressionCol);
  SayAt(4.5, "We multiply out, and -x stays:");
  GatheringTable table({{8, "x"}, {-12, ""}, {-1, "x"}}, 5.5);
  PageEnd();
  table.GatherAll();
  table.AddUp(1);
  table.AddUp(0);
  SayAt(table.RowBelow(),
        R"(-x means -1x, and 8 + (-1) = 7.  We get \y)" + WithoutBreaks("7x - 12") + R"(\z.)");
  PageEnd();
  Say(R"(\yWatch out:\z  -x means -1x, not 0.  Unlike terms stay apart.  The exponent is kept.)");
  PaperBox({R"(7x - 12,  \rnot 8x - 12\z, \rnot -5x\z, \rnot 7x^2^ - 12\z)"});
  PageEnd();
}

void NegativeFactor() {
  NewScreen();
  SayAt(3, Text(R"(\yTry it:\z  Which sign has each product in {}?)", "-2(3x - 4)"));
  DistributingTable table(-2, {{3, "x"}, {-4, ""}}, 5.5);
  PageEnd();
  table.Multiply(0);
  table.Multiply(1);
  SayAt(table.RowBelow(),
        "The first is negative.  The second is positive:  two negatives make a positive product.");
  PageEnd();
  Say(R"(\yWatch out:\z  Both terms are multiplied by -2, so both signs change.)");
  PaperBox({R"(-2(3x - 4) = -6x + 8,  \rnot -6x - 8\z)"});
  PageEnd();
  Say(Text(R"(\yTry it:\z  What is {}?)", "-(3x - 4)"));
  PageEnd();
  Say(Text(R"(The factor is -1, so both signs change:  \y{}\z)", "-3x + 4"));
  PageEnd();
}

void NumberInFront() {
  NewScreen();
  SayAt(3, "Who is right, Ann or Ben?");
  ShowAt(5.5, "5 - 2(3x - 4)", 14);
  SayAt(7, "Ann:  5 - 2 is 3, so it is 3(3x - 4).");
  AddLine("Ben:  It is 5 - 6x + 8.");
  PageEnd();
  Say("Ben is right.  Multiplication comes before subtraction.  The factor is -2:");
  DistributingTable table(-2, {{3, "x"}, {-4, ""}});
  table.Multiply(0);
  table.Multiply(1);
  PageEnd();
  SayAt(table.RowBelow(), "5 + 8 = 13.  We write the x term first:");
  Show(R"(5 - 6x + 8 = \y-6x + 13)", kExpressionCol);
  PageEnd();
  Say(R"(\yTry it:\z  Multiply out two products:)");
  Show("2(x + 6) - 3(2x - 1)", kExpressionCol);
  PageEnd();
}

void TwoProducts() {
  NewScreen();
  ShowAt(3, "2(x + 6) - 3(2x - 1)", kExpressionCol);
  SayAt(4.5, Text("The second factor is -3.  So the last number is positive:  {}.",
                  "-3 " + tutor::Times + " (-1) = 3"));
  GatheringTable table({{2, "x"}, {12, ""}, {-6, "x"}, {3, ""}}, 7);
  PageEnd();
  table.GatherAll();
  table.AddUp(1);
  table.AddUp(0);
  SayAt(table.RowBelow(),
        R"(2 + (-6) = -4 and 12 + 3 = 15, so we get )" + WithoutBreaks(R"(\y-4x + 15\z.)"));
  PageEnd();
  Say(R"(\yWatch out:\z  Two negatives make a positive product, but a negative sum.)");
  PaperBox({"-2 " + tutor::Times + " (-3) = 6,   -2 + (-3) = -5"});
  PageEnd();

  NewScreen();
  SayAt(3, R"(\yTry it:\z  Simplify this one.)");
  ShowAt(5, "-4(2x + 3) + 3(x - 5)", kExpressionCol);
  PageEnd();
  GatheringTable last({{-8, "x"}, {-12, ""}, {3, "x"}, {-15, ""}}, 7);
  SayAt(last.RowBelow(), "Every product has its sign now.  What are the two sums?");
  PageEnd();
  ClearBelow(last.RowBelow());
  last.GatherAll();
  last.AddUp(1);
  last.AddUp(0);
  SayAt(last.RowBelow(),
        "-8 + 3 = -5:  the signs differ, and -8 is farther from 0.  -12 and -15 are both "
        "negative, and so is their sum.  We get " +
            WithoutBreaks(R"(\y-5x - 27\z.)"));
  PageEnd();
}

// --- The lesson --------------------------------------------------------------

class SimplifyingExpressions final : public LessonScript {
 public:
  using LessonScript::LessonScript;

 private:
  std::vector<Screen> Screens() override {
    return {{ThreeTimesTheSum, FactorToEachTerm, MultiplyThenCombine, LetterBehind},
            {NegativeFactor, NumberInFront, TwoProducts}};
  }
  void DrawProblem(RandomStream& random) override;
  void ShowProblem() override;
  void ExplainProblem() override;

  Part DrawProduct(RandomStream& random) const;
  SumWithProducts DrawExpression(RandomStream& random, Form form) const;
  bool Fits() const;

  void MultiplyOut(const Part& part);

  std::string letter_;
  SumWithProducts expression_;
};

// --- Generator ---------------------------------------------------------------

int DrawSigned(RandomStream& random) {
  const int size = random.Rand(2, 9);
  return size * random.Sign();
}

int DrawConstant(RandomStream& random) {
  return random.Rand(-9, 9);
}

Part SimplifyingExpressions::DrawProduct(RandomStream& random) const {
  Part product;
  product.factor = DrawSigned(random);
  const int coefficient = DrawSigned(random);
  product.inside = {{coefficient, letter_}, {DrawConstant(random), ""}};
  return product;
}

SumWithProducts SimplifyingExpressions::DrawExpression(RandomStream& random, Form form) const {
  const Part product = DrawProduct(random);
  switch (form) {
    case Form::NumberBehind:
      return {product, {{{DrawConstant(random), ""}}}};
    case Form::LetterBehind:
      return {product, {{{random.Sign(), letter_}}}};
    case Form::NumberInFront:
      return {{{{DrawConstant(random), ""}}}, product};
    default:
      return {product, DrawProduct(random)};
  }
}

bool SimplifyingExpressions::Fits() const {
  const Sum terms = MultipliedOut(expression_);
  const Sum right = Combined(terms);
  return std::ranges::none_of(terms, [](const Term& term) { return term.coef == 0; }) &&
         right.size() == 2 &&  // a term that vanishes
         std::ranges::all_of(right, [](const Term& term) {
           return std::abs(term.coef) <= kLargestResult;  // done by hand
         });
}

void SimplifyingExpressions::DrawProblem(RandomStream& random) {
  const Form form = static_cast<Form>(random.Index(kForms));
  letter_ = random.OneOf(kLetters);
  do {
    expression_ = DrawExpression(random, form);
  } while (!Fits());

  problem.question = {"Simplify the following expression:", SumText(expression_)};
  FillCombinedChoices(problem, MultipliedOut(expression_), ProductSlips(expression_), random);
}

// --- Problem page ------------------------------------------------------------

void SimplifyingExpressions::ShowProblem() {
  SayAt(5, problem.question[0]);
  ShowAt(7, problem.question[1], kExpressionCol);
  ShowAnswersInTwoColumns(problem);
}

// --- Worked explanation ------------------------------------------------------

void SimplifyingExpressions::ExplainProblem() {
  for (const Part& part : expression_)
    if (part.IsProduct()) MultiplyOut(part);
  const Sum terms = MultipliedOut(expression_);
  Say(Text(R"(So we have:  \y{}\z)", SumText(terms)));
  PageEnd();
  NewScreen();
  ProblemBanner();
  ShowAt(4.5, problem.question[1], kExpressionCol);
  CombineAloud(terms, 6);
  PageEnd();
  CheckInNumbers(expression_);
  Conclude(problem);
}

// Of a negative factor and both terms.
std::string SignsOfProducts(const Part& part) {
  if (AllNegative(part.inside))
    return "Both signs are plus:  two negatives make a positive product.";
  const auto negative = std::ranges::find_if(part.inside, [](const Term& t) { return t.coef < 0; });
  if (negative == part.inside.end())
    return "Both signs are minus:  a negative number times a positive one is negative.";
  return Text("{} is positive:  two negatives make a positive product.",
              NumStr(part.factor) + " " + tutor::Times + " (" + NumStr(negative->coef) + ")");
}

// What the factor makes of both terms, on a screen of its own.
void SimplifyingExpressions::MultiplyOut(const Part& part) {
  NewScreen();
  ProblemBanner();
  SayAt(5, problem.question[0]);
  ShowAt(6, problem.question[1], kExpressionCol);
  const std::string factor = NumStr(part.factor);
  if (!expression_.front().IsProduct()) Say("We multiply before we add or subtract.");
  Say(Text(R"(The factor in front of {} is \y{}\z.  We multiply each term by it.)",
           "(" + SumText(part.inside) + ")", factor));
  DistributingTable table(part.factor, part.inside);
  PageEnd();
  for (int i = 0; i < 2; ++i) {
    table.Multiply(i);
    AddLine(table.ProductText(i), {.col = kExpressionCol});
  }
  if (part.factor < 0) Say(SignsOfProducts(part));
  PageEnd();
}

const LessonRegistration<SimplifyingExpressions> kRegistration("Simplifying Expressions");

}  // namespace
}  // namespace course
