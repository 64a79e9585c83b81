// The student can solve an inequality such as -2x + 3 < 11 in the steps of an equation, and knows
// when its relation turns around.
//
// Two of the choices carry the reversed relation, one of them with the right number, so that the
// turn is always part of the question.  Answers that are not whole are mixed numbers.
#include "lessons/families/equations/equation_explanation.h"
#include "lessons/families/equations/equation_machine.h"
#include "lessons/lesson.h"

namespace course {
namespace {

using namespace equations;

const std::string kRelations[] = {"", tutor::GreaterOrEqual, tutor::LessOrEqual, "<", ">"};
constexpr int kWholeTries = 6;  // draws with a fractional answer that are thrown away

// --- Teaching screens --------------------------------------------------------

// A number line from -6 to 10 on the lesson panel, and markers that slide over it.
constexpr double kLineRow = 12;
constexpr double kMarkerRow = kLineRow - 1.8;
constexpr int kFirstTick = -6;
constexpr int kLastTick = 10;
constexpr int kColumnsPerUnit = 2;
constexpr double kSlideSpeed = 30;

int LineColumn(int value) {
  return 4 + kColumnsPerUnit * (value - kFirstTick);
}

// A text centred over or under the point of a value.
void PrintAt(double row, int value, const std::string& text) {
  Locate(row, LineColumn(value) - (static_cast<double>(text.size()) - 1) / 2);
  isPrints(text);
}

void DrawLine() {
  isDrawHorizLine(kLineRow, LineColumn(kFirstTick) - 1, LineColumn(kLastTick) + 1, 2);
  for (int value = kFirstTick; value <= kLastTick; ++value) {
    isDrawVertLine(LineColumn(value), kLineRow + 0.3, kLineRow - 0.2, 1);
    if (value % 2 == 0) PrintAt(kLineRow + 0.8, value, NumStr(value));
  }
}

// A number over the line, and the point under it.
void MarkNumber(int value) {
  SetColor(platform::colour::Yellow);
  PrintAt(kMarkerRow, value, NumStr(value));
  SetColor(platform::colour::White);
  isDrawBullet(kLineRow - 0.7, LineColumn(value), platform::colour::Yellow);
}

// Slides both numbers by the same distance, then writes what they have become.
void SlideNumbers(int smaller, int larger, int distance) {
  const int first = LineColumn(smaller) - 1;
  const int width = LineColumn(larger) - first + 2;
  Anim2(kMarkerRow, first, width, 1.8, distance < 0 ? 3 : 4, kColumnsPerUnit * std::abs(distance),
        kSlideSpeed, 1);
  for (const int value : {smaller, larger}) {
    PrintAt(kMarkerRow, value + distance, std::string(NumStr(value).size(), ' '));
    MarkNumber(value + distance);
  }
}

void AddingKeeps() {
  NewScreen();
  WrapAt(3, "An inequality such as  " + WithoutBreaks("x + 5 < 8") +
                "  is solved in the steps of an equation.  But do both sides keep their relation?");
  PageEnd();
  isPrint();
  WordWrap("Take  " + WithoutBreaks("2 < 6") +
           R"(.  On the number line 2 lies \yto the left of\z 6.)");
  DrawLine();
  MarkNumber(2);
  MarkNumber(6);
  PageEnd();
  WrapAt(15, "We add 3 to both sides:  " + WithoutBreaks(R"(2 + 3 \y<\z 6 + 3)") + ".");
  SlideNumbers(2, 6, 3);
  PageEnd();
  WrapAt(16, "Then we subtract 10:  " + WithoutBreaks(R"(5 - 10 \y<\z 9 - 10)") + ".");
  SlideNumbers(5, 9, -10);
  PageEnd();
  WrapAt(18, "Both numbers go the same way, so the smaller one stays on the left.");
  PageEnd();
  isPrint();
  WordWrap(
      R"(By the \cAddition and Subtraction Properties for Inequalities\z the relation stays.)");
  PageEnd();
}

void SolvingByAdding() {
  const LinearStatement inequality = {"x", {1, 5}, "<", {0, 8}};
  const Addition addition = AdditionsOf(inequality)[0];
  EquationSheet sheet = SheetFor(inequality);
  NewScreen();
  WrapAt(3, "Now we can solve  " + WithoutBreaks("x + 5 < 8") + ".");
  sheet.Write(RowOf(inequality), "<");
  OpenWordBox();
  SayAnew("What do we add to both sides, to remove 5 from the left-hand side?");
  PageEnd();
  SayAnew(R"(We add \b-5\z to both sides.)");
  sheet.AddUnder(AddendRow(addition.term, "x"));
  PageEnd();
  sheet.WriteSum(RowOf(addition.after), "<");
  sheet.MarkSolution();
  SayAnew("The < stays as it is.");
  SayMore("An inequality has many solutions:  2 is one of them, and so are 0 and -7.");
  SayMore("Is 3 one of them?");
  PageEnd();
  SayAnew("No.  With 3 in place of x we get:");
  SaySubstituted(inequality, 3, R"(   \rfalse\z)");
  PageEnd();
}

// What is done to both sides of 2 < 6, what becomes of it, and of its relation.
struct Multiplication {
  std::string operation;
  std::string result;
  bool turns;
};
const Multiplication kMultiplications[] = {
    {tutor::Times + " 3", "6 < 18", false},
    {tutor::Divided + " 2", "1 < 3", false},
    {tutor::Times + " (-3)", "-6 > -18", true},
    {tutor::Divided + " (-2)", "-1 > -3", true},
};
constexpr int kTableColumns = 3;
constexpr double kCellFontSize = 16;

// Three columns and a row for each multiplication, of which the operations stand there at once.
void ShowMultiplications() {
  PrintCellTable table;
  table.heightPixels = 230;
  constexpr double kLefts[kTableColumns] = {2, 35, 68};
  constexpr double kWidth = 30;
  const char* const kCaptions[kTableColumns] = {"To both sides", "Result", "Relation"};
  for (int column = 0; column < kTableColumns; ++column)
    table.labels.push_back(
        {kLefts[column], 2, kWidth, 10, kCaptions[column], 14, platform::colour::Blue});
  for (int row = 0; row < 4; ++row)
    for (const double left : kLefts) table.cells.push_back({left, 14.0 + 21 * row, kWidth, 19});
  picPrintCellBoxPrepare3(5, table);
  for (int row = 0; row < 4; ++row)
    picPrintCellPrint(kTableColumns * row + 1, kMultiplications[row].operation,
                      platform::colour::Black, kCellFontSize);
  picPrintCellBoxShow();
}

void FillRow(int row) {
  const Multiplication& done = kMultiplications[row];
  const platform::Colour colour = done.turns ? platform::colour::Red : platform::colour::Black;
  const int cell = kTableColumns * row + 2;
  picPrintCellPrint(cell, done.result, colour, kCellFontSize);
  picPrintCellPrint(cell + 1, done.turns ? "turns around" : "stays", colour, kCellFontSize);
}

void MultiplyingMayTurn() {
  NewScreen();
  WrapAt(3, "Now we multiply and divide  " + WithoutBreaks("2 < 6") + ".");
  ShowMultiplications();
  OpenWordBox();
  SayAnew("First we multiply by 3:  2 becomes 6, and 6 becomes 18.");
  SayMore("Which result is smaller?");
  PageEnd();
  FillRow(0);
  FillRow(1);
  SayAnew(R"(With a \bpositive\z number the smaller side stays the smaller one.)");
  SayMore("The relation stays as it is.");
  PageEnd();
  SayAnew("Now we multiply by -3:  2 becomes -6, and 6 becomes -18.");
  SayMore("Which result is smaller?");
  PageEnd();
  FillRow(2);
  FillRow(3);
  SayAnew(
      R"(-18 is smaller:  it lies to the left of -6.  With a \rnegative\z number the sides change places on the number line.)");
  PageEnd();
  SayMore(R"(The relation \rturns around\z:  < becomes >, and )" + tutor::LessOrEqual +
          " becomes " + tutor::GreaterOrEqual + ".");
  PageEnd();
}

void SolvingOne() {
  const LinearStatement inequality = {"x", {-2, 3}, tutor::GreaterOrEqual, {0, 11}};
  const Addition addition = AdditionsOf(inequality)[0];
  const std::string& relation = inequality.relation;
  const std::string turned = ReversedRelation(relation);
  EquationSheet sheet = SheetFor(inequality);
  NewScreen();
  WrapAt(3, "We solve an inequality step by step.");
  sheet.Write(RowOf(inequality), relation);
  OpenWordBox();
  SayAnew("The steps are those of an equation.  What do we add to both sides first?");
  PageEnd();
  SayAnew(R"(We add \b-3\z.  By the addition property the )" + relation + " stays.");
  sheet.AddUnder(AddendRow(addition.term, "x"));
  sheet.WriteSum(RowOf(addition.after), relation);
  PageEnd();
  SayAnew(R"(To remove the coefficient, we divide both sides by \b-2\z.)");
  SayMore("What becomes of the " + relation + "?");
  sheet.WriteQuotients({"-2x", "8", "-2"}, " ");
  PageEnd();
  SayAnew(R"(-2 is \rnegative\z, so the )" + relation + R"( \rturns around\z and becomes )" +
          turned + ".");
  sheet.WriteRelation(turned, platform::colour::Yellow);
  sheet.WriteSolved("x", turned, "-4");
  sheet.MarkSolution();
  PageEnd();
  SayAnew("We check with a number that is less than -4, such as -5:");
  SaySubstituted(inequality, -5, R"(   \btrue\z)");
  PageEnd();
  SayAnew("Now we try one that is greater, 0:");
  SaySubstituted(inequality, 0, R"(   \rfalse\z)");
  PageEnd();
}

void WhenToTurn() {
  NewScreen();
  WrapAt(3, R"(\rA usual mistake\z is to turn the relation whenever a minus sign is seen.)");
  PageEnd();
  isPrint();
  WordWrap("In which of these does it turn around?");
  Locate(9, 4);
  isPrint("A    3x < -12");
  Locate(11, 4);
  isPrint("B    x - 3 < 12");
  Locate(13, 4);
  isPrint("C   -3x < 12");
  PageEnd();
  Locate(9, 23);
  isColorPrint("x < -4     stays", platform::colour::Yellow);
  Locate(11, 23);
  isColorPrint("x < 15     stays", platform::colour::Yellow);
  Locate(13, 23);
  isColorPrint("x > -4     turns", platform::colour::Yellow);
  WrapAt(15,
         "Only in C do we divide by a negative number.  In A we divide by 3, and in B we add 3.");
  PageEnd();
  isPrint();
  WordWrap(R"(What counts is the number that we \ydivide or multiply by\z.)");
  PageEnd();
}

// --- The lesson ------------------------------------------------------------

class SolvingInequalities final : public LessonScript {
 public:
  using LessonScript::LessonScript;

 private:
  std::vector<Screen> Screens() override {
    return {{AddingKeeps, SolvingByAdding}, {MultiplyingMayTurn}, {SolvingOne, WhenToTurn}};
  }
  void DrawProblem(RandomStream& random) override;
  void ShowProblem() override;
  void ExplainProblem() override;

  bool DrawNumbers(RandomStream& random);

  LinearStatement inequality_;  // a x + b < d x + c
};

// --- Generator ---------------------------------------------------------------

// Whether the numbers drawn make an inequality worth solving; its answer may be a fraction.
bool SolvingInequalities::DrawNumbers(RandomStream& random) {
  auto& [a, b] = inequality_.left;
  auto& [d, c] = inequality_.right;
  a = DrawCoefficient(random);
  d = DrawCoefficient(random);
  b = DrawNumber(random);
  c = DrawNumber(random);
  const int type = random.Rand(1, 3);
  if (type == 1) d = 0;
  if (a - d == 1 || a - d == -1) return false;  // nothing to divide by
  if (a == 0) std::swap(a, d);                  // the letter belongs on the left
  return SizesDiffer(inequality_);              // mistakes that agree
}

// Six draws in a row may be lost to fractions; then one is taken, so that a third of the problems
// has a fraction as its answer.  A fifth of the draws is accepted.
void SolvingInequalities::DrawProblem(RandomStream& random) {
  inequality_ = {};
  inequality_.letter = random.OneOf("rstxyz");
  for (int draws = 1;; ++draws) {
    if (!DrawNumbers(random)) continue;
    if (draws > kWholeTries || HasWholeSolution(inequality_)) break;
  }
  inequality_.relation = kRelations[random.Index(4)];

  problem.question = {"Solve the following inequality for " + inequality_.letter + ".",
                      StatementText(inequality_, "  ")};
  SetLinearChoices(problem, inequality_, random);
}

// --- Problem page ------------------------------------------------------------

void SolvingInequalities::ShowProblem() {
  WrapAt(6, problem.question[0]);
  EquationSheet(9, 9, {RowOf(inequality_)}).Write(RowOf(inequality_), inequality_.relation);
  // A built-up fraction needs higher boxes.
  const bool high = std::ranges::any_of(problem.choices, [](const Choice& choice) {
    return choice.text.find('/') != std::string::npos;
  });
  if (high)
    picAnswerSetParameters(2, 13, 1, 21, 0, 17, 75, 16, 12);
  else
    picAnswerSetParameters(2, 14, 1, 21, 0, 17, 50, 27);
  answerParameters.printChoice = picAnswerPrintStackedText;
}

// --- Worked explanation ------------------------------------------------------

void SolvingInequalities::ExplainProblem() {
  ExplainLinear(inequality_, problem);
}

const LessonRegistration<SolvingInequalities> kRegistration("Solving Inequalities");

}  // namespace
}  // namespace course
