// The student can add two or three whole numbers: write ones under ones and tens under tens, add
// column by column from the right, and carry into the next column.
//
// Numbers of 1 to 4 digits without zeros, as long as each other or not with equal chances.  At
// least one carry goes to a column that has digits of its own.
#include "lessons/families/written/column_sum.h"
#include "lessons/lesson.h"

namespace course {
namespace {

using namespace written;

// --- Teaching screens --------------------------------------------------------

void Places() {
  NewScreen();
  SayAt(3, R"(Every digit of a number has a \cplace\z.  We read 352 like this:)");
  WrittenColumns number(31, 10);
  number.WritePlaceNames(6, 2);
  number.Write(7.5, "352");
  PageEnd();
  number.PickOut(0);
  SayAt(10, "The 2 is in the ones place: 2 ones.");
  PageEnd();
  number.PickOut(1);
  Say("The 5 is in the tens place.  5 tens are 50.");
  PageEnd();
  number.PickOut(2);
  Say("The 3 is in the hundreds place.  3 hundreds are 300.");
  PageEnd();
  number.PickOutNone();
  Say("So 352 = 300 + 50 + 2.");
  Say(R"(\yTry it:\z  What does the 4 in 407 stand for?  What does the 0 tell us?)");
  PageEnd();

  NewScreen();
  WrittenColumns zero(31, 10);
  zero.WritePlaceNames(4, 2);
  zero.Write(5.5, "407");
  Say("The 4 stands for 4 hundreds, 400.  The 0 tells us that there are no tens.");
  Say("Without the 0 we would read 47.  So a 0 keeps the other digits in their places.");
  PageEnd();
}

void SameUnderSame() {
  NewScreen();
  SayAt(3, R"(To add 34 and 25 we write \yones under ones\z and \ytens under tens\z.)");
  ColumnSum sum(5.5, 12, {"34", "25"});
  PageEnd();
  sum.Add(0);
  SayAt(6.5, "First the ones:  4 + 5 = 9", {.col = 16, .lastCol = 40});
  PageEnd();
  sum.Add(1);
  Say("Then the tens:  3 + 2 = 5", {.col = 16, .lastCol = 40});
  SayAt(11.5, "5 tens and 9 ones are 59.  So 34 + 25 = 59.");
  PageEnd();
  SayAt(14, R"(\yTry it:\z  We add 152 and 6.  Under which digit do we write the 6?)");
  PageEnd();
  ColumnSum uneven(16, 12, {"152", "6"});
  for (int place = 0; place <= 2; ++place) uneven.Add(place);
  uneven.Columns().PickOutNone();
  SayAt(17, "Under the 2, because 6 means 6 ones.", {.col = 16});
  SayAt(19.5, "5 and 1 stand alone: we bring them down.", {.col = 16});
  PageEnd();

  NewScreen();
  SayAt(3, R"(\yWatch out:\z  Start at the right, not at the left.)");
  PaperBox({"  152        152", "+   6      + 6", " 158       \\r752  wrong\\z"}, 5);
  SayAt(10.5,
        "On the right of the paper the 6 stands under hundreds.  So 6 ones became 6 hundreds.");
  SayAt(14, R"(\yTry it:\z  What is 41 + 324?)");
  PageEnd();
  ColumnSum answer(16, 12, {"41", "324"});
  for (int place = 0; place <= 2; ++place) answer.Add(place);
  answer.Columns().PickOutNone();
  SayAt(17, "1 + 4 = 5,  4 + 2 = 6,", {.col = 16});
  SayAt(18, "and the 3 stands alone.", {.col = 16});
  SayAt(19.5, "The answer is 365.", {.col = 16});
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

void Carrying() {
  using platform::colour::Cyan;
  using platform::colour::Yellow;
  NewScreen();
  SayAt(3, "What is 27 + 35?  First the ones:  7 + 5 = 12");
  ColumnSum sum(5, 12, {"27", "35"});
  sum.Columns().PickOut(0);
  SayAt(5, "But a column has room for one digit.  What do we do with 12 ones?", {.col = 16});
  PageEnd();
  constexpr double kFirst = 3, kSecond = 15;
  DrawOnes(12, kFirst, 7, Yellow);
  DrawOnes(12, kSecond, 5, Cyan);
  PageEnd();
  SlideLeft({11.9, kSecond - 0.1, 8, 1.5}, kSecond - kFirst - 7 * kSquare);
  isDrawBox(12, kFirst, 12, kFirst + 10 * kSquare - 1, Yellow, 4);
  SayAt(14, R"(Ten of them make \y1 ten\z, and \y2 ones\z are left:  12 = 10 + 2)");
  PageEnd();
  sum.Add(0);
  SayAt(17, R"(So we write the 2.  The 1 is a ten: it goes up to the tens.  We \ccarry\z the 1.)");
  PageEnd();
  sum.Add(1);
  SayAt(20, "Now the tens.  The 1 is added, too:  1 + 2 + 3 = 6.  So 27 + 35 = 62.");
  PageEnd();

  NewScreen();
  SayAt(3, R"(\yWatch out:\z  These two answers to 27 + 35 are wrong:)");
  PaperBox({R"(\r52\z: the 1 was forgotten.)", R"(\r512\z: the 12 was not carried.)"}, 5.5);
  SayAt(9, "Is 512 possible?  27 and 35 are both less than 100, so their sum is less than 200.");
  SayAt(12, R"(\yTry it:\z  What is 48 + 36?)");
  PageEnd();
  ColumnSum answer(14, 12, {"48", "36"});
  answer.Add(0);
  SayAt(15, "8 + 6 = 14", {.col = 16});
  SayAt(16, "Write 4, carry 1.", {.col = 16});
  PageEnd();
  answer.Add(1);
  SayAt(17.5, "1 + 4 + 3 = 8", {.col = 16});
  SayAt(20, "The answer is 84.  We add the carried 1 once, not twice.");
  PageEnd();
}

void ManyColumns() {
  NewScreen();
  SayAt(3, "Three numbers are added in the same way.");
  ColumnSum sum(5, 12, {"586", "57", "469"});
  PageEnd();
  sum.Add(0);
  SayAt(11.5, "Ones:  6 + 7 + 9 = 22.  22 ones are 2 tens and 2 ones.  We write 2 and carry 2.");
  Note(5, 16, "The 2 that we carry.");
  PageEnd();
  lblNotesHide(1);
  sum.Add(1);
  Say("Tens:  2 + 8 + 5 + 6 = 21.  We write 1 and carry 2.");
  PageEnd();
  sum.Add(2);
  Say("Hundreds:  2 + 5 + 4 = 11.  There is no other column, so we write both digits.");
  sum.Columns().PickOutNone();
  PageEnd();
  Say(R"(\yCheck:\z  We add each place by itself:)");
  Show("900 + 190 + 22 = 1112");
  PageEnd();

  NewScreen();
  RuleBox("Adding", {"Write ones under ones.", "Add from right to left.",
                     "From 10 on, carry to the next column."});
  Say(R"(\yTry it:\z  What is 95 + 8?)");
  PageEnd();
  ColumnSum answer(12, 12, {"95", "8"});
  answer.Add(0);
  SayAt(13, "5 + 8 = 13", {.col = 16});
  SayAt(14, "Write 3, carry 1.", {.col = 16});
  PageEnd();
  answer.Add(1);
  answer.Columns().PickOutNone();
  SayAt(15.5, "1 + 9 = 10.  Write 10.", {.col = 16});
  SayAt(18, "The answer is 103.");
  AddLine(R"(\yCheck:\z  90 + 13 = 103)");
  PageEnd();
}

// --- The lesson --------------------------------------------------------------

class AddingWholeNumbers final : public LessonScript {
 public:
  using LessonScript::LessonScript;

 private:
  std::vector<Screen> Screens() override {
    return {{Places}, {SameUnderSame}, {Carrying}, {ManyColumns}};
  }
  void DrawProblem(RandomStream& random) override;
  void ShowProblem() override;
  void ExplainProblem() override;

  void DrawAddends(RandomStream& random);
  int Digits() const;  // of the longest addend
  int Column(int place) const;
  bool CarriesInside() const;
  int Sum() const;
  void OfferChoices(RandomStream& random);

  // The column sums put together by a wrong rule, the carry in turn.
  struct Written {
    int digit;  // or the whole number, in the last column
    int carry;
  };
  template <class Rule>
  int ByRule(Rule rule) const;
  int WithWholeColumnSums() const;
  int LinedUpOnTheLeft() const;

  void ExplainColumn(ColumnSum& sum, int place) const;
  void Check() const;

  std::vector<int> addends_;  // 2 or 3, up to 9999
};

// --- Generator ---------------------------------------------------------------

int DigitOf(int number, int place) {
  for (; place > 0; --place) number /= 10;
  return number % 10;
}

int AddingWholeNumbers::Digits() const {
  return static_cast<int>(NumStr(*std::ranges::max_element(addends_)).size());
}

int AddingWholeNumbers::Column(int place) const {
  int sum = 0;
  for (const int addend : addends_) sum += DigitOf(addend, place);
  return sum;
}

bool AddingWholeNumbers::CarriesInside() const {
  for (int place = 0, carry = 0; place < Digits() - 1; ++place) {
    carry = (Column(place) + carry) / 10;
    if (carry > 0) return true;
  }
  return false;
}

int AddingWholeNumbers::Sum() const {
  int sum = 0;
  for (const int addend : addends_) sum += addend;
  return sum;
}

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
  } while (!CarriesInside());

  std::string sum;
  for (const int addend : addends_) sum += (sum.empty() ? "" : " + ") + NumStr(addend);
  problem.question = {"Add these numbers:", sum};
  OfferChoices(random);
}

template <class Rule>
int AddingWholeNumbers::ByRule(Rule rule) const {
  int number = 0;
  int carry = 0;
  for (int place = 0, ten = 1; place < Digits(); ++place, ten *= 10) {
    const Written written = rule(Column(place), carry, place == Digits() - 1);
    number += written.digit * ten;
    carry = written.carry;
  }
  return number;
}

int AddingWholeNumbers::WithWholeColumnSums() const {
  std::string text;
  for (int place = Digits() - 1; place >= 0; --place) text += NumStr(Column(place));
  return std::stoi(text);
}

int AddingWholeNumbers::LinedUpOnTheLeft() const {
  int sum = 0;
  for (int addend : addends_) {
    for (int i = static_cast<int>(NumStr(addend).size()); i < Digits(); ++i) addend *= 10;
    sum += addend;
  }
  return sum;
}

// The carry forgotten comes first; which of the others are offered is drawn.
void AddingWholeNumbers::OfferChoices(RandomStream& random) {
  const auto split = [](int total, bool last) -> Written {
    return {last ? total : total % 10, total / 10};
  };
  const auto forgotten = [](int column, int, bool last) -> Written {
    return {last ? column : column % 10, 0};
  };
  const auto twice = [&](int column, int carry, bool last) {
    return split(column + 2 * carry, last);
  };
  const auto exchanged = [](int column, int carry, bool last) -> Written {
    const int total = column + carry;
    return last || total < 10 ? Written{total, 0} : Written{total / 10, total % 10};
  };
  const auto always1 = [&](int column, int carry, bool last) {
    return split(column + (carry > 0 ? 1 : 0), last);
  };
  const auto lastDropped = [](int column, int carry, bool) -> Written {
    return {(column + carry) % 10, (column + carry) / 10};
  };
  const struct {
    std::string name;
    int value;
  } mistakes[] = {
      {"adds each carried digit twice", ByRule(twice)},
      {"writes the whole sum of each column", WithWholeColumnSums()},
      {"carries the ones digit and writes the tens digit", ByRule(exchanged)},
      {"carries 1 where it should be 2", ByRule(always1)},
      {"drops the last carried digit", ByRule(lastDropped)},
      {"lines the numbers up on the left", LinedUpOnTheLeft()},
      {"leaves out the last number", Sum() - addends_.back()},
  };
  const std::vector<int> order = random.RandSeq(std::size(mistakes), std::size(mistakes));
  Choices<int> choices(problem, choice_kind::FiveShuffled, NumStr);
  choices.Right(Sum());
  choices.Wrong("forgets to carry", ByRule(forgotten));
  int named = random.Rand(2, 3);  // a number near the sum stands in the last box or not
  for (const int i : order) {
    const auto& [name, value] = mistakes[i - 1];
    if (named == 0 || value == 0 || value == Sum()) continue;
    choices.Wrong(name, value);
    --named;
  }
  choices.Fill([&] {
    for (;;) {  // near the sum, and positive
      const int near = Sum() - static_cast<int>(random.Rnd() * 102) + 50;
      if (near >= 1) return near;
    }
  });
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
  constexpr double kBeside = 18;
  ProblemBanner();
  ShowAt(5, problem.question[1]);
  std::vector<std::string> texts;
  for (const int addend : addends_) texts.push_back(NumStr(addend));
  ColumnSum sum(kFirstRow, kOnesCol, texts);
  SayAt(kFirstRow + 1, "We write ones under ones and tens under tens.", {.col = kBeside});
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
  if (place == 3)
    SayInBoxAnew(text);
  else
    SayInBox(text);
  PageEnd();
}

// The values of the columns: a carry that was forgotten or added twice shows.
void AddingWholeNumbers::Check() const {
  std::string parts;
  for (int place = Digits() - 1; place >= 0; --place) {
    int ten = 1;
    for (int i = 0; i < place; ++i) ten *= 10;
    parts += (parts.empty() ? "" : " + ") + NumStr(Column(place) * ten);
  }
  Say(R"(\yCheck:\z  We add each place by itself, without carrying.)");
  Show(parts + " = " + NumStr(Sum()));
  PageEnd();
}

const LessonRegistration<AddingWholeNumbers> kRegistration("Adding Whole Numbers");

}  // namespace
}  // namespace course
