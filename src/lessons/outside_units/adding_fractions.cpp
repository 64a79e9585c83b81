// The student can add two fractions: find their least common denominator, rename both, add the
// numerators, and write the sum in lowest terms, as a mixed number when it is above 1.
//
// Problems are of two kinds with equal chances.  The first has denominators up to 15 of which
// neither is a multiple of the other; in the second, with denominators up to 30, they also share a
// factor, so that the least common denominator is smaller than their product.  Either kind may have
// a negative second fraction, but the sum is always positive.
#include "lessons/families/fractions/fraction_steps.h"
#include "lessons/lesson.h"

namespace course {
namespace {

using namespace fractions;

using platform::colour::Cyan;
using platform::colour::Yellow;

constexpr int kLargestCommonDenominator = 180;

std::string FactorsLine(int n) {
  const std::vector<int> factors = PrimeFactorsOf(n);
  return NumStr(n) + (factors.size() == 1 ? " is a prime number." : " = " + ProductText(factors));
}

// --- Teaching screens --------------------------------------------------------

void SameDenominator() {
  NewScreen();
  ShowAt(4, "3/7");
  SayAt(3, R"(the \cnumerator\z: how many parts)", {.col = 7});
  SayAt(5, R"(the \cdenominator\z: how many make 1)", {.col = 7});
  DrawStrip(7, 3, 35, 7, {{3, Yellow}});
  PageEnd();
  SayAt(9, R"(Fractions with the \ysame denominator\z count parts of the same size.  We add the )"
           R"(numerators and keep the denominator.)");
  PageEnd();
  DrawStrip(12.5, 3, 35, 7, {{3, Yellow}, {2, Cyan}});
  ShowAt(15.5, "3/7 + 2/7 = (3 + 2)/7 = 5/7");
  PageEnd();
  Say(R"(\rDo not add the denominators\z: 5/14 is less than the 3/7 with which we began.)");
  PageEnd();
  Say("What is the sum of 1/5 and 3/5?");
  PageEnd();
  Say("It is 4/5: four parts of the same size.");
  PageEnd();
}

void CommonDenominators() {
  NewScreen();
  ShowAt(4, "1/2 + 1/3");
  Say("Halves and thirds are parts of different sizes: we cannot add them yet.");
  DrawStrip(9, 3, 36, 2, {{1, Yellow}});
  DrawStrip(10.5, 3, 36, 3, {{1, Cyan}});
  PageEnd();
  SayAt(12.5, "But we can cut both strips into sixths:");
  DrawStrip(9, 3, 36, 6, {{3, Yellow}});
  DrawStrip(10.5, 3, 36, 6, {{2, Cyan}});
  PageEnd();
  ShowAt(15, RenamedLine({1, 2}, 6));
  ShowAt(15, RenamedLine({1, 3}, 6), 22);
  PageEnd();
  Say(R"(6 is a \ccommon denominator\z: 2 and 3 both go into it evenly.)");
  PageEnd();
  DrawStrip(19.7, 3, 36, 6, {{3, Yellow}, {2, Cyan}});
  ShowAt(22, "1/2 + 1/3 = 3/6 + 2/6 = 5/6");
  PageEnd();
}

void LeastCommonDenominators() {
  NewScreen();
  ShowAt(4, "5/12 + 7/18");
  Say(R"(The smallest common denominator is called the \cleast common denominator\z, or \cLCD\z.  )"
      R"(We find it with prime factors.)");
  PageEnd();
  Show(FactorsLine(12));
  Show(FactorsLine(18));
  PageEnd();
  Say(R"(The LCD takes each prime as often as the line that has \ymost of it\z: 2 twice and 3 )"
      "twice.");
  Show(Text("LCD = {} = 36", ProductText({2, 2, 3, 3})));
  PageEnd();
  Say(
      Text("The product {} = 216 is a common denominator too, but it makes the numbers larger than "
           "they need to be.",
           ProductText({12, 18})));
  PageEnd();
  Say("What is the LCD of 4 and 6?");
  PageEnd();
  AddLine(Text("4 = {} and 6 = {}, so it is 12.", ProductText({2, 2}), ProductText({2, 3})));
  PageEnd();
}

void WholeSums() {
  NewScreen();
  Say("Let's add two fractions step by step.");
  Show("5/6 + 7/10");
  PageEnd();
  Say(Text("6 = {} and 10 = {}, so the LCD is 30.", ProductText({2, 3}), ProductText({2, 5})));
  ShowAt(10.5, RenamedLine({5, 6}, 30));
  ShowAt(10.5, RenamedLine({7, 10}, 30), 23);
  PageEnd();
  Say("We add the numerators:");
  Show("25/30 + 21/30 = (25 + 21)/30 = 46/30");
  PageEnd();
  Say(R"(2 goes into 46 and 30, so we \yreduce\z.)");
  ShowAt(20.5, "46/30 = 23/15");
  PageEnd();
  Say(R"(23 is 15 and 8 more: \y1 whole\z, 8 parts.)");
  ShowAt(20.5, "= 1 8/15", 11);
  PageEnd();
}

void NegativeFractions() {
  NewScreen();
  Say(R"(When a fraction is \ynegative\z, its numerator takes the minus sign along.)");
  Show("5/6 + (-3/4)");
  PageEnd();
  Say("The LCD of 6 and 4 is 12.");
  Show("10/12 + (-9/12)");
  PageEnd();
  Say("Adding -9 takes 9 parts away.");
  Show("(10 + (-9))/12 = 1/12");
  PageEnd();
  Say("What is the sum of 1/2 and -1/3?");
  PageEnd();
  Say("In sixths it is 3 parts and -2 parts, which leaves 1/6.");
  PageEnd();
}

// --- The lesson ------------------------------------------------------------

class AddingFractions final : public LessonScript {
 public:
  using LessonScript::LessonScript;

 private:
  std::vector<Screen> Screens() override {
    return {{SameDenominator},
            {CommonDenominators, LeastCommonDenominators},
            {WholeSums, NegativeFractions}};
  }
  void DrawProblem(RandomStream& random) override;
  void ShowProblem() override;
  void ExplainProblem() override;

  static Fraction DrawFraction(RandomStream& random, int kind);
  bool Unsuitable(int kind) const;
  int Denominator() const { return LeastCommonDenominator(first_, second_); }
  int FirstNumerator() const { return RenamedNumerator(first_, Denominator()); }
  int SecondNumerator() const { return RenamedNumerator(second_, Denominator()); }
  std::vector<FractionMistake> Mistakes() const;
  std::string UnreducedSum() const {
    return OverText(FirstNumerator() + SecondNumerator(), Denominator());
  }
  std::string Sum() const { return SumText(ValueText(first_), ValueText(second_)); }

  void ExplainDenominator();
  void ExplainRenaming();
  void ExplainOneRenaming(const Fraction& f);
  void ExplainSum();
  void ExplainLowestTerms();
  void ExplainReduction();

  Fraction first_;   // proper, positive
  Fraction second_;  // proper, of either sign
};

// --- Generator ---------------------------------------------------------------

Fraction AddingFractions::DrawFraction(RandomStream& random, int kind) {
  const int denominator = kind == 1 ? random.Rand(3, 15) : random.Rand(2, 30);
  const int numerator = random.Rand(1, denominator - 1);
  return Reduced(numerator, denominator);
}

// The cheap questions come first: most fractions of the second kind are thrown away.
bool AddingFractions::Unsuitable(int kind) const {
  const int common = Gcf(first_.den, second_.den);
  if (kind == 2 && common == 1) return true;
  const int lcd = first_.den / common * second_.den;
  return lcd == first_.den || lcd == second_.den  // one of the denominators would do as it is
         || lcd > kLargestCommonDenominator       // too much to multiply by hand
         ||
         RenamedNumerator(first_, lcd) + RenamedNumerator(second_, lcd) <= 0;  // sums are positive
}

// The kind is drawn once, so that both are as many.  Of what is drawn then, 57 % of the first kind
// and 6.5 % of the second are accepted.
void AddingFractions::DrawProblem(RandomStream& random) {
  const int kind = random.Rand(1, 2);
  do {
    first_ = DrawFraction(random, kind);
    second_ = DrawFraction(random, kind);
    second_.num *= random.Sign();
  } while (Unsuitable(kind));

  problem.question = {"Add the fractions below.", Sum()};
  FillFractionChoices(problem, first_ + second_, Mistakes(), Denominator(), random);
}

std::vector<FractionMistake> AddingFractions::Mistakes() const {
  const int lcd = Denominator();
  const int a = first_.num;
  const int b = second_.num;
  std::vector<FractionMistake> mistakes;
  if (b < 0)
    mistakes.push_back({"leaves out the minus sign", FirstNumerator() - SecondNumerator(), lcd});
  mistakes.insert(mistakes.end(),
                  {{"adds the denominators too", a + b, first_.den + second_.den},
                   {"multiplies each numerator by the factor of the other",
                    a * (lcd / second_.den) + b * (lcd / first_.den), lcd},
                   {"keeps both numerators over the common denominator", a + b, lcd}});
  // All of the others are below 1: a sum above 1 gets a neighbour in their place.
  if (FirstNumerator() + SecondNumerator() < lcd)
    mistakes.insert(mistakes.end(),
                    {{"renames the first fraction only", FirstNumerator() + b, lcd},
                     {"renames the second fraction only", a + SecondNumerator(), lcd}});
  return mistakes;
}

// --- Problem page ------------------------------------------------------------

void AddingFractions::ShowProblem() {
  SayAt(5, problem.question[0]);
  ShowAt(8, Sum(), 5);
  SayAt(11, "Find the sum in lowest terms.  A sum above 1 is written as a mixed number.");
  ShowAnswersInThreeColumns(problem, {.row = 14});
}

// --- Worked explanation ------------------------------------------------------

void AddingFractions::ExplainProblem() {
  ProblemBanner();
  ShowAt(5, Sum());
  ExplainDenominator();
  ExplainRenaming();
  ExplainSum();
  ExplainLowestTerms();
}

void AddingFractions::ExplainDenominator() {
  Say(Text(
      R"(The denominators {} and {} are different.  We find their \yleast common denominator\z )"
      "(LCD) with prime factors.",
      first_.den, second_.den));
  PageEnd();
  Show(FactorsLine(first_.den));
  Show(FactorsLine(second_.den));
  PageEnd();
  Say(CommonPrimeFactors(first_.den, second_.den) == 0
          ? "They share no prime, so the LCD needs all of them:"
          : R"(The LCD takes each prime as often as the line that has \ymost of it\z:)");
  Show(Text("LCD = {} = {}", ProductText(PrimeFactorsOf(Denominator())), Denominator()));
  PageEnd();
}

void AddingFractions::ExplainOneRenaming(const Fraction& f) {
  const int factor = Denominator() / f.den;
  Say(Text(R"({} goes into {} \y{} times\z.  Multiplying both parts by {} keeps the value:)", f.den,
           Denominator(), factor, factor));
  Show(RenamedLine(f, Denominator()));
  PageEnd();
}

void AddingFractions::ExplainRenaming() {
  NewScreen();
  ShowAt(3, Sum());
  SayAt(3, Text("LCD = {}", Denominator()), {.col = 22});
  GoBelow();
  ExplainOneRenaming(first_);
  ExplainOneRenaming(second_);
}

void AddingFractions::ExplainSum() {
  const std::string first = NumStr(FirstNumerator());
  const std::string second = NumStr(SecondNumerator());
  const std::string den = NumStr(Denominator());
  Say("Now both count parts of the same size.  We add the numerators:");
  Show(SumText(first + "/" + den, second + "/" + den) + " = (" + SumText(first, second) + ")/" +
       den + " = " + UnreducedSum());
  PageEnd();
}

void AddingFractions::ExplainLowestTerms() {
  const Fraction sum = first_ + second_;
  NewScreen();
  ShowAt(4, Sum() + " = " + UnreducedSum());
  ExplainReduction();
  if (sum.num > sum.den) {
    Say(Text(R"({} goes into {} once, and {} is left.  We write a \ymixed number\z.)", sum.den,
             sum.num, sum.num - sum.den));
    Show(ValueText(sum) + " = " + MixedText(sum));
    PageEnd();
  }
  Conclude(problem);
  PageEnd();
}

void AddingFractions::ExplainReduction() {
  const int numerator = FirstNumerator() + SecondNumerator();
  const int common = Gcf(numerator, Denominator());
  if (common == 1) {
    Say(Text("{} and {} share no factor, so the sum is in lowest terms.", numerator,
             Denominator()));
  } else {
    Say(Text(R"(\y{}\z goes into {} and {}.  We divide both by it to \yreduce\z the fraction.)",
             common, numerator, Denominator()));
    Show(UnreducedSum() + " = " + ValueText(first_ + second_));
  }
  PageEnd();
}

const LessonRegistration<AddingFractions> kRegistration("Adding Fractions");

}  // namespace
}  // namespace course
