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
  PrintStackedRow(4, "3/7");
  Locate(3, 7);
  WordWrap(R"(the \cnumerator\z: how many parts)");
  Locate(5, 7);
  WordWrap(R"(the \cdenominator\z: how many make 1)");
  DrawStrip(7, 3, 35, 7, {{3, Yellow}});
  PageEnd();
  WrapAt(9, R"(Fractions with the \ysame denominator\z count parts of the same size.  We add the )"
            R"(numerators and keep the denominator.)");
  PageEnd();
  DrawStrip(12.5, 3, 35, 7, {{3, Yellow}, {2, Cyan}});
  PrintStackedRow(15.5, "3/7 + 2/7 = (3 + 2)/7 = 5/7");
  PageEnd();
  WrapAt(18, R"(\rDo not add the denominators\z: 5/14 is less than the 3/7 with which we began.)");
  PageEnd();
  WrapAt(21, "What is the sum of 1/5 and 3/5?");
  PageEnd();
  WrapAt(22.5, "It is 4/5: four parts of the same size.");
  PageEnd();
}

void CommonDenominators() {
  NewScreen();
  PrintStackedRow(4, "1/2 + 1/3");
  WrapAt(6.5, "Halves and thirds are parts of different sizes: we cannot add them yet.");
  DrawStrip(9, 3, 36, 2, {{1, Yellow}});
  DrawStrip(10.5, 3, 36, 3, {{1, Cyan}});
  PageEnd();
  WrapAt(12.5, "But we can cut both strips into sixths:");
  DrawStrip(9, 3, 36, 6, {{3, Yellow}});
  DrawStrip(10.5, 3, 36, 6, {{2, Cyan}});
  PageEnd();
  PrintStackedRow(15, RenamedLine({1, 2}, 6));
  PrintStackedRow(15, RenamedLine({1, 3}, 6), 22);
  PageEnd();
  WrapAt(17.5, R"(6 is a \ccommon denominator\z: 2 and 3 both go into it evenly.)");
  PageEnd();
  DrawStrip(19.8, 3, 36, 6, {{3, Yellow}, {2, Cyan}});
  PrintStackedRow(22.2, "1/2 + 1/3 = 3/6 + 2/6 = 5/6");
  PageEnd();
}

void LeastCommonDenominators() {
  NewScreen();
  PrintStackedRow(4, "5/12 + 7/18");
  WrapAt(6.5, R"(The smallest common denominator is called the \cleast common denominator\z, or )"
              R"(\cLCD\z.  We find it with prime factors.)");
  PageEnd();
  WrapAt(10, "  12 = " + ProductText({2, 2, 3}));
  WrapAt(11, "  18 = " + ProductText({2, 3, 3}));
  PageEnd();
  WrapAt(12.5, R"(The LCD takes each prime as often as the line that has \ymost of it\z: )"
               R"(2 twice and 3 twice.)");
  WrapAt(15.5, "  LCD = " + ProductText({2, 2, 3, 3}) + " = 36");
  PageEnd();
  WrapAt(17, "The product " + ProductText({12, 18}) +
                 " = 216 is a common denominator too, but "
                 "it makes the numbers larger than they need to be.");
  PageEnd();
  WrapAt(21, "What is the LCD of 4 and 6?");
  PageEnd();
  WrapAt(22.5, "4 = " + ProductText({2, 2}) + " and 6 = " + ProductText({2, 3}) + ", so it is 12.");
  PageEnd();
}

void WholeSums() {
  NewScreen();
  WrapAt(3, "Let's add two fractions step by step.");
  PrintStackedRow(5.5, "5/6 + 7/10");
  PageEnd();
  WrapAt(8,
         "6 = " + ProductText({2, 3}) + " and 10 = " + ProductText({2, 5}) + ", so the LCD is 30.");
  PrintStackedRow(10.5, RenamedLine({5, 6}, 30));
  PrintStackedRow(10.5, RenamedLine({7, 10}, 30), 23);
  PageEnd();
  WrapAt(13, "We add the numerators:");
  PrintStackedRow(15.5, "25/30 + 21/30 = (25 + 21)/30 = 46/30");
  PageEnd();
  WrapAt(18, R"(2 goes into 46 and 30, so we \yreduce\z.)");
  PrintStackedRow(20.5, "46/30 = 23/15");
  PageEnd();
  WrapAt(22.8, R"(23 is 15 and 8 more: \y1 whole\z, 8 parts.)");
  PrintStackedRow(20.5, "= 1 8/15", 11);
  PageEnd();
}

void NegativeFractions() {
  NewScreen();
  WrapAt(3, R"(When a fraction is \ynegative\z, its numerator takes the minus sign along.)");
  PrintStackedRow(6.5, "5/6 + (-3/4)");
  PageEnd();
  WrapAt(9, "The LCD of 6 and 4 is 12.");
  PrintStackedRow(11.5, "10/12 + (-9/12)");
  PageEnd();
  WrapAt(14, "Adding -9 takes 9 parts away.");
  PrintStackedRow(16.5, "(10 + (-9))/12 = 1/12");
  PageEnd();
  WrapAt(19, "What is the sum of 1/2 and -1/3?");
  PageEnd();
  WrapAt(21, "In sixths it is 3 parts and -2 parts, which leaves 1/6.");
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
  void ExplainOneRenaming(double row, const Fraction& f);
  void ExplainSum();
  void ExplainLowestTerms();
  double ExplainReduction(double row);

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
  WrapAt(5, problem.question[0]);
  PrintStackedRow(8, Sum(), 5);
  WrapAt(11, "Find the sum in lowest terms.  A sum above 1 is written as a mixed number.");
  SetFractionBoxes(14);
}

// --- Worked explanation ------------------------------------------------------

void AddingFractions::ExplainProblem() {
  ProblemBanner();
  PrintStackedRow(5, Sum());
  ExplainDenominator();
  ExplainRenaming();
  ExplainSum();
  ExplainLowestTerms();
}

void AddingFractions::ExplainDenominator() {
  WrapAt(8, "The denominators " + NumStr(first_.den) + " and " + NumStr(second_.den) +
                R"( are different.  We find their \yleast common denominator\z (LCD) with prime )"
                "factors.");
  PageEnd();
  WrapAt(12, "  " + FactorsLine(first_.den));
  WrapAt(13, "  " + FactorsLine(second_.den));
  PageEnd();
  if (CommonPrimeFactors(first_.den, second_.den) == 0)
    WrapAt(15, "They share no prime, so the LCD needs all of them:");
  else
    WrapAt(15, R"(The LCD takes each prime as often as the line that has \ymost of it\z:)");
  WrapAt(18,
         "  LCD = " + ProductText(PrimeFactorsOf(Denominator())) + " = " + NumStr(Denominator()));
  PageEnd();
}

void AddingFractions::ExplainOneRenaming(double row, const Fraction& f) {
  const std::string factor = NumStr(Denominator() / f.den);
  WrapAt(row, NumStr(f.den) + " goes into " + NumStr(Denominator()) + R"( \y)" + factor +
                  R"( times\z.  Multiplying both parts by )" + factor + " keeps the value:");
  PrintStackedRow(row + 3.5, RenamedLine(f, Denominator()));
  PageEnd();
}

void AddingFractions::ExplainRenaming() {
  NewScreen();
  PrintStackedRow(3, Sum());
  Locate(3, 22);
  WordWrap("LCD = " + NumStr(Denominator()));
  ExplainOneRenaming(5.5, first_);
  ExplainOneRenaming(11.5, second_);
}

void AddingFractions::ExplainSum() {
  const std::string first = NumStr(FirstNumerator());
  const std::string second = NumStr(SecondNumerator());
  const std::string den = NumStr(Denominator());
  WrapAt(17.5, "Now both count parts of the same size.  We add the numerators:");
  PrintStackedRow(21, SumText(first + "/" + den, second + "/" + den) + " = (" +
                          SumText(first, second) + ")/" + den + " = " + UnreducedSum());
  PageEnd();
}

void AddingFractions::ExplainLowestTerms() {
  const Fraction sum = first_ + second_;
  NewScreen();
  PrintStackedRow(4, Sum() + " = " + UnreducedSum());
  double row = ExplainReduction(6.5);
  if (sum.num > sum.den) {
    WrapAt(row, NumStr(sum.den) + " goes into " + NumStr(sum.num) + " once, and " +
                    NumStr(sum.num - sum.den) + R"( is left.  We write a \ymixed number\z.)");
    PrintStackedRow(row + 3.5, ValueText(sum) + " = " + MixedText(sum));
    PageEnd();
    row += 6;
  }
  WrapAt(row, "Written on one line, the sum is " + MixedText(sum) + ".");
  PageEnd();
}

// Returns the row below the step.
double AddingFractions::ExplainReduction(double row) {
  const int numerator = FirstNumerator() + SecondNumerator();
  const int common = Gcf(numerator, Denominator());
  if (common == 1) {
    WrapAt(row, NumStr(numerator) + " and " + NumStr(Denominator()) +
                    " share no factor, so the sum is in lowest terms.");
    PageEnd();
    return row + 3;
  }
  WrapAt(row, R"(\y)" + NumStr(common) + R"(\z goes into )" + NumStr(numerator) + " and " +
                  NumStr(Denominator()) + R"(.  We divide both by it to \yreduce\z the fraction.)");
  PrintStackedRow(row + 3.5, UnreducedSum() + " = " + ValueText(first_ + second_));
  PageEnd();
  return row + 6;
}

const LessonRegistration<AddingFractions> kRegistration("Adding Fractions");

}  // namespace
}  // namespace course
