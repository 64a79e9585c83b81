// The student can find when one vehicle catches up with another, and when two that go in opposite
// directions are so far apart, or how far.  Each time the question is: how fast does the gap
// between them change?
#include "lessons/families/stories/durations.h"
#include "lessons/families/stories/journey_table.h"
#include "lessons/families/stories/story_words.h"
#include "lessons/families/stories/two_roads.h"
#include "lessons/families/stories/two_vehicles.h"
#include "lessons/families/stories/two_vehicles_explanation.h"
#include "lessons/lesson.h"

namespace course {
namespace {

using namespace stories;

using platform::colour::Blue;

const std::string kTimes = " " + tutor::Times + " ";
const std::string kDivided = " " + tutor::Divided + " ";
constexpr double kLook = 1;  // seconds

// --- Teaching screens --------------------------------------------------------

void OppositeDirections() {
  NewScreen();
  SayAt(2,
        "Two trains leave Northton at the same time in opposite directions.  A goes at 40 mph and "
        R"(B at 60 mph.  The distance between them is the \cgap\z.)");
  PageEnd();
  TwoRoads roads(8, RoadsGo::OppositeWays, 120, 180);
  roads.Draw("Northton");
  SayAt(12, "How large is the gap after 1 hour?");
  PageEnd();
  roads.GoTo(40, 60);
  roads.ShowGap("100 miles");
  Say(Text(R"(The gap grows by {} miles in each hour.  We \yadd the rates\z.)", "40 + 60 = 100"));
  Say(R"(\yTry it:\z  And after 3 hours?)");
  PageEnd();
  roads.GoTo(80, 120);
  roads.ShowGap("200 miles");
  Delay(kLook);
  roads.GoTo(120, 180);
  roads.ShowGap("300 miles");
  Say(Text("The gap is {} miles:  120 miles to the left, and 180 to the right.",
           "100" + kTimes + "3 = 300"));
  PageEnd();
}

void DistanceApart() {
  NewScreen();
  SayAt(2,
        "Two cars leave in opposite directions, at 35 mph and 45 mph.  How far apart "
        "are they after 2 hours & 15 minutes?");
  ShowJourneyTable(5.5, "Car");
  FillJourney(Journey::A, "35", "", "");
  FillJourney(Journey::B, "45", "", "");
  SayAt(13.5, "What is the time in hours?");
  PageEnd();
  FillJourney(Journey::A, "", "2 1/4", "", Blue);
  FillJourney(Journey::B, "", "2 1/4", "", Blue);
  Say("15 minutes are 15/60 = 1/4 of an hour.");
  Say(R"(\yWatch out:\z  They are not .15 hours.)");
  Say("How fast does the gap grow?");
  PageEnd();
  ClearBelow(13.5);
  SayAt(13.5, Text("It grows by {} miles in each hour.  So r is 80 mph:", "35 + 45 = 80"));
  Show(WithoutBreaks("d = r " + tutor::Dot + " t = 80" + kTimes + "2 1/4 = 80" + kTimes +
                     "9/4 = 180"));
  Say(R"(\yTry it:\z  How far does each car go?)");
  PageEnd();
  FillJourney(Journey::A, "", "", "78 3/4", Blue);
  FillJourney(Journey::B, "", "", "101 1/4", Blue);
  ClearBelow(19.1);
  SayAt(19.3,
        Text("{} and {}.", "35" + kTimes + "2 1/4 = 78 3/4", "45" + kTimes + "2 1/4 = 101 1/4"));
  AddLine(Text("Both ways together make the gap:  {}", "78 3/4 + 101 1/4 = 180."));
  PageEnd();
}

void TimeApart() {
  NewScreen();
  SayAt(2,
        "Two planes leave Eastville at the same time in opposite directions.  One goes at 200 mph "
        "and the other at 300 mph.  When will they be 1250 miles apart?");
  PageEnd();
  PaperBox(
      {"Kim:  1250" + kDivided + "100 = 12 1/2 hours",
       "Lee:  1250" + kDivided + "200 = 6 1/4 hours", "Max:  1250" + kDivided + "250 = 5 hours"},
      6.5);
  Say("Who is right?");
  PageEnd();
  ClearBelow(10);
  SayAt(10.5,
        "Nobody.  Kim subtracts the rates.  Lee counts one plane only, and Max takes the mean of "
        "the rates.");
  Say(R"(\yTry it:\z  What should we divide by?)");
  PageEnd();
  Say(Text("By {}.  The gap grows by 500 miles in each hour:", "200 + 300 = 500"));
  Show("t = d/r = 1250/500 = 5/2 = 2 1/2");
  Say("It takes 2 hours & 30 minutes.");
  PageEnd();
}

void SameRate() {
  NewScreen();
  SayAt(2,
        "Car A left Westville 2 hours ago.  Its rate is 40 mph.  Now car B leaves and follows it "
        R"(at the same rate.  How large is A's \chead start\z?)");
  PageEnd();
  TwoRoads roads(6.5, RoadsGo::SameWay, 200, 200);
  roads.Draw("");
  roads.Place(80, 0);
  roads.ShowGap("80 miles");
  SayAt(11, Text("The gap is {}.  And in 3 hours?", "40" + kTimes + "2 = 80"));
  PageEnd();
  roads.GoTo(200, 120);
  roads.ShowGap("80 miles");
  Say(R"(Both go 120 miles, so the gap \ystays\z.)");
  Say(Text(R"(\yWatch out:\z  The gap is not {}.)", "40" + kTimes + "5 = 200"));
  AddLine("A is 200 miles from Westville, B is 120.");
  PageEnd();
  ClearBelow(11);
  SayAt(
      11,
      R"(\yTry it:\z  A train at 60 mph left 1 hour & 30 minutes ago.  Another one follows at 60 )"
      "mph.  How far apart are they in 4 hours?");
  PageEnd();
  Show("60" + kTimes + "1 1/2 = 60" + kTimes + "3/2 = 90");
  Say("They are 90 miles apart, now and in 4 hours.  Only the head start counts.");
  PageEnd();
}

void CatchingUp() {
  NewScreen();
  SayAt(2,
        "Train A left Northton 2 hours ago.  Its rate is 40 mph.  Now train B leaves and follows "
        "it at 60 mph.");
  PageEnd();
  TwoRoads roads(6.5, RoadsGo::SameWay, 240, 240);
  roads.Draw("");
  roads.Place(80, 0);
  roads.ShowGap("80 miles");
  SayAt(11, "How large is the gap in 1 hour?");
  PageEnd();
  roads.GoTo(120, 60);
  roads.ShowGap("60 miles");
  Say(Text(R"(B gains 20 miles in each hour.  We \ysubtract the rates\z:  {})",
           "60 - 40 = 20 mph."));
  Say(R"(\yTry it:\z  When does B catch up with A?)");
  PageEnd();
  roads.GoTo(160, 120);
  roads.ShowGap("40 miles");
  Delay(kLook);
  roads.GoTo(240, 240);
  roads.ShowGap("no gap");
  Say(Text("The gap is 80 miles, and 20 less in each hour.  It is gone after {} hours.",
           "80" + kDivided + "20 = 4"));
  PageEnd();
}

void CheckCatchingUp() {
  NewScreen();
  SayAt(
      2,
      "Check:  B goes at 60 mph for 4 hours.  How long is A on its way, and how far does each one "
      "go?");
  ShowJourneyTable(5.3, "Train");
  FillJourney(Journey::A, "40", "", "");
  FillJourney(Journey::B, "60", "4", "");
  PageEnd();
  FillJourney(Journey::A, "", "6", "240", Blue);
  FillJourney(Journey::B, "", "", "240", Blue);
  SayAt(12.8, "A goes for 2 hours more.  Both go 240 miles.  There B catches up.");
  Say(R"(\yTry it:\z  Kim divides 80 miles by 100, and Lee by 60.  What is wrong?)");
  PageEnd();
  Say("Kim adds the rates.  Lee forgets that A goes on, too.");
  Say(R"(\yWatch out:\z  The answer is 4 hours, not 6.  It counts from now, when B leaves.)");
  PageEnd();
}

void CatchingUpInMinutes() {
  NewScreen();
  SayAt(2,
        "A car at 40 mph left 1 hour & 30 minutes ago.  Now a second one follows it at 65 mph.  "
        "When will it catch up?");
  Say("First:  how large is the gap now?");
  PageEnd();
  Show("d = 40" + kTimes + "1 1/2 = 40" + kTimes + "3/2 = 60");
  Say("The gap is 60 miles.  How fast does it shrink?");
  PageEnd();
  Say(Text("It shrinks by {} miles in each hour:", "65 - 40 = 25"));
  Show("t = d/r = 60/25 = 12/5 = 2 2/5");
  Say(R"(\yTry it:\z  How many minutes are 2/5 hour?)");
  PageEnd();
  ClearBelow(5.5);
  ShowAt(7, "t = 60/25 = 2 2/5 = 2.4");
  Show("2/5" + kTimes + "60 = 24");
  Say("It takes 2 hours & 24 minutes.");
  Say(R"(\yWatch out:\z  .4 hours are not 40 minutes.)");
  PageEnd();
}

// Below the last problem.
void AddOrSubtract() {
  RuleBox("How Fast Does the Gap Change?",
          {"Opposite directions:  add the rates.", "One follows:  subtract the rates."});
  GoBelow();
  AddLine(R"(\yTry it:\z  What if the rates are equal?)");
  PageEnd();
  AddLine(Text("One follows:  {}, so it stays.", "70 - 70 = 0"));
  PageEnd();
}

// --- The lesson --------------------------------------------------------------

class AdvancedDistanceRateTimeProblems final : public LessonScript {
 public:
  using LessonScript::LessonScript;

 private:
  std::vector<Screen> Screens() override {
    return {{OppositeDirections, DistanceApart, TimeApart, SameRate, CatchingUp, CheckCatchingUp,
             CatchingUpInMinutes, AddOrSubtract}};
  }
  void DrawProblem(RandomStream& random) override;
  void ShowProblem() override;
  void ExplainProblem() override;

  TwoVehicles vehicles_;
};

// --- Problem -----------------------------------------------------------------

void AdvancedDistanceRateTimeProblems::DrawProblem(RandomStream& random) {
  vehicles_ = TwoVehicles::Draw(random);
  problem.question = vehicles_.Question();
  FillChoices(vehicles_, problem, random);
}

void AdvancedDistanceRateTimeProblems::ShowProblem() {
  SayAt(5, OneParagraph(problem.question));
  // "11 hours & 45 minutes" is long.
  const bool isTime = vehicles_.Relative().asked == MotionPart::Time;
  ShowAnswersInTwoColumns(problem, {.row = 12, .width = 19, .fontSize = isTime ? 13.0 : 18.0});
}

// --- Worked explanation ------------------------------------------------------

void AdvancedDistanceRateTimeProblems::ExplainProblem() {
  ExplainTwoVehicles(vehicles_, problem);
}

const LessonRegistration<AdvancedDistanceRateTimeProblems> kRegistration(
    "Advanced Distance-Rate-Time Problems");

}  // namespace
}  // namespace course
