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
const std::string kTimes = " " + tutor::Times + " ";
const std::string kOver = " " + tutor::Divided + " ";

// --- Teaching screens --------------------------------------------------------

void OutOfAHundred() {
  constexpr double kBeside = 16;  // columns
  NewScreen();
  DrawHundredSquares(3, 3, 45);
  SayAt(3, R"(Of 100 squares, 45 are yellow.  45 \cpercent\z means 45 out of 100.  We write 45%.)",
        {.col = kBeside});
  PageEnd();
  ShowAt(12, "45% = 45/100");
  SayAt(14.5, R"(\yTry it:\z  How do we write 45 hundredths as a decimal number?)");
  PageEnd();
  ShowAt(12, "45% = 45/100 = 0.45");
  GoBelow();
  Say("The second place after the point is the hundredths place.");
  PageEnd();
}

void PointMovesRight() {
  NewScreen();
  SayAt(3, "Let's go from 0.45 to 45%.  How far must the point move?");
  PercentPoint point = PercentPoint::ToPercent(5.5, {"45", 0});
  PageEnd();
  point.Move();
  SayAt(10, R"(It moves \ytwo places to the right\z.)");
  AddLine("We leave out a point at the end:  45%.");
  PageEnd();
  Say(
      Text("Why two?  Percent means hundredths, so we multiply by 100.  That is {}, and each 10 "
           "moves the point one place.",
           "10" + kTimes + "10"));
  PageEnd();
  Say(R"(\yWatch out:\z  Do not just write the sign after the number.)");
  PaperBox({R"(0.45 = 45%,  \rnot 0.45%\z)"});
  Say("0.45% is not even half of one square.");
  PageEnd();
}

void ZerosFillThePlaces() {
  NewScreen();
  SayAt(3, R"(\yTry it:\z  Write 0.6 as a percent.)");
  PercentPoint point = PercentPoint::ToPercent(4.5, {"6", 0});
  PageEnd();
  point.Move();
  SayAt(9, Text(R"(A {} fills the empty place:  {})", R"(\yzero\z)", "0.6 = 0.60 = 60%"));
  PageEnd();
  PaperBox({R"(0.6 = 60%,  \rnot 6%\z)"});
  Say("6% is only 6 of the 100 squares:");
  DrawHundredSquares(15.5, 7, 60);
  DrawHundredSquares(15.5, 24, 6);
  SayAt(22.5, "60%", {.col = 10});
  SayAt(22.5, "6%", {.col = 28});
  PageEnd();
}

void ZerosInFrontAreDropped() {
  constexpr double kBeside = 16;  // columns
  NewScreen();
  DrawHundredSquares(3, 3, 4);
  SayAt(3, "4 of the 100 squares are yellow.  This is 0.04.", {.col = kBeside});
  SayAt(7, R"(\yTry it:\z  What percent?)", {.col = kBeside});
  PercentPoint four = PercentPoint::ToPercent(10.5, {"4", -1});
  PageEnd();
  four.Move();
  Say(Text("004 is just 4, so we drop the zeros in front:  {}", "0.04 = 4%"));
  PageEnd();

  NewScreen();
  SayAt(3, R"(\yTry it:\z  What percent is 0.0625?)");
  PercentPoint more = PercentPoint::ToPercent(5, {"625", -1});
  PageEnd();
  more.Move();
  Say(Text("The point stops after the 6, not at the end:  {}", "0.0625 = 6.25%"));
  PageEnd();
}

void MoreThanAWhole() {
  constexpr double kBeside = 27;  // columns
  NewScreen();
  DrawHundredSquares(3, 3, 100);
  DrawHundredSquares(3, 15, 25);
  SayAt(3, R"(Each figure is one whole, \y100%\z.)", {.col = kBeside});
  PageEnd();
  SayAt(11, R"(\yTry it:\z  125 squares are yellow.  They show 1.25.  What percent is this?)");
  PercentPoint point = PercentPoint::ToPercent(14.5, {"125", 1});
  PageEnd();
  point.Move();
  Say("1.25 = 125%.  A number greater than 1 is more than 100%.");
  PageEnd();

  NewScreen();
  RuleBox("To a Percent", {"Move the point 2 places right, write %.", "0.375 = 37.5%"});
  Say(R"(\yTry it:\z  Write 2.4 and 0.08 as percents.)");
  PageEnd();
  Say(Text("A zero fills the empty place:  {}", "2.4 = 2.40 = 240%"));
  Say(Text("We drop the zeros in front:  {}", "0.08 = 8%"));
  PageEnd();
}

void PointMovesLeft() {
  NewScreen();
  SayAt(3, "Now we write 32% as a decimal number.");
  AddLine("A whole number's point is at its end.");
  PercentPoint point = PercentPoint::ToDecimal(6.5, {"32", 0});
  SayAt(11, R"(\yTry it:\z  Which way must the point move?)");
  PageEnd();
  point.Move();
  SayAt(13, Text("It moves {}, and we drop the percent sign:  {}",
                 Words{R"(\ytwo places to the left\z)"}, "32% = 0.32"));
  PageEnd();
  Say("Why?  32% means 32 out of 100.  We divide by 100, that is by 10 twice:");
  Show("32% = 32/100 = 0.32");
  PageEnd();

  NewScreen();
  SayAt(3, R"(\yWatch out:\z  Do not just drop the sign, and do not go the wrong way:)");
  PaperBox({R"(32% = 0.32,  \rnot 32, not 3,200\z)"});
  Say("The percent shows the bigger number: 32.");
  PageEnd();
}

void SmallPercents() {
  SayAt(10, R"(\yTry it:\z  Write 8% as a decimal number.)");
  PercentPoint point = PercentPoint::ToDecimal(12, {"8", -1});
  PageEnd();
  point.Move();
  Say(Text("There is only one digit, so a {} fills the other place:  {}", R"(\yzero\z)",
           "8% = 0.08"));
  PageEnd();

  NewScreen();
  DrawHundredSquares(3, 3, 8);
  DrawHundredSquares(3, 22, 80);
  SayAt(10, "8% = 0.08", {.col = 3});
  SayAt(10, "80% = 0.80 = 0.8", {.col = 22});
  Say(R"(\yWatch out:\z  8% is not 0.8.  That would be 80 of the 100 squares.)");
  Say("We may drop the last zero of 0.80.");
  PageEnd();
}

void OtherPercents() {
  NewScreen();
  SayAt(3, R"(\yTry it:\z  Write 4.5% as a decimal number.)");
  PercentPoint point = PercentPoint::ToDecimal(5, {"45", -1});
  PageEnd();
  point.Move();
  Say(Text("The point moves past the 4 and past a new zero:  {}", "4.5% = 0.045"));
  PageEnd();
  Say(Text(R"(\yCheck:\z  We go back and multiply by 100:  {})", "0.045" + kTimes + "100 = 4.5"));
  Say(R"(\yTry it:\z  And 250%?  Is it more or less than 1?)");
  PageEnd();

  NewScreen();
  PercentPoint::ToDecimal(3, {"25", 1}).Move();
  Say("250% = 2.50 = 2.5, which is more than 1.");
  PageEnd();

  NewScreen();
  RuleBox("To a Decimal Number", {"Move the point 2 places left, drop the %.", "37.5% = 0.375"});
  Say(R"(\yTry it:\z  Write 47.85% and 6% this way.)");
  PageEnd();
  Say("47.85% = 0.4785");
  AddLine(R"(\yCheck:\z  0.4785)" + kTimes + "100 = 47.85");
  Say("6% = 0.06");
  AddLine(R"(\yCheck:\z  0.06)" + kTimes + "100 = 6");
  PageEnd();
}

// --- The lesson --------------------------------------------------------------

class PercentsAndDecimalNumbers final : public LessonScript {
 public:
  using LessonScript::LessonScript;

 private:
  std::vector<Screen> Screens() override {
    return {{OutOfAHundred, PointMovesRight, ZerosFillThePlaces, ZerosInFrontAreDropped,
             MoreThanAWhole},
            {PointMovesLeft, SmallPercents, OtherPercents}};
  }
  void DrawProblem(RandomStream& random) override;
  void ShowProblem() override;
  void ExplainProblem() override;

  void OfferChoices(RandomStream& random);
  // The choice whose point stands so many places to the right of the question's.
  std::string Moved(int places) const;
  void ExplainMove() const;
  std::string Equation() const;
  // A whole number does not show its point.
  std::string WhereThePointStands() const;
  // What happens to the zeros and to the sign.
  std::string AboutPercent() const;
  std::string AboutDecimal() const;
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

constexpr double kReasonRow = 9;

void PercentsAndDecimalNumbers::ExplainProblem() {
  ProblemBanner();
  SayAt(4.5, problem.question[0]);
  ShowAt(7, problem.question[1], 5);
  ExplainMove();
  Check();
  Conclude(problem);
}

void PercentsAndDecimalNumbers::ExplainMove() const {
  constexpr double kMovingRow = 13.5;
  SayAt(kReasonRow, toPercent_ ? "Percent means hundredths.  So we multiply by 100."
                               : "Percent means out of 100.  So we divide by 100.");
  PageEnd();
  AddLine(WhereThePointStands() +
          Text(R"( moves two places to the \y{}\z.)", toPercent_ ? "right" : "left"));
  PercentPoint point = toPercent_ ? PercentPoint::ToPercent(kMovingRow, number_)
                                  : PercentPoint::ToDecimal(kMovingRow, number_);
  PageEnd();
  point.Move();
  Say(toPercent_ ? AboutPercent() : AboutDecimal());
  Show(Equation());
  PageEnd();
}

std::string PercentsAndDecimalNumbers::Equation() const {
  return toPercent_ ? number_.DecimalText() + " = " + number_.PercentText()
                    : number_.PercentText() + " = " + number_.DecimalText();
}

std::string PercentsAndDecimalNumbers::WhereThePointStands() const {
  const std::string shown = problem.question[1].substr(0, problem.question[1].find('%'));
  if (shown.find('.') != std::string::npos) return "The point";
  return Text("The point of {} is at its end.  It", shown);
}

std::string PercentsAndDecimalNumbers::AboutPercent() const {
  const int count = static_cast<int>(number_.digits.size());
  const std::string sign = "We write the percent sign after the number.";
  if (number_.before + kPlaces > count) return "A zero fills the empty place.  " + sign;
  if (number_.before == 0) return "We drop the zero in front.  " + sign;
  if (number_.before < 0) return "We drop the zeros in front.  " + sign;
  return sign;
}

std::string PercentsAndDecimalNumbers::AboutDecimal() const {
  const int count = static_cast<int>(number_.digits.size());
  if (number_.before < 0) return "A zero fills the empty place, and we drop the percent sign.";
  if (number_.before < count && number_.before + kPlaces > count)
    return "We drop the percent sign, and the zero at the end.";
  return "We drop the percent sign.";
}

// The way back, by a calculation: a point that has moved the wrong way, or too far, shows.
void PercentsAndDecimalNumbers::Check() const {
  const bool aboveOne = number_.before > 0;
  const std::string decimal = number_.DecimalText();
  std::string percent = number_.PercentText();
  percent.pop_back();
  ClearBelow(kReasonRow);
  ShowAt(kReasonRow, Equation(), 5);
  Say(toPercent_ ? R"(\yCheck:\z  We go back the other way and divide by 100.)"
                 : R"(\yCheck:\z  We go back the other way and multiply by 100.)");
  Show(toPercent_ ? percent + kOver + "100 = " + decimal : decimal + kTimes + "100 = " + percent);
  Say(Text("{}% is {} than 100%, and {} is {} than 1.", percent, aboveOne ? "more" : "less",
           decimal, aboveOne ? "more" : "less"));
  PageEnd();
}

const LessonRegistration<PercentsAndDecimalNumbers> kRegistration("Percents and Decimal Numbers");

}  // namespace
}  // namespace course
