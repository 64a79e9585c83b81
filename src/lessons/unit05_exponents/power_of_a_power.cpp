// The student can raise a power to a power: the base stays, and the exponents are multiplied, since
// equal groups of equal factors are counted.
//
// A problem is a letter with an exponent, in parentheses with an exponent behind them; half of the
// problems have another pair of parentheses around it.
#include "lessons/families/powers/number_power.h"
#include "lessons/families/powers/power_law.h"
#include "lessons/lesson.h"

namespace course {
namespace {

using namespace powers;

constexpr std::string_view kLetters = "bcdfghkpqrstuvwxyz";
constexpr double kExpressionCol = 4;
const std::string kDot = " " + tutor::Dot + " ";
// The answer is worked out by hand, and another outer exponent leads to another of two digits.
constexpr int kLargestExponent = 99;
constexpr int kLargestInnerProduct = kLargestExponent / 3;

void ShowRule(double row = kUnder) {
  RuleBox("Rule For The Power Of A Power", {"(b^m^)^n^ = b^mn^"}, {.row = row, .width = 26});
}

// --- Teaching screens --------------------------------------------------------

void GroupsOfAPower() {
  NewScreen();
  SayAt(3, "A power may be raised to a power:");
  PointAtExponents({1, {{"b", 3}}, 4}, 6.5);
  Say(R"(The \cinner exponent\z 3 belongs to b.)");
  AddLine(R"(The \couter exponent\z 4 belongs to )" + Text("{}.", "(b^3^)"));
  PageEnd();
  Say("So the group is a factor 4 times.  Let's count the groups:");
  CountGroups({"b", 3}, 4, NextRow() + 0.5);
  PageEnd();
  Say(R"(\yTry it:\z  How many factors b are there?)");
  PageEnd();
  Say("Each of the 4 groups has 3 factors b:");
  Show(ExponentProduct(3, 4) + R"(,  so (b^3^)^4^ = \yb^12^\z)", kExpressionCol);
  PageEnd();
}

void WhyMultiply() {
  NewScreen();
  SayAt(3, "Why do we multiply?  Where powers are multiplied, their exponents are added:");
  Show("(b^3^)^4^ = b^3^" + kDot + "b^3^" + kDot + "b^3^" + kDot + "b^3^", kExpressionCol);
  Show("3 + 3 + 3 + 3 = " + ExponentProduct(3, 4), kExpressionCol);
  PageEnd();
  Say(R"(\yWatch out:\z  We do not add 3 and 4.  With 2 in place of b:)");
  PaperBox({"(2^3^)^4^ = 8^4^ = 4096", R"(2^12^ = 4096,  \rnot 2^7^ = 128\z)"});
  PageEnd();
  Say(R"(\yTry it:\z  Is  )" + Text("{} equal to {}?", "(k^5^)^2^", "k^7^"));
  PageEnd();
  Say("No.  2 groups have 5 factors k each:");
  Show(ExponentProduct(5, 2) + R"(,  so (k^5^)^2^ = \yk^10^\z)", kExpressionCol);
  PageEnd();
}

void TheRule() {
  NewScreen();
  ShowRule(3);
  Say("m and n stand for the exponents.  Side by side they are multiplied.");
  PageEnd();
  Say("We keep the base and multiply the inner exponent by the outer one.");
  PageEnd();
  const PowerOfGroup group = {1, {{"c", 2}}, 5};
  Say(Text("In {} we count the factors c:", GroupText(group)));
  ShowGroupsTable(group);
  RaiseInTable(group, 0);
  PageEnd();
  Say(R"(\yTry it:\z  Simplify  )" + Text("{}.", "(k^6^)^3^"));
  PageEnd();
  Say("Each of the 3 groups has 6 factors k:");
  Show(ExponentProduct(6, 3) + R"(,  so (k^6^)^3^ = \yk^18^\z)", kExpressionCol);
  PageEnd();
}

void AddOrMultiply() {
  NewScreen();
  SayAt(3, "When do we add the exponents, and when do we multiply them?");
  PageEnd();
  Say("3 factors and 4 more factors:  we add.");
  Show("x^3^" + kDot + R"(x^4^ = \yx^7^\z)", kExpressionCol);
  PageEnd();
  Say("4 groups of 3 factors:  we multiply.");
  Show(R"((x^3^)^4^ = \yx^12^\z)", kExpressionCol);
  PageEnd();
  Say(R"(\yTry it:\z  Simplify both:)");
  Show("a^5^" + kDot + "a^2^        (a^5^)^2^", kExpressionCol);
  PageEnd();
  Say(Text("{} is 5 factors and 2 more.  {} is 2 groups of 5:", "a^5^" + kDot + "a^2^",
           "(a^5^)^2^"));
  Show("a^5^" + kDot + R"(a^2^ = \ya^7^\z     (a^5^)^2^ = \ya^10^\z)", kExpressionCol);
  PageEnd();
}

void BaseStays() {
  NewScreen();
  SayAt(3, R"(\yWatch out:\z  We neither leave out the outer exponent nor write it in front:)");
  PaperBox({R"((b^3^)^4^ = b^12^,  \rnot b^3^\z,)", R"(\rnot 4b^3^\z,  \rnot 4b^12^\z)"});
  PageEnd();
  Say("With 2 in place of b:");
  Show("(2^3^)^4^ = 8^4^ = 4096", kExpressionCol);
  Show("4 " + tutor::Times + " 2^3^ = 4 " + tutor::Times + " 8 = 32", kExpressionCol);
  Show("4 " + tutor::Times + " 2^12^ = 4 " + tutor::Times + " 4096 = 16384", kExpressionCol);
  PageEnd();

  NewScreen();
  SayAt(3, Text(R"(\yWatch out:\z  The outer exponent does not raise the inner exponent.  {} is )"
                "wrong here:",
                "2^3^ = 8"));
  PaperBox({R"((b^2^)^3^ = b^6^,  \rnot b^8^\z)"});
  PageEnd();
  Say(R"(\yTry it:\z  Simplify  )" + Text("{}.", "(n^7^)^8^"));
  PageEnd();
  Say(Text(R"({}, and n stays:  \y{}\z)", ExponentProduct(7, 8), "n^56^"));
  PageEnd();
}

void GroupsInGroups() {
  NewScreen();
  SayAt(3, "A group may stand in a larger group:");
  Show("((c^2^)^3^)^4^", kExpressionCol);
  PageEnd();
  Say(Text("We work from the inside to the outside.  We begin with {}:", "(c^2^)^3^"));
  Show(ExponentProduct(2, 3) + ",  so ((c^2^)^3^)^4^ = (c^6^)^4^", kExpressionCol);
  PageEnd();
  Say(Text("Now the group is {}, and it is a factor 4 times:", "c^6^"));
  Show(ExponentProduct(6, 4) + R"(,  so (c^6^)^4^ = \yc^24^\z)", kExpressionCol);
  PageEnd();
  Say(Text(R"(\yWatch out:\z  All exponents are multiplied.  {} and {} are wrong:)",
           "2 + 3 + 4 = 9", "6 + 4 = 10"));
  PaperBox({R"(((c^2^)^3^)^4^ = c^24^,  \rnot c^9^\z,  \rnot c^10^\z)"});
  PageEnd();
  NewScreen();
  SayAt(3, R"(\yTry it:\z  Simplify  )" + Text("{}.", "((y^3^)^2^)^5^"));
  PageEnd();
  Say(ExponentProduct(3, 2) + ":");
  Show("((y^3^)^2^)^5^ = (y^6^)^5^", kExpressionCol);
  Say(ExponentProduct(6, 5) + ":");
  Show(R"((y^6^)^5^ = \yy^30^\z)", kExpressionCol);
  PageEnd();
}

// --- The lesson --------------------------------------------------------------

class PowerOfAPower final : public LessonScript {
 public:
  using LessonScript::LessonScript;

 private:
  std::vector<Screen> Screens() override {
    return {{GroupsOfAPower, WhyMultiply, TheRule}, {AddOrMultiply, BaseStays, GroupsInGroups}};
  }
  bool ChoicesAreLaidDown() const override { return true; }
  void DrawProblem(RandomStream& random) override;
  void ShowProblem() override;
  void ExplainProblem() override;

  // What the outer exponent belongs to, with its exponents multiplied.
  int InnerProduct() const { return first_ * (isNested_ ? second_ : 1); }
  PowerOfGroup OuterGroup() const { return {1, {{letter_, InnerProduct()}}, outer_}; }
  PowerOfGroup InnerGroup() const { return {1, {{letter_, first_}}, second_}; }
  std::string Expression() const;
  std::string PowerOfLetter(int exponent, int number = 1) const;
  std::string NameOfExponent(int wrong) const;
  void FillChoices(RandomStream& random);

  void ShowTask() const;
  void ExplainInnerGroup() const;
  void ExplainOuterGroup() const;
  void CheckExponent() const;

  std::string letter_;
  bool isNested_ = false;  // ((b^first)^second)^outer, else (b^first)^outer
  int first_ = 2;          // 2 to 9
  int second_ = 2;         // 2 to 9
  int outer_ = 2;          // 2 to 9
};

// --- Generator ---------------------------------------------------------------

std::string PowerOfAPower::Expression() const {
  if (!isNested_) return GroupText(OuterGroup());
  return "(" + GroupText(InnerGroup()) + ")^" + NumStr(outer_) + "^";
}

std::string PowerOfAPower::PowerOfLetter(int exponent, int number) const {
  return ProductText(number, {{letter_, exponent}});
}

// Of the draws of nested powers 37 % are accepted.
void PowerOfAPower::DrawProblem(RandomStream& random) {
  isNested_ = random.Rand(1, 2) == 2;
  do {
    first_ = random.Rand(2, 9);
    second_ = random.Rand(2, 9);
    outer_ = random.Rand(2, 9);
    // Too large to be worked out by hand.
  } while (InnerProduct() > kLargestInnerProduct || InnerProduct() * outer_ > kLargestExponent);
  letter_ = random.OneOf(kLetters);

  problem.question = {"Simplify the following expression:", Expression()};
  FillChoices(random);
}

// An exponent drawn at random may be that of a mistake.
std::string PowerOfAPower::NameOfExponent(int wrong) const {
  if (isNested_ && wrong == (first_ + second_) * outer_)
    return "adds the inner exponents but multiplies by the outer one";
  if (!isNested_ && wrong == ValueOfPower(first_, outer_)) return "raises the inner exponent";
  return kFiller;
}

void PowerOfAPower::FillChoices(RandomStream& random) {
  const int inner = InnerProduct();
  // With the right exponent twice its box would always be the most like the others.
  const bool keepsExponent = random.Rand(1, 2) == 1;
  problem.kind = choice_kind::FiveShuffled;
  problem.Right(1, PowerOfLetter(inner * outer_));
  problem.Wrong(2, "adds the exponents",
                PowerOfLetter(first_ + (isNested_ ? second_ : 0) + outer_));
  problem.Wrong(3, "writes the outer exponent in front instead of raising to it",
                PowerOfLetter(inner, outer_));
  if (isNested_)
    problem.Wrong(4, "multiplies the inner exponents but adds the outer one",
                  PowerOfLetter(inner + outer_));
  else if (keepsExponent)
    problem.Wrong(4, "leaves out the outer exponent", PowerOfLetter(inner));
  else
    problem.Wrong(4, "multiplies the exponents and writes the outer one in front, too",
                  PowerOfLetter(inner * outer_, outer_));
  // Another exponent behind the parentheses.
  const auto drawAnew = [&](int slot) {
    int exponent = 0;
    do {
      exponent = random.Rand(2, 9);
    } while (inner * exponent > kLargestExponent);  // longer than the others
    problem.Wrong(slot, NameOfExponent(inner * exponent), PowerOfLetter(inner * exponent));
  };
  drawAnew(5);
  // 2 and 2 have the same sum and product.
  ReplaceRepeatedTexts(problem, drawAnew);
}

// --- Problem page ------------------------------------------------------------

void PowerOfAPower::ShowProblem() {
  SayAt(5, problem.question[0]);
  ShowAt(7, Expression(), kExpressionCol);
  ShowAnswersInTwoColumns(problem);
}

// --- Worked explanation ------------------------------------------------------

void PowerOfAPower::ExplainProblem() {
  ShowTask();
  if (isNested_) ExplainInnerGroup();
  ExplainOuterGroup();
  CheckExponent();
  Conclude(problem);
}

void PowerOfAPower::ShowTask() const {
  ProblemBanner();
  ShowAt(5, Expression(), kExpressionCol);
}

void PowerOfAPower::ExplainInnerGroup() const {
  Say(Text("We begin inside, with {}:", GroupText(InnerGroup())));
  CountGroups({letter_, first_}, second_, NextRow() + 0.5);
  PageEnd();
  Say(Text("Each of the {} groups has {} factors {}:", second_, first_, letter_));
  Show(ExponentProduct(first_, second_), kExpressionCol);
  Show(Expression() + " = " + GroupText(OuterGroup()), kExpressionCol);
  PageEnd();
  NewScreen();
  ShowTask();
  AddLine("= " + GroupText(OuterGroup()), {.col = kExpressionCol - 2});
}

void PowerOfAPower::ExplainOuterGroup() const {
  const PowerOfGroup group = OuterGroup();
  Say(Text("The outer exponent {} counts the groups:", outer_));
  CountGroups(group.powers[0], outer_, NextRow() + 0.5);
  PageEnd();
  Say(Text("Each of the {} groups has {} factors {}:", outer_, InnerProduct(), letter_));
  Show(ExponentProduct(InnerProduct(), outer_), kExpressionCol);
  Show(Expression() + " = " + RightText(problem), kExpressionCol);
  PageEnd();
}

// The exponents of equal groups, which are added; of nested ones the product in another order.
void PowerOfAPower::CheckExponent() const {
  if (isNested_) {
    Say(R"(\yCheck:\z  We multiply in another order:)");
    Show(ExponentProduct(second_, outer_) + ",  " + ExponentProduct(first_, second_ * outer_),
         kExpressionCol);
  } else {
    Say(R"(\yCheck:\z  We add the inner exponents:)");
    ShowWorking(SumOfExponents(first_, outer_));
  }
  PageEnd();
}

const LessonRegistration<PowerOfAPower> kRegistration("Power of a Power");

}  // namespace
}  // namespace course
