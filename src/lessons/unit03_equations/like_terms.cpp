// The student can tell which terms are like (the same letters with the same exponents) and combines
// them: adds their coefficients with their signs, keeps letters and exponents, and leaves unlike
// terms apart.
//
// Half of the problems show one term and ask for another that is like it; in the others a sum of
// three or four terms is combined.
#include "lessons/families/polynomials/area_tiles.h"
#include "lessons/families/polynomials/combining_mistakes.h"
#include "lessons/families/polynomials/combining_steps.h"
#include "lessons/families/polynomials/gathering_table.h"
#include "lessons/families/polynomials/headed_cells.h"
#include "lessons/families/polynomials/look_alike_terms.h"
#include "lessons/families/polynomials/sum_of_terms.h"
#include "lessons/lesson.h"

namespace course {
namespace {

using namespace polynomials;

// The letters of a problem; a and b stand for them in the patterns.
constexpr std::string_view kPairs[] = {"ab", "cd", "mn", "pq", "xy"};

constexpr int kLargestShown = 99;  // a coefficient that is looked at, and not calculated with

// The letters of each term of a sum to be combined; "" is a number.
const std::vector<std::string> kPatterns[] = {
    {"a", "", "a"},         {"a", "", "a", ""}, {"a", "b", "a", "b"},
    {"aa", "a", "aa", "a"}, {"a", "a", "a"},
};
constexpr int kLargestAdded = 7;

constexpr double kExpressionCol = 6;
constexpr double kGatheredRow = 6.5;  // of the sum above the table in an explanation

// "x", dot, "x", dot, "y" for the letters xxy.
std::string WrittenOut(const std::string& letters) {
  std::string text;
  for (const char letter : letters) text += (text.empty() ? "" : tutor::Dot) + letter;
  return text;
}

// --- Teaching screens --------------------------------------------------------

void SignsBelongToTerms() {
  constexpr double kRow = 7;
  constexpr double kApart = 4;  // columns
  NewScreen();
  SayAt(3, R"(An expression is made of \cterms\z.  The signs + and - separate them:)");
  ShowAt(kRow, SumText({{4, "xx"}, {-3, "x"}, {7, ""}}), 14);
  PageEnd();
  SlideLeft({kRow, 14, 3}, kApart);
  SlideRight({kRow, 23, 3}, kApart);
  for (const auto& [first, last] : {std::pair{10, 12}, {18, 21}, {27, 29}})
    isDrawRoundRect(kRow - 0.2, first - 1, kRow + 0.3, last + 1, 2, platform::colour::Cyan);
  SayAt(9.5, R"(The sign in front of a term belongs to it.  The second term is \y-3x\z.)");
  Say(Text(R"(\yTry it:\z  What is the last term of {}?)",
           SumText({{2, "y"}, {6, "yy"}, {-5, ""}})));
  PageEnd();
  Say(R"(It is \y-5\z.  The 5 keeps its minus sign.)");
  PageEnd();
}

void CoefficientAndLetters() {
  NewScreen();
  SayAt(3, R"(The number in front of the letters is the \ccoefficient\z.)");
  ShowHeadedCells(5.5, {"Term", "Coefficient", "Letters"}, 3);
  PrintCells(1, {"4x^2^", "4", "x^2^"});
  PrintCells(4, {"-3x", "-3", "x"});
  PrintCells(7, {"x", "", "x"});
  SayAt(12, R"(In the last row no number stands in front of x.  What is the coefficient?)");
  PageEnd();
  PrintCells(8, {"1"}, platform::colour::Blue);
  Say(R"(It is \y1\z.  x is one x, so x means 1x.  In the same way -x means -1x.)");
  PageEnd();
  Say(R"(\cLike terms\z have the same letters with the same exponents.)");
  PaperBox({R"(5x^2^ and -2x^2^ are like terms)", R"(5x^2^ and 5x are \rnot like\z)"});
  PageEnd();
}

void WhyTheyMustBeAlike() {
  constexpr double kRow = 5.6;
  constexpr double kLabelRow = 9.4;
  NewScreen();
  SayAt(3, "Why is that?  Let's draw terms.  A strip is x long and 1 high.");
  for (int i = 0; i < 2; ++i) DrawSquareTile(kRow, 2 + i * (kTileSide + 0.7));
  for (int i = 0; i < 3; ++i) DrawStripTile(kRow + i * 1.2, 19);
  for (int i = 0; i < 4; ++i) DrawUnitTile(kRow, 29 + i * 2.2);
  ShowAt(kLabelRow, "2x^2^", 6.5);
  ShowAt(kLabelRow, "3x", 20.5);
  ShowAt(kLabelRow, "4", 32.5);
  PageEnd();
  SayAt(11,
        "2x^2^ counts squares, 3x counts strips, and 4 counts little squares.  Only what has the "
        "same shape and the same size can be counted together.");
  PageEnd();
  Say(R"(\yTry it:\z  Is 7x like 7?  Is 7x like -2x?)");
  PageEnd();
  Say("7x is not like 7.  A strip is not a little square.");
  Say("7x is like -2x:  7x puts down 7 strips, and -2x takes 2 strips away.");
  PageEnd();
}

void SeveralLetters() {
  NewScreen();
  SayAt(3, "With more than one letter we write the letters out:");
  Show("x^2^y = " + WrittenOut("xxy") + "     xy^2^ = " + WrittenOut("xyy"), kExpressionCol);
  PageEnd();
  Say(Text(R"(\yWatch out:\z  {} and {} are not like.  One has x twice, the other has y twice.)",
           "5x^2^y", "5xy^2^"));
  Say("The order does not matter:  yx = xy.");
  PageEnd();
  Say(Text(R"(\yTry it:\z  Which one is like {}?)", "6x^2^y"));
  PaperBox({"6xy^2^     -x^2^y     3x^2^"});
  PageEnd();
  Say(Text(R"(\y{}\z  has x twice and y once, as {} has.)", "-x^2^y", "6x^2^y"));
  Say(Text("{} has y twice, and {} has no y.", "6xy^2^", "3x^2^"));
  PageEnd();
}

void CountingStrips() {
  constexpr double kRow = 6;
  constexpr double kCol = 8;
  constexpr double kAway = 23;
  NewScreen();
  SayAt(3, "What is 2x + x?  2x is two strips, and x is one strip:");
  DrawStripTile(kRow, kCol);
  DrawStripTile(kRow + 1, kCol);
  ShowAt(kRow + 0.5, "+", 17);
  DrawStripTile(kRow + 0.5, kAway);
  PageEnd();
  ClearCells(kRow + 0.5, 17, 1, 1);
  SlideDown({kRow + 0.3, kAway - 0.2, kTileSide + 0.5, 1.4}, 1.5);
  SlideLeft({kRow + 1.8, kAway - 0.2, kTileSide + 0.5, 1.4}, kAway - kCol);
  SayAt(10, R"(Now there are \y3 strips\z:  2x + 1x = 3x)");
  Say(R"(\yWatch out:\z  Strips make no square, and x counts as 1 strip, not as 0.)");
  PaperBox({R"(2x + x = 3x,  \rnot 2x^2^\z, \rnot 2x\z)"});
  PageEnd();
  RuleBox("Combining Like Terms", {"Add the coefficients.", "Keep the letters and exponents."},
          {.width = 28});
  PageEnd();
}

void CoefficientsWithSigns() {
  NewScreen();
  SayAt(3, Text("Let's combine {}.  We add the coefficients, each with its sign:", "5x - 8x"));
  Show("5 + (-8) = -3", kExpressionCol);
  Show(R"(5x - 8x = \y-3x)", kExpressionCol);
  PageEnd();
  Say("The signs differ.  We take the difference of 8 and 5, and the sign of the number farther "
      "from 0.");
  Say(R"(\yTry it:\z  What is -6x - 2x + x?)");
  PageEnd();
  Say("-6 and -2 are both negative, and so is their sum, -8.  x has the coefficient 1:");
  Show("-6 + (-2) + 1 = -8 + 1 = -7", kExpressionCol);
  Show(R"(-6x - 2x + x = \y-7x)", kExpressionCol);
  PageEnd();
  Say(R"(\yWatch out:\z  Two negatives make a positive product, but never a positive sum.)");
  PageEnd();
}

void LettersAndNumbers() {
  NewScreen();
  SayAt(3, R"(\yTry it:\z  Which terms go into each column?)");
  GatheringTable table({{4, "x"}, {-3, ""}, {-2, "x"}, {8, ""}}, 5.5);
  PageEnd();
  table.GatherAll();
  SayAt(table.RowBelow(),
        "4x is like -2x.  Numbers are like terms, too.  Every term "
        "is gathered, with its sign.");
  PageEnd();
  ClearBelow(table.RowBelow());
  table.AddUp(0);
  table.AddUp(1);
  SayAt(table.RowBelow(), "Now we add in each column:");
  Show("4x + (-2x) = 2x", kExpressionCol);
  Show("-3 + 8 = 5", kExpressionCol);
  PageEnd();
  Say(R"(We get \y2x + 5\z.  Could we write 7x?)");
  PageEnd();
  Say("No.  2x and 5 are unlike, so they stay apart.  With 3 in place of x:");
  PaperBox({R"(2x + 5 = 6 + 5 = 11,  \r7x = 21\z)"});
  PageEnd();
}

void SquaresAndLetters() {
  NewScreen();
  SayAt(3, R"(\yTry it:\z  Which terms go into each column, and what are the sums?)");
  GatheringTable table({{3, "xx"}, {4, "x"}, {-5, "xx"}}, 6);
  PageEnd();
  table.GatherAll();
  table.AddUp(0);
  table.AddUp(1);
  SayAt(table.RowBelow(),
        R"(4x has no like term, so it stays:  \y)" + WithoutBreaks("-2x^2^ + 4x") + R"(\z)");
  Say(R"(\yWatch out:\z  The exponent is kept.)");
  PaperBox({R"(3x^2^ - 5x^2^ = -2x^2^,  \rnot -2x^4^\z)"});
  PageEnd();

  NewScreen();
  SayAt(3, R"(\yTry it:\z  Combine the like terms.)");
  GatheringTable last({{6, "a"}, {-1, "b"}, {-5, "a"}, {4, "b"}}, 5);
  PageEnd();
  last.GatherAll();
  last.AddUp(0);
  last.AddUp(1);
  SayAt(last.RowBelow(), "6a + (-5a) = 1a, which we write a, and -1b + 4b = 3b:");
  Show(R"(6a - b - 5a + 4b = \ya + 3b)", kExpressionCol);
  Say("a and 3b are unlike, so they stay apart.");
  PageEnd();
}

// --- The lesson --------------------------------------------------------------

class LikeTerms final : public LessonScript {
 public:
  using LessonScript::LessonScript;

 private:
  std::vector<Screen> Screens() override {
    return {{SignsBelongToTerms, CoefficientAndLetters, WhyTheyMustBeAlike, SeveralLetters},
            {CountingStrips, CoefficientsWithSigns, LettersAndNumbers, SquaresAndLetters}};
  }
  void DrawProblem(RandomStream& random) override;
  void ShowProblem() override;
  void ExplainProblem() override;

  enum class Asked { LikeTerm = 1, Sum };

  void DrawLikeTerm(RandomStream& random, std::string_view pair);
  void DrawSum(RandomStream& random, std::string_view pair);

  void ShowQuestion(double row);
  void ExplainLikeTerm();
  void CompareWithChoices();

  Asked asked_ = Asked::LikeTerm;
  Term given_;               // to which a like one is looked for
  std::vector<Term> terms_;  // the choices
  Sum sum_;                  // to be combined
};

// --- Generator ---------------------------------------------------------------

int DrawCoefficient(RandomStream& random, int largest) {
  const int size = random.Index(largest);
  return random.Index(2) == 1 ? size : -size;
}

void LikeTerms::DrawProblem(RandomStream& random) {
  asked_ = static_cast<Asked>(random.Index(2));
  const std::string_view pair = kPairs[random.Index(5) - 1];
  if (asked_ == Asked::LikeTerm)
    DrawLikeTerm(random, pair);
  else
    DrawSum(random, pair);
}

void LikeTerms::DrawLikeTerm(RandomStream& random, std::string_view pair) {
  given_.letters = DrawLetters(random, pair);
  given_.coef = DrawCoefficient(random, kLargestShown);
  terms_.clear();
  const auto isTaken = [&](auto sameAs) {
    return sameAs(given_) || std::ranges::any_of(terms_, sameAs);
  };
  // With another coefficient than all before it, which gives nothing away.
  const auto addTerm = [&](const std::string& letters) {
    Term term = {0, letters};
    do {
      term.coef = DrawCoefficient(random, kLargestShown);
    } while (isTaken([&](const Term& other) { return other.coef == term.coef; }));
    terms_.push_back(term);
    return term;
  };
  problem.question = {"Which term is like this one?", TermText(given_)};
  Choices<Term> choices(problem, choice_kind::FiveShuffled, TermText);
  choices.Right(addTerm(given_.letters));
  for (const auto& [mistake, letters] : LookAlikesOf(given_.letters, pair))
    choices.Wrong(mistake, addTerm(letters));
  Term unlike = given_;
  do {
    unlike.letters = DrawLetters(random, pair);
  } while (isTaken([&](const Term& other) { return other.IsLike(unlike); }));
  terms_.push_back(unlike);
  choices.Wrong("compares only the coefficients", unlike);
}

void LikeTerms::DrawSum(RandomStream& random, std::string_view pair) {
  const std::vector<std::string>& pattern = kPatterns[random.Index(5) - 1];
  const bool oneKind = std::ranges::count(pattern, pattern[0]) == std::ssize(pattern);
  std::size_t kinds = 0;
  do {
    sum_.clear();
    for (const std::string& part : pattern)
      sum_.push_back({DrawCoefficient(random, kLargestAdded), InLetters(part, pair)});
    kinds = Combined(sum_).size();
  } while (kinds < (oneKind ? 1 : 2)  // terms that add up to 0
           || (oneKind && std::ranges::all_of(sum_, [](const Term& term) {
                 return term.coef > 0;  // nothing to go wrong
               })));

  problem.question = {"Combine the like terms:", SumText(sum_)};
  FillCombinedChoices(problem, sum_, ReadingSlips(sum_), random);
}

// --- Problem page ------------------------------------------------------------

void LikeTerms::ShowQuestion(double row) {
  ProblemBanner();
  SayAt(5, problem.question[0]);
  ShowAt(row, problem.question[1], kExpressionCol);
}

void LikeTerms::ShowProblem() {
  SayAt(5, problem.question[0]);
  ShowAt(7, problem.question[1], kExpressionCol);
  ShowAnswersInTwoColumns(problem);
}

// --- Worked explanation ------------------------------------------------------

void LikeTerms::ExplainProblem() {
  if (asked_ == Asked::Sum) {
    ShowQuestion(kGatheredRow);
    CombineAloud(sum_, kGatheredRow);
    PageEnd();
  } else {
    ExplainLikeTerm();
    CompareWithChoices();
  }
  Conclude(problem);
}

void LikeTerms::ExplainLikeTerm() {
  ShowQuestion(7);
  Say("Like terms have the same letters with the same exponents.");
  PageEnd();
  const bool alone = std::abs(given_.coef) == 1;
  Say(Text("The coefficient is {}{}.  In a like term it may be another number.", given_.coef,
           Words{alone ? ", though no 1 is written" : ""}));
  PageEnd();
  if (given_.letters.size() == 1) {
    Say(
        Text("Only the letters and their exponents count.  Here {} is the only letter, and its "
             "exponent is 1.",
             given_.letters));
  } else {
    Say("Only the letters and their exponents count.  We write the letters out as factors:");
    Show(LettersText(given_.letters) + " = " + WrittenOut(given_.letters), kExpressionCol);
  }
  PageEnd();
}

// A row of print cells for each choice, in the order of their letters.
void LikeTerms::CompareWithChoices() {
  constexpr std::size_t kRowsAPage = 3;
  NewScreen();
  ShowQuestion(6.2);
  ShowHeadedCells(8, {"Choice", "Its letters"}, static_cast<int>(terms_.size()));
  std::vector<Term> choices = terms_;
  std::ranges::sort(choices, {}, &Term::letters);
  for (std::size_t i = 0; i < choices.size(); ++i) {
    if (i == kRowsAPage) PageEnd();
    PrintCells(static_cast<int>(2 * i + 1), {TermText(choices[i]), WrittenOut(choices[i].letters)},
               choices[i].IsLike(given_) ? platform::colour::Blue : platform::colour::Black);
  }
  PageEnd();
  GoBelow();
  Say(Text("Only {} has the same letters with the same exponents as {}.", TermText(terms_[0]),
           TermText(given_)));
}

const LessonRegistration<LikeTerms> kRegistration("Like Terms");

}  // namespace
}  // namespace course
