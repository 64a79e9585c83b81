// The student turns words such as "the quantity 3 less than A" into algebraic expressions, and
// back: finds the innermost part, the operation of its words and the order of its numbers.
//
// Problems are nests of one to three operations in one of the two directions.
#include <algorithm>

#include "lessons/families/stories/nest_draws.h"
#include "lessons/families/stories/nest_steps.h"
#include "lessons/families/stories/paired_rows.h"
#include "lessons/families/stories/story_words.h"
#include "lessons/families/stories/worded_nest.h"
#include "lessons/lesson.h"

namespace course {
namespace {

using namespace stories;

const std::string kDot = " " + tutor::Dot + " ";
const std::string kDivide = " " + tutor::Divided + " ";

// --- Teaching screens --------------------------------------------------------

// Arrows from numbers in words to their places in the expression, three rows below.
struct Way {
  double from;  // columns
  double to;
};
void ShowWays(double row, std::initializer_list<Way> ways) {
  for (const Way& way : ways) isDrawRay("", row + 0.7, way.from, row + 2.3, way.to, false);
}

// --- Screen 1: addition

void SumInWords() {
  NewScreen();
  SayAt(3, "Algebra is a language of its own:");
  ShowAt(6, R"(the \ysum\z of A and 5)", 10);
  ShowWays(6, {{21, 21}, {27, 27}});
  ShowAt(9, R"(A  \y+\z  5)", 21);
  SayAt(11, R"(The word \ysum\z tells us to add.)");
  PageEnd();
}

void WordsForAddition() {
  NewScreen();
  SayAt(3, "Other words for A + 5 are:");
  PaperBox({"the quantity A plus 5", "the quantity A increased by 5", "the quantity A more than 5"},
           4.5);
  PageEnd();
  Say(R"(\cThe quantity\z means:  here begins a number that is still to be worked out.)");
  Say(R"(\yTry it:\z  What do we write for this?)");
  Show("the quantity B more than 7", 5);
  PageEnd();
  Say(R"(It is 7 + B, or B + 7.  This \calgebraic expression\z is \cequivalent\z to the words:  )"
      "it means the same number.");
  Say("Where does the order matter?");
  PageEnd();
}

// --- Screen 2: subtraction

std::string Dots(int count) {
  std::string dots;
  for (int i = 0; i < count; ++i) dots += (i > 0 ? " " : "") + tutor::Bullet;
  return dots;
}

void LessThan() {
  NewScreen();
  SayAt(3,
        "It matters when we subtract.  Dave has 10 dollars.  Mary has 3 dollars less than Dave.  "
        "How many does she have?");
  ShowAt(8, "Dave   " + Dots(7) + R"( \y)" + Dots(3) + R"(\z)", 5);
  PageEnd();
  ShowAt(9.5, "Mary   " + Dots(7), 5);
  SayAt(11, "We start with 10, and 3 are taken away:  10 - 3.");
  SayAt(14, Text("3 less than A:  is it {} or {}?", "A - 3", "3 - A"));
  PageEnd();
  ClearBelow(14);
  ShowAt(14, R"(the quantity 3 \yless than\z A)", 5);
  ShowWays(14, {{18, 30}, {30, 18}});
  ShowAt(17, R"(A     \y-\z     3)", 18);
  SayAt(19, R"(We start with A.  So A comes \yfirst\z.)");
  PaperBox({R"(3 less than A is  A - 3,  \rnot 3 - A\z)"});
  PageEnd();
}

void WordsForSubtraction() {
  NewScreen();
  SayAt(3, "Other words for A - 3 are:");
  PaperBox({"the difference of A and 3", "the quantity A minus 3", "the quantity A decreased by 3"},
           4.5);
  PageEnd();
  SayAt(9.5, "Like ~less than~, these words reverse the order of a difference:");
  ShowAt(13, "the quantity B subtracted from 9", 3);
  SayAt(15, R"(\yTry it:\z  What is the expression?)");
  PageEnd();
  ClearBelow(15);
  ShowWays(13, {{16, 34}, {34, 16}});
  ShowAt(16, R"(9        \y-\z        B)", 16);
  SayAt(18, R"(\yFrom\z 9 we take B.  So 9 comes first.)");
  PageEnd();
}

// --- Screen 3: multiplication

void ProductInWords() {
  NewScreen();
  SayAt(3, "A box holds 6 eggs.  How many eggs are in N boxes?");
  ShowPairedRows("boxes", "eggs");
  FillPair(1, "1", "6");
  FillPair(2, "2", "12");
  FillPair(3, "10", "60");
  FillPair(4, "N", "");
  PageEnd();
  FillPair(4, "N", "6" + kDot + "N");
  Say("We multiply.  The dot means times.");
  PaperBox({"the product of 6 and N", "the quantity 6 times N", "the quantity 6 multiplied by N"});
  PageEnd();
}

void FactorAtTheRightSide() {
  NewScreen();
  SayAt(3,
        "A school has 6 times as many students as teachers.  S is the number of students, and T "
        "that of teachers.  Which is true?");
  ShowAt(7.5, "S = 6" + kDot + "T     or     6" + kDot + "S = T", 6);
  PageEnd();
  ShowPairedRows("teachers T", "students S");
  FillPair(1, "1", "6");
  FillPair(2, "2", "12");
  FillPair(3, "10", "60");
  FillPair(4, "T", "6" + kDot + "T");
  Say("60 = 6 " + tutor::Times + " 10:  the 6 stands beside T.");
  PaperBox({"S = 6" + kDot + "T,  \\rnot 6" + kDot + "S = T\\z"});
  Say(R"(\yTry it:\z  Bill has B books.  Jill has 5 times as many.  How many is that?)");
  PageEnd();
  Say(Text(R"(Jill has more.  So the 5 stands beside B, the smaller number:  \y{}\z.)",
           "5" + kDot + "B"));
  PageEnd();
}

// --- Screen 4: division

void QuotientInWords() {
  NewScreen();
  SayAt(3, "12 cookies for 3 children are 4 each:");
  ShowAt(5, "12" + kDivide + "3 = 4", 12);
  SayAt(7, R"(This is the \cquotient\z of 12 and 3, or the \cratio\z of 12 to 3.)");
  PageEnd();
  SayAt(10.5, "3 cookies for 12 children are less than one each:");
  ShowAt(14, "3" + kDivide + "12 = 3/12 = 1/4", 12);
  SayAt(16.5, R"(In a quotient the \yorder matters\z.)");
  PageEnd();
}

void WordsForDivision() {
  NewScreen();
  SayAt(3, "The quotient of A and 8 is also:");
  PaperBox({"the ratio of A to 8", "the quantity A divided by 8"}, 4.5);
  ShowAt(9, R"(\yTry it:\z  the ratio of B to 4)", 1);
  PageEnd();
  ShowWays(9, {{23, 23}, {28, 28}});
  ShowAt(12, Text(R"(B \y{}\z 4)", tutor::Gap + tutor::Divided), 23);
  SayAt(14, "B comes first in the words, and so it is divided.");
  PageEnd();
}

// --- Screen 5: one part inside another

void PartOfTheWords() {
  const std::string times = " " + tutor::Times + " ";
  NewScreen();
  SayAt(3, "A part can be an expression by itself:");
  ShowAt(5.5, "the product of the sum of A and B and C", 1);
  SayAt(7.5, "What is multiplied by C?");
  PageEnd();
  Bracket(6.25, 16, 18, 2, 1);
  SayAt(7.5, R"(The \ysum of A and B\z.  There the sum has its two numbers, and it ends:)");
  ShowAt(10.5, "(A + B)" + kDot + "C", 14);
  SayAt(12.5, R"(\yTry it:\z  Put in A = 2, B = 3, C = 4.)");
  PageEnd();
  ShowAt(14.5, "(2 + 3)" + times + "4 = 5" + times + "4 = 20", 6);
  SayAt(16.5, Text("With {} it is another number:", "A + (B" + kDot + "C)"));
  ShowAt(18.5, "2 + (3" + times + "4) = 2 + 12 = 14", 6);
  SayAt(20.5, "The words tell where to put parentheses.");
  PageEnd();
}

void PartInAPart() {
  NewScreen();
  SayAt(3, R"(Each ~the~ opens a part.  It ends at its \ysecond number\z, after ~and~ or ~to~.)");
  SayAt(6, R"(\yTry it:\z  Which is the innermost part?)");
  ShowAt(8, "the quantity D minus the sum of A and B", 1);
  PageEnd();
  ShowAt(8, R"(the quantity D minus \ythe sum of A and B\z)", 1);
  SayAt(9.5, "It has no other part in it.  Its expression takes its place:");
  ShowAt(12, R"(the quantity D minus \y(A + B)\z)", 1);
  SayAt(13.5, "What is the whole expression?");
  PageEnd();
  ShowAt(13.5, R"(It is \yD - (A + B)\z.                    )", 1);
  SayAt(15, "Now the ratio of the quantity D minus the sum of A and B to 4:");
  SayAt(17.5, "What is divided by 4?");
  PageEnd();
  SayAt(17.5, R"(All of \yD - (A + B)\z:  ~to 4~ ends the ratio.  We put brackets there:)");
  ShowAt(20, "the ratio of [D - (A + B)] to 4", 1);
  ShowAt(22, R"(\y[D - (A + B)])" + kDivide + R"(4\z)", 12);
  PageEnd();
}

// --- Screen 6: from symbols to words

void FromSymbolsToWords() {
  NewScreen();
  SayAt(3, "Now the other way.  How do we say this in English?");
  ShowAt(5.5, "C - (A" + kDot + "B)", 13);
  SayAt(7, R"(\yTry it:\z  Which part comes first?)");
  PageEnd();
  ShowAt(5.5, Text(R"(C - \y{}\z)", "(A" + kDot + "B)"), 13);
  SayAt(7, "We begin inside the parentheses, and take that product from C:");
  ShowAt(10, "the difference of C and", 4);
  ShowAt(11, R"(\ythe product of A and B\z)", 8);
  PageEnd();
  SayAt(13, R"(\yWatch out:\z  ~less than~ reverses this.)");
  const std::string product = "(A" + kDot + "B)";
  PaperBox({Text("the quantity {} less than C,", product),
            Text(R"(\rnot the quantity C less than {}\z)", product)});
  Say(R"(\yTry it:\z  Say (A - 5))" + kDivide + "B in English.");
  PageEnd();
  ClearBelow(13);
  SayAt(13, R"(\yTry it:\z  Say (A - 5))" + kDivide + "B in English.");
  Say("the quotient of the difference of A and 5 and B", {.col = 3});
  Say("One ~and~ belongs to the difference, the last one to the quotient.");
  PageEnd();
}

void QuantityStandsTwice() {
  NewScreen();
  SayAt(3, "~The quantity~ may stand twice:");
  SayAt(5, "the ratio of the quantity the quantity A plus B times C to 4", {.col = 3});
  SayAt(8, R"(\yTry it:\z  What is the innermost part?)");
  PageEnd();
  SayAt(10.5, "The second one opens the innermost part:");
  SayAt(12, Text(R"(the ratio of the quantity \y{}\z times C to 4)", "(A + B)"), {.col = 3});
  ShowAt(15, R"(\y[(A + B))" + kDot + "C]" + kDivide + R"(4\z)", 12);
  PageEnd();
}

// --- The lesson --------------------------------------------------------------

class TranslatingWordsIntoExpressions final : public LessonScript {
 public:
  using LessonScript::LessonScript;

 private:
  std::vector<Screen> Screens() override {
    return {{SumInWords, WordsForAddition},         {LessThan, WordsForSubtraction},
            {ProductInWords, FactorAtTheRightSide}, {QuotientInWords, WordsForDivision},
            {PartOfTheWords, PartInAPart},          {FromSymbolsToWords, QuantityStandsTwice}};
  }
  void DrawProblem(RandomStream& random) override;
  void ShowProblem() override;
  void ExplainProblem() override;

  bool FillChoices(RandomStream& random);
  std::string ChoiceTextOf(const Nest& nest) const;
  std::string NameInWords(const NestSlip& slip) const;

  Nest nest_;
  std::vector<Nest> wrong_;
  bool toAlgebra_ = true;  // the words are given
};

// --- Generator ---------------------------------------------------------------

// A fifth of the draws is accepted: the others begin with doubled words, or some of their mistakes
// come to the same.
void TranslatingWordsIntoExpressions::DrawProblem(RandomStream& random) {
  do {
    problem = {};
    nest_ = DrawNest(random);
    toAlgebra_ = random.Rand(0, 1) == 1;
  } while (nest_.BeginsTwice() || !FillChoices(random));
  const std::string given = toAlgebra_ ? "English" : "algebraic";
  const std::string wanted = toAlgebra_ ? "algebraic" : "English";
  problem.question = {
      "What " + wanted + " expression is equivalent to the " + given + " expression below?",
      toAlgebra_ ? AtStart(nest_.Words()) : nest_.Symbols()};
}

std::string TranslatingWordsIntoExpressions::ChoiceTextOf(const Nest& nest) const {
  return toAlgebra_ ? nest.Symbols() : AtStart(nest.Words());
}

// An exchange that comes from words such as "less than" has its own name.
std::string TranslatingWordsIntoExpressions::NameInWords(const NestSlip& slip) const {
  return toAlgebra_ && slip.keepsOrderOfWords ? "keeps the order of the words" : slip.name;
}

// False when two choices are the same or have the same mistake, or the words of one begin twice.
bool TranslatingWordsIntoExpressions::FillChoices(RandomStream& random) {
  const std::vector<NestSlip> slips = DrawSlips(nest_, random);
  int slot = random.Rand(1, 5);
  if (slot == 5) slot = 1;
  wrong_.clear();
  problem.kind = choice_kind::FiveShuffled;
  problem.Right(slot, ChoiceTextOf(nest_));
  for (int i = 1; const NestSlip& slip : slips) {
    if (slip.nest.BeginsTwice()) return false;
    const auto sameValue = [&](const Nest& nest) { return nest.SameValue(slip.nest); };
    if (sameValue(nest_) || std::ranges::any_of(wrong_, sameValue)) return false;
    wrong_.push_back(slip.nest);
    const std::string name = NameInWords(slip);
    if (std::ranges::count(problem.choices, name, &Choice::mistake) != 0) return false;
    if (i == slot) ++i;
    problem.Wrong(i++, name, ChoiceTextOf(slip.nest));
  }
  return true;
}

// --- Problem page ------------------------------------------------------------

void TranslatingWordsIntoExpressions::ShowProblem() {
  SayAt(4, problem.question[0]);
  if (toAlgebra_) {
    SayAt(7, problem.question[1]);
    ShowAnswersInOneColumn(problem, {.row = 12, .width = 26});
    return;
  }
  ShowAt(7.5, problem.question[1], 10);
  std::size_t longest = 0;
  for (const Choice& choice : problem.choices) longest = std::max(longest, choice.text.size());
  // Points; words on one line take about half of it for each character.
  const double size = std::clamp(880.0 / static_cast<double>(longest), 9.0, 16.0);
  ShowAnswersInOneColumn(problem, {.row = 11, .width = 40, .fontSize = size, .font = "TNR"});
}

// --- Worked explanation ------------------------------------------------------

void TranslatingWordsIntoExpressions::ExplainProblem() {
  ProblemBanner();
  if (toAlgebra_)
    ExplainWords(nest_, wrong_);
  else
    ExplainSymbols(nest_, wrong_);
  if (toAlgebra_) return SayInBoxAnew(ConclusionText(problem, 'b'));
  SayInBoxAnew("The answer is:");
  SayInBox(R"(\b)" + RightText(problem) + R"(\z)");
}

const LessonRegistration<TranslatingWordsIntoExpressions> kRegistration(
    "Translating Words Into Expressions");

}  // namespace
}  // namespace course
