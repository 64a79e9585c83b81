#include "lessons/families/stories/two_vehicles_explanation.h"

#include <algorithm>
#include <numeric>
#include <string>

#include "display/animation.h"
#include "display/print_cells.h"
#include "display/stacked_text.h"
#include "engine/choices.h"
#include "engine/header.h"
#include "engine/page.h"
#include "lessons/families/stories/durations.h"
#include "lessons/families/stories/journey_table.h"
#include "lessons/families/stories/story_words.h"
#include "lessons/families/stories/two_roads.h"
#include "lessons/page/boxes.h"
#include "lessons/page/page_lines.h"
#include "lessons/page/say.h"
#include "lessons/page/show.h"
#include "mathkit/expressions.h"
#include "mathkit/tutor_codes.h"

namespace course::stories {
namespace {

using namespace page;

using platform::colour::Blue;

constexpr int kMinutesOfHour = 60;

// Rows: the problem, the figure, the table or the working in its place, the box with words.
constexpr double kProblemRow = 4;
constexpr double kFigureRow = 9.5;
constexpr double kTableRow = 13.2;
constexpr double kRateRow = 12.9;
constexpr double kFormulaRow = 14.8;
constexpr double kWorkRow = 14.3;
constexpr double kSecondWorkRow = 17.6;
constexpr double kPlainWorkRow = 16;  // under a line without fractions
constexpr double kBoxRow = 20.7;
constexpr double kWorkCol = 2;
constexpr double kLastCol = 41;

const std::string kFormula = WithoutBreaks("d = r " + tutor::Dot + " t");

double MilesOf(const Fraction& distance) {
  return static_cast<double>(distance.num) / distance.den;
}

const std::string kTimes = " " + tutor::Times + " ";
const std::string kDivided = " " + tutor::Divided + " ";

// What stands behind "d =" first, and under it.
struct Working {
  std::string first;
  std::string rest;
};

Working DistanceWorking(const Motion& motion) {
  const std::string rate = NumStr(motion.rate);
  const Fraction hours = motion.Hours();
  const Fraction miles = motion.Distance();
  Working working = {rate + kTimes + MixedText(hours), ""};
  if (hours.den > 1 && hours.num > hours.den)
    working.rest += "= " + rate + kTimes + ValueText(hours) + " ";
  if (miles.den > 1) working.rest += "= " + MilesQuotient(miles.num, miles.den) + " ";
  if (miles.den == 1 || miles.num > miles.den) working.rest += "= " + MilesNumber(miles);
  return working;
}

// "9/4 = 2 1/4", "3/4" or "2".
std::string ImproperAndMixed(const Fraction& hours) {
  const bool isMixed = hours.den > 1 && hours.num > hours.den;
  return ValueText(hours) + (isMixed ? " = " + MixedText(hours) : "");
}

class TwoVehiclesExplanation {
 public:
  TwoVehiclesExplanation(const TwoVehicles& vehicles, const Problem& problem);
  void Explain();

 private:
  void ShowFacts();
  void ExplainHours();
  void ExplainGapAtStart();
  void ExplainGapThatStays();
  void ExplainGapThatChanges();
  void ExplainFormula();
  void ExplainMinutes();
  void Check();
  void TellAnswer();

  void StartStep(const std::string& words, double top = kRateRow);
  void HideTable();
  void ShowNumbers(const std::string& letter, const std::string& numbers);
  void ShowResult(const std::string& numbers, const std::string& rest);
  void FindDistance(const Motion& motion);
  void FindTime();
  void FindTimeOfFraction();
  std::string CheckWords() const;

  bool AsksTime() const { return gap_.asked == MotionPart::Time; }
  bool IsSameRate() const { return vehicles_.kind == TwoVehiclesKind::SameRate; }

  const TwoVehicles vehicles_;
  const Problem& problem_;
  const Motion gap_;
  // How long each of them travels to the end, and how far.
  Fraction firstHours_;
  Fraction secondHours_;
  Fraction firstMiles_;
  Fraction secondMiles_;
  TwoRoads roads_;
};

Fraction HoursOfSecond(const TwoVehicles& vehicles) {
  return vehicles.kind == TwoVehiclesKind::SameRate ? HoursOf(vehicles.laterMinutes)
                                                    : vehicles.Relative().Hours();
}

Fraction HoursOfFirst(const TwoVehicles& vehicles) {
  const Fraction second = HoursOfSecond(vehicles);
  return vehicles.Follows() ? second + vehicles.Hours() : second;
}

TwoVehiclesExplanation::TwoVehiclesExplanation(const TwoVehicles& vehicles, const Problem& problem)
    : vehicles_(vehicles),
      problem_(problem),
      gap_(vehicles.Relative()),
      firstHours_(HoursOfFirst(vehicles)),
      secondHours_(HoursOfSecond(vehicles)),
      firstMiles_(Fraction{vehicles.firstRate, 1} * firstHours_),
      secondMiles_(Fraction{vehicles.secondRate, 1} * secondHours_),
      roads_(kFigureRow, vehicles.Follows() ? RoadsGo::SameWay : RoadsGo::OppositeWays,
             MilesOf(firstMiles_), MilesOf(secondMiles_)) {}

void TwoVehiclesExplanation::Explain() {
  ProblemBanner();
  SayAt(kProblemRow, OneParagraph(problem_.question));
  PageEnd();
  ShowFacts();
  ExplainHours();
  if (vehicles_.Follows()) ExplainGapAtStart();
  if (IsSameRate()) {
    ExplainGapThatStays();
  } else {
    ExplainGapThatChanges();
    ExplainFormula();
    ExplainMinutes();
  }
  Check();
  TellAnswer();
}

// Words below, and room for new working above them, from a row on.
void TwoVehiclesExplanation::StartStep(const std::string& words, double top) {
  ClearRows(top, kBoxRow - top);
  SayInBoxAnew(words);
}

void TwoVehiclesExplanation::HideTable() {
  picPrintCellBoxMove(0, 40, "H", 10);
  picPrintCellBoxHide();
}

// The roads with what is given, and the table of it; times stand there in hours.
void TwoVehiclesExplanation::ShowFacts() {
  roads_.Draw("");
  ShowJourneyTable(kTableRow, vehicles_.name);
  WhiteBox({.row = kBoxRow});
  const bool follows = vehicles_.Follows();
  const bool isWhole = vehicles_.minutes % kMinutesOfHour == 0;
  const std::string time = vehicles_.kind == TwoVehiclesKind::TimeApart ? "t"
                           : isWhole ? MixedText(vehicles_.Hours())
                                     : "";
  FillJourney(Journey::A, NumStr(vehicles_.firstRate), time, "");
  FillJourney(Journey::B, NumStr(vehicles_.secondRate), follows ? "" : time, "");
  SayInBox("Let's summarize what we know.");
  if (follows) {
    roads_.GoTo(MilesOf(vehicles_.GapAtStart()), 0);
    SayInBox(Text("B leaves now.  A has a head start of {}.", DurationText(vehicles_.minutes)));
  } else {
    roads_.GoTo(MilesOf(firstMiles_), MilesOf(secondMiles_));
    if (AsksTime()) SayInBox("Both go for the same time t.");
    if (!AsksTime()) SayInBox("Both go for the same time.");
  }
  roads_.ShowGap(vehicles_.kind == TwoVehiclesKind::TimeApart ? MilesText(gap_.Distance()) : "?");
  PageEnd();
}

void TwoVehiclesExplanation::ExplainHours() {
  const int minutes = vehicles_.minutes % kMinutesOfHour;
  if (minutes == 0 || vehicles_.kind == TwoVehiclesKind::TimeApart) return;
  SayInBoxAnew(
      Text("A rate in miles per hour needs a time in hours.  {} minutes are {}/60 = {} of "
           "an hour.",
           minutes, minutes, ValueText(HoursOf(minutes))));
  const std::string hours = MixedText(vehicles_.Hours());
  FillJourney(Journey::A, "", hours, "", Blue);
  if (!vehicles_.Follows()) FillJourney(Journey::B, "", hours, "", Blue);
  PageEnd();
}

void TwoVehiclesExplanation::ShowNumbers(const std::string& letter, const std::string& numbers) {
  StartStep("We put in the numbers.");
  ShowAt(kWorkRow, letter + " = " + numbers, kWorkCol);
  PageEnd();
}

// Under the numbers, in the place of what stood there before.
void TwoVehiclesExplanation::ShowResult(const std::string& numbers, const std::string& rest) {
  constexpr double kTop = kSecondWorkRow - 1.4;
  ClearRows(kTop, kBoxRow - kTop);
  const double underSign = kWorkCol + 2;
  const bool isBuiltUp = (numbers + rest).find('/') != std::string::npos;
  ShowAt(isBuiltUp ? kSecondWorkRow : kPlainWorkRow, rest,
         std::min(underSign, kLastCol - StackedTextWidth(rest)));
}

void TwoVehiclesExplanation::FindDistance(const Motion& motion) {
  const Working working = DistanceWorking(motion);
  ShowNumbers("d", working.first);
  SayInBoxAnew("Simplify the expression to find the distance.");
  ShowResult(working.first, working.rest);
}

void TwoVehiclesExplanation::FindTime() {
  const Fraction miles = gap_.Distance();
  const Fraction hours = gap_.Hours();
  const std::string numbers = MilesNumber(miles) + kDivided + NumStr(gap_.rate);
  ShowNumbers("t", numbers);
  if (miles.den > 1) return FindTimeOfFraction();
  SayInBoxAnew("Simplify the expression to find the time.");
  if (hours.den == 1) return ShowResult(numbers, "= " + NumStr(hours.num));
  const int common = std::gcd(miles.num, gap_.rate);
  if (common > 1) SayInBox(Text("We reduce by {}.", common));
  const std::string quotient = common > 1 ? MilesQuotient(miles.num, gap_.rate) + " = " : "";
  ShowResult(numbers, "= " + quotient + ImproperAndMixed(hours));
}

// A fraction of miles is divided in two steps.
void TwoVehiclesExplanation::FindTimeOfFraction() {
  const Fraction miles = gap_.Distance();
  const std::string rate = NumStr(gap_.rate);
  const std::string quotient = MilesQuotient(miles.num, miles.den);
  const std::string product = "= " + quotient + kTimes + "1/" + rate;
  SayInBoxAnew(
      Text("Simplify the expression to find the time.  We divide by {}, so we multiply by 1/{}.",
           rate, rate));
  ShowResult("", "= " + quotient + kDivided + rate + " " + product);
  PageEnd();
  const int common = std::gcd(miles.num, gap_.rate);
  const int above = miles.num / common;
  const int below = gap_.rate / common;
  std::string result = product + " = ";
  if (below > 1) result += Text("{}/({}{}{}) = ", above, miles.den, kTimes, below);
  if (common == 1) {
    SayInBoxAnew("We multiply.");
  } else {
    SayInBoxAnew(Text("{} = {}", MilesQuotient(miles.num, 1) + kDivided + NumStr(common), above) +
                 (below > 1 ? Text(" and {} = {}", rate + kDivided + NumStr(common), below) : "") +
                 Text(", so we reduce by {}.", common));
  }
  ShowResult("", result + ImproperAndMixed(gap_.Hours()));
}

void TwoVehiclesExplanation::ExplainGapAtStart() {
  Motion headStart;
  headStart.rate = vehicles_.firstRate;
  headStart.minutes = vehicles_.minutes;
  SayInBoxAnew(R"(How large is the gap when B leaves?  We use the formula \r)" + kFormula +
               R"(\z.)");
  PageEnd();
  HideTable();
  FindDistance(headStart);
  roads_.ShowGap(MilesText(vehicles_.GapAtStart()));
  PageEnd();
}

void TwoVehiclesExplanation::ExplainGapThatStays() {
  StartStep(
      Text("The gap is {} when B leaves.  Does it grow, shrink or stay when B follows at the "
           "same rate?",
           MilesText(vehicles_.GapAtStart())));
  PageEnd();
  roads_.GoTo(MilesOf(firstMiles_), MilesOf(secondMiles_));
  roads_.ShowGap(MilesText(vehicles_.GapAtStart()));
  SayInBoxAnew(Text("In each hour both go {}.  So the gap stays, also after {}.",
                    MilesText({vehicles_.firstRate, 1}), DurationText(vehicles_.laterMinutes)));
  PageEnd();
}

void TwoVehiclesExplanation::ExplainGapThatChanges() {
  const bool grows = !vehicles_.Follows();
  StartStep(Text("In each hour A goes {}, and B {}.  How does the gap change?",
                 MilesText({vehicles_.firstRate, 1}), MilesText({vehicles_.secondRate, 1})));
  PageEnd();
  if (grows) HideTable();
  const int larger = grows ? vehicles_.firstRate : vehicles_.secondRate;
  const int other = grows ? vehicles_.secondRate : vehicles_.firstRate;
  SayInBoxAnew(
      grows ? "They go in opposite directions, so the gap grows.  We add the rates.  Let r be the "
              "sum and d the gap."
            : "B is faster, so the gap shrinks.  We subtract the rates.  Now r is the difference, "
              "and d is the gap.");
  ShowAt(kRateRow, Text("r = {} {} {} = {}", larger, grows ? "+" : "-", other, gap_.rate),
         kWorkCol);
  PageEnd();
}

void TwoVehiclesExplanation::ExplainFormula() {
  const std::string wanted = "Since we want to find the " + NameOf(gap_.asked);
  const std::string formula = R"(the formula \r)" + kFormula + R"(\z)";
  if (AsksTime()) {
    StartStep(wanted + ", we should rewrite " + formula + ".", kFormulaRow);
    SayInBox("We divide both sides by r.");
    ShowAt(kFormulaRow, WithoutBreaks("t = d " + tutor::Divided + " r"), kWorkCol);
    PageEnd();
    FindTime();
  } else {
    StartStep(wanted + ", we use " + formula + ".", kFormulaRow);
    ShowAt(kFormulaRow, kFormula, kWorkCol);
    PageEnd();
    FindDistance(gap_);
  }
  PageEnd();
}

void TwoVehiclesExplanation::ExplainMinutes() {
  const int minutes = gap_.minutes % kMinutesOfHour;
  if (!AsksTime() || minutes == 0) return;
  StartStep(
      Text("The time is {}.  We turn the part of an hour into minutes.", HoursText(gap_.Hours())));
  ShowAt(kWorkRow, Text("{} {} 60 = {}", MixedText(HoursOf(minutes)), tutor::Times, minutes),
         kWorkCol);
  PageEnd();
}

// The whole table: how long did each of them travel, and how far?
void TwoVehiclesExplanation::Check() {
  ClearRows(kRateRow, kBoxRow - kRateRow);
  ShowJourneyTable(kTableRow, vehicles_.name);
  FillJourney(Journey::A, NumStr(vehicles_.firstRate), MixedText(firstHours_),
              MilesNumber(firstMiles_), Blue);
  FillJourney(Journey::B, NumStr(vehicles_.secondRate), MixedText(secondHours_),
              MilesNumber(secondMiles_), Blue);
  if (vehicles_.kind == TwoVehiclesKind::CatchUp)
    roads_.GoTo(MilesOf(firstMiles_), MilesOf(secondMiles_));
  if (vehicles_.kind == TwoVehiclesKind::DistanceApart) roads_.ShowGap(MilesText(gap_.Distance()));
  SayInBoxAnew(CheckWords());
  PageEnd();
}

std::string TwoVehiclesExplanation::CheckWords() const {
  const std::string first = MilesNumber(firstMiles_);
  const std::string second = MilesNumber(secondMiles_);
  const std::string gap = MilesNumber(gap_.Distance());
  switch (vehicles_.kind) {
    case TwoVehiclesKind::CatchUp:
      return Text("Check:  A travels {} longer.  Both are {} from {}.  The gap is gone.",
                  DurationText(vehicles_.minutes), MilesText(firstMiles_), vehicles_.town);
    case TwoVehiclesKind::SameRate:
      return Text("Check:  A travels {} longer than B.  The gap is {}.",
                  DurationText(vehicles_.minutes), first + " - " + second + " = " + gap);
    default:
      return Text("Check:  the two distances add up to the gap.  {}.",
                  first + " + " + second + " = " + gap);
  }
}

void TwoVehiclesExplanation::TellAnswer() {
  SayInBoxAnew("We have found what we were looking for.");
  SayInBox(R"(The answer is:  \r)" + RightText(problem_) + R"(\z)");
}

}  // namespace

void ExplainTwoVehicles(const TwoVehicles& vehicles, const Problem& problem) {
  TwoVehiclesExplanation(vehicles, problem).Explain();
}

}  // namespace course::stories
