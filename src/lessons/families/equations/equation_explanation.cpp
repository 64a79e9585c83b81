#include "lessons/families/equations/equation_explanation.h"

#include <algorithm>
#include <cstdlib>

#include "display/wiper_box.h"
#include "display/word_wrap.h"
#include "engine/choices.h"
#include "engine/header.h"
#include "engine/page.h"
#include "lessons/families/equations/substitution.h"
#include "lessons/page/boxes.h"
#include "lessons/page/say.h"
#include "mathkit/expressions.h"
#include "mathkit/tutor_codes.h"

namespace course::equations {
namespace {

using page::SayAt;
using page::SayInBox;
using page::SayInBoxAnew;
using page::Text;
using page::Words;

// Rows of the lesson screen: the sheet above, the word box below.
constexpr double kQuestionRow = 4;
constexpr double kSheetBottom = 16.25;
constexpr double kBoxRow = 17;
// On the problem page.
constexpr double kAskedRow = 5;
constexpr double kAskedStatementRow = 8;

constexpr double kBulletIndent = 3;  // column

// Rows of the sheet: an addition; a division with a whole result; one with a fraction.
constexpr double kAdditionRows = 2.5;
constexpr double kDivisionRows = 5;
constexpr double kDivisionToFractionRows = 7;

// "+7", "-7": a term as it is spoken of.
std::string WithSign(const std::string& text) {
  return text.front() == '-' ? text : "+" + text;
}

int FloorOf(const Fraction& f) {
  const int whole = f.num / f.den;
  return f.num % f.den < 0 ? whole - 1 : whole;
}

// What decides on the sign of a sum, of numbers or of the letter's coefficients.
enum class SignRule { Plain, BothNegative, Differ };

SignRule SignRuleOf(int first, int second) {
  if (first < 0 && second < 0) return SignRule::BothNegative;
  return first == 0 || (first > 0 && first + second > 0) ? SignRule::Plain : SignRule::Differ;
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
    const std::vector<Addition> additions = AdditionsOf(statement_);
    for (const Addition& addition : additions) Add(addition);
    if (!statement_.IsEquation() && !additions.empty()) TellThatAddingKeeps();
    if (isolated_.left.coef != 1) Divide();
    Finish();
    if (statement_.IsEquation())
      CheckEquation();
    else
      CheckInequality();
  }

 private:
  // --- The steps ---------------------------------------------------------------------------------

  void Introduce() {
    ProblemBanner();
    SayAt(kQuestionRow, problem_.question[0]);
    WriteStatement(sheet_, statement_);
    OpenWordBox();
    SayInBox(Text("We want {} to stand alone.", letter_));
    SayInBox(OpeningWords());
    PageEnd();
    if (statement_.IsEquation() && Operations() == 2) WarnOfDividingFirst();
  }

  // On the left side, with no letter on the right.
  int Operations() const {
    if (statement_.right.coef != 0) return 0;
    return (statement_.left.coef != 1 ? 1 : 0) + (statement_.left.number != 0 ? 1 : 0);
  }

  std::string OpeningWords() const {
    const auto [a, b] = statement_.left;
    if (statement_.right.coef != 0)
      return "Now it stands on both sides.  Which term must leave the right side?";
    const std::string added = Text("{} was {}", std::abs(b), Words{b < 0 ? "subtracted" : "added"});
    if (a == 1) return Text("{} {} it.  What undoes this?", Words{added}, b < 0 ? "from" : "to");
    if (b == 0) return Text("It was multiplied by {}.  What undoes this?", a);
    return Text("First it was multiplied by {}, then {}.  Which do we undo first?", a,
                Words{added});
  }

  // The mistake that is made most in two operations: 3x and 19 are divided, but not the 4.
  void WarnOfDividingFirst() {
    SayInBoxAnew("We undo the last one first.");
    SayInBox(
        Text("Watch out:  if we divide by {} first, we must divide the {} too.  It is often "
             "forgotten.",
             statement_.left.coef, statement_.left.number));
    PageEnd();
  }

  void Add(const Addition& addition) {
    const LinearSide& term = addition.term;
    const bool number = term.coef == 0;
    const std::string added = WithSign(number ? NumStr(term.number) : TermText(term.coef, letter_));
    const std::string removed =
        WithSign(number ? NumStr(-term.number) : TermText(-term.coef, letter_));
    sheet_.MakeRoom(kAdditionRows);
    SayInBoxAnew(Text(R"(To remove \b{}\z from the {}-hand side, we add \b{}\z to both sides.)",
                      removed, number ? "left" : "right", added));
    WriteAddend(sheet_, addition);
    SayInBox(statement_.IsEquation() ? "So both sides stay equal." : "What does each side become?");
    PageEnd();
    WriteSum(sheet_, addition);
    SayInBoxAnew(Text("{} and {} add up to 0.", removed, added));
    ExplainSum(addition);
    PageEnd();
  }

  // Once is enough, behind one addition or two.
  void TellThatAddingKeeps() {
    SayInBoxAnew(Text("By the {}, the {} stays as it is.",
                      Words{"Addition and Subtraction Properties for Inequalities"},
                      statement_.relation));
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

  // The sum, and what students get wrong in it, if there is anything.
  void ExplainSum(const Addition& addition) const {
    const bool number = addition.term.coef == 0;
    const std::string sum = Text("On the {} side, {}.", number ? "right" : "left",
                                 number ? SumOfNumbers(addition) : SumOfTerms(addition));
    const int first = number ? addition.before.right.number : addition.before.left.coef;
    const int second = number ? addition.term.number : addition.term.coef;
    const SignRule rule = SignRuleOf(first, second);
    SayInBox(sum);
    if (rule == SignRule::BothNegative) {
      SayInBox(number ? "Both are negative, so the sum is too."
                      : "Both have a minus, so the sum has one.");
    } else if (rule == SignRule::Differ) {
      SayInBox("Why does the sum have this sign?");
      PageEnd();
      SayInBoxAnew(sum);
      SayInBox(WhyThisSign(first, second, !number));
    } else if (!number && std::abs(second) == 1) {
      SayInBox(Text("{} means {}.", TermText(second, letter_), NumStr(second) + letter_));
    }
  }

  std::string WhyThisSign(int first, int second, bool terms) const {
    const int larger = std::abs(first) > std::abs(second) ? first : second;
    const int smaller = larger == first ? second : first;
    const std::string subtracted =
        Text("The signs differ, so we subtract:  {}.",
             Text("{} - {} = {}", std::abs(larger), std::abs(smaller), std::abs(larger + smaller)));
    if (!terms)
      return Text("{}  {} is farther from 0, so the sum is {}.", Words{subtracted},
                  WithSign(NumStr(larger)), larger < 0 ? "negative" : "positive");
    return Text("{}  {} is the larger, so the sum has the {} sign of {}.", Words{subtracted},
                std::abs(larger), larger < 0 ? "minus" : "plus",
                WithSign(TermText(larger, letter_)));
  }

  void Divide() {
    const int a = isolated_.left.coef;
    sheet_.MakeRoom(RowsToSolution());
    SayInBoxAnew(
        Text(R"({}  We divide both sides by the coefficient \b{}\z.)", Words{WhyDivided()}, a));
    if (statement_.IsEquation()) {
      WriteDivision(sheet_, isolated_, statement_.relation);
    } else {
      SayInBox(Text("What becomes of the {}?", statement_.relation));
      WriteDivision(sheet_, isolated_, " ");
      PageEnd();
      TellTheSymbol();
    }
    PageEnd();
  }

  std::string WhyDivided() const {
    const int a = isolated_.left.coef;
    if (a == -1) return Text("{} means {}.", TermText(a, letter_), "-1" + tutor::Dot + letter_);
    if (AdditionsOf(statement_).empty()) return Text("Dividing by {} does.", a);
    return Text("Now {} is multiplied by {}.", letter_, a);
  }

  void TellTheSymbol() {
    const int a = isolated_.left.coef;
    SayInBoxAnew(Text(R"({} is a \b{}\z number.)", a, a > 0 ? "positive" : "negative"));
    SayInBox(a > 0 ? Text("So the {} stays as it is.", statement_.relation)
                   : Text("So the inequality symbol is reversed:  {} becomes {}.",
                          statement_.relation, solution_.relation));
    sheet_.WriteRelation(solution_.relation, platform::colour::Yellow);
  }

  // --- The result --------------------------------------------------------------------------------

  bool Whole() const { return solution_.value.den == 1; }
  bool Mixed() const { return !Whole() && std::abs(solution_.value.num) > solution_.value.den; }
  // Whether the quotient of the sheet is not yet the fraction in lowest terms.
  bool Reduces() const {
    return !Whole() && solution_.value != Fraction{isolated_.right.number, isolated_.left.coef};
  }
  double RowsToSolution() const { return Whole() ? kDivisionRows : kDivisionToFractionRows; }

  void WriteValue(const std::string& value) {
    sheet_.WriteSolved(letter_, solution_.relation, value);
  }

  // From the quotients, or from the last sum when there was nothing to divide by, to the solution.
  void Finish() {
    if (isolated_.left.coef != 1) {
      SayInBoxAnew("");
      if (Whole())
        FinishWhole();
      else
        FinishFraction();
      PageEnd();
    }
    sheet_.MarkSolution();
    SayInBoxAnew("We are done now since we have isolated the variable " + letter_ + ".");
    PageEnd();
  }

  void SayThatOneIsSilent() {
    SayBullet("We know that 1" + letter_ + " is equal to just " + letter_ + ".");
  }

  void FinishWhole() {
    const int value = solution_.value.num;
    WriteValue(NumStr(value));
    SayBullet(WithoutBreaks(ProductText(isolated_.left.coef, value) + " = " +
                            NumStr(isolated_.right.number) + "."));
    SayThatOneIsSilent();
  }

  void FinishFraction() {
    const std::string reduced = ValueText(solution_.value);
    SayThatOneIsSilent();
    if (Reduces() || !Mixed()) WriteValue(reduced);
    if (Reduces())
      SayBullet(Text("{}, {} is {}.", Words{HowItReduces()},
                     FractionOfTexts(NumStr(isolated_.right.number), NumStr(isolated_.left.coef)),
                     reduced));
    if (!Mixed()) return;
    const std::string mixed = MixedText(solution_.value);
    if (Reduces()) {
      PageEnd();
      SayInBoxAnew("");
      sheet_.ReplaceSolved(letter_, solution_.relation, mixed);
    } else {
      WriteValue(mixed);
    }
    const int size = std::abs(solution_.value.num);
    const int den = solution_.value.den;
    SayBullet(Text("{} {} {} is {} with {} left over.", size, tutor::Divided, den, size / den,
                   size % den));
    SayBullet(Text("{}.", reduced + " = " + mixed));
  }

  std::string HowItReduces() const {
    const int num = isolated_.right.number;
    const bool toLowest = std::abs(num) != std::abs(solution_.value.num);
    if (isolated_.left.coef > 0) return "In lowest terms";
    const std::string sign = num < 0 ? "without the two signs" : "with its sign in front";
    if (toLowest) return "In lowest terms, and " + sign;
    return "W" + sign.substr(1);
  }

  // --- The check and the choice ------------------------------------------------------------------

  void CheckEquation() {
    const int value = solution_.value.num;
    SayInBoxAnew(Text("Check:  we put {} in place of {}.", value, letter_));
    SaySubstituted(statement_, value);
    PageEnd();
    SayInBox(ConclusionText(problem_, 'b'));
  }

  // With the whole numbers next to the value on either side of it.
  void CheckInequality() {
    const int below = Whole() ? solution_.value.num - 1 : FloorOf(solution_.value);
    const int above = Whole() ? below + 2 : below + 1;
    const int inside = Upwards() ? above : below;
    const int outside = Upwards() ? below : above;
    SayInBoxAnew(Text("Check:  {} should make it true.", inside));
    SaySubstituted(statement_, inside);
    PageEnd();
    SayInBoxAnew(Text("And {} should make it false.", outside));
    SaySubstituted(statement_, outside);
    PageEnd();
    SayInBoxAnew(Meaning());
    SayInBox(ConclusionText(problem_, 'b'));
  }

  std::string Meaning() const {
    const bool closed =
        solution_.relation == tutor::LessOrEqual || solution_.relation == tutor::GreaterOrEqual;
    const std::string value = MixedText(solution_.value);
    if (closed) return Text("{} and all {} numbers fit.", value, Upwards() ? "greater" : "smaller");
    return Text("All numbers {} than {} fit.", Upwards() ? "greater" : "less", value);
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

void WriteStatement(EquationSheet& sheet, const LinearStatement& statement) {
  sheet.Write(RowOf(statement), statement.relation);
}

void WriteAddend(EquationSheet& sheet, const Addition& addition) {
  sheet.AddUnder(AddendRow(addition.term, addition.before.letter));
}

void WriteSum(EquationSheet& sheet, const Addition& addition) {
  sheet.WriteSum(RowOf(addition.after), addition.after.relation);
}

void WriteAddition(EquationSheet& sheet, const Addition& addition) {
  WriteAddend(sheet, addition);
  WriteSum(sheet, addition);
}

void WriteDivision(EquationSheet& sheet, const LinearStatement& isolated,
                   const std::string& relation) {
  sheet.WriteQuotients({TermText(isolated.left.coef, isolated.letter),
                        NumStr(isolated.right.number), NumStr(isolated.left.coef)},
                       relation);
}

void ShowStatement(const LinearStatement& statement, const Problem& problem) {
  SayAt(kAskedRow, problem.question[0]);
  EquationSheet sheet(kAskedStatementRow, kAskedStatementRow, {RowOf(statement)});
  WriteStatement(sheet, statement);
}

void OpenWordBox() {
  page::WhiteBox({.row = kBoxRow});
}

void SayBullet(const std::string& text) {
  wbWordWrapIndent(tutor::Bullet + " " + text, kBulletIndent);
}

void SaySubstituted(const LinearStatement& statement, int value) {
  const std::vector<SideTexts> lines = SubstitutedLines(statement, value);
  std::size_t width = 0;
  for (const auto& [left, right] : lines) width = std::max(width, left.size());
  const std::string verdict = IsTrueFor(statement, value) ? R"(   \btrue\z)" : R"(   \rfalse\z)";
  for (const SideTexts& line : lines) {
    const auto& [left, right] = line;
    wbWordWrap(std::string(2 + width - left.size(), tutor::Gap[0]) + left + " " +
               statement.relation + " " + right + (line == lines.back() ? verdict : ""));
  }
}

void ExplainLinear(const LinearStatement& statement, const Problem& problem) {
  LinearExplanation(statement, problem).Run();
}

}  // namespace course::equations
