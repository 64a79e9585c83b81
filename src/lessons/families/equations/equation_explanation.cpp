#include "lessons/families/equations/equation_explanation.h"

#include <algorithm>
#include <cstdlib>
#include <utility>

#include "display/animation.h"
#include "display/grid.h"
#include "display/print.h"
#include "display/wiper_box.h"
#include "display/word_wrap.h"
#include "engine/header.h"
#include "engine/page.h"
#include "mathkit/expressions.h"
#include "mathkit/tutor_codes.h"

namespace course::equations {
namespace {

// Rows of the lesson screen: the sheet above, the word box below.
constexpr double kQuestionRow = 4;
constexpr double kSheetBottom = 15.75;
constexpr double kBoxRow = 17;
constexpr double kBoxWidth = 38;
constexpr double kBoxHeight = 8;

constexpr double kWipeSpeed = 10;
constexpr double kBulletIndent = 3;  // column

// Rows of the sheet: an addition; a division with a whole result; one with a fraction, and one more
// fraction.
constexpr double kAdditionRows = 2.5;
constexpr double kDivisionRows = 5;
constexpr double kDivisionToFractionRows = 6.75;
constexpr double kFractionRows = 3.25;

// "+7", "-7": a term as it is spoken of.
std::string WithSign(const std::string& text) {
  return text.front() == '-' ? text : "+" + text;
}

std::string WithNumber(const std::string& term, int number) {
  return number == 0 ? term : term + tutor::Gap + SignedNumberText(number);
}

int FloorOf(const Fraction& f) {
  const int whole = f.num / f.den;
  return f.num % f.den < 0 ? whole - 1 : whole;
}

// A side with a value in place of the letter, with the product worked out, and as one number.
std::string Substituted(const LinearSide& side, int value) {
  if (side.coef == 0) return NumStr(side.number);
  const std::string factor = CoefText(side.coef) + (std::abs(side.coef) == 1 ? "" : tutor::Dot);
  return WithNumber(factor + InParentheses(value), side.number);
}
std::string Multiplied(const LinearSide& side, int value) {
  if (side.coef == 0) return NumStr(side.number);
  return WithNumber(NumStr(side.coef * value), side.number);
}
std::string Added(const LinearSide& side, int value) {
  return NumStr(side.coef * value + side.number);
}

// The texts of both sides, line by line; a line like the one before is left out.
using SidePair = std::pair<std::string, std::string>;
std::vector<SidePair> SubstitutedLines(const LinearStatement& statement, int value) {
  std::vector<SidePair> lines;
  for (const auto write : {Substituted, Multiplied, Added}) {
    const SidePair line(write(statement.left, value), write(statement.right, value));
    if (lines.empty() || lines.back() != line) lines.push_back(line);
  }
  return lines;
}

class LinearExplanation {
 public:
  LinearExplanation(const LinearStatement& statement, const Problem& problem)
      : statement_(statement),
        problem_(problem),
        isolated_(IsolatedOf(statement)),
        solution_(SolutionOf(statement)),
        letter_(statement.letter),
        sheet_(SheetFor(statement)) {}

  void Run() {
    Introduce();
    for (const Addition& addition : AdditionsOf(statement_)) Add(addition);
    if (isolated_.left.coef != 1) Divide();
    Finish();
    if (statement_.IsEquation())
      CheckEquation();
    else
      CheckInequality();
    Conclude();
  }

 private:
  // --- The steps ---------------------------------------------------------------------------------

  void Introduce() {
    ProblemBanner();
    Locate(kQuestionRow, 1);
    isPrint(problem_.question[0]);
    sheet_.Write(RowOf(statement_), statement_.relation);
    OpenWordBox();
    SayAnew("We want " + letter_ + " to stand alone on the left-hand side.");
    SayMore(OpeningWords());
    PageEnd();
  }

  std::string OpeningWords() const {
    const auto [a, b] = statement_.left;
    const std::string side = SideText(statement_.left, letter_);
    if (statement_.right.coef != 0)
      return "Now it stands on both sides.  Which term must leave the right-hand side?";
    const std::string multiplied = "is multiplied by " + NumStr(a);
    const std::string added = NumStr(std::abs(b)) + (b < 0 ? " is subtracted" : " is added");
    if (b == 0) return "In " + side + ", " + letter_ + " " + multiplied + ".  What undoes this?";
    if (a == 1) return "In " + side + ", " + added + ".  What undoes this?";
    return "In " + side + ", " + letter_ + " first " + multiplied + ", and then " + added +
           ".  We undo this in reverse order.  Which one do we undo first?";
  }

  void Add(const Addition& addition) {
    const LinearSide& term = addition.term;
    const bool number = term.coef == 0;
    const std::string added = WithSign(number ? NumStr(term.number) : TermText(term.coef, letter_));
    const std::string removed =
        WithSign(number ? NumStr(-term.number) : TermText(-term.coef, letter_));
    sheet_.MakeRoom(kAdditionRows);
    SayAnew(R"(To remove \b)" + removed + R"(\z from the )" + (number ? "left" : "right") +
            R"(-hand side, we add \b)" + added + R"(\z to both sides.)");
    SayMore(statement_.IsEquation()
                ? "Both sides change by the same amount, so they stay equal."
                : "By the Addition and Subtraction Properties for Inequalities, the " +
                      statement_.relation + " stays as it is.");
    sheet_.AddUnder(AddendRow(term, letter_));
    PageEnd();
    sheet_.WriteSum(RowOf(addition.after), statement_.relation);
    SayAnew(removed + " and " + added + " add up to 0, so only " +
            SideText(number ? addition.after.left : addition.after.right, letter_) +
            " is left on the " + (number ? "left" : "right") + "-hand side.");
    SayMore(std::string("On the ") + (number ? "right" : "left") + "-hand side:");
    wbisPrint("   " + (number ? SumOfNumbers(addition) : SumOfTerms(addition)));
    PageEnd();
  }

  static std::string SumOfNumbers(const Addition& addition) {
    return NumStr(addition.before.right.number) + " + " + InParentheses(addition.term.number) +
           " = " + NumStr(addition.after.right.number);
  }

  std::string SumOfTerms(const Addition& addition) const {
    const std::string added = TermText(addition.term.coef, letter_);
    return TermText(addition.before.left.coef, letter_) + " + " +
           (addition.term.coef < 0 ? "(" + added + ")" : added) + " = " +
           TermText(addition.after.left.coef, letter_);
  }

  void Divide() {
    const std::string a = NumStr(isolated_.left.coef);
    const std::string term = TermText(isolated_.left.coef, letter_);
    sheet_.MakeRoom(RowsToSolution());
    SayAnew((isolated_.left.coef == -1
                 ? "Remember that " + term + " means " + a + tutor::Dot + letter_ + "."
                 : "Now " + letter_ + " is multiplied by " + a + ".") +
            R"(  To remove the coefficient \b)" + a + R"(\z, we divide both sides by \b)" + a +
            R"(\z.)");
    const QuotientRow quotients = {term, NumStr(isolated_.right.number), a};
    if (statement_.IsEquation()) {
      SayMore("Both sides are divided by the same number, so they stay equal.");
      sheet_.WriteQuotients(quotients, statement_.relation);
    } else {
      SayMore("But what becomes of the " + statement_.relation + "?");
      sheet_.WriteQuotients(quotients, " ");
      PageEnd();
      TurnRelation();
    }
    PageEnd();
  }

  void TurnRelation() {
    const std::string a = NumStr(isolated_.left.coef);
    if (isolated_.left.coef > 0) {
      SayAnew(a + R"( is a \bpositive\z number.)");
      SayMore("When both sides are divided by a positive number, the " + statement_.relation +
              " stays as it is.");
    } else {
      SayAnew(a + R"( is a \rnegative\z number.)");
      SayMore(
          R"(When both sides are divided by a negative number, the relation \rturns around\z: )" +
          statement_.relation + " becomes " + solution_.relation + ".");
    }
    sheet_.WriteRelation(solution_.relation, platform::colour::Yellow);
  }

  // --- The result --------------------------------------------------------------------------------

  bool Whole() const { return solution_.value.den == 1; }
  bool Mixed() const { return !Whole() && std::abs(solution_.value.num) > solution_.value.den; }
  // Whether the quotient of the sheet is not yet the fraction in lowest terms.
  bool Reduces() const {
    return !Whole() && solution_.value != Fraction{isolated_.right.number, isolated_.left.coef};
  }
  double RowsToSolution() const {
    if (Whole()) return kDivisionRows;
    return kDivisionToFractionRows + (Reduces() && Mixed() ? kFractionRows : 0);
  }

  void WriteValue(const std::string& value) {
    sheet_.WriteSolved(letter_, solution_.relation, value);
  }

  // From the quotients, or from the last sum when there was nothing to divide by, to the solution.
  void Finish() {
    SayAnew("");
    if (isolated_.left.coef != 1) {
      if (Whole()) FinishWhole();
      SayBullet("We know that 1" + letter_ + " is equal to just " + letter_ + ".");
      if (!Whole()) FinishFraction();
    }
    sheet_.MarkSolution();
    SayMore("We are done now since we have isolated the variable " + letter_ + ".");
    PageEnd();
  }

  void FinishWhole() {
    const int value = solution_.value.num;
    const std::string a = NumStr(isolated_.left.coef);
    const std::string product = NumStr(isolated_.right.number);
    WriteValue(NumStr(value));
    SayBullet(product + " divided by " + a + " is " + NumStr(value) + ", since " +
              WithoutBreaks(" " + a + tutor::Dot + InParentheses(value) + " = " + product + "."));
  }

  void FinishFraction() {
    const Fraction& value = solution_.value;
    const std::string reduced = ValueText(value);
    if (Reduces() || !Mixed()) WriteValue(reduced);
    if (Reduces())
      SayBullet("In lowest terms, and with its sign in front, " +
                FractionOfTexts(NumStr(isolated_.right.number), NumStr(isolated_.left.coef)) +
                " is " + reduced + ".");
    if (!Mixed()) return;
    if (Reduces()) {
      PageEnd();
      SayAnew("");
    }
    WriteValue(MixedText(value));
    const int size = std::abs(value.num);
    SayBullet(NumStr(size) + " divided by " + NumStr(value.den) + " is " +
              NumStr(size / value.den) + " with " + NumStr(size % value.den) + " left over, so " +
              reduced + " = " + MixedText(value) + ".");
  }

  // --- The check and the choice ------------------------------------------------------------------

  void CheckEquation() {
    const int value = solution_.value.num;
    SayAnew("Check:  we put " + NumStr(value) + " in place of " + letter_ + ".");
    SaySubstituted(statement_, value);
    SayMore(R"(Both sides are the same number, so the solution is \b)" + SolutionText(statement_) +
            R"(\z.)");
    PageEnd();
  }

  // With the whole numbers next to the value on either side of it.
  void CheckInequality() {
    const int below = Whole() ? solution_.value.num - 1 : FloorOf(solution_.value);
    const int above = Whole() ? below + 2 : below + 1;
    const int inside = Upwards() ? above : below;
    const int outside = Upwards() ? below : above;
    SayAnew("Check:  " + NumStr(inside) + " is one of the numbers with " +
            SolutionText(statement_) + ".");
    SaySubstituted(statement_, inside, R"(   \btrue\z)");
    PageEnd();
    SayAnew(NumStr(outside) + " is not one of them.");
    SaySubstituted(statement_, outside, R"(   \rfalse\z)");
    PageEnd();
  }

  // An equation's check has named the solution already.
  void Conclude() {
    const std::string answer = problem_.choices[static_cast<std::size_t>(problem_.correct)].text;
    const bool none = problem_.correct == 5;
    if (statement_.IsEquation() && !none) return;
    SayAnew(R"(The solution is \b)" + SolutionText(statement_) + R"(\z.)");
    if (!statement_.IsEquation()) SayMore(Meaning());
    if (none)
      SayMore(answer + R"( is not among the choices, so the right one is \b)" + kNoneOfTheAbove +
              R"(\z.)");
    PageEnd();
  }

  std::string Meaning() const {
    const bool closed =
        solution_.relation == tutor::LessOrEqual || solution_.relation == tutor::GreaterOrEqual;
    return "It stands for " + (closed ? MixedText(solution_.value) + " and " : "") +
           "all numbers that are " + (Upwards() ? "greater" : "less") + " than " +
           (closed ? "that." : MixedText(solution_.value) + ".");
  }

  bool Upwards() const {
    return solution_.relation == ">" || solution_.relation == tutor::GreaterOrEqual;
  }

  const LinearStatement& statement_;
  const Problem& problem_;
  LinearStatement isolated_;  // coefficient times letter, relation, number
  Solution solution_;
  const std::string& letter_;
  EquationSheet sheet_;
};

}  // namespace

SheetRow RowOf(const LinearStatement& statement) {
  const auto number = [](const LinearSide& side) {
    return side.coef == 0 ? NumStr(side.number) : WithNumber("", side.number);
  };
  return {TermText(statement.left.coef, statement.letter), number(statement.left),
          TermText(statement.right.coef, statement.letter), number(statement.right)};
}

SheetRow AddendRow(const LinearSide& term, const std::string& letter) {
  const std::string text = term.coef == 0 ? "" : WithSign(TermText(term.coef, letter));
  const std::string number = term.number == 0 ? "" : SignedNumberText(term.number);
  return {text, number, text, number};
}

std::vector<SheetRow> RowsOf(const LinearStatement& statement) {
  std::vector<SheetRow> rows = {RowOf(statement)};
  for (const Addition& addition : AdditionsOf(statement)) {
    rows.push_back(AddendRow(addition.term, statement.letter));
    rows.push_back(RowOf(addition.after));
  }
  return rows;
}

EquationSheet SheetFor(const LinearStatement& statement) {
  return {kSheetTop, kSheetBottom, RowsOf(statement)};
}

void OpenWordBox() {
  wbPrepare(kBoxRow, kBoxWidth, kBoxHeight, platform::colour::White, platform::colour::Black);
  wbShow();
}

void SayAnew(const std::string& paragraph) {
  if (!frmPR->wiperText.Transcript().empty()) wbWipeAndErase(kWipeSpeed);
  if (!paragraph.empty()) wbWordWrap(paragraph);
}

void SayMore(const std::string& paragraph) {
  if (!frmPR->wiperText.Transcript().empty()) wbisPrintLines(0.5);
  wbWordWrap(paragraph);
}

void SayBullet(const std::string& text) {
  wbWordWrapIndent(tutor::Bullet + " " + text, kBulletIndent);
}

void SaySubstituted(const LinearStatement& statement, int value, const std::string& verdict) {
  const std::vector<SidePair> lines = SubstitutedLines(statement, value);
  std::size_t width = 0;
  for (const auto& [left, right] : lines) width = std::max(width, left.size());
  for (const SidePair& line : lines) {
    const auto& [left, right] = line;
    wbWordWrap(std::string(2 + width - left.size(), tutor::Gap[0]) + left + " " +
               statement.relation + " " + right + (line == lines.back() ? verdict : ""));
  }
}

void ExplainLinear(const LinearStatement& statement, const Problem& problem) {
  LinearExplanation(statement, problem).Run();
}

}  // namespace course::equations
