// The student can simplify the square root of a number or of a term with letters: finds perfect
// squares or pairs of equal factors under the radical, brings them out, and sees when nothing can
// come out.
//
// A quarter of the problems each: a number up to 201, most of which are simple already; a product
// of small primes; the same with one letter, and with two.
#include "lessons/families/polynomials/area_tiles.h"
#include "lessons/families/radicals/pairs_figure.h"
#include "lessons/families/radicals/root_choices.h"
#include "lessons/families/radicals/root_term.h"
#include "lessons/lesson.h"

namespace course {
namespace {

using namespace radicals;

const std::string kTimes = " " + tutor::Times + " ";
const std::string kRoot = tutor::SquareRoot;

constexpr std::string_view kPairsOfLetters[] = {"ab", "cd", "mn", "pq", "xy"};
constexpr int kPrimes[] = {2, 2, 3, 3, 5};  // five or more of them hold a pair

// --- Teaching screens --------------------------------------------------------

// --- Screen 1: square roots --------------------------------------------------

// A square of little squares with its side and area.
void DrawSquare(double row, double col, int side) {
  constexpr double kTileColumns = static_cast<double>(gCellHeight) / gCellWidth;
  for (int i = 0; i < side; ++i)
    for (int j = 0; j < side; ++j) polynomials::DrawUnitTile(row + i, col + j * kTileColumns);
}

void OppositeOfSquaring() {
  NewScreen();
  SayAt(3, R"(The opposite of squaring a number is finding the \cSQUARE ROOT\z.  )");
  DrawSquare(6, 4, 3);
  SayAt(6, Text("The side is 3.  Squaring gives the area:  {}.", "3^2^ = 9"), {.col = 14});
  PageEnd();
  ShowAt(8.5, kRoot + "9 = 3 leads back.", 14);
  SayAt(10.5,
        Text(R"({} is the \cradical sign\z.  The number under it is the \cradicand\z.)", kRoot));
  Say(R"(\yTry it:\z  What is the square root of 49?)");
  PageEnd();
  Show(kRoot + "49 = 7,  because 7^2^ = 49");
  Say(R"(\yTry it:\z  Ben takes half of 16 and says that its square root is 8.  Is he right?)");
  PageEnd();
  NewScreen();
  SayAt(3, Text("No:  {} is 64.  {} is 16:", "8" + kTimes + "8", "4" + kTimes + "4"));
  Show(kRoot + "16 = 4");
  Say(R"((-4)(-4) is 16, too.  The radical sign stands for the \ypositive\z root.)");
  PageEnd();
}

// --- Screen 2: perfect squares -----------------------------------------------

PrintCellTable TableOfSquares() {
  constexpr int kColumns = 6;
  PrintCellTable table;
  table.heightPixels = 76;
  for (int row = 0; row < 2; ++row)
    for (int i = 0; i < kColumns; ++i)
      table.cells.push_back({20 + i * 13.2, 4 + row * 49.0, 12, 42});
  table.labels.push_back({2, 12, 17, 40, "Number", 12});
  table.labels.push_back({2, 62, 17, 36, "Square", 12});
  return table;
}

void PerfectSquares() {
  NewScreen();
  SayAt(3, R"(A whole number squared is a \cperfect square\z:)");
  CellTable(TableOfSquares(), 5.5);
  for (int i = 0; i < 6; ++i) {
    picPrintCellPrint(i + 1, NumStr(i + 2), platform::colour::Black, 14);
    picPrintCellPrint(i + 7, NumStr((i + 2) * (i + 2)), platform::colour::Blue, 14);
  }
  SayAt(10, "Then come 64, 81, 100, 121 and 144.  1 is a perfect square, too.");
  PageEnd();
  Show(kRoot + "64 = 8     " + kRoot + "100 = 10     " + kRoot + "144 = 12");
  AddLine("The radical sign is gone then.");
  Say(R"(\yTry it:\z  Which ones are perfect squares?)");
  PaperBox({"81     50     8     121"});
  PageEnd();
  Say(Text("81 is {} and 121 is {}.", "9^2^", "11^2^"));
  AddLine("50 stands between 49 and 64, so its root is between 7 and 8.");
  Say(R"(\yTry it:\z  What about the root of 30?)");
  PageEnd();
  NewScreen();
  SayAt(3, "It is between 5 and 6:");
  Show(kRoot + "25 = 5     " + kRoot + "30     " + kRoot + "36 = 6");
  Say("No fraction is exactly right, so it stays, with its radical sign.");
  PageEnd();
}

// --- Screen 3: products under the radical -----------------------------------

void RootOfProduct() {
  NewScreen();
  SayAt(3, "36 is 4 times 9.  Both lines give 6:");
  Show(kRoot + "(4" + kTimes + "9) = " + kRoot + "36 = 6");
  Show(kRoot + "4" + kTimes + kRoot + "9 = 2" + kTimes + "3 = 6");
  Say(R"(\yTry it:\z  Does this work for 9 + 16, too?)");
  PageEnd();
  Show(kRoot + "(9 + 16) = " + kRoot + "25 = 5");
  Show(kRoot + "9 + " + kRoot + "16 = 3 + 4 = 7");
  Say(R"(No.  We cut a radicand into \yfactors\z, never into a sum.)");
  PageEnd();
}

void SquareComesOut() {
  NewScreen();
  SayAt(3, "12 has the factor 4, a perfect square:");
  Show(kRoot + "12 = " + kRoot + "(4" + kTimes + "3) = " + kRoot + "4" + kTimes + kRoot + "3 = 2" +
       kRoot + "3");
  Say("This is 2 times the square root of 3.  Of the 4, only its root 2 comes out.");
  PageEnd();
  Say(R"(A radical is \csimplified\z when no perfect square but 1 is a factor of the radicand.)");
  Say(R"(\yTry it:\z  Simplify the square root of 50.)");
  PageEnd();
  Show(kRoot + "50 = " + kRoot + "(25" + kTimes + "2) = 5" + kRoot + "2");
  Say(R"(\yWatch out:\z  The root of 25 comes out, not 25 itself, and not half of it.)");
  PageEnd();
}

// --- Screen 4: until nothing is left ----------------------------------------

void NotYetSimple() {
  NewScreen();
  SayAt(3, "72 is 4 times 18, so a 2 comes out:");
  Show(kRoot + "72 = " + kRoot + "(4" + kTimes + "18) = 2" + kRoot + "18");
  Say(R"(\yTry it:\z  Is this simplified?)");
  PageEnd();
  Say("No.  18 is 9 times 2, so a 3 comes out:");
  Show("2" + kRoot + "18 = 2" + kTimes + "3" + kRoot + "2 = 6" + kRoot + "2");
  Say(R"(\yWatch out:\z  We multiply the factors 2 and 3.  We do not add them.)");
  PageEnd();
}

void SimpleAlready() {
  NewScreen();
  SayAt(3, "We test the perfect squares up to 30:");
  Show(kRoot + "30");
  PaperBox({"4, 9, 16 and 25 are no factors of 30"});
  Say("So the radical is simplified already.");
  PageEnd();
  Say("5 is a factor of 30, but 5 is no perfect square.  It stays inside.");
  Say(R"(\yTry it:\z  Which one is simplified?)");
  Show(kRoot + "35     " + kRoot + "45     " + kRoot + "48");
  PageEnd();
  Say("The first one.  45 has the factor 9, and 48 has 4 and 16.  We take 16, the larger one:");
  Show(kRoot + "45 = 3" + kRoot + "5     " + kRoot + "48 = 4" + kRoot + "3");
  PageEnd();
}

// --- Screen 5: pairs of factors ---------------------------------------------

void PairsOfPrimes() {
  NewScreen();
  SayAt(3, "We factor a large number into primes:");
  const PairsFigure figure = PairsFigure::OfNumber(360, 6.5);
  SayAt(12, "Two equal factors are a square:");
  Show(kRoot + "(2" + kTimes + "2) = 2");
  PageEnd();
  figure.BringPairsOut();
  ClearBelow(12);
  SayAt(12, R"(Of each \ypair\z one factor comes out, and none stays inside.)");
  SayAt(15, R"(\yTry it:\z  What stays inside?)");
  PageEnd();
  ClearBelow(14.9);
  figure.KeepRest();
  SayAt(15, "2 and 5 have no pair.  We multiply:");
  Show(kRoot + "360 = 2" + kTimes + "3" + kTimes + kRoot + "(2" + kTimes + "5) = 6" + kRoot + "10");
  Say(Text(R"(\yCheck:\z  {})", "6^2^" + kTimes + "10 = 36" + kTimes + "10 = 360"));
  PageEnd();
}

void TryPairs() {
  NewScreen();
  SayAt(3, R"(\yTry it:\z  Simplify this radical:)");
  const PairsFigure figure = PairsFigure::OfNumber(200, 6);
  PageEnd();
  figure.BringPairsOut();
  figure.KeepRest();
  SayAt(11, "The third 2 stays inside:");
  Show(kRoot + "200 = 2" + kTimes + "5" + kRoot + "2 = 10" + kRoot + "2");
  PageEnd();
}

// --- Screen 6: letters ------------------------------------------------------

void LettersInPairs() {
  NewScreen();
  SayAt(3, "A letter stands for a positive number here.  Equal letters make pairs, too:");
  const PairsFigure figure = PairsFigure::OfLetters("xxxxx", 6.5);
  SayAt(12, R"(\yTry it:\z  What comes out, and what stays?)");
  PageEnd();
  ClearBelow(12);
  figure.BringPairsOut();
  figure.KeepRest();
  SayAt(12, "Two pairs go out.  One x stays:");
  Show(kRoot + "(x^5^) = x^2^" + kRoot + "x");
  PageEnd();
  Say("An exponent of 16 makes 8 pairs:");
  Show(kRoot + "(x^16^) = x^8^");
  Say(R"(\yWatch out:\z  It is not x^4^.  The pairs are counted, so the exponent is halved.)");
  PageEnd();
}

void NumbersAndLetters() {
  NewScreen();
  SayAt(3, "Numbers and letters, each by itself:");
  ShowAt(4.75, kRoot + "(72x^2^y^3^)", 7);
  const PairsFigure number = PairsFigure::OfNumber(72, 7);
  PageEnd();
  number.BringPairsOut();
  number.KeepRest();
  const PairsFigure letters = PairsFigure::OfLetters("xxyyy", 13);
  PageEnd();
  letters.BringPairsOut();
  letters.KeepRest();
  ShowAt(19, kRoot + "(72x^2^y^3^) = 6xy" + kRoot + "(2y)");
  SayAt(21.5, R"(\yTry it:\z  Simplify)");
  ShowAt(21.5, kRoot + "(12a^3^)", 20);
  PageEnd();
  NewScreen();
  SayAt(3, Text("12 is {}, and {} is {}:", "4" + kTimes + "3", "a^3^", "a^2^" + kTimes + "a"));
  Show(kRoot + "(12a^3^) = 2a" + kRoot + "(3a)");
  Say(Text(R"(\yCheck:\z  {})", "(2a)^2^" + kTimes + "3a = 4a^2^" + kTimes + "3a = 12a^3^"));
  PageEnd();
}

// --- The lesson --------------------------------------------------------------

class SimplifyingRadicals final : public LessonScript {
 public:
  using LessonScript::LessonScript;

 private:
  std::vector<Screen> Screens() override {
    return {{OppositeOfSquaring},
            {PerfectSquares},
            {RootOfProduct, SquareComesOut},
            {NotYetSimple, SimpleAlready},
            {PairsOfPrimes, TryPairs},
            {LettersInPairs, NumbersAndLetters}};
  }
  void DrawProblem(RandomStream& random) override;
  void ShowProblem() override;
  void ExplainProblem() override;

  void ShowQuestion() const;
  void ExplainSimple() const;
  void PairUp() const;
  void MultiplyAndCheck() const;

  Term radicand_;
};

// --- Generator ---------------------------------------------------------------

int DrawProduct(RandomStream& random) {
  int product = 1;
  const int rounds = random.Rand(5, 7);
  for (int i = 0; i < rounds; ++i) product *= kPrimes[random.Index(5) - 1];
  return product;
}

Term DrawRadicand(RandomStream& random) {
  enum Kind { Number = 1, Product, OneLetter, TwoLetters };
  constexpr int kLargest = 9999;
  const int kind = random.Index(4);
  if (kind == Number) return {random.Rand(2, 201), ""};
  const std::string_view pair = kPairsOfLetters[random.Index(5) - 1];
  const int first = random.Rand(2, 5);
  int number = 0;
  do {
    number = DrawProduct(random);
  } while (number > kLargest);  // too long to divide by hand
  const int second = random.Rand(2, 5);
  Term radicand = {number, ""};
  if (kind >= OneLetter) radicand.letters += std::string(static_cast<std::size_t>(first), pair[0]);
  if (kind == TwoLetters)
    radicand.letters += std::string(static_cast<std::size_t>(second), pair[1]);
  return radicand;
}

void SimplifyingRadicals::DrawProblem(RandomStream& random) {
  radicand_ = DrawRadicand(random);
  problem.question = {"Simplify this radical:", RadicalOf(radicand_)};
  if (!radicand_.letters.empty())
    problem.question = {"Simplify this radical:", "The letters stand for positive numbers.",
                        RadicalOf(radicand_)};
  OfferRoots(problem, radicand_, random);
}

// --- Problem page ------------------------------------------------------------

void SimplifyingRadicals::ShowProblem() {
  SayAt(5, problem.question[0]);
  ShowAt(7, problem.question.back(), 7);
  if (problem.question.size() > 2) SayAt(9, problem.question[1]);
  ShowAnswersInTwoColumns(problem, {.width = 19});
}

// --- Worked explanation ------------------------------------------------------

void SimplifyingRadicals::ExplainProblem() {
  ShowQuestion();
  if (IsSimple(radicand_)) {
    ExplainSimple();
  } else {
    PairUp();
    MultiplyAndCheck();
  }
  Conclude(problem);
}

void SimplifyingRadicals::ShowQuestion() const {
  ProblemBanner();
  SayAt(4.5, problem.question[0]);
  ShowAt(6, problem.question.back(), 7);
}

void SimplifyingRadicals::ExplainSimple() const {
  const int number = radicand_.coef;
  const bool prime = PrimesOf(number).size() == 1;
  SayAt(8, "We look for a pair of equal factors, or for a perfect square that is a factor.");
  PageEnd();
  if (prime) {
    Say(Text("{} is a prime number.  It has no factor but 1 and itself.", number));
  } else {
    const PairsFigure figure = PairsFigure::OfNumber(number, NextRow() + 1.5);
    PageEnd();
    Say("No prime stands there twice, so there is no pair.");
  }
  PageEnd();
  Say("Nothing can come out.  The radical is simplified already.");
  PageEnd();
}

void SimplifyingRadicals::PairUp() const {
  const bool letters = !radicand_.letters.empty();
  SayAt(7.5, "We factor the number into primes:");
  const PairsFigure numbers = PairsFigure::OfNumber(radicand_.coef, 9);
  PageEnd();
  constexpr double kTextRow = 14;
  SayAt(kTextRow, R"(Of each pair one factor comes out.)");
  if (numbers.HasPair()) numbers.BringPairsOut();
  PageEnd();
  ClearBelow(kTextRow);
  if (numbers.HasRest()) {
    numbers.KeepRest();
    SayAt(kTextRow, "What has no pair stays inside.");
  } else {
    SayAt(kTextRow, "Every factor has a pair, so nothing stays inside.");
  }
  PageEnd();
  if (!letters) return;
  ClearBelow(kTextRow);
  SayAt(kTextRow, "The letters make pairs in the same way:");
  const PairsFigure figure = PairsFigure::OfLetters(radicand_.letters, kTextRow + 1.5);
  PageEnd();
  figure.BringPairsOut();
  if (figure.HasRest())
    figure.KeepRest();
  else
    SayAt(kTextRow + 5.5, "No letter stays inside.");
  PageEnd();
}

// "2 x 3 x x^2^" for 6x^2^.
std::string InFactors(const Term& term) {
  std::string text;
  for (const int prime : PrimesOf(term.coef)) text += (text.empty() ? "" : kTimes) + NumStr(prime);
  if (!term.letters.empty())
    text += (text.empty() ? "" : kTimes) + polynomials::LettersText(term.letters);
  return text;
}

// One side of the radical: its factors, and their product where there are several.
void TellProduct(const std::string& where, const Term& term) {
  const std::string factors = InFactors(term);
  const std::string product = polynomials::TermText(term);
  AddLine(Text("{}{}", Words{where}, factors == product ? product : factors + " = " + product));
}

void SimplifyingRadicals::MultiplyAndCheck() const {
  const RootTerm root = Simplified(radicand_);
  const bool whole = root.inside == Term{1, ""};
  NewScreen();
  ShowQuestion();
  SayAt(8,
        whole ? "We multiply what has come out:" : "We multiply outside, and we multiply inside:");
  TellProduct("   Outside:  ", root.outside);
  if (!whole) TellProduct("   Inside:   ", root.inside);
  Show(RadicalOf(radicand_) + " = " + RootTermText(root), 7);
  PageEnd();
  const Term square = polynomials::Product(root.outside, root.outside);
  const std::string outside = polynomials::TermText(root.outside);
  const std::string base = root.outside.letters.empty() ? outside : "(" + outside + ")";
  const std::string rest = whole ? "" : kTimes + polynomials::TermText(root.inside);
  Say(whole
          ? R"(\yCheck:\z  The square of the root is the radicand.)"
          : R"(\yCheck:\z  The square of what is outside, times what is inside, is the radicand.)");
  const std::string line = base + "^2^" + rest;
  Show(line + " = " + polynomials::TermText(square) + rest, 7);
  if (!whole) Show("= " + polynomials::TermText(radicand_), 7 + StackedTextWidth(line) + 1);
  PageEnd();
}

const LessonRegistration<SimplifyingRadicals> kRegistration("Simplifying Radicals");

}  // namespace
}  // namespace course
