// The student can find the distance, the rate or the time of something that moves, maybe with or
// against a wind or a current, when the other two are known: d = r t and its two other forms.
#include "lessons/families/stories/durations.h"
#include "lessons/families/stories/motion.h"
#include "lessons/families/stories/motion_choices.h"
#include "lessons/lesson.h"

namespace course {
namespace {

using namespace stories;

const std::string kDot = " " + tutor::Dot + " ";
const std::string kDivided = " " + tutor::Divided + " ";

constexpr int kMinutesOfHour = 60;

constexpr int kBoxWidth = 38;  // columns of the white box
constexpr double kWipeSpeed = 10;
constexpr double kFactColumn = 21;
constexpr double kFactsRow = 8.6;   // of an explanation, below the question
constexpr double kStepsRow = 14.2;  // of the white box below the facts
constexpr double kStepsRows = 9;

// --- Teaching screen ---------------------------------------------------------

void TheFormula() {
  NewScreen();
  Locate(3, 1);
  isPrint("Three numbers tell of a motion:");
  WordWrap(R"(  the \cdistance\z d that something goes,)");
  WordWrap(R"(  the \crate\z r at which it goes,)");
  WordWrap(R"(  and the \ctime\z t that it takes.)");
  PageEnd();
  isPrint();
  WordWrap(
      R"(A rate tells how far it goes in \yone\z hour.  50 miles in an hour is written as 50)" +
      tutor::Gap + "mph.");
  PageEnd();
  isPrint();
  WordWrap("A car goes at a rate of 50" + tutor::Gap +
           "mph.  How far does it go in 3 hours?  Think before you go on.");
  PageEnd();
  isPrint();
  isPrint("  in 1 hour     50" + kDot + "1 =  50 miles");
  isPrint("  in 2 hours    50" + kDot + "2 = 100 miles");
  isPrint("  in 3 hours    50" + kDot + "3 = 150 miles");
  PageEnd();
  isPrint();
  isPrint("The distance is the rate times the time:");
  WordWrap(R"(  \yd = r)" + kDot + R"(t\z)");
  PageEnd();
}

// A white box from a row on, for what is worked out beside the text.
void StartBox(double row, double rows) {
  wbPrepare(row, kBoxWidth, rows, platform::colour::White, platform::colour::Black);
  wbShow();
}

void NextBoxPage() {
  wbWipeAndErase(kWipeSpeed);
}

// The two other forms and an example of each, in the box.
void OtherForms() {
  NewScreen();
  WrapAt(3, "The same formula finds the rate, when we know the distance and the time.");
  StartBox(6, 10);
  wbWordWrap("A jogger runs 12 miles in 2 hours.  What is his rate?");
  PageEnd();
  wbisPrint();
  wbWordWrap(R"(  \rd = r)" + kDot + "t");
  wbisPrint("We divide both sides by t:");
  wbisPrint("  r = d" + kDivided + "t");
  PageEnd();
  wbisPrint("  r = 12" + kDivided + "2 = 6");
  wbisPrint("His rate is 6" + tutor::Gap + "mph.");
  PageEnd();
  WrapAt(3, "The same formula finds the time, when we know the distance and the rate.");
  NextBoxPage();
  wbWordWrap("A skater goes 20 miles at a rate of 8" + tutor::Gap + "mph.  How long does it take?");
  PageEnd();
  wbisPrint();
  wbWordWrap(R"(  \rd = r)" + kDot + "t");
  wbisPrint("We divide both sides by r:");
  wbisPrint("  t = d" + kDivided + "r");
  PageEnd();
  wbisPrint("  t = 20" + kDivided + "8 = 5/2 = 2 1/2");
  wbisPrint("It takes 2 1/2 hours.");
  PageEnd();
}

void HoursAndMinutes() {
  NewScreen();
  WrapAt(3, "A rate in miles an hour needs a time in hours.  An hour has 60 minutes:");
  PageEnd();
  isPrint();
  isPrint("  15 minutes = 15/60 = 1/4 of an hour");
  isPrint("  30 minutes = 30/60 = 1/2 of an hour");
  isPrint("  45 minutes = 45/60 = 3/4 of an hour");
  PageEnd();
  isPrint();
  WordWrap("How many hours are 3 hours & 15 minutes?");
  PageEnd();
  isPrint();
  WordWrap(R"(They are \y3 1/4\z hours.)");
  WordWrap(R"(\rThey are not 3.15 hours.\z  That would be 15 hundredths of an hour.)");
  PageEnd();
  isPrint();
  WordWrap("Back from hours to minutes we multiply:");
  isPrint("  3/4 of an hour = 3/4" + kDot + "60 = 45 minutes");
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
  Locate(row, 27);
  isColorPrint(name, colour);
}

// Arrows of two columns for a mile an hour, tip to tail.
void WindAndCurrent() {
  NewScreen();
  WrapAt(3, "A boat sails at 10" + tutor::Gap + R"(mph in still water.  A \ccurrent\z of 2)" +
                tutor::Gap + "mph moves the water, and the boat in it.");
  PageEnd();
  Locate(6.6, 1);
  isPrint("With the current we add:");
  ShowArrow(7.8, 1, 20, "boat", platform::colour::White);
  ShowArrow(8.9, 21, 24, "current", platform::colour::Cyan);
  ShowArrow(10, 1, 24, "10 + 2 = 12", platform::colour::Yellow);
  PageEnd();
  Locate(11.6, 1);
  isPrint("Against the current we subtract:");
  ShowArrow(12.8, 1, 20, "boat", platform::colour::White);
  ShowArrow(13.9, 20, 17, "current", platform::colour::Cyan);
  ShowArrow(15, 1, 16, "10 - 2 = 8", platform::colour::Yellow);
  PageEnd();
  WrapAt(16.6, "A wind does to a plane what a current does to a boat.");
  PageEnd();
  isPrint();
  WordWrap("Now you.  How long does the boat take to go 24 miles against the current?");
  PageEnd();
  isPrint("  t = 24" + kDivided + "8 = 3");
  isPrint("It takes 3 hours.");
  PageEnd();
}

// --- The lesson ------------------------------------------------------------

class DistanceRateTimeProblems final : public LessonScript {
 public:
  using LessonScript::LessonScript;

 private:
  std::vector<Screen> Screens() override {
    return {{TheFormula, OtherForms, HoursAndMinutes, WindAndCurrent}};
  }
  void DrawProblem(RandomStream& random) override;
  void ShowProblem() override;
  void ExplainProblem() override;

  void ShowFacts();
  void ShowFact(const std::string& name, const std::string& value);
  void ExplainDrift();
  void ExplainHours();
  void ExplainFormula();
  void Simplify();
  void ExplainMinutes();
  void ExplainStillRate();
  void Check();
  void CheckDistance();
  void TellAnswer();

  std::string Question() const { return problem.question[0] + "  " + problem.question[1]; }
  Motion motion_;
  double factRow_ = 0;     // where the next fact is printed
  double unknownRow_ = 0;  // where the fact that is asked for stands
};

// --- Generator ---------------------------------------------------------------

void DistanceRateTimeProblems::DrawProblem(RandomStream& random) {
  motion_ = Motion::Draw(random);
  problem.question = motion_.Question();
  FillChoices(motion_, problem, random);
}

// --- Problem page ------------------------------------------------------------

void DistanceRateTimeProblems::ShowProblem() {
  WrapAt(5, Question());
  // "1055 19/20 miles" and "4 hours & 30 minutes" are long.
  const double fontSize = motion_.asked == MotionPart::Time ? 15 : 18;
  picAnswerSetParameters(2, 12, 1, 21, 0, 19, 50, 27, (20 - fontSize) / 2, "", fontSize);
}

// --- Worked explanation ------------------------------------------------------

void DistanceRateTimeProblems::ExplainProblem() {
  ProblemBanner();
  WrapAt(4, Question());
  PageEnd();
  ShowFacts();
  PageEnd();
  StartBox(kStepsRow, kStepsRows);
  ExplainDrift();
  ExplainHours();
  ExplainFormula();
  Simplify();
  ExplainMinutes();
  ExplainStillRate();
  Check();
  TellAnswer();
}

void DistanceRateTimeProblems::ShowFacts() {
  const auto known = [this](MotionPart part, const std::string& text) {
    return part == motion_.asked ? "?" : text;
  };
  factRow_ = kFactsRow + 1.1;
  Locate(kFactsRow, 1);
  isPrint("Let's summarize what we know.");
  const std::string still = motion_.StillText();
  ShowFact("Rate" + still, known(MotionPart::Rate, RateText({motion_.rate, 1})));
  if (motion_.direction != 0)
    ShowFact(motion_.inWater ? "Current" : "Wind",
             RateText({motion_.drift, 1}) + (motion_.direction > 0 ? " (with)" : " (against)"));
  ShowFact("Time", known(MotionPart::Time, DurationText(motion_.minutes)));
  ShowFact("Distance", known(MotionPart::Distance, QuantityText(motion_.Distance(), "mile")));
}

void DistanceRateTimeProblems::ShowFact(const std::string& name, const std::string& value) {
  Locate(factRow_, 1);
  isPrint(name);
  Locate(factRow_, kFactColumn);
  if (value == "?") unknownRow_ = factRow_;
  isColorPrint(value, value == "?" ? platform::colour::Yellow : platform::colour::White);
  ++factRow_;
}

// The rate over the ground; when a rate is asked for, the wind or current has its turn at the end.
void DistanceRateTimeProblems::ExplainDrift() {
  if (motion_.direction == 0 || motion_.asked == MotionPart::Rate) return;
  const bool helps = motion_.direction > 0;
  wbWordWrap("The " + motion_.DriftName() + (helps ? " helps " : " slows ") + motion_.TheVehicle() +
             (helps ? ".  We add" : " down.  We subtract") + " to find how fast " +
             motion_.TheVehicle() + " really goes:");
  wbisPrint("  r = " + NumStr(motion_.rate) + (helps ? " + " : " - ") + NumStr(motion_.drift) +
            " = " + NumStr(motion_.RealRate()));
  PageEnd();
  NextBoxPage();
}

void DistanceRateTimeProblems::ExplainHours() {
  const int minutes = motion_.minutes % kMinutesOfHour;
  if (minutes == 0 || motion_.asked == MotionPart::Time) return;
  wbWordWrap("A rate in miles an hour needs a time in hours.  An hour has 60 minutes:");
  wbisPrint("  " + DurationText(minutes) + " = " + NumStr(minutes) +
            "/60 = " + MixedText(HoursOf(minutes)) + " of an hour");
  wbisPrint("  t = " + HoursText(motion_.Hours()));
  PageEnd();
  NextBoxPage();
}

void DistanceRateTimeProblems::ExplainFormula() {
  const std::string formula = R"(the formula \rd = r)" + kDot + R"(t\z)";
  const std::string wanted = "Since we want to find the " + NameOf(motion_.asked);
  if (motion_.asked == MotionPart::Distance) {
    wbWordWrap(wanted + ", we use " + formula + ".");
    PageEnd();
    return;
  }
  const std::string other =
      LetterOf(motion_.asked == MotionPart::Rate ? MotionPart::Time : MotionPart::Rate);
  wbWordWrap(wanted + ", we should rewrite " + formula + ".");
  wbisPrint("We divide both sides by " + other + ":");
  wbisPrint("  " + LetterOf(motion_.asked) + " = d" + kDivided + other);
  PageEnd();
}

// The numbers in the formula, then line under line what they give.
void DistanceRateTimeProblems::Simplify() {
  const std::vector<std::string> lines = WorkingLines(motion_);
  NextBoxPage();
  wbWordWrap("We put in the numbers:");
  wbisPrint("  " + LetterOf(motion_.asked) + " = " + lines.front());
  PageEnd();
  wbWordWrap("Simplify the expression to find the " + NameOf(motion_.asked) + ":");
  for (std::size_t i = 1; i < lines.size(); ++i) wbisPrint("    = " + lines[i]);
  PageEnd();
  NextBoxPage();
}

void DistanceRateTimeProblems::ExplainMinutes() {
  const int minutes = motion_.minutes % kMinutesOfHour;
  if (motion_.asked != MotionPart::Time || minutes == 0) return;
  wbWordWrap("The time is " + HoursText(motion_.Hours()) +
             ".  We turn the part of an hour into minutes:");
  wbisPrint("  " + MixedText(HoursOf(minutes)) + kDot + "60 = " + NumStr(minutes));
  PageEnd();
  NextBoxPage();
}

void DistanceRateTimeProblems::ExplainStillRate() {
  if (motion_.asked != MotionPart::Rate || motion_.direction == 0) return;
  const bool helps = motion_.direction > 0;
  wbWordWrap(RateText({motion_.RealRate(), 1}) + " is the rate " +
             (helps ? "with the " : "against the ") + motion_.DriftName() + ".  Without it " +
             motion_.TheVehicle() + " is " + RateText({motion_.drift, 1}) +
             (helps ? " slower:" : " faster:"));
  wbisPrint("  " + NumStr(motion_.RealRate()) + (helps ? " - " : " + ") + NumStr(motion_.drift) +
            " = " + NumStr(motion_.rate));
  PageEnd();
  NextBoxPage();
}

// The answer put back into the formula; a distance is compared with those of whole hours.
void DistanceRateTimeProblems::Check() {
  if (motion_.asked == MotionPart::Distance) {
    CheckDistance();
  } else {
    wbWordWrap(R"(Check in \rd = r)" + kDot + R"(t\z:)");
    if (motion_.direction != 0)
      wbisPrint("  r = " + NumStr(motion_.rate) + (motion_.direction > 0 ? " + " : " - ") +
                NumStr(motion_.drift) + " = " + NumStr(motion_.RealRate()));
    wbisPrint("  d = " + NumStr(motion_.RealRate()) + kDot + MixedText(motion_.Hours()) + " = " +
              MixedText(motion_.Distance()));
  }
  PageEnd();
  wbisPrint();
}

void DistanceRateTimeProblems::CheckDistance() {
  const Fraction hours = motion_.Hours();
  const int full = hours.num / hours.den;
  const auto distanceIn = [this](int wholeHours) {
    return QuantityText({motion_.RealRate() * wholeHours, 1}, "mile") + " in " +
           HoursText({wholeHours, 1});
  };
  const std::string distance = MixedText(motion_.Distance());
  if (hours.den == 1)
    wbWordWrap("Check:  " + distance + kDivided + NumStr(full) + " = " +
               NumStr(motion_.RealRate()) + ", the rate.");
  else if (full == 0)
    wbWordWrap("Check:  it is " + distanceIn(1) + ", so in less time it is less.");
  else
    wbWordWrap("Check:  it is " + distanceIn(full) + " and " + distanceIn(full + 1) + ".  " +
               distance + " lies between.");
}

void DistanceRateTimeProblems::TellAnswer() {
  const std::string text = motion_.ValueText(motion_.Answer());
  Locate(unknownRow_, kFactColumn);
  isColorPrint(text, platform::colour::Yellow);
  wbWordWraps("The answer is:  ");
  wbWordWrap(R"(\r)" + text);
  if (problem.correct == 5) {
    PageEnd();
    wbWordWrap("It is not among the choices, so we take:");
    wbWordWrap(std::string(R"(\b)") + kNoneOfTheAbove);
    return;
  }
  wbWordWrap("We have found what we were looking for.");
}

const LessonRegistration<DistanceRateTimeProblems> kRegistration("Distance-Rate-Time Problems");

}  // namespace
}  // namespace course
