// The student can find the distance, the rate or the time of something that moves, maybe with or
// against a wind or a current, when the other two are known: d = r t and its two other forms.
#include "lessons/families/stories/motion.h"
#include "lessons/families/stories/motion_choices.h"
#include "lessons/families/stories/motion_explanation.h"
#include "lessons/lesson.h"

namespace course {
namespace {

using namespace stories;

const std::string kTimes = " " + tutor::Times + " ";
const std::string kDivided = " " + tutor::Divided + " ";
const std::string kFormula = WithoutBreaks("d = r " + tutor::Dot + " t");

// --- Teaching screens --------------------------------------------------------

// A line from column 3 to 39 in so many equal pieces.
constexpr double kLineStart = 3;
constexpr double kLineEnd = 39;
void DrawPieces(double row, int pieces) {
  isDrawHorizLineWithColor(row, kLineStart, kLineEnd, 3, platform::colour::White);
  for (int i = 0; i <= pieces; ++i) {
    const double col = kLineStart + i * (kLineEnd - kLineStart) / pieces;
    isDrawVertLineWithColor(col, row - 0.3, row + 0.3, 3, platform::colour::Yellow);
  }
}

void TheFormula() {
  NewScreen();
  SayAt(3, "Three numbers describe a motion:");
  AddLine(R"(  the \cdistance\z d that something goes,)");
  AddLine(R"(  the \crate\z r at which it goes,)");
  AddLine(R"(  and the \ctime\z t that it takes.)");
  PageEnd();
  Say(
      Text("The rate tells how far something goes in one hour.  A car goes 50 miles per hour, or "
           "{}.  How far does it go in 3 hours?",
           RateText({50, 1})));
  PageEnd();
  constexpr double kRoadRow = 14;
  constexpr double kPieceCols[] = {6, 18, 30};
  DrawPieces(kRoadRow, 3);
  for (const double col : kPieceCols) {
    SayAt(kRoadRow - 1, "1 hour", {.col = col});
    SayAt(kRoadRow + 1, "50 miles", {.col = col - 1});
  }
  ShowAt(16.5, "50" + kTimes + "3 = 150 miles", 12);
  PageEnd();
  SayAt(18, "So the distance is the rate times the time:");
  RuleBox("The Formula", {kFormula}, {.row = 20.5, .width = 20});
  PageEnd();
}

void RateFromDistance() {
  NewScreen();
  SayAt(3, "A jogger runs 12 miles in 2 hours.  What is her rate?");
  Show(kFormula);
  Say("How do we get r alone?");
  PageEnd();
  Say(R"(We divide both sides by \yt\z:)");
  Show("d/t = (r " + tutor::Dot + " t)/t ,   so   r = d/t");
  PageEnd();
  Show("r = 12/2 = 6");
  Say("Her rate is 6 mph.  That is 6 miles in each of the 2 hours.");
  PageEnd();
}

void TimeFromDistance() {
  NewScreen();
  SayAt(3,
        "The formula finds the time, too.  A skater goes 20 miles at a rate of 8 mph.  How long "
        "does it take?");
  Show(kFormula);
  PageEnd();
  Say(R"(We divide both sides by \yr\z:)");
  Show("d/r = (r " + tutor::Dot + " t)/r ,   so   t = d/r");
  PageEnd();
  Show("t = 20/8 = 5/2 = 2 1/2");
  Say("It takes 2 1/2 hours.  How many minutes are in half an hour?");
  PageEnd();
  Say("To go from hours back to minutes, we multiply by 60.  Half of 60 is 30, so it takes 2 hours "
      "& 30 minutes.");
  PageEnd();
}

// An hour in quarters, their fractions above and their minutes below.
void DrawHour(double row) {
  constexpr double kQuarter = (kLineEnd - kLineStart) / 4;
  DrawPieces(row, 4);
  const char* kFractions[] = {"0", "1/4", "1/2", "3/4", "1"};
  const char* kMinutes[] = {"0", "15", "30", "45", "60"};
  for (int i = 0; i <= 4; ++i) {
    const double col = kLineStart + i * kQuarter;
    ShowAt(row - 2, kFractions[i], col);
    ShowAt(row + 1, kMinutes[i], i == 0 ? col : col - 0.5);
  }
}

void HoursAndMinutes() {
  NewScreen();
  SayAt(3, "A rate in miles per hour needs a time in hours.  An hour has 60 minutes:");
  DrawHour(8.5);
  PageEnd();
  ShowAt(12, "15 minutes = 15/60 = 1/4 of an hour");
  SayAt(14.5, R"(\yTry it:\z  Write 3 hours & 15 minutes in hours.)");
  PageEnd();
  SayAt(17.5, R"(They are \y3 1/4\z hours:  the 3 stays, and 15 minutes are 1/4 of an hour.)");
  Say(R"(\yWatch out:\z  They are not 3.15 hours.  An hour has 60 minutes, not 100.)");
  PageEnd();

  NewScreen();
  SayAt(3, R"(\yTry it:\z  A boat goes 5 mph.  How far does it go in 2 hours & 30 minutes?)");
  PageEnd();
  Show("d = 5" + kTimes + "2 1/2 = 5" + kTimes + "5/2 = 25/2 = 12 1/2");
  Say("It goes 12 1/2 miles:  2 hours give 10 miles, and half an hour gives half of 5.");
  PageEnd();
  Say(R"(\yTry it:\z  A car goes 90 miles in 2 hours & 15 minutes.  What is its rate?)");
  PageEnd();
  Show("t = 2 1/4 = 9/4");
  Show("r = 90" + kDivided + "9/4 = 90" + kTimes + "4/9 = 40");
  Say("Dividing by 9/4 is multiplying by 4/9.  So its rate is 40 mph.");
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
           "the boat in it.  How fast is it with the current?");
  PageEnd();
  ShowArrow(8, 1, 20, "boat", platform::colour::White);
  ShowArrow(9.1, 21, 24, R"(\ccurrent\z)", platform::colour::Cyan);
  ShowArrow(10.2, 1, 24, R"(\y10 + 2 = 12\z)", platform::colour::Yellow);
  SayAt(12, "How fast is it against the current?");
  PageEnd();
  SayAt(14, "The current slows it down.  We subtract:");
  ShowArrow(15.5, 1, 20, "boat", platform::colour::White);
  ShowArrow(16.6, 20, 17, R"(\ccurrent\z)", platform::colour::Cyan);
  ShowArrow(17.7, 1, 16, R"(\y10 - 2 = 8\z)", platform::colour::Yellow);
  PageEnd();
  SayAt(19.5, R"(\yTry it:\z  How long does it take to go 24 miles against the current?)");
  PageEnd();
  SayAt(22.5, "t = 24" + kDivided + "8 = 3.  It takes 3 hours.");
  PageEnd();
}

void RateInStillWater() {
  NewScreen();
  SayAt(3,
        "A boat goes 24 miles in 2 hours with a current of 2 mph.  What is its rate in still "
        R"(water?  First:  how fast does it \yreally\z go?)");
  PageEnd();
  Show("r = d/t = 24/2 = 12");
  Say("Do we add the 2 mph, or subtract them?");
  ShowArrow(13.4, 1, 24, R"(\y12\z)", platform::colour::Yellow);
  ShowArrow(14.5, 21, 24, R"(\ccurrent: 2\z)", platform::colour::Cyan);
  PageEnd();
  ShowArrow(15.6, 1, 20, "boat: ?", platform::colour::White);
  SayAt(17.2, "The current helped.  Without it the boat is slower, so we subtract:");
  Show("12 - 2 = 10 mph in still water");
  PageEnd();
}

void RateInStillAir() {
  NewScreen();
  SayAt(3, Text(R"(\yTry it:\z  A plane flies 275 miles in 2 hours & 30 minutes with a \cwind\z )"
                "of {}.  What is its rate in still air?",
                RateText({10, 1})));
  PageEnd();
  Show("r = 275" + kDivided + "2 1/2 = 275" + kDivided + "5/2 = 275" + kTimes + "2/5 = 110", 2);
  Say("It really goes 110 mph.  Is it slower or faster in still air?");
  PageEnd();
  Say(Text("The wind helped, so in still air it is slower:  {} mph.", "110 - 10 = 100"));
  Say(R"(\yTry it:\z  What if it flew that far against the wind?)");
  PageEnd();
  Say(Text("Then it is faster in still air:  {} mph.", "110 + 10 = 120"));
  Say("Check:  120 - 10 = 110, and 110 mph for 2 1/2 hours gives 275 miles.");
  PageEnd();
}

// --- The lesson ------------------------------------------------------------

class DistanceRateTimeProblems final : public LessonScript {
 public:
  using LessonScript::LessonScript;

 private:
  std::vector<Screen> Screens() override {
    return {{TheFormula, RateFromDistance, TimeFromDistance, HoursAndMinutes, WindAndCurrent,
             RateInStillWater, RateInStillAir}};
  }
  void DrawProblem(RandomStream& random) override;
  void ShowProblem() override;
  void ExplainProblem() override;

  std::string Question() const { return problem.question[0] + "  " + problem.question[1]; }

  Motion motion_;
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
  ExplainMotion(motion_, problem);
}

const LessonRegistration<DistanceRateTimeProblems> kRegistration("Distance-Rate-Time Problems");

}  // namespace
}  // namespace course
