// The student can find how much of a solution, of water or of a pure substance must be added to a
// mixture to reach a percent: amounts are percent times quantity, and amounts add up.
#include "lessons/families/fractions/fraction_steps.h"
#include "lessons/families/stories/mixture.h"
#include "lessons/families/stories/mixture_table.h"
#include "lessons/lesson.h"

namespace course {
namespace {

using namespace stories;
using fractions::DrawStrip;

using platform::colour::Blue;
using platform::colour::Cyan;
using platform::colour::Yellow;

// Rows of an explanation: the table, later the equations; the box with words.
constexpr double kTableRow = 9.4;
constexpr double kFirstLine = 9.8;
constexpr double kBoxRow = 17.8;

// ".6", "1", "0".
std::string AsDecimal(int percent) {
  return NumStr(percent / 100.0);
}
// Percent of a quantity, exact.
std::string AmountText(int percent, int quantity) {
  return NumStr(percent * quantity / 100.0);
}
// ".25x", "x".
std::string TermText(int percent) {
  return CoefText(percent / 100.0) + "x";
}
std::string PercentText(int percent) {
  return NumStr(percent) + "%";
}
std::string TimesText(const std::string& a, const std::string& b) {
  return WithoutBreaks(a + " " + tutor::Times + " " + b);
}

// --- Teaching screens --------------------------------------------------------

void PercentTimesQuantity() {
  NewScreen();
  SayAt(3, R"(In a \c30% acid solution\z 30 of 100 parts are acid.  The others are water.)");
  DrawStrip(6, 3, 36, 10, {{3, Yellow}});
  SayAt(8, "How much acid is in 20 mL of it?");
  PageEnd();
  Say("30% is .3, and we multiply:");
  Show(".3 " + tutor::Times + " 20 = 6");
  AddLine("So 6 mL are acid, and 14 mL are water.");
  PageEnd();
  RuleBox("The Amount", {"percent " + tutor::Times + " quantity = amount"}, {.width = 34});
  Say(R"(\yWatch out:\z  We do not add percent and quantity.  30 + 20 means nothing here.)");
  PageEnd();
  Say(R"(\yTry it:\z  How much gold is in 50 g of a 20% gold alloy?)");
  PageEnd();
  AddLine(Text("{}.  There are 10 g of gold.", TimesText(".2", "50") + " = 10"));
  PageEnd();
}

void TwoSolutions() {
  NewScreen();
  SayAt(2,
        "We pour 30 mL of a 20% acid solution and 10 mL of a 60% one together.  What percent "
        "of acid do we get?");
  ShowMixtureTable(5.5, "acid");
  FillMixture(MixtureRow::Original, "20%", "30", "");
  FillMixture(MixtureRow::Additive, "60%", "10", "");
  SayAt(14, "What are the two amounts of acid?");
  PageEnd();
  FillMixture(MixtureRow::Original, "", "", "6", Blue);
  FillMixture(MixtureRow::Additive, "", "", "6", Blue);
  SayAt(15.5, Text("{} and {}.", TimesText(".2", "30") + " = 6", TimesText(".6", "10") + " = 6"));
  Say("How much is it together, and how much of that is acid?");
  PageEnd();
  FillMixture(MixtureRow::Final, "", "40", "12", Blue);
  Say("The quantities add up to 40, and the amounts add up to 12.");
  PageEnd();
  FillMixture(MixtureRow::Final, "30%", "", "", Blue);
  ClearBelow(14);
  SayAt(15, "12 of 40 is 12/40 = .3, so it is a 30% solution.");
  PageEnd();
  Say(R"(\yWatch out:\z  20% and 60% do not give 80%, and not their mean 40%.)");
  Say("Quantities add up.  Amounts add up.  Percents do not.");
  PageEnd();
}

void TheUnknown() {
  NewScreen();
  SayAt(2,
        "A scientist has 20 mL of a 30% acid solution.  How much of a 60% one makes it a 40% "
        "acid solution?");
  ShowMixtureTable(5.5, "acid");
  FillMixture(MixtureRow::Original, "30%", "20", "6");
  SayAt(14, R"(We call what is added \yx\z.)");
  PageEnd();
  FillMixture(MixtureRow::Additive, "60%", "x", ".6x", Blue);
  Say("60% of x is acid:  .6x, not 0 and not x.  What is the final quantity?");
  PageEnd();
  FillMixture(MixtureRow::Final, "40%", "20 + x", ".4(20 + x)", Blue);
  ClearBelow(14);
  SayAt(14, R"(It is 20 + x.  \yWatch out:\z  it is not 20.)");
  Say("The amounts of acid add up:");
  Show("6 + .6x = .4(20 + x)");
  PageEnd();
  ClearBelow(14);
  SayAt(14, R"(\yTry it:\z  Multiply on the right side.)");
  Show("6 + .6x = .4(20 + x)");
  PageEnd();
  Show("6 + .6x = 8 + .4x");
  PageEnd();
  Say("Now we subtract .4x, and then we subtract 6:");
  Show("6 + .2x = 8");
  Show("    .2x = 2");
  PageEnd();
  ClearBelow(14);
  Show(".2x = 2");
  Say("We divide both sides by .2:");
  Show("x = 2 " + tutor::Divided + " .2 = 10");
  PageEnd();
  ClearBelow(14);
  SayAt(14, "x is 10, so 10 mL must be added.");
  Say("Check:  30 mL have 6 + 6 = 12 mL of acid.");
  Show(".4 " + tutor::Times + " 30 = 12");
  PageEnd();
  Say(R"(\yWatch out:\z  30 mL is the whole mixture.  We were asked what is added.)");
  PageEnd();
}

void WaterAndPure() {
  NewScreen();
  SayAt(2, "12 mL of a 50% alcohol solution are too strong.  How much water makes it 30%?");
  ShowMixtureTable(4.5, "alcohol");
  FillMixture(MixtureRow::Original, "50%", "12", "6");
  FillMixture(MixtureRow::Final, "30%", "12 + x", ".3(12 + x)");
  SayAt(13.5, "How much alcohol is in x mL of water?");
  PageEnd();
  FillMixture(MixtureRow::Additive, "0%", "x", "0", Blue);
  SayAt(15, "None.  Water has 0% of it:");
  Show("6 = .3(12 + x)");
  Show("6 = 3.6 + .3x");
  PageEnd();
  Show("2.4 = .3x");
  Show("x = 2.4 " + tutor::Divided + " .3 = 8");
  AddLine("8 mL of water must be added.");
  PageEnd();

  NewScreen();
  SayAt(2, "How much pure salt makes 20 g of a 10% salt water solution a 25% one?");
  ShowMixtureTable(4.5, "salt");
  FillMixture(MixtureRow::Original, "10%", "20", "2");
  FillMixture(MixtureRow::Final, "25%", "20 + x", ".25(20 + x)");
  SayAt(13.5, "What percent of pure salt is salt?");
  PageEnd();
  FillMixture(MixtureRow::Additive, "100%", "x", "x", Blue);
  SayAt(15, "100%.  All of it is salt, so the amount is x:");
  Show("2 + x = .25(20 + x)");
  Show("2 + x = 5 + .25x");
  PageEnd();
  Show("2 + .75x = 5");
  Show(".75x = 3");
  Show("x = 3 " + tutor::Divided + " .75 = 4");
  AddLine("4 g of pure salt must be added.");
  PageEnd();
}

void DoesItFit() {
  NewScreen();
  SayAt(3, "30 g of a 50% gold alloy and x g of an 80% one make a 70% one.");
  DrawStrip(7, 3, 30, 3, {{2, Cyan}, {1, Yellow}});
  SayAt(8.5, "50        60        70        80", {.col = 2});
  SayAt(10, "Is 70 nearer to 50 or to 80?");
  PageEnd();
  Say("It is 20 away from 50, and 10 away from 80.  So there must be more of the 80% alloy.");
  PageEnd();
  Say("Lee gets x = 15, and Kim gets x = 60.  Who can be right?");
  PageEnd();
  Say(R"(Only Kim:  60 g are more than 30 g.  Lee has \yexchanged the two parts\z.)");
  PageEnd();
  Say("Long answers are rounded to hundredths.");
  PageEnd();
}

// --- The lesson --------------------------------------------------------------

class MixtureProblems final : public LessonScript {
 public:
  using LessonScript::LessonScript;
  bool ChoicesAreLaidDown() const override { return true; }

 private:
  std::vector<Screen> Screens() override {
    return {{PercentTimesQuantity, TwoSolutions, TheUnknown, WaterAndPure, DoesItFit}};
  }
  void DrawProblem(RandomStream& random) override;
  void ShowProblem() override;
  void ExplainProblem() override;

  void FillTable();
  void MakeEquation();
  void GatherX();
  void DivideByCoefficient();
  void Check();
  void WriteLine(const std::string& left, const std::string& right);

  std::string Question() const;
  // .4 times 20, for a final mixture without the additive.
  std::string FinalPart() const { return AmountText(mixture_.final, mixture_.quantity); }
  std::string OriginalAmount() const { return AmountText(mixture_.original, mixture_.quantity); }
  std::string Sum() const { return NumStr(mixture_.quantity) + " + x"; }
  std::string FinalAmount() const { return AsDecimal(mixture_.final) + "(" + Sum() + ")"; }
  Mixture mixture_;
  double row_ = 0;  // of the next line of the equation
};

// --- Generator ---------------------------------------------------------------

void MixtureProblems::DrawProblem(RandomStream& random) {
  mixture_ = Mixture::Draw(random);
  problem.question = mixture_.Question();
  FillChoices(mixture_, problem, random);
}

// --- Problem page ------------------------------------------------------------

std::string MixtureProblems::Question() const {
  std::string text;
  for (const std::string& line : problem.question) text += (text.empty() ? "" : "  ") + line;
  return text;
}

void MixtureProblems::ShowProblem() {
  SayAt(5, Question());
  ShowAnswersInTwoColumns(problem, {.row = 12});
}

// --- Worked explanation ------------------------------------------------------

void MixtureProblems::ExplainProblem() {
  ProblemBanner();
  SayAt(4, Question());
  PageEnd();
  FillTable();
  MakeEquation();
  GatherX();
  DivideByCoefficient();
  Check();
  SayInBoxAnew(ConclusionText(problem, 'b'));
}

void MixtureProblems::FillTable() {
  const Mixture& m = mixture_;
  ShowMixtureTable(kTableRow, m.substance);
  WhiteBox({.row = kBoxRow});
  FillMixture(MixtureRow::Original, PercentText(m.original), NumStr(m.quantity), "");
  FillMixture(MixtureRow::Additive, PercentText(m.added), "x", "");
  FillMixture(MixtureRow::Final, PercentText(m.final), Sum(), "");
  SayInBox("Let's summarize what we know.  We call what is added x.");
  if (m.added == 0) SayInBox("Water has 0% " + m.substance + ".");
  if (m.added == 100) SayInBox("Pure " + m.substance + " has 100%.");
  PageEnd();
  SayInBoxAnew("Percent times quantity is the amount.  How much " + m.substance +
               " is in the original?");
  PageEnd();
  SayInBox(TimesText(AsDecimal(m.original), NumStr(m.quantity)) + " = " + OriginalAmount());
  FillMixture(MixtureRow::Original, "", "", OriginalAmount(), Blue);
  PageEnd();
  SayInBoxAnew(m.added == 0 ? "x times 0 is 0.  There is none in the water."
                            : PercentText(m.added) + " of the additive is " + m.substance +
                                  ".  Its quantity is x.");
  FillMixture(MixtureRow::Additive, "", "", m.added == 0 ? "0" : TermText(m.added), Blue);
  PageEnd();
  SayInBoxAnew("The final quantity is " + WithoutBreaks(Sum()) + ".  Its amount is " +
               PercentText(m.final) + " of all of it.");
  FillMixture(MixtureRow::Final, "", "", FinalAmount(), Blue);
  PageEnd();
}

// The next line, its signs of equality in one column.
void MixtureProblems::WriteLine(const std::string& left, const std::string& right) {
  constexpr int kSignCol = 17;
  ShowAt(row_, left, kSignCol - 1 - static_cast<double>(left.size()));
  ShowAt(row_, "= " + right, kSignCol);
  row_ += 1.25;
}

void MixtureProblems::MakeEquation() {
  const Mixture& m = mixture_;
  const std::string left = OriginalAmount() + (m.added == 0 ? "" : " + " + TermText(m.added));
  SayInBoxAnew("The first two amounts add up to the final one.");
  PageEnd();
  picPrintCellBoxMove(0, 40, "H", 10);
  picPrintCellBoxHide();
  row_ = kFirstLine;
  WriteLine(left, FinalAmount());
  PageEnd();
  SayInBoxAnew(Text("We multiply on the right side:  {} and {}.",
                    TimesText(AsDecimal(m.final), NumStr(m.quantity)) + " = " + FinalPart(),
                    TermText(m.final)));
  WriteLine(left, FinalPart() + " + " + TermText(m.final));
  PageEnd();
}

// To the side that has more of it, so that nothing is negative.
void MixtureProblems::GatherX() {
  const Mixture& m = mixture_;
  const int coefficient = std::abs(m.added - m.final);
  const double number = std::abs(m.original - m.final) * m.quantity / 100.0;
  const bool onLeft = m.added > m.final;
  if (m.added > 0) {
    SayInBoxAnew("We subtract " + TermText(std::min(m.added, m.final)) + " from both sides.");
    if (onLeft)
      WriteLine(OriginalAmount() + " + " + TermText(coefficient), FinalPart());
    else
      WriteLine(OriginalAmount(), FinalPart() + " + " + TermText(coefficient));
    PageEnd();
  }
  SayInBoxAnew("We subtract " + (onLeft ? OriginalAmount() : FinalPart()) + " from both sides.");
  if (onLeft)
    WriteLine(TermText(coefficient), NumStr(number));
  else
    WriteLine(NumStr(number), TermText(coefficient));
  PageEnd();
}

void MixtureProblems::DivideByCoefficient() {
  const Mixture& m = mixture_;
  const std::string coefficient = AsDecimal(std::abs(m.added - m.final));
  const double number = std::abs(m.original - m.final) * m.quantity / 100.0;
  SayInBoxAnew("We divide both sides by " + coefficient +
               (m.IsRounded() ? ", and round to the nearest hundredth." : "."));
  WriteLine("x", NumStr(number) + " " + tutor::Divided + " " + coefficient);
  WriteLine("", NumStr(m.Answer()));
  PageEnd();
}

// Whatever the percents, there is more of the one that the final percent is nearer to.
void MixtureProblems::Check() {
  const Mixture& m = mixture_;
  const int down = std::abs(m.original - m.final);
  const int up = std::abs(m.final - m.added);
  const std::string added = m.ValueText(m.Answer());
  const std::string had = m.ValueText(m.quantity);
  SayInBoxAnew(Text(
      "Check:  {} is {} away from the percent of the original, and {} from that of the additive.",
      PercentText(m.final), down, up));
  PageEnd();
  if (down == up)
    SayInBox("It is as far to both, so we need as much of both:  " + had + ".");
  else
    SayInBox(Text("So there must be {} of the additive:  {} against {}.",
                  Words{up < down ? "more" : "less"}, added, had));
  PageEnd();
}

const LessonRegistration<MixtureProblems> kRegistration("Mixture Problems");

}  // namespace
}  // namespace course
