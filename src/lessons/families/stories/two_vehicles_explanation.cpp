#include "lessons/families/stories/two_vehicles_explanation.h"

#include <algorithm>
#include <string>
#include <vector>

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
constexpr double kFigureRow = 9.2;
constexpr double kTableRow = 13;
constexpr double kRateRow = 12.6;
constexpr double kWorkRow = 14.8;
constexpr double kSecondWorkRow = 18.3;
constexpr double kPlainWorkRow = 16.3;  // under a line without fractions
constexpr double kBoxRow = 20.7;
constexpr double kWorkCol = 2;
constexpr double kLastCol = 41;

const std::string kFormula = WithoutBreaks("d = r " + tutor::Dot + " t");

double MilesOf(const Fraction& distance) {
  return static_cast<double>(distance.num) / distance.den;
}

// "= 375/2 = 187 1/2", the lines of working from one of them on.
std::string EqualTo(const std::vector<std::string>& lines, std::size_t first) {
  std::string chain;
  for (std::size_t i = first; i < lines.size(); ++i) chain += (i > first ? " = " : "= ") + lines[i];
  return chain;
}

class TwoVehiclesExplanation {
 public:
  TwoVehiclesExplanation(const TwoVehicles& vehicles, const Problem& problem);
  void Explain();

 private:
  void ShowFacts();
  void ExplainHours();
  void ExplainHeadStart();
  void ExplainGapThatStays();
  void ExplainGapThatChanges();
  void ExplainFormula();
  void ExplainMinutes();
  void Check();
  void TellAnswer();

  void StartStep(const std::string& words);
  void HideTable();
  void ShowWorking(const Motion& motion);
  std::string CheckWords() const;

  bool AsksTime() const { return gap_.asked == MotionPart::Time; }
  bool IsSameRate() const { return vehicles_.kind == TwoVehiclesKind::SameRate; }
  std::string Miles(const Fraction& distance) const { return QuantityText(distance, "mile"); }

  const TwoVehicles vehicles_;
  const Problem& problem_;
  const Motion gap_;
  // How long each of them is on its way in the end, and how far it goes.
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
  if (vehicles_.Follows()) ExplainHeadStart();
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

// Words below, and room for new working above them.
void TwoVehiclesExplanation::StartStep(const std::string& words) {
  constexpr double kTop = kWorkRow - 1.2;  // above the numerators
  ClearRows(kTop, kBoxRow - kTop);
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
  FillJourney(Journey::B, NumStr(vehicles_.secondRate), follows ? "0" : time, "");
  SayInBox("Let's summarize what we know.");
  if (follows) {
    roads_.GoTo(MilesOf(vehicles_.HeadStart()), 0);
    SayInBox("B leaves now.  A has a head start.");
  } else {
    roads_.GoTo(MilesOf(firstMiles_), MilesOf(secondMiles_));
    if (AsksTime()) SayInBox("Both go for the same time t.");
    if (!AsksTime()) SayInBox("Both go for the same time.");
  }
  roads_.ShowGap(vehicles_.kind == TwoVehiclesKind::TimeApart ? Miles(gap_.Distance()) : "?");
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

// The numbers of its formula, and under them what they give.
void TwoVehiclesExplanation::ShowWorking(const Motion& motion) {
  const std::vector<std::string> lines = WorkingLines(motion);
  StartStep("We put in the numbers.");
  ShowAt(kWorkRow, LetterOf(motion.asked) + " = " + lines.front(), kWorkCol);
  PageEnd();
  SayInBoxAnew("Simplify the expression to find the " + NameOf(motion.asked) + ".");
  std::string rest = EqualTo(lines, 1);
  if (StackedTextWidth(rest) > kLastCol - kWorkCol) rest = EqualTo(lines, 2);
  const double underSign = kWorkCol + 2;
  const bool isBuiltUp = (lines.front() + rest).find('/') != std::string::npos;
  ShowAt(isBuiltUp ? kSecondWorkRow : kPlainWorkRow, rest,
         std::min(underSign, kLastCol - StackedTextWidth(rest)));
}

void TwoVehiclesExplanation::ExplainHeadStart() {
  Motion headStart;
  headStart.rate = vehicles_.firstRate;
  headStart.minutes = vehicles_.minutes;
  SayInBoxAnew(R"(How large is the gap when B leaves?  We use the formula \r)" + kFormula +
               R"(\z.)");
  PageEnd();
  HideTable();
  ShowWorking(headStart);
  roads_.ShowGap(Miles(vehicles_.HeadStart()));
  PageEnd();
}

void TwoVehiclesExplanation::ExplainGapThatStays() {
  StartStep(
      Text("The gap is {} when B leaves.  Does it grow, shrink or stay when B follows at the "
           "same rate?",
           Miles(vehicles_.HeadStart())));
  PageEnd();
  roads_.GoTo(MilesOf(firstMiles_), MilesOf(secondMiles_));
  roads_.ShowGap(Miles(vehicles_.HeadStart()));
  SayInBoxAnew(Text("In each hour both go {}.  So the gap stays, also after {}.",
                    Miles({vehicles_.firstRate, 1}), DurationText(vehicles_.laterMinutes)));
  PageEnd();
}

void TwoVehiclesExplanation::ExplainGapThatChanges() {
  const bool grows = !vehicles_.Follows();
  StartStep(Text("In each hour A goes {}, and B {}.  How does the gap change?",
                 Miles({vehicles_.firstRate, 1}), Miles({vehicles_.secondRate, 1})));
  PageEnd();
  if (grows) HideTable();
  const int larger = grows ? vehicles_.firstRate : vehicles_.secondRate;
  const int other = grows ? vehicles_.secondRate : vehicles_.firstRate;
  SayInBoxAnew(
      grows ? "They go in opposite directions, so it grows.  We add the rates.  This is r, and the "
              "gap is d."
            : "B is faster, so it shrinks.  We subtract the rates.  This is r, and the gap is d.");
  ShowAt(kRateRow, Text("r = {} {} {} = {}", larger, grows ? "+" : "-", other, gap_.rate),
         kWorkCol);
  PageEnd();
}

void TwoVehiclesExplanation::ExplainFormula() {
  const std::string wanted = "Since we want to find the " + NameOf(gap_.asked);
  const std::string formula = R"(the formula \r)" + kFormula + R"(\z)";
  if (AsksTime()) {
    StartStep(wanted + ", we should rewrite " + formula + ".");
    SayInBox("We divide both sides by r.");
    ShowAt(kWorkRow, WithoutBreaks("t = d " + tutor::Divided + " r"), kWorkCol);
  } else {
    StartStep(wanted + ", we use " + formula + ".");
    ShowAt(kWorkRow, kFormula, kWorkCol);
  }
  PageEnd();
  ShowWorking(gap_);
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

// The whole table: who was how long on the way, and how far did it come?
void TwoVehiclesExplanation::Check() {
  ClearRows(kRateRow - 0.3, kBoxRow - kRateRow + 0.3);
  ShowJourneyTable(kTableRow, vehicles_.name);
  FillJourney(Journey::A, NumStr(vehicles_.firstRate), MixedText(firstHours_),
              MixedText(firstMiles_), Blue);
  FillJourney(Journey::B, NumStr(vehicles_.secondRate), MixedText(secondHours_),
              MixedText(secondMiles_), Blue);
  if (vehicles_.kind == TwoVehiclesKind::CatchUp)
    roads_.GoTo(MilesOf(firstMiles_), MilesOf(secondMiles_));
  if (vehicles_.kind == TwoVehiclesKind::DistanceApart) roads_.ShowGap(Miles(gap_.Distance()));
  SayInBoxAnew(CheckWords());
  PageEnd();
}

std::string TwoVehiclesExplanation::CheckWords() const {
  const std::string first = MixedText(firstMiles_);
  const std::string second = MixedText(secondMiles_);
  const std::string gap = MixedText(gap_.Distance());
  switch (vehicles_.kind) {
    case TwoVehiclesKind::CatchUp:
      return Text(
          "Check:  A goes longer, by its head start.  Both are {} from {}.  The gap is gone.",
          Miles(firstMiles_), vehicles_.town);
    case TwoVehiclesKind::SameRate:
      return Text("Check:  A goes {} longer than B.  The gap is {}.",
                  DurationText(vehicles_.minutes), first + " - " + second + " = " + gap);
    default:
      return Text("Check:  both ways together are the gap.  {}.",
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
