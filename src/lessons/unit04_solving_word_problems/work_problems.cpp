// The student can find how long two workers need for a job together, when the time of each is
// known, and the time of one of them from the other's and their time together.  Rates are added,
// not times: who needs H hours does 1/H of the job each hour.
#include "lessons/families/fractions/fraction_steps.h"
#include "lessons/families/stories/durations.h"
#include "lessons/families/stories/shared_job.h"
#include "lessons/families/stories/story_words.h"
#include "lessons/families/stories/work_table.h"
#include "lessons/lesson.h"

namespace course {
namespace {

using namespace stories;
using fractions::DrawStrip;

using platform::colour::Blue;
using platform::colour::Cyan;
using platform::colour::Yellow;

constexpr int kMinutesOfHour = 60;
constexpr WorkPart kAllParts[] = {WorkPart::First, WorkPart::Second, WorkPart::Together};
constexpr const char* kHowMuch =
    "If it takes H hours to complete a job then how much work is done in 1 hour?";
constexpr const char* kOneOverH =
    "You're right if you said 1/H.  Why?  Because if a job takes H hours, each hour does one of H "
    "equal parts.";

// Rows of an explanation: facts, later the table; one line of working; the box with words.
constexpr double kStageRow = 9.5;
constexpr double kWorkRow = 17.4;
constexpr double kWorkCol = 2;
constexpr double kBoxRow = 19.6;
constexpr double kFactColumn = 19;

// --- Teaching screens --------------------------------------------------------

void OneHour() {
  NewScreen();
  SayAt(3, "Ann paints a wall in 3 hours.  What part of the wall does she paint in 1 hour?");
  DrawStrip(6, 3, 36, 3, {});
  PageEnd();
  DrawStrip(6, 3, 36, 3, {{1, Yellow}});
  SayAt(8, "She paints 1/3 of it: one of 3 equal parts.");
  Say(R"(The part that is done in 1 hour is her \crate\z.)");
  PageEnd();
  Say(kHowMuch);
  PageEnd();
  Say(kOneOverH);
  PageEnd();
}

void RatesAdd() {
  NewScreen();
  SayAt(3, "Ann needs 3 hours, Tom 6.  In 1 hour:");
  SayAt(6, "Ann", {.col = 2});
  DrawStrip(6, 8, 30, 6, {{2, Yellow}});
  SayAt(8, "Tom", {.col = 2});
  DrawStrip(8, 8, 30, 6, {{1, Cyan}});
  SayAt(10, "How much do they paint together?");
  PageEnd();
  SayAt(12.5, "both", {.col = 2});
  DrawStrip(12.5, 8, 30, 6, {{2, Yellow}, {1, Cyan}});
  SayAt(14.5, R"(We \yadd the rates\z:)");
  Show("1/3 + 1/6 = 2/6 + 1/6 = 3/6 = 1/2");
  PageEnd();
  Say("In 1 hour they paint half of the wall.  How long do they need for all of it?");
  PageEnd();
  DrawStrip(12.5, 8, 30, 6, {{2, Yellow}, {1, Cyan}, {2, Yellow}, {1, Cyan}});
  AddLine(R"(They need \y2 hours\z: two halves are 1.)");
  PageEnd();
}

void ThreeStudents() {
  NewScreen();
  SayAt(3, "Ann needs 3 hours, Tom 6.  Who is right?");
  PaperBox({"Kim:  3 + 6 = 9 hours", "Lee:  9 " + tutor::Divided + " 2 = 4 1/2 hours",
            "Max:  6 - 3 = 3 hours"},
           5);
  PageEnd();
  Say(R"(Nobody.  Ann alone needs 3 hours.  With Tom's help it must take \yless\z than 3 hours.)");
  PageEnd();
  Say(R"(\yWatch out:\z  We do not add the times, subtract them, or take their mean.  Half of )"
      "Ann's time is wrong, too:  Tom is slower than Ann.");
  PageEnd();
}

void TheTable() {
  NewScreen();
  SayAt(2,
        "John can plant a garden in 4 hours, and Sue in 6 hours.  How long do they need together?");
  ShowWorkTable(5.3, "John", "Sue");
  SayAt(12, "What are the two rates?");
  PageEnd();
  FillWork(WorkPart::First, WorkColumn::Rate, "1/4");
  FillWork(WorkPart::Second, WorkColumn::Rate, "1/6");
  SayAt(14, "What is their rate together?");
  PageEnd();
  ClearBelow(12);
  Show("1/4 + 1/6 = 3/12 + 2/12 = 5/12");
  FillWork(WorkPart::Together, WorkColumn::Rate, "5/12");
  PageEnd();
  FillWork(WorkPart::Together, WorkColumn::Time, "T", Blue);
  Say(Text("In 1 hour they do 5/12 of it, and in 2 hours {}.", "2 " + tutor::Times + " 5/12"));
  Say(Text(R"(We call their time \yT\z.  In T hours they do {}.  What is the whole garden?)",
           "T " + tutor::Times + " 5/12"));
  PageEnd();
  ClearBelow(12);
  FillWork(WorkPart::Together, WorkColumn::Part, "1", Blue);
  SayAt(12.5, "The whole garden is 1:");
  Show("5T/12 = 1");
  AddLine("We multiply by 12, and divide by 5:");
  Show("5T = 12      T = 12/5 = 2 2/5");
  PageEnd();
  ClearBelow(12);
  Say("They need 2 2/5 hours.  2/5 of an hour are 2/5 of 60 minutes:");
  Show("2/5 " + tutor::Times + " 60 = 24");
  PageEnd();
}

void CheckTheTable() {
  ClearBelow(12);
  SayAt(12.5, "They need 2 hours & 24 minutes.");
  Say(R"(\yWatch out:\z  2 2/5 hours are 2.4 hours.  But 2.4 hours are not 2 hours & 40 )"
      "minutes.");
  PageEnd();
  ClearBelow(12);
  SayAt(12.5, "Check:  in 12/5 hours they do these two parts.");
  for (const WorkPart part : kAllParts) FillWork(part, WorkColumn::Time, "12/5");
  FillWork(WorkPart::First, WorkColumn::Part, "3/5", Blue);
  FillWork(WorkPart::Second, WorkColumn::Part, "2/5", Blue);
  Show("3/5 + 2/5 = 1");
  Say("That is the whole garden.");
  PageEnd();
}

void PartsOfAnHour() {
  NewScreen();
  SayAt(3, "The Red pump fills a pool in 1 hour & 20 minutes.  What is its rate?");
  Say("First we write the time in hours.  What part of an hour are 20 minutes?");
  PageEnd();
  Say("We divide the minutes by 60:");
  Show("20/60 = 1/3");
  AddLine("So the time is 1 1/3 = 4/3 hours.");
  PageEnd();
  Say(R"(The rate is 1 over it.  We \yturn the fraction over\z:)");
  Show("1 " + tutor::Divided + " 4/3 = 3/4");
  PageEnd();
  ClearBelow(5);
  SayAt(6, "The Red pump's rate is 3/4.");
  Say(R"(\yTry it:\z  The Blue pump takes 4 hours.  How long do both pumps take?)");
  PageEnd();
  Say("The Blue pump's rate is 1/4:");
  Show("3/4 + 1/4 = 4/4 = 1");
  Say("In 1 hour they fill the whole pool.  They take 1 hour.");
  PageEnd();
}

void OneAlone() {
  NewScreen();
  SayAt(3,
        "Working together, John and Bill can load a truck in 2 hours.  John alone can load it in "
        "6 hours.  How long does Bill need alone?");
  PageEnd();
  DrawStrip(8, 3, 36, 6, {{1, Cyan}, {2, Yellow}});
  SayAt(10,
        "In 1 hour they load 1/2 together, and John loads 1/6 of it all.  The yellow part is "
        "Bill's.  How much is it?");
  PageEnd();
  Say(R"(We \ysubtract the rates\z:)");
  Show("1/2 - 1/6 = 3/6 - 1/6 = 2/6 = 1/3");
  Say("His rate is 1/3.  What is his time?");
  PageEnd();
  ClearBelow(10);
  SayAt(10.5, "The rate is 1 over the time.  So the time is 1 over the rate:");
  Show("1 " + tutor::Divided + " 1/3 = 3");
  Say(R"(Bill needs \y3 hours\z alone.)");
  PageEnd();
}

void AloneInHoursAndMinutes() {
  NewScreen();
  SayAt(3, "Bill alone must need more than 2 hours, the time together.  3 hours is more.");
  Say(R"(\yWatch out:\z  6 - 2 = 4 hours is wrong.  We subtract rates, not times.)");
  PageEnd();
  Say(R"(\yTry it:\z  Sue and Ann need 1 hour & 30 minutes, and Sue alone needs 2 hours & 30 )"
      "minutes.  And Ann alone?");
  PageEnd();
  Say("The times are 3/2 and 5/2 hours.  So the rates are 2/3 and 2/5:");
  Show("2/3 - 2/5 = 10/15 - 6/15 = 4/15");
  PageEnd();
  Show("1 " + tutor::Divided + " 4/15 = 15/4 = 3 3/4");
  AddLine("Ann needs 3 hours & 45 minutes.");
  PageEnd();
}

// --- The lesson --------------------------------------------------------------

class WorkProblems final : public LessonScript {
 public:
  using LessonScript::LessonScript;
  bool ChoicesAreLaidDown() const override { return true; }

 private:
  std::vector<Screen> Screens() override {
    return {{OneHour, RatesAdd, ThreeStudents, TheTable, CheckTheTable, PartsOfAnHour, OneAlone,
             AloneInHoursAndMinutes}};
  }
  void DrawProblem(RandomStream& random) override;
  void ShowProblem() override;
  void ExplainProblem() override;

  void StartStep(const std::string& words);
  void ShowFacts();
  void ExplainHours();
  void ExplainRate();
  void ShowRate(WorkPart part);
  void AddRates();
  void SubtractRates();
  void ExplainMinutes();
  void Check();
  void TellAnswer();

  std::string TimeText(WorkPart part) const { return DurationText(job_.MinutesOf(part)); }
  bool AsksTogether() const { return job_.asked == WorkPart::Together; }
  SharedJob job_;
};

// --- Problem ------------------------------------------------------------------

void WorkProblems::DrawProblem(RandomStream& random) {
  job_ = SharedJob::Draw(random);
  problem.question = job_.Question();
  FillChoices(job_, problem, random);
}

void WorkProblems::ShowProblem() {
  SayAt(5, OneParagraph(problem.question));
  // "11 hours & 45 minutes" is long.
  ShowAnswersInTwoColumns(problem, {.row = 12, .width = 19, .fontSize = 14});
}

// --- Worked explanation ------------------------------------------------------

void WorkProblems::ExplainProblem() {
  ProblemBanner();
  SayAt(4, OneParagraph(problem.question));
  PageEnd();
  ShowFacts();
  WhiteBox({.row = kBoxRow});
  ExplainHours();
  ExplainRate();
  AsksTogether() ? AddRates() : SubtractRates();
  ExplainMinutes();
  Check();
  TellAnswer();
}

// Words below, and room for new working above them.
void WorkProblems::StartStep(const std::string& words) {
  ClearRows(kWorkRow - 1.3, kBoxRow - kWorkRow + 1.3);
  SayInBoxAnew(words);
}

void WorkProblems::ShowFacts() {
  double row = kStageRow;
  SayAt(row, "Let's summarize what we know.");
  for (const WorkPart part : kAllParts) {
    ++row;
    SayAt(row, AtStart(WithoutArticle(job_.NameOf(part))), {.col = 3});
    SayAt(row, part == job_.asked ? R"(\y?\z)" : TimeText(part), {.col = kFactColumn});
  }
  PageEnd();
}

void WorkProblems::ExplainHours() {
  double row = kStageRow + 1.4;
  for (const WorkPart part : job_.Given()) {
    const int minutes = job_.MinutesOf(part) % kMinutesOfHour;
    if (minutes == 0) continue;
    ClearRows(row - 1.4, kBoxRow - row + 1.4);
    SayInBoxAnew(Text("We write the times in hours.  We divide the minutes by 60:  {}/60 = {}.",
                      minutes, ValueText(HoursOf(minutes))));
    const std::string mixed = MixedText(job_.HoursOf(part));
    const std::string value = ValueText(job_.HoursOf(part));
    ShowAt(row, TimeText(part) + " = " + mixed + (mixed == value ? "" : " = " + value), kWorkCol);
    PageEnd();
    row += 4;
  }
}

void WorkProblems::ExplainRate() {
  SayInBoxAnew(kHowMuch);
  PageEnd();
  SayInBoxAnew(kOneOverH);
  PageEnd();
  ClearRows(kStageRow, kBoxRow - kStageRow);
  ShowWorkTable(kStageRow, job_.first, job_.second);
  for (const WorkPart part : job_.Given()) {
    ShowRate(part);
    PageEnd();
  }
}

void WorkProblems::ShowRate(WorkPart part) {
  const Fraction hours = job_.HoursOf(part);
  const Fraction rate = job_.RateOf(part);
  const std::string who =
      part == WorkPart::Together ? "Together they need " : AtStart(job_.NameOf(part)) + " needs ";
  StartStep(who + HoursText(hours) + ".  So the rate is 1 over " + ValueText(hours) + ".");
  if (hours.den > 1)
    ShowAt(kWorkRow, "1 " + tutor::Divided + " " + ValueText(hours) + " = " + ValueText(rate),
           kWorkCol);
  FillWork(part, WorkColumn::Rate, ValueText(rate), Blue);
}

void WorkProblems::AddRates() {
  const Fraction sum = job_.RateOf(WorkPart::Together);
  StartStep("Both work at the same time.  What part of the job do they do together in 1 hour?");
  PageEnd();
  SayInBoxAnew("We add the rates, not the times.");
  ShowAt(kWorkRow, RatesLine(job_.RateOf(WorkPart::First), "+", job_.RateOf(WorkPart::Second)),
         kWorkCol);
  FillWork(WorkPart::Together, WorkColumn::Rate, ValueText(sum), Blue);
  PageEnd();
  StartStep(
      "T is their time together.  The whole job is 1.  Rate times time is the part that is "
      "done.");
  FillWork(WorkPart::Together, WorkColumn::Time, "T", Blue);
  FillWork(WorkPart::Together, WorkColumn::Part, "1", Blue);
  ShowAt(kWorkRow, RateTimesT(sum) + " = 1", kWorkCol);
  PageEnd();
  // Said where a single expression is left.
  const std::string simplify = "  Simplify the expression to find the time.";
  if (sum.den > 1) {
    SayInBoxAnew("We multiply both sides by " + NumStr(sum.den) + "." +
                 (sum.num == 1 ? simplify : ""));
    ShowAt(kWorkRow, CoefText(sum.num) + "T = " + NumStr(sum.den), 13);
    PageEnd();
  }
  if (sum.num == 1) return;
  SayInBoxAnew("We divide both sides by " + NumStr(sum.num) + "." + simplify);
  ShowAt(kWorkRow, "T = " + AndMixed(job_.HoursOf(WorkPart::Together)), 24);
  PageEnd();
}

void WorkProblems::SubtractRates() {
  const WorkPart other = job_.Given().front();
  const std::string asked = job_.NameOf(job_.asked);
  const Fraction rate = job_.RateOf(job_.asked);
  StartStep("Each rate is the part done in an hour.  What is left for " + asked + "?");
  PageEnd();
  SayInBoxAnew("We subtract the rates, not the times.");
  ShowAt(kWorkRow, RatesLine(job_.RateOf(WorkPart::Together), "-", job_.RateOf(other)), kWorkCol);
  FillWork(job_.asked, WorkColumn::Rate, ValueText(rate), Blue);
  PageEnd();
  StartStep(
      "The rate is 1 over the time.  So the time is 1 over the rate.  Simplify the expression to "
      "find the time.");
  ShowAt(kWorkRow,
         "1 " + tutor::Divided + " " + ValueText(rate) + " = " + AndMixed(job_.HoursOf(job_.asked)),
         kWorkCol);
  PageEnd();
}

void WorkProblems::ExplainMinutes() {
  const int minutes = job_.MinutesOf(job_.asked) % kMinutesOfHour;
  if (minutes == 0) return;
  StartStep("The time is " + HoursText(job_.HoursOf(job_.asked)) +
            ".  We turn the part of an hour into minutes.");
  ShowAt(kWorkRow, Text("{} {} 60 = {}", MixedText(HoursOf(minutes)), tutor::Times, minutes),
         kWorkCol);
  PageEnd();
}

void WorkProblems::Check() {
  const Fraction hours = job_.HoursOf(WorkPart::Together);
  const auto done = [&](WorkPart part) { return ValueText(job_.RateOf(part) * hours); };
  StartStep("Check:  each one works for " + HoursText(hours) +
            ".  The two parts make the whole job.");
  for (const WorkPart part : kAllParts) {
    FillWork(part, WorkColumn::Time, ValueText(hours), Blue);
    FillWork(part, WorkColumn::Part, done(part), Blue);
  }
  ShowAt(kWorkRow, done(WorkPart::First) + " + " + done(WorkPart::Second) + " = 1", kWorkCol);
  PageEnd();
}

void WorkProblems::TellAnswer() {
  const std::string together = "Working together, " + job_.first + " and " + job_.second +
                               " share the job, and together it takes them only ";
  const std::string time = TimeText(job_.asked);
  if (AsksTogether()) {
    StartStep(together + "\\b" + time + "\\z.");
    return;
  }
  StartStep(together + TimeText(WorkPart::Together) + ".");
  PageEnd();
  SayInBoxAnew(AtStart(job_.NameOf(job_.asked)) + " alone must need more than that.  " + time +
               " is more.");
  PageEnd();
  SayInBoxAnew(ConclusionText(problem, 'b'));
}

const LessonRegistration<WorkProblems> kRegistration("Work Problems");

}  // namespace
}  // namespace course
