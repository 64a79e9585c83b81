// The student can multiply two binomials: multiplies each term of one by each term of the other,
// First, Outer, Inner, Last, with their signs, and adds the four products.
//
// A problem has binomials in two different letters, (pt + q)(ru + s), so that its four products are
// unlike terms.  The wrong choices have another Outer or Inner product.
#include "lessons/families/polynomials/cut_rectangle.h"
#include "lessons/families/polynomials/foil_table.h"
#include "lessons/families/polynomials/sum_of_terms.h"
#include "lessons/lesson.h"

namespace course {
namespace {

using namespace polynomials;

constexpr std::string_view kFirstLetters = "tuvwxy";  // the second letter is the next one
constexpr int kLargest = 9;                           // size of a coefficient, and of its change
constexpr double kExpressionCol = 6;
constexpr double kWideCol = 2;
constexpr double kPairRow = 5;  // of two binomials above their table

// --- Teaching screens ----------------------------------------------------------------------------

void RectangleOfFourParts() {
  constexpr double kBelow = 14.5;
  NewScreen();
  SayAt(3, R"(A \cbinomial\z has two terms.  In t + 3 the terms are t and 3.)");
  PageEnd();
  CutRectangle rectangle({"t", "3"}, {"u", "2"}, 7.2);
  SayAt(kBelow, Text("Here the sides are {} and {}.", "t + 3", "u + 2"));
  PageEnd();
  AddLine(Text("The area is {}.", "(t + 3)(u + 2)"));
  Say(R"(\yTry it:\z  What is the area of each part?)");
  PageEnd();
  rectangle.MoveApart();
  rectangle.ShowAreas({{{"tu", "3u"}, {"2t", "6"}}});
  ClearBelow(kBelow);
  SayAt(kBelow, "Together they are the whole area:");
  Show(R"((t + 3)(u + 2) = \ytu + 2t + 3u + 6)", 3);
  PageEnd();
  Say(R"(So \yeach\z term of one binomial is multiplied by \yeach\z term of the other.)");
  PageEnd();
}

void Work(FoilTable& table, std::initializer_list<Foil> products) {
  for (const Foil foil : products) {
    table.Bring(foil);
    table.Multiply(foil);
  }
  ClearBelow(table.RowBelow());
}
void WorkAll(FoilTable& table) {
  Work(table, {Foil::First, Foil::Outer, Foil::Inner, Foil::Last});
  table.Unmark();
}

void SumOfFourProducts(const FoilTable& table) {
  table.Unmark();
  ClearBelow(table.RowBelow());
  SayAt(table.RowBelow(), "Their sum is the product of the binomials:");
  Show("(3t + 2)(4u + 5)", kExpressionCol);
  Show(R"(  = \y12tu + 15t + 8u + 10)", kExpressionCol);
  Say(R"(\yTry it:\z  Can we combine 15t and 8u?)");
  PageEnd();
  Say("No.  15t has the letter t and 8u has the letter u, so they are unlike terms:");
  PaperBox({R"(15t + 8u,  \rnot 23tu\z)"});
  PageEnd();
}

void FourNames() {
  const BinomialPair pair = {{{3, "t"}, {2, ""}}, {{4, "u"}, {5, ""}}};
  NewScreen();
  SayAt(3, "With four names we forget no product:");
  FoilTable table(pair, kPairRow);
  Work(table, {Foil::First});
  SayAt(table.RowBelow(), R"(\cFirst\z:  the first term of each binomial)");
  PageEnd();
  table.Bring(Foil::Outer);
  table.Multiply(Foil::Outer);
  SayAt(table.RowBelow() + 1, R"(\cOuter\z:  the two terms at the outside)");
  PageEnd();
  AddLine(R"(\cInner\z:  the two terms in the middle)");
  AddLine(R"(\cLast\z:   the last term of each binomial)");
  Say(R"(\yTry it:\z  What are the Inner and the Last product?)");
  PageEnd();
  Work(table, {Foil::Inner});
  SayAt(table.RowBelow(), "Inner:  " + pair.ProductText(Foil::Inner));
  PageEnd();
  table.Bring(Foil::Last);
  table.Multiply(Foil::Last);
  SayAt(table.RowBelow() + 1, "Last:   " + pair.ProductText(Foil::Last));
  PageEnd();
  SumOfFourProducts(table);
}

void TwoProductsForgotten() {
  NewScreen();
  SayAt(3, R"(\yTry it:\z  Tom multiplies only first by first and last by last.  Is he right?)");
  PaperBox({R"((3t + 2)(4u + 5) = \r12tu + 10)"});
  PageEnd();
  Say("No.  Outer and Inner are missing.  With 2 for t and 1 for u:");
  Show("(6 + 2)(4 + 5) = 8 " + tutor::Times + " 9 = 72", kExpressionCol);
  Show("24 + 10 = 34", kExpressionCol);
  PageEnd();
  Say("With all four products we get the same value:");
  Show("24 + 30 + 8 + 10 = 72", kExpressionCol);
  PageEnd();
  RuleBox("First, Outer, Inner, Last  (FOIL)",
          {"Multiply the four pairs of terms.", "Add the four products."}, {.width = 34});
  PageEnd();
}

void TermsWithSigns() {
  const BinomialPair pair = {{{2, "v"}, {-3, ""}}, {{1, "w"}, {-5, ""}}};
  NewScreen();
  SayAt(3, "Each term takes its sign:  -3 and -5.");
  FoilTable table(pair, kPairRow);
  PageEnd();
  Work(table, {Foil::First, Foil::Outer});
  SayAt(table.RowBelow(),
        "w means 1w, so the First product is 2vw.  2 times -5 is -10, so Outer "
        "is negative.");
  Say(R"(\yTry it:\z  Which signs do Inner and Last have?)");
  PageEnd();
  Work(table, {Foil::Inner, Foil::Last});
  table.Unmark();
  SayAt(table.RowBelow(),
        "Inner is negative, as -3 and 1 have different signs.  Last is positive:  two negatives "
        "make a positive product.");
  Show(R"((2v - 3)(w - 5) = \y2vw - 10v - 3w + 15)", 1);
  PageEnd();
  Say(R"(\yWatch out:\z  The sign belongs to the term.)");
  PaperBox({R"(Outer is -10v,  \rnot 10v\z)", R"(Last is 15,  \rnot -15\z)"});
  PageEnd();
}

void MinusInFront() {
  const BinomialPair pair = {{{-1, "x"}, {4, ""}}, {{3, "y"}, {-2, ""}}};
  NewScreen();
  SayAt(3, R"(\yTry it:\z  Here -x means -1x.  Find the four products.)");
  FoilTable table(pair, kPairRow);
  PageEnd();
  WorkAll(table);
  SayAt(table.RowBelow(),
        "First:  different signs make a negative product.  Outer:  two negatives "
        "make a positive one.");
  Show("(-x + 4)(3y - 2)", kExpressionCol);
  Show(R"(  = \y-3xy + 2x + 12y - 8)", kExpressionCol);
  PageEnd();
  Say(R"(\yCheck:\z  We put 2 in place of x and 1 in place of y:)");
  Show("(-2 + 4)(3 - 2) = 2 " + tutor::Times + " 1 = 2", kExpressionCol);
  Show("-6 + 4 + 12 - 8 = 2", kExpressionCol);
  PageEnd();
}

void TwoMinusesInFront() {
  const BinomialPair pair = {{{-2, "p"}, {-3, ""}}, {{-5, "q"}, {4, ""}}};
  NewScreen();
  SayAt(3, R"(\yTry it:\z  Both first terms are negative.  Which products are negative, too?)");
  FoilTable table(pair, kPairRow);
  PageEnd();
  WorkAll(table);
  SayAt(table.RowBelow(),
        "Outer and Last:  they have different signs.  First and Inner have two negatives each:");
  Show("(-2p - 3)(-5q + 4)", kExpressionCol);
  Show(R"(  = \y10pq - 8p + 15q - 12)", kExpressionCol);
  PageEnd();
  Say(R"(\yCheck:\z  We put 2 in place of p and 1 in place of q:)");
  Show("(-4 - 3)(-5 + 4) = -7 " + tutor::Times + " (-1) = 7", kExpressionCol);
  Show("20 - 16 + 15 - 12 = 7", kExpressionCol);
  PageEnd();
}

void SquareOfADifference() {
  const BinomialPair pair = {{{1, "z"}, {-4, ""}}, {{1, "z"}, {-4, ""}}};
  NewScreen();
  SayAt(3, R"(\yTry it:\z  Ann squares z and 4 and keeps the minus sign.  Is she right?)");
  PaperBox({R"((z - 4)^2^ = \rz^2^ - 16)"});
  PageEnd();
  NewScreen();
  SayAt(3, Text("No.  {} is a product, too.  It has four products:", "(z - 4)^2^"));
  FoilTable table(pair, kPairRow);
  WorkAll(table);
  PageEnd();
  SayAt(table.RowBelow(), "Outer and Inner are like terms:  -4z and -4z make -8z.");
  Show(R"((z - 4)^2^ = \yz^2^ - 8z + 16)", kExpressionCol);
  PageEnd();
  Say(Text(R"(\yWatch out:\z  {} is another product:)", "z^2^ - 16"));
  Show("(z - 4)(z + 4) = z^2^ + 4z - 4z - 16", kWideCol);
  Show(R"(               = \yz^2^ - 16\z)", kWideCol);
  PaperBox({R"((z - 4)^2^ = (z - 4)(z - 4),  \rnot (z - 4)(z + 4)\z)"});
  PageEnd();
}

void OneProductWrong() {
  NewScreen();
  SayAt(3, R"(\yTry it:\z  One of Mia's four products is wrong.  Which one?)");
  PaperBox({"(7w + 6)(8x - 9)", R"(  = 56wx - 63w + 46x - 54)"});
  PageEnd();
  Say("It is Inner:  " + WithoutBreaks("6 " + tutor::Dot + " 8x = 48x."));
  Say(R"(\yWatch out:\z  Many wrong choices have one product that is only slightly wrong.  Work )"
      "out each of the four.");
  PageEnd();
}

// --- The lesson ----------------------------------------------------------------------------------

class MultiplyingBinomials final : public LessonScript {
 public:
  using LessonScript::LessonScript;
  bool ChoicesAreLaidDown() const override { return true; }

 private:
  std::vector<Screen> Screens() override {
    return {{RectangleOfFourParts, FourNames, TwoProductsForgotten, TermsWithSigns, MinusInFront,
             TwoMinusesInFront, SquareOfADifference, OneProductWrong}};
  }
  void DrawProblem(RandomStream& random) override;
  void ShowProblem() override;
  void ExplainProblem() override;

  void DrawWrongChoice(int slot, RandomStream& random);
  void TellLoneLetters(const FoilTable& table) const;
  void MultiplyPair(FoilTable& table, Foil foil) const;
  void AddProducts(double row) const;
  void Check() const;

  BinomialPair pair_;
};

// --- Generator -----------------------------------------------------------------------------------

// Not 0.
int DrawSigned(RandomStream& random) {
  const int sign = random.Sign();
  return sign * random.Rand(1, kLargest);
}

std::string MistakeOfCoefficient(int wrong, const BinomialPair& pair, Foil foil) {
  const int first = pair.FirstTerm(foil).coef;
  const int second = pair.SecondTerm(foil).coef;
  if (wrong == -first * second)
    return "takes the wrong sign for the " + FoilName(foil) + " product";
  if (wrong == first + second)
    return "adds the numbers of the " + FoilName(foil) + " terms in place of multiplying";
  const Term term = {wrong, pair.Product(foil).letters};
  return Text("works out {}", pair.FactorsText(foil) + " as " + TermText(term));
}

// Slots 2 and 3 have another Outer product, 4 and 5 another Inner one.
void MultiplyingBinomials::DrawWrongChoice(int slot, RandomStream& random) {
  const Foil foil = slot <= 3 ? Foil::Outer : Foil::Inner;
  Sum products = pair_.Products();
  int& coef = products.at(static_cast<std::size_t>(foil)).coef;
  const int right = coef;
  do {
    coef = right + DrawSigned(random);
  } while (coef == 0);  // a term that vanishes
  problem.Wrong(slot, MistakeOfCoefficient(coef, pair_, foil), SumText(products));
}

void MultiplyingBinomials::DrawProblem(RandomStream& random) {
  const std::string letter = random.OneOf(kFirstLetters);
  const std::string next(1, static_cast<char>(letter[0] + 1));
  const int firstLead = DrawSigned(random);
  const int firstNumber = DrawSigned(random);
  const int secondLead = DrawSigned(random);
  const int secondNumber = DrawSigned(random);
  pair_ = {{{firstLead, letter}, {firstNumber, ""}}, {{secondLead, next}, {secondNumber, ""}}};

  problem.question = {"Find the product.", pair_.Text()};
  problem.kind = choice_kind::FiveShuffled;
  problem.Right(1, SumText(pair_.Products()));
  const auto draw = [&](int slot) { DrawWrongChoice(slot, random); };
  for (int slot = 2; slot <= 5; ++slot) draw(slot);
  ReplaceRepeatedTexts(problem, draw);
}

// --- Problem page --------------------------------------------------------------------------------

void MultiplyingBinomials::ShowProblem() {
  SayAt(5, problem.question[0]);
  ShowAt(7, pair_.Text(), kExpressionCol);
  ShowAnswersInOneColumn(problem, {.row = 9.5, .width = 28});
}

// --- Worked explanation --------------------------------------------------------------------------

void MultiplyingBinomials::ExplainProblem() {
  ProblemBanner();
  SayAt(4.5, "Find this product.");
  FoilTable table(pair_, 6);
  SayAt(table.RowBelow(), "Each term of one binomial is multiplied by each term of the other.");
  PageEnd();
  TellLoneLetters(table);
  for (const Foil foil : kFoil) MultiplyPair(table, foil);
  ClearBelow(table.RowBelow());
  table.Unmark();
  AddProducts(table.RowBelow());
  Check();
  Conclude(problem);
}

// "-t means -1t", of each letter without a number.
void MultiplyingBinomials::TellLoneLetters(const FoilTable& table) const {
  std::string text;
  for (const Term& term : {pair_.first[0], pair_.second[0]})
    if (std::abs(term.coef) == 1)
      text += Text("{}{} means {}", Words{text.empty() ? "" : ", and "}, TermText(term),
                   NumStr(term.coef) + term.letters);
  if (text.empty()) return;
  ClearBelow(table.RowBelow());
  SayAt(table.RowBelow(), text + ".");
  PageEnd();
}

// Why the product has its sign; "" where nobody doubts it.
std::string SignSentence(const Term& first, const Term& second) {
  if (first.coef < 0 && second.coef < 0) return "Two negatives make a positive product.";
  if (first.coef > 0 && second.coef > 0) return "";
  return "The signs differ, so it is negative.";
}

void MultiplyingBinomials::MultiplyPair(FoilTable& table, Foil foil) const {
  ClearBelow(table.RowBelow());
  table.Bring(foil);
  table.Multiply(foil);
  SayAt(table.RowBelow(), Text(R"(\y{}\z:  {})", FoilName(foil), pair_.ProductText(foil)));
  const std::string why = SignSentence(pair_.FirstTerm(foil), pair_.SecondTerm(foil));
  if (!why.empty()) Say(why);
  PageEnd();
}

void MultiplyingBinomials::AddProducts(double row) const {
  SayAt(row, "We add the four products, each with its sign:");
  Show(SumText(pair_.Products()), kExpressionCol);
  PageEnd();
  Say("No two of them have exactly the same letters, so they are unlike terms.  None can be "
      "combined.");
  PageEnd();
}

// The number or the next one: a binomial of 0 would hide what is wrong in the other.
int NumberToTry(const Sum& binomial, int number) {
  return ValueAt(binomial, number) == 0 ? number + 1 : number;
}

// Both sides with a number in place of each letter.
void MultiplyingBinomials::Check() const {
  const auto withNumber = [](Term term, int number) {
    return Term{term.letters.empty() ? term.coef : number * term.coef, ""};
  };
  const int firstNumber = NumberToTry(pair_.first, 2);
  const int secondNumber = NumberToTry(pair_.second, 1);
  BinomialPair tried = pair_;
  for (Term& term : tried.first) term = withNumber(term, firstNumber);
  for (Term& term : tried.second) term = withNumber(term, secondNumber);
  const int first = ValueAt(tried.first, 0);
  const int second = ValueAt(tried.second, 0);
  const std::string value = NumStr(first * second);
  NewScreen();
  ProblemBanner();
  ShowAt(4.5, pair_.Text(), kExpressionCol);
  ShowAt(6, "= " + SumText(pair_.Products()), kExpressionCol);
  SayAt(8, Text(R"(\yCheck:\z  We put {} for {} and {} for {}.)", firstNumber,
                pair_.first[0].letters, secondNumber, pair_.second[0].letters));
  Show(tried.Text() + " = " + NumStr(first) + " " + tutor::Times + " " + InParentheses(second) +
           " = " + value,
       2);
  PageEnd();
  Say("Now the four products:");
  Show(SumText(tried.Products()) + " = " + value, 2);
  Say("Both have the same value.");
  PageEnd();
}

const LessonRegistration<MultiplyingBinomials> kRegistration("Multiplying Binomials");

}  // namespace
}  // namespace course
