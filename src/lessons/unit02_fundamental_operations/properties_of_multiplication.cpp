// The student knows the commutative, associative, identity and inverse properties of multiplication
// and the property of zero, tells which of them an equation shows, and does not look for them in a
// quotient.
//
// Problems are of nine kinds, the last two with half the chance of the others: a new order of two
// numbers, of three, a new grouping, both; a product with 1, with 0, with reciprocals; with 1 in a
// new order, and with a third number beside reciprocals.  A quarter of them is altered, so that the
// equation is false.
#include "lessons/families/fractions/fraction_steps.h"
#include "lessons/families/properties/property_choices.h"
#include "lessons/families/properties/property_pages.h"
#include "lessons/lesson.h"

namespace course {
namespace {

using namespace properties;

using platform::colour::Cyan;
using platform::colour::White;
using platform::colour::Yellow;

const std::string kTimes = " " + tutor::Times + " ";
const std::string kDivided = " " + tutor::Divided + " ";

// "3 x 5".
std::string Product(const std::string& first, const std::string& second) {
  return first + kTimes + second;
}

void DrawDotRows(double row, double col, int rows, int columns) {
  for (int i = 0; i < rows; ++i) DrawDots(row + i, col, columns, Yellow);
}

// A frame around dots from cell to cell.
void DrawFrame(double firstRow, double firstCol, double lastRow, double lastCol,
               platform::Colour colour) {
  isDrawRoundRect(firstRow, firstCol - 0.6, lastRow, lastCol + 0.6, 2, colour);
}

// Takes drawn rows away.
void ClearRows(double first, double last) {
  isDrawBoxFilled(first - 0.2, 1, last + 0.2, 40, screenState.gBackColor);
}

// --- Screen 1: the order -------------------------------------------------------------------------

void RowsAndColumns() {
  constexpr double kRow = 5;
  constexpr double kCol = 16;
  NewScreen();
  SayAt(3, R"(We count \yrows\z:  3 rows of 5 dots.)");
  DrawDotRows(kRow, kCol, 3, 5);
  for (int i = 0; i < 3; ++i) DrawFrame(kRow + i, kCol, kRow + i, kCol + 8, White);
  ShowAt(9, Product("3", "5") + " = 15", 16);
  Note(10, 14, "factors");
  Note(10, 22, "product");
  SayAt(12, R"(\yTry it:\z  Now we count \ycolumns\z.  Which product is that?)");
  PageEnd();
  ClearRows(kRow, kRow + 2);
  DrawDotRows(kRow, kCol, 3, 5);
  for (int i = 0; i < 5; ++i) DrawFrame(kRow, kCol + 2 * i, kRow + 2, kCol + 2 * i, Cyan);
  Say("5 columns of 3 dots:  " + Product("5", "3") + R"( = \y15\z.)");
  ShowExchange(18, 14, "3", tutor::Times[0], "5");
  SayAt(
      20,
      R"(The \ccommutative property\z:  \cfactors\z, the numbers we multiply, may change places.)");
  PageEnd();
}

void OrderRule() {
  NewScreen();
  RuleBox("Commutative Property", {"a" + kTimes + "b = b" + kTimes + "a"}, {.row = 3, .width = 26});
  Say(Text(R"(\yTry it:\z  {} is a quotient.  Is it the same as {}?)", "12" + kDivided + "4",
           "4" + kDivided + "12"));
  PageEnd();
  Say("No.  12 cookies for 4 people are 3 cookies for each.  4 cookies for 12 people are only a "
      "third of one for each.");
  PaperBox({R"(\r12)" + kDivided + "4 = 4" + kDivided + R"(12\z  is false.)"});
  PageEnd();
}

// --- Screen 2: the grouping ----------------------------------------------------------------------

void DotsInBlocks() {
  constexpr double kRow = 5;
  constexpr double kCol = 6;
  constexpr int kBlocks = 4;
  constexpr double kBlock = 8;  // columns
  const auto draw = [&] {
    for (int i = 0; i < kBlocks; ++i) DrawDotRows(kRow, kCol + kBlock * i, 2, 3);
  };
  NewScreen();
  SayAt(2.5, Text("Each block has {} dots.  There are 4 blocks, so we multiply by 4:",
                  Product("2", "3")));
  draw();
  for (int i = 0; i < kBlocks; ++i)
    DrawFrame(kRow, kCol + kBlock * i, kRow + 1, kCol + kBlock * i + 4, White);
  ShowAt(8, "(2" + kTimes + "3)" + kTimes + "4 = 6" + kTimes + "4 = 24", 10);
  SayAt(10, R"(\yTry it:\z  How many dots are in one row?)");
  PageEnd();
  ClearRows(kRow, kRow + 1);
  draw();
  for (int i = 0; i < 2; ++i)
    DrawFrame(kRow + i, kCol, kRow + i, kCol + kBlock * kBlocks - 4, Cyan);
  SayAt(13, Text("3 dots, 4 times:  {}.  2 rows:", Product("3", "4") + " = 12"));
  ShowAt(14.5, "2" + kTimes + "(3" + kTimes + "4) = 2" + kTimes + "12 = 24", 10);
  SayAt(17, R"(This is the \cassociative property\z:)");
  ShowParenthesesMove(20, 8, "234", tutor::Times[0]);
  PageEnd();
}

void GroupingRule() {
  NewScreen();
  RuleBox("Associative Property",
          {"(a" + kTimes + "b)" + kTimes + "c = a" + kTimes + "(b" + kTimes + "c)"},
          {.row = 3, .width = 30});
  Say(R"(\yTry it:\z  What would you multiply first?)");
  ShowAt(8.5, "(17" + kTimes + "5)" + kTimes + "2", 6);
  PageEnd();
  ShowAt(10, "= 17" + kTimes + "(5" + kTimes + "2) = 17" + kTimes + "10 = 170", 4);
  Say(R"(\yTry it:\z  May the parentheses of a quotient move?  Work out both:)");
  ShowAt(14.5, "(24" + kDivided + "4)" + kDivided + "2     24" + kDivided + "(4" + kDivided + "2)",
         6);
  PageEnd();
  Say(Text(R"(No:  {} is \y3\z, but {} is \y12\z.)", "6" + kDivided + "2", "24" + kDivided + "2"));
  PageEnd();
}

void OrderAndGrouping() {
  NewScreen();
  Say(R"(\yTry it:\z  What is new:  order, grouping?)");
  ShowAt(5, "(5" + kTimes + "7)" + kTimes + "2 = (5" + kTimes + "2)" + kTimes + "7", 6);
  SayAt(7, "We begin with the left side:");
  ShowAt(8.5, "(5" + kTimes + "7)" + kTimes + "2", 6);
  PageEnd();
  ShowAt(10, "= 5" + kTimes + "(7" + kTimes + R"(2)   \yassociative\z)", 4);
  ShowAt(11.5, "= 5" + kTimes + "(2" + kTimes + R"(7)   \ycommutative\z)", 4);
  ShowAt(13, "= (5" + kTimes + "2)" + kTimes + R"(7   \yassociative\z)", 4);
  SayAt(15.5, R"(\yTry it:\z  )" + WithoutBreaks("(3" + kTimes + "6)" + kTimes + "7 = (6" + kTimes +
                                                 "3)" + kTimes + "7"));
  PageEnd();
  SayAt(17.5,
        R"(Only the order is new:  it is \ycommutative\z.  The parentheses hold 3 and 6 on both )"
        "sides.");
  PageEnd();
}

// --- Screen 3: the identity ----------------------------------------------------------------------

void MultiplyingByOne() {
  NewScreen();
  SayAt(3, R"(\yTry it:\z  What is the last product?)");
  double row = 5;
  for (int rows = 3; rows >= 1; --rows) {
    DrawDotRows(row, 5, rows, 6);
    const std::string value = rows == 1 ? "__" : NumStr(6 * rows);
    ShowAt(row + (rows - 1) / 2.0, Product(NumStr(rows), "6") + " = " + value, 22);
    row += rows + 1;
  }

  PageEnd();
  SayAt(14, R"(It is \y6\z.  Multiplying by 1 changes no number.  So 1 is the \cidentity for )"
            R"(multiplication\z.)");
  PageEnd();
}

void IdentityRule() {
  NewScreen();
  RuleBox("Identity Property", {"a" + kTimes + "1 = a  and  1" + kTimes + "a = a"},
          {.row = 3, .width = 32});
  Say(Text(R"(\yTry it:\z  Is {} equal to 1, to 9, or to 10?)", Product("9", "1")));
  PageEnd();
  PaperBox({Product("9", "1") + R"( = 9,  \rnot 1 and not 10\z)"});
  Say(R"(\yWatch out:\z  In a sum the identity is 0, in a product it is 1.)");
  PageEnd();

  NewScreen();
  Say(R"(\yTry it:\z  Which two properties does this equation show?)");
  ShowAt(6, "(6" + kTimes + "1)" + kTimes + "2 = 2" + kTimes + "6", 6);
  SayAt(8, "We begin with the left side:");
  PageEnd();
  ShowAt(9.5, "(6" + kTimes + "1)" + kTimes + "2", 6);
  ShowAt(11, "= 6" + kTimes + R"(2         \yidentity\z)", 4);
  ShowAt(12.5, "= 2" + kTimes + R"(6         \ycommutative\z)", 4);
  SayAt(14.5, Text("{} is 6.  Then 6 and 2 change places.", Product("6", "1")));
  PageEnd();
}

// --- Screen 4: the inverse -----------------------------------------------------------------------

constexpr double kStripCol = 4;
constexpr double kFifth = 7;  // columns

// 1/5 under each part of the strip.
void ShowFifths(double row) {
  for (int i = 0; i < 5; ++i) ShowAt(row, "1/5", kStripCol + kFifth * (i + 0.5) - 0.5);
}

void FiveFifths() {
  NewScreen();
  SayAt(3, "Of 5 equal parts each one is a fifth:");
  fractions::DrawStrip(6, kStripCol, 5 * kFifth, 5, {{1, Yellow}});
  ShowFifths(8.5);
  SayAt(11, R"(\yTry it:\z  How many fifths make the whole strip?)");
  PageEnd();
  fractions::DrawStrip(6, kStripCol, 5 * kFifth, 5, {{5, Yellow}});
  SayAt(14, R"(It takes \y5\z.  The whole is 1:)");
  ShowAt(16.5, "5" + kTimes + "1/5 = 1", 6);
  SayAt(19, R"(Two numbers whose product is 1 are \creciprocals\z, such as 5 and 1/5.)");
  PageEnd();
}

void InverseRule() {
  NewScreen();
  SayAt(3, R"(The \yinverse property\z, where a is not 0:)");
  ShowAt(6.5, "a" + kTimes + "1/a = 1     1/a" + kTimes + "a = 1", 8);
  isDrawRoundRect(5, 6, 8, 34, 2, Cyan);
  SayAt(9.5, R"(\yTry it:\z  By which number must we multiply 8 to get 1?)");
  PageEnd();
  ShowAt(13, "8" + kTimes + "1/8 = 1", 6);
  SayAt(15.5, R"(By 1/8, its \cmultiplicative inverse\z.)");
  SayAt(17, R"(\yWatch out:\z  The opposite will not do:)");
  PaperBox({"8" + kTimes + R"((-8) = -64,  \rnot 1\z)"});
  PageEnd();
}

void IdentityOrInverse() {
  NewScreen();
  Say(R"(\yTry it:\z  Both have a 1.  Which property does each one show?)");
  ShowAt(7, "7" + kTimes + "1 = 7        7" + kTimes + "1/7 = 1", 6);
  PageEnd();
  Note(9.2, 6, "identity: 7 stays 7");
  Note(9.2, 23, "inverse: 1 comes out");
  SayAt(11.5, R"(\yTry it:\z  Which two does this one show?)");
  ShowAt(14, "4" + kTimes + "1/4" + kTimes + "7 = 7", 6);
  SayAt(16, "We begin with the left side:");
  PageEnd();
  ShowAt(18.5, "4" + kTimes + "1/4" + kTimes + "7", 6);
  ShowAt(20.5, "= 1" + kTimes + R"(7         \yinverse\z)", 4);
  ShowAt(22, R"(= 7             \yidentity\z)", 4);
  PageEnd();
}

// --- Screen 5: zero ------------------------------------------------------------------------------

// Four bags with as many apples each, and the product.
void DrawBags(double row, int apples) {
  for (int i = 0; i < 4; ++i) {
    const double col = 4 + 6.0 * i;
    DrawDots(row, apples == 2 ? col : col + 1, apples, Yellow);
    DrawFrame(row, col, row, col + 2, White);
  }
  ShowAt(row, Product("4", NumStr(apples)) + " = " + (apples == 0 ? "__" : NumStr(4 * apples)), 29);
}

void EmptyBags() {
  NewScreen();
  SayAt(3, R"(\yTry it:\z  What is the last product?)");
  DrawBags(6, 2);
  DrawBags(8, 1);
  DrawBags(10, 0);
  PageEnd();
  SayAt(12, R"(It is \y0\z.  4 empty bags hold no apples.)");
  RuleBox("Property of Zero", {"a" + kTimes + "0 = 0  and  0" + kTimes + "a = 0"}, {.width = 32});
  PaperBox({"6 + 0 = 6,  but  " + Product("6", "0") + " = 0"});
  PageEnd();
}

void ZeroOrOne() {
  NewScreen();

  Say(R"(\yTry it:\z  Does 0 have a reciprocal?  Which number makes this true?)");
  ShowAt(6, Product("0", "__") + " = 1", 6);
  PageEnd();
  SayAt(8, "It has none.  A product with a factor of 0 is 0, never 1.");
  PageEnd();
}

void AllFive() {
  NewScreen();
  PaperBox(
      Aligned({"commutative: a" + kTimes + "b = b" + kTimes + "a",
               "associative: (a" + kTimes + "b)" + kTimes + "c = a" + kTimes + "(b" + kTimes + "c)",
               "inverse:     a" + kTimes + "1/a = 1  (a is not 0)"}),
      3);
  PageEnd();
  PaperBox(
      Aligned({"identity:    a" + kTimes + "1 = a     ", "zero:        a" + kTimes + "0 = 0"}));
  Say(R"(\yTry it:\z  Which property does each show?)");
  ShowAt(12.5, Product("9", "0") + " = 0        " + Product("5", "1") + " = 1", 6);
  PageEnd();
  Say(Text(R"({} shows the \yproperty of zero\z.)", Product("9", "0") + " = 0"));
  Say(Text(R"({} shows \ynone\z, since it is false:  {} is 5.)", Product("5", "1") + " = 1",
           Product("5", "1")));
  PageEnd();
}

// --- The lesson ----------------------------------------------------------------------------------

class PropertiesOfMultiplication final : public LessonScript {
 public:
  using LessonScript::LessonScript;
  bool ChoicesAreWords() const override { return true; }

 private:
  std::vector<Screen> Screens() override {
    return {{RowsAndColumns, OrderRule},
            {DotsInBlocks, GroupingRule, OrderAndGrouping},
            {MultiplyingByOne, IdentityRule},
            {FiveFifths, InverseRule, IdentityOrInverse},
            {EmptyBags, ZeroOrOne, AllFive}};
  }
  void DrawProblem(RandomStream& random) override {
    statement_ = DrawStatement(kMultiplication, random);
    SetPropertyProblem(problem, kMultiplication, statement_);
  }
  void ShowProblem() override { ShowPropertyProblem(problem); }
  void ExplainProblem() override { ExplainStatement(problem, kMultiplication, statement_); }

  Statement statement_;
};

const LessonRegistration<PropertiesOfMultiplication> kRegistration("Properties of Multiplication");

}  // namespace
}  // namespace course
