// The student can find the distance, the rate or the time of something that moves, maybe with or
// against a wind or a current, when the other two are known: d = r t and its two other forms.
#include <cctype>

#include "lessons/families/stories/durations.h"
#include "lessons/families/stories/motion.h"
#include "lessons/families/stories/motion_choices.h"
#include "lessons/lesson.h"

namespace course {
namespace {

using namespace stories;

constexpr int kMinutesOfHour = 60;

// Rows of an explanation: the facts, the working, and the box with words below it.
constexpr double kFactsRow = 8;
constexpr double kFactColumn = 21;
constexpr double kWorkRow = 14;
constexpr double kSecondWorkRow = 17;
constexpr double kWorkCol = 2;
constexpr double kBoxRow = 19.7;

std::string Product(const std::string& a, const std::string& b) {
  return WithoutBreaks(a + " " + tutor::Dot + " " + b);
}
std::string Quotient(const std::string& a, const std::string& b) {
  return WithoutBreaks(a + " " + tutor::Divided + " " + b);
}
const std::string kFormula = "d = " + Product("r", "t");

// --- Teaching screens --------------------------------------------------------

void TheFormula() {
  const std::string times = " " + tutor::Times + " ";
  NewScreen();
  SayAt(3, "Three numbers tell of a motion:");
  AddLine(R"(  the \cdistance\z d that something goes,)");
  AddLine(R"(  the \crate\z r at which it goes,)");
  AddLine(R"(  and the \ctime\z t that it takes.)");
  PageEnd();
  Say(Text("A rate tells how far it goes in one hour.  50 miles per hour is written as {}.",
           RateText({50, 1})));
  PageEnd();
  Say("A car goes 50 mph.  How far does it go in 3 hours?");
  PageEnd();
  Show("in 1 hour     50" + times + "1 =  50 miles");
  Show("in 2 hours    50" + times + "2 = 100 miles");
  Show("in 3 hours    50" + times + "3 = 150 miles");
  PageEnd();
  Say("So we multiply.  The distance is the rate times the time:");
  RuleBox("The Formula", {kFormula}, {.width = 20});
  PageEnd();
}

void RateFromDistance() {
  NewScreen();
  SayAt(3,
        "The same formula finds the rate.  A jogger runs 12 miles in 2 hours.  What is her rate?");
  Show(kFormula);
  PageEnd();
  Say("t stands beside r.  How do we get r alone?");
  PageEnd();
  Say(R"(We divide both sides by \yt\z:)");
  Show("r = d/t");
  PageEnd();
  Show("r = 12/2 = 6");
  Say("Her rate is 6 mph.  That is 6 miles in each of the 2 hours.");
  PageEnd();
}

void TimeFromDistance() {
  NewScreen();
  SayAt(3,
        "It finds the time, too.  A skater goes 20 miles at a rate of 8 mph.  How long does it "
        "take?");
  Show(kFormula);
  PageEnd();
  Say(R"(We divide both sides by \yr\z:)");
  Show("t = d/r");
  PageEnd();
  Show("t = 20/8 = 5/2 = 2 1/2");
  Say("It takes 2 1/2 hours.  How many minutes are half an hour?");
  PageEnd();
  Say("Half of 60 minutes are 30 minutes.  So it takes 2 hours & 30 minutes.");
  PageEnd();
}

void HoursAndMinutes() {
  NewScreen();
  SayAt(3, "Miles per hour need a time in hours.  An hour has 60 minutes:");
  Show("15 minutes = 15/60 = 1/4 of an hour");
  PageEnd();
  Show("30 minutes = 30/60 = 1/2 of an hour");
  Show("45 minutes = 45/60 = 3/4 of an hour");
  PageEnd();
  Say(R"(\yTry it:\z  How many hours are 3 hours & 15 minutes?)");
  PageEnd();
  Say(R"(They are \y3 1/4\z hours: the 3 stays, and 15 minutes are 1/4 of an hour.)");
  PageEnd();

  NewScreen();
  SayAt(3, R"(\yWatch out:\z  3 hours & 15 minutes are not 3.15 hours.)");
  Say("0.15 would be 15 of 100 parts, but an hour has 60 minutes.");
  PageEnd();
  Say("Back from hours to minutes we multiply by 60:");
  Show("3/4 of an hour = 3/4 " + tutor::Times + " 60 = 45 minutes", 2);
  PageEnd();
  Say(R"(\yTry it:\z  A boat goes 5 mph.  How far does it go in 2 hours & 30 minutes?)");
  PageEnd();
  Show("d = 5 " + tutor::Times + " 2 1/2 = 12 1/2");
  Say("2 hours give 10 miles, and half an hour gives half of 5 miles.");
  PageEnd();
}

// From one column to another, with its name behind all of them.
void ShowArrow(double row, double from, double to, const std::string& name,
               platform::Colour colour) {
  const double length = std::abs(to - from) + 1;
  if (from < to)
    isDrawArrowPointingRightWithColor(row, to, colour, length);
  else
    isDrawArrowPointingLeftWithColor(row, to, colour, length);
  SayAt(row, name, {.col = 27});
}

// Arrows of two columns for a mile per hour, tip to tail.
void WindAndCurrent() {
  NewScreen();
  SayAt(3, R"(A boat sails at 10 mph in still water.  A \ccurrent\z of 2 mph moves the water, and )"
           "the boat in it.");
  PageEnd();
  SayAt(6.5, "With the current we add:");
  ShowArrow(8, 1, 20, "boat", platform::colour::White);
  ShowArrow(9.1, 21, 24, R"(\ccurrent\z)", platform::colour::Cyan);
  ShowArrow(10.2, 1, 24, R"(\y10 + 2 = 12\z)", platform::colour::Yellow);
  PageEnd();
  SayAt(12, "What do we do when it sails against the current?");
  PageEnd();
  SayAt(14, "The current slows it down.  We subtract:");
  ShowArrow(15.5, 1, 20, "boat", platform::colour::White);
  ShowArrow(16.6, 20, 17, R"(\ccurrent\z)", platform::colour::Cyan);
  ShowArrow(17.7, 1, 16, R"(\y10 - 2 = 8\z)", platform::colour::Yellow);
  PageEnd();
  SayAt(19.5, R"(\yTry it:\z  How long does it take to go 24 miles against the current?)");
  PageEnd();
  SayAt(22, Text("t = {}.  It takes 3 hours.", Quotient("24", "8") + " = 3"));
  PageEnd();
}

void RateInStillWater() {
  NewScreen();
  SayAt(3,
        "A boat goes 24 miles in 2 hours with a current of 2 mph.  What is its rate in still "
        "water?");
  PageEnd();
  Say(Text("First we ask how fast it {} goes:", Words{R"(\yreally\z)"}));
  Show("r = d/t = 24/2 = 12");
  PageEnd();
  Say("This is boat and current together.  Do we add the 2 mph, or subtract?");
  ShowArrow(15.2, 1, 24, R"(\y12\z)", platform::colour::Yellow);
  ShowArrow(16.3, 21, 24, R"(\ccurrent: 2\z)", platform::colour::Cyan);
  PageEnd();
  ShowArrow(17.4, 1, 20, "boat: ?", platform::colour::White);
  SayAt(19, "The current helped.  Without it the boat is slower, so we subtract:");
  Show("12 - 2 = 10");
  PageEnd();
  AddLine("Its rate in still water is 10 mph.");
  PageEnd();

  NewScreen();
  SayAt(3, R"(A \cwind\z does to a plane what a current does to a boat.)");
  PageEnd();
  Say(R"(\yTry it:\z  A bird flies 30 miles in 2 hours against a wind of 5 mph.  What is its rate )"
      "in still air?");
  PageEnd();
  Show("r = 30/2 = 15");
  Say("It really goes 15 mph.  The wind slowed it down, so in still air it is faster:");
  Show("15 + 5 = 20");
  PageEnd();
  Say(R"(Check:  20 - 5 = 15, and 15 mph for 2 hours are 30 miles.)");
  PageEnd();
}

// --- The lesson ------------------------------------------------------------

class DistanceRateTimeProblems final : public LessonScript {
 public:
  using LessonScript::LessonScript;

 private:
  std::vector<Screen> Screens() override {
    return {{TheFormula, RateFromDistance, TimeFromDistance, HoursAndMinutes, WindAndCurrent,
             RateInStillWater}};
  }
  void DrawProblem(RandomStream& random) override;
  void ShowProblem() override;
  void ExplainProblem() override;

  void StartStep(const std::string& words);
  void ShowFacts();
  void ShowFact(MotionPart part, const std::string& value);
  void ShowFact(const std::string& name, const std::string& value);
  void ExplainDrift();
  void ExplainHours();
  void ExplainFormula();
  void ExplainMinutes();
  void ExplainStillRate();
  void Check();
  void TellAnswer();

  std::string Question() const { return problem.question[0] + "  " + problem.question[1]; }
  std::string RealRateSum() const;
  std::string DistanceCheck() const;
  Motion motion_;
  double factRow_ = 0;  // where the next fact stands
};

// --- Generator ---------------------------------------------------------------

void DistanceRateTimeProblems::DrawProblem(RandomStream& random) {
  motion_ = Motion::Draw(random);
  problem.question = motion_.Question();
  FillChoices(motion_, problem, random);
}

// --- Problem page ------------------------------------------------------------

void DistanceRateTimeProblems::ShowProblem() {
  SayAt(5, Question());
  // "4 hours & 30 minutes" is long.
  const bool isTime = motion_.asked == MotionPart::Time;
  ShowAnswersInTwoColumns(problem, {.row = 12, .width = 19, .fontSize = isTime ? 15.0 : 18.0});
}

// --- Worked explanation ------------------------------------------------------

void DistanceRateTimeProblems::ExplainProblem() {
  ProblemBanner();
  SayAt(4, Question());
  PageEnd();
  ShowFacts();
  WhiteBox({.row = kBoxRow});
  ExplainDrift();
  ExplainHours();
  ExplainFormula();
  ExplainMinutes();
  ExplainStillRate();
  Check();
  TellAnswer();
}

// Words below, and room for new working above them.
void DistanceRateTimeProblems::StartStep(const std::string& words) {
  ClearRows(kWorkRow - 0.9, kBoxRow - kWorkRow + 1);
  SayInBoxAnew(words);
}

void DistanceRateTimeProblems::ShowFacts() {
  SayAt(kFactsRow, "Let's summarize what we know.");
  factRow_ = kFactsRow + 1;
  const bool drifts = motion_.direction != 0;
  if (motion_.asked != MotionPart::Rate) ShowFact(MotionPart::Rate, RateText({motion_.rate, 1}));
  if (drifts)
    ShowFact(motion_.inWater ? "Current" : "Wind",
             RateText({motion_.drift, 1}) + (motion_.direction > 0 ? " (with)" : " (against)"));
  if (motion_.asked != MotionPart::Time) ShowFact(MotionPart::Time, DurationText(motion_.minutes));
  if (motion_.asked != MotionPart::Distance)
    ShowFact(MotionPart::Distance, QuantityText(motion_.Distance(), "mile"));
  if (drifts) PageEnd();
  ShowFact(motion_.asked, R"(\y?\z)");
  PageEnd();
}

void DistanceRateTimeProblems::ShowFact(MotionPart part, const std::string& value) {
  std::string name = NameOf(part);
  name[0] = static_cast<char>(std::toupper(name[0]));
  ShowFact(part == MotionPart::Rate ? name + motion_.StillText() : name, value);
}

void DistanceRateTimeProblems::ShowFact(const std::string& name, const std::string& value) {
  SayAt(factRow_, name);
  SayAt(factRow_, value, {.col = kFactColumn});
  ++factRow_;
}

// The rate over the ground; when a rate is asked for, the wind or current has its turn at the end.
void DistanceRateTimeProblems::ExplainDrift() {
  if (motion_.direction == 0 || motion_.asked == MotionPart::Rate) return;
  const bool helps = motion_.direction > 0;
  StartStep("The " + motion_.DriftName() + (helps ? " helps " : " slows ") + motion_.TheVehicle() +
            (helps ? "." : " down.") + "  Do we add or subtract to find how fast " +
            motion_.TheVehicle() + " really goes?");
  PageEnd();
  ShowAt(kWorkRow, "r = " + RealRateSum(), kWorkCol);
  SayInBoxAnew(Text("We {}.  The real rate is {}.", Words{helps ? "add" : "subtract"},
                    RateText({motion_.RealRate(), 1})));
  PageEnd();
}

void DistanceRateTimeProblems::ExplainHours() {
  const int minutes = motion_.minutes % kMinutesOfHour;
  if (minutes == 0 || motion_.asked == MotionPart::Time) return;
  StartStep("Miles per hour need a time in hours.  An hour has 60 minutes.");
  ShowAt(kWorkRow,
         Text("{} = {}/60 = {} of an hour", DurationText(minutes), minutes,
              MixedText(HoursOf(minutes))),
         kWorkCol);
  if (motion_.minutes > kMinutesOfHour)
    ShowAt(kSecondWorkRow, "t = " + MixedText(motion_.Hours()), kWorkCol);
  PageEnd();
}

void DistanceRateTimeProblems::ExplainFormula() {
  const std::string name = NameOf(motion_.asked);
  const std::string letter = LetterOf(motion_.asked);
  const std::string formula = R"(the formula \r)" + kFormula + R"(\z)";
  const std::string wanted = "Since we want to find the " + name;
  if (motion_.asked == MotionPart::Distance) {
    StartStep(wanted + ", we use " + formula + ".");
    ShowAt(kWorkRow, kFormula, kWorkCol);
  } else {
    const std::string other =
        LetterOf(motion_.asked == MotionPart::Rate ? MotionPart::Time : MotionPart::Rate);
    StartStep(wanted + ", we should rewrite " + formula + ".");
    SayInBox("We divide both sides by " + other + ".");
    ShowAt(kWorkRow, letter + " = " + Quotient("d", other), kWorkCol);
  }
  PageEnd();
  const std::vector<std::string> lines = WorkingLines(motion_);
  StartStep("We put in the numbers.");
  ShowAt(kWorkRow, letter + " = " + lines.front(), kWorkCol);
  PageEnd();
  SayInBoxAnew("Simplify the expression to find the " + name + ".");
  std::string rest;
  for (std::size_t i = 1; i < lines.size(); ++i) rest += (i > 1 ? " = " : "= ") + lines[i];
  const double underSign = kWorkCol + 2;
  ShowAt(kSecondWorkRow, rest, std::min(underSign, 41.0 - StackedTextWidth(rest)));
  PageEnd();
}

void DistanceRateTimeProblems::ExplainMinutes() {
  const int minutes = motion_.minutes % kMinutesOfHour;
  if (motion_.asked != MotionPart::Time || minutes == 0) return;
  StartStep(Text("The time is {}.  We turn the part of an hour into minutes.",
                 HoursText(motion_.Hours())));
  ShowAt(kWorkRow, Text("{} {} 60 = {}", MixedText(HoursOf(minutes)), tutor::Times, minutes),
         kWorkCol);
  PageEnd();
}

void DistanceRateTimeProblems::ExplainStillRate() {
  if (motion_.asked != MotionPart::Rate || motion_.direction == 0) return;
  const bool helps = motion_.direction > 0;
  StartStep(Text("{} is the rate {} the {}.  Without it {} is slower or faster?",
                 RateText({motion_.RealRate(), 1}), Words{helps ? "with" : "against"},
                 motion_.DriftName(), Words{motion_.TheVehicle()}));
  PageEnd();
  SayInBoxAnew(Text("Without it {} is {} {}.", Words{motion_.TheVehicle()},
                    RateText({motion_.drift, 1}), Words{helps ? "slower" : "faster"}));
  ShowAt(kWorkRow,
         Text("{} {} {} = {}", motion_.RealRate(), helps ? "-" : "+", motion_.drift, motion_.rate),
         kWorkCol);
  PageEnd();
}

// The answer put back into the formula; a distance is compared with those of whole hours.
void DistanceRateTimeProblems::Check() {
  if (motion_.asked == MotionPart::Distance) {
    StartStep(DistanceCheck());
  } else {
    StartStep(R"(Check in \r)" + kFormula + R"(\z.)");
    if (motion_.direction != 0) ShowAt(kWorkRow, "r = " + RealRateSum(), kWorkCol);
    ShowAt(kSecondWorkRow,
           Text("d = {} {} {} = {}", motion_.RealRate(), tutor::Times, MixedText(motion_.Hours()),
                MixedText(motion_.Distance())),
           kWorkCol);
  }
  PageEnd();
}

std::string DistanceRateTimeProblems::RealRateSum() const {
  return Text("{} {} {} = {}", motion_.rate, motion_.direction > 0 ? "+" : "-", motion_.drift,
              motion_.RealRate());
}

std::string DistanceRateTimeProblems::DistanceCheck() const {
  const Fraction hours = motion_.Hours();
  const int full = hours.num / hours.den;
  const auto distanceIn = [this](int wholeHours) {
    return QuantityText({motion_.RealRate() * wholeHours, 1}, "mile") + " in " +
           HoursText({wholeHours, 1});
  };
  const std::string distance = MixedText(motion_.Distance());
  if (hours.den == 1)
    return "Check:  " + Quotient(distance, NumStr(full)) + " = " + NumStr(motion_.RealRate()) +
           ", the rate.";
  if (full == 0) return "Check:  it is " + distanceIn(1) + ", so in less time it is less.";
  return "Check:  it is " + distanceIn(full) + " and " + distanceIn(full + 1) + ".  " + distance +
         " lies between.";
}

void DistanceRateTimeProblems::TellAnswer() {
  const std::string text = motion_.ValueText(motion_.Answer());
  SayInBoxAnew(R"(The answer is:  \r)" + text + R"(\z)");
  if (RightIsHidden(problem))
    SayInBox(std::string(R"(It is not among the choices, so the right one is \r)") +
             kNoneOfTheAbove + R"(\z.)");
  else
    SayInBox("We have found what we were looking for.");
}

const LessonRegistration<DistanceRateTimeProblems> kRegistration("Distance-Rate-Time Problems");

}  // namespace
}  // namespace course
