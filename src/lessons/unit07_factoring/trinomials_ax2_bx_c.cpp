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
  AddLine("  first numbers:  " + PairsText(trinomial.square));
  AddLine("  last numbers:   " + PairsText(trinomial.constant));
}

void FourProducts() {
  constexpr Factors kFactors = {{1, 3}, {2, 1}};
  constexpr double kRow = 7;
  constexpr double kCol = 5;
  const std::string d = tutor::Dot;
  NewScreen();
  SayAt(3,
        Text("A number can stand before x^2^, as in {}.  Such a trinomial comes from two factors:",
             TrinomialText(kFactors.Product())));
  ShowAt(kRow, FactorsText(kFactors), kCol);
  DrawOuterAndInner(kRow, kCol, kFactors);
  PageEnd();
  Note(6.2, 22, "outer terms");
  Note(7.8, 22, "inner terms");
  WhiteBox({.row = 9.5, .rows = 6.5});
  SayInBox("first terms:  x" + d + "2x = 2x^2^");
  SayInBox("outer terms:  x" + d + "1 = x");
  SayAt(16.5, R"(\yTry it:\z  Which two products are still missing?)");
  PageEnd();
  SayInBox("inner terms:  3 " + tutor::Times + " 2x = 6x");
  SayInBox("last terms:   3 " + tutor::Times + " 1 = 3");
  ClearBelow(16.5);
  SayAt(16.5, "Sum:  2x^2^ + x + 6x + 3 = " + WithoutBreaks(TrinomialText(kFactors.Product())));
  PageEnd();
  Say("The outer and the inner product together make the middle term:  " +
      WithoutBreaks("x + 6x = 7x."));
  PageEnd();
}

void ThreeRules() {
  NewScreen();
  RuleBox("Factoring ax^2^ + bx + c",
          {"first numbers:  product a", "last numbers:   product c", "outer + inner product:  bx"},
          {.row = 3, .width = 28});
  PageEnd();
  Say(Text(
      "a stands in front of x^2^, b in front of x, and c is the last number.  In {} they are 2, "
      "7 and 3.",
      TrinomialText({2, 7, 3})));
  PageEnd();
}

void TwoPlaces() {
  NewScreen();
  SayAt(3, Text("Let's factor {}.  We have one pair each:", TrinomialText({2, 11, 5})));
  SayPairs({2, 11, 5});
  PageEnd();
  Say("Only the places are open.  We try both, and add the outer and the inner product:");
  SayTrials({2, 11, 5});
  PageEnd();
  Say("The second trial gives the middle term:");
  Show(Identity({{1, 5}, {2, 1}}));
  Say(R"(\yWatch out:\z  1 and 5 must not change places:  that gives 7x.)");
  PageEnd();

  NewScreen();
  SayAt(3, Text(R"(\yTry it:\z  What are the factors of {}?)", TrinomialText({3, 16, 5})));
  SayPairs({3, 16, 5});
  PageEnd();
  SayTrials({3, 16, 5});
  Show(Identity({{1, 5}, {3, 1}}));
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
  WhiteBox({.rows = 3.5});
  SayTrial(trials.front(), false);
  PageEnd();
  Say(Text(
      "2x + 2 has the common factor 2.  Then all of {} would have it, but 19 cannot be divided "
      "by 2.  We need not multiply.",
      TrinomialText(kAsked)));
  PageEnd();
  SayTrial(trials.back(), true);
  Show(Identity({{2, 5}, {3, 2}}));
  PageEnd();

  NewScreen();
  SayAt(3, R"(\yWatch out:\z  When all three terms have a common factor, take it out first.)");
  Show("4x^2^ + 14x + 6 = 2(" + TrinomialText({2, 7, 3}) + ")");
  PageEnd();
  Say(Text(R"(\yTry it:\z  What are the factors of {}?)", TrinomialText({4, 12, 5})));
  SayPairs({4, 12, 5});
  PageEnd();
  SayTrials({4, 12, 5});
  Show(Identity({{2, 1}, {2, 5}}));
  Say("Here both factors begin with 2x, so 1 and 5 may change places.");
  PageEnd();
}

void SameSigns() {
  NewScreen();
  SayAt(3, R"(When the last number is \ypositive\z, both signs are that of the middle term:)");
  PaperBox({Identity({{2, 5}, {3, 2}}), Identity({{2, -5}, {3, -2}})});
  PageEnd();
  Say("So we find the numbers first, and put the signs in last.");
  Say(Text(R"(\yTry it:\z  What are the factors of {}?)", TrinomialText({3, -10, 8})));
  PageEnd();
  SayTrials({3, -10, 8});
  Say("The middle term is -10x:  both signs are minus.");
  Show(Identity({{1, -2}, {3, -4}}));
  PageEnd();
}

void DifferentSigns() {
  constexpr Trinomial kAsked = {6, 11, -10};
  constexpr Factors kRight = {{2, 5}, {3, -2}};
  NewScreen();
  SayAt(3, R"(When the last number is \ynegative\z, one sign is plus and one is minus.  So one of )"
           "the products is subtracted from the other.");
  PageEnd();
  Say(Text("Let's factor {}.  We take the smaller product from the larger:",
           TrinomialText(kAsked)));
  SayTrials(kAsked);
  PageEnd();
  Say(Text(
      "The larger product, 15x, comes from 5 and 3x.  It must be positive, so the 5 gets the plus "
      "sign:"));
  RaiseConstants(NextRow() + 0.5, 3, kRight);
  PageEnd();

  NewScreen();
  CheckByMultiplying(3, kRight);
  PageEnd();
  Say(R"(\yWatch out:\z  Do not reverse the signs:)");
  PaperBox({R"(\r(2x - 5)(3x + 2)\z gives -11x)"});
  Say(Text(R"(\yTry it:\z  What are the factors of {}?)", TrinomialText({6, -1, -2})));
  PageEnd();
  SayTrials({6, -1, -2});
  Say("-x means -1x.  4x comes from 2 and 2x, and must be negative:");
  Show(Identity({{2, 1}, {3, -2}}));
  PageEnd();
}

void ALongSearch() {
  constexpr Trinomial kAsked = {12, 4, -5};
  NewScreen();
  SayAt(3, Text(R"(\yTry it:\z  A longer search:  what are the factors of {}?)",
                TrinomialText(kAsked)));
  SayPairs(kAsked);
  PageEnd();
  SayTrials(kAsked);
  PageEnd();
  Say("10x comes from 5 and 2x.  It must be positive, so the 5 gets the plus sign:");
  RaiseConstants(NextRow() + 0.5, 3, {{2, -1}, {6, 5}});
  PageEnd();
}

// --- The lesson ----------------------------------------------------------------------------------

class TrinomialsAX2BxC final : public LessonScript {
 public:
  using LessonScript::LessonScript;

 private:
  std::vector<Screen> Screens() override {
    return {{FourProducts, ThreeRules, TwoPlaces, AnOrder},
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

// Two a page; the box is wiped when it is full.
void TrinomialsAX2BxC::GoThroughTrials() {
  constexpr std::size_t kAPage = 2;
  constexpr std::size_t kInBox = 8;
  NewScreen();
  BeginPage();
  SayAt(8, Text("We try the closest numbers first, until the result is {}x:",
                CoefText(std::abs(asked_.middle))));
  const std::vector<Trial> trials = TrialsUntilFound(asked_);
  const std::size_t lines = std::min(kInBox, trials.size());
  WhiteBox({.row = 10.5, .rows = kTrialRows * static_cast<double>(lines) + 0.5});
  for (std::size_t i = 0; i < trials.size(); ++i) {
    if (i > 0 && i % kAPage == 0) PageEnd();
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
    const bool same = last == other;
    SayAt(
        8,
        Text(
            "The larger product, {} = {}, must be {}.  So {} gets the {} sign, and {} the {} sign:",
            CoefText(lead * last) + "x", CoefText(lead) + "x" + tutor::Dot + NumStr(last),
            Words{asked_.middle > 0 ? "positive" : "negative"},
            Words{(same ? "this " : "") + NumStr(last)}, Words{sign},
            Words{(same ? "the other " : "") + NumStr(other)},
            Words{asked_.middle > 0 ? "minus" : "plus"}));
  }
  RaiseConstants(11.5, 4, right_);
  PageEnd();
}

const LessonRegistration<TrinomialsAX2BxC> kRegistration("Trinomials of the Form ax\xB2+bx+c");

}  // namespace
}  // namespace course
