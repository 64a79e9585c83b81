// The student compares two ages: finds out who is older, whether years are added or the age is
// multiplied, and writes the other age as a number or as an expression.
//
// Four problems of eight ask for an expression, four for a number.
#include <algorithm>
#include <array>

#include "lessons/families/stories/paired_rows.h"
#include "lessons/families/stories/story_words.h"
#include "lessons/families/stories/two_ages.h"
#include "lessons/lesson.h"

namespace course {
namespace {

using namespace stories;

const std::string kTimes = " " + tutor::Times + " ";
const std::string kDivide = " " + tutor::Divided + " ";

// --- Teaching screen ---------------------------------------------------------

void OlderByYears() {
  NewScreen();
  SayAt(3, "Suzy is 3 years older than Bill.  Here are some of their ages:");
  ShowPairedRows("Bill", "Suzy");
  FillPair(1, "5", "8");
  FillPair(2, "8", "11");
  FillPair(3, "20", "");
  Say("How old is Suzy if Bill is 20?");
  PageEnd();
  FillPair(3, "20", "23");
  FillPair(4, "x", "");
  Say(R"(She is 23.  Each time we \yadd 3\z to Bill's age.)");
  Say(R"(\yTry it:\z  How old is Suzy if Bill is x years old?)");
  PageEnd();
  FillPair(4, "x", "x + 3");
  Say(R"(She is \yx + 3\z years old.  We call x + 3 an \cexpression\z.)");
  AddLine("The letter stands for Bill's age.  It may be k or m, too.");
  PageEnd();
}

void TheOtherOne() {
  NewScreen();
  SayAt(3, "Suzy is 3 years older than Bill.  Now we know Suzy's age.  It is 20.");
  ShowPairedRows("Bill", "Suzy", kUnder, 1);
  FillPair(1, "?", "20", 1, WorkedOut::Nothing);
  Say("Who of them is younger?  How old is Bill?");
  PageEnd();
  FillPair(1, "17", "20", 1, WorkedOut::Above);
  Say(R"(Bill is younger.  So we \ysubtract\z:)");
  Show("20 - 3 = 17", 14);
  PageEnd();
  Say(R"(\yWatch out:\z  The word ~older~ does not always tell us to add.  We ask:)");
  PaperBox({"1.  Who is older?", "2.  Whose age do we look for?"});
  PageEnd();
}

void TheOtherLetter() {
  NewScreen();
  SayAt(3, "Dave is 4 years younger than Mary.  Dave is x years old.");
  ShowPairedRows("Dave", "Mary", kUnder, 1);
  FillPair(1, "x", "?", 1, WorkedOut::Nothing);
  Say(R"(\yTry it:\z  How old is Mary?)");
  PageEnd();
  FillPair(1, "x", "x + 4", 1);
  Say(R"(Mary is older, and we look for her age.  We add:  \yx + 4\z.)");
  PageEnd();
  NewScreen();
  SayAt(3, "Dave is 4 years younger than Mary.  Now Mary is x years old.");
  ShowPairedRows("Dave", "Mary", kUnder, 1);
  FillPair(1, "?", "x", 1, WorkedOut::Nothing);
  Say(R"(\yTry it:\z  How old is Dave?)");
  PageEnd();
  FillPair(1, "x - 4", "x", 1, WorkedOut::Above);
  Say(R"(Dave is younger, and we look for his age.  We subtract:  \yx - 4\z.)");
  PaperBox({R"(4 years less than x is x - 4,  \rnot 4 - x\z)"});
  PageEnd();
}

void OlderByTimes() {
  NewScreen();
  SayAt(3, R"(Paul is 3 times older than Jill.  In this lesson it means \y3 times her age\z.)");
  ShowPairedRows("Jill", "Paul");
  FillPair(1, "2", "6");
  FillPair(2, "5", "15");
  FillPair(3, "10", "");
  FillPair(4, "x", "");
  Say("How old is Paul if Jill is 10?  And if she is x years old?");
  PageEnd();
  FillPair(3, "10", "30");
  FillPair(4, "x", "3x");
  Say(R"(He is 30, and \y3x\z if she is x.  We multiply.)");
  Say(R"(\yWatch out:\z  Times are not years.)");
  PaperBox({R"(3 times older is 3x,  \rnot x + 3\z)"});
  PageEnd();
}

void YoungerByTimes() {
  NewScreen();
  SayAt(3, "Bill is 4 times younger than Mary.  How can we say this with the word ~older~?");
  PageEnd();
  SayAt(6, R"(Mary is \y4 times older\z than Bill.  Her age is 4 times his age.)");
  ShowPairedRows("Bill", "Mary");
  FillPair(1, "2", "8");
  FillPair(2, "5", "20");
  FillPair(3, "", "40", kPairs, WorkedOut::Nothing);
  FillPair(4, "", "x", kPairs, WorkedOut::Nothing);
  Say("How old is Bill if Mary is 40?");
  PageEnd();
  FillPair(3, "10", "40", kPairs, WorkedOut::Above);
  Say(R"(~4 times younger~ means \ydivided by 4\z:)");
  Show("40" + kDivide + "4 = 10", 14);
  Say("And if Mary is x years old?");
  PageEnd();
  FillPair(4, "x" + kDivide + "4", "x", kPairs, WorkedOut::Above);
  ClearBelow(13.5);
  SayAt(14, "If Mary is x years old, Bill's age is:");
  Show("x" + kDivide + "4 = x/4", 14);
  PageEnd();
}

void FactorAtTheYounger() {
  constexpr double kFirstCol = 5;
  constexpr double kSecondCol = 24;
  NewScreen();
  SayAt(3,
        "Mary is 4 times older than Bill.  M is Mary's age, and B is Bill's age.  Which is true?");
  ShowAt(6.5, "M = 4B", kFirstCol);
  ShowAt(6.5, "or", 18);
  ShowAt(6.5, "4M = B", kSecondCol);
  PageEnd();
  SayAt(8.5, "Let us put in Mary's 40 years and Bill's 10 years:");
  ShowAt(11, "40 = 4" + kTimes + "10", kFirstCol);
  ShowAt(11, "4" + kTimes + "40 = 10", kSecondCol);
  ShowAt(12, "true", kFirstCol);
  ShowAt(12, "false", kSecondCol);
  PageEnd();
  SayAt(13.5, R"(The 4 stands beside B, the \yyounger\z one.)");
  PaperBox({R"(M = 4B,  \rnot 4M = B\z)"});
  PageEnd();
  NewScreen();
  SayAt(3, "Jill is 5 times younger than Dave.  Jill is x years old.");
  ShowPairedRows("Jill", "Dave", kUnder, 1);
  FillPair(1, "x", "?", 1, WorkedOut::Nothing);
  Say(R"(\yTry it:\z  How old is Dave?)");
  PageEnd();
  FillPair(1, "x", "5x", 1);
  Say(R"(Dave is older.  His age is 5 times hers:  \y5x\z.)");
  PaperBox({R"(5 times as old is 5x,  \rnot x/5 and not x + 5\z)"});
  PageEnd();
}

void OneTable() {
  NewScreen();
  PaperBox({"1.  Who is older?", "2.  Whose age do we look for?", "3.  Years or times?"}, 3);
  PrintCellTable table;
  table.heightPixels = 150;
  for (const double top : {34.0, 67.0})
    for (const double left : {36.0, 68.0}) table.cells.push_back({left, top, 30, 28});
  table.labels = {{36, 8, 30, 20, "years", 14, platform::colour::Black, true},
                  {68, 8, 30, 20, "times", 14, platform::colour::Black, true},
                  {2, 40, 33, 20, "older one's age", 13},
                  {2, 73, 33, 20, "younger one's age", 13}};
  CellTable(table);
  constexpr std::string_view kOperations[] = {"add", "multiply", "subtract", ""};
  for (int cell = 1; cell <= 4; ++cell)
    picPrintCellPrint(cell, std::string(kOperations[cell - 1]), platform::colour::Blue, 14);
  Say(R"(\yTry it:\z  What belongs in the empty cell?)");
  PageEnd();
  picPrintCellPrint(4, "divide", platform::colour::Blue, 14);
  Say("The younger one's age, and the story says times:  we divide.");
  PageEnd();
  NewScreen();
  SayAt(3, "Suzy is 6 times older than Paul.  Suzy is k years old.");
  ShowPairedRows("Suzy", "Paul", kUnder, 1);
  FillPair(1, "k", "?", 1, WorkedOut::Nothing);
  Say(R"(\yTry it:\z  Answer the three questions.  How old is Paul?)");
  PageEnd();
  FillPair(1, "k", "k" + kDivide + "6", 1);
  Say("Suzy is older.  We look for the younger one's age, and the story says times.  So we "
      "divide:");
  Show("k" + kDivide + "6 = k/6", 14);
  PageEnd();
  Say("We always work out the answer first.  If it is not among the choices, the right one is "
      "~None of the above~.");
  PageEnd();
}

// --- The lesson --------------------------------------------------------------

class SimpleWordProblems final : public LessonScript {
 public:
  using LessonScript::LessonScript;
  bool ChoicesAreLaidDown() const override { return true; }

 private:
  std::vector<Screen> Screens() override {
    return {{OlderByYears, TheOtherOne, TheOtherLetter, OlderByTimes, YoungerByTimes,
             FactorAtTheYounger, OneTable}};
  }
  void DrawProblem(RandomStream& random) override;
  void ShowProblem() override;
  void ExplainProblem() override;

  void FillAges(const std::string& asked);
  void ExplainMeaning();
  void ExplainOperation();
  void Check();

  TwoAges ages_;
};

// --- Problem -----------------------------------------------------------------

void SimpleWordProblems::DrawProblem(RandomStream& random) {
  ages_ = TwoAges::Draw(random);
  problem.question = ages_.Question();
  FillChoices(ages_, problem, random);
}

void SimpleWordProblems::ShowProblem() {
  SayAt(5, OneParagraph(problem.question));
  ShowAnswersInTwoColumns(problem, {.row = 12});
}

// --- Worked explanation ------------------------------------------------------

void SimpleWordProblems::ExplainProblem() {
  ProblemBanner();
  SayAt(4, OneParagraph(problem.question));
  PageEnd();
  constexpr double kTableRow = 8;
  constexpr double kBoxRow = 13.5;
  ShowPairedRows(ages_.first, ages_.second, kTableRow, 1);
  FillAges("?");
  WhiteBox({.row = kBoxRow, .rows = 6});
  SayInBox("Let's summarize what we know.  The table shows both ages.");
  SayInBox("Who is older?");
  PageEnd();
  ExplainMeaning();
  ExplainOperation();
  Check();
  SayInBoxAnew(ConclusionText(problem, 'b'));
}

void SimpleWordProblems::FillAges(const std::string& asked) {
  if (ages_.asksForNumber)
    FillPair(1, asked, ages_.KnownAge(), 1, WorkedOut::Above);
  else
    FillPair(1, ages_.KnownAge(), asked, 1, WorkedOut::Below);
}

void SimpleWordProblems::ExplainMeaning() {
  const std::string& older = ages_.firstIsOlder ? ages_.first : ages_.second;
  const std::string& younger = ages_.firstIsOlder ? ages_.second : ages_.first;
  SayInBoxAnew(Text("{} is older.", older));
  if (ages_.inTimes)
    SayInBox(Text("~{}~ means:  {}'s age is {} times {}'s age.", Words{ages_.Difference()}, older,
                  ages_.number, younger));
  else
    SayInBox(Text("~{}~ means:  {} has lived {} year{} more than {}.", Words{ages_.Difference()},
                  older, ages_.number, Words{PluralSuffix(ages_.number)}, younger));
  PageEnd();
}

// "We add 3:"
std::string DoText(AgeOperation operation, int number) {
  constexpr std::array<std::string_view, 4> kDo = {"multiply by", "divide by", "add", "subtract"};
  return "We " + std::string(kDo.at(static_cast<std::size_t>(operation))) + " " + NumStr(number) +
         ":";
}

// An age with what is done to it: "20 - 3", "k - 3".
std::string WorkingText(AgeOperation operation, const std::string& age, int number) {
  const std::array<std::string, 4> signs = {kTimes, kDivide, " + ", " - "};
  return age + signs.at(static_cast<std::size_t>(operation)) + NumStr(number);
}

// The working stays in view under the box.
void SimpleWordProblems::ExplainOperation() {
  constexpr double kWorkingRow = 21.5;
  SayInBoxAnew(Text("We look for {}'s age.  {} is the {} one.  What do we do with {}?",
                    ages_.Asked(), ages_.Asked(), Words{ages_.AskedIsOlder() ? "older" : "younger"},
                    ages_.KnownAge()));
  PageEnd();
  const AgeOperation operation = ages_.RightOperation();
  const std::string age = ages_.AgeBy(operation);
  const std::string working = WorkingText(operation, ages_.KnownAge(), ages_.number);
  SayInBoxAnew(DoText(operation, ages_.number));
  ShowAt(kWorkingRow, working == age ? age : working + " = " + age, 14);
  const bool isFraction = age.find('/') != std::string::npos;  // too high for a cell
  FillAges(isFraction ? working : age);
  PageEnd();
}

// The two ages back in the story; a letter gets a number for it.
void SimpleWordProblems::Check() {
  constexpr int kYoungerAge = 10;
  const bool isOlder = ages_.AskedIsOlder();
  const int number = ages_.number;
  int known = ages_.age;
  if (!ages_.asksForNumber)
    known = isOlder ? kYoungerAge : (ages_.inTimes ? kYoungerAge * number : kYoungerAge + number);
  const int other = ages_.inTimes ? (isOlder ? known * number : known / number)
                                  : (isOlder ? known + number : known - number);
  if (ages_.asksForNumber)
    SayInBoxAnew(
        Text("Check:  {} is {}, and {} is {}.", ages_.Known(), known, ages_.Asked(), other));
  else
    SayInBoxAnew(
        Text("Check:  Let {} be {}.  Then {} is {} years old.", ages_.letter, known, ages_.Asked(),
             WorkingText(ages_.RightOperation(), NumStr(known), number) + " = " + NumStr(other)));
  SayInBox(Text("{} is {} {} {}, as the story says.", std::max(known, other), number,
                Words{ages_.inTimes ? "times" : "more than"}, std::min(known, other)));
  PageEnd();
}

const LessonRegistration<SimpleWordProblems> kRegistration("Simple Word Problems");

}  // namespace
}  // namespace course
