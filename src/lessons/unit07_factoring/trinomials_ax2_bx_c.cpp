// The student can factor a trinomial such as 6x^2 + 11x - 10: tries pairs of first and last numbers
// in an order that leaves none out, until the outer and the inner product make the middle term, and
// puts the signs in last.
#include "lessons/families/factoring/factor_trials.h"
#include "lessons/families/factoring/factored_trinomial.h"
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
  const std::string d = tutor::Dot;
  NewScreen();
  SayAt(3,
        Text("Until now our trinomials began with x^2^.  Now a number stands before it, as in {}.",
             TrinomialText({2, 7, 3})));
  PageEnd();
  Say("Such a trinomial comes from two factors, too:");
  ShowAt(8, FactorsText({{1, 3}, {2, 1}}), 12);
  WhiteBox({.row = 9.5, .rows = 6.5});
  SayInBox("first terms:  x" + d + "2x = 2x^2^");
  SayInBox("outer terms:  x" + d + "1 = x");
  SayAt(16.5, R"(\yTry it:\z  Which two products are still missing?)");
  PageEnd();
  SayInBox("inner terms:  3" + d + "2x = 6x");
  SayInBox("last terms:   3 " + tutor::Times + " 1 = 3");
  ClearBelow(16.5);
  SayAt(16.5, "Sum:  2x^2^ + x + 6x + 3 = " + WithoutBreaks(TrinomialText({2, 7, 3})));
  PageEnd();
  Say(R"(\yTry it:\z  Which two products make the middle term 7x?)");
  PageEnd();
  Say("The outer and the inner one:  x + 6x = 7x.");
  PageEnd();
}

void ThreeRules() {
  NewScreen();
  SayAt(3, Text("To factor {} we go back to {}.", TrinomialText({2, 7, 3}),
                FactorsText({{1, 3}, {2, 1}})));
  RuleBox("Factoring ax^2^ + bx + c",
          {"first numbers:  product a", "last numbers:   product c", "outer + inner product:  bx"},
          {.width = 28});
  PageEnd();
  Say(R"(a is the number in front of x^2^, b the number in front of x, and c the last number.)");
  Say(Text(R"(\yTry it:\z  What are a, b and c in {}?)", TrinomialText({2, 7, 3})));
  PageEnd();
  Say("a is 2, b is 7, and c is 3.  x is 1x, so the first numbers 1 and 2 have the product 2.");
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
  Say(R"(\yWatch out:\z  For 2x^2^ it matters where 1 and 5 stand.  Always look at the middle term.)");
  PageEnd();

  NewScreen();
  SayAt(3, Text(R"(\yTry it:\z  What are the factors of {}?)", TrinomialText({3, 16, 5})));
  PageEnd();
  SayPairs({3, 16, 5});
  SayTrials({3, 16, 5});
  PageEnd();
  Show(Identity({{1, 5}, {3, 1}}));
}

void AnOrder() {
  constexpr Trinomial kAsked = {6, 19, 10};
  const std::vector<Trial> trials = TrialsUntilFound(kAsked);
  Say(Text("Now let's factor {}.  There are more pairs:", TrinomialText(kAsked)));
  SayPairs(kAsked);
  PageEnd();

  NewScreen();
  SayAt(3,
        Text("To leave nothing out in {}, we keep an order:  pairs whose numbers are closest come "
             "first.",
             TrinomialText(kAsked)));
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
  Say(R"(\yWatch out:\z  When all three terms have a common factor, take it out first.)");
  Show("4x^2^ + 14x + 6 = 2(" + TrinomialText({2, 7, 3}) + ")");
  PageEnd();

  NewScreen();
  SayAt(3, Text(R"(\yTry it:\z  What are the factors of {}?)", TrinomialText({4, 12, 5})));
  PageEnd();
  SayPairs({4, 12, 5});
  SayTrials({4, 12, 5});
  Show(Identity({{2, 1}, {2, 5}}));
  Say("Here both factors begin with 2x, so 1 and 5 may change places.");
  PageEnd();
}

void SameSigns() {
  NewScreen();
  SayAt(3,
        R"(When the last number is \ypositive\z, both signs are the same.  They are that of the )"
        "middle term:");
  PaperBox({Identity({{2, 5}, {3, 2}}), Identity({{2, -5}, {3, -2}})});
  PageEnd();
  Say("So we find the numbers first, and put the signs in last.");
  Say(Text(R"(\yTry it:\z  What are the factors of {}?)", TrinomialText({3, -10, 8})));
  PageEnd();
  SayPairs({3, -10, 8});
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
  Say(R"(\yWatch out:\z  With both signs reversed the ends are right, but the middle term is not:)");
  PaperBox({R"(\r(2x - 5)(3x + 2)\z gives -11x)"});
  Say(Text(R"(\yTry it:\z  What are the factors of {}?)", TrinomialText({8, -10, -3})));
  PageEnd();
  SayTrials({8, -10, -3});
  Say("12x comes from 3 and 4x.  It must be negative:");
  Show(Identity({{2, -3}, {4, 1}}));
  PageEnd();
}

void MiddleTermWithoutNumber() {
  NewScreen();
  SayAt(3,
        Text("In {} no number stands in front of x.  -x means -1x.", TrinomialText({6, -1, -2})));
  SayTrials({6, -1, -2});
  Say(Text("4x comes from 2x and 2, and must be negative:  {}", FactorsText({{2, 1}, {3, -2}})));
  PageEnd();
  Say(Text(R"(\yTry it:\z  A long search:  what are the factors of {}?)",
           TrinomialText({12, 4, -5})));
  PageEnd();
  SayPairs({12, 4, -5});
  SayTrials({12, 4, -5});
  Say(Text("10x comes from 2x and 5, and must be positive:  {}", FactorsText({{2, -1}, {6, 5}})));
  PageEnd();
}

// --- The lesson ----------------------------------------------------------------------------------

class TrinomialsAX2BxC final : public LessonScript {
 public:
  using LessonScript::LessonScript;

 private:
  std::vector<Screen> Screens() override {
    return {{FourProducts, ThreeRules, TwoPlaces, AnOrder},
            {SameSigns, DifferentSigns, MiddleTermWithoutNumber}};
  }
  void DrawProblem(RandomStream& random) override;
  void ShowProblem() override;
  void ExplainProblem() override;

  std::vector<WrongFactors> OtherMistakes(RandomStream& random) const;

  void BeginPage();
  void TellPairs() const;
  std::string SignSentence() const;
  void GoThroughTrials();
  void PutSignsIn();

  Factors right_;
  Trinomial asked_;
};

// --- Generator -----------------------------------------------------------------------------------

std::vector<WrongFactors> TrinomialsAX2BxC::OtherMistakes(RandomStream& random) const {
  std::vector<WrongFactors> primitive;
  std::vector<WrongFactors> withCommonFactor;
  for (const Trial& trial : AllTrials(asked_)) {
    if (trial.Middle() == std::abs(asked_.middle)) continue;
    const Factors factors = WithSigns(trial, asked_);
    if (trial.CommonFactor() == 1)
      primitive.push_back({"checks only the first and last terms", factors});
    else
      withCommonFactor.push_back({"puts numbers with a common factor into one factor", factors});
  }
  std::vector<WrongFactors> mistakes = {{"reverses both signs",
                                         {{right_.first.lead, -right_.first.constant},
                                          {right_.second.lead, -right_.second.constant}}}};
  for (const std::vector<WrongFactors>& kind : {primitive, withCommonFactor}) {
    if (kind.empty()) continue;
    const int place = random.Index(static_cast<int>(kind.size()));
    mistakes.push_back(kind[static_cast<std::size_t>(place - 1)]);
  }
  return mistakes;
}

void TrinomialsAX2BxC::DrawProblem(RandomStream& random) {
  right_ = DrawFactors(random, kLargest);
  asked_ = right_.Product();
  problem.question = {"Find the factors of this trinomial:", TrinomialText(asked_)};
  const std::vector<WrongFactors> others = OtherMistakes(random);
  FillFactorChoices(problem, right_, others, kLargest, random);
}

// --- Problem page --------------------------------------------------------------------------------

void TrinomialsAX2BxC::ShowProblem() {
  SayAt(5, problem.question[0]);
  ShowAt(7, problem.question[1], 4);
  ShowAnswersInTwoColumns(problem, {.width = 20});  // two brackets are long
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
  CheckByMultiplying(15, right_);
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
  Say(Text(R"(The \clast\z numbers have the product {}:)", asked_.constant));
  AddLine("  " + PairsText(asked_.constant));
  if (asked_.constant < 0) AddLine("The signs are put in later.");
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
  SayAt(8, "We try the closest numbers first:");
  const std::vector<Trial> trials = TrialsUntilFound(asked_);
  const std::size_t lines = std::min(kInBox, trials.size());
  WhiteBox({.row = 9.5, .rows = kTrialRows * static_cast<double>(lines) + 0.5});
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
    SayAt(8,
          Text("The larger product is {} = {}.  It gets the sign of the middle term, {}.  So this "
               "{} gets a {} sign, and the other number the opposite sign:",
               CoefText(lead * last) + "x", CoefText(lead) + "x" + tutor::Dot + NumStr(last),
               Words{sign}, last, Words{sign}));
  }
  RaiseConstants(12.5, 4, right_);
  PageEnd();
}

const LessonRegistration<TrinomialsAX2BxC> kRegistration("Trinomials of the Form ax\xB2+bx+c");

}  // namespace
}  // namespace course
