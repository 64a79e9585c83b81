#include "lessons/families/formulas/literal_explanation.h"

#include <cctype>
#include <cstdlib>

#include "display/grid.h"
#include "display/lesson_window.h"
#include "engine/choices.h"
#include "engine/header.h"
#include "engine/page.h"
#include "lessons/families/equations/equation_explanation.h"
#include "lessons/families/equations/equation_sheet.h"
#include "lessons/families/formulas/solution_lines.h"
#include "lessons/page/boxes.h"
#include "lessons/page/say.h"
#include "lessons/page/show.h"
#include "mathkit/expressions.h"
#include "mathkit/tutor_codes.h"

namespace course::formulas {
namespace {

using enum LiteralForm;
using equations::SheetRow;
using page::SayInBox;
using page::SayInBoxAnew;
using page::Text;
using page::Words;

constexpr double kQuestionRow = 4;
constexpr double kSheetBottom = 16.5;
constexpr double kExchangedRow = 7;
constexpr double kLinesRow = 5.5;
constexpr double kFractionRow = 5;  // the middle one of a built-up first line
constexpr double kBoxRow = 18;

// "+4y", "-4y": a term as it is spoken of.
std::string WithSign(const LetterTerm& term) {
  return (term.coef.num < 0 ? "" : "+") + TermText(term);
}

bool IsDigit(char c) {
  return std::isdigit(static_cast<unsigned char>(c)) != 0;
}

// Values that make the equation true, one for each of its letters.
struct LetterValues {
  int x = 2, y = 1, z = 1, w = 1;
};

LetterValues ValuesFor(const LiteralEquation& e) {
  LetterValues values;
  switch (e.form) {
    case LeftSide:
    case RightSide:
      values.z = e.p * values.x + e.q * values.y;
      break;
    case LetterCoefficient:  // w is free of a division when x is 1, and must not be 0
      values.x = 1;
      values.z = 3 * e.q == e.p ? 2 : 3;
      values.w = e.q * values.z - e.p * values.y;
      break;
    case SumOfLetters:
      values.z = std::abs(e.p);
      values.x = (e.p > 0 ? e.q : -e.q) - values.y;
      break;
    case FractionFormula:
      values.x = e.q;
      values.y = e.p + e.r * values.z;
      break;
  }
  return values;
}

// The text with a value in place of each letter: "(z - 4y)/3" becomes "(10 - 4 . 1)/3", and
// "3/8 k" becomes "3/8 . 8".
std::string Substituted(const std::string& text, const LiteralEquation& e,
                        const LetterValues& values) {
  const auto valueOf = [&](char c) {
    if (c == e.x[0]) return values.x;
    if (c == e.y[0]) return values.y;
    return c == e.z[0] ? values.z : values.w;
  };
  std::string filled;
  for (const char c : text) {
    if (std::islower(static_cast<unsigned char>(c)) == 0) {
      filled += c;
      continue;
    }
    const bool first = filled.empty();
    if (filled.size() > 1 && filled.back() == tutor::Gap[0] && IsDigit(filled[filled.size() - 2]))
      filled.pop_back();
    const char before = first ? ' ' : filled.back();
    const int value = valueOf(c);
    const bool factor = IsDigit(before);
    if (factor && value >= 0) filled += tutor::Gap + tutor::Dot + tutor::Gap;
    filled += first || before == '(' ? NumStr(value) : InParentheses(value);
  }
  return WithoutBreaks(filled);
}

class Explanation {
 public:
  Explanation(const LiteralEquation& equation, const Problem& problem)
      : e_(equation), problem_(problem) {}

  void Run() {
    ProblemBanner();
    page::SayAt(kQuestionRow, problem_.question[0]);
    if (e_.form == SumOfLetters)
      SolveSum();
    else if (e_.form == FractionFormula)
      SolveFraction();
    else
      SolveTwoTerms();
    Check();
    ShowAnswer();
  }

 private:
  std::string Added() const { return TermText(e_.Added()); }
  std::string Opposite() const { return TermText(-e_.Added()); }
  std::string RestText() const { return SumText({e_.Alone(), -e_.Added()}); }
  // Not yet turned round: the other side, then the term that was added to it.
  std::string Rest() const { return TermText(e_.Alone()) + SignedTermText(-e_.Added()); }

  std::string HowAdded() const {
    const bool subtracted = e_.Added().coef.num < 0;
    return Text("{} is {} it", subtracted ? Opposite() : Added(),
                Words{subtracted ? "subtracted from" : "added to"});
  }
  std::string Removing(const char* side) const {
    return Text(R"(To remove \b{}\z from the {}-hand side, we add \b{}\z to both sides.)",
                WithSign(e_.Added()), Words{side}, WithSign(-e_.Added()));
  }
  void TellThatItIsIsolated(const char* remark = "") const {
    SayInBoxAnew("We are done now since we have isolated the variable " + e_.x + ".");
    if (*remark != '\0') SayInBox(remark);
    PageEnd();
  }
  void TellSubtraction() const {
    if (e_.Added().coef.num > 0)
      SayInBox(Text("Adding {} is subtracting {}.", Opposite(), Added()));
  }
  static void OpenBox() { page::WhiteBox({.row = kBoxRow}); }

  // Built up: on one line a fraction before parentheses is hard to read.
  void ShowAnswer() const {
    const std::string words = "The answer is ";
    page::ClearBelow(kBoxRow);
    const std::string answer = RightText(problem_);
    const double row = page::RowBelow() + (answer.find('/') == std::string::npos ? 0.5 : 1.5);
    page::ShowAt(row, words, 1);
    SetColor(platform::colour::Yellow);
    page::ShowAt(row, answer + ".", 1.0 + static_cast<double>(words.size()));
    SetColor(frmPR->lessonText.textColour);
  }

  // --- Two terms, x in one of them ---------------------------------------------------------------

  // The letter's term, with its coefficient.
  std::string Unknown() const {
    return e_.form == LetterCoefficient ? e_.w + e_.x : TermText({e_.Coefficient(), e_.x});
  }
  std::string Divisor() const { return e_.form == LetterCoefficient ? e_.w : NumStr(e_.p); }
  bool HasDivision() const { return e_.form == LetterCoefficient || std::abs(e_.p) != 1; }

  void SolveTwoTerms() {
    const std::string opposite = SignedTermText(-e_.Added());
    const std::string alone = TermText(e_.Alone());
    const SheetRow given = {Unknown(), SignedTermText(e_.Added()), alone, ""};
    const SheetRow addend = {"", opposite, "", opposite};
    const SheetRow sum = {Unknown(), "", alone, opposite};
    const bool onRight = e_.form == RightSide;
    equations::EquationSheet sheet(onRight ? kExchangedRow : equations::kSheetTop, kSheetBottom,
                                   {given, addend, sum});
    if (onRight) ShowOnRight();
    sheet.Write(given, "=");
    if (onRight) {
      SayInBoxAnew("Yes, both name the same number.");
    } else {
      OpenBox();
      SayInBox(Text("We want {} to stand alone.", e_.x));
    }
    SayInBox(Text("Look at {}:  {}.  What undoes this?", Unknown(), Words{HowAdded()}));
    PageEnd();
    sheet.AddUnder(addend);
    SayInBoxAnew(Removing("left"));
    TellSubtraction();
    PageEnd();
    sheet.WriteSum(sum, "=");
    SayInBoxAnew(Text("{} and {} add up to 0.", WithSign(e_.Added()), WithSign(-e_.Added())));
    SayInBox(Text("{} and {} are unlike:  both stay.", alone, Opposite()));
    PageEnd();
    if (HasDivision())
      Divide(sheet);
    else if (e_.p < 0)
      ReverseSigns(sheet);
    TellThatItIsIsolated();
  }

  void ShowOnRight() {
    page::ShowAt(equations::kSheetTop, LeftText(e_),
                 equations::kLeftEndCol + 1.0 - static_cast<double>(LeftText(e_).size()));
    page::ShowAt(equations::kSheetTop, "=", equations::kRelationCol);
    page::ShowAt(equations::kSheetTop, RightText(e_), equations::kRightStartCol);
    OpenBox();
    SayInBox(Text("{} stands on the right side.  May the two sides be exchanged?", e_.x));
    PageEnd();
  }

  void Divide(equations::EquationSheet& sheet) {
    SayInBoxAnew(Text(R"(Now we divide both sides by \b{}\z.)", Divisor()));
    sheet.WriteQuotients({Unknown(), Rest(), Divisor()}, "=");
    SayInBox(Text("Watch out:  {} is divided too, not only {}.", Opposite(), TermText(e_.Alone())));
    PageEnd();
    const bool byLetter = e_.form == LetterCoefficient;
    SayInBoxAnew(Text("{} over {} is just {}{}.", Unknown(), Divisor(), e_.x,
                      Words{byLetter ? ", if " + e_.w + " is not 0" : ""}));
    if (const std::string signs = HowSignsChange(); !signs.empty()) {
      PageEnd();
      SayInBoxAnew(signs);
    }
    sheet.WriteSolved(e_.x, "=", SolvedText(e_));
    PageEnd();
  }

  // From the quotient as it was divided to the one that is the answer; nothing where they agree.
  std::string HowSignsChange() const {
    const bool minusInFront = SolvedText(e_).front() == '-';
    if (e_.form == LetterCoefficient) {
      if (minusInFront)
        return "Both terms above are negative.  One minus sign in front of the fraction stands for "
               "both.";
      return Rest() != RestText() ? "We write the positive term first." : "";
    }
    if (e_.p > 0) return "";
    if (minusInFront) return "The minus sign goes in front of the fraction.";
    return "We multiply the numerator and the denominator by -1.  The value of the fraction stays "
           "the same.";
  }

  void ReverseSigns(equations::EquationSheet& sheet) {
    SayInBoxAnew(
        Text(R"(We want {}, not {}.  So we multiply both sides by \b-1\z.)", e_.x, "-" + e_.x));
    SayInBox("Every sign changes.");
    sheet.WriteSolved(e_.x, "=", SolvedText(e_));
    PageEnd();
  }

  // --- p(x + y) = qz -----------------------------------------------------------------------------

  void SolveSum() {
    SolutionLines lines(kLinesRow);
    lines.Write(LeftText(e_), RightText(e_));
    OpenBox();
    SayInBox(Text("We want {} to stand alone.", e_.x));
    if (e_.p == 1)
      SayInBox(Text("{}.  What undoes this?", Words{HowAdded()}));
    else
      SayInBox(
          Text("It is in a sum, and the sum is multiplied by {}.  Which do we undo first?", e_.p));
    PageEnd();
    const Fraction quotient = Fraction{e_.q, 1} / e_.Coefficient();
    const std::string sum = e_.x + SignedTermText(e_.Added());
    const std::string alone = TermText({quotient, e_.z});
    if (e_.p == -1) {
      SayInBoxAnew(R"(The factor, -1.  We multiply both sides by \b-1\z.)");
      lines.Write(sum, alone);
      PageEnd();
    } else if (e_.p != 1) {
      SayInBoxAnew(Text(R"(The factor.  So we divide both sides by \b{}\z.)", e_.p));
      lines.Write("(" + LeftText(e_) + ")/(" + NumStr(e_.p) + ")",
                  "(" + RightText(e_) + ")/(" + NumStr(e_.p) + ")");
      PageEnd();
      SayInBoxAnew("On the left side only the sum is left.");
      if (quotient != Fraction{e_.q, e_.p})
        SayInBox(Text("On the right side, {} over {} is {}.", e_.q, e_.p, ValueText(quotient)));
      lines.Write(sum, alone);
      PageEnd();
    }
    SayInBoxAnew(Removing("left"));
    TellSubtraction();
    lines.Write(e_.x, SolvedText(e_));
    PageEnd();
    TellThatItIsIsolated("Unlike terms stay side by side.");
  }

  // --- y = p/q x + rz ----------------------------------------------------------------------------

  void SolveFraction() {
    const Fraction coef = e_.Coefficient();
    const std::string reciprocal = Reciprocal();
    const std::string unknown = ValueText(coef) + tutor::Gap + e_.x;
    SolutionLines lines(kFractionRow);
    lines.Write(LeftText(e_), RightText(e_));
    OpenBox();
    SayInBox(Text("{} is multiplied by {}, then {}.  Which do we undo first?", e_.x,
                  ValueText(coef), Words{HowAdded()}));
    PageEnd();
    SayInBoxAnew(Removing("right"));
    TellSubtraction();
    lines.Write(RestText(), unknown);
    PageEnd();
    SayInBoxAnew(Text(R"({} times \b{}\z is 1.  So we multiply both sides by \b{}\z.)",
                      ValueText(coef), reciprocal, reciprocal));
    SayInBox("Watch out:  it multiplies both terms.");
    lines.Write(SolvedText(e_), e_.x);
    PageEnd();
    SayInBoxAnew("The two sides of an equation may be exchanged.");
    lines.Write(e_.x, SolvedText(e_));
    PageEnd();
    TellThatItIsIsolated();
  }

  // --- The check ---------------------------------------------------------------------------------

  void Check() {
    const LetterValues values = ValuesFor(e_);
    const std::string others =
        Text("{} = {}, {} = {}, {} = {}", e_.x, values.x, e_.y, values.y, e_.z, values.z);
    const std::string letters =
        e_.form == LetterCoefficient ? Text("{} = {}, {}", e_.w, values.w, Words{others}) : others;
    SayInBoxAnew(Text("Check:  {} fit the given equation:", Words{letters}));
    SayInBox(Substituted(LeftText(e_), e_, values) + " = " +
             Substituted(RightText(e_), e_, values));
    const LetterTerm alone = e_.Alone();
    const int side = alone.coef.num * (alone.letter == e_.z ? values.z : values.y);
    SayInBox(Text(R"({}   \btrue\z)", NumStr(side) + " = " + NumStr(side)));
    PageEnd();
    SayInBoxAnew("Now we put them into the answer:");
    SayInBox(WithoutBreaks(e_.x + " = " + SubstitutedAnswer(values)));
    if (e_.form == FractionFormula) SayInBox(WithoutBreaks(e_.x + " = " + FactorTimes(e_.p)));
    SayInBox(Text("{} = {}, as in the given equation.", e_.x, values.x));
    PageEnd();
  }

  std::string SubstitutedAnswer(const LetterValues& values) const {
    if (e_.form != FractionFormula) return Substituted(SolvedText(e_), e_, values);
    return "(" + Reciprocal() + ")(" + Substituted(RestText(), e_, values) + ")";
  }
  // "(8/3)(3)"
  std::string FactorTimes(int value) const {
    return "(" + Reciprocal() + ")(" + NumStr(value) + ")";
  }
  std::string Reciprocal() const { return ValueText(Fraction{1, 1} / e_.Coefficient()); }

  const LiteralEquation& e_;
  const Problem& problem_;
};

}  // namespace

void ExplainLiteral(const LiteralEquation& equation, const Problem& problem) {
  Explanation(equation, problem).Run();
}

}  // namespace course::formulas
