#include "lessons/families/stories/motion_explanation.h"

#include <algorithm>
#include <cctype>
#include <string>
#include <vector>

#include "display/stacked_text.h"
#include "display/wiper_box.h"
#include "engine/choices.h"
#include "engine/header.h"
#include "engine/page.h"
#include "lessons/families/stories/durations.h"
#include "lessons/page/boxes.h"
#include "lessons/page/page_lines.h"
#include "lessons/page/say.h"
#include "lessons/page/show.h"
#include "mathkit/expressions.h"
#include "mathkit/fraction.h"
#include "mathkit/tutor_codes.h"

namespace course::stories {
namespace {

using namespace page;

constexpr int kMinutesOfHour = 60;

// Rows: the facts, the working under them, and the box with words below it.
constexpr double kFactsRow = 8;
constexpr double kFactColumn = 21;
constexpr double kWorkRow = 14.5;
constexpr double kSecondWorkRow = 17.5;
constexpr double kWorkCol = 2;
constexpr double kBoxRow = 20.2;

std::string Quotient(const std::string& a, const std::string& b) {
  return WithoutBreaks(a + " " + tutor::Divided + " " + b);
}
const std::string kFormula = WithoutBreaks("d = r " + tutor::Dot + " t");

class MotionExplanation {
 public:
  MotionExplanation(const Motion& motion, const Problem& problem)
      : motion_(motion), problem_(problem) {}
  void Explain();

 private:
  void StartStep(const std::string& words);
  void ShowFacts();
  void ShowFact(MotionPart part, const std::string& value);
  void ShowFact(const std::string& name, const std::string& value);
  void FillInAnswer() const;
  void ExplainDrift();
  void ExplainHours();
  void ExplainFormula();
  void ExplainMinutes();
  void ExplainStillRate();
  void Check();
  void TellAnswer();

  std::string RealRateSum() const;
  std::string DistanceCheck() const;

  const Motion motion_;
  const Problem& problem_;
  double factRow_ = 0;  // where the next fact stands
};

void MotionExplanation::Explain() {
  ProblemBanner();
  SayAt(4, problem_.question[0] + "  " + problem_.question[1]);
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
void MotionExplanation::StartStep(const std::string& words) {
  constexpr double kTop = kWorkRow - 1.5;  // above the numerators
  ClearRows(kTop, kBoxRow - kTop);
  SayInBoxAnew(words);
}

void MotionExplanation::ShowFacts() {
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

void MotionExplanation::ShowFact(MotionPart part, const std::string& value) {
  std::string name = NameOf(part);
  name[0] = static_cast<char>(std::toupper(name[0]));
  ShowFact(part == MotionPart::Rate ? name + motion_.StillText() : name, value);
}

void MotionExplanation::ShowFact(const std::string& name, const std::string& value) {
  SayAt(factRow_, name);
  SayAt(factRow_, value, {.col = kFactColumn});
  ++factRow_;
}

// In place of its question mark.
void MotionExplanation::FillInAnswer() const {
  SayAt(factRow_ - 1, R"(\y)" + motion_.ValueText(motion_.Answer()) + R"(\z)",
        {.col = kFactColumn});
}

// The rate over the ground; when a rate is asked for, the wind or current has its turn at the end.
void MotionExplanation::ExplainDrift() {
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

void MotionExplanation::ExplainHours() {
  const int minutes = motion_.minutes % kMinutesOfHour;
  if (minutes == 0 || motion_.asked == MotionPart::Time) return;
  StartStep("A rate in miles per hour needs a time in hours.  An hour has 60 minutes.");
  ShowAt(kWorkRow,
         Text("{} = {}/60 = {} of an hour", DurationText(minutes), minutes,
              MixedText(HoursOf(minutes))),
         kWorkCol);
  if (motion_.minutes > kMinutesOfHour)
    ShowAt(kSecondWorkRow, "t = " + MixedText(motion_.Hours()), kWorkCol);
  PageEnd();
}

void MotionExplanation::ExplainFormula() {
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

void MotionExplanation::ExplainMinutes() {
  const int minutes = motion_.minutes % kMinutesOfHour;
  if (motion_.asked != MotionPart::Time || minutes == 0) return;
  StartStep(Text("The time is {}.  We turn the part of an hour into minutes.",
                 HoursText(motion_.Hours())));
  ShowAt(kWorkRow, Text("{} {} 60 = {}", MixedText(HoursOf(minutes)), tutor::Times, minutes),
         kWorkCol);
  PageEnd();
}

void MotionExplanation::ExplainStillRate() {
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

// The answer put back into the formula; a distance is added up from its parts, under its working.
void MotionExplanation::Check() {
  FillInAnswer();
  if (motion_.asked == MotionPart::Distance) {
    SayInBoxAnew(DistanceCheck());
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

std::string MotionExplanation::RealRateSum() const {
  return Text("{} {} {} = {}", motion_.rate, motion_.direction > 0 ? "+" : "-", motion_.drift,
              motion_.RealRate());
}

std::string MotionExplanation::DistanceCheck() const {
  const int rate = motion_.RealRate();
  const int full = motion_.minutes / kMinutesOfHour;
  const int minutes = motion_.minutes % kMinutesOfHour;
  const std::string distance = QuantityText(motion_.Distance(), "mile");
  if (minutes == 0 && full == 1)
    return Text("Check:  {} means {} in each hour.", RateText({rate, 1}), distance);
  if (minutes == 0)
    return Text("Check:  {} = {}, the rate.", Quotient(MixedText(motion_.Distance()), NumStr(full)),
                rate);
  const Fraction part = HoursOf(minutes);
  const std::string rest =
      Text("{} give {} of {} = ", DurationText(minutes), MixedText(part), rate);
  const Fraction miles = part * Fraction{rate, 1};
  if (full == 0) return "Check:  " + rest + QuantityText(miles, "mile") + ".";
  return Text("Check:  {} {} {}, and {}{}, together {}.", HoursText({full, 1}),
              Words{full == 1 ? "gives" : "give"}, rate * full, Words{rest}, MixedText(miles),
              distance);
}

void MotionExplanation::TellAnswer() {
  const std::string text = motion_.ValueText(motion_.Answer());
  SayInBoxAnew(R"(The answer is:  \r)" + text + R"(\z)");
  if (EndsAtNone(problem_))
    SayInBox(std::string(R"(It is not among the choices, so the right one is \r)") +
             kNoneOfTheAbove + R"(\z.)");
  else
    SayInBox("We have found what we were looking for.");
}

}  // namespace

void ExplainMotion(const Motion& motion, const Problem& problem) {
  MotionExplanation(motion, problem).Explain();
}

}  // namespace course::stories
