// The student can simplify a sum of radicals: brings the squares out, sees which radicals are like,
// adds the numbers in front of those, and leaves unlike ones apart.
//
// In a third of the problems each the radicals are like from the start, become like when they are
// simplified, or two become like beside an unlike third.
#include "lessons/families/polynomials/headed_cells.h"
#include "lessons/families/radicals/root_sum.h"
#include "lessons/families/radicals/root_sum_choices.h"
#include "lessons/lesson.h"

namespace course {
namespace {

using namespace radicals;

const std::string kTimes = " " + tutor::Times + " ";
const std::string kRoot = tutor::SquareRoot;

// The numbers in front come from the second slot on; all of them are roots of square factors.
constexpr int kNumbers[] = {1, 2, 3, 4, 5};
constexpr int kRadicands[] = {2, 3, 5, 6, 7};

// --- Teaching screens --------------------------------------------------------

constexpr double kCol = 6;

// Print cells: a line a term, which FillLine fills.
void ShowTermTable(double row, int lines) {
  polynomials::ShowHeadedCells(row, {"Term", "Square brought out", "Simplified"}, lines);
}

// "3 x v4 x v2" for 3v8; a simple radical has nothing to bring out.
std::string SquareBroughtOut(const RootTerm& term) {
  const RootTerm root = Simplified(term.inside);
  if (IsSimple(term.inside)) return "simple already";
  const int front = term.outside.coef;
  const std::string sign = front == -1 ? "-" : front == 1 ? "" : NumStr(front) + kTimes;
  return sign + kRoot + NumStr(root.outside.coef * root.outside.coef) + kTimes + kRoot +
         NumStr(root.inside.coef);
}

// Lines from 1.
void FillLine(int line, const RootTerm& term) {
  const int first = 3 * line - 2;
  polynomials::PrintCells(first, {RootTermText(term), SquareBroughtOut(term)});
  polynomials::PrintCells(first + 2, {RootTermText(Simplified(term))}, platform::colour::Blue);
}

RootTerm Root(int front, int inside) {
  return {{front, ""}, {inside, ""}};
}

void LikeRadicals() {
  NewScreen();
  SayAt(3, R"(\cLike radicals\z have the same number under the radical sign:)");
  Show("5" + kRoot + "3 and -2" + kRoot + "3 are like", kCol);
  Show("5" + kRoot + "3 and 5" + kRoot + "2 are not like", kCol);
  PageEnd();
  Say(R"(\yTry it:\z  Which one is like)");
  ShowAt(NextRow() - 1, "4" + kRoot + "7?", 28);
  Show("7" + kRoot + "4     " + kRoot + "7     4" + kRoot + "5", kCol);
  PageEnd();
  Say("The second one.  Only the number under the sign counts.  When no number stands in front, "
      "it is 1.");
  PageEnd();
}

void CountRadicals() {
  NewScreen();
  SayAt(3, "We add like radicals as like terms:");
  polynomials::ShowHeadedCells(4.5, {"Letters", "Radicals"}, 2);
  polynomials::PrintCells(1, {"3x + 4x", "3" + kRoot + "5 + 4" + kRoot + "5"});
  polynomials::PrintCells(3, {"7x", "7" + kRoot + "5"}, platform::colour::Blue);
  PageEnd();
  SayAt(8.5, "3 times a number and 4 times the same number is 7 times this number.");
  Say(R"(We add the numbers \yin front\z and keep the radical.)");
  PageEnd();
  CommentBox(
      R"(The numbers under the radicals are \rnot\z added or multiplied.  The root of 9 is 3, and )"
      "3 + 3 is 6.  The root of 18 is less than 5, that of 81 is 9.",
      {.width = 40});
  Say(R"(\yTry it:\z  Simplify)");
  ShowAt(NextRow() - 1, "6" + kRoot + "3 - 8" + kRoot + "3", 20);
  PageEnd();
  Show("6" + kRoot + "3 - 8" + kRoot + R"(3 = -2)" + kRoot + "3,  since 6 - 8 = -2");
  AddLine("We do not multiply the numbers in front, and the radical sign stays.");
  PageEnd();
}

void UnlikeStayApart() {
  NewScreen();
  SayAt(3, Text("Unlike radicals stay apart, just as {} does:", "2x + 5y"));
  Show("2" + kRoot + "3 + 5" + kRoot + "2", kCol);
  PageEnd();
  Say(R"(\yWatch out:\z  Do not add under one sign:)");
  Show(kRoot + "9 + " + kRoot + "16 = 3 + 4 = 7,  but", kCol);
  Show(kRoot + "(9 + 16) = " + kRoot + "25 = 5", kCol);
  PageEnd();
  Say(R"(\yTry it:\z  Simplify this sum:)");
  Show("4" + kRoot + "2 + 5" + kRoot + "7 - " + kRoot + "2", kCol);
  PageEnd();
  Say("4 - 1 is 3, and the other radical stays apart:");
  Show("3" + kRoot + "2 + 5" + kRoot + "7", kCol);
  PageEnd();
}

void SimplifyFirst() {
  NewScreen();
  SayAt(3, "These radicals look unlike, but they are not simplified yet:");
  ShowAt(5.75, kRoot + "8 + " + kRoot + "18", kCol);
  ShowTermTable(7.5, 2);
  FillLine(1, Root(1, 8));
  GoBelow();
  SayAt(12, R"(\yTry it:\z  What belongs in the last line?)");
  PageEnd();
  FillLine(2, Root(1, 18));
  SayAt(14, "18 is 9 times 2.  Now they are like:");
  Show(kRoot + "8 + " + kRoot + "18 = 2" + kRoot + "2 + 3" + kRoot + "2 = 5" + kRoot + "2");
  PageEnd();
  NewScreen();
  SayAt(3, R"(\yWatch out:\z  What comes out is multiplied by the number in front:)");
  Show("3" + kRoot + "8 = 3" + kTimes + "2" + kRoot + "2 = 6" + kRoot + "2", kCol);
  Say(R"(\yTry it:\z  Simplify)");
  ShowAt(NextRow() - 1, "2" + kRoot + "27", 20);
  PageEnd();
  Say("27 is 9 times 3.  The root of 9 is 3.  It comes out, not 9, and 2 times 3 is 6, not 5:");
  Show("2" + kRoot + "27 = 2" + kTimes + "3" + kRoot + "3 = 6" + kRoot + "3", kCol);
  PageEnd();
}

void ThreeRadicals() {
  NewScreen();
  const RootSum sum = {Root(2, 12), Root(-3, 5), Root(1, 27)};
  SayAt(3, R"(\yTry it:\z  Simplify each term.  Which ones are like?)");
  ShowAt(5.75, RootSumText(sum), kCol);
  ShowTermTable(7.5, 3);
  PageEnd();
  for (int line = 1; line <= 3; ++line) FillLine(line, sum[static_cast<std::size_t>(line) - 1]);
  SayAt(13, "The first and the last are like.  4 + 3 is 7.  The other one keeps its minus sign:");
  Show(RootSumText(Combined(Simplified(sum))), kCol);
  PageEnd();
  Say(R"(\yTry it:\z  Simplify)");
  ShowAt(NextRow() - 1, kRoot + "50 - 4" + kRoot + "2", 20);
  PageEnd();
  Show(kRoot + "50 - 4" + kRoot + "2 = 5" + kRoot + "2 - 4" + kRoot + "2 = " + kRoot + "2");
  AddLine("5 - 4 is 1, and the 1 is not written.");
  PageEnd();
}

// --- The lesson --------------------------------------------------------------

class SimplifyingRadicalExpressions final : public LessonScript {
 public:
  using LessonScript::LessonScript;

 private:
  std::vector<Screen> Screens() override {
    return {{LikeRadicals, CountRadicals, UnlikeStayApart, SimplifyFirst, ThreeRadicals}};
  }
  void DrawProblem(RandomStream& random) override;
  void ShowProblem() override;
  void ExplainProblem() override;

  void ShowQuestion() const;
  void SimplifyTerms() const;
  void AddLikeOnes() const;

  RootSum sum_;
};

// --- Generator ---------------------------------------------------------------

enum class Kind { Alike = 1, BecomeAlike, WithUnlike };

// A number in front, a square factor, and what stays inside; the factor is 1 for a simple one.
RootTerm DrawTerm(RandomStream& random, int inside, bool simple) {
  const int front = kNumbers[random.Rand(2, 5) - 1];
  const int root = kNumbers[random.Index(5) - 1];
  return {{front, ""}, {simple ? inside : root * root * inside, ""}};
}

RootSum DrawSum(RandomStream& random, Kind kind) {
  const int inside = kRadicands[random.Index(5) - 1];
  const int other = kRadicands[random.Index(5) - 1];
  RootSum sum = {DrawTerm(random, inside, kind == Kind::Alike),
                 DrawTerm(random, inside, kind == Kind::Alike)};
  const RootTerm unlike = DrawTerm(random, other, false);
  const int place = random.Index(3);
  if (kind == Kind::WithUnlike) sum.insert(sum.begin() + (place - 1), unlike);
  for (std::size_t i = 1; i < sum.size(); ++i) sum[i].outside.coef *= random.Sign();
  return sum;
}

bool IsSuitable(const RootSum& sum, Kind kind) {
  const RootSum combined = Combined(Simplified(sum));
  const std::size_t kinds = kind == Kind::WithUnlike ? 2 : 1;
  if (combined.size() != kinds) return false;  // like terms vanish, or the third is like them
  const auto simple = [](const RootTerm& term) { return IsSimple(term.inside); };
  return kind == Kind::Alike || !std::ranges::all_of(sum, simple);
}

void SimplifyingRadicalExpressions::DrawProblem(RandomStream& random) {
  const Kind kind = static_cast<Kind>(random.Index(3));
  do {
    sum_ = DrawSum(random, kind);
  } while (!IsSuitable(sum_, kind));
  problem.question = {"Simplify this radical:", RootSumText(sum_)};
  OfferRootSums(problem, sum_, random);
}

// --- Problem page ------------------------------------------------------------

void SimplifyingRadicalExpressions::ShowProblem() {
  SayAt(5, problem.question[0]);
  ShowAt(7.5, problem.question[1], 7);
  ShowAnswersInTwoColumns(problem, {.width = 19});
}

// --- Worked explanation ------------------------------------------------------

void SimplifyingRadicalExpressions::ExplainProblem() {
  ShowQuestion();
  if (Simplified(sum_) == sum_)
    SayAt(8, "Every radical is simplified already.");
  else
    SimplifyTerms();
  PageEnd();
  AddLikeOnes();
  Conclude(problem);
}

void SimplifyingRadicalExpressions::ShowQuestion() const {
  ProblemBanner();
  SayAt(4.5, problem.question[0]);
  ShowAt(6, problem.question[1], kCol);
}

void SimplifyingRadicalExpressions::SimplifyTerms() const {
  SayAt(7.5, "First we simplify each term:");
  ShowTermTable(8.75, static_cast<int>(sum_.size()));
  int line = 0;
  for (const RootTerm& term : sum_) {
    PageEnd();
    FillLine(++line, term);
  }
}

void SimplifyingRadicalExpressions::AddLikeOnes() const {
  const RootSum simple = Simplified(sum_);
  const RootSum combined = Combined(simple);
  const std::string line = RootSumText(simple);
  if (simple == sum_) {
    Say("All of them have the same number under the radical sign, so they are like radicals.");
  } else {
    NewScreen();
    ShowQuestion();
    SayAt(8, "With the simplified terms:");
    Show(line, kCol);
    Say(combined.size() == 1 ? "Now all radicals are like."
                             : "Two radicals are like.  The other one stays apart.");
  }
  PageEnd();
  Say("We add the numbers in front and keep the radical:");
  std::string numbers;
  int total = 0;
  const RootTerm& like = *std::ranges::find_if(simple, [&](const RootTerm& term) {
    return std::ranges::count(simple, term.inside, &RootTerm::inside) > 1;
  });
  for (const RootTerm& term : simple) {
    if (term.inside != like.inside) continue;
    const int front = term.outside.coef;
    total += front;
    if (numbers.empty())
      numbers = NumStr(front);
    else
      numbers += (front < 0 ? " - " : " + ") + NumStr(std::abs(front));
  }
  Show(numbers + " = " + NumStr(total), kCol);
  Show(line + " = " + RootSumText(combined));
  PageEnd();
}

const LessonRegistration<SimplifyingRadicalExpressions> kRegistration(
    "Simplifying Radical Expressions");

}  // namespace
}  // namespace course
