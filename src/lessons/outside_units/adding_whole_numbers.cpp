// The student can add two or three whole numbers: write ones under ones and tens under tens, add
// column by column from the right, and carry into the next column.
//
// Numbers of 1 to 4 digits without zeros, as long as each other or not with equal chances.  At
// least one carry goes to a column that has digits of its own.
#include <numeric>

#include "lessons/families/written/column_sum.h"
#include "lessons/families/written/sum_mistakes.h"
#include "lessons/lesson.h"

namespace course {
namespace {

using namespace written;

// --- Teaching screens --------------------------------------------------------

void Places() {
  NewScreen();
  SayAt(3, R"(Every digit of 352 has a \cplace\z:)");
  WrittenColumns number(31, 10);
  number.WritePlaceNames(5, 2);
  number.Write(6.5, "352");
  number.PickOut(0);
  SayAt(9, "The 2 is in the ones place: 2 ones.");
  PageEnd();
  number.PickOut(1);
  Say("The 5 is in the tens place.  5 tens are 50, because 1 ten is 10 ones.");
  PageEnd();
  number.PickOut(2);
  Say("The 3 is in the hundreds place.  3 hundreds are 300, because 1 hundred is 10 tens.");
  Say("So 352 = 300 + 50 + 2.");
  PageEnd();

  NewScreen();
  SayAt(3, R"(\yTry it:\z  What does the 4 stand for?  What does the 0 tell us?)");
  WrittenColumns zero(31, 10);
  zero.WritePlaceNames(6, 2);
  zero.Write(7.5, "407");
  PageEnd();
  SayAt(10, "The 4 stands for 4 hundreds, 400.  The 0 tells us that there are no tens.");
  Say(R"(\yTry it:\z  Which number has 6 hundreds and 8 ones?)");
  PageEnd();
  Say("It is 608.  Without the 0 it would be 68.  So a 0 keeps the other digits in their places.");
  PageEnd();
}

constexpr double kBeside = 16;  // the column of texts to the right of a sum

void Finish(ColumnSum& sum) {
  for (int place = 0; place <= sum.Highest(); ++place) sum.Add(place);
  sum.Columns().PickOutNone();
}

void SameUnderSame() {
  NewScreen();
  SayAt(3, R"(To add 34 and 25 we write \yones under ones\z and \ytens under tens\z.)");
  ColumnSum sum(5.5, 12, {"34", "25"});
  PageEnd();
  sum.Add(0);
  SayAt(6.5, "We begin with the ones:", {.col = kBeside});
  ShowAt(7.5, "4 + 5 = 9", kBeside);
  PageEnd();
  sum.Add(1);
  SayAt(9, "Then the tens:", {.col = kBeside});
  ShowAt(10, "3 + 2 = 5", kBeside);
  SayAt(12.5, "5 tens and 9 ones are 59:  34 + 25 = 59");
  PageEnd();
  SayAt(15, R"(\yTry it:\z  We want to add 152 and 6.  Under which digit do we write the 6?)");
  PageEnd();

  NewScreen();
  SayAt(3, R"(Under the 2, because 6 means \y6 ones\z.)");
  ColumnSum uneven(4, 12, {"152", "6"});
  Finish(uneven);
  SayAt(5, "2 + 6 = 8", {.col = kBeside});
  SayAt(6, "5 and 1 stand alone.  We", {.col = kBeside});
  SayAt(7, "bring them down.", {.col = kBeside});
  PageEnd();
  SayAt(10, R"(\yWatch out:\z  Do not line up on the left.)");
  PaperBox({R"(152 + 6 = 158,  \rnot 752\z)"}, 11.5);
  SayAt(13.5, "There the 6 ones became 6 hundreds.");
  SayAt(15.5, R"(\yTry it:\z  What is 41 + 324?)");
  PageEnd();
  ColumnSum answer(17.5, 12, {"41", "324"});
  Finish(answer);
  SayAt(18.5, "1 + 4 = 5", {.col = kBeside});
  SayAt(19.5, "4 + 2 = 6", {.col = kBeside});
  SayAt(21, "The 3 stands alone:  365", {.col = kBeside});
  PageEnd();
}

// So many unit squares side by side, or one bar for each whole ten.
constexpr double kSquare = 1.5;  // columns

void DrawOnes(double row, double col, int count, platform::Colour colour) {
  for (int i = 0; i < count; ++i) {
    isDrawBoxFilled(row, col + i * kSquare, row, col + i * kSquare + 0.5, colour);
    isDrawBox(row, col + i * kSquare, row, col + i * kSquare + 0.5, platform::colour::White, 2);
  }
}

void TenOnesMakeOneTen() {
  using platform::colour::Cyan;
  using platform::colour::Yellow;
  constexpr double kRow = 11;
  constexpr double kFirst = 3;
  constexpr double kSecond = 16;  // the column of the other squares
  NewScreen();
  SayAt(3, "What is 27 + 35?");
  ColumnSum sum(5, 12, {"27", "35"});
  sum.Columns().PickOut(0);
  SayAt(6, "Ones:  7 + 5 = 12", {.col = kBeside});
  SayAt(7, "A column has room for only one digit.", {.col = kBeside});
  PageEnd();
  DrawOnes(kRow, kFirst, 7, Yellow);
  DrawOnes(kRow, kSecond, 5, Cyan);
  SayAt(12.5, "7 ones and 5 ones are 12 ones.");
  PageEnd();
  SlideLeft({kRow - 0.3, kSecond - 0.2, 8, 1.5}, kSecond - kFirst - 7 * kSquare);
  DrawOnes(kRow, kFirst, 10, Yellow);
  SlideRight({kRow - 0.3, kFirst + 10 * kSquare, 2 * kSquare + 0.2, 1.5}, kSquare);
  SayAt(14, R"(Ten of them make \y1 ten\z, and \y2 ones\z are left:  12 = 10 + 2)");
  PageEnd();
  sum.Add(0);
  SayAt(17, R"(We write the 2.  The 1 is a ten.  It goes up to the tens: we )"
            R"(\ccarry\z the 1.)");
  PageEnd();
  sum.Add(1);
  SayAt(20, Text("Tens:  {}.  The 1 is added, too.  So {}.", "1 + 2 + 3 = 6", "27 + 35 = 62"));
  PageEnd();
}

void WrongCarries() {
  NewScreen();
  SayAt(3, R"(\yWatch out:\z  Three wrong answers:)");
  PaperBox(
      {R"(27 + 35:  \r52\z.  The 1 was forgotten.)", R"(27 + 35:  \r71\z.  The 2 was carried.)",
       R"(27 + 35:  \r512\z.  Nothing was carried.)"},
      4.5);
  PageEnd();
  SayAt(8.5, "Can 512 be right?  Both numbers are less than 50, so the sum is less than 100.");
  SayAt(11.5, R"(\yTry it:\z  What is 48 + 36?)");
  PageEnd();
  ColumnSum answer(13, 12, {"48", "36"});
  answer.Add(0);
  SayAt(14, "Ones:  8 + 6 = 14", {.col = kBeside});
  SayAt(15, "Write 4, carry 1.", {.col = kBeside});
  PageEnd();
  answer.Add(1);
  answer.Columns().PickOutNone();
  SayAt(16.5, "Tens:  1 + 4 + 3 = 8", {.col = kBeside});
  SayAt(19, "The answer is 84.  The carried 1 is added once, not twice.");
  PageEnd();
}

void ThreeNumbers() {
  NewScreen();
  SayAt(3, "Three numbers are added in the same way.");
  ColumnSum sum(4.5, 12, {"586", "57", "469"});
  PageEnd();
  sum.Add(0);
  const int note = Note(4.6, 16, "Here we carry a 2.");
  SayAt(11,
        Text("Ones:  {}.  22 ones are 2 tens and 2 ones.  Write 2, carry 2.", "6 + 7 + 9 = 22"));
  PageEnd();
  lblNotesHide(note);
  sum.Add(1);
  Say(Text("Tens:  {}.  Write 1, carry 2.", "2 + 8 + 5 + 6 = 21"));
  PageEnd();
  sum.Add(2);
  Say(Text("Hundreds:  {}.  No column is left, so we write 11.", "2 + 5 + 4 = 11"));
  PageEnd();
  sum.Columns().PickOutNone();
  Say(R"(\yCheck:\z  We add each place by itself:)");
  Show("900 + 190 + 22 = 1112");
  PageEnd();
}

void AddingRule() {
  NewScreen();
  RuleBox("Adding",
          {"Write ones under ones.  Begin with them.", "10 or more: carry to the next column."},
          {.row = 3, .width = 40});
  Say(R"(\yTry it:\z  What is 95 + 8?)");
  PageEnd();
  ColumnSum answer(11, 12, {"95", "8"});
  answer.Add(0);
  SayAt(12, "Ones:  5 + 8 = 13", {.col = kBeside});
  SayAt(13, "Write 3, carry 1.", {.col = kBeside});
  PageEnd();
  answer.Add(1);
  answer.Columns().PickOutNone();
  SayAt(14.5, "Tens:  1 + 9 = 10", {.col = kBeside});
  SayAt(17, "No column is left, so we write 10.  The answer is 103.");
  Say(R"(\yCheck:\z  90 + 13 = 103)");
  PageEnd();
}

// --- The lesson --------------------------------------------------------------

class AddingWholeNumbers final : public LessonScript {
 public:
  using LessonScript::LessonScript;

 private:
  std::vector<Screen> Screens() override {
    return {
        {Places}, {SameUnderSame}, {TenOnesMakeOneTen, WrongCarries}, {ThreeNumbers, AddingRule}};
  }
  void DrawProblem(RandomStream& random) override;
  void ShowProblem() override;
  void ExplainProblem() override;

  void DrawAddends(RandomStream& random);
  int Sum() const { return std::accumulate(addends_.begin(), addends_.end(), 0); }
  void ExplainColumn(ColumnSum& sum, int place) const;
  void Check() const;

  std::vector<int> addends_;  // 2 or 3, up to 9999
};

// --- Generator ---------------------------------------------------------------

void AddingWholeNumbers::DrawAddends(RandomStream& random) {
  constexpr int kMostDigits = 4;
  addends_.assign(static_cast<std::size_t>(random.Rand(2, 3)), 0);
  const bool sameLength = random.Rand(1, 2) == 1;
  int length = random.Rand(1, kMostDigits);
  for (int& addend : addends_) {
    for (int i = 0; i < length; ++i) {
      const int digit = random.Rand(1, 9);
      addend = 10 * addend + digit;
    }
    if (!sameLength) length = random.Rand(1, kMostDigits);
  }
}

// Without a carry into another column there is nothing to learn.
void AddingWholeNumbers::DrawProblem(RandomStream& random) {
  do {
    DrawAddends(random);
  } while (!CarriesInside(addends_));

  std::string sum;
  for (const int addend : addends_) sum += (sum.empty() ? "" : " + ") + NumStr(addend);
  problem.question = {"Add these numbers:", sum};
  FillWholeNumberChoices(problem, Sum(), SumMistakes(addends_), random);
}

// --- Problem page ------------------------------------------------------------

void AddingWholeNumbers::ShowProblem() {
  SayAt(5, problem.question[0]);
  ShowAt(8, problem.question[1], 5);
  ShowAnswersInTwoColumns(problem, {.width = 18});
}

// --- Worked explanation ------------------------------------------------------

void AddingWholeNumbers::ExplainProblem() {
  constexpr double kFirstRow = 6.5;
  constexpr double kOnesCol = 13;
  ProblemBanner();
  ShowAt(5, problem.question[1]);
  std::vector<std::string> texts;
  for (const int addend : addends_) texts.push_back(NumStr(addend));
  ColumnSum sum(kFirstRow, kOnesCol, texts);
  SayAt(kFirstRow + 1, "We write ones under ones and tens under tens.", {.col = 18});
  PageEnd();
  WhiteBox({.row = sum.ResultRow() + 1.5});
  for (int place = 0; place <= sum.Highest(); ++place) ExplainColumn(sum, place);
  wbHide();
  sum.Columns().PickOutNone();
  Locate(sum.ResultRow() + 1, 1);
  Check();
  Conclude(problem);
}

std::string Capital(std::string word) {
  word[0] = static_cast<char>(word[0] - 'a' + 'A');
  return word;
}

void AddingWholeNumbers::ExplainColumn(ColumnSum& sum, int place) const {
  const bool last = place == sum.Highest();
  const int total = sum.Total(place);
  const int carry = sum.Carry(place);
  std::string text = R"(\b)" + Capital(PlaceName(place)) + R"(:\z  )" + sum.TotalText(place);
  if (last && carry > 0)
    text += Text(".  No column is left, so we write {}.", total);
  else if (place == 0 && carry > 0)
    text += Text(", that is {} {} and {} {}.  Write {}, carry {}.", carry, PlaceName(1, carry),
                 total % 10, PlaceName(0, total % 10), total % 10, carry);
  else if (carry > 0)
    text += Text(".  Write {}, carry {} to the {}.", total % 10, carry, PlaceName(place + 1));
  else
    text += sum.Addends(place).size() == 1 ? " stands alone.  We bring it down."
                                           : Text(".  Write {}.", total);
  sum.Add(place);
  SayInBox(text);
  PageEnd();
}

// The values of the columns: a carry that was forgotten or added twice shows.
void AddingWholeNumbers::Check() const {
  std::string parts;
  for (int place = PlacesOf(addends_) - 1; place >= 0; --place) {
    int ten = 1;
    for (int i = 0; i < place; ++i) ten *= 10;
    parts += (parts.empty() ? "" : " + ") + NumStr(ColumnOf(addends_, place) * ten);
  }
  Say(R"(\yCheck:\z  We add each place by itself, without carrying.)");
  Show(parts + " = " + NumStr(Sum()));
  PageEnd();
}

const LessonRegistration<AddingWholeNumbers> kRegistration("Adding Whole Numbers");

}  // namespace
}  // namespace course
