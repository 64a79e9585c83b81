// The student can solve an inequality such as -2x + 3 < 11 in the steps of an equation, and knows
// when the inequality symbol is reversed.
//
// Two of the choices carry the reversed symbol, one of them with the right number, so that
// reversing it or not is always part of the question.  Answers that are not whole are mixed
// numbers.
#include "lessons/families/equations/equation_explanation.h"
#include "lessons/families/equations/equation_machine.h"
#include "lessons/families/equations/substitution.h"
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

// A number over the line, and the point under it: yellow, or white where it came from.
void MarkNumber(int value, platform::Colour colour = platform::colour::Yellow) {
  ShowAtValue(kMarkerRow, value, NumStr(value), colour == platform::colour::Yellow ? "y" : "w");
  isDrawBullet(kLineRow - 0.7, LineColumn(value), colour);
}

void ShowTwoAndSix() {
  DrawLine();
  MarkNumber(2);
  MarkNumber(6);
}

// An arrow over the numbers, and what it does at its tail.
void DrawMove(double row, int from, int to, const std::string& label) {
  constexpr double kNoteWidth = 2.2;  // columns
  isDrawArrow1Segment(row, LineColumn(from), row, LineColumn(to), platform::colour::Yellow, "NA",
                      "A");
  Note(row + 0.1, LineColumn(from) + (to > from ? -kNoteWidth : 0.7), label);
}

// 2 and 6 stay, in white, beside what becomes of them.
void ShowMoves(int ofTwo, int ofSix, const std::string& label) {
  MarkNumber(2, platform::colour::White);
  MarkNumber(6, platform::colour::White);
  MarkNumber(ofTwo);
  MarkNumber(ofSix);
  DrawMove(9.3, 2, ofTwo, label);
  DrawMove(8.3, 6, ofSix, label);
}

// Both numbers slide by the same distance.
void SlideNumbers(int distance, const std::string& label) {
  const double first = LineColumn(2) - 1;
  const double width = LineColumn(6) - first + 2;
  (distance < 0 ? SlideLeft : SlideRight)({kMarkerRow, first, width, 1.8},
                                          kColumnsPerUnit * std::abs(distance), Leaving::Nothing,
                                          Pace::Brisk);
  ClearCells(kMarkerRow, LineColumn(2 + distance) - 1, width, 1);
  ShowMoves(2 + distance, 6 + distance, label);
}

void AddingKeeps() {
  NewScreen();
  Say("An inequality is solved with the same steps as an equation.  But does its symbol stay the "
      "same?");
  PageEnd();
  Say(Text(R"(2 lies \yto the left\z of 6:  {})", "2 < 6"));
  ShowTwoAndSix();
  SayAt(15, "We add 3 to both.  Which one is smaller?");
  PageEnd();
  SlideNumbers(3, "+3");
  SayAt(16.5,
        Text("Still the left one:  {}  And when we subtract 7 from 2 and 6?", R"(5 \y<\z 9.)"));
  PageEnd();
  ClearRows(8, 3.9);  // arrows and numbers
  lblNotesHide(1);
  lblNotesHide(2);
  ShowTwoAndSix();
  SlideNumbers(-7, "-7");
  SayAt(19, Text("Both move the same way:  {}", R"(-5 \y<\z -1.)"));
  Say(R"(By the \cAddition and Subtraction Properties for Inequalities\z the < stays.)");
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

// A page of the word box: what was done, and what comes next.
void TellAndAsk(const std::string& told, const std::string& asked) {
  SayInBoxAnew(told);
  SayInBox(asked);
  PageEnd();
}

void MultiplyingMayReverse() {
  NewScreen();
  Say(Text("Now we multiply both sides of  {}.", "2 < 6"));
  ShowMultiplications();
  OpenWordBox();
  SayInBox("By 3:  2 becomes 6, and 6 becomes 18.");
  SayInBox("Or we divide by 2:  1 and 3.");
  SayInBox("Which side is smaller each time?");
  PageEnd();
  FillRow(0);
  FillRow(1);
  TellAndAsk(R"(The left one.  With a \bpositive\z number the symbol stays.)",
             "Now we multiply by -3:  -6 and -18.  Which side is smaller?");
  FillRow(2);
  TellAndAsk("-18 is smaller:  it lies to the left of -6.",
             "Now we divide by -2:  2 becomes -1, and 6 becomes -3.  Which is smaller?");
  FillRow(3);
  SayInBoxAnew(Text(R"(-3 is smaller.  With a \bnegative\z number the smaller side becomes the )"
                    "greater one, so the symbol is reversed:  {}.",
                    "< becomes >"));
  PageEnd();
}

void WhyItIsReversed() {
  NewScreen();
  SayAt(5, "Why is that?  We multiply 2 and 6 by -1.");
  ShowTwoAndSix();
  SayAt(15, "Where does each number go?");
  PageEnd();
  ShowMoves(-2, -6, tutor::Times + " (-1)");
  SayAt(16.5, "Each number goes to the other side of 0.");
  Say("2 was the left one; -2 is the right one.");
  AddLine(Text("So  {}  becomes  {}", "2 < 6", R"(-2 \y>\z -6.)"));
  PageEnd();
}

void RuleOfReversing() {
  NewScreen();
  picGalleryImagePrepare(1, gallery::InequalityFlip, 3, 12);
  picGalleryImageShow(1);
  SayAt(12.5, Text("When we reverse, < and > change into each other, and so do {} and {}.",
                   tutor::LessOrEqual, tutor::GreaterOrEqual));
  SayAt(15, R"(\yWatch out:\z  A minus sign in another place does not reverse the symbol.)");
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
  constexpr double kFirstRow = 19;
  SayAt(17.5, R"(\yTry it:\z  Which of these is reversed?)");
  double row = kFirstRow;
  for (const Question& question : kQuestions) ShowAt(row++, question.asked, 4);
  PageEnd();
  row = kFirstRow;
  for (const Question& question : kQuestions)
    ShowAt(row++, R"(\y)" + question.answer + R"(\z)", 22);
  SayAt(22.5, "Only C is divided by a negative number.");
  PageEnd();
}

// The first page of an example.
EquationSheet BeginExample(const std::string& heading, const LinearStatement& inequality,
                           const std::string& asked) {
  EquationSheet sheet = SheetFor(inequality);
  NewScreen();
  Say(heading);
  WriteStatement(sheet, inequality);
  OpenWordBox();
  SayInBox(asked);
  PageEnd();
  return sheet;
}

void TryNumber(const LinearStatement& inequality, int value) {
  SayInBoxAnew(Text(
      "{}  We put {} in place of x:", Words{IsTrueFor(inequality, value) ? "Yes." : "No."}, value));
  SaySubstituted(inequality, value);
  PageEnd();
}

void PositiveDivisor() {
  const LinearStatement inequality = {"x", {4, -5}, "<", {0, 3}};
  EquationSheet sheet = BeginExample("We solve an inequality step by step.", inequality,
                                     "What do we add to both sides first?");
  WriteAddition(sheet, AdditionsOf(inequality)[0]);
  TellAndAsk(R"(We add \b+5\z, and the < stays.)", "What do we divide by?");
  WriteDivision(sheet, IsolatedOf(inequality), "<");
  sheet.WriteSolved("x", "<", "2");
  sheet.MarkSolution();
  TellAndAsk(R"(By \b4\z.  It is positive, so the < stays.)", "Is 1 a solution?");
  TryNumber(inequality, 1);
}

void NegativeDivisor() {
  const LinearStatement inequality = {"x", {-2, 3}, tutor::GreaterOrEqual, {0, 11}};
  const std::string reversed = tutor::LessOrEqual;
  EquationSheet sheet = BeginExample("Here x has a negative coefficient.", inequality,
                                     "What do we add to both sides?");
  WriteAddition(sheet, AdditionsOf(inequality)[0]);
  TellAndAsk(Text(R"(We add \b-3\z, and the {} stays.)", inequality.relation),
             "What do we divide by?");
  WriteDivision(sheet, IsolatedOf(inequality), " ");
  TellAndAsk(R"(By \b-2\z, the coefficient of x.)",
             Text("What becomes of the {}?", inequality.relation));
  sheet.WriteRelation(reversed, platform::colour::Yellow);
  sheet.WriteSolved("x", reversed, "-4");
  sheet.MarkSolution();
  TellAndAsk(Text(R"(-2 is \bnegative\z, so the {} becomes {}.)", inequality.relation, reversed),
             "Is -5 a solution?");
  TryNumber(inequality, -5);
}

void LetterOnBothSides() {
  constexpr double kRowsToFraction = 7;
  const LinearStatement inequality = {"x", {2, 9}, ">", {5, 2}};
  const std::vector<Addition> additions = AdditionsOf(inequality);
  EquationSheet sheet = BeginExample("Here the letter stands on both sides.", inequality,
                                     "What removes 5x from the right side?");
  WriteAddition(sheet, additions[0]);
  TellAndAsk(R"(We add \b-5x\z to both sides.)", "What do we add next?");
  WriteAddition(sheet, additions[1]);
  TellAndAsk(R"(We add \b-9\z.  The > still stays.)", "Will it be reversed?");
  sheet.MakeRoom(kRowsToFraction);
  WriteDivision(sheet, IsolatedOf(inequality), " ");
  sheet.WriteRelation("<", platform::colour::Yellow);
  TellAndAsk(R"(Yes.  We divide by \b-3\z, so > becomes <.)", "Which mixed number is -7/(-3)?");
  sheet.WriteSolved("x", "<", "2 1/3");
  sheet.MarkSolution();
  TellAndAsk("-7/(-3) is positive:  7/3, or 2 1/3.", "Is 3 a solution?");
  TryNumber(inequality, 3);
}

// --- The lesson ------------------------------------------------------------

class SolvingInequalities final : public LessonScript {
 public:
  using LessonScript::LessonScript;
  bool ChoicesAreLaidDown() const override { return true; }

 private:
  std::vector<Screen> Screens() override {
    return {{AddingKeeps, SolvingByAdding},
            {MultiplyingMayReverse, WhyItIsReversed, RuleOfReversing, WhichIsReversed},
            {PositiveDivisor, NegativeDivisor, LetterOnBothSides}};
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
