// The student can subtract a whole number from a larger one: column by column from the right, with
// a ten borrowed from the next digit where the upper digit is too small, also past a 0.
//
// Numbers of two or three digits, the larger one on top.  At least one ten is borrowed.
#include "lessons/families/written/column_difference.h"
#include "lessons/families/written/column_sum.h"
#include "lessons/families/written/difference_mistakes.h"
#include "lessons/lesson.h"

namespace course {
namespace {

using namespace written;

constexpr double kBeside = 18;  // the column of texts to the right of a difference

// --- Teaching screens --------------------------------------------------------

void WithoutBorrowing() {
  NewScreen();
  SayAt(3, R"(To subtract 23 from 58 we write \yones under ones\z and \ytens under tens\z.)");
  ColumnDifference difference(5, 14, "58", "23");
  PageEnd();
  difference.Subtract(0);
  SayAt(6, "We begin on the right.", {.col = kBeside});
  ShowAt(7, "Ones:  8 - 3 = 5", kBeside);
  PageEnd();
  difference.Subtract(1);
  difference.Columns().PickOutNone();
  SayAt(8.5, "Tens:  5 - 2 = 3", {.col = kBeside});
  SayAt(11, "3 tens and 5 ones are 35:  58 - 23 = 35");
  Say(R"(\yCheck:\z  We add 23 back:  35 + 23 = 58)");
  PageEnd();
  Say(R"(\yTry it:\z  What is 52 - 38?  Can we take 8 ones from 2 ones?)");
  PageEnd();
}

// 52 as tens and ones, and with one ten changed into ones.
PrintCellTable TableOf52() {
  PrintCellTable table;
  table.widthPixels = 480;
  table.heightPixels = 150;
  constexpr double kSize = 14;  // points
  for (const double top : {28.0, 64.0})
    for (const double left : {42.0, 72.0}) table.cells.push_back({left, top, 24, 30});
  table.labels = {{42, 6, 24, 20, "tens", kSize, platform::colour::Black, true},
                  {72, 6, 24, 20, "ones", kSize, platform::colour::Black, true},
                  {2, 34, 38, 22, "52", kSize},
                  {2, 70, 38, 22, "52 again", kSize}};
  return table;
}

void Borrowing() {
  constexpr double kSize = 16;  // points
  const platform::Colour blue = platform::colour::Blue;
  NewScreen();
  SayAt(3, "No, 2 is less than 8.  But 52 has 5 tens, and 1 ten is 10 ones:");
  CellTable(TableOf52(), 5.5);
  picPrintCellPrint(1, "5", blue, kSize);
  picPrintCellPrint(2, "2", blue, kSize);
  PageEnd();
  picPrintCellPrint(3, "4", blue, kSize);
  picPrintCellPrint(4, "12", blue, kSize);
  SayAt(12.5, "We take 1 of the 5 tens.  4 tens are left.  With its 10 ones we have 12 ones.");
  PageEnd();
  Say(R"(It is still 52, because 40 + 12 = 52.  We say that we \cborrow\z a ten.)");
  Say(R"(\yTry it:\z  Now take 3 tens and 8 ones away.  How much is left?)");
  PageEnd();

  NewScreen();
  SayAt(3, "12 - 8 = 4 ones, and 4 - 3 = 1 ten.  So 52 - 38 = 14.  This is how we write it:");
  ColumnDifference difference(5.5, 14, "52", "38");
  PageEnd();
  difference.Columns().PickOut(0);
  difference.Borrow(0);
  SayAt(5.5, "The 5 becomes 4.", {.col = kBeside});
  SayAt(6.5, "The 2 becomes 12.", {.col = kBeside});
  PageEnd();
  difference.Subtract(0);
  ShowAt(7.5, "Ones:  12 - 8 = 4", kBeside);
  PageEnd();
  difference.Subtract(1);
  difference.Columns().PickOutNone();
  ShowAt(9, "Tens:  4 - 3 = 1", kBeside);
  SayAt(11, R"(\yCheck:\z  We add 38 back:  14 + 38 = 52)");
  PageEnd();
}

void WrongDifferences() {
  SayAt(13, R"(\yWatch out:\z  Three wrong answers:)");
  PaperBox({R"(52 - 38:  \r26\z.  8 - 2 is not 2 - 8.)", R"(52 - 38:  \r20\z.  2 - 8 is not 0.)",
            R"(52 - 38:  \r24\z.  The 5 must become 4.)"},
           14.5);
  PageEnd();
  Say(R"(\yTry it:\z  Why is 16 wrong, too?)");
  PageEnd();
  Say(Text("The ones are {}, not {}.  And {}, not 52.", "12 - 8 = 4", "8 - 2 = 6", "16 + 38 = 54"));
  PageEnd();
}

void PastAZero() {
  NewScreen();
  SayAt(3, "What is 402 - 158?  The 2 is too small, but the 0 has no ten to give.");
  ColumnDifference difference(5.5, 14, "402", "158");
  difference.Columns().PickOut(0);
  PageEnd();
  difference.Borrow(1);
  SayAt(11, "So the 0 borrows first.  The 4 becomes 3, and the 0 becomes 10 tens.");
  PageEnd();
  difference.Borrow(0);
  Say("Now it can give 1 ten.  The 10 becomes 9, and the 2 becomes 12.");
  PageEnd();
  for (int place = 0; place <= 2; ++place) difference.Subtract(place);
  difference.Columns().PickOutNone();
  SayAt(6.5, "12 - 8 = 4", {.col = kBeside});
  SayAt(7.5, "9 - 5 = 4", {.col = kBeside});
  SayAt(9, "3 - 1 = 2", {.col = kBeside});
  SayAt(17, R"(\yCheck:\z  244 + 158 = 402)");
  PageEnd();
  Say(R"(\yWatch out:\z  When the 0 becomes 9, the 4 must become 3, too.)");
  PaperBox({R"(402 - 158 = 244,  \rnot 344\z)"});
  PageEnd();
}

void NoHundredLeft() {
  NewScreen();
  SayAt(3, R"(\yTry it:\z  What is 134 - 71?)");
  ColumnDifference difference(4.5, 14, "134", "71");
  PageEnd();
  difference.Subtract(0);
  SayAt(6, "Ones:  4 - 1 = 3", {.col = kBeside});
  SayAt(10, R"(\yTry it:\z  Do the tens have to borrow?)");
  PageEnd();
  difference.Columns().PickOut(1);
  difference.Borrow(1);
  SayAt(12, "Yes, because 3 is less than 7.  1 hundred is 10 tens.");
  PageEnd();
  difference.Subtract(1);
  difference.Columns().PickOutNone();
  Say("Tens:  13 - 7 = 6");
  AddLine("No hundred is left, so the answer is 63.");
  Say(R"(\yCheck:\z  63 + 71 = 134)");
  PageEnd();
}

void SubtractingRule() {
  NewScreen();
  RuleBox("Subtracting",
          {"Begin on the right, with the ones.", "Upper digit too small: borrow from the left."},
          {.row = 3, .width = 40});
  Say(R"(\yTry it:\z  What is 300 - 6?)");
  PageEnd();
  ColumnDifference answer(11, 14, "300", "6");
  answer.Columns().PickOut(0);
  answer.Borrow(1);
  answer.Borrow(0);
  SayAt(11, "The tens borrow first.", {.col = kBeside});
  PageEnd();
  for (int place = 0; place <= 2; ++place) answer.Subtract(place);
  answer.Columns().PickOutNone();
  SayAt(13, "10 - 6 = 4", {.col = kBeside});
  SayAt(14.5, "We bring 9 and 2 down.", {.col = kBeside});
  SayAt(17, "The answer is 294.");
  AddLine(R"(\yCheck:\z  294 + 6 = 300)");
  PageEnd();
}

// --- The lesson --------------------------------------------------------------

class SubtractingWholeNumbers final : public LessonScript {
 public:
  using LessonScript::LessonScript;

 private:
  std::vector<Screen> Screens() override {
    return {
        {WithoutBorrowing, Borrowing, WrongDifferences, PastAZero, NoHundredLeft, SubtractingRule}};
  }
  void DrawProblem(RandomStream& random) override;
  void ShowProblem() override;
  void ExplainProblem() override;

  int Difference() const { return from_ - taken_; }
  static void ExplainColumn(ColumnDifference& difference, int place);
  static void ExplainBorrowing(ColumnDifference& difference, int place);
  void Check() const;

  int from_ = 0;   // 10 to 999, the larger
  int taken_ = 0;  // from 10 on
};

// --- Generator ---------------------------------------------------------------

// Two or three digits, the first one not 0.
int DrawNumber(RandomStream& random) {
  const int count = static_cast<int>(random.Rnd() * 2) + 2;
  int number = 0;
  for (int i = 0; i < count; ++i) {
    int digit = 0;
    do {
      digit = static_cast<int>(random.Rnd() * 10);
    } while (i == 0 && digit == 0);
    number = 10 * number + digit;
  }
  return number;
}

void SubtractingWholeNumbers::DrawProblem(RandomStream& random) {
  do {
    const int first = DrawNumber(random);
    const int second = DrawNumber(random);
    from_ = std::max(first, second);
    taken_ = std::min(first, second);
  } while (from_ == taken_ || !MustBorrowSomewhere(from_, taken_));  // nothing left, nothing to do

  problem.question = {"What is the result when we perform the subtraction below?",
                      NumStr(from_) + " - " + NumStr(taken_)};
  FillWholeNumberChoices(problem, Difference(), DifferenceMistakes(from_, taken_), random);
}

// --- Problem page ------------------------------------------------------------

void SubtractingWholeNumbers::ShowProblem() {
  SayAt(5, problem.question[0]);
  ShowAt(8, problem.question[1], 5);
  ShowAnswersInTwoColumns(problem);
}

// --- Worked explanation ------------------------------------------------------

void SubtractingWholeNumbers::ExplainProblem() {
  constexpr double kFirstRow = 6.5;
  constexpr double kOnesCol = 13;
  ProblemBanner();
  ShowAt(5, problem.question[1]);
  ColumnDifference difference(kFirstRow, kOnesCol, NumStr(from_), NumStr(taken_));
  SayAt(kFirstRow + 1, "We write ones under ones and tens under tens.", {.col = kBeside});
  PageEnd();
  WhiteBox({.row = difference.ResultRow() + 1.5});
  for (int place = 0; place <= difference.Highest(); ++place) ExplainColumn(difference, place);
  wbHide();
  difference.Columns().PickOutNone();
  Locate(difference.ResultRow() + 1, 1);
  Check();
  Conclude(problem);
}

std::string Heading(int place) {
  std::string word = PlaceName(place);
  word[0] = static_cast<char>(word[0] - 'a' + 'A');
  return R"(\b)" + word + R"(:\z  )";
}

void SubtractingWholeNumbers::ExplainBorrowing(ColumnDifference& difference, int place) {
  const int next = place + 1;
  const int top = difference.Top(place);
  const std::string tooSmall =
      Heading(place) + Text("{} is less than {}", top, difference.Taken(place));
  if (difference.Top(next) == 0) {
    difference.Borrow(next);
    SayInBox(tooSmall + Text(".  The {} are 0: they borrow 1 {}, or 10 {}.", PlaceName(next),
                             PlaceName(next + 1, 1), PlaceName(next)));
    PageEnd();
    difference.Borrow(place);
    SayInBox(Text("Now we borrow 1 {}:  10 becomes 9, and {} becomes {}.", PlaceName(next, 1), top,
                  top + 10));
  } else {
    const int lender = difference.Top(next);
    difference.Borrow(place);
    SayInBox(tooSmall + Text(".  Borrow 1 {}: {} becomes {}, {} becomes {}.", PlaceName(next, 1),
                             lender, lender - 1, top, top + 10));
  }
  PageEnd();
}

void SubtractingWholeNumbers::ExplainColumn(ColumnDifference& difference, int place) {
  difference.Columns().PickOut(place);
  if (difference.MustBorrow(place)) ExplainBorrowing(difference, place);
  const int top = difference.Top(place);
  if (difference.NothingLeft(place)) {
    SayInBox(Heading(place) + "0 are left.  We write no 0 in front.");
  } else {
    difference.Subtract(place);
    SayInBox(Heading(place) + (difference.HasTaken(place)
                                   ? Text("{} - {} = {}", top, difference.Taken(place),
                                          top - difference.Taken(place))
                                   : Text("Nothing is taken away.  We bring the {} down.", top)));
  }
  PageEnd();
}

void SubtractingWholeNumbers::Check() const {
  Say(R"(\yCheck:\z  We add what was taken away.)");
  Show(NumStr(Difference()) + " + " + NumStr(taken_) + " = " + NumStr(from_));
  PageEnd();
}

const LessonRegistration<SubtractingWholeNumbers> kRegistration("Subtracting Whole Numbers");

}  // namespace
}  // namespace course
