// The student compares two ages: finds out who is older, whether years are added or the age is
// multiplied, and writes the other age as a number or as an expression.
//
// Four problems of eight ask for an expression, four for a number.
#include <algorithm>
#include <array>

#include "lessons/families/stories/paired_rows.h"
#include "lessons/families/stories/word_table.h"
#include "lessons/lesson.h"

namespace course {
namespace {

using namespace stories;

constexpr std::string_view kNames[] = {"Suzy", "Mary", "Jill", "Dave", "Paul", "Bill"};
constexpr std::string_view kRelations[] = {"times", "years"};
constexpr std::string_view kDirections[] = {"younger", "older"};
constexpr std::string_view kLetters = "kmnpxy";  // that are no words, and look like no digits

constexpr int kKinds = 8;
constexpr int kFirstWithNumber = 4;  // of the kinds

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
  Say(R"(She is \yx + 3\z years old.  The letter x stands for Bill's age, whatever it is.)");
  PageEnd();
}

void TheOtherOne() {
  NewScreen();
  SayAt(3, "Suzy is 3 years older than Bill.  Now we know Suzy's age.  It is 20.");
  ShowPairedRows("Bill", "Suzy", kUnder, 1);
  FillPair(1, "?", "20", 1);
  Say("Who of them is younger?  How old is Bill?");
  PageEnd();
  FillPair(1, "17", "20", 1);
  Say(R"(Bill is younger.  So we \ysubtract\z:)");
  Show("20 - 3 = 17", 14);
  PageEnd();
  Say(R"(\yWatch out:\z  The word ~older~ does not always tell us to add.  We ask:)");
  PaperBox({"Who is older?", "Whose age do we look for?"});
  PageEnd();
  NewScreen();
  SayAt(3, "Dave is 4 years younger than Mary.  Dave is x years old.");
  ShowPairedRows("Dave", "Mary", kUnder, 1);
  FillPair(1, "x", "?", 1);
  Say(R"(\yTry it:\z  How old is Mary?)");
  PageEnd();
  FillPair(1, "x", "x + 4", 1);
  Say(R"(Mary is older, and we look for her age.  We add:  \yx + 4\z.)");
  PageEnd();
}

void OlderByTimes() {
  NewScreen();
  SayAt(3, R"(If Paul is 3 times older than Jill, his age is \y3 times\z her age.)");
  ShowPairedRows("Jill", "Paul");
  FillPair(1, "2", "6");
  FillPair(2, "5", "15");
  FillPair(3, "10", "");
  FillPair(4, "x", "");
  PageEnd();
  Say("How old is Paul if Jill is 10?  And if she is x years old?");
  PageEnd();
  FillPair(3, "10", "30");
  FillPair(4, "x", "3x");
  Say(R"(He is 30, and he is \y3x\z years old.  We multiply.)");
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
  FillPair(3, "", "40");
  FillPair(4, "", "x");
  PageEnd();
  Say("How old is Bill if Mary is 40?");
  PageEnd();
  FillPair(3, "10", "40");
  FillPair(4, "x/4", "x");
  Say(R"(Bill is younger, so we \ydivide\z:)");
  Show("40" + kDivide + "4 = 10", 14);
  Say("If Mary is x years old, Bill's age is x over 4.");
  PageEnd();
}

void FactorAtTheYounger() {
  NewScreen();
  SayAt(3,
        "Mary is 4 times older than Bill.  M is Mary's age, and B is Bill's age.  Which is true?");
  ShowAt(6.5, "M = 4B     or     4M = B", 9);
  PageEnd();
  SayAt(8.5, "Let us put in Bill's 10 years and Mary's 40 years:");
  ShowAt(11, "40 = 4" + kTimes + "10", 9);
  PageEnd();
  SayAt(12.5, R"(The 4 stands beside the \yyounger\z one's age.)");
  PaperBox({R"(M = 4B,  \rnot 4M = B\z)"});
  PageEnd();
  Say(R"(\yTry it:\z  Jill is 5 times younger than Dave.  Jill is x years old.  How old is Dave?)");
  PageEnd();
  Say(R"(Dave is older.  His age is 5 times hers:  \y5x\z.)");
  PageEnd();
}

void OneTable() {
  NewScreen();
  SayAt(3, "Two questions lead to the operation:");
  PrintCellTable table;
  table.heightPixels = 150;
  for (const double top : {34.0, 67.0})
    for (const double left : {36.0, 68.0}) table.cells.push_back({left, top, 30, 28});
  table.labels = {{36, 8, 30, 20, "years", 14, platform::colour::Black, true},
                  {68, 8, 30, 20, "times", 14, platform::colour::Black, true},
                  {2, 40, 33, 20, "older one's age", 13},
                  {2, 73, 33, 20, "younger one's age", 13}};
  CellTable(table, 4.5);
  constexpr std::string_view kOperations[] = {"add", "multiply", "subtract", ""};
  for (int cell = 1; cell <= 4; ++cell)
    picPrintCellPrint(cell, std::string(kOperations[cell - 1]), platform::colour::Blue, 14);
  Say(R"(\yTry it:\z  What belongs in the empty cell?)");
  PageEnd();
  picPrintCellPrint(4, "divide", platform::colour::Blue, 14);
  Say("We look for the younger one's age, and it is told in times.  So we divide.");
  PageEnd();
  Say(R"(\yTry it:\z  Suzy is 6 years younger than Paul.  Paul is 15 years old.  How old is Suzy?)");
  PageEnd();
  Say("Suzy is younger, and it is told in years.");
  ShowAt(22, "15 - 6 = 9", 14);
  AddLine("Check:  9 is 6 less than 15.");
  PageEnd();
}

// --- The lesson --------------------------------------------------------------

enum class AgeOperation { Multiply, Divide, Add, Subtract };

class SimpleWordProblems final : public LessonScript {
 public:
  using LessonScript::LessonScript;
  bool ChoicesAreLaidDown() const override { return true; }

 private:
  std::vector<Screen> Screens() override {
    return {
        {OlderByYears, TheOtherOne, OlderByTimes, YoungerByTimes, FactorAtTheYounger, OneTable}};
  }
  void DrawProblem(RandomStream& random) override;
  void ShowProblem() override;
  void ExplainProblem() override;

  void DrawPeople(RandomStream& random);
  void DrawNumbers(RandomStream& random);
  void FillChoices(RandomStream& random);
  void Overwrite(int slot, RandomStream& random);
  std::string DrawFiller(RandomStream& random) const;
  bool ChoicesDiffer() const;

  bool AsksForNumber() const { return kind_ >= kFirstWithNumber; }
  bool InTimes() const { return kind_ % 4 < 2; }
  bool FirstIsOlder() const { return kind_ % 2 == 1; }
  // A number is asked of the first person, an expression of the second.
  const std::string& Asked() const { return AsksForNumber() ? first_ : second_; }
  const std::string& Known() const { return AsksForNumber() ? second_ : first_; }
  bool AskedIsOlder() const { return FirstIsOlder() == AsksForNumber(); }
  std::string KnownAge() const { return AsksForNumber() ? NumStr(age_) : letter_; }
  std::string Difference() const;
  std::string Story() const;
  AgeOperation RightOperation() const;
  std::string AgeBy(AgeOperation operation) const;
  std::string NameOf(AgeOperation operation) const;
  void ExplainMeaning();
  void ExplainOperation();
  void Check();

  int kind_ = 0;        // 0 to 7
  int number_ = 0;      // of times or years
  int age_ = 0;         // of the second person, when a number is asked
  std::string letter_;  // the first person's age, when an expression is asked
  std::string first_;
  std::string second_;
};

// --- Generator ---------------------------------------------------------------

void SimpleWordProblems::DrawProblem(RandomStream& random) {
  DrawPeople(random);
  kind_ = random.Rand(0, kKinds - 1);
  DrawNumbers(random);
  letter_ = random.OneOf(kLetters);
  problem.question = {first_ + " is " + Difference() + " than " + second_ + "."};
  if (AsksForNumber())
    problem.question.push_back(Text("If {} is {} year{} old, how old is {}?", second_, age_,
                                    Words{PluralSuffix(age_)}, first_));
  else
    problem.question.push_back(
        Text("If {} is {} years old, which expression tells {}'s age?", first_, letter_, second_));
  FillChoices(random);
}

void SimpleWordProblems::DrawPeople(RandomStream& random) {
  WordTable names(kNames);
  constexpr int kCount = static_cast<int>(std::size(kNames));
  const int first = random.Index(kCount);
  int second = 0;
  do {
    second = random.Index(kCount);
  } while (second == first);
  names.GoTo(first);
  first_ = names.Next();
  names.GoTo(second);
  second_ = names.Next();
}

void SimpleWordProblems::DrawNumbers(RandomStream& random) {
  switch (kind_ / 2) {
    case 0:
      number_ = random.Rand(5, 9);
      break;
    case 1:
      number_ = random.Rand(1, 9);
      break;
    case 2:  // whole ages of at most 60 years, both ways
      number_ = random.Rand(2, 6);
      age_ = number_ * random.Rand(5, 10);
      if (FirstIsOlder()) age_ /= number_;
      break;
    default:
      number_ = random.Rand(2, 9);
      age_ = number_ + random.Rand(2, 9);
      if (FirstIsOlder()) age_ = random.Rand(1, 9);
      break;
  }
}

// "3 times older", "1 year younger".
std::string SimpleWordProblems::Difference() const {
  std::string word(kRelations[InTimes() ? 0 : 1]);
  if (number_ == 1) word = DropLastChars(word, 1);
  return NumStr(number_) + " " + word + " " + std::string(kDirections[FirstIsOlder() ? 1 : 0]);
}

AgeOperation SimpleWordProblems::RightOperation() const {
  if (InTimes()) return AskedIsOlder() ? AgeOperation::Multiply : AgeOperation::Divide;
  return AskedIsOlder() ? AgeOperation::Add : AgeOperation::Subtract;
}

// A quotient is cut behind three decimals.
std::string SimpleWordProblems::AgeBy(AgeOperation operation) const {
  const bool asNumber = AsksForNumber();
  switch (operation) {
    case AgeOperation::Multiply:
      return asNumber ? NumStr(age_ * number_) : CoefText(number_) + letter_;
    case AgeOperation::Divide:
      if (asNumber) return NumStr(age_ * 1000 / number_ / 1000.0);
      return number_ == 1 ? letter_ : FractionOfTexts(letter_, NumStr(number_));
    case AgeOperation::Add:
      return asNumber ? NumStr(age_ + number_) : letter_ + " + " + NumStr(number_);
    case AgeOperation::Subtract:
      return asNumber ? NumStr(std::abs(age_ - number_)) : letter_ + " - " + NumStr(number_);
  }
  return "";
}

// The mistake behind another operation than the right one.
std::string SimpleWordProblems::NameOf(AgeOperation operation) const {
  const bool asTimes = operation == AgeOperation::Multiply || operation == AgeOperation::Divide;
  const bool asOlder = operation == AgeOperation::Multiply || operation == AgeOperation::Add;
  const std::string mixed = "mixes up who is older";
  if (asTimes == InTimes()) return mixed;
  const std::string word = InTimes() ? "reads times as years" : "reads years as times";
  return asOlder == AskedIsOlder() ? word : word + " and " + mixed;
}

std::string SimpleWordProblems::DrawFiller(RandomStream& random) const {
  if (AsksForNumber()) return NumStr(random.Rand(1, 100));
  const int digit = random.Rand(2, 9);  // nobody divides by 1
  const std::string sign = random.OneOf("/+-");
  return sign == "/" ? FractionOfTexts(letter_, NumStr(digit))
                     : letter_ + " " + sign + " " + NumStr(digit);
}

// What was right in the slot stays what is right, behind "None of the above".
void SimpleWordProblems::Overwrite(int slot, RandomStream& random) {
  const std::string right = AgeBy(RightOperation());
  std::string filler;
  do {
    filler = DrawFiller(random);
  } while (filler == right);
  if (slot == problem.correct) problem.Right(5, right);
  problem.Wrong(slot, kFiller, filler);
}

// Also from the right one, when that is hidden.
bool SimpleWordProblems::ChoicesDiffer() const {
  const int last = problem.correct == 5 ? 5 : 4;
  for (std::size_t i = 1; i <= static_cast<std::size_t>(last); ++i)
    for (std::size_t j = i + 1; j <= static_cast<std::size_t>(last); ++j)
      if (problem.choices[i].text == problem.choices[j].text) return false;
  return true;
}

void SimpleWordProblems::FillChoices(RandomStream& random) {
  using enum AgeOperation;
  constexpr std::array kForExpression = {Multiply, Divide, Add, Subtract};
  constexpr std::array kForNumber = {Divide, Multiply, Subtract, Add};
  problem.kind = choice_kind::FourShuffledAndNone;
  for (int slot = 1; const AgeOperation operation : AsksForNumber() ? kForNumber : kForExpression) {
    if (operation == RightOperation())
      problem.Right(slot, AgeBy(operation));
    else
      problem.Wrong(slot, NameOf(operation), AgeBy(operation));
    ++slot;
  }
  do {
    const int slot = random.Rand(1, 5);
    if (slot < 5) Overwrite(slot, random);
  } while (!ChoicesDiffer());
}

// --- Problem page ------------------------------------------------------------

std::string SimpleWordProblems::Story() const {
  return problem.question[0] + "  " + problem.question[1];
}

void SimpleWordProblems::ShowProblem() {
  SayAt(5, Story());
  ShowAnswersInTwoColumns(problem, {.row = 12});
}

// --- Worked explanation ------------------------------------------------------

void SimpleWordProblems::ExplainProblem() {
  ProblemBanner();
  SayAt(4, Story());
  PageEnd();
  constexpr double kTableRow = 8;
  constexpr double kBoxRow = 13.5;
  ShowPairedRows(first_, second_, kTableRow, 1);
  if (AsksForNumber())
    FillPair(1, "?", KnownAge(), 1);
  else
    FillPair(1, KnownAge(), "?", 1);
  WhiteBox({.row = kBoxRow, .rows = 6});
  SayInBox("Let's summarize what we know.  The table shows both ages.");
  SayInBox("Who is older?");
  PageEnd();
  ExplainMeaning();
  ExplainOperation();
  Check();
  SayInBoxAnew(ConclusionText(problem, 'b'));
}

void SimpleWordProblems::ExplainMeaning() {
  const std::string& older = FirstIsOlder() ? first_ : second_;
  const std::string& younger = FirstIsOlder() ? second_ : first_;
  SayInBoxAnew(Text("{} is older.", older));
  if (InTimes())
    SayInBox(Text("~{}~ means:  {}'s age is {} times {}'s age.", Words{Difference()}, older,
                  number_, younger));
  else
    SayInBox(Text("~{}~ means:  {} has lived {} year{} more than {}.", Words{Difference()}, older,
                  number_, Words{PluralSuffix(number_)}, younger));
  PageEnd();
}

// "We add 3:"
std::string DoText(AgeOperation operation, int number) {
  constexpr std::array<std::string_view, 4> kDo = {"multiply by", "divide by", "add", "subtract"};
  return "We " + std::string(kDo.at(static_cast<std::size_t>(operation))) + " " + NumStr(number) +
         ":";
}

// An age with what is done to it, numbers alone: "20 - 3".
std::string WorkingText(AgeOperation operation, int age, int number) {
  const std::array<std::string, 4> signs = {kTimes, kDivide, " + ", " - "};
  return NumStr(age) + signs.at(static_cast<std::size_t>(operation)) + NumStr(number);
}

void SimpleWordProblems::ExplainOperation() {
  SayInBoxAnew(Text("We look for {}'s age.  {} is the {} one.  What do we do with {}?", Asked(),
                    Asked(), Words{AskedIsOlder() ? "older" : "younger"}, KnownAge()));
  PageEnd();
  const AgeOperation operation = RightOperation();
  const std::string age = AgeBy(operation);
  SayInBoxAnew(DoText(operation, number_));
  SayInBox(AsksForNumber() ? Text("{} = {}", WorkingText(operation, age_, number_), age) : age);
  if (AsksForNumber())
    FillPair(1, age, KnownAge(), 1);
  else
    FillPair(1, KnownAge(), age, 1);
  PageEnd();
}

// The two ages back in the story; a letter gets a number for it.
void SimpleWordProblems::Check() {
  constexpr int kYoungerAge = 10;
  const AgeOperation operation = RightOperation();
  int known = age_;
  if (!AsksForNumber()) {
    known = kYoungerAge;
    if (!AskedIsOlder()) known = InTimes() ? kYoungerAge * number_ : kYoungerAge + number_;
    SayInBoxAnew(Text("Check:  Let {} be {}.  Then {} is {} years old.", letter_, known, Asked(),
                      WorkingText(operation, known, number_)));
  } else {
    SayInBoxAnew(
        Text("Check:  {} is {}, and {} is {}.", Known(), known, Asked(), AgeBy(operation)));
  }
  const int other = InTimes() ? (AskedIsOlder() ? known * number_ : known / number_)
                              : (AskedIsOlder() ? known + number_ : known - number_);
  SayInBox(Text("{} is {} {} {}, as the story tells.", std::max(known, other), number_,
                Words{InTimes() ? "times" : "more than"}, std::min(known, other)));
  PageEnd();
}

const LessonRegistration<SimpleWordProblems> kRegistration("Simple Word Problems");

}  // namespace
}  // namespace course
