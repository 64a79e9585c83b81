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
  Say(R"(\yWatch out:\z  They are not 0.15 hours.  And do not drop them or count 3 hours.)");
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
  ClearBelow(13.5);
  ShowAt(14.3, "35" + kTimes + "9/4 = 315/4 = 78 3/4");
  Show("45" + kTimes + "9/4 = 405/4 = 101 1/4");
  Say("The two distances add up to the gap:  it is 180 miles.");
  PageEnd();
}

void TimeApart() {
  NewScreen();
  SayAt(2,
        "Two planes leave Eastville in opposite directions, at 200 mph and 300 mph.  When will "
        "they be 1,250 miles apart?");
  SayAt(6, "How fast does the gap grow?");
  PageEnd();
  ClearBelow(5.5);
  PaperBox(
      {"Kim:  1,250" + kDivided + "100 = 12 1/2 hours",
       "Lee:  1,250" + kDivided + "200 = 6 1/4 hours", "Max:  1,250" + kDivided + "250 = 5 hours"},
      5.5);
  Say("Who is right?");
  PageEnd();
  ClearBelow(9.5);
  SayAt(9.5,
        "Nobody.  Kim subtracts the rates.  Lee counts one plane only, and Max takes the mean of "
        "the rates.");
  Say(R"(\yTry it:\z  What should we divide by?)");
  PageEnd();
  ClearBelow(5.5);
  SayAt(6, Text("We divide by {}, the sum.", "200 + 300 = 500"));
  Say(Text("We divide both sides of {} by r:", WithoutBreaks("d = r " + tutor::Dot + " t")));
  Show("t = d/r = (1,250)/500 = 5/2 = 2 1/2");
  Say("It takes 2 hours & 30 minutes.");
  PageEnd();
  Say(R"(\yWatch out:\z  It is not 300 + 300.  Each plane keeps its own rate.)");
  Say("And do not halve the 1,250 miles:  the 500 mph count both planes already.");
  PageEnd();
}

void TimeApartWithFraction() {
  NewScreen();
  SayAt(2,
        R"(\yTry it:\z  Two cars go at 40 mph and 50 mph in opposite directions.  When are they )"
        "202 1/2 miles apart?");
  SayAt(6, Text("Here r is {}.  What is t?", "40 + 50 = 90"));
  PageEnd();
  Say("To divide by 90, we multiply by 1/90:");
  Show("t = 202 1/2" + kDivided + "90 = 405/2" + kTimes + "1/90");
  Show("  = 405/180 = 9/4 = 2 1/4");
  Say("We reduce by 45:  2 hours & 15 minutes.");
  PageEnd();
}

void SameRate() {
  NewScreen();
  SayAt(2,
        "Car A left Westville 2 hours ago at 40 mph.  Now car B follows it at 40 mph, too.  "
        R"(A has a \chead start\z of 2 hours.)");
  Say("How large is the gap?");
  PageEnd();
  TwoRoads roads(8, RoadsGo::SameWay, 200, 200);
  roads.Draw("");
  roads.Place(80, 0);
  roads.ShowGap("80 miles");
  SayAt(12, Text("{}.  And 3 hours from now?", "40" + kTimes + "2 = 80"));
  PageEnd();
  roads.GoTo(200, 120);
  roads.ShowGap("80 miles");
  Say(R"(Both go 120 miles, so the gap \ystays\z.)");
  Say(Text(R"(\yWatch out:\z  The gap is not {}.)", "40" + kTimes + "5 = 200"));
  AddLine("A is 200 miles from Westville, B is 120.");
  PageEnd();
  ClearBelow(12);
  SayAt(
      12,
      R"(\yTry it:\z  A train at 60 mph left 1 hour & 30 minutes ago.  Another one follows at 60 )"
      "mph.  How far apart are they 4 hours from now?");
  PageEnd();
  Show("60" + kTimes + "1 1/2 = 60" + kTimes + "3/2 = 90");
  Say("The gap from the head start stays:  they are 90 miles apart.");
  PageEnd();
}

void CatchingUp() {
  NewScreen();
  SayAt(2,
        "Train A left Northton 2 hours ago.  Its rate is 40 mph.  Now train B leaves and follows "
        "it at 60 mph.");
  Say("How large is the gap now?");
  PageEnd();
  TwoRoads roads(8, RoadsGo::SameWay, 240, 240);
  roads.Draw("");
  roads.Place(80, 0);
  roads.ShowGap("80 miles");
  SayAt(12, "How large is it 1 hour from now?");
  PageEnd();
  roads.GoTo(120, 60);
  roads.ShowGap("60 miles");
  Say(Text(R"(60 miles:  B gains {} miles in each hour.  We \ysubtract the rates\z.)",
           "60 - 40 = 20"));
  Say(R"(\yTry it:\z  When does B catch up with A?)");
  PageEnd();
  roads.GoTo(160, 120);
  roads.ShowGap("40 miles");
  Delay(kLook);
  roads.GoTo(240, 240);
  roads.ShowGap("no gap");
  Say(Text("The gap is 80 miles now, and 20 less in each hour.  It is gone after {} hours.",
           "80" + kDivided + "20 = 4"));
  PageEnd();
}

void CheckCatchingUp() {
  NewScreen();
  SayAt(2, "Check:  B travels 4 hours, A 2 hours longer.  Both go 240 miles.");
  ShowJourneyTable(4.5, "Train");
  FillJourney(Journey::A, "40", "6", "240");
  FillJourney(Journey::B, "60", "4", "240");
  SayAt(12.5, R"(\yTry it:\z  Kim divides 80 by 100, Lee 80 by 60, Max 40 by 20.  What is wrong?)");
  PageEnd();
  Say("Kim adds the rates.  Lee forgets that A goes on, and Max the head start:  40 miles are the "
      "gap after 1 hour.");
  Say(R"(\yWatch out:\z  It is 4 hours, not 6 or 2.)");
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
  Say(R"(\yWatch out:\z  0.4 hour is not 40 minutes.)");
  PageEnd();
}

void AddOrSubtract() {
  NewScreen();
  RuleBox("How Fast Does the Gap Change?",
          {"Opposite directions:  add the rates.", "One follows:  subtract the rates."},
          {.row = 3});
  Say(R"(\yTry it:\z  And if both go at 70 mph?)");
  PageEnd();
  Say(Text("Opposite directions:  it grows by {} miles in each hour.", "70 + 70 = 140"));
  Say(Text("One follows:  {}.  The gap stays the same.", "70 - 70 = 0"));
  PageEnd();
}

// --- The lesson --------------------------------------------------------------

class AdvancedDistanceRateTimeProblems final : public LessonScript {
 public:
  using LessonScript::LessonScript;

 private:
  std::vector<Screen> Screens() override {
    return {{OppositeDirections, DistanceApart, TimeApart, TimeApartWithFraction, SameRate,
             CatchingUp, CheckCatchingUp, CatchingUpInMinutes, AddOrSubtract}};
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
