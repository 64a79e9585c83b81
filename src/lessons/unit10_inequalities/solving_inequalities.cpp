// The student can solve an inequality such as -2x + 3 < 11 in the steps of an equation, and knows
// when the inequality symbol is reversed.
//
// Two of the choices carry the reversed symbol, one of them with the right number, so that
// reversing it or not is always part of the question.  Answers that are not whole are mixed
// numbers.
#include "lessons/families/equations/equation_explanation.h"
#include "lessons/families/equations/equation_machine.h"
#include "lessons/families/graphs/interval_figure.h"
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

double LineColumn(int value) {
  return 4 + kColumnsPerUnit * (value - kFirstTick);
}

// A text centred over or under the point of a value.
void ShowAtValue(double row, int value, const std::string& text, const std::string& colour = "w") {
  ShowAt(row, "\\" + colour + text + "\\z",
         LineColumn(value) - (static_cast<double>(text.size()) - 1) / 2);
}

void DrawLine() {
  isDrawHorizLine(kLineRow, LineColumn(kFirstTick) - 1, LineColumn(kLastTick) + 1, 2);
  for (int value = kFirstTick; value <= kLastTick; ++value) {
    isDrawVertLine(LineColumn(value), kLineRow + 0.3, kLineRow - 0.2, 1);
    if (value % 2 == 0) ShowAtValue(kLineRow + 0.8, value, NumStr(value));
  }
}

// A number over the line, and the point under it.
void MarkNumber(int value) {
  ShowAtValue(kMarkerRow, value, NumStr(value), "y");
  isDrawBullet(kLineRow - 0.7, LineColumn(value), platform::colour::Yellow);
}

// Slides both numbers by the same distance, then writes what they have become.
void SlideNumbers(int smaller, int larger, int distance) {
  const double first = LineColumn(smaller) - 1;
  const Cells markers = {kMarkerRow, first, LineColumn(larger) - first + 2, 1.8};
  (distance < 0 ? SlideLeft : SlideRight)(markers, kColumnsPerUnit * std::abs(distance),
                                          Leaving::Nothing, Pace::Brisk);
  for (const int value : {smaller, larger}) {
    ShowAtValue(kMarkerRow, value + distance, std::string(NumStr(value).size(), ' '));
    MarkNumber(value + distance);
  }
}

void AddingKeeps() {
  NewScreen();
  Say(
      Text("An inequality such as  {}  is solved in the steps of an equation.  But does its symbol "
           "stay the same?",
           "x + 5 < 8"));
  PageEnd();
  Say(Text(R"(In  {}  the 2 lies \yleft of\z the 6.)", "2 < 6"));
  DrawLine();
  MarkNumber(2);
  MarkNumber(6);
  PageEnd();
  SayAt(15, "We add 3 to both.  Which one is smaller?");
  SlideNumbers(2, 6, 3);
  PageEnd();
  SayAt(17,
        Text(R"(Still the left one:  {}  Then we subtract 10.  What comes out?)", R"(5 \y<\z 9.)"));
  PageEnd();
  SayAt(20, Text("Both go the same way:  {}", R"(-5 \y<\z -1.)"));
  SlideNumbers(5, 9, -10);
  PageEnd();
  SayAt(22, R"(By the \cAddition and Subtraction Properties for Inequalities\z the < stays.)");
  PageEnd();
}

constexpr double kSolutionsRow = 13.5;
constexpr double kJustBelow = 3.1;  // the ray leaves 3 out

void SolvingByAdding() {
  const LinearStatement inequality = {"x", {1, 5}, "<", {0, 8}};
  EquationSheet sheet = SheetFor(inequality);
  NewScreen();
  Say(Text("Now we can solve  {}.", "x + 5 < 8"));
  WriteStatement(sheet, inequality);
  SayAt(10, "What do we add to both sides?");
  PageEnd();
  WriteAddition(sheet, AdditionsOf(inequality)[0]);
  sheet.MarkSolution();
  SayAt(11, R"(We add \y-5\z, and the < stays.)");
  PageEnd();
  graphs::DrawNumberLine(kSolutionsRow, 4);
  graphs::DrawGraphOnLine(kJustBelow, graphs::kFarLeft);
  SayAt(17, "All numbers to the left of 3 are solutions, such as 2, 0 and -5.");
  Say("Is 3 one of them?");
  PageEnd();
  Say(Text("No.  3 + 5 is 8, and  {}  is false.  So there is an open circle over 3.", "8 < 8"));
  PageEnd();
}

// What is done to both sides of 2 < 6, what becomes of it, and of its symbol.
struct Multiplication {
  std::string operation;
  std::string result;
  bool reverses;
};
const Multiplication kMultiplications[] = {
    {tutor::Times + " 3", "6 < 18", false},
    {tutor::Divided + " 2", "1 < 3", false},
    {tutor::Times + " (-3)", "-6 > -18", true},
    {tutor::Divided + " (-2)", "-1 > -3", true},
};
constexpr int kTableColumns = 3;
constexpr double kTableRow = 5.5;
constexpr double kCellFontSize = 16;

// Three columns and a row for each multiplication, of which the operations stand there at once.
void ShowMultiplications() {
  PrintCellTable table;
  table.heightPixels = 230;
  constexpr double kLefts[kTableColumns] = {2, 35, 68};
  constexpr double kWidth = 30;
  const char* const kCaptions[kTableColumns] = {"To both sides", "Result", "Symbol"};
  for (int column = 0; column < kTableColumns; ++column)
    table.labels.push_back(
        {kLefts[column], 2, kWidth, 10, kCaptions[column], 14, platform::colour::Blue});
  for (int row = 0; row < 4; ++row)
    for (const double left : kLefts) table.cells.push_back({left, 14.0 + 21 * row, kWidth, 19});
  CellTable(table, kTableRow);
  for (int row = 0; row < 4; ++row)
    picPrintCellPrint(kTableColumns * row + 1, kMultiplications[row].operation,
                      platform::colour::Black, kCellFontSize);
}

void FillRow(int row) {
  const Multiplication& done = kMultiplications[row];
  const platform::Colour colour = done.reverses ? platform::colour::Blue : platform::colour::Black;
  const int cell = kTableColumns * row + 2;
  picPrintCellPrint(cell, done.result, colour, kCellFontSize);
  picPrintCellPrint(cell + 1, done.reverses ? "reversed" : "stays", colour, kCellFontSize);
}

void MultiplyingMayReverse() {
  NewScreen();
  Say(Text("Now we multiply and divide  {}.", "2 < 6"));
  ShowMultiplications();
  OpenWordBox();
  SayInBox("First we multiply by 3:  2 becomes 6, and 6 becomes 18.");
  SayInBox("Which result is smaller?");
  PageEnd();
  FillRow(0);
  FillRow(1);
  SayInBoxAnew(R"(6 is smaller.  With a \bpositive\z number the smaller side stays smaller.)");
  SayInBox("The symbol stays.");
  PageEnd();
  SayInBoxAnew("Now we multiply by -3:  2 becomes -6, and 6 becomes -18.");
  SayInBox("Which result is smaller?");
  PageEnd();
  FillRow(2);
  FillRow(3);
  SayInBoxAnew("-18 is smaller:  it lies to the left of -6.");
  SayInBox(R"(With a \bnegative\z number the sides change places.)");
  PageEnd();
}

void RuleOfReversing() {
  NewScreen();
  Say("Equations do not have this rule:");
  picGalleryImagePrepare(1, gallery::InequalityFlip, 5.5, 12);
  picGalleryImageShow(1);
  SayAt(14.5, Text("< becomes >, and {} becomes {}.", tutor::LessOrEqual, tutor::GreaterOrEqual));
  AddLine(R"(\yWatch out:\z  no other minus sign counts.)");
  PageEnd();
}

// Statements to which the rule applies or not, and what becomes of them.
struct Question {
  std::string asked;
  std::string answer;
};
const Question kQuestions[] = {
    {"A    3x < -12", "x < -4   stays"},
    {"B    x - 3 < 12", "x < 15   stays"},
    {"C   -3x < 12", "x > -4   reversed"},
};

void WhichIsReversed() {
  constexpr double kFirstRow = 18.5;
  SayAt(17, "Try it:  Which of these is reversed?");
  double row = kFirstRow;
  for (const Question& question : kQuestions) ShowAt(row++, question.asked, 4);
  PageEnd();
  row = kFirstRow;
  for (const Question& question : kQuestions)
    ShowAt(row++, R"(\y)" + question.answer + R"(\z)", 22);
  SayAt(22.5, "Only C is divided by a negative number.");
  PageEnd();
}

void NegativeDivisor() {
  const LinearStatement inequality = {"x", {-2, 3}, tutor::GreaterOrEqual, {0, 11}};
  const std::string reversed = tutor::LessOrEqual;
  EquationSheet sheet = SheetFor(inequality);
  NewScreen();
  Say("We solve an inequality step by step.");
  WriteStatement(sheet, inequality);
  OpenWordBox();
  SayInBox("What do we add to both sides first?");
  PageEnd();
  WriteAddition(sheet, AdditionsOf(inequality)[0]);
  SayInBoxAnew(Text(R"(We add \b-3\z, and the {} stays.)", inequality.relation));
  SayInBox("What do we divide by?");
  PageEnd();
  WriteDivision(sheet, IsolatedOf(inequality), " ");
  SayInBoxAnew(R"(By \b-2\z, the coefficient of x.)");
  SayInBox(Text("What becomes of the {}?", inequality.relation));
  PageEnd();
  sheet.WriteRelation(reversed, platform::colour::Yellow);
  sheet.WriteSolved("x", reversed, "-4");
  sheet.MarkSolution();
  SayInBoxAnew(Text(R"(-2 is \bnegative\z, so it becomes {}.)", reversed));
  SayInBox("Is -5 a solution?");
  PageEnd();
  SayInBoxAnew("Yes.  We put -5 in place of x:");
  SaySubstituted(inequality, -5);
  PageEnd();
}

void LetterOnBothSides() {
  const LinearStatement inequality = {"x", {2, 9}, ">", {5, -3}};
  const std::vector<Addition> additions = AdditionsOf(inequality);
  EquationSheet sheet = SheetFor(inequality);
  NewScreen();
  Say("Here the letter stands on both sides.");
  WriteStatement(sheet, inequality);
  OpenWordBox();
  SayInBox("What removes 5x from the right side?");
  PageEnd();
  WriteAddition(sheet, additions[0]);
  SayInBoxAnew(R"(We add \b-5x\z to both sides.)");
  SayInBox("What do we add next?");
  PageEnd();
  WriteAddition(sheet, additions[1]);
  SayInBoxAnew(R"(We add \b-9\z.  The > still stays.)");
  SayInBox("Will it be reversed?");
  PageEnd();
  WriteDivision(sheet, IsolatedOf(inequality), "<");
  sheet.WriteSolved("x", "<", "4");
  sheet.MarkSolution();
  SayInBoxAnew(R"(Yes.  We divide by \b-3\z, so > becomes <.)");
  PageEnd();
}

void FractionAsBound() {
  const LinearStatement inequality = {"x", {4, -5}, "<", {0, 1}};
  EquationSheet sheet = SheetFor(inequality);
  NewScreen();
  Say("The answer can have a fraction.");
  WriteStatement(sheet, inequality);
  OpenWordBox();
  SayInBox("What do we add?  What do we divide by?");
  PageEnd();
  WriteAddition(sheet, AdditionsOf(inequality)[0]);
  WriteDivision(sheet, IsolatedOf(inequality), "<");
  SayInBoxAnew(R"(We add \b+5\z and divide by \b4\z.)");
  PageEnd();
  sheet.WriteSolved("x", "<", "1 1/2");
  sheet.MarkSolution();
  SayInBoxAnew("In lowest terms 6/4 is 3/2, and that is 1 1/2.");
  SayInBox("Is 1 a solution?");
  PageEnd();
  SayInBoxAnew("Yes.  We put 1 in place of x:");
  SaySubstituted(inequality, 1);
  PageEnd();
}

// --- The lesson ------------------------------------------------------------

class SolvingInequalities final : public LessonScript {
 public:
  using LessonScript::LessonScript;
  bool ChoicesAreLaidDown() const override { return true; }

 private:
  std::vector<Screen> Screens() override {
    return {{AddingKeeps, SolvingByAdding},
            {MultiplyingMayReverse, RuleOfReversing, WhichIsReversed},
            {NegativeDivisor, LetterOnBothSides, FractionAsBound}};
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

  SetLinearProblem(problem, inequality_, random);
}

// --- Problem page ------------------------------------------------------------

void SolvingInequalities::ShowProblem() {
  ShowStatement(inequality_, problem);
  ShowAnswersInTwoColumns(problem, {.row = 12, .width = 17});
}

// --- Worked explanation ------------------------------------------------------

void SolvingInequalities::ExplainProblem() {
  ExplainLinear(inequality_, problem);
}

const LessonRegistration<SolvingInequalities> kRegistration("Solving Inequalities");

}  // namespace
}  // namespace course
