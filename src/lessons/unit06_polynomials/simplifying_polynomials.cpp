// The student can name the terms and the degree of a polynomial, and simplifies one: gathers like
// terms, adds their coefficients and writes the sums in falling powers.
//
// A problem is a sum of five terms of three kinds, not in order.  Four choices are the right sum
// and what mistakes lead to; in the fifth one a coefficient is altered at random.
#include "lessons/families/polynomials/combining_mistakes.h"
#include "lessons/families/polynomials/combining_steps.h"
#include "lessons/families/polynomials/gathering_table.h"
#include "lessons/families/polynomials/headed_cells.h"
#include "lessons/families/polynomials/sum_of_terms.h"
#include "lessons/lesson.h"

namespace course {
namespace {

using namespace polynomials;

constexpr std::string_view kLetters = "cdhkmnpqrtuvwxyz";
constexpr int kLargest = 9;  // size of a coefficient
constexpr int kHighestPower = 3;
constexpr int kKinds = 3;       // of terms, one in each of the first slots
constexpr int kSlots = 6;       // for terms in the order in which they stand
constexpr int kLaterTerms = 2;  // in two of the other slots
constexpr double kExpressionCol = 4;
constexpr double kGatheredRow = 6.5;  // of the sum above the table in an explanation

// --- Teaching screens --------------------------------------------------------

void TermsOfAPolynomial() {
  constexpr double kRow = 6;
  constexpr double kCol = 12;
  NewScreen();
  SayAt(3, R"(An expression such as this one is called a \cpolynomial\z:)");
  ShowAt(kRow, "4x^3^ - 2x^2^ + 7x - 5", kCol);
  PageEnd();
  SayAt(
      8,
      Text(R"(It is a sum of \cterms\z:  numbers, or numbers times {} and so on.  No exponent is )"
           "negative or a fraction.",
           Words{"x, x^2^, x^3^"}));
  Say(R"(\yTry it:\z  What is the second term?)");
  PageEnd();
  SlideLeft({kRow, kCol, 3}, 6);
  SlideLeft({kRow, kCol + 4, 5}, 2);
  SlideRight({kRow, kCol + 15, 3}, 6);
  SlideRight({kRow, kCol + 10, 4}, 2);
  for (const auto& [first, last] : {std::pair{6, 8}, {14, 18}, {24, 27}, {33, 35}})
    isDrawRoundRect(kRow - 0.2, first - 1, kRow + 0.3, last + 1, 2, platform::colour::Cyan);
  Say(R"(It is \y-2x^2^\z.  The signs + and - separate the 4 terms, and the sign in front of a term )"
      "belongs to it.");
  PageEnd();
}

void ShortNames() {
  NewScreen();
  SayAt(3, "Short polynomials have their own names:");
  ShowHeadedCells(4.5, {"Terms", "Name", "Example"}, 3);
  PrintCells(1, {"one", "monomial", "-2x^2^"});
  PrintCells(4, {"two", "binomial", "7x - 5"});
  PrintCells(7, {"three", "trinomial", "x^2^ + 7x - 5"});
  PageEnd();
}

void Coefficients() {
  NewScreen();
  SayAt(3, R"(The number in front of the letter is the \ccoefficient\z of the term.)");
  ShowHeadedCells(5.5, {"Term", "Coefficient", "Power"}, 3);
  PrintCells(1, {"4x^3^", "4", "x^3^"});
  PrintCells(4, {"-2x^2^", "-2", "x^2^"});
  PrintCells(7, {"-x", "", "x"});
  SayAt(12, R"(\yTry it:\z  What is the coefficient of -x?)");
  PageEnd();
  PrintCells(8, {"-1"}, platform::colour::Blue);
  Say(Text("It is {}.  {} means {}, as {} means {}.", -1, "-x", "-1x", "x", "1x"));
  PageEnd();
}

void DegreeOfATerm() {
  NewScreen();
  SayAt(3, R"(The \cdegree\z of a term in one letter is the exponent of the letter.)");
  ShowHeadedCells(5.5, {"Term", "Degree"}, 4);
  PrintCells(1, {"4x^3^", "3", "-2x^2^", "2", "7x", "", "-5"});
  SayAt(13, R"(\yTry it:\z  Which degrees belong in the last two rows?)");
  PageEnd();
  PrintCells(6, {"1"}, platform::colour::Blue);
  PrintCells(8, {"0"}, platform::colour::Blue);
  ClearBelow(13);
  SayAt(13, Text("{} is {}, so the degree of {} is 1.", "x", "x^1^", "7x"));
  Say(Text("A number has no letter:  its degree is 0.  That fits {}, since {} is {}.", "x^0^ = 1",
           -5, "-5x^0^"));
  PageEnd();
}

void DegreeOfAPolynomial() {
  NewScreen();
  SayAt(3, R"(The \cdegree of a polynomial\z is the highest degree of its terms.)");
  Show(R"(8 + 3x \y- x^2^\z  has degree 2)", kExpressionCol);
  Say(Text(R"(\yTry it:\z  Find the degree of {}.)", "5 - 2x^4^ + x"));
  PageEnd();
  Say(Text("It is 4:  {} has the highest degree.", "-2x^4^"));
  Say(R"(\yWatch out:\z  Neither the largest number nor the number of terms counts.)");
  PaperBox({R"(5 - 2x^4^ + x has degree 4,  \rnot 5\z, \rnot 3\z)"});
  PageEnd();
}

void FallingPowers() {
  NewScreen();
  SayAt(3, Text("Let's put 10 in place of x in {}:", "4x^3^ + 2x^2^ + 7x + 5"));
  ShowHeadedCells(6, {"thousands", "hundreds", "tens", "ones"}, 2);
  PrintCells(1, {"4x^3^", "2x^2^", "7x", "5", "4000", "200", "70", "5"});
  PageEnd();
  SayAt(10.5, "Together they are 4275.  In a number the largest place comes first.");
  Say(R"(Polynomials are written in \cfalling powers\z, too:  the highest degree first.)");
  PageEnd();
}

void CarryTermsIntoOrder() {
  constexpr double kRow = 6;
  constexpr double kDrop = 1.4;  // rows; whole pixels
  constexpr double kCol = 8;
  constexpr double kLane = kRow + kDrop;
  const auto carry = [&](double from, double width, double to) {
    SlideDown({kRow, from, width}, kDrop, Leaving::Copy, Pace::Brisk);
    if (to < from) SlideLeft({kLane, from, width}, from - to, Leaving::Nothing, Pace::Brisk);
    if (to > from) SlideRight({kLane, from, width}, to - from, Leaving::Nothing, Pace::Brisk);
    SlideDown({kLane, to, width}, kDrop, Leaving::Nothing, Pace::Brisk);
  };
  NewScreen();
  SayAt(3, R"(\yTry it:\z  In falling powers, which term comes first, and which comes last?)");
  ShowAt(kRow, "7x - 5 + 4x^3^ - 2x^2^", kCol);
  PageEnd();
  carry(kCol + 9, 3, kCol);       // 4x^3^
  carry(kCol + 13, 5, kCol + 4);  // - 2x^2^
  carry(kCol, 2, kCol + 12);      // 7x
  ShowAt(kLane + kDrop, "+", kCol + 10);
  carry(kCol + 3, 3, kCol + 15);  // - 5
  SayAt(10.5, "The degrees are falling:  3, 2, 1, 0.");
  Say(R"(\yWatch out:\z  Each term keeps its sign.)");
  PaperBox({R"(5 - 2x = -2x + 5,  \rnot 2x - 5\z)"});
  PageEnd();
}

void OrderWithGaps() {
  NewScreen();
  SayAt(3, "A power may be missing.  Here it is x^2^:");
  Show("x^3^ + 6x - 1", kExpressionCol);
  Say(Text(R"(\yTry it:\z  Write {} in falling powers.)", "9 - x^2^ + 4x"));
  PageEnd();
  Say("The degrees are 2, 1 and 0:");
  Show(R"(9 - x^2^ + 4x = \y-x^2^ + 4x + 9)", kExpressionCol);
  Say(R"(\yCheck:\z  We put 2 in place of x.)");
  Show("9 - 4 + 8 = 13     -4 + 8 + 9 = 13", kExpressionCol);
  PageEnd();
}

void GatherAndAdd() {
  NewScreen();
  SayAt(3,
        R"(To \csimplify\z a polynomial we combine like terms.  They have the same degree here.)");
  GatheringTable table({{-5, "x"}, {3, "xx"}, {2, ""}, {8, "x"}, {-1, "xx"}}, 6,
                       KindNames::Degrees);
  SayAt(table.RowBelow(), R"(\yTry it:\z  Which terms go together?)");
  PageEnd();
  ClearBelow(table.RowBelow());
  table.GatherAll();
  SayAt(table.RowBelow(), "Each term takes its sign along.  We count:  all 5 terms are there.");
  Say(R"(\yTry it:\z  What are the sums?)");
  PageEnd();
  ClearBelow(table.RowBelow());
  table.AddUpAll();
  SayAt(table.RowBelow(), Text("{}, since {} means {}.  {}.  2 has no like term.", "3 + (-1) = 2",
                               "-x^2^", "-1x^2^", "-5 + 8 = 3"));
  Say(R"(-5x + 3x^2^ + 2 + 8x - x^2^ = \y2x^2^ + 3x + 2)", {.col = 2});
  PageEnd();
}

void SignsAndSums() {
  NewScreen();
  SayAt(3, R"(\yWatch out:\z  The sign belongs to the term.)");
  PaperBox({R"(-5x + 8x = 3x,  \rnot 13x\z)"});
  Say(R"(\yTry it:\z  What is 7t - 6t?)");
  PageEnd();
  Say("7 + (-6) = 1, and 1t is written t:");
  Show(R"(7t - 6t = \yt)", kExpressionCol);
  Say(R"(\yTry it:\z  What is 3v - 6v + 8v?)");
  PageEnd();
  Say("We add from left to right:");
  Show("3 + (-6) + 8 = -3 + 8 = 5", kExpressionCol);
  Show(R"(3v - 6v + 8v = \y5v)", kExpressionCol);
  PageEnd();
}

// Filled up with hard blanks to the length of the longest rule: lines of a box are centered.
std::string AsWideAs(std::string rule) {
  constexpr int kLongest = 38;
  for (int i = static_cast<int>(rule.size()); i < kLongest; ++i) rule += tutor::Gap;
  return rule;
}

void UnlikeTermsStayApart() {
  NewScreen();
  SayAt(3,
        Text("Who is right?  Ann leaves {} as it is.  Ben says it is {}.", "2x^2^ + 3x", "5x^3^"));
  PageEnd();
  Say("Let's put 10 in place of x:");
  Show("2x^2^ + 3x = 200 + 30 = 230", kExpressionCol);
  Show("5x^3^ = 5000", kExpressionCol);
  Say("Ann is right.  Unlike terms stay apart.");
  PageEnd();
  Say(R"(\yWatch out:\z  Like terms keep the exponent, and x^2^ counts as 1x^2^.)");
  PaperBox(
      {R"(3x^2^ - x^2^ = 2x^2^,  \rnot 2x^4^\z, \rnot 3x^2^\z)", R"(7y - 1 stays,  \rnot 6y\z)"});
  PageEnd();

  NewScreen();
  RuleBox("Simplifying a Polynomial",
          {AsWideAs("1. Gather like terms with their signs."),
           AsWideAs("2. Add coefficients, and add numbers."),
           AsWideAs("3. Write the sums in falling powers.")},
          {.row = 3, .width = 36});
  PageEnd();
  Say(R"(\yCheck:\z  We put 2 in place of x.)");
  Show("-5x + 3x^2^ + 2 + 8x - x^2^ = 2x^2^ + 3x + 2", 2);
  Show("-10 + 12 + 2 + 16 - 4 = 16", kExpressionCol);
  Show("8 + 6 + 2 = 16", kExpressionCol);
  PageEnd();
  Say(R"(\yTry it:\z  Simplify this polynomial.)");
  Show("-2n + 9 + 6n^3^ - 4n - n", kExpressionCol);
  PageEnd();
}

void ThreeLikeTerms() {
  NewScreen();
  GatheringTable table({{-2, "n"}, {9, ""}, {6, "nnn"}, {-4, "n"}, {-1, "n"}}, 3,
                       KindNames::Degrees);
  table.GatherAll();
  table.AddUpAll();
  SayAt(table.RowBelow(), Text("{} means {}:", "-n", "-1n"));
  Show("-2 + (-4) + (-1) = -6 + (-1) = -7", kExpressionCol);
  Say(R"(-2n + 9 + 6n^3^ - 4n - n = \y6n^3^ - 7n + 9)", {.col = 2});
  PageEnd();
  Say(R"(\yWatch out:\z  Two negatives make a positive product, but a negative sum.)");
  PaperBox({R"(-2n - 4n = -6n,  \rnot 6n\z)"});
  PageEnd();

  NewScreen();
  SayAt(3, R"(\yTry it:\z  Simplify this one, too.)");
  GatheringTable last({{5, ""}, {-8, "kk"}, {3, "k"}, {2, "kk"}, {-9, ""}}, 5, KindNames::Degrees);
  PageEnd();
  last.GatherAll();
  last.AddUpAll();
  SayAt(last.RowBelow(), "-8 + 2 = -6:  -8 is farther from 0.");
  AddLine("5 + (-9) = -4:  -9 is farther from 0.");
  Say(R"(5 - 8k^2^ + 3k + 2k^2^ - 9 = \y-6k^2^ + 3k - 4)", {.col = 2});
  PaperBox({R"(-8k^2^ + 2k^2^ = -6k^2^,  \rnot 6k^2^\z)"});
  PageEnd();
}

// --- The lesson --------------------------------------------------------------

class SimplifyingPolynomials final : public LessonScript {
 public:
  using LessonScript::LessonScript;

 private:
  std::vector<Screen> Screens() override {
    return {{TermsOfAPolynomial, ShortNames, Coefficients},
            {DegreeOfATerm, DegreeOfAPolynomial},
            {FallingPowers, CarryTermsIntoOrder, OrderWithGaps},
            {GatherAndAdd, SignsAndSums, UnlikeTermsStayApart, ThreeLikeTerms}};
  }
  void DrawProblem(RandomStream& random) override;
  void ShowProblem() override;
  void ExplainProblem() override;

  Sum DrawSum(RandomStream& random, const std::string& letter) const;

  Sum sum_;
};

// --- Generator ---------------------------------------------------------------

int DrawCoefficient(RandomStream& random) {
  const int size = random.Index(kLargest);
  return size * random.Sign();
}

// Three kinds of terms, then two terms that are like some of them; one slot stays empty.
Sum SimplifyingPolynomials::DrawSum(RandomStream& random, const std::string& letter) const {
  std::array<Term, kSlots + 1> slots;
  int slot = 0;
  for (const int power : random.RandSeq(kHighestPower + 1, kKinds)) {
    const auto factors = static_cast<std::size_t>(power - 1);
    slots[++slot] = {DrawCoefficient(random), std::string(factors, letter[0])};
  }
  for (int later = 0; later < kLaterTerms; ++later) {
    const int like = random.Index(kKinds);
    do {
      slot = random.Rand(kKinds + 1, kSlots);
    } while (slots[slot].coef != 0);  // the slot is taken
    slots[slot] = {DrawCoefficient(random), slots[like].letters};
  }
  Sum sum;
  std::ranges::copy_if(slots, std::back_inserter(sum),
                       [](const Term& term) { return term.coef != 0; });
  return sum;
}

// The sum with another coefficient in one of its terms.
Sum Altered(RandomStream& random, Sum sum, int least, int most) {
  Term& term = sum[random.Index(static_cast<int>(sum.size())) - 1];
  int change = 0;
  do {
    change = random.Rand(least, most) * random.Sign();
  } while (term.coef + change == 0);  // a term that vanishes
  term.coef += change;
  return sum;
}

void SimplifyingPolynomials::DrawProblem(RandomStream& random) {
  constexpr int kAlteredSlot = 5;
  const std::string letter = random.OneOf(kLetters);
  do {
    sum_ = DrawSum(random, letter);
  } while (Combined(sum_).size() < kKinds);  // terms that add up to 0

  problem.question = {"Simplify the following expression:", SumText(sum_)};
  const std::vector<Slip> slips = ReadingSlips(sum_, LoneName::Term);
  const ChoiceRules rules = {.slots = kAlteredSlot - 1, .aboutUnlike = 6, .lastSignsDiffer = true};
  FillCombinedChoices(problem, sum_, slips, random, rules);
  // Altered from the right sum, the fifth choice would make that the box most like the others.
  const Sum slipped = Combined(slips[random.Index(2) - 1].terms);
  const auto offer = [&](int slot, const Sum& wrong) {
    problem.Wrong(slot, MistakeLeadingTo(wrong, sum_, slips, rules), SumText(wrong));
  };
  offer(kAlteredSlot, Altered(random, slipped, 1, 9));
  ReplaceRepeatedTexts(problem, [&](int slot) { offer(slot, Altered(random, slipped, 2, 10)); });
}

// --- Problem page ------------------------------------------------------------

void SimplifyingPolynomials::ShowProblem() {
  SayAt(5, problem.question[0]);
  ShowAt(7, problem.question[1], kExpressionCol);
  ShowAnswersInOneColumn(problem, {.row = 10, .width = 24});  // three terms are long
}

// --- Worked explanation ------------------------------------------------------

void SimplifyingPolynomials::ExplainProblem() {
  ProblemBanner();
  SayAt(5, problem.question[0]);
  CombineAloud(sum_, kGatheredRow, KindNames::Degrees);
  PageEnd();
  SumWithProducts parts;
  for (const Term& term : sum_) parts.push_back({{term}});
  CheckInNumbers(parts);
  Conclude(problem);
}

const LessonRegistration<SimplifyingPolynomials> kRegistration("Simplifying Polynomials");

}  // namespace
}  // namespace course
