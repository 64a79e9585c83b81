// The student can factor a trinomial such as 6x^2 + 11x - 10: tries pairs of first and last numbers
// in an order that leaves none out, until the outer and the inner product make the middle term, and
// puts the signs in last.
#include "lessons/families/factoring/factor_trials.h"
#include "lessons/families/factoring/factored_trinomial.h"
#include "lessons/families/factoring/product_figures.h"
#include "lessons/families/polynomials/factor_moves.h"
#include "lessons/families/polynomials/trinomial.h"
#include "lessons/lesson.h"

namespace course {
namespace {

using namespace factoring;
using namespace polynomials;

constexpr int kLargest = 9;         // size of the numbers in the factors
constexpr double kTrialRows = 1.5;  // that a line takes in the white box

// --- Teaching screens ----------------------------------------------------------------------------

void SayTrial(const Trial& trial, bool found) {
  SayInBox((found ? R"(\b)" : "") + TrialLine(trial));
}

// All trials in a white box, up to the right one.
void SayTrials(const Trinomial& trinomial) {
  const std::vector<Trial> trials = TrialsUntilFound(trinomial);
  WhiteBox({.rows = kTrialRows * static_cast<double>(trials.size()) + 0.5});
  for (const Trial& trial : trials) SayTrial(trial, &trial == &trials.back());
}

void SayPairs(const Trinomial& trinomial) {
  Say("  first numbers: " + PairsText(trinomial.square), {.indent = 18});
  AddLine("  last numbers:  " + PairsText(trinomial.constant), {.indent = 18});
}

// A white box with room for so many lines, and the first trial in it.
void StartTrials(const Trial& first, int lines) {
  WhiteBox({.rows = kTrialRows * lines + 0.5});
  SayTrial(first, false);
}

void SayIdentity(const Factors& factors) {
  Say("  " + WithoutBreaks(Identity(factors)));
}

void FourProducts() {
  constexpr Factors kFactors = {{1, 3}, {2, 1}};
  constexpr double kRow = 7;
  constexpr double kCol = 5;
  NewScreen();
  SayAt(3, Text("{} comes from two factors:", TrinomialText(kFactors.Product())));
  ShowAt(kRow, FactorsText(kFactors), kCol);
  DrawOuterAndInner(kRow, kCol, kFactors);
  ShowAt(6.1, R"(\youter terms)", 24);
  ShowAt(8, R"(\cinner terms)", 24);
  PageEnd();
  WhiteBox({.row = 9.5, .rows = 6.5});
  SayInBox("first terms:  (x)(2x) = 2x^2^");
  SayInBox("outer terms:  (x)(1) = x");
  SayAt(16.5, R"(\yTry it:\z  Which two products are still missing?)");
  PageEnd();
  SayInBox("inner terms:  (3)(2x) = 6x");
  SayInBox("last terms:   (3)(1) = 3");
  ClearBelow(16.5);
  SayAt(16.5, "Sum:  2x^2^ + x + 6x + 3 = " + WithoutBreaks(TrinomialText(kFactors.Product())));
  AddLine("The middle term is x + 6x = 7x.");
  PageEnd();
}

void ThreeRules() {
  NewScreen();
  SayAt(3, Text("The numbers of a trinomial have names, and the sign belongs to the number.  In {} "
                "they are {}, {} and {}.",
                TrinomialText({6, -1, -2}), "a = 6", "b = -1", "c = -2"));
  PageEnd();
  RuleBox("Factoring ax^2^ + bx + c",
          {"The first numbers have the product a.", "The last numbers have the product c.",
           "Outer + inner product is bx."},
          {.width = 38});
  PageEnd();
}

void TwoPlaces() {
  constexpr Trinomial kAsked = {2, 11, 5};
  const std::vector<Trial> trials = TrialsUntilFound(kAsked);
  NewScreen();
  SayAt(3, Text("Let's factor {}.  We have one pair each:", TrinomialText(kAsked)));
  SayPairs(kAsked);
  PageEnd();
  Say("Only the places are open.  The gaps are room for the signs:");
  StartTrials(trials.front(), 2);
  Say(R"(7x is wrong.  \yTry it:\z  Exchange 1 and 5.)");
  PageEnd();
  SayTrial(trials.back(), true);
  Say("The blue line is the right one:");
  SayIdentity({{1, 5}, {2, 1}});
  PageEnd();
}

void AnOrder() {
  constexpr Trinomial kAsked = {6, 19, 10};
  const std::vector<Trial> trials = TrialsUntilFound(kAsked);
  NewScreen();
  SayAt(3, Text("Now let's factor {}.  There are more pairs:", TrinomialText(kAsked)));
  SayPairs(kAsked);
  PageEnd();
  Say("We keep an order, so that we leave none out:  pairs whose numbers are closest come first.");
  StartTrials(trials.front(), 2);
  PageEnd();
  Say(
      Text("2x + 2 has the common factor 2, but {} has none:  19 is not divisible by 2.  So no "
           "factor may have one.  We need not multiply.",
           TrinomialText(kAsked)));
  PageEnd();
  SayTrial(trials.back(), true);
  SayIdentity({{2, 5}, {3, 2}});
  PageEnd();

  NewScreen();
  SayAt(3, R"(\yWatch out:\z  When all three terms have a common factor, take it out first.)");
  Show("4x^2^ + 14x + 6 = 2(" + TrinomialText({2, 7, 3}) + ")");
  Show("              = 2(x + 3)(2x + 1)");
  PageEnd();
}

// Large numbers: which trials can be left out, and which one comes next.
void AShorterSearch() {
  constexpr Trinomial kManyPairs = {24, 47, 20};
  constexpr Trinomial kTooLarge = {21, 22, 5};
  NewScreen();
  SayAt(3, Text("{} has many pairs:", TrinomialText(kManyPairs)));
  SayPairs(kManyPairs);
  PageEnd();
  Say("4 and 6 are even, and so is one of the last numbers:  behind 4x or 6x it makes the common "
      "factor 2.  We need not try 4 and 6, nor 2 and 12.");
  PageEnd();
  Say("3 and 8 are left.  Behind 8x the last number must be odd:");
  WhiteBox({.rows = kTrialRows + 0.5});
  SayTrial(TrialsUntilFound(kManyPairs).back(), true);
  SayIdentity({{3, 4}, {8, 5}});
  PageEnd();

  NewScreen();
  SayAt(3, Text("In {} we begin with 3 and 7:", TrinomialText(kTooLarge)));
  StartTrials({{{3, 5}, {7, 1}}, true}, 2);
  Say(R"(\yTry it:\z  Is 38x too large or too small?  What do we try next?)");
  PageEnd();
  Say("Too large:  5 was multiplied by 7x.  With 3x it gives less:");
  SayTrial(TrialsUntilFound(kTooLarge).back(), true);
  SayIdentity({{3, 1}, {7, 5}});
  PageEnd();
  RuleBox("Where does the larger last number go?",
          {"Too large:  behind the larger first number.",
           "Too small:  behind the smaller first number.", "Far too small:  pairs farther apart."},
          {.width = 39});
  PageEnd();
}

void SameSigns() {
  constexpr Trinomial kAsked = {3, -10, 8};
  NewScreen();
  SayAt(3, R"(10 is \ypositive\z:  its factors have the same sign, that of the middle term:)");
  PaperBox({Identity({{2, 5}, {3, 2}}), Identity({{2, -5}, {3, -2}})});
  PageEnd();
  Say(Text(R"(\yTry it:\z  What are the factors of {}?)", TrinomialText(kAsked)));
  SayPairs(kAsked);
  PageEnd();
  SayTrials(kAsked);
  Say("The middle term is -10x:  both signs are minus.");
  SayIdentity({{1, -2}, {3, -4}});
  PageEnd();
}

void DifferentSigns() {
  constexpr Trinomial kAsked = {6, 11, -10};
  constexpr Trinomial kTried = {6, -1, -2};
  NewScreen();
  SayAt(3, R"(When the last number is \ynegative\z, one sign is plus and one is minus.  So one of )"
           "the products is subtracted from the other.");
  PageEnd();
  Say(Text("Let's factor {}.  We take the smaller product from the larger:",
           TrinomialText(kAsked)));
  SayTrials(kAsked);
  PageEnd();
  Say("For +11x the larger product, 15x, must be positive.  It comes from 5 and 3x, so the 5 gets "
      "plus:");
  RaiseConstants(NextRow() + 0.5, 3, {{2, 5}, {3, -2}});
  PageEnd();

  NewScreen();
  SayAt(3, R"(\yWatch out:\z  Do not reverse the signs:)");
  PaperBox({R"(\r(2x - 5)(3x + 2)\z gives -11x)"});
  Say(Text(R"(\yTry it:\z  What are the factors of {}?)", TrinomialText(kTried)));
  PageEnd();
  Say("We look for x;  its sign comes last:");
  SayTrials(kTried);
  Say("The sum is -x:  4x must be negative.");
  SayIdentity({{2, 1}, {3, -2}});
  PageEnd();
}

void ALongSearch() {
  constexpr Trinomial kAsked = {12, 4, -5};
  constexpr Factors kRight = {{2, -1}, {6, 5}};
  const std::vector<Trial> trials = TrialsUntilFound(kAsked);
  NewScreen();
  SayAt(3, Text("A longer search:  {}.", TrinomialText(kAsked)));
  SayPairs(kAsked);
  PageEnd();
  StartTrials(trials.front(), 3);
  Say(R"(\yTry it:\z  11x is too large.  Will it help to exchange 1 and 5?)");
  PageEnd();
  SayTrial(trials[1], false);
  SayTrial(trials[2], true);
  Say("No, 17x is larger still.  But 2x and 6x give 4x.");
  PageEnd();

  NewScreen();
  SayAt(3, "+4x:  10x must be positive.  It comes from 5 and 2x, so the 5 gets the plus sign:");
  RaiseConstants(NextRow() + 0.5, 3, kRight);
  PageEnd();
  Say(R"(\yCheck:\z  )" + WithoutBreaks("12x^2^ + 10x - 6x - 5"));
  AddLine("      = " + WithoutBreaks(TrinomialText(kAsked)));
  PaperBox({"c is positive:  both signs are that of bx",
            "c is negative:  the larger product has that sign"});
  PageEnd();
}

// --- The lesson ----------------------------------------------------------------------------------

class TrinomialsAX2BxC final : public LessonScript {
 public:
  using LessonScript::LessonScript;

 private:
  std::vector<Screen> Screens() override {
    return {{FourProducts, ThreeRules, TwoPlaces, AnOrder, AShorterSearch},
            {SameSigns, DifferentSigns, ALongSearch}};
  }
  void DrawProblem(RandomStream& random) override;
  void ShowProblem() override;
  void ExplainProblem() override;

  std::vector<WrongFactors> Mistakes() const;

  void BeginPage();
  void TellPairs() const;
  std::string SignSentence() const;
  void GoThroughTrials();
  void PutSignsIn();

  Factors right_;
  Trinomial asked_;
};

// --- Generator -----------------------------------------------------------------------------------

// What all trials lead to that do not give the middle term, and the right one with wrong signs.
std::vector<WrongFactors> TrinomialsAX2BxC::Mistakes() const {
  WrongFactors commonFactor = {"puts numbers with a common factor into one factor", {}};
  WrongFactors wrongFirst = {"takes the wrong pair for the first numbers", {}};
  WrongFactors wrongLast = {"takes the wrong pair for the last numbers", {}};
  WrongFactors wrongBoth = {"checks only the first and last terms", {}};
  for (const Trial& trial : AllTrials(asked_)) {
    if (trial.Middle() == std::abs(asked_.middle)) continue;
    const bool sameFirst = trial.HasFirstNumbersOf(right_);
    const bool sameLast = trial.HasLastNumbersOf(right_);
    if (sameFirst && sameLast) continue;  // the last numbers are exchanged
    WrongFactors& wrong = trial.CommonFactor() > 1 ? commonFactor
                          : sameLast               ? wrongFirst
                          : sameFirst              ? wrongLast
                                                   : wrongBoth;
    wrong.factors.push_back(WithSigns(trial, asked_));
    if (trial.added)  // the last term does not tell the sign
      wrongBoth.factors.push_back(BothSignsReversed(WithSigns(trial, asked_)));
  }
  std::vector<WrongFactors> mistakes = {{"reverses both signs", {BothSignsReversed(right_)}}};
  for (const WrongFactors& wrong : {commonFactor, wrongFirst, wrongLast, wrongBoth})
    if (!wrong.factors.empty()) mistakes.push_back(wrong);
  return mistakes;
}

void TrinomialsAX2BxC::DrawProblem(RandomStream& random) {
  right_ = DrawFactors(random, kLargest);
  asked_ = right_.Product();
  problem.question = {"Find the factors of this trinomial:", TrinomialText(asked_)};
  const WrongSign wrongSign = {random.Rand(1, 2) == 1};
  FillFactorChoices(problem, right_, wrongSign, Mistakes(), kLargest, random);
}

// --- Problem page --------------------------------------------------------------------------------

void TrinomialsAX2BxC::ShowProblem() {
  SayAt(5, problem.question[0]);
  ShowAt(7, problem.question[1], 4);
  ShowAnswersInTwoColumns(problem, {.width = 20, .fontSize = 18});  // (2x + 3)(20x + 3) is long
}

// --- Worked explanation --------------------------------------------------------------------------

void TrinomialsAX2BxC::ExplainProblem() {
  BeginPage();
  PageEnd();
  TellPairs();
  Say(SignSentence());
  PageEnd();
  GoThroughTrials();
  PutSignsIn();
  CheckByMultiplying(14, right_);
  PageEnd();
  Conclude(problem);
}

void TrinomialsAX2BxC::BeginPage() {
  ProblemBanner();
  SayAt(5, problem.question[0]);
  ShowAt(6, problem.question[1], 4);
}

void TrinomialsAX2BxC::TellPairs() const {
  Say(Text(R"(The \yfirst\z numbers have the product {}:)", asked_.square));
  AddLine("  " + PairsText(asked_.square));
  PageEnd();
  Say(Text(asked_.constant > 0 ? R"(The \ylast\z numbers have the product {}:)"
                               : R"(Without signs the \ylast\z numbers have the product {}:)",
           std::abs(asked_.constant)));
  AddLine("  " + PairsText(asked_.constant));
  PageEnd();
}

// What is done with the outer and the inner product.
std::string TrinomialsAX2BxC::SignSentence() const {
  const std::string middle = CoefText(std::abs(asked_.middle)) + "x";
  if (asked_.constant > 0)
    return Text(
        "The last number is positive, so both signs are the same.  The outer and the inner "
        "product are added.  We need {}.",
        middle);
  return Text(
      "The last number is negative, so the signs are different.  The smaller product is "
      "subtracted from the larger.  We need {}.",
      middle);
}

// One a page; the box is wiped when it is full.
void TrinomialsAX2BxC::GoThroughTrials() {
  constexpr std::size_t kInBox = 8;
  NewScreen();
  BeginPage();
  SayAt(8, Text("We try the closest numbers first, until the result is {}x:",
                CoefText(std::abs(asked_.middle))));
  const std::vector<Trial> trials = TrialsUntilFound(asked_);
  const std::size_t lines = std::min(kInBox, trials.size());
  WhiteBox({.row = 10.5, .rows = kTrialRows * static_cast<double>(lines) + 0.5});
  for (std::size_t i = 0; i < trials.size(); ++i) {
    if (i > 0) PageEnd();
    if (i > 0 && i % kInBox == 0) SayInBoxAnew("");
    SayTrial(trials[i], i + 1 == trials.size());
  }
  PageEnd();
}

void TrinomialsAX2BxC::PutSignsIn() {
  const Trial found = TrialsUntilFound(asked_).back();
  const std::string sign = asked_.middle > 0 ? "plus" : "minus";
  NewScreen();
  BeginPage();
  if (found.added) {
    SayAt(8, Text("The numbers are found.  The middle term has a {} sign, so both signs are {}:",
                  Words{sign}, Words{sign}));
  } else {
    const bool outerIsLarger = found.Outer() > found.Inner();
    const Factors& sizes = found.sizes;
    const int lead = outerIsLarger ? sizes.first.lead : sizes.second.lead;
    const int last = outerIsLarger ? sizes.second.constant : sizes.first.constant;
    const int other = outerIsLarger ? sizes.first.constant : sizes.second.constant;
    const char* const place = outerIsLarger ? " in the second factor" : " in the first factor";
    SayAt(8, Text("The larger product, {}, comes from {} and {}{}.  It must be {}, so this {} gets "
                  "the {} sign:",
                  CoefText(lead * last) + "x", CoefText(lead) + "x", last,
                  Words{last == other ? place : ""},
                  Words{asked_.middle > 0 ? "positive" : "negative"}, last, Words{sign}));
  }
  RaiseConstants(11.5, 4, right_);
  PageEnd();
}

const LessonRegistration<TrinomialsAX2BxC> kRegistration("Trinomials of the Form ax\xB2+bx+c");

}  // namespace
}  // namespace course
