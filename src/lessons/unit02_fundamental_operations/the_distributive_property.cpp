// The student can carry a factor to each term in parentheses, 4(x - 3) = 4x - 12, and sees where it
// was done wrong.
//
// A problem has four equations: with numbers, with a letter, with a coefficient, and one that is
// read from right to left, each with plus or minus.  One of the first five answers is right with
// equal chances: one of the equations is altered, or all are correct.
#include "lessons/families/properties/claim.h"
#include "lessons/families/properties/property_pages.h"
#include "lessons/lesson.h"

namespace course {
namespace {

using namespace properties;

using platform::colour::Cyan;
using platform::colour::White;
using platform::colour::Yellow;

constexpr const char* kAllCorrect = "All are correct.";
constexpr int kAllCorrectSlot = 5;

// --- Figures -------------------------------------------------------------------------------------

// Arrows over a product "3(x + 5)" from its factor to both terms; they take the row above.
void DrawSpread(double row, double col, const std::string& product) {
  const std::size_t open = product.find('(');
  const std::size_t sign = product.find_first_of("+-", open);
  const double tops[] = {row - 0.75, row - 1.1};
  const double ends[] = {col + static_cast<double>(open + sign - 1) / 2,
                         col + static_cast<double>(sign + product.find(')')) / 2 + 0.5};
  for (int i = 0; i < 2; ++i)
    isDrawArrow3Segment(row - 0.4, col, tops[i], col, tops[i], ends[i], row - 0.35, ends[i], Yellow,
                        "NA", "A");
}

void DrawDotRows(double row, double col, int rows, int columns, platform::Colour colour) {
  for (int i = 0; i < rows; ++i) DrawDots(row + i, col, columns, colour);
}

// --- Screen 1: a(b + c) --------------------------------------------------------------------------

void TwoColours() {
  constexpr double kRow = 5;
  constexpr double kCol = 10;
  NewScreen();
  SayAt(3, "3 rows, and 4 + 2 dots in each:");
  DrawDotRows(kRow, kCol, 3, 4, Yellow);
  DrawDotRows(kRow, kCol + 8, 3, 2, Cyan);
  ShowAt(9, "3(4 + 2) = 3" + kDot + "6 = 18", 8);
  Note(10.2, 4, "A number before parentheses multiplies.");
  Note(11.2, 18, "The dot means times:  3" + kDot + "6 is 3 " + tutor::Times + " 6.");
  SayAt(13, R"(\yTry it:\z  Now the colors come apart.  How many dots has each color?)");
  PageEnd();
  SlideRight({kRow - 0.2, kCol + 8, 4, 3.2}, 6);
  SayAt(16, R"(Yellow has 3 rows of 4, and the other color has 3 rows of 2.  Together:)");
  ShowAt(19, "3" + kDot + "4 + 3" + kDot + "2 = 12 + 6 = 18", 8);
  PageEnd();
}

void FactorToEachTerm() {
  NewScreen();
  SayAt(3, "So both ways give the same number:");
  ShowAt(6, "3(4 + 2) = 3" + kDot + "4 + 3" + kDot + "2", 8);
  DrawSpread(6, 8, "3(4 + 2)");
  PageEnd();
  Note(7.5, 6.3, "factor");
  Note(7.5, 10.8, "terms");
  SayAt(9.5, R"(4 and 2 are the \cterms\z in the parentheses:  they are added.  3 is the )"
             R"(\cfactor\z before them:  it multiplies.)");
  PageEnd();
  Say(R"(To distribute is to hand out.  The factor is handed out to each term.  This is the )"
      R"(\cdistributive property\z:)");
  PaperBox({"a(b + c) = ab + ac"});
  PageEnd();
}

void UnknownNumber() {
  NewScreen();
  Say(R"(\yTry it:\z  x is a number that we do not know.  Can we still distribute the 5?)");
  ShowAt(7, "5(x + 2)", 8);
  PageEnd();
  DrawSpread(7, 8, "5(x + 2)");
  ShowAt(7, "= 5" + kDot + "x + 5" + kDot + "2", 17);
  ShowAt(8.5, "= 5x + 10", 17);
  SayAt(10, Text("Yes.  We multiply x by 5, and 2 by 5.  {} is written 5x.", "5" + kDot + "x"));
  PageEnd();
  Say(R"(\yTry it:\z  5 friends buy lunch.  Each has a pizza for x dollars and a drink for 2 )"
      "dollars.  How much are the drinks?");
  PageEnd();
  Say("They are 10 dollars, not 2:  5 drinks were bought.");
  PaperBox({R"(5(x + 2) = 5x + 10,  \rnot 5x + 2\z)"});
  PageEnd();
}

void PutANumberIn() {
  NewScreen();
  Say(R"(\yCheck:\z  We put 3 in place of x.)");
  ShowAt(6, "5(3 + 2) = 5" + kDot + "5 = 25", 6);
  Say(R"(\yTry it:\z  Which of the two gives 25?)");
  ShowAt(9.5, "5x + 10          5x + 2", 6);
  PageEnd();
  ShowAt(11, R"(15 + 10 = \y25\z     15 + 2 = 17)", 6);
  Say(R"(Only the first does.  So 5x + 2 is wrong.)");
  PageEnd();
  Say(R"(\yTry it:\z  Tom writes 4(x + 3) = 4x + 7.  What has he done?)");
  PageEnd();
  Say(R"(He has added 4 and 3.  The factor must multiply:  4)" + kDot + "3 is 12.");
  PaperBox({R"(4(x + 3) = 4x + 12,  \rnot 4x + 7\z)"});
  PageEnd();
}

void InTheHead() {
  NewScreen();
  Say("The property helps us work in the head:");
  ShowAt(5.5, "6" + kDot + "12 = 6(10 + 2) = 60 + 12 = 72", 4);
  Say(R"(\yTry it:\z  What is )" + std::string("7") + kDot + "103?");
  PageEnd();
  ShowAt(9.5, "7(100 + 3) = 700 + 21 = 721", 4);
  SayAt(11, R"(It is \y721\z:  both 100 and 3 are multiplied by 7.)");
  PageEnd();
}

// --- Screen 2: a(b - c) --------------------------------------------------------------------------

void TakeAway() {
  constexpr double kRow = 5;
  constexpr double kCol = 10;
  NewScreen();
  SayAt(3, "We take 2 dots from each of 3 rows of 6:");
  DrawDotRows(kRow, kCol, 3, 4, Yellow);
  DrawDotRows(kRow, kCol + 8, 3, 2, Cyan);
  SayAt(9, R"(\yTry it:\z  How many do we take away, and how many are left?)");
  PageEnd();
  SlideRight({kRow - 0.2, kCol + 8, 4, 3.2}, 10);
  Say(Text("Each row keeps {}:  {}.  Or we take {} from {}:  {}.", "6 - 2 = 4",
           "3(6 - 2) = 3" + kDot + "4 = 12", "3" + kDot + "2", "3" + kDot + "6", "18 - 6 = 12"));
  ShowAt(17, "3(6 - 2) = 3" + kDot + "6 - 3" + kDot + "2", 8);
  DrawSpread(17, 8, "3(6 - 2)");
  PageEnd();
  SayAt(18.5, "The minus sign stays a minus sign:");
  RuleBox("Distributive Property", {"a(b - c) = ab - ac"}, {.width = 28});
  PageEnd();
}

void MinusStays() {
  NewScreen();
  Say(R"(\yTry it:\z  What is this without parentheses?)");
  ShowAt(6, "4(x - 3)", 8);
  PageEnd();
  DrawSpread(6, 8, "4(x - 3)");
  ShowAt(6, "= 4x - 12", 17);
  SayAt(8, R"(4 times x is 4x, and 4 times 3 is 12.)");
  SayAt(10, R"(\yWatch out:\z  The sign must not change.)");
  PaperBox({R"(4(x - 3) = 4x - 12,  \rnot 4x + 12\z)"});
  PageEnd();
  Say(R"(\yTry it:\z  Now the first term is 2x.  What is this without parentheses?)");
  ShowAt(17.5, "3(2x + 5)", 8);
  PageEnd();
  DrawSpread(17.5, 8, "3(2x + 5)");
  ShowAt(17.5, "= 6x + 15", 18);
  SayAt(19.5, Text("{} is {}, and {} is 15.", "3" + kDot + "2x", Words{"2x + 2x + 2x = 6x"},
                   "3" + kDot + "5"));
  PageEnd();
}

void BothDirections() {
  NewScreen();
  Say("An equation may be read in both directions.");
  ShowAt(6, "6(x + 2) = 6x + 12", 8);
  ShowAt(7.5, "6x + 12 = 6(x + 2)", 8);
  PageEnd();
  Say(R"(\yTry it:\z  Is this one right?)");
  ShowAt(11, "8x - 40 = 8(x - 5)", 8);
  PageEnd();
  SayAt(12.5, R"(Yes.  We distribute the 8 on the right side:  8x, and 8)" + kDot +
                  R"(5 = 40, with a \yminus\z sign.)");
  Say(R"(\yTry it:\z  And this?  )" + WithoutBreaks("7x + 9 = 7(x + 9)"));
  PageEnd();
  Say(Text("No.  {} is 63, not 9.", "7" + kDot + "9"));
  Say(R"(An equation \yobeys\z if distributing gives exactly the other side.)");
  PageEnd();
}

void FindTheWrongOne() {
  NewScreen();
  Say(R"(\yTry it:\z  Which one does not obey?)");
  ShowAt(5, "A:  7(4 + 2) = 28 + 14", 6);
  ShowAt(6.5, "B:  3(x - 5) = 3x - 5", 6);
  ShowAt(8, "C:  2x + 18 = 2(x + 9)", 6);
  PageEnd();
  WhiteBox({.row = 10, .rows = 9});
  SayInBox(Text("A:  {} is 28, and {} is 14.  Right.", "7" + kDot + "4", "7" + kDot + "2"));
  PageEnd();
  SayInBox(Text(R"(B:  {} is 15.  The 5 was not multiplied.  \bB is wrong.\z)", "3" + kDot + "5"));
  PageEnd();
  SayInBox(Text("C:  {} is 2x, and {} is 18.  Right.", "2" + kDot + "x", "2" + kDot + "9"));
  SayInBox(R"(The answer is \bB\z.)");
  PageEnd();
}

void AllObey() {
  NewScreen();
  Say(R"(\yTry it:\z  And which one of these two?)");
  ShowAt(5, "A:  6(x - 2) = 6x - 12", 6);
  ShowAt(6.5, "B:  5x + 20 = 5(x + 4)", 6);
  PageEnd();
  SayAt(8.5, Text("A:  {} is 12, and minus stays minus.", "6" + kDot + "2"));
  SayAt(10, Text("B:  {} is 20.", "5" + kDot + "4"));
  SayAt(12, Text(R"(Both obey.  Then the answer is:  \y{}\z)", kAllCorrect));
  PageEnd();
}

// --- The lesson ----------------------------------------------------------------------------------

class TheDistributiveProperty final : public LessonScript {
 public:
  using LessonScript::LessonScript;
  bool ChoicesAreLaidDown() const override { return true; }
  // The wrong boxes hold true equations: the explanation works out every one.
  bool TellsMistakes() const override { return false; }

 private:
  std::vector<Screen> Screens() override {
    return {{TwoColours, FactorToEachTerm, UnknownNumber, PutANumberIn, InTheHead},
            {TakeAway, MinusStays, BothDirections, FindTheWrongOne, AllObey}};
  }
  void DrawProblem(RandomStream& random) override;
  void ShowProblem() override;
  void ExplainProblem() override;

  void FillChoices(int correct);
  void ExplainClaim(int index) const;

  std::array<Claim, kForms> claims_;  // as they stand in the boxes
};

// --- Generator -----------------------------------------------------------------------------------

void TheDistributiveProperty::DrawProblem(RandomStream& random) {
  const int correct = random.Rand(1, kAllCorrectSlot);
  const bool keepsSecondTerm = random.Rand(0, 1) == 1;
  const std::string letter = random.OneOf(kVariableLetters);
  const std::vector<int> factors = random.RandSeq(8, kForms);  // 2 to 9, all different
  std::array<Claim, kForms> drawn;
  for (int i = 0; i < kForms; ++i) {
    const auto at = static_cast<std::size_t>(i);
    drawn[at] = DrawClaim(static_cast<Form>(i), factors[at] + 1, letter, random);
  }
  const std::vector<int> order = random.RandSeq(kForms, kForms);
  for (std::size_t i = 0; i < kForms; ++i)
    claims_[i] = drawn[static_cast<std::size_t>(order[i] - 1)];
  if (correct < kAllCorrectSlot) {
    Claim& claim = claims_[static_cast<std::size_t>(correct - 1)];
    claim.alteration = keepsSecondTerm ? Alteration::SecondTerm
                       : claim.minus   ? Alteration::Sign
                                       : Alteration::Sum;
  }
  FillChoices(correct);
}

// What makes a student turn down an equation that is true.
std::string MistakeAtTrueClaim(const Claim& claim) {
  if (claim.minus) return "expects the minus sign to change";
  return claim.form == Form::Letter || claim.form == Form::Backwards
             ? "expects the second term to stay as it is"
             : "expects a sum in place of a product";
}

void TheDistributiveProperty::FillChoices(int correct) {
  problem.question = {"Which of the following DOES NOT obey the Distributive Property?"};
  problem.kind = choice_kind::FiveInOrder;
  std::string overlooked;
  for (int i = 0; i < kForms; ++i) {
    const Claim& claim = claims_[static_cast<std::size_t>(i)];

    if (claim.alteration == Alteration::None)
      problem.Wrong(i + 1, MistakeAtTrueClaim(claim), claim.Text());
    else
      problem.Right(i + 1, claim.Text());
    if (claim.alteration == Alteration::SecondTerm)
      overlooked = "overlooks a second term that stays as it is";
    if (claim.alteration == Alteration::Sign) overlooked = "overlooks a sign that changes";
    if (claim.alteration == Alteration::Sum) overlooked = "overlooks a sum in place of a product";
  }
  if (correct == kAllCorrectSlot)
    problem.Right(kAllCorrectSlot, kAllCorrect);
  else
    problem.Wrong(kAllCorrectSlot, overlooked, kAllCorrect);
}

// --- Problem page --------------------------------------------------------------------------------

void TheDistributiveProperty::ShowProblem() {
  SayAt(5, R"(Which of the following \cDOES NOT\z obey the Distributive Property?)");
  ShowAnswersInOneColumn(problem, {.row = 9, .width = 26});
}

// --- Worked explanation --------------------------------------------------------------------------

constexpr double kListRow = 7.5;  // of the four equations
constexpr double kListCol = 3;
constexpr double kVerdictCol = 31;
constexpr double kBelowList = 12;
constexpr double kWorkRow = 14;

std::string LetterOf(int index) {
  return std::string(1, static_cast<char>('A' + index)) + ":  ";
}

// What is wrong with an altered equation.
std::string Fault(const Claim& claim) {
  if (claim.alteration == Alteration::SecondTerm)
    return Text("The {} was not multiplied by {}.", claim.second, claim.factor);
  if (claim.alteration == Alteration::Sign) return "The sign has changed.";
  return Text("{} and {} were added.  They must be multiplied.", claim.factor, claim.second);
}

// The product of one equation is worked out below the list, and the list gets the verdict.
void TheDistributiveProperty::ExplainClaim(int index) const {
  const Claim& claim = claims_[static_cast<std::size_t>(index)];
  const std::string start = LetterOf(index);
  const double col = kListCol + static_cast<double>(start.size());
  const auto width = static_cast<double>(claim.Product().size());
  ClearBelow(kBelowList);
  ShowAt(kWorkRow, start + claim.Product() + " = " + claim.Spread(), kListCol);
  DrawSpread(kWorkRow, col, claim.Product());
  ShowAt(kWorkRow + 1.5, "= " + claim.RightSum(), col + width + 1);
  if (claim.alteration == Alteration::None) {
    SayAt(kWorkRow + 3.5, "The equation says the same.");
    ShowAt(kListRow + index, "obeys", kVerdictCol);
  } else {
    SayAt(kWorkRow + 3.5, Text("But the equation has {}.", claim.ClaimedSum()));
    PageEnd();
    Say(Fault(claim));
    ShowAt(kListRow + index, R"(\ydoes not\z)", kVerdictCol);
  }
  PageEnd();
}

void TheDistributiveProperty::ExplainProblem() {
  ProblemBanner();
  SayAt(5, problem.question[0]);
  for (int i = 0; i < kForms; ++i)
    ShowAt(kListRow + i, LetterOf(i) + claims_[static_cast<std::size_t>(i)].Text(), kListCol);
  PageEnd();
  for (int i = 0; i < kForms; ++i) ExplainClaim(i);
  ClearBelow(kBelowList);
  if (problem.correct == kAllCorrectSlot)
    SayAt(kBelowList, Text(R"(Every equation obeys the property.  \y{}\z)", kAllCorrect));
  else
    ConcludeAt(kBelowList, problem);
}

const LessonRegistration<TheDistributiveProperty> kRegistration("The Distributive Property");

}  // namespace
}  // namespace course
