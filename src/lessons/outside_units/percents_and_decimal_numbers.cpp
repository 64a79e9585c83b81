// The student can write a decimal number as a percent and a percent as a decimal number: the point
// moves two places, to the right on the way to percents and to the left on the way back.
//
// Two kinds of problems with equal chances, one way and the other.  Percents from 1% to 999%, with
// up to two decimal places.
#include "lessons/families/percents/percent_figures.h"
#include "lessons/families/percents/percent_number.h"
#include "lessons/lesson.h"

namespace course {
namespace {

using namespace percents;

constexpr int kPlaces = 2;

// --- Teaching screens --------------------------------------------------------

void OutOfAHundred() {
  constexpr double kBeside = 16;  // columns
  NewScreen();
  DrawHundredSquares(3, 3, 45);
  SayAt(3,
        R"(Here are 100 squares, and 45 of them are yellow.  The word \cpercent\z means )"
        R"("out of 100".)",
        {.col = kBeside});
  PageEnd();
  SayAt(8, R"(So \y45 percent\z are yellow.  We write 45%.)", {.col = kBeside});
  PageEnd();
  ShowAt(12, "45% = 45/100");
  SayAt(14.5, R"(\yTry it:\z  How do we write 45 hundredths as a decimal number?)");
  PageEnd();
  ShowAt(12, "45% = 45/100 = 0.45");
  GoBelow();
  Say("The hundredths end with the second place behind the point.");
  PageEnd();
}

void PointMovesRight() {
  NewScreen();
  SayAt(3, "Let's go from 0.45 to 45%.  How far must the point move?");
  PercentPoint point = PercentPoint::ToPercent(6, {"45", 0});
  PageEnd();
  point.Move();
  Say(Text("It moves {}:  {}", Words{R"(\ytwo places to the right\z)"}, "0.45 = 45%"));
  PageEnd();
  Say("Why two?  A percent counts hundredths, and 1 whole is 100 hundredths.  So we multiply by "
      "100.");
  PageEnd();
  Say(R"(\yWatch out:\z  Do not just write the sign behind the number.)");
  PaperBox({R"(0.45 = 45%,  \rnot 0.45%\z)"});
  Say("0.45% is not even half of one square.");
  PageEnd();
}

void ZerosFillThePlaces() {
  NewScreen();
  SayAt(3, R"(\yTry it:\z  Write 0.6 as a percent.)");
  PercentPoint one = PercentPoint::ToPercent(5, {"6", 0});
  PageEnd();
  one.Move();
  Say(Text(R"(A {} fills the gap:  {})", R"(\yzero\z)", "0.6 = 60%"));
  PaperBox({R"(0.6 = 60%,  \rnot 6%\z)"});
  PageEnd();
  Say(R"(\yTry it:\z  And what is 0.04?)");
  PageEnd();
  PercentPoint::ToPercent(14.5, {"4", -1}).Move();
  Say(Text("The zeros in front are not needed any more:  {}", "0.04 = 4%"));
  PageEnd();
  Say(R"(\yTry it:\z  What is 0.625?)");
  PageEnd();
  AddLine(R"(The point stops behind the 2:  \y62.5%\z)");
  PageEnd();
}

void MoreThanAWhole() {
  NewScreen();
  DrawHundredSquares(3, 3, 100);
  DrawHundredSquares(3, 15, 25);
  SayAt(3, "Here 125 squares are yellow.", {.col = 27});
  PageEnd();
  SayAt(6, R"(One whole is \y100%\z.)", {.col = 27});
  SayAt(11, "Both figures together show the number 1.25.  What percent is this?");
  PageEnd();
  PercentPoint::ToPercent(14, {"125", 1}).Move();
  Say("1.25 = 125%.  A number above 1 is more than 100%.");
  PageEnd();
  RuleBox("To a Percent", {"2 places to the right, and the sign:", "0.375 = 37.5%"});
  PageEnd();
}

void PointMovesLeft() {
  NewScreen();
  SayAt(3, "Now for the way back.  What is 32% as a decimal number?");
  PercentPoint point = PercentPoint::ToDecimal(6, {"32", 0});
  SayAt(9, R"(\yTry it:\z  Which way must the point move?)");
  PageEnd();
  point.Move();
  SayAt(11, Text("It moves {}, and the sign goes:  {}", Words{R"(\ytwo places to the left\z)"},
                 "32% = 0.32"));
  PageEnd();
  Say("Why?  32% means 32 out of 100, so we divide by 100:");
  Show("32% = 32/100 = 0.32");
  PageEnd();
}

void SmallPercents() {
  NewScreen();
  SayAt(3, R"(\yTry it:\z  Write 8% as a decimal number.)");
  PercentPoint point = PercentPoint::ToDecimal(5, {"8", -1});
  PageEnd();
  point.Move();
  Say(Text("There is only one digit, so a {} fills the other place:  {}", R"(\yzero\z)",
           "8% = 0.08"));
  PageEnd();
  ClearBelow(3);
  DrawHundredSquares(3, 3, 8);
  DrawHundredSquares(3, 22, 80);
  SayAt(10, "8% = 0.08", {.col = 3});
  SayAt(10, "80% = 0.80 = 0.8", {.col = 22});
  Say(R"(\yWatch out:\z  8% is not 0.8.  That would be 80 of the 100 squares.)");
  Say("In 0.80 the last zero may be left out.");
  PageEnd();
}

void OtherPercents() {
  NewScreen();
  SayAt(3, R"(\yTry it:\z  What is 12.5%?)");
  PercentPoint point = PercentPoint::ToDecimal(5, {"125", 0});
  PageEnd();
  point.Move();
  Say(Text("The point stood behind the 2.  It moves in front of the 1:  {}", "12.5% = 0.125"));
  PageEnd();
  Say(R"(\yTry it:\z  And 250%?  Is it more or less than 1?)");
  PageEnd();
  PercentPoint::ToDecimal(14, {"25", 1}).Move();
  Say(Text("It is more than 1, for it is more than 100%:  {}", "250% = 2.50 = 2.5"));
  PageEnd();
  RuleBox("To a Decimal Number", {"2 places to the left, no sign:", "37.5% = 0.375"});
  PageEnd();
}

// --- The lesson --------------------------------------------------------------

class PercentsAndDecimalNumbers final : public LessonScript {
 public:
  using LessonScript::LessonScript;

 private:
  std::vector<Screen> Screens() override {
    return {{OutOfAHundred, PointMovesRight, ZerosFillThePlaces, MoreThanAWhole},
            {PointMovesLeft, SmallPercents, OtherPercents}};
  }
  void DrawProblem(RandomStream& random) override;
  void ShowProblem() override;
  void ExplainProblem() override;

  void OfferChoices(RandomStream& random);
  // The choice whose point stands so many places to the right of the question's.
  std::string Moved(int places) const;
  void ExplainMove() const;
  void Check() const;

  bool toPercent_ = false;
  PercentNumber number_;  // 1 to 4 digits
};

// --- Generator ---------------------------------------------------------------

void PercentsAndDecimalNumbers::DrawProblem(RandomStream& random) {
  toPercent_ = random.Rand(1, 2) == 1;
  const int places = random.Rand(2, 4);
  const int count = places < 4 ? random.Rand(2, 3) : random.Rand(3, 4);
  const bool endsWithZero = random.Rand(0, 1) == 1;
  number_.digits.clear();
  for (int i = 0; i < count; ++i) number_.digits += random.OneOf("123456789");
  if (endsWithZero) number_.digits.pop_back();  // it is not written, as in 0.4
  number_.before = count - places;

  if (toPercent_)
    problem.question = {"Write the following decimal number as a percent:", number_.DecimalText()};
  else
    problem.question = {"Write the following percent as a decimal number:", number_.PercentText()};
  OfferChoices(random);
}

std::string PercentsAndDecimalNumbers::Moved(int places) const {
  PercentNumber moved = number_;
  if (toPercent_) {
    moved.before += places - kPlaces;
    return moved.PercentText();
  }
  moved.before += places + kPlaces;
  return moved.DecimalText();
}

const std::string& AsItIs(const std::string& text) {
  return text;
}

// Four mistakes of five, so that the largest number is right as often as any other.
void PercentsAndDecimalNumbers::OfferChoices(RandomStream& random) {
  struct Mistake {
    std::string name;
    int places;
  };
  const int right = toPercent_ ? kPlaces : -kPlaces;
  const Mistake mistakes[] = {
      {"moves the point the wrong way", -right},
      {"moves the point one place only", right / kPlaces},
      {"moves the point three places", right / kPlaces * 3},
      {"moves the point one place the wrong way", -right / kPlaces},
      {toPercent_ ? "only writes the percent sign" : "only leaves the percent sign out", 0}};
  const std::vector<int> order = random.RandSeq(5, 4);
  Choices<std::string> choices(problem, choice_kind::FiveShuffled, AsItIs);
  choices.Right(Moved(right));
  for (const int i : order) {
    const Mistake& mistake = mistakes[i - 1];
    choices.Wrong(mistake.name, Moved(mistake.places));
  }
}

// --- Problem page ------------------------------------------------------------

constexpr double kNumberRow = 8;

void PercentsAndDecimalNumbers::ShowProblem() {
  SayAt(5, problem.question[0]);
  ShowAt(kNumberRow, problem.question[1], 5);
  ShowAnswersInTwoColumns(problem, {.width = 18});
}

// --- Worked explanation ------------------------------------------------------

void PercentsAndDecimalNumbers::ExplainProblem() {
  ProblemBanner();
  SayAt(4.5, problem.question[0]);
  ShowAt(7, problem.question[1], 5);
  ExplainMove();
  Check();
  Conclude(problem);
}

void PercentsAndDecimalNumbers::ExplainMove() const {
  constexpr double kMovingRow = 12.5;
  Say(toPercent_ ? R"(A percent counts hundredths.  So we multiply by 100: the point moves two )"
                   R"(places to the \yright\z.)"
                 : R"(Percent means out of 100.  So we divide by 100: the point moves two places )"
                   R"(to the \yleft\z.)");
  PercentPoint point = toPercent_ ? PercentPoint::ToPercent(kMovingRow, number_)
                                  : PercentPoint::ToDecimal(kMovingRow, number_);
  PageEnd();
  point.Move();
  const int count = static_cast<int>(number_.digits.size());
  const std::string equation = toPercent_ ? number_.DecimalText() + " = " + number_.PercentText()
                                          : number_.PercentText() + " = " + number_.DecimalText();
  if (toPercent_ && number_.before + kPlaces > count)
    Say("A zero fills the empty place.  Behind the number we write the percent sign.");
  else if (toPercent_)
    Say("Behind the number we write the percent sign.");
  else if (number_.before < 0)
    Say("A zero fills the empty place, and the percent sign goes.");
  else if (number_.before < count && number_.before + kPlaces > count)
    Say("The percent sign goes.  The zero at the end may be left out.");
  else
    Say("The percent sign goes.");
  Show(equation);
  PageEnd();
}

void PercentsAndDecimalNumbers::Check() const {
  const bool aboveOne = number_.before > 0;
  Say(Text(R"(\yCheck:\z  1 is 100%.  {} is {} than 1, and {} is {} than 100%.)",
           number_.DecimalText(), aboveOne ? "more" : "less", number_.PercentText(),
           aboveOne ? "more" : "less"));
  PageEnd();
}

const LessonRegistration<PercentsAndDecimalNumbers> kRegistration("Percents and Decimal Numbers");

}  // namespace
}  // namespace course
