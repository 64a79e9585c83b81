// The student can raise a product to a power: each factor gets the exponent, and a factor that is
// a power itself has its exponent multiplied.
//
// A problem is two letters in parentheses, one or both of them with an exponent, and an exponent
// behind them.
#include "lessons/families/powers/power_law.h"
#include "lessons/lesson.h"

namespace course {
namespace {

using namespace powers;

constexpr std::string_view kLetters = "cdfghkpqrstuvwxyz";
constexpr double kExpressionCol = 4;

void ShowRule(double row = kUnder) {
  RuleBox("Rule For The Power Of A Product", {"(ab)^n^ = a^n^b^n^"}, {.row = row, .width = 26});
}

// --- Teaching screens --------------------------------------------------------

void GroupsOfFactors() {
  NewScreen();
  const PowerOfGroup group = {1, {{"a", 1}, {"b", 1}}, 3};
  SayAt(3, Text("In {} the group ab is a factor 3 times:", "(ab)^3^"));
  Show("(ab)^3^ = (ab)(ab)(ab)", kExpressionCol);
  PageEnd();
  Say("Each group brings one a and one b:");
  ShowGroupsTable(group);
  PageEnd();
  SayAt(13, "The order of factors does not matter.  3 factors a and 3 factors b come together:");
  FillInTogether(group, 0);
  FillInTogether(group, 1);
  Show(R"((ab)^3^ = \ya^3^b^3^\z)", kExpressionCol);
  PageEnd();
  Say(R"(\yTry it:\z  What is  )" + Text("{}?", "(xy)^5^"));
  PageEnd();
  Say(Text(R"(5 groups have 5 factors x and 5 factors y:  \y{}\z)", "x^5^y^5^"));
  PageEnd();
}

void RuleAndSums() {
  NewScreen();
  ShowRule(3);
  Say("Each factor in the parentheses gets the exponent behind them.");
  PageEnd();
  Say(R"(\yCheck:\z  With 2 and 5 in place of a and b:)");
  Show("(2 " + tutor::Times + " 5)^3^ = 10^3^ = 1000", kExpressionCol);
  Show("2^3^ " + tutor::Times + " 5^3^ = 8 " + tutor::Times + " 125 = 1000", kExpressionCol);
  PageEnd();
  Say(R"(\yWatch out:\z  The rule is for products.  A \ysum\z is not raised term by term:)");
  PaperBox({"(3 + 4)^2^ = 7^2^ = 49", R"(\r3^2^ + 4^2^ = 9 + 16 = 25\z)"});
  PageEnd();
  Say(R"(\yTry it:\z  Is  )" + Text("{} equal to {}?", "(cd)^4^", "cd^4^"));
  PageEnd();
  Say(Text(R"(No.  Both factors get the exponent:  \y{}\z)", "c^4^d^4^"));
  PageEnd();
}

void PowersInside() {
  NewScreen();
  const PowerOfGroup group = {1, {{"c", 3}, {"d", 1}}, 2};
  SayAt(3, "A factor may have an exponent of its own:");
  Show("(c^3^d)^2^ = (c^3^d)(c^3^d)", kExpressionCol);
  ShowGroupsTable(group);
  PageEnd();
  SayAt(11, Text("How many factors c are there?  Each {} is 3 of them, and it is there 2 times:",
                 "c^3^"));
  PageEnd();
  FillInTogether(group, 0);
  FillInTogether(group, 1);
  Show("3 " + tutor::Times + R"( 2 = 6,  so \y(c^3^d)^2^ = c^6^d^2^\z)", kExpressionCol);
  PageEnd();
  Say(R"(\yWatch out:\z  The exponents are not added:)");
  PaperBox({R"((c^3^d)^2^ = c^6^d^2^,  \rnot c^5^d^2^\z)"});
  PageEnd();
}

void BothInside() {
  NewScreen();
  SayAt(3, R"(With two powers inside, each exponent is \ymultiplied\z by the one behind:)");
  Show("(x^2^y^4^)^3^ = x^2" + tutor::Times + "3^y^4" + tutor::Times + "3^ = x^6^y^12^",
       kExpressionCol);
  PageEnd();
  Say(R"(\yWatch out:\z  No factor is left without the power:)");
  PaperBox({R"((x^2^y^4^)^3^ = x^6^y^12^,  \rnot x^2^y^12^\z)"});
  PageEnd();
  Say(R"(\yTry it:\z  Simplify  )" + Text("{}.", "(p^5^q)^4^"));
  PageEnd();
  Say("5 " + tutor::Times + " 4 = 20, and the bare q is a factor 4 times:");
  Show(R"((p^5^q)^4^ = \yp^20^q^4^\z)", kExpressionCol);
  PageEnd();
}

// --- The lesson --------------------------------------------------------------

class PowerOfAProduct final : public LessonScript {
 public:
  using LessonScript::LessonScript;

 private:
  std::vector<Screen> Screens() override {
    return {{GroupsOfFactors, RuleAndSums}, {PowersInside, BothInside}};
  }
  bool ChoicesAreLaidDown() const override { return true; }
  void DrawProblem(RandomStream& random) override;
  void ShowProblem() override;
  void ExplainProblem() override;

  const Power& First() const { return group_.powers[0]; }
  const Power& Second() const { return group_.powers[1]; }
  std::string Product(int firstExponent, int secondExponent) const;
  void ShowTask() const;
  void TellExponent(const Power& power) const;

  PowerOfGroup group_;
};

// --- Generator ---------------------------------------------------------------

std::string PowerOfAProduct::Product(int firstExponent, int secondExponent) const {
  return ProductText(1, {{First().base, firstExponent}, {Second().base, secondExponent}});
}

void PowerOfAProduct::DrawProblem(RandomStream& random) {
  const int powersInside = random.Rand(1, 2);
  const int firstExponent = random.Rand(2, 9);
  const int secondExponent = random.Rand(2, 9);
  const int n = random.Rand(2, 9);
  const std::string letter = random.OneOf(kLetters);
  const std::string other = DrawOtherLetter(random, kLetters, letter);  // two letters differ
  group_ = {1, {{letter, firstExponent}, {other, powersInside == 2 ? secondExponent : 1}}, n};
  std::ranges::sort(group_.powers, {}, &Power::base);

  const int m = First().exponent;
  const int k = Second().exponent;
  // A student who adds gives a bare letter the exponent behind the parentheses.
  const auto added = [n](int exponent) { return exponent == 1 ? n : exponent + n; };
  problem.question = {"Simplify the following expression:", GroupText(group_)};
  problem.kind = choice_kind::FiveShuffled;
  problem.Right(1, Product(m * n, k * n));
  problem.Wrong(2, "adds the exponents", Product(added(m), added(k)));
  problem.Wrong(3, "leaves the first factor without the power", Product(m, k * n));
  problem.Wrong(4, "leaves the second factor without the power", Product(m * n, k));
  // Another exponent behind the group, and for one factor alone.
  const auto drawAnew = [&](int slot) {
    const int exponent = random.Rand(2, 9);
    problem.Wrong(slot, kFiller, Product(m, k * exponent));
  };
  drawAnew(5);
  // 2 and 2 have the same sum and product.
  ReplaceRepeatedTexts(problem, drawAnew);
}

// --- Problem page ------------------------------------------------------------

void PowerOfAProduct::ShowProblem() {
  SayAt(5, problem.question[0]);
  ShowAt(7, GroupText(group_), kExpressionCol);
  ShowAnswersInTwoColumns(problem);
}

// --- Worked explanation ------------------------------------------------------

void PowerOfAProduct::ExplainProblem() {
  ShowTask();
  Say(Text("The exponent {} tells how many times the group is a factor:", group_.exponent));
  Show("= " + GroupWrittenOut(group_), kExpressionCol);
  PageEnd();
  Say("Let's look at each factor of the group:");
  ShowGroupsTable(group_);
  PageEnd();
  NewScreen();
  ShowTask();
  ShowGroupsTable(group_);
  TellExponent(First());
  FillInTogether(group_, 0);
  PageEnd();
  TellExponent(Second());
  FillInTogether(group_, 1);
  PageEnd();
  Say("Both factors now have the power:");
  Show(GroupText(group_) + " = " + RightText(problem), kExpressionCol);
  PageEnd();
  Conclude(problem);
}

void PowerOfAProduct::ShowTask() const {
  ProblemBanner();
  ShowAt(5, GroupText(group_), kExpressionCol);
}

void PowerOfAProduct::TellExponent(const Power& power) const {
  const int n = group_.exponent;
  if (power.exponent == 1)
    Say(Text("{} is there once in each group, {} times in all.", power.base, n));
  else
    Say(Text(
        "Each {} is {} factors {}, and it is there {} times:  {}", PowerText(power), power.exponent,
        power.base, n,
        JoinedByTimes({NumStr(power.exponent), NumStr(n)}) + " = " + NumStr(power.exponent * n)));
}

const LessonRegistration<PowerOfAProduct> kRegistration("Power of a Product");

}  // namespace
}  // namespace course
