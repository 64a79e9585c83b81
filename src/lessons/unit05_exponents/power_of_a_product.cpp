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
  SayAt(13, Text("The order of factors does not matter.  We bring {} and {} together:",
                 "3 factors a", "3 factors b"));
  FillInTogether(group, 0);
  FillInTogether(group, 1);
  Show(R"((ab)^3^ = \ya^3^b^3^\z)", kExpressionCol);
  PageEnd();
  Say(R"(\yTry it:\z  What is  )" + Text("{}?", "(xy)^5^"));
  PageEnd();
  Say("There are 5 factors x and 5 factors y:");
  Show(R"((xy)^5^ = \yx^5^y^5^\z)", kExpressionCol);
  PageEnd();
}

void RuleForProducts() {
  NewScreen();
  ShowRule(3);
  Say("Each factor gets the exponent after the parentheses.  n is any exponent.");
  PageEnd();
  Say(Text(R"(\yCheck:\z  We put {} in place of {}:)", "2 and 5", "a and b"));
  Show("(2 " + tutor::Times + " 5)^3^ = 10^3^ = 1000", kExpressionCol);
  Show("2^3^ " + tutor::Times + " 5^3^ = 8 " + tutor::Times + " 125 = 1000", kExpressionCol);
  PageEnd();
  Say(R"(\yTry it:\z  Is  )" + Text("{} equal to {}?", "(cd)^4^", "cd^4^"));
  PageEnd();
  Say("No.  Both factors get the exponent:");
  Show(R"((cd)^4^ = \yc^4^d^4^\z)", kExpressionCol);
  PageEnd();
}

void NotForSums() {
  NewScreen();
  SayAt(3, R"(\yWatch out:\z  The rule is for products, not for \ysums\z:)");
  RuleBox("Not For Sums", {R"((a + b)^2^  is not  \ra^2^ + b^2^\z)"}, {.width = 30});
  PageEnd();
  Say("In a sum we add first, then we square:");
  PaperBox({"(3 + 4)^2^ = 7^2^ = 49", R"(\r3^2^ + 4^2^ = 9 + 16 = 25\z)"});
  PageEnd();
  Say(R"(\yTry it:\z  For which does the rule hold?)");
  Show("(km)^2^        (k + m)^2^", kExpressionCol);
  PageEnd();
  Say("For the product of k and m:");
  Show(R"(\y(km)^2^ = k^2^m^2^\z)", kExpressionCol);
  PageEnd();
}

void PowersInside() {
  NewScreen();
  const PowerOfGroup group = {1, {{"c", 3}, {"d", 1}}, 2};
  SayAt(3, "Factors may have exponents, too:");
  PointAtExponents(group, 6.5);
  Say(R"(The \cinner exponent\z 3 belongs to c alone.)");
  AddLine(R"(The \couter exponent\z 2 belongs to )" + Text("{}.", "(c^3^d)"));
  PageEnd();
  Say("So the group is a factor 2 times:");
  Show("(c^3^d)^2^ = (c^3^d)(c^3^d)", kExpressionCol);
  PageEnd();
  Say(R"(\yTry it:\z  How many factors c are there?)");
  PageEnd();

  NewScreen();
  SayAt(3, Text("There are 6 factors c in {}:", "(c^3^d)^2^"));
  ShowGroupsTable(group);
  RaiseInTable(group, 0);
  PageEnd();
  RaiseInTable(group, 1);
  Show(R"((c^3^d)^2^ = \yc^6^d^2^\z)", kExpressionCol);
  PageEnd();
  Say(R"(\yWatch out:\z  The exponents 3 and 2 are not added:)");
  PaperBox({R"((c^3^d)^2^ = c^6^d^2^,  \rnot c^5^d^2^\z)"});
  PageEnd();
}

void BothInside() {
  NewScreen();
  const PowerOfGroup group = {1, {{"x", 2}, {"y", 4}}, 3};
  RuleBox("Inner And Outer Exponents", {"Multiply each inner exponent", "by the outer one."},
          {.row = 3, .width = 30});
  Say(Text("Here the outer exponent is 3:  {}", GroupText(group)));
  PageEnd();
  for (const std::string& line : LinesOfRaising(group)) Show(line, kExpressionCol);
  Show(GroupText(group) + R"( = \y)" + RaisedText(group) + R"(\z)", kExpressionCol);
  PageEnd();
  Say(R"(\yWatch out:\z  No factor is left without the power:)");
  PaperBox({R"((x^2^y^4^)^3^ = x^6^y^12^,)", R"(\rnot x^2^y^12^\z,  \rnot x^6^y^4^\z)"});
  PageEnd();
  Say(R"(\yTry it:\z  Simplify  )" + Text("{}.", "(p^5^q)^4^"));
  PageEnd();
  const PowerOfGroup task = {1, {{"p", 5}, {"q", 1}}, 4};
  Say(Text("q means {}, so its inner exponent is 1:", "q^1^"));
  for (const std::string& line : LinesOfRaising(task)) Show(line, kExpressionCol);
  Show(GroupText(task) + R"( = \y)" + RaisedText(task) + R"(\z)", kExpressionCol);
  PageEnd();
}

// --- The lesson --------------------------------------------------------------

class PowerOfAProduct final : public LessonScript {
 public:
  using LessonScript::LessonScript;

 private:
  std::vector<Screen> Screens() override {
    return {{GroupsOfFactors, RuleForProducts, NotForSums}, {PowersInside, BothInside}};
  }
  bool ChoicesAreLaidDown() const override { return true; }
  void DrawProblem(RandomStream& random) override;
  void ShowProblem() override;
  void ExplainProblem() override;

  const Power& First() const { return group_.powers[0]; }
  const Power& Second() const { return group_.powers[1]; }
  std::string Product(int firstExponent, int secondExponent) const;

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
  problem.question = {"Simplify the following expression:", GroupText(group_)};
  problem.kind = choice_kind::FiveShuffled;
  problem.Right(1, RaisedText(group_));
  problem.Wrong(2, NameOfAdding(group_), Product(AddedExponent(m, n), AddedExponent(k, n)));
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
  ShowTaskAndAnswers(problem, group_);
}

// --- Worked explanation ------------------------------------------------------

void PowerOfAProduct::ExplainProblem() {
  ExplainFactorByFactor(group_);
  BeginCheck(group_);
  CheckExponents(group_);
  Conclude(problem);
}

const LessonRegistration<PowerOfAProduct> kRegistration("Power of a Product");

}  // namespace
}  // namespace course
