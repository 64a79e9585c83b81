// The student can turn a question about part, percent and whole into the percent equation,
// part = percent x whole, and find whichever of the three is missing.
//
// Three kinds of problems with equal chances: the part, the percent or the whole is asked for.
#include "lessons/families/percents/percent_figures.h"
#include "lessons/families/percents/percent_number.h"
#include "lessons/families/percents/percent_question.h"
#include "lessons/lesson.h"

namespace course {
namespace {

using namespace percents;

const std::string kTimes = " " + tutor::Times + " ";
const std::string kOver = " " + tutor::Divided + " ";

// --- Teaching screens --------------------------------------------------------

void PartPercentWhole() {
  const PercentQuestion question = {Asked::Part, 25, 20};
  NewScreen();
  SayAt(3, "A class has 20 students.  5 of them, that is 25%, ride a bike to school.");
  PercentBar bar(6, "20 students = 100%");
  bar.FillLeft(25);
  bar.NameLeft("5 students = 25%");
  PageEnd();
  SayAt(10, R"(The \cwhole\z is all 20 students.)");
  AddLine(R"(The \cpart\z is the 5 who ride a bike.)");
  AddLine(R"(The \cpercent\z, 25%, tells how much of the whole the part is.)");
  ShowPartPercentWhole(14.5);
  FillKnown(question);
  FillAsked(question);
  PageEnd();
  FillKnown(question);
  SayAt(17.5,
        R"(\yTry it:\z  Suppose that we do not know the 5.  How do we get it from 25% and 20?)");
  PageEnd();
  SayAt(20.5, Text("25% is 0.25, a quarter.  A quarter of 20 is 5, and so is {}.",
                   "0.25" + kTimes + "20"));
  FillAsked(question);
  PageEnd();
}

void ThePercentEquation() {
  NewScreen();
  SayAt(3, Text(R"(The word "of" means \ytimes\z:  25% of 20 is {}.  So we have a rule:)",
                "0.25" + kTimes + "20"));
  RuleBox("The Percent Equation", {"part = percent" + kTimes + "whole"});
  PageEnd();
  Say(R"(\yWatch out:\z  25% is 0.25, not 25.  Look what happens with 25:)");
  PaperBox({R"(\r25)" + kTimes + R"(20 = 500 students\z)"});
  Say("How can you see that this is wrong?");
  PageEnd();
  Say("25% is less than 100%, so the part is less than the whole.  But 500 is more than 20.");
  AddLine("Nor do we divide:  20" + kOver + "0.25 = 80.");
  PageEnd();
}

void FindThePart() {
  const PercentQuestion question = {Asked::Part, 15, 60};
  NewScreen();
  const SentenceFigure sentence(3, question);
  SayAt(7, R"(\yTry it:\z  Say this as an equation.  Let n be the number that we look for.)");
  PageEnd();
  ClearBelow(7);
  sentence.Translate();
  SayAt(7, R"("What number" is the letter, "is" is the equal sign, and "of" is times.)");
  PageEnd();
  Say("0.15 is 15 hundredths.  15" + kTimes + "60 = 900, so we have 900 hundredths:");
  Show(question.Equation() + " = 900/100 = 9");
  PageEnd();
  Say(R"(\yCheck:\z  10% of 60 is 6, and half of that, 5%, is 3.  6 + 3 = 9)");
  Say(R"(\yTry it:\z  What number is 8% of 50?)");
  PageEnd();
  Say(Text("8% is 0.08, not 0.8:  {}", "n = 0.08" + kTimes + "50 = 4"));
  PageEnd();
}

void FindThePercent() {
  const PercentQuestion question = {Asked::Percent, 25, 48};
  NewScreen();
  const SentenceFigure sentence(3, question);
  SayAt(7, R"(\yTry it:\z  Which is the whole, 12 or 48?)");
  PageEnd();
  ClearBelow(7);
  sentence.Translate();
  SayAt(7, R"(The whole stands after "of": it is \y48\z.  p is the percent, as a decimal number.)");
  PageEnd();
  Say("p is multiplied by 48.  We divide both sides by 48:");
  Show("p = 12/48 = 1/4 = 0.25");
  Say("What percent is 0.25?");
  PageEnd();
  Say(Text(R"(The point moves two places to the right:  \y25%\z.  Check:  {})",
           "0.25" + kTimes + "48 = 12"));
  PageEnd();

  NewScreen();
  SayAt(3, R"(\yWatch out:\z  Mistakes with 12 and 48:)");
  PaperBox({R"(\r48/12 = 4 = 400%\z)", R"(\r12%\z:  the part as the percent)"});
  Say("Can 12 be 400% of 48?");
  PageEnd();
  PercentBar bar(10, "48 = 100%");
  bar.FillLeft(25);
  bar.NameLeft("12 = 25%");
  SayAt(14, R"(No, 12 is less than 48, so it is \yless than 100%\z.  We divide part by whole.)");
  PageEnd();
}

void FindTheWhole() {
  const PercentQuestion question = {Asked::Whole, 30, 60};
  NewScreen();
  const SentenceFigure sentence(3, question);
  SayAt(7, R"(\yTry it:\z  Now which of the three is missing?)");
  PageEnd();
  ClearBelow(7);
  sentence.Translate();
  SayAt(7, R"(n stands after "of".  The \ywhole\z is missing.)");
  PageEnd();
  Say("n is multiplied by 0.3.  We divide both sides by 0.3:");
  Show("n = 18/(0.3)");
  AddLine("The bar means divide:  18" + kOver + "0.3");
  PageEnd();
  Say("We want to divide by a whole number.  So we multiply by 10/10, which is 1:");
  Show("n = 18/(0.3) = 180/3 = 60");
  PageEnd();

  NewScreen();
  PercentBar bar(3, "60 = 100%");
  bar.FillLeft(30);
  bar.NameLeft("18 = 30%");
  Say(Text(R"(\yCheck:\z  30% of 60 is {})", "0.3" + kTimes + "60 = 18."));
  PageEnd();
  Say(R"(\yWatch out:\z  Someone multiplies again:)");
  PaperBox({R"(\r0.3)" + kTimes + R"(18 = 5.4\z)"});
  Say("Can 5.4 be the whole when 18 is a part of it?");
  PageEnd();
  Say("No.  18 is only 30% of the whole, so the whole is more than 18.");
  Say("18 + 5.4 = 23.4 is wrong too:  30% of 23.4 is only 7.02.");
  PageEnd();
}

void WhichIsAsked() {
  NewScreen();
  SayAt(3, "This is how we find each of the three:");
  PaperBox({"part    = percent" + kTimes + "whole", "percent = part" + kOver + "whole",
            "whole   = part" + kOver + "percent"});
  PageEnd();
  Say(R"(\yTry it:\z  1.8 is what percent of 4?)");
  PageEnd();
  Say(Text(R"(The \ypercent\z is missing.  1.8 is 180 hundredths, and {}:)",
           "180" + kOver + "4 = 45"));
  Show("p = (1.8)/4 = 0.45 = 45%");
  PageEnd();
  ClearBelow(8);
  SayAt(9, R"(\yTry it:\z  8.4 is 35% of what number?)");
  PageEnd();
  Say(R"(The \ywhole\z is missing.  0.35 has two places after the point.  So we multiply )"
      "by 100/100, which is 1:");
  Show("n = (8.4)/(0.35) = 840/35 = 24");
  PageEnd();
}

// --- The lesson --------------------------------------------------------------

class UsingThePercentEquation final : public LessonScript {
 public:
  using LessonScript::LessonScript;

 private:
  std::vector<Screen> Screens() override {
    return {{PartPercentWhole, ThePercentEquation, FindThePart},
            {FindThePercent, FindTheWhole, WhichIsAsked}};
  }
  void DrawProblem(RandomStream& random) override;
  void ShowProblem() override;
  void ExplainProblem() override;

  // In ten-thousandths.
  struct Mistake {
    std::string name;
    int value;
  };
  std::vector<Mistake> Mistakes() const;
  std::vector<Mistake> MistakesAtPart() const;
  std::vector<Mistake> MistakesAtPercent() const;
  std::vector<Mistake> MistakesAtWhole() const;
  static Mistake Rounded(const std::string& name, int a, int b);
  int Answer() const;

  void ExplainSolution() const;
  void ExplainHundredths(const std::string& quotient) const;
  void ExplainQuotient(const std::string& quotient) const;
  void Check() const;
  void CheckByTens() const;

  PercentQuestion question_;
};

// --- Generator ---------------------------------------------------------------

constexpr int kUnit = 10000;  // 1 in ten-thousandths
constexpr int kHundredth = 100;

// 98 % of the draws are accepted.
void UsingThePercentEquation::DrawProblem(RandomStream& random) {
  do {
    question_.percent = random.Rand(10, 99);
    question_.asked = static_cast<Asked>(random.Rand(1, 3));
    question_.whole = random.Rand(1, 100);
  } while (question_.PartInHundredths() < kHundred);  // a part of less than 1 is hard to picture

  problem.question = {question_.Sentence()};
  const std::vector<Mistake> mistakes = Mistakes();
  const int others = static_cast<int>(mistakes.size()) - 1;
  const std::vector<int> order = random.RandSeq(others, others);
  const bool isPercent = question_.asked == Asked::Percent;
  Choices<int> choices(problem, choice_kind::FiveShuffled, [=](int value) {
    return DecimalOf(value / double{kUnit}) + (isPercent ? "%" : "");
  });
  choices.Right(Answer());
  choices.Wrong(mistakes[0].name, mistakes[0].value);
  for (const int i : order) choices.Wrong(mistakes[i].name, mistakes[i].value);
}

int UsingThePercentEquation::Answer() const {
  if (question_.asked == Asked::Part) return question_.PartInHundredths() * kHundredth;
  return kUnit * (question_.asked == Asked::Percent ? question_.percent : question_.whole);
}

// The first one is always offered.
std::vector<UsingThePercentEquation::Mistake> UsingThePercentEquation::Mistakes() const {
  if (question_.asked == Asked::Part) return MistakesAtPart();
  return question_.asked == Asked::Percent ? MistakesAtPercent() : MistakesAtWhole();
}

// The quotient is rounded to hundredths where it does not end with them; halves upward.  a and b
// are positive, a in ten-thousandths.
UsingThePercentEquation::Mistake UsingThePercentEquation::Rounded(const std::string& name, int a,
                                                                  int b) {
  const int step = b * kHundredth;
  return {name + (a % step == 0 ? "" : " and rounds"), (2 * a + step) / (2 * step) * kHundredth};
}

std::vector<UsingThePercentEquation::Mistake> UsingThePercentEquation::MistakesAtPart() const {
  const int whole = question_.whole * kUnit;
  return {Rounded("divides by the percent in place of multiplying", whole * kHundred,
                  question_.percent),
          {"gives what is left of the whole", whole - Answer()},
          {"reads the percent as tenths", Answer() * 10},
          {"reads the percent as thousandths", Answer() / 10},
          {"uses the percent as a whole number", Answer() * kHundred}};
}

std::vector<UsingThePercentEquation::Mistake> UsingThePercentEquation::MistakesAtPercent() const {
  const int part = question_.PartInHundredths() * kHundredth;
  return {
      {"multiplies the part by the whole", part * question_.whole},
      Rounded("switches the part and the whole", kHundred * kHundred * kUnit, question_.percent),
      {"gives the percent that is left", kHundred * kUnit - Answer()},
      {"moves the point of the decimal number one place only", Answer() / 10},
      {"moves the point of the decimal number three places", Answer() * 10},
      {"forgets to move the point", Answer() / kHundred},
      {"takes the part for the percent", part}};
}

std::vector<UsingThePercentEquation::Mistake> UsingThePercentEquation::MistakesAtWhole() const {
  const int part = question_.PartInHundredths() * kHundredth;
  return {Rounded("multiplies in place of dividing", part * question_.percent, kHundred),
          {"reads the percent as tenths", Answer() / 10},
          {"reads the percent as thousandths", Answer() * 10},
          {"uses the percent as a whole number", Answer() / kHundred},
          Rounded("adds the percent of the part to the part", part * (kHundred + question_.percent),
                  kHundred)};
}

// --- Problem page ------------------------------------------------------------

void UsingThePercentEquation::ShowProblem() {
  SayAt(6, problem.question[0]);
  ShowAnswersInTwoColumns(problem, {.row = 10});
}

// --- Worked explanation ------------------------------------------------------

constexpr double kWordsRow = 11.5;
constexpr double kQuotientRow = 14;
constexpr double kSolutionRow = 16.5;

void UsingThePercentEquation::ExplainProblem() {
  ProblemBanner();
  const SentenceFigure sentence(4, question_);
  ShowPartPercentWhole(8);
  SayAt(kWordsRow, R"(The whole stands after "of".  Which of the three is missing?)");
  PageEnd();
  const char* names[] = {"part", "percent", "whole"};
  ClearRows(kWordsRow, 2);
  SayAt(kWordsRow, Text(R"(The \y{}\z is missing.  We write the sentence as an equation.)",
                        names[static_cast<int>(question_.asked) - 1]));
  FillKnown(question_);
  sentence.Translate();
  PageEnd();
  ExplainSolution();
  FillAsked(question_);
  PageEnd();
  Check();
  Conclude(problem);
}

void UsingThePercentEquation::ExplainSolution() const {
  if (question_.asked == Asked::Part) {
    const double hundredths = question_.PartInHundredths();
    SayAt(kSolutionRow - 2, Text("{} is {} hundredths.  {}, so we have {} hundredths:",
                                 question_.DecimalText(), question_.percent,
                                 NumStr(question_.percent) + kTimes + question_.WholeText() +
                                     " = " + DecimalOf(hundredths),
                                 DecimalOf(hundredths)));
    Show(question_.Equation() + " = " + question_.PartText());
    return;
  }
  const bool isPercent = question_.asked == Asked::Percent;
  const std::string divisor = isPercent ? question_.WholeText() : question_.DecimalText();
  const std::string quotient =
      question_.Letter() + " = (" + question_.PartText() + ")/(" + divisor + ")";
  ClearRows(kWordsRow, 2);
  SayAt(kWordsRow, Text("We divide both sides by {}:", divisor));
  ShowAt(kQuotientRow, quotient);
  GoBelow();
  PageEnd();
  if (isPercent) {
    ExplainHundredths(quotient);
  } else {
    ExplainQuotient(quotient);
  }
}

// A whole number of hundredths divided by the whole gives the percent itself.
void UsingThePercentEquation::ExplainHundredths(const std::string& quotient) const {
  const std::string hundredths = DecimalOf(question_.PartInHundredths());
  Say(Text("{} is {} hundredths.  So we get {} hundredths:", question_.PartText(), hundredths,
           hundredths + kOver + question_.WholeText() + " = " + NumStr(question_.percent)));
  Show(quotient + " = " + question_.DecimalText());
  PageEnd();
  AddLine(Text(R"(As a percent, {} is \y{}\z.)", question_.DecimalText(), question_.PercentText()));
}

void UsingThePercentEquation::ExplainQuotient(const std::string& quotient) const {
  const bool endsWithTenths = question_.percent % 10 == 0;
  const int factor = endsWithTenths ? 10 : kHundred;
  const double part = question_.PartInHundredths() * factor / double{kHundred};
  Say(
      Text("{} has {} after the point.  So we multiply top and bottom by {}.  {}/{} is 1, so "
           "the value stays the same.",
           question_.DecimalText(), Words{endsWithTenths ? "one place" : "two places"}, factor,
           factor, factor));
  PageEnd();
  Show(quotient + " = (" + DecimalOf(part) + ")/" + NumStr(question_.percent * factor / kHundred) +
       " = " + question_.WholeText());
}

void UsingThePercentEquation::Check() const {
  ClearBelow(kWordsRow);
  Locate(kWordsRow - 1, 1);
  if (question_.asked == Asked::Part) {
    CheckByTens();
  } else {
    Say(Text(
        R"(\yCheck:\z  {} is {}, and {}.)", question_.PercentText(), question_.DecimalText(),
        question_.DecimalText() + kTimes + question_.WholeText() + " = " + question_.PartText()));
  }
  PageEnd();
}

// The part once more, without the decimal number: so many times 10% and so many times 1%.
void UsingThePercentEquation::CheckByTens() const {
  const int tens = question_.percent / 10;
  const int ones = question_.percent % 10;
  const std::string whole = question_.WholeText();
  const std::string tenth = DecimalOf(question_.whole / 10.0);
  const std::string hundredth = DecimalOf(question_.whole / 100.0);
  if (question_.percent == 10) {
    Say(Text(R"(\yCheck:\z  10 times 10% is 100%, the whole:  {})",
             "10" + kTimes + tenth + " = " + whole));
    return;
  }
  if (ones == 0) {
    Say(Text(R"(\yCheck:\z  10% of {} is {}.  So {} is {}.)", whole, tenth, question_.PercentText(),
             NumStr(tens) + kTimes + tenth + " = " + question_.PartText()));
    return;
  }
  Say(Text(R"(\yCheck:\z  10% of {} is {}, and 1% is {}.  So {} is)", whole, tenth, hundredth,
           question_.PercentText()));
  AddLine("  " + NumStr(tens) + kTimes + tenth + " + " + NumStr(ones) + kTimes + hundredth);
  AddLine("  = " + DecimalOf(tens * question_.whole / 10.0) + " + " +
          DecimalOf(ones * question_.whole / 100.0) + " = " + question_.PartText());
}

const LessonRegistration<UsingThePercentEquation> kRegistration("Using the Percent Equation");

}  // namespace
}  // namespace course
