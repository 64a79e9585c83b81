// The student can find how much of a solution, of water or of a pure substance must be added to a
// mixture to reach a percent: amounts are percent times quantity, and amounts add up.
#include "display/drawing.h"
#include "lessons/families/fractions/fraction_steps.h"
#include "lessons/families/stories/mixture.h"
#include "lessons/families/stories/mixture_table.h"
#include "lessons/families/stories/story_words.h"
#include "lessons/lesson.h"

namespace course {
namespace {

using namespace stories;
using fractions::DrawStrip;

using platform::colour::Blue;
using platform::colour::Yellow;

// Rows of an explanation: the table, later the equations; the box with words.
constexpr double kTableRow = 9.4;
constexpr double kFirstLine = 9.8;
constexpr double kBoxRow = 17.8;

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
  NewScreen();
  SayAt(3, "An alloy is a mixture of metals.");
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
  FillMixture(MixtureRow::Final, "30%", "40", "12", Blue);
  ClearBelow(14);
  SayAt(14, "12 of 40 is 12/40 = .3, so it is 30%.");
  Say(R"(\yWatch out:\z  Percents do not add up.  Their mean is right only when the two )"
      "quantities are equal.");
  PageEnd();
}

// An equation, its sign in the same column.
void ShowSides(const std::string& left, const std::string& right) {
  constexpr int kSignCol = 15;
  const double row = NextRow();
  ShowAt(row, left, kSignCol - 1 - static_cast<double>(left.size()));
  ShowAt(row, "= " + right, kSignCol);
}

void TheUnknown() {
  NewScreen();
  SayAt(2,
        "A scientist has 20 mL of a 30% acid solution.  How much of a 60% one makes it a 40% "
        "acid solution?");
  ShowMixtureTable(5.5, "acid");
  FillMixture(MixtureRow::Original, "30%", "20", "6");
  SayAt(14, R"(What is added, the \cadditive\z, is x.)");
  PageEnd();
  FillMixture(MixtureRow::Additive, "60%", "x", ".6x", Blue);
  Say("60% of x is acid:  .6x.  It would be 0 for water, and x for pure acid.");
  Say("What is the final quantity?");
  PageEnd();
  FillMixture(MixtureRow::Final, "40%", "20 + x", "", Blue);
  ClearBelow(14);
  SayAt(14, R"(It is 20 + x.  \yWatch out:\z  it is not 20.)");
  Say("40% of all of it must be acid.  How do we write this amount?");
  PageEnd();
  FillMixture(MixtureRow::Final, "", "", ".4(20 + x)", Blue);
  Say("The amounts of acid add up:");
  Show("6 + .6x = .4(20 + x)");
  AddLine(R"(\yTry it:\z  Multiply on the right side.)");
  PageEnd();
  ClearBelow(14);
  ShowSides("6 + .6x", ".4(20 + x)");
  ShowSides("6 + .6x", "8 + .4x");
  Say("We subtract .4x:");
  ShowSides("6 + .2x", "8");
  PageEnd();
  ClearBelow(14);
  SayAt(14, "We subtract 6:");
  ShowSides(".2x", "2");
  SayAt(17, "We divide by .2:");
  ShowSides("x", "2 " + tutor::Divided + " .2 = 10");
  PageEnd();
  ClearBelow(14);
  SayAt(14, "x is 10, so 10 mL must be added.");
  Say(Text("Check:  {}", ".4 " + tutor::Times + " 30 = 12 = 6 + 6"));
  Say(R"(\yWatch out:\z  30 mL is the whole mixture.  We were asked what is added.)");
  PageEnd();
}

void Water() {
  NewScreen();
  SayAt(2, "12 mL of a 50% alcohol solution are too strong.  How much water makes it 30%?");
  ShowMixtureTable(4.5, "alcohol");
  FillMixture(MixtureRow::Original, "50%", "12", "6");
  FillMixture(MixtureRow::Final, "30%", "12 + x", "");
  SayAt(13.5, "How much alcohol is in x mL of water?");
  PageEnd();
  FillMixture(MixtureRow::Additive, "0%", "x", "0", Blue);
  FillMixture(MixtureRow::Final, "", "", ".3(12 + x)", Blue);
  SayAt(15, "None.  Water is 0% alcohol:");
  ShowSides("6", ".3(12 + x)");
  ShowSides("6", "3.6 + .3x");
  PageEnd();
  ClearBelow(13.5);
  SayAt(13.5, "We subtract 3.6:");
  ShowSides("2.4", ".3x");
  SayAt(16.5, "We divide by .3:");
  ShowSides("x", "2.4 " + tutor::Divided + " .3 = 8");
  PageEnd();
  Say("8 mL of water must be added.");
  AddLine(Text("Check:  {}.", ".3 " + tutor::Times + " 20 = 6"));
  PageEnd();
}

void PureSubstance() {
  NewScreen();
  SayAt(2, "How much pure salt makes 20 g of a 10% salt water solution a 25% one?");
  ShowMixtureTable(4.5, "salt");
  FillMixture(MixtureRow::Original, "10%", "20", "2");
  FillMixture(MixtureRow::Final, "25%", "20 + x", "");
  SayAt(13.5, "What percent of pure salt is salt?");
  PageEnd();
  FillMixture(MixtureRow::Additive, "100%", "x", "x", Blue);
  FillMixture(MixtureRow::Final, "", "", ".25(20 + x)", Blue);
  SayAt(15, "Pure salt is 100% salt:");
  ShowSides("2 + x", ".25(20 + x)");
  ShowSides("2 + x", "5 + .25x");
  PageEnd();
  ClearBelow(13.5);
  SayAt(13.5, "We subtract .25x, and then 2:");
  ShowSides("2 + .75x", "5");
  ShowSides(".75x", "3");
  PageEnd();
  SayAt(17.5, "We divide by .75:");
  ShowSides("x", "3 " + tutor::Divided + " .75 = 4");
  Say("4 g of pure salt must be added.");
  AddLine(Text("Check:  {}.", ".25 " + tutor::Times + " 24 = 6 = 2 + 4"));
  PageEnd();
}

void WeakerSolution() {
  NewScreen();
  SayAt(3, R"(\yTry it:\z  How much of a 20% acid solution makes 20 mL of a 50% one a 30% one?)");
  PageEnd();
  SayAt(6, "The amounts of acid are 10, .2x and .3(20 + x):");
  ShowSides("10 + .2x", "6 + .3x");
  AddLine(R"(There is \ymore x\z on the right.)");
  PageEnd();
  Say("We subtract .2x, and then 6:");
  ShowSides("10", "6 + .1x");
  ShowSides("4", ".1x");
  AddLine("We divide by .1:  x = 40, so 40 mL.");
  PageEnd();
}

// A plain line with its ticks at 50, 60, 70 and 80, and a mark at 70.
void ShowPercentLine() {
  constexpr double kRow = 7;
  constexpr double kTickColumns[] = {6, 15, 24, 33};
  isDrawHorizLine(kRow, 4, 35, 2);
  for (int percent = 50; const double col : kTickColumns) {
    isDrawVertLine(col, kRow - 0.3, kRow - 0.1, 2);
    SayAt(kRow + 1, NumStr(percent), {.col = col - 0.5});
    percent += 10;
  }
  isDrawBullet(kRow, kTickColumns[2], Yellow);
}

void DoesItFit() {
  NewScreen();
  SayAt(3, "30 g of a 50% gold alloy and x g of an 80% one make a 70% one.");
  ShowPercentLine();
  SayAt(10, "Is 70 nearer to 50 or to 80?");
  PageEnd();
  SayAt(5.2, "20 away", {.col = 12});
  SayAt(5.2, "10 away", {.col = 26});
  SayAt(11.5,
        "With equal quantities we get 65%, the mean.  70 is nearer to 80, so there must be "
        R"(\ymore\z of the 80% alloy.)");
  PageEnd();
  Say("Lee gets x = 15, and Kim gets x = 60.  Who can be right?");
  PageEnd();
  Say("Only Kim:  60 g are more than 30 g.  Lee uses the two distances the wrong way around:");
  AddLine("30 " + tutor::Times + " 10/20 = 15", {.col = 3});
  PageEnd();
  NewScreen();
  SayAt(3, R"(\yTry it:\z  Round to the nearest hundredth.)");
  Show("x = 12.15 " + tutor::Divided + " .11 = 110.4545...");
  PageEnd();
  Say("The third digit after the point is 4, so x is about 110.45.");
  PageEnd();
}

// --- The lesson --------------------------------------------------------------

class MixtureProblems final : public LessonScript {
 public:
  using LessonScript::LessonScript;
  bool ChoicesAreLaidDown() const override { return true; }

 private:
  std::vector<Screen> Screens() override {
    return {{PercentTimesQuantity, TwoSolutions, TheUnknown, Water, PureSubstance, WeakerSolution,
             DoesItFit}};
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

  // .4 times 20, for a final mixture without the additive.
  std::string FinalPart() const { return AmountText(mixture_.final, mixture_.quantity); }
  std::string OriginalAmount() const { return AmountText(mixture_.original, mixture_.quantity); }
  std::string Sum() const { return NumStr(mixture_.quantity) + " + x"; }
  std::string FinalAmount() const { return AsDecimal(mixture_.final) + "(" + Sum() + ")"; }
  Mixture mixture_;
  double row_ = 0;  // of the next line of the equation
};

// --- Problem ------------------------------------------------------------------

void MixtureProblems::DrawProblem(RandomStream& random) {
  mixture_ = Mixture::Draw(random);
  problem.question = mixture_.Question();
  FillChoices(mixture_, problem, random);
}

void MixtureProblems::ShowProblem() {
  SayAt(5, OneParagraph(problem.question));
  ShowAnswersInTwoColumns(problem, {.row = 12});
}

// --- Worked explanation ------------------------------------------------------

void MixtureProblems::ExplainProblem() {
  ProblemBanner();
  SayAt(4, OneParagraph(problem.question));
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
  SayInBox(
      "Let's summarize what we know.  What is added is the additive.  We call its quantity x.");
  if (m.added == 0) SayInBox("Water is 0% " + m.substance + ".");
  if (m.added == 100) SayInBox("Pure " + m.substance + " is 100% " + m.substance + ".");
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
  SayInBoxAnew("The first two amounts add up to the final one:");
  SayInBox(WithoutBreaks(left + " = " + FinalAmount()));
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
  if (m.IsRounded())
    SayInBox("So x is about " + NumStr(m.Answer()) + ".");
  else
    WriteLine("", NumStr(m.Answer()));
  PageEnd();
}

// Whatever the percents, there is more of the one that the final percent is nearer to.
void MixtureProblems::Check() {
  const Mixture& m = mixture_;
  const int down = std::abs(m.original - m.final);
  const int up = std::abs(m.final - m.added);
  const std::string had = m.ValueText(m.quantity);
  if (down == up)
    SayInBoxAnew(Text("Check:  {} is the mean of {} and {}.  So we need as much of both:  {}.",
                      PercentText(m.final), PercentText(m.original), PercentText(m.added), had));
  else
    SayInBoxAnew(
        Text("Check:  {} is nearer to {} than to {}.  So there must be {} of the "
             "additive:  {} against {}.",
             PercentText(m.final), PercentText(up < down ? m.added : m.original),
             PercentText(up < down ? m.original : m.added), Words{up < down ? "more" : "less"},
             m.ValueText(m.Answer()), had));
  PageEnd();
  const double whole = m.quantity + m.Answer();
  const double inAdded = m.added * m.Answer() / 100;
  SayInBoxAnew(
      Text("The amounts of {} are {}the same:  {} in the two parts, and {} in the whole.",
           m.substance, Words{m.IsRounded() ? "nearly " : ""},
           OriginalAmount() + " + " + NumStr(inAdded) + " = " +
               NumStr(m.original * m.quantity / 100.0 + inAdded),
           TimesText(AsDecimal(m.final), NumStr(whole)) + " = " + NumStr(m.final * whole / 100)));
  PageEnd();
}

const LessonRegistration<MixtureProblems> kRegistration("Mixture Problems");

}  // namespace
}  // namespace course
