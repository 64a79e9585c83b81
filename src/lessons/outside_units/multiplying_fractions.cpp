// The student can multiply two fractions: strike out common factors, one number above and one
// below, and multiply the numerators and the denominators that are left.
//
// Both fractions are proper and in lowest terms, with denominators up to 30.  In nine of ten
// problems one pair of numbers has a common factor, in the others both pairs.
#include "lessons/families/fractions/fraction_products.h"
#include "lessons/families/fractions/fraction_steps.h"
#include "lessons/lesson.h"

namespace course {
namespace {

using namespace fractions;

constexpr int kLargestDenominator = 60;  // of the answer
const std::string kTimes = " " + tutor::Times + " ";

// --- Teaching screens --------------------------------------------------------

constexpr double kPictureCol = 5;

void PartsOfParts() {
  NewScreen();
  SayAt(3, "2/3 of a field is planted:");
  DrawPartOfPart(5, kPictureCol, {.columns = 3, .filledColumns = 2});
  SayAt(11, R"(3/4 \yof\z that part is corn.  What part of the whole field is it?)");
  PageEnd();
  ClearBelow(11);
  DrawPartOfPart(5, kPictureCol, {.columns = 3, .filledColumns = 2, .rows = 4, .filledRows = 3});
  SayAt(11, "We cut the field into 4 rows, and take 3 of them in the planted part.");
  SayAt(13.5, "How many small parts are there?  How many of them are yellow?");
  PageEnd();
  ClearBelow(13);
  SayAt(13.5, Text("The field has {} parts.  Of these, {} are yellow.", "4" + kTimes + "3 = 12",
                   "3" + kTimes + "2 = 6"));
  ShowAt(17.5, "3/4" + kTimes + "2/3 = (3" + kTimes + "2)/(4" + kTimes + "3) = 6/12 = 1/2");
  SayAt(20, R"(Half of it is corn.  "Of" means \ytimes\z.)");
  PageEnd();

  NewScreen();
  RuleBox("Multiplying Fractions", {"Multiply the numerators.", "Multiply the denominators."},
          {.row = 3});
  Say("We need no common denominator.");
  PageEnd();
  Say(R"(The result is called the \cproduct\z.)");
  Say(R"(\yTry it:\z  What is 1/2 of 3/5?)");
  PageEnd();
  Show("1/2" + kTimes + "3/5 = (1" + kTimes + "3)/(2" + kTimes + "5) = 3/10");
  GoBelow();
  DrawPartOfPart(NextRow() + 0.5, kPictureCol,
                 {.columns = 5, .filledColumns = 3, .rows = 2, .filledRows = 1});
  PageEnd();
}

void NotThisWay() {
  NewScreen();
  SayAt(3, R"(\yWatch out:\z  Someone multiplies crosswise:)");
  PaperBox({R"(\r4/5)" + kTimes + "3/4 = (4" + kTimes + "4)/(5" + kTimes + R"(3) = 16/15\z)"});
  Say("Can 4/5 of 3/4 be more than 1?");
  PageEnd();
  Say("No: a part of a part is smaller than the part.  We multiply above with above:");
  Show("4/5" + kTimes + "3/4 = (4" + kTimes + "3)/(5" + kTimes + "4) = 12/20 = 3/5");
  PageEnd();
  Say(R"(\yWatch out:\z  Someone keeps a denominator, as in a sum:)");
  PaperBox({R"(\r1/2)" + kTimes + "1/3 = 3/6" + kTimes + R"(2/6 = 6/6\z)"});
  Say("What is a half of 1/3?");
  PageEnd();
  Say("It is 1/6.  The denominators are multiplied too.");
  PageEnd();
}

void WholeNumbers() {
  NewScreen();
  SayAt(3, "What is 2/3" + kTimes + "3?  Three times we take 2 thirds:");
  ShowAt(6.5, "2/3 + 2/3 + 2/3 = 6/3 = 2");
  PageEnd();
  Say("The 3 is 3 wholes, or 3/1.  So it goes with the numerator:");
  Show("2/3" + kTimes + "3/1 = (2" + kTimes + "3)/(3" + kTimes + "1) = 6/3 = 2");
  PageEnd();
  Say(R"(\yWatch out:\z  Do not multiply both by 3.  That gives 6/9, and 6/9 is still 2/3.)");
  PageEnd();
  Say(R"(\yTry it:\z  What is 3/5)" + kTimes + "2?");
  PageEnd();
  Show("3/5" + kTimes + "2/1 = 6/5 = 1 1/5");
  PageEnd();
}

void StrikingOut() {
  const FractionProduct product = {{4, 15}, {7, 8}};
  NewScreen();
  SayAt(2.5, "The products are large here: 28 and 120.");
  const StrikingLine line(6, product);
  SayAt(9.5, R"(We can reduce \ybefore\z we multiply.  Which number goes into 4 and into 8?)");
  PageEnd();
  ClearBelow(9);
  line.StrikeFalling();
  AddLine(R"(4 does: their \ccommon factor\z.  We divide both by 4, and \cstrike them out\z.)");
  PageEnd();
  GoBelow();
  AddLine("1 and 2 are left.  Which number goes into 7 and into 15?");
  PageEnd();
  GoBelow();
  AddLine("Only 1 does.  So 7 and 15 stay.");
  PageEnd();
  line.ShowRest();
  AddLine("Now we multiply what is left.");
  PageEnd();
  GoBelow();
  AddLine(R"(\yCheck:\z  Without striking out:)");
  Show("28/120 = (7" + kTimes + "4)/(30" + kTimes + "4) = 7/30");
  PageEnd();
}

void RulesOfStriking() {
  const FractionProduct product = {{8, 15}, {5, 12}};
  NewScreen();
  SayAt(3, R"(\yWatch out:\z  We always strike out \ytwo\z numbers, one above and one below.)");
  PaperBox(
      {R"(\rOnly above:  4/9)" + kTimes + "3/5 = (4" + kTimes + "1)/(9" + kTimes + R"(5) = 4/45\z)",
       R"(\rBoth above:  4/9)" + kTimes + "2/5 = (2" + kTimes + "1)/(9" + kTimes +
           R"(5) = 2/45\z)"});
  PageEnd();
  Say("What are the right answers?");
  PageEnd();
  Say("We divide the 9 by 3, too:");
  Show("4/9" + kTimes + "3/5 = (4" + kTimes + "1)/(3" + kTimes + "5) = 4/15");
  Say("Here nothing can be struck out:");
  Show("4/9" + kTimes + "2/5 = (4" + kTimes + "2)/(9" + kTimes + "5) = 8/45");
  PageEnd();

  NewScreen();
  SayAt(3, R"(\yTry it:\z  Someone strikes out 2 here, and is left with 4 and 6.  Is that all?)");
  const StrikingLine line(8, product);
  PageEnd();
  SayAt(11.5, "No: 2 goes into 4 and 6 once more.");
  PageEnd();
  line.StrikeFalling();
  AddLine("4 is the greatest common factor of 8 and 12.  We strike it out at once.");
  PageEnd();
  line.StrikeRising();
  AddLine("5 goes into 5 and 15.  Of the 5, 1 is left, not 0.");
  PageEnd();
  line.ShowRest();
  AddLine(R"(Nothing more goes into one above and one below.  2/9 is in \clowest terms\z.)");
  PageEnd();
}

// --- The lesson --------------------------------------------------------------

class MultiplyingFractions final : public LessonScript {
 public:
  using LessonScript::LessonScript;

 private:
  std::vector<Screen> Screens() override {
    return {{PartsOfParts, NotThisWay, WholeNumbers, StrikingOut, RulesOfStriking}};
  }
  void DrawProblem(RandomStream& random) override;
  void ShowProblem() override;
  void ExplainProblem() override;

  static Fraction DrawFraction(RandomStream& random);
  bool Unsuitable() const;
  std::vector<FractionMistake> Mistakes() const;
  static void ExplainFactor(int above, int below, int factor);
  void ExplainCheck() const;

  FractionProduct product_;
};

// --- Generator ---------------------------------------------------------------

Fraction MultiplyingFractions::DrawFraction(RandomStream& random) {
  const int denominator = random.Rand(2, 30);
  const int numerator = random.Rand(1, denominator - 1);
  return Reduced(numerator, denominator);
}

bool MultiplyingFractions::Unsuitable() const {
  return product_.FallingFactor() * product_.RisingFactor() == 1  // nothing to be struck out
         || product_.Result().den > kLargestDenominator;          // too much to multiply by hand
}

// Of the pairs drawn, 30 % are accepted.
void MultiplyingFractions::DrawProblem(RandomStream& random) {
  do {
    product_.first = DrawFraction(random);
    product_.second = DrawFraction(random);
  } while (Unsuitable());

  problem.question = {"Multiply the fractions below.", product_.Text()};
  std::vector<FractionMistake> mistakes = Mistakes();
  // In random order: else the right one would have the same place by its size in most problems.
  const int count = static_cast<int>(mistakes.size());
  std::vector<FractionMistake> mixed;
  for (const int i : random.RandSeq(count, count))
    mixed.push_back(mistakes[static_cast<std::size_t>(i - 1)]);
  FillFractionChoices(problem, product_.Result(), mixed, product_.Result().den, random);
}

std::vector<FractionMistake> MultiplyingFractions::Mistakes() const {
  const auto [a, b] = product_.first;
  const auto [c, d] = product_.second;
  const int struck = product_.FallingFactor() * product_.RisingFactor();
  const int above = Gcf(a, c);
  const int below = Gcf(b, d);
  std::vector<FractionMistake> mistakes;
  const auto add = [&](const char* name, int num, int den) {
    mistakes.push_back({name, num, den});
  };
  add("multiplies crosswise", a * d, b * c);
  add("strikes out above only", a * c / struck, b * d);
  add("strikes out below only", a * c, b * d / struck);
  add("adds in place of multiplying", a * d + c * b, b * d);
  add("adds the denominators", a * c, b + d);
  add("adds above and below", a + c, b + d);
  if (above > 1) add("strikes out both numerators", a * c / (above * above), b * d);
  if (below > 1) add("strikes out both denominators", a * c, b * d / (below * below));
  // As in a sum; far above 1 nobody would take it.
  if (a * c < 2 * below) add("keeps the common denominator", a * c, below);
  return mistakes;
}

// --- Problem page ------------------------------------------------------------

void MultiplyingFractions::ShowProblem() {
  SayAt(5, problem.question[0]);
  ShowAt(8, product_.Text(), 5);
  SayAt(11, "Find the product in lowest terms.");
  ShowAnswersInThreeColumns(problem, {.row = 14});
}

// --- Worked explanation ------------------------------------------------------

void MultiplyingFractions::ExplainProblem() {
  ProblemBanner();
  const StrikingLine line(6, product_);
  SayAt(9.5, "Before we multiply, we look for common factors: one number above, one below.");
  PageEnd();
  const auto [a, b] = product_.first;
  const auto [c, d] = product_.second;
  ExplainFactor(a, d, product_.FallingFactor());
  if (product_.FallingFactor() > 1) line.StrikeFalling();
  PageEnd();
  ExplainFactor(c, b, product_.RisingFactor());
  if (product_.RisingFactor() > 1) line.StrikeRising();
  PageEnd();
  line.ShowRest();
  AddLine("We multiply what is left.");
  PageEnd();
  ExplainCheck();
  Conclude(problem);
}

void MultiplyingFractions::ExplainFactor(int above, int below, int factor) {
  GoBelow();
  AddLine(factor == 1 ? Text("{} and {} have no common factor but 1.", above, below)
                      : Text(R"({} and {}: we can divide both by \y{}\z.)", above, below, factor));
}

void MultiplyingFractions::ExplainCheck() const {
  const Fraction result = product_.Result();
  const std::string struck =
      kTimes + NumStr(product_.FallingFactor() * product_.RisingFactor()) + ")";
  GoBelow();
  AddLine(R"(\yCheck:\z  Without striking out:)");
  Show(product_.UnreducedText() + " = (" + NumStr(result.num) + struck + "/(" + NumStr(result.den) +
       struck + " = " + OverText(result));
  PageEnd();
}

const LessonRegistration<MultiplyingFractions> kRegistration("Multiplying Fractions");

}  // namespace
}  // namespace course
