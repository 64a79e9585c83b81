// The student can factor a trinomial such as x^2 - 5x + 6: finds the two numbers whose product is
// the last number and whose sum is the number in front of x, and checks by multiplying out.
//
// Every choice is multiplied out: one that is the same product as another, in either order of its
// factors, gives way to a random one.
#include "lessons/families/factoring/factor_pairs.h"
#include "lessons/families/polynomials/factor_moves.h"
#include "lessons/families/polynomials/trinomial.h"
#include "lessons/lesson.h"

namespace course {
namespace {

using namespace factoring;
using namespace polynomials;

constexpr int kLargest = 10;  // size of the numbers in the factors
constexpr int kSlots = 5;

constexpr std::size_t kPairsAPage = 2;
constexpr int kPairCharacters = 38;  // of the longest line of a list of pairs
constexpr int kPairBox = 1;          // the comment box that holds it
const Factors kTwoAndThree = {{1, 2}, {1, 3}};

// "x^2^ + 5x + 6 = (x + 2)(x + 3)".
std::string Identity(const Factors& factors) {
  return TrinomialText(factors.Product()) + " = " + FactorsText(factors);
}

// --- Teaching screens --------------------------------------------------------

// What comes out, half a row below the pairs.
void AddResult(const std::string& text) {
  SayAt(NextRow() + 0.5, "  " + WithoutBreaks(text));
}

void ProductOfTwoFactors() {
  NewScreen();
  SayAt(3, Text(R"(A \ctrinomial\z is an expression with three terms, such as {}.)",
                TrinomialText({1, 5, 6})));
  PageEnd();
  Say("Many trinomials are the product of two factors.  We multiply each term of one by each term "
      "of the other:");
  PageEnd();
  const std::string d = tutor::Dot;
  PaperBox({FactorsText(kTwoAndThree), "first terms:  x" + d + "x = x^2^",
            "outer terms:  x" + d + "3 = 3x"});
  Say("Which two products are still missing?");
  PageEnd();
  ClearBelow(13);
  PaperBox({"inner terms:  2" + d + "x = 2x", "last terms:   2 " + tutor::Times + " 3 = 6"});
  Say("Sum:  x^2^ + 3x + 2x + 6 = " + WithoutBreaks(TrinomialText({1, 5, 6})));
  PageEnd();
  Say(R"(\yTry it:\z  How do the 5 and the 6 come from the numbers 2 and 3?)");
  PageEnd();
  Say(R"(5 is their \ysum\z, and 6 is their \yproduct\z.)");
  PageEnd();
}

void ProductAndSum() {
  NewScreen();
  SayAt(3, Text(R"(To \cfactor\z a trinomial means to go back from {} to {}.)",
                TrinomialText({1, 5, 6}), FactorsText(kTwoAndThree)));
  PageEnd();
  RuleBox("Factoring x^2^ + bx + c", {"Find two numbers whose", "product is c and whose sum is b."},
          {.width = 27});
  PageEnd();
  Say(Text("b is the number in front of x, and c is the last number.  In {} they are 5 and 6.",
           TrinomialText({1, 5, 6})));
  PageEnd();

  NewScreen();
  SayAt(3, Text("Let's factor {}.  Which numbers have the product 10?", TrinomialText({1, 7, 10})));
  PageEnd();
  ListTried({{1, 10}, {2, 5}});
  AddLine("The sum must be 7, so we take 2 and 5:");
  const std::string start = "  " + TrinomialText({1, 7, 10}) + " = ";
  const double row = NextRow();
  ShowAt(row, start, 1);
  RaiseConstants(row, 1 + StackedTextWidth(start), {{1, 2}, {1, 5}});
  PageEnd();

  Say("The factors may stand in either order:");
  Show(FactorsText({{1, 2}, {1, 5}}) + " = " + FactorsText({{1, 5}, {1, 2}}));
  Say(Text(R"(\yTry it:\z  What are the factors of {}?)", TrinomialText({1, 9, 20})));
  PageEnd();
  ListTried({{1, 20}, {2, 10}, {4, 5}});
  AddResult(Identity({{1, 4}, {1, 5}}));
  PageEnd();
}

void LastNumberPositive() {
  NewScreen();
  SayAt(3,
        R"(When the last number is \ypositive\z, the two numbers have the same sign.  A positive )"
        "and a negative number have a negative product.");
  PageEnd();
  PaperBox({Identity({{1, 2}, {1, 6}}), Identity({{1, -2}, {1, -6}})});
  Say("The middle term tells which sign:  two negative numbers have a negative sum.");
  PageEnd();
  Say(Text("Let's factor {}.  Which sign do both numbers have?", TrinomialText({1, -9, 14})));
  PageEnd();
  Say("The sum is -9, so both are negative:");
  ListTried({{-1, -14}, {-2, -7}});
  AddResult(Identity({{1, -2}, {1, -7}}));
  PageEnd();

  NewScreen();
  SayAt(3,
        R"(\yWatch out:\z  With both signs reversed the product is still 14, but the sum is 9.)");
  PaperBox({"\\r" + FactorsText({{1, 2}, {1, 7}}) + "\\z gives the middle term +9x"});
  PageEnd();
  Say(Text(R"(\yTry it:\z  What are the factors of {}?)", TrinomialText({1, -11, 24})));
  PageEnd();
  ListTried({{-1, -24}, {-2, -12}, {-3, -8}});
  AddResult(Identity({{1, -3}, {1, -8}}));
  PageEnd();
}

void LastNumberNegative() {
  NewScreen();
  SayAt(3, R"(When the last number is \ynegative\z, one number is positive and the other is )"
           "negative.");
  PageEnd();
  PaperBox({Identity({{1, 6}, {1, -2}}), Identity({{1, -6}, {1, 2}})});
  PageEnd();
  Say("The number farther from 0 has the sign of the middle term:  6 + (-2) is 4, but -6 + 2 is "
      "-4.");
  PageEnd();
  Say(Text("Let's factor {}.  The number farther from 0 is positive:", TrinomialText({1, 3, -10})));
  ListTried({{-1, 10}, {-2, 5}});
  PageEnd();
  AddResult(Identity({{1, -2}, {1, 5}}));
  Say(R"(\yCheck:\z  We multiply out.)");
  AddLine("  x^2^ + 5x - 2x - 10 = " + TrinomialText({1, 3, -10}));
  PageEnd();
}

void MiddleTermWithoutNumber() {
  NewScreen();
  SayAt(3, Text("What if no number stands in front of x?  Let's factor {}.",
                TrinomialText({1, -1, -12})));
  PageEnd();
  Say(R"(x means 1x, and -x means -1x.  Here the sum is \y-1\z, and the product is -12.)");
  PageEnd();
  ListTried({{1, -12}, {2, -6}, {3, -4}});
  AddResult(Identity({{1, 3}, {1, -4}}));
  PageEnd();
  Say(Text(R"(\yTry it:\z  What are the factors of {}?)", TrinomialText({1, 1, -20})));
  PageEnd();

  NewScreen();
  SayAt(3, Text("In {} the sum is 1, so the number farther from 0 is positive:",
                TrinomialText({1, 1, -20})));
  PageEnd();
  ListTried({{-1, 20}, {-2, 10}, {-4, 5}});
  AddResult(Identity({{1, -4}, {1, 5}}));
  PageEnd();
  Say(R"(\yWatch out:\z  With both signs reversed the product is still -20, but the sum is -1.)");
  PaperBox({"\\r" + FactorsText({{1, 4}, {1, -5}}) + "\\z gives the middle term -x"});
  PageEnd();
}

// --- The lesson ------------------------------------------------------------

class TrinomialsX2BxC final : public LessonScript {
 public:
  using LessonScript::LessonScript;

 private:
  std::vector<Screen> Screens() override {
    return {{ProductOfTwoFactors},
            {ProductAndSum},
            {LastNumberPositive},
            {LastNumberNegative, MiddleTermWithoutNumber}};
  }
  void DrawProblem(RandomStream& random) override;
  void ShowProblem() override;
  void ExplainProblem() override;

  int First() const { return factors_[1].first.constant; }
  int Second() const { return factors_[1].second.constant; }
  Trinomial Asked() const { return factors_[1].Product(); }
  void DrawFactors(RandomStream& random);
  Factors RandomChoice(RandomStream& random) const;
  Factors RightProductWrongSum() const;

  void BeginPage();
  void TellProductAndSum() const;
  void ListPairs();
  void FillIn();
  void Check();

  std::array<Factors, kSlots + 1> factors_;  // of the choices, from 1; the right ones come first
};

// --- Generator ---------------------------------------------------------------

// The leading coefficients are drawn like the other numbers until both are 1, which one draw in
// twenty gives; a factor that has come so far is kept.
void TrinomialsX2BxC::DrawFactors(RandomStream& random) {
  Factors& right = factors_[1];
  do {
    right.first = right.second = Binomial{0, 0};
    while (right.first.lead != 1 || right.second.lead != 1) {
      if (right.first.lead != 1) right.first = DrawBinomial(random, kLargest);
      if (right.second.lead != 1) right.second = DrawBinomial(random, kLargest);
    }
  } while (Asked().middle == 0);  // the difference of two squares has a lesson of its own
}

// One factor has the right number with either sign, the number in the other is any of the range.
// Built upon the right factors alone, it would make them the box most like the others.
Factors TrinomialsX2BxC::RandomChoice(RandomStream& random) const {
  const int sign = random.Rand(1, 3) == 1 ? 1 : -1;
  return {{1, sign * First()}, {1, DrawConstant(random, kLargest)}};
}

// The neighbour in the list of pairs that the explanation goes through.  Without one, the right
// factors: the pass draws that choice anew.
Factors TrinomialsX2BxC::RightProductWrongSum() const {
  const std::vector<NumberPair> pairs = PairsWithProduct(Asked().constant, Sgn(Asked().middle));
  std::size_t i = 0;
  while (pairs[i].Sum() != Asked().middle) ++i;
  if (pairs.size() == 1) return factors_[1];
  const NumberPair& other = pairs[i > 0 ? i - 1 : 1];
  return {{1, other.first}, {1, other.second}};
}

void TrinomialsX2BxC::DrawProblem(RandomStream& random) {
  DrawFactors(random);
  factors_[2] = {{1, -First()}, {1, Second()}};
  factors_[3] = {{1, -First()}, {1, -Second()}};
  factors_[4] = RandomChoice(random);
  factors_[5] = RightProductWrongSum();
  std::array<std::string, kSlots + 1> mistakes = {
      "",
      "",
      "reverses one sign",
      "reverses both signs",
      "filler",
      "takes a pair with the right product and the wrong sum"};
  ReplaceRepeated(
      kSlots, [&](int i, int j) { return factors_[i].SameProductAs(factors_[j]); },
      [&](int slot) {
        factors_[slot] = RandomChoice(random);
        mistakes[slot] = "filler";
      });

  problem.question = {"Find the factors of this trinomial:", TrinomialText(Asked())};
  problem.kind = choice_kind::FiveShuffled;
  problem.Right(1, FactorsText(factors_[1]));
  for (int slot = 2; slot <= kSlots; ++slot)
    problem.Wrong(slot, mistakes[slot], FactorsText(factors_[slot]));
}

// --- Problem page ------------------------------------------------------------

void TrinomialsX2BxC::ShowProblem() {
  SayAt(5, problem.question[0]);
  ShowAt(7, problem.question[1], 4);
  ShowAnswersInTwoColumns(problem, {.width = 20});  // (x + 10)(x - 10) is long
}

// --- Worked explanation ------------------------------------------------------

void TrinomialsX2BxC::ExplainProblem() {
  BeginPage();
  PageEnd();
  Say("x^2^ is x times x.  So both factors begin with x, and two numbers are missing:");
  AddLine("   (x    )(x    )");
  PageEnd();
  TellProductAndSum();
  PageEnd();
  Say(SignSentence(Asked().constant, Asked().middle));
  PageEnd();
  ListPairs();
  FillIn();
  Check();
  Conclude(problem);
}

void TrinomialsX2BxC::BeginPage() {
  ProblemBanner();
  SayAt(5, problem.question[0]);
  ShowAt(6, problem.question[1], 4);
}

void TrinomialsX2BxC::TellProductAndSum() const {
  const int sum = Asked().middle;
  const std::string term = CoefText(sum) + "x";
  Say(Text(R"(Their \yproduct\z is \y{}\z, the last number.)", Asked().constant));
  AddLine(Text(R"(Their \csum\z is \c{}\z, the number before x.)", sum));
  if (std::abs(sum) == 1) AddLine(Text("{} means {}x.", term, sum));
}

// The pairs up to the one that is right, two a page.
void TrinomialsX2BxC::ListPairs() {
  NewScreen();
  BeginPage();
  SayAt(8, Text("We list the pairs with the product {} until the sum is {}:", Asked().constant,
                Asked().middle));
  const std::vector<NumberPair> pairs = PairsWithProduct(Asked().constant, Sgn(Asked().middle));
  std::size_t count = 1;
  while (pairs[count - 1].Sum() != Asked().middle) ++count;
  ShowEmptyPaperBox(kPairBox, 11, kPairCharacters, static_cast<int>(count));
  for (std::size_t i = 0; i < count; ++i) {
    if (i > 0 && i % kPairsAPage == 0) PageEnd();
    const bool found = i + 1 == count;
    PrintOnPaper(kPairBox, static_cast<int>(i) + 1, (found ? R"(\b)" : "") + PairLine(pairs[i]));
  }
  PageEnd();
  const NumberPair& found = pairs[count - 1];
  SayAt(RowBelow(), Text(R"(The numbers are \y{}\z and \y{}\z.)", found.first, found.second));
  if (found.first != First()) Say("The factors may stand in either order.");
  PageEnd();
}

void TrinomialsX2BxC::FillIn() {
  NewScreen();
  BeginPage();
  SayAt(8, "We put the numbers into the factors:");
  RaiseConstants(9.5, 4, factors_[1]);
  PageEnd();
}

void TrinomialsX2BxC::Check() {
  SayAt(11.5, R"(\yCheck:\z  We multiply out.)");
  AddLine("     x^2^" + SignedCoefText(Second()) + "x" + SignedCoefText(First()) + "x" +
          tutor::Gap + SignedNumberText(Asked().constant));
  AddLine("   = " + TrinomialText(Asked()));
  Say("This is the trinomial.");
  PageEnd();
}

const LessonRegistration<TrinomialsX2BxC> kRegistration("Trinomials of the Form x\xB2+bx+c");

}  // namespace
}  // namespace course
