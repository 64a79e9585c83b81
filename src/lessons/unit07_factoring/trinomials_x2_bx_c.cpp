// The student can factor a trinomial such as x^2 - 5x + 6: finds the two numbers whose product is
// the last number and whose sum is the number in front of x, and checks by multiplying out.
//
// Every choice is multiplied out: one that is the same product as another, in either order of its
// factors, gives way to a random one.
#include "lessons/families/polynomials/factor_moves.h"
#include "lessons/families/polynomials/trinomial.h"
#include "lessons/lesson.h"

namespace course {
namespace {

using namespace polynomials;

constexpr int kLargest = 10;  // size of the numbers in the factors
constexpr int kSlots = 5;

constexpr int kBox = 1;  // comment boxes in use
constexpr int kWarningBox = 2;
constexpr std::size_t kPairsAPage = 3;
constexpr int kPairCharacters = 35;  // of the longest line of a list of pairs
const Factors kTwoAndThree = {{1, 2}, {1, 3}};

// "x^2^ + 5x + 6 = (x + 2)(x + 3)".
std::string Identity(const Factors& factors) {
  return TrinomialText(factors.Product()) + " = " + FactorsText(factors);
}

// Product and sum of a pair, each in its column.
std::string PairLine(const NumberPair& pair) {
  constexpr std::size_t kSumColumn = 17;
  std::string line = NumStr(pair.first) + tutor::Dot + InParentheses(pair.second) + " = " +
                     NumStr(pair.first * pair.second);
  line.resize(kSumColumn, ' ');
  return line + NumStr(pair.first) + " + " + InParentheses(pair.second) + " = " +
         NumStr(pair.Sum());
}

// --- Teaching screens --------------------------------------------------------

void ProductOfTwoFactors() {
  const std::string d = tutor::Dot;
  NewScreen();
  WrapAt(3, R"(A \ctrinomial\z is an expression with three terms, such as )" +
                TrinomialText({1, 5, 6}) + ".");
  PageEnd();
  isPrint();
  WordWrap(R"(Many trinomials are the product of two factors.  Let's multiply \y)" +
           FactorsText(kTwoAndThree) + R"(\z:)");
  PageEnd();
  ShowPaperBox(kBox, 9,
               {"first terms:  x" + d + "x = x^2^", "outer terms:  x" + d + "3 = 3x",
                "inner terms:  2" + d + "x = 2x", "last terms:   2" + d + "3 = 6"});
  PageEnd();
  WrapAt(14, "Sum:  x^2^ + 3x + 2x + 6 = " + TrinomialText({1, 5, 6}));
  PageEnd();
  isPrint();
  WordWrap("How do the 5 and the 6 come from the numbers 2 and 3?");
  PageEnd();
  isPrint();
  WordWrap(R"(5 is their \csum\z, and 6 is their \cproduct\z.)");
  PageEnd();
}

void ProductAndSum() {
  const std::string d = tutor::Dot;
  NewScreen();
  WrapAt(3, R"(To \cfactor\z a trinomial means to go the way back, from )" +
                TrinomialText({1, 5, 6}) + " to " + FactorsText(kTwoAndThree) + ".");
  PageEnd();
  ShowRuleBox(kBox, 6.5, 27, "Factoring x^2^ + bx + c",
              {"Find two numbers whose", "product is c and whose sum is b."});
  PageEnd();
  WrapAt(11, "Let's factor " + TrinomialText({1, 7, 10}) + ".  The product of the numbers is 10:");
  isPrint("   1" + d + "10 = 10     1 + 10 = 11");
  WordWrap("   2" + d + R"(5 = 10      \y2 + 5 = 7\z)");
  PageEnd();
  WordWrap("The sum must be 7, so we take 2 and 5:");
  Locate(16, 4);
  WordWraps(TrinomialText({1, 7, 10}) + " = ");
  RaiseConstants(16, isCursorCol(), {{1, 2}, {1, 5}});
  PageEnd();
  WordWrap("The factors may stand in either order.");
  PageEnd();
  isPrint();
  WordWrap("Factor " + TrinomialText({1, 9, 20}) + " before you go on.");
  PageEnd();
  WordWrap("4" + d + "5 = 20 and 4 + 5 = 9:  " + FactorsText({{1, 4}, {1, 5}}));
  PageEnd();
}

void LastNumberPositive() {
  const std::string d = tutor::Dot;
  NewScreen();
  WrapAt(3, R"(When the last number is \cpositive\z, the two numbers have the same sign.  )"
            R"(Only equal signs give a positive product.)");
  PageEnd();
  ShowPaperBox(kBox, 6.6, {Identity({{1, 2}, {1, 6}}), Identity({{1, -2}, {1, -6}})});
  WrapAt(9.5, "The sign of the middle term tells us which sign that is.");
  PageEnd();
  isPrint();
  WordWrap("Let's factor " + TrinomialText({1, -9, 14}) + ".  Both numbers are negative:");
  isPrint("   -1" + d + "(-14) = 14    -1 + (-14) = -15");
  WordWrap("   -2" + d + R"((-7) = 14     \y-2 + (-7) = -9\z)");
  PageEnd();
  WordWrap("   " + Identity({{1, -2}, {1, -7}}));
  ShowPaperBox(kWarningBox, 18,
               {"\\r" + FactorsText({{1, 2}, {1, 7}}) + "\\z gives the middle term +9x"});
  PageEnd();
  WrapAt(20.5, "What are the factors of " + TrinomialText({1, -11, 24}) + "?");
  PageEnd();
  WordWrap("-3 and -8:  " + FactorsText({{1, -3}, {1, -8}}));
  PageEnd();
}

void LastNumberNegative() {
  const std::string d = tutor::Dot;
  NewScreen();
  WrapAt(3, R"(When the last number is \cnegative\z, one number is positive and the other )"
            R"(is negative.)");
  PageEnd();
  ShowPaperBox(kBox, 6.6, {Identity({{1, 6}, {1, -2}}), Identity({{1, -6}, {1, 2}})});
  WrapAt(9.5, "The number farther from 0 has the sign of the middle term.");
  PageEnd();
  isPrint();
  WordWrap("Let's factor " + TrinomialText({1, 3, -10}) +
           ".  The number farther from 0 is positive:");
  isPrint("   -1" + d + "10 = -10     -1 + 10 = 9");
  WordWrap("   -2" + d + R"(5 = -10      \y-2 + 5 = 3\z)");
  PageEnd();
  WordWrap("   " + Identity({{1, -2}, {1, 5}}));
  PageEnd();
  isPrint();
  WordWrap(R"(We \ycheck\z it by multiplying out:)");
  WordWrap("   x^2^ + 5x - 2x - 10 = " + TrinomialText({1, 3, -10}));
  PageEnd();
  isPrint();
  WordWrap("What are the factors of " + TrinomialText({1, -2, -15}) + "?");
  PageEnd();
  WordWrap("3 and -5:  " + FactorsText({{1, 3}, {1, -5}}));
  PageEnd();
}

// --- The lesson ------------------------------------------------------------

class TrinomialsX2BxC final : public LessonScript {
 public:
  using LessonScript::LessonScript;

 private:
  std::vector<Screen> Screens() override {
    return {{ProductOfTwoFactors}, {ProductAndSum}, {LastNumberPositive}, {LastNumberNegative}};
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
  std::string ProductAndSumSentence() const;
  std::string SignSentence() const;
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

// One factor is right, the number in the other is any of the range.
Factors TrinomialsX2BxC::RandomChoice(RandomStream& random) const {
  return {{1, First()}, {1, DrawConstant(random, kLargest)}};
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
  WrapAt(5, problem.question[0]);
  Locate(7, 4);
  WordWrap(problem.question[1]);
  // (x + 10)(x - 10) takes 16 columns beside the letter: two boxes fill the panel.
  picAnswerSetParameters(2, 11, 0.625, 21.375, 0, 20, 50, 27);
}

// --- Worked explanation ------------------------------------------------------

void TrinomialsX2BxC::ExplainProblem() {
  BeginPage();
  PageEnd();
  isPrint();
  WordWrap("x^2^ is x times x.  So both factors begin with x, and two numbers are missing:");
  isPrintLines(0.3);
  isPrint("   (x    )(x    )");
  PageEnd();
  isPrint();
  WordWrap(ProductAndSumSentence());
  PageEnd();
  isPrint();
  WordWrap(SignSentence());
  PageEnd();
  ListPairs();
  FillIn();
  Check();
}

void TrinomialsX2BxC::BeginPage() {
  ProblemBanner();
  WrapAt(4.6, problem.question[0]);
  Locate(6, 4);
  WordWrap(problem.question[1]);
}

std::string TrinomialsX2BxC::ProductAndSumSentence() const {
  const int sum = Asked().middle;
  const std::string term = CoefText(sum) + "x";
  const std::string hidden =
      std::abs(sum) == 1 ? ".  " + term + " means " + NumStr(sum) + "x, so it is " : ": ";
  return R"(Their \yproduct\z is the last number, \y)" + NumStr(Asked().constant) +
         R"(\z.  Their \csum\z is the number in front of x)" + hidden + R"(\c)" + NumStr(sum) +
         R"(\z.)";
}

std::string TrinomialsX2BxC::SignSentence() const {
  const bool sumPositive = Asked().middle > 0;
  if (Asked().constant > 0)
    return std::string(
               "The product is positive, so both numbers have the same sign.  The sum is ") +
           (sumPositive ? "positive, so both are positive." : "negative, so both are negative.");
  return std::string(
             "The product is negative, so one number is positive and the other negative.  "
             "The sum is ") +
         (sumPositive ? "positive" : "negative") + ", so the number farther from 0 is " +
         (sumPositive ? "positive." : "negative.");
}

// The pairs up to the one that is right, three a page.
void TrinomialsX2BxC::ListPairs() {
  NewScreen();
  BeginPage();
  WrapAt(8, "We try one pair with the product " + NumStr(Asked().constant) +
                " after the other, until the sum is " + NumStr(Asked().middle) + ":");
  const std::vector<NumberPair> pairs = PairsWithProduct(Asked().constant, Sgn(Asked().middle));
  std::size_t count = 1;
  while (pairs[count - 1].Sum() != Asked().middle) ++count;
  const double below = ShowEmptyPaperBox(kBox, 11, kPairCharacters, static_cast<int>(count));
  for (std::size_t i = 0; i < count; ++i) {
    if (i > 0 && i % kPairsAPage == 0) PageEnd();
    const bool found = i + 1 == count;
    PrintOnPaper(kBox, static_cast<int>(i) + 1, (found ? R"(\b)" : "") + PairLine(pairs[i]));
  }
  PageEnd();
  WrapAt(below + 0.5,
         R"(The numbers are \y)" + NumStr(First()) + R"(\z and \y)" + NumStr(Second()) + R"(\z.)");
  PageEnd();
}

void TrinomialsX2BxC::FillIn() {
  NewScreen();
  BeginPage();
  WrapAt(8, "We put the numbers into the factors:");
  RaiseConstants(9.5, 4, factors_[1]);
  PageEnd();
}

void TrinomialsX2BxC::Check() {
  WrapAt(11.5, "We check it by multiplying out:");
  isPrintLines(0.3);
  WordWrap("     x^2^" + SignedCoefText(Second()) + "x" + SignedCoefText(First()) + "x" +
           tutor::Gap + SignedNumberText(Asked().constant));
  WordWrap("   = " + TrinomialText(Asked()));
  PageEnd();
  isPrint();
  WordWrap("This is the trinomial.  Its factors are:");
  isPrintLines(0.3);
  isPrint("   " + problem.choices[1].text);
  PageEnd();
}

const LessonRegistration<TrinomialsX2BxC> kRegistration("Trinomials of the Form x\xB2+bx+c");

}  // namespace
}  // namespace course
