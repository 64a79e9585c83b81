// The student knows the commutative, associative, identity and inverse properties of addition,
// tells which of them an equation shows, and does not look for them in a difference.
//
// Problems are of eight kinds with equal chances: a new order of two numbers, of three, a new
// grouping, both; a sum with 0, with 0 in a new order, with opposite numbers, and with a third
// number beside them.  A quarter of them is altered, so that the equation is false.
#include "lessons/families/graphs/scale_line.h"
#include "lessons/families/properties/property_choices.h"
#include "lessons/families/properties/property_pages.h"
#include "lessons/lesson.h"

namespace course {
namespace {

using namespace properties;

using platform::colour::Cyan;
using platform::colour::White;
using platform::colour::Yellow;

// A frame around the dots in columns first to last of a row.
void DrawFrame(double row, double first, double last) {
  isDrawRoundRect(row - 0.2, first - 1, row + 0.3, last + 1, 2, White);
}

// A number line from -6 to 6 with dots, and an arrow from the first to the second.
graphs::ScaleLine ShowJump(double row, int from, int to, const std::string& label, int index = 1) {
  const graphs::ScaleLine line({2, 1}, row, index);
  line.Add({PointOnLineItem(from, ""), PointOnLineItem(to, "")});
  line.Jump(from, to, label);
  return line;
}

// --- Screen 1: the order -------------------------------------------------------------------------

void DotsInTwoGroups() {
  constexpr double kRow = 5.5;
  constexpr double kCol = 12;
  constexpr double kThree = 6;  // columns, with a blank behind the dots
  constexpr double kFive = 10;
  NewScreen();
  SayAt(3, "3 dots and 5 dots are 8 dots.");
  DrawDots(kRow, kCol, 3, Yellow);
  DrawDots(kRow, kCol + kThree, 5, Cyan);
  SayAt(8, R"(\yTry it:\z  The two groups change places.  How many dots are there then?)");
  PageEnd();
  SlideUp({kRow, kCol, kThree}, 1, Leaving::Nothing, Pace::Brisk);
  SlideLeft({kRow, kCol + kThree, kFive}, kThree, Leaving::Nothing, Pace::Brisk);
  SlideRight({kRow - 1, kCol, kThree}, kFive, Leaving::Nothing, Pace::Brisk);
  SlideDown({kRow - 1, kCol + kFive, kThree}, 1, Leaving::Nothing, Pace::Brisk);
  Say(R"(There are still \y8\z.)");
  ShowExchange(13.5, 14, "3", '+', "5");
  SayAt(16, R"(This is the \ccommutative property\z of addition:  the numbers change places.)");
  PageEnd();
}

void OrderRule() {
  NewScreen();
  RuleBox("Commutative Property", {"a + b = b + a"}, {.row = 3, .width = 26});
  Say(R"(\yTry it:\z  9 - 6 is a difference.  Is it the same as 6 - 9?)");
  PageEnd();
  Say("No.  With 9 dollars you can pay 6.  But with 6 dollars you cannot pay 9.");
  PaperBox({R"(\r9 - 6 = 6 - 9\z  is false:)", "9 - 6 = 3,  but  6 - 9 = -3."});
  PageEnd();
}

// --- Screen 2: the grouping ----------------------------------------------------------------------

// Groups of 2, 3 and 4 dots; the frame holds two groups.
void DrawGroups(double row, double col, bool firstTwo) {
  const double second = col + DotsWidth(2) + 2;
  const double third = second + DotsWidth(3) + 2;
  DrawDots(row, col, 2, Yellow);
  DrawDots(row, second, 3, Cyan);
  DrawDots(row, third, 4, Yellow);
  if (firstTwo)
    DrawFrame(row, col, third - 3);
  else
    DrawFrame(row, second, third + DotsWidth(4) - 1);
}

void DotsInThreeGroups() {
  constexpr double kCol = 10;
  NewScreen();
  SayAt(3, R"(Parentheses show the \cgrouping\z of a sum:)");
  DrawGroups(6, kCol, true);
  ShowAt(7.5, "(2 + 3) + 4 = 5 + 4 = 9", kCol);
  DrawGroups(10, kCol, false);
  SayAt(11.5, R"(\yTry it:\z  Now we begin with 3 and 4.  What is the sum of all three?)");
  PageEnd();
  ShowAt(14.5, "2 + (3 + 4) = 2 + 7 = 9", kCol);
  SayAt(16.5, R"(It is 9 again.  Only the parentheses move:  the \cassociative property\z.)");
  ShowParenthesesMove(20, 8, "234", '+');
  PageEnd();
}

void GroupingRule() {
  NewScreen();
  RuleBox("Associative Property", {"(a + b) + c = a + (b + c)"}, {.row = 3, .width = 30});
  Say(R"(\yTry it:\z  Which two would you add first?)");
  ShowAt(8.5, "(28 + 17) + 3", 6);
  PageEnd();
  ShowAt(10, "= 28 + (17 + 3) = 28 + 20 = 48", 4);
  SayAt(11.5, "17 and 3 make 20, and the rest is easy.");
  Say(R"(\yTry it:\z  May these parentheses move?)");
  ShowAt(15.5, "(9 - 4) - 3      9 - (4 - 3)", 6);
  PageEnd();
  SayAt(17, R"(No:  5 - 3 is \y2\z, but 9 - 1 is \y8\z.)");
  PaperBox({R"(\r(9 - 4) - 3 = 9 - (4 - 3)\z  is false.)"});
  PageEnd();
}

void OrderOrGrouping() {
  NewScreen();
  PaperBox({"Is the order new?      commutative", "Is the grouping new?   associative"}, 3);
  Say(R"(\yTry it:\z  What is new here?)");
  ShowAt(8, "6 + (4 + 9) = (4 + 9) + 6", 6);
  PageEnd();
  SayAt(9.5, R"(The order:  it is \ycommutative\z.  The parentheses hold 4 and 9 on both sides.)");
  Say(R"(\yTry it:\z  And here?)");
  ShowAt(14.5, "(3 + 2) + 4 = (2 + 3) + 4", 6);
  PageEnd();
  SayAt(16,
        R"(Only the order of 3 and 2 is new:  it is \ycommutative\z.  The parentheses stay where )"
        "they are.");
  PageEnd();
}

void OrderAndGrouping() {
  NewScreen();
  SayAt(3, R"(\yTry it:\z  And what is new here?)");
  ShowAt(5, "(8 + 5) + 2 = 5 + (8 + 2)", 6);
  SayAt(7, "We begin with the left side:");
  ShowAt(8.5, "(8 + 5) + 2", 6);
  PageEnd();
  ShowAt(10, R"(= (5 + 8) + 2   \ycommutative\z)", 4);
  ShowAt(11.5, R"(= 5 + (8 + 2)   \yassociative\z)", 4);
  SayAt(13, "Both are new:  it takes two steps.");
  Say(R"(\yTry it:\z  )" + WithoutBreaks("(4 + 7) + 8 = (4 + 8) + 7"));
  PageEnd();
  ShowAt(17, "(4 + 7) + 8", 6);
  ShowAt(18.5, R"(= 4 + (7 + 8)   \yassociative\z)", 4);
  ShowAt(20, R"(= 4 + (8 + 7)   \ycommutative\z)", 4);
  ShowAt(21.5, R"(= (4 + 8) + 7   \yassociative\z)", 4);
  PageEnd();
}

// --- Screen 3: the identity ----------------------------------------------------------------------

void AddingZero() {
  NewScreen();
  SayAt(3, "We start at 2 and add 4:");
  const graphs::ScaleLine line = ShowJump(5, 2, 6, "+ 4");
  SayAt(10, R"(\yTry it:\z  Where do we come to when we start at 2 and add 0?)");
  PageEnd();
  line.Add({PointOnLineItem(2, "+ 0")});
  Say(R"(We do not move at all:  \y2 + 0 = 2\z.)");
  Say(R"(Adding 0 changes no number.  Each one keeps its identity, so 0 is the \cidentity for )"
      R"(addition\z.)");
  PageEnd();
}

void IdentityRule() {
  NewScreen();
  RuleBox("Identity Property", {"a + 0 = a  and  0 + a = a"}, {.row = 3, .width = 30});
  Say(R"(\yTry it:\z  What is 8 + 0?)");
  PageEnd();
  Say(R"(\yWatch out:\z  8 + 0 is not 0.  Adding 0 leaves the 8 as it is.)");
  Say(R"(\yTry it:\z  Is this the identity property?)");
  ShowAt(13.5, "8 + 5 = 5 + 8", 6);
  PageEnd();
  SayAt(15, "No.  Both sides have the same numbers, but no 0 is added.  Only the order is new.");
  PageEnd();

  NewScreen();
  Say(R"(\yTry it:\z  Where has the 0 gone?  What else is new?)");
  ShowAt(6, "(6 + 0) + 2 = 2 + 6", 6);
  SayAt(8, "We begin with the left side:");
  PageEnd();
  ShowAt(9.5, "(6 + 0) + 2", 6);
  ShowAt(11, R"(= 6 + 2         \yidentity\z)", 4);
  ShowAt(12.5, R"(= 2 + 6         \ycommutative\z)", 4);
  SayAt(14.5, "6 + 0 is 6.  Then 6 and 2 change places.");
  PageEnd();
}

// --- Screen 4: the inverse -----------------------------------------------------------------------

void ThereAndBack() {
  NewScreen();
  SayAt(3, "We start at 0 and go 5 to the right:");
  ShowJump(4.5, 0, 5, "+ 5");
  SayAt(9, R"(\yTry it:\z  What must we add to come back to 0?)");
  PageEnd();
  ShowJump(11.5, 5, 0, "+ (-5)", 2);
  SayAt(16, R"(We go 5 to the left:  \y5 + (-5) = 0\z.)");
  SayAt(18,
        R"(5 and -5 are \copposite numbers\z.  Each is the \cadditive inverse\z of the other.)");
  PageEnd();
}

void InverseRule() {
  NewScreen();
  RuleBox("Inverse Property", {"a + (-a) = 0  and  -a + a = 0"}, {.row = 3, .width = 34});
  Say(R"(\yTry it:\z  Which number is missing?)");
  ShowAt(8.5, "-8 + __ = 0", 6);
  PageEnd();
  SayAt(10, R"(It is \y8\z:  -8 + 8 = 0.)");
  Say(R"(\yWatch out:\z  4 and 4 are not opposites.  The signs must be different.)");
  PaperBox({R"(4 + (-4) = 0,  \rnot 4 + 4 = 0\z)"});
  PageEnd();

  NewScreen();
  Say(R"(\yTry it:\z  Both have a 0.  Which property does each one show?)");
  ShowAt(6, "7 + 0 = 7        7 + (-7) = 0", 6);
  PageEnd();
  Note(7.4, 6, "identity: 0 is added");
  Note(7.4, 23, "inverse: 0 comes out");
  SayAt(10, R"(\yTry it:\z  Which two does this one show?)");
  ShowAt(11.5, "4 + (-4) + 7 = 7", 6);
  SayAt(13.5, "We begin with the left side:");
  PageEnd();
  ShowAt(15, "4 + (-4) + 7", 6);
  ShowAt(16.5, R"(= 0 + 7         \yinverse\z)", 4);
  ShowAt(18, R"(= 7             \yidentity\z)", 4);
  SayAt(20, "4 and -4 give 0, and 0 + 7 is 7.");
  PageEnd();
}

void AllFour() {
  NewScreen();
  PaperBox(Aligned({"commutative: a + b = b + a", "associative: (a + b) + c = a + (b + c)",
                    "identity:    a + 0 = a", "inverse:     a + (-a) = 0"}),
           3);
  PageEnd();
  Say("They hold for all numbers.  An equation that is false shows none of them.");
  Say(R"(\yTry it:\z  Which property is this?)");
  ShowAt(13.5, "(9 - 5) - 2 = 9 - (5 - 2)", 6);
  PageEnd();
  SayAt(15,
        R"(\yNone\z, since it is false.  The left side is 4 - 2 = 2, the right side 9 - 3 = 6.)");
  PageEnd();
}

// --- The lesson ----------------------------------------------------------------------------------

class PropertiesOfAddition final : public LessonScript {
 public:
  using LessonScript::LessonScript;
  bool ChoicesAreWords() const override { return true; }

 private:
  std::vector<Screen> Screens() override {
    return {{DotsInTwoGroups, OrderRule},
            {DotsInThreeGroups, GroupingRule, OrderOrGrouping, OrderAndGrouping},
            {AddingZero, IdentityRule},
            {ThereAndBack, InverseRule, AllFour}};
  }
  void DrawProblem(RandomStream& random) override {
    statement_ = DrawStatement(kAddition, random);
    SetPropertyProblem(problem, kAddition, statement_);
  }
  void ShowProblem() override { ShowPropertyProblem(problem); }
  void ExplainProblem() override { ExplainStatement(problem, kAddition, statement_); }

  Statement statement_;
};

const LessonRegistration<PropertiesOfAddition> kRegistration("Properties of Addition");

}  // namespace
}  // namespace course
