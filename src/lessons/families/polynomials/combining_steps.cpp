#include "lessons/families/polynomials/combining_steps.h"

#include <algorithm>
#include <cstdlib>

#include "engine/page.h"
#include "lessons/families/polynomials/gathering_table.h"
#include "lessons/page/boxes.h"
#include "lessons/page/say.h"
#include "lessons/page/show.h"
#include "mathkit/expressions.h"
#include "mathkit/tutor_codes.h"

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

// "1x = x" where the coefficient is 1.
std::string OneText(const Term& total) {
  if (total.letters.empty() || std::abs(total.coef) != 1) return "";
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

}  // namespace

void CombineAloud(const Sum& sum, double row) {
  GatheringTable table(sum, row);
  const bool oneKind = table.Kinds() == 1;
  std::string kinds = table.Name(0);
  for (int kind = 1; kind < table.Kinds(); ++kind) kinds += " and " + table.Name(kind);
  SayAt(table.RowBelow(), oneKind ? Text("All of them are {}, so all are like.", kinds)
                                  : Text("There are {}.  Which belong together?", Words{kinds}));
  PageEnd();
  ClearBelow(table.RowBelow());
  table.GatherAll();
  SayAt(table.RowBelow(), "We gather like terms.  Each one takes its sign along.");
  PageEnd();
  for (int kind = 0; kind < table.Kinds(); ++kind) AddColumn(table, kind);
  ClearBelow(table.RowBelow());
  SayAt(table.RowBelow(), oneKind ? "The letters and exponents are kept:"
                                  : "The sums are unlike terms.  They stay apart:");
  Show(SumText(sum) + " = " + SumText(Combined(sum)), kMathCol);
}

}  // namespace course::polynomials
