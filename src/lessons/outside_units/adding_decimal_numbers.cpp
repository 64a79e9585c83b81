// The student can add two decimal numbers: write point under point, fill in zeros, add column by
// column from the right, and carry past the point.
//
// Numbers of up to 2 digits before the point and up to 2 behind it, not both whole.  Numbers with
// the same number of decimal places carry past the point; in all others a place is missing.
#include <algorithm>

#include "lessons/families/written/column_sum.h"
#include "lessons/families/written/decimal_sum_mistakes.h"
#include "lessons/lesson.h"

namespace course {
namespace {

using namespace written;

// --- Sums on a page ----------------------------------------------------------

constexpr double kOnesCol = 10;  // the column of a sum's ones
constexpr double kBeside = 18;   // and of the texts to the right of it

void WritePoint(ColumnSum& sum) {
  sum.Columns().Write(sum.ResultRow(), ".");
}

// From the lowest place to the highest.
void Finish(ColumnSum& sum) {
  WritePoint(sum);
  for (int place = sum.Lowest(); place <= sum.Highest(); ++place) sum.Add(place);
  sum.Columns().PickOutNone();
}

// Both numbers with the same number of decimal places; the zeros that are filled in are yellow.
ColumnSum WriteFilled(double row, const std::string& first, const std::string& second) {
  const int decimals = std::max(DecimalsOf(first), DecimalsOf(second));
  ColumnSum sum(row, kOnesCol, {WithZeros(first, decimals), WithZeros(second, decimals)});
  for (const std::string& number : {first, second}) {
    ++row;
    for (int place = LowestPlace(number) - 1; place >= sum.Lowest(); --place)
      SayAt(row, R"(\y0\z)", {.col = sum.Columns().ColumnOf(place)});
  }
  return sum;
}

// --- Teaching screens --------------------------------------------------------

void PlacesBehindThePoint() {
  constexpr double kNames = 5;  // the row
  NewScreen();
  SayAt(3, R"(Smaller places come after the \cpoint\z:)");
  WrittenColumns number(9, 11);
  SayAt(kNames, "ones", {.col = 8});
  SayAt(kNames, "tenths", {.col = 18});
  SayAt(kNames, "hundredths", {.col = 27});
  number.Write(6.5, "3.27");
  number.PickOut(-1);
  SayAt(9, R"(The 2 means 2 \ytenths\z.)");
  PageEnd();
  number.PickOut(-2);
  AddLine("10 tenths make 1 one.");
  Say(R"(The 7 means 7 \yhundredths\z.)");
  AddLine("10 hundredths make 1 tenth.");
  PageEnd();
  number.PickOutNone();
  Say(R"(\yTry it:\z  What does the 0 in 4.06 tell us?  What does the 6 stand for?)");
  PageEnd();
  Say("The 0 tells us that there are no tenths.  The 6 stands for 6 hundredths.");
  PageEnd();
}

// Tenths of one whole, side by side.
constexpr double kTenth = 1.5;  // columns

void DrawTenths(double row, double col, int count, platform::Colour colour) {
  for (; count > 0; --count, col += kTenth) {
    isDrawBoxFilled(row, col, row, col + 0.5, colour);
    isDrawBox(row, col, row, col + 0.5, platform::colour::White, 2);
  }
}

void TenTenthsMakeOne() {
  using platform::colour::Cyan;
  using platform::colour::Yellow;
  constexpr double kRow = 11;
  constexpr double kFirst = 3;
  constexpr double kSecond = 18;  // the column of the other tenths
  NewScreen();
  SayAt(3, "What is 0.8 + 0.4?");
  ColumnSum sum(5, kOnesCol, {"0.8", "0.4"});
  sum.Columns().PickOut(-1);
  SayAt(6, "Tenths:  8 + 4 = 12", {.col = kBeside});
  SayAt(7, "A column has room for only one digit.", {.col = kBeside});
  PageEnd();
  DrawTenths(kRow, kFirst, 8, Yellow);
  DrawTenths(kRow, kSecond, 4, Cyan);
  SayAt(12.5, "Each square is one tenth.  Here are 8 tenths and 4 tenths.");
  PageEnd();
  SlideLeft({kRow - 0.3, kSecond - 0.2, 6.5, 1.5}, kSecond - kFirst - 8 * kTenth);
  DrawTenths(kRow, kFirst, 10, Yellow);
  SlideRight({kRow - 0.3, kFirst + 10 * kTenth, 2 * kTenth + 0.2, 1.5}, kTenth);
  SayAt(15, R"(Ten of them make \y1 whole\z, and \y2 tenths\z are left.)");
  PageEnd();
  WritePoint(sum);
  sum.Add(-1);
  SayAt(17.5,
        R"(We write the 2.  The 1 is a whole one.  We \ccarry\z it past the point, to the ones.)");
  PageEnd();
  sum.Add(0);
  sum.Columns().PickOutNone();
  SayAt(20.5, Text("Ones:  {}.  So {}.", "1 + 0 + 0 = 1", "0.8 + 0.4 = 1.2"));
  PageEnd();
}

void LessThanItsPart() {
  NewScreen();
  SayAt(3, R"(\yWatch out:\z  Do not write it like this:)");
  PaperBox({R"(0.8 + 0.4 = \r0.12\z)"}, 4.5);
  SayAt(7, R"(\yTry it:\z  How can you see that 0.12 is too small?)");
  PageEnd();
  SayAt(10, "0.12 is less than 0.8.  We add something to 0.8, so the sum is more than 0.8.");
  Say(R"(\yTry it:\z  What is 0.7 + 0.6?)");
  PageEnd();
  ColumnSum answer(15, kOnesCol, {"0.7", "0.6"});
  Finish(answer);
  SayAt(16, "Tenths:  7 + 6 = 13", {.col = kBeside});
  SayAt(17, "Write 3, carry 1.", {.col = kBeside});
  SayAt(18.5, "The answer is 1.3.", {.col = kBeside});
  PageEnd();
}

void PointUnderPoint() {
  NewScreen();
  SayAt(3, R"(2.5 + 1.37:  Write \ypoint under point\z.)");
  const ColumnSum unfilled(5, kOnesCol, {"2.5", "1.37"});
  SayAt(6, "Then tenths stand under tenths.  Nothing stands above the 7.", {.col = kBeside});
  PageEnd();
  ColumnSum sum = WriteFilled(5, "2.5", "1.37");
  SayAt(11, R"(We fill the gap with a \yzero\z:  2.5 = 2.50)");
  Say("A zero at the end changes nothing: 5 tenths are 50 hundredths.");
  PageEnd();
  WritePoint(sum);
  sum.Add(-2);
  Say("The point of the answer stands under the other points.  Hundredths:  0 + 7 = 7");
  PageEnd();
  sum.Add(-1);
  sum.Add(0);
  sum.Columns().PickOutNone();
  Say("Tenths:  5 + 3 = 8");
  AddLine("Ones:  2 + 1 = 3");
  AddLine("So 2.5 + 1.37 = 3.87.");
  PageEnd();
}

void WrongSums() {
  NewScreen();
  SayAt(3, R"(\yWatch out:\z  Three wrong answers:)");
  PaperBox({R"(2.5 + 1.37:  \r1.62\z.  Last digits lined up.)",
            R"(2.5 + 1.37:  \r3.42\z.  5 + 37 by itself.)",
            R"(2.5 + 1.37:  \r3.8\z.  The 7 was dropped.)"},
           4.5);
  PageEnd();
  SayAt(8.5, R"(\yCheck:\z  2.5 is between 2 and 3.  1.37 is between 1 and 2.)");
  Say("So the sum is between 3 and 5, not 1.62.");
  Say(R"(\yTry it:\z  Can 38.7 be right?  Can 0.387?)");
  PageEnd();
  Say("No.  38.7 is too large, 0.387 too small.");
  AddLine("The point is one place off.");
  Say(R"(\yTry it:\z  Next we add 60 and 1.35.  Where is the point of 60?)");
  PageEnd();
}

void WholeNumbers() {
  NewScreen();
  SayAt(3, "The point comes after the ones: 60.00");
  ColumnSum sum = WriteFilled(5, "60", "1.35");
  SayAt(6, R"(Ones stand under ones.  The \yzeros\z fill the gaps.)", {.col = kBeside});
  PageEnd();
  Finish(sum);
  SayAt(11, R"(\yWatch out:\z  Do not line up the ends:)");
  PaperBox({R"(First digits:  \r73.5\z     Last digits:  \r1.95\z)"}, 12.5);
  SayAt(15, R"(\yTry it:\z  What is 7 + 0.48?)");
  PageEnd();
  ColumnSum answer = WriteFilled(17, "7", "0.48");
  Finish(answer);
  SayAt(18, "7 = 7.00", {.col = kBeside});
  SayAt(20.5, "The answer is 7.48.", {.col = kBeside});
  PageEnd();
}

void CarryingTwice() {
  NewScreen();
  SayAt(3, "What is 12.75 + 3.68?");
  ColumnSum sum(4.5, kOnesCol, {"12.75", "3.68"});
  WritePoint(sum);
  PageEnd();
  sum.Add(-2);
  SayAt(10, Text("Hundredths:  {}, that is 1 tenth and 3 hundredths.  Write 3, carry 1.",
                 "5 + 8 = 13"));
  PageEnd();
  sum.Add(-1);
  Say(Text("Tenths:  {}, that is 1 one and 4 tenths.  Write 4, carry 1.", "1 + 7 + 6 = 14"));
  PageEnd();
  sum.Add(0);
  sum.Add(1);
  sum.Columns().PickOutNone();
  Say(Text("Ones:  {}.  The 1 ten stands alone.  The answer is 16.43.", "1 + 2 + 3 = 6"));
  Say(R"(\yCheck:\z  It is between 12 + 3 and 13 + 4.)");
  PageEnd();
}

void AddingRule() {
  NewScreen();
  RuleBox("Adding decimal numbers",
          {"Write point under point.  Fill the gaps.", "Add from the right.  10 or more: carry."},
          {.row = 3, .width = 40});
  Say(R"(\yTry it:\z  What is 0.9 + 4.35?)");
  PageEnd();
  ColumnSum answer = WriteFilled(12, "0.9", "4.35");
  Finish(answer);
  SayAt(13, "0.9 = 0.90", {.col = kBeside});
  SayAt(14, "9 + 3 = 12: carry 1", {.col = kBeside});
  SayAt(15.5, "The answer is 5.25.", {.col = kBeside});
  PageEnd();
}

// --- The lesson --------------------------------------------------------------

class AddingDecimalNumbers final : public LessonScript {
 public:
  using LessonScript::LessonScript;

 private:
  std::vector<Screen> Screens() override {
    return {{PlacesBehindThePoint, TenTenthsMakeOne, LessThanItsPart, PointUnderPoint, WrongSums,
             WholeNumbers, CarryingTwice, AddingRule}};
  }
  void DrawProblem(RandomStream& random) override;
  void ShowProblem() override;
  void ExplainProblem() override;

  void DrawAddends(RandomStream& random);
  bool IsSuitable() const;
  std::string PlacingText() const;
  void ExplainZeros() const;
  void ExplainColumn(ColumnSum& sum, int place) const;
  void Check() const;

  std::string first_;  // "2.5"
  std::string second_;
};

// --- Generator ---------------------------------------------------------------

void AddingDecimalNumbers::DrawAddends(RandomStream& random) {
  const bool sameLength = random.Rand(0, 1) == 1;
  int decimals = random.Rand(0, 2);
  for (std::string* const addend : {&first_, &second_}) {
    addend->clear();
    for (int whole = random.Rand(0, 2); whole > 0; --whole) {
      const int digit = random.Rand(1, 9);
      *addend += NumStr(digit);
    }
    if (addend->empty()) *addend = "0";
    if (decimals > 0) *addend += ".";
    for (int i = 0; i < decimals; ++i) {
      const int digit = random.Rand(1, 9);
      *addend += NumStr(digit);
    }
    if (!sameLength) decimals = random.Rand(0, 2);
  }
}

bool AddingDecimalNumbers::IsSuitable() const {
  if (first_ == "0" || second_ == "0") return false;  // nothing to add
  if (DecimalsOf(first_) != DecimalsOf(second_)) return true;
  const int lowest = LowestPlace(first_);
  if (DigitAt(first_, lowest) + DigitAt(second_, lowest) == 10) return false;  // a 0 at the end
  return CarriesPastThePoint(first_, second_);  // else nothing is to learn; so do whole numbers
}

// Half of the draws are accepted.
void AddingDecimalNumbers::DrawProblem(RandomStream& random) {
  do {
    DrawAddends(random);
  } while (!IsSuitable());
  problem.question = {"Add these numbers:", first_ + " + " + second_};
  FillDecimalSumChoices(problem, first_, second_, random);
}

// --- Problem page ------------------------------------------------------------

void AddingDecimalNumbers::ShowProblem() {
  SayAt(5, problem.question[0]);
  ShowAt(8, problem.question[1], 5);
  ShowAnswersInTwoColumns(problem, {.width = 18});
}

// --- Worked explanation ------------------------------------------------------

void AddingDecimalNumbers::ExplainProblem() {
  constexpr double kFirstRow = 6.5;
  ProblemBanner();
  ShowAt(5, problem.question[1]);
  const ColumnSum unfilled(kFirstRow, kOnesCol, {first_, second_});
  SayAt(kFirstRow + 1, PlacingText(), {.col = kBeside});
  PageEnd();
  WhiteBox({.row = unfilled.ResultRow() + 1.5});
  ColumnSum sum = WriteFilled(kFirstRow, first_, second_);
  ExplainZeros();
  WritePoint(sum);
  SayInBox("The point of the answer stands under the other points.");
  PageEnd();
  SayInBoxAnew("");
  for (int place = sum.Lowest(); place <= sum.Highest(); ++place) ExplainColumn(sum, place);
  wbHide();
  sum.Columns().PickOutNone();
  Locate(sum.ResultRow() + 1, 1);
  Check();
  Conclude(problem);
}

std::string AddingDecimalNumbers::PlacingText() const {
  for (const std::string& number : {first_, second_})
    if (DecimalsOf(number) == 0)
      return Text("We write ones under ones.  The point of {} comes after its ones.", number);
  return "We write point under point.";
}

void AddingDecimalNumbers::ExplainZeros() const {
  const int decimals = std::max(DecimalsOf(first_), DecimalsOf(second_));
  for (const std::string& number : {first_, second_}) {
    if (DecimalsOf(number) == decimals) continue;
    SayInBox(Text("We fill the gap:  {}.  The number stays the same.",
                  number + " = " + WithZeros(number, decimals)));
    PageEnd();
  }
}

void AddingDecimalNumbers::ExplainColumn(ColumnSum& sum, int place) const {
  const int total = sum.Total(place);
  const int carry = sum.Carry(place);
  const int digit = total % 10;
  std::string text = Text("The {}:  {}", PlaceName(place), sum.TotalText(place));
  if (place == sum.Highest() && carry > 0)
    text += Text(".  No column is left, so we write {}.", total);
  else if (carry > 0 && place == -1)  // past the point: the reason is given
    text += Text(", that is 1 one and {} {}.  Write {}, carry 1.", digit, PlaceName(place, digit),
                 digit);
  else if (carry > 0)
    text += Text(".  Write {}, carry 1 to the {}.", digit, PlaceName(place + 1));
  else
    text += sum.Addends(place).size() == 1 ? " stands alone.  We bring it down."
                                           : Text(".  Write {}.", total);
  sum.Add(place);
  SayInBox(text);
  PageEnd();
}

// Between the sums of the whole numbers below and above: a point in the wrong place shows.
void AddingDecimalNumbers::Check() const {
  std::string text = R"(\yCheck:\z)";
  int low = 0;
  int high = 0;
  for (const std::string& number : {first_, second_}) {
    const int whole = std::stoi(number);
    const bool isWhole = DecimalsOf(number) == 0;
    low += whole;
    high += whole + (isWhole ? 0 : 1);
    if (!isWhole) text += Text("  {} is between {} and {}.", number, whole, whole + 1);
  }
  Say(text);
  Say(Text("So the sum is between {} and {}.", low, high));
  PageEnd();
}

const LessonRegistration<AddingDecimalNumbers> kRegistration("Adding Decimal Numbers");

}  // namespace
}  // namespace course
