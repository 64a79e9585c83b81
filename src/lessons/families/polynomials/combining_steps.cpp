#include "lessons/families/polynomials/combining_steps.h"

#include <algorithm>
#include <cstdlib>

#include "display/grid.h"
#include "display/stacked_text.h"
#include "engine/header.h"
#include "engine/page.h"
#include "lessons/families/polynomials/gathering_table.h"
#include "lessons/page/boxes.h"
#include "lessons/page/say.h"
#include "lessons/page/show.h"
#include "mathkit/expressions.h"
#include "mathkit/tutor_codes.h"
#include "platform/stop.h"

namespace course::polynomials {

using namespace page;

namespace {

constexpr double kMathCol = 6;

// "4 + (-2) = 2", from left to right: "4 + (-2) + 3 = 2 + 3 = 5".
std::string AdditionText(const Sum& like) {
  std::string text;
  int total = 0;
  for (std::size_t first = 0; first + 1 < like.size(); ++first) {
    total += like[first].coef;
    text += NumStr(total);
    for (std::size_t i = first + 1; i < like.size(); ++i)
      text += " + " + InParentheses(like[i].coef);
    text += " = ";
  }
  return text + NumStr(total + like.back().coef);
}

std::string LoneLetterSentence(const Sum& like) {
  const auto lone = std::ranges::find_if(
      like, [](const Term& term) { return !term.letters.empty() && std::abs(term.coef) == 1; });
  if (lone == like.end()) return "";
  return Text("{} means {}.  ", TermText(*lone), NumStr(lone->coef) + LettersText(lone->letters));
}

// "1x = x" where the coefficient is 1, "0x = 0".
std::string OneText(const Term& total) {
  if (total.letters.empty() || std::abs(total.coef) > 1) return "";
  return NumStr(total.coef) + LettersText(total.letters) + " = " + TermText(total);
}

// Why a sum of two numbers has its sign; "" where nobody doubts it.
std::string SignSentence(const Sum& like) {
  if (AllNegative(like))
    return Text("{} are negative, so their sum is negative, too.",
                Words{like.size() == 2 ? "Both" : "All"});
  if (!HasBothSigns(like)) return "";
  if (like.size() > 2) return "We add from left to right.";
  const int a = like[0].coef;
  const int b = like[1].coef;
  if (a == -b) return Text("{} and {} are opposites.  The term vanishes.", a, b);
  const int farther = std::abs(a) > std::abs(b) ? a : b;
  return Text("The signs differ.  {} is farther from 0 than {}, so the sum is {}.", farther,
              farther == a ? b : a, Words{farther < 0 ? "negative" : "positive"});
}

void AddColumn(GatheringTable& table, int kind) {
  const Sum& like = table.Terms(kind);
  ClearBelow(table.RowBelow());
  table.AddUp(kind);
  if (like.size() == 1) {
    SayAt(table.RowBelow(), Text("{} has no like term.  It stays.", TermText(like[0])));
  } else {
    const std::string what = like[0].letters.empty() ? "the numbers" : "coefficients";
    SayAt(table.RowBelow(), LoneLetterSentence(like) + "We add " + what + ":");
    const std::string one = OneText(table.Total(kind));
    const bool besides = !one.empty() && like.size() == 2;  // a longer addition fills the line
    Show(AdditionText(like) + (besides ? ",   " + one : ""), kMathCol);
    if (!one.empty() && !besides) Show(one, kMathCol);
    if (const std::string why = SignSentence(like); !why.empty()) Say(why);
  }
  PageEnd();
}

std::string ResultSentence(const GatheringTable& table, KindNames names) {
  if (table.Kinds() == 1) return "The letters and exponents are kept:";
  if (names == KindNames::Letters) return "The sums are unlike terms.  They stay apart:";
  return "The sums are unlike terms.  They stay apart, in falling powers:";
}

// The letters of the first term that has some.
std::string LettersOf(const SumWithProducts& expression) {
  const Sum terms = MultipliedOut(expression);
  const auto found =
      std::ranges::find_if(terms, [](const Term& term) { return !term.letters.empty(); });
  if (found == terms.end()) platform::Stop("CheckInNumbers: no letter in " + SumText(expression));
  return found->letters;
}

bool FitsOnLine(const std::string& math, double col) {
  constexpr int kLastColumn = 40;
  return col + StackedTextWidth(math) - 1 <= kLastColumn;
}

// The result stands on a line of its own where one line does not hold both.
void ShowEquation(const std::string& left, const std::string& right) {
  const std::string line = left + " = " + right;
  if (FitsOnLine(line, kMathCol)) return Show(line, kMathCol);
  Show(left, kMathCol);
  Show("  = " + right, kMathCol);
}

// "32 - (-41) = " where the second of two numbers in parentheses is negative and taken away, else
// "".
std::string NegativeTakenAway(const SumWithProducts& numbers) {
  if (numbers.size() != 2 || numbers[0].factor != 1 || numbers[1].factor != -1) return "";
  const int second = ValueAt(numbers[1].inside, 0);
  if (second >= 0) return "";
  return NumStr(ValueAt(numbers[0].inside, 0)) + " - " + InParentheses(second) + " = ";
}

}  // namespace

void CombineAloud(const Sum& sum, double row, KindNames names) {
  GatheringTable table(sum, row, names);
  const bool oneKind = table.Kinds() == 1;
  std::string kinds = names == KindNames::Degrees ? "terms of " + table.Name(0) : table.Name(0);
  for (int kind = 1; kind < table.Kinds(); ++kind)
    kinds += (kind + 1 < table.Kinds() ? ", " : " and ") + table.Name(kind);
  SayAt(table.RowBelow(), oneKind ? Text("All of them are {}, so all are like.", kinds)
                                  : Text("There are {}.  Which belong together?", Words{kinds}));
  PageEnd();
  ClearBelow(table.RowBelow());
  table.GatherAll();
  SayAt(table.RowBelow(), "We gather like terms.  Each one takes its sign along.");
  PageEnd();
  for (int kind = 0; kind < table.Kinds(); ++kind) AddColumn(table, kind);
  table.MarkNone();
  ClearBelow(table.RowBelow());
  SayAt(table.RowBelow(), ResultSentence(table, names));
  ShowEquation(SumText(sum), SumText(Combined(sum)));
}

void CheckInNumbers(const SumWithProducts& expression) {
  constexpr int kTried = 2;
  constexpr double kEquationCol = 2;
  const auto inNumbers = [](Sum sum) {
    for (Term& term : sum) term = {ValueAt({term}, kTried), ""};
    return sum;
  };
  SumWithProducts tried = expression;
  Sum products;
  for (Part& part : tried) {
    part.inside = inNumbers(part.inside);
    products.push_back({part.factor * ValueAt(part.inside, kTried), ""});
  }
  const Sum result = Combined(MultipliedOut(expression));
  const std::string value = NumStr(ValueAt(products, 0));
  const bool hasProducts = std::ranges::any_of(tried, &Part::IsProduct);
  NewScreen();
  ProblemBanner();
  Locate(4.5, 1);
  const std::string equation = SumText(expression) + " = " + SumText(result);
  const bool resultInView = FitsOnLine(equation, kEquationCol);
  Show(resultInView ? equation : SumText(expression), kEquationCol);
  Say(Text(R"(\yCheck:\z  We put {} in place of {} in both expressions.)", kTried,
           LettersOf(expression).substr(0, 1)));
  if (hasProducts) {
    Show(SumText(tried), kMathCol);
    Show("  = " + NegativeTakenAway(tried) + SumText(products) + " = " + value, kMathCol);
  } else {
    ShowEquation(SumText(products), value);
  }
  PageEnd();
  Say(resultInView ? "Now the answer:" : Text("Now the answer, {}:", SumText(result)));
  ShowEquation(SumText(result.size() == 1 ? result : inNumbers(result)), value);
  Say("Both have the same value.");
  PageEnd();
}

}  // namespace course::polynomials
