#include "lessons/families/stories/nest_steps.h"

#include <array>
#include <string>
#include <string_view>
#include <utility>

#include "engine/page.h"
#include "lessons/page/boxes.h"
#include "lessons/page/page_lines.h"
#include "lessons/page/say.h"
#include "lessons/page/show.h"
#include "mathkit/tutor_codes.h"

namespace course::stories {
namespace {

using namespace page;

constexpr double kQuestionRow = 4;
constexpr double kWorkRow = 8.5;
constexpr double kWorkRows = 4;
constexpr double kBoxRow = 13.5;

class NestSteps {
 public:
  explicit NestSteps(const Nest& nest) : nest_(nest) {}

  void ExplainWords();
  void ExplainSymbols();

 private:
  void ShowWork(const std::string& text) const;
  void ExplainLevelOfWords(std::size_t level);
  void ExplainLevelOfSymbols(std::size_t level);
  void CheckWithNumbers();

  const Nest& nest_;
};

// In the place of what stood there before.
void NestSteps::ShowWork(const std::string& text) const {
  ClearRows(kWorkRow, kWorkRows);
  SayAt(kWorkRow, text, {.col = 2});
}

std::string InYellow(const std::string& text) {
  return R"(\y)" + text + R"(\z)";
}

// A capital behind the colour code that a text may begin with.
std::string WithCapital(const std::string& text) {
  constexpr std::string_view kCode = R"(\y)";
  if (!text.starts_with(kCode)) return Capitalized(text);
  return std::string(kCode) + Capitalized(text.substr(kCode.size()));
}

constexpr std::array<std::string_view, kOperations> kNames = {"addition", "subtraction",
                                                              "multiplication", "division"};
std::string NameOf(Operation operation) {
  return std::string(kNames.at(static_cast<std::size_t>(operation) - 1));
}

std::string BracketsAround(std::size_t level) {
  return level == 0 ? "parentheses" : "brackets";
}

// First and second operand of a level, as symbols.
std::pair<std::string, std::string> OperandsOf(const Nest& nest, std::size_t level) {
  const Nest::Level& at = nest.levels[level];
  std::pair<std::string, std::string> operands = {nest.InsideOf(level), at.operand};
  if (!at.insideFirst) std::swap(operands.first, operands.second);
  return operands;
}

void NestSteps::ExplainWords() {
  SayAt(kQuestionRow, Capitalized(nest_.Words()));
  PageEnd();
  SayAt(kQuestionRow, WithCapital(nest_.WordsAround(1, InYellow(nest_.Words(1)))));
  WhiteBox({.row = kBoxRow, .rows = 7});
  if (nest_.levels.size() > 1)
    SayInBox("We look for the innermost part.  It has no other part in it.");
  SayInBox("Which words tell the operation?");
  PageEnd();
  for (std::size_t level = 0; level < nest_.levels.size(); ++level) ExplainLevelOfWords(level);
  CheckWithNumbers();
}

void NestSteps::ExplainLevelOfWords(std::size_t level) {
  const Phrase& phrase = nest_.levels[level].phrase;
  const auto [first, second] = OperandsOf(nest_, level);
  SayInBoxAnew(Text("~{}~ means {}.", Words{phrase.KeyWords()}, Words{NameOf(phrase.operation)}));
  if (phrase.TurnsOrder())
    SayInBox(Text("Watch out:  {} is taken away.  So {} comes first.", second, first));
  else if (OrderMatters(phrase.operation))
    SayInBox(Text("{} comes first in the words, and it stays first.", first));
  if (level + 1 == nest_.levels.size()) {
    ShowWork(InYellow(nest_.Symbols()));
    return PageEnd();
  }
  SayInBox("We put it in " + BracketsAround(level) + ".");
  PageEnd();
  const auto [outer, last] = OperandsOf(nest_, level + 1);
  ShowWork(
      nest_.WordsAround(level + 2, InYellow(nest_.levels[level + 1].phrase.Text(outer, last))));
  SayInBoxAnew(
      Text("Now {} counts as one number.  What is done with it?", nest_.InsideOf(level + 1)));
  PageEnd();
}

void NestSteps::ExplainSymbols() {
  ShowAt(kQuestionRow, nest_.Symbols(), kMathCol);
  PageEnd();
  std::string highlighted = nest_.Symbols();
  const std::string innermost = nest_.InsideOf(1);
  if (nest_.levels.size() > 1)
    highlighted.replace(highlighted.find(innermost), innermost.size(), InYellow(innermost));
  ShowAt(kQuestionRow, highlighted, kMathCol);
  WhiteBox({.row = kBoxRow, .rows = 7});
  SayInBox(nest_.levels.size() > 1 ? "We begin inside the parentheses.  Which operation is it?"
                                   : "Which operation is it?");
  PageEnd();
  for (std::size_t level = 0; level < nest_.levels.size(); ++level) ExplainLevelOfSymbols(level);
  CheckWithNumbers();
}

void NestSteps::ExplainLevelOfSymbols(std::size_t level) {
  const Phrase& phrase = nest_.levels[level].phrase;
  const auto [first, second] = OperandsOf(nest_, level);
  SayInBoxAnew(
      Text("It is {}.  We say ~{}~.", Words{NameOf(phrase.operation)}, Words{phrase.KeyWords()}));
  if (phrase.TurnsOrder())
    SayInBox(Text("Watch out:  they name {} first.", second));
  else if (OrderMatters(phrase.operation))
    SayInBox(Text("{} comes first, so it is named first.", first));
  PageEnd();
  // The new words in yellow, around those that stood there.
  const Nest::Level& at = nest_.levels[level];
  const std::string inside = R"(\z)" + nest_.Words(level) + R"(\y)";
  ShowWork(level == 0 ? InYellow(nest_.Words(1))
                      : InYellow(at.insideFirst ? phrase.Text(inside, at.operand)
                                                : phrase.Text(at.operand, inside)));
  if (level + 1 < nest_.levels.size())
    SayInBoxAnew(
        Text("What is done with {} in {}?", nest_.InsideOf(level + 1), nest_.Symbols(level + 2)));
  PageEnd();
}

// Numbers for both operands of the last operation; one that is a number stays.
void NestSteps::CheckWithNumbers() {
  const std::size_t level = nest_.levels.size() - 1;
  const Phrase& phrase = nest_.levels[level].phrase;
  const auto [first, second] = OperandsOf(nest_, level);
  const auto isNumber = [](const std::string& text) {
    return text.find_first_not_of("0123456789") == std::string::npos;
  };
  int a = 12;
  int b = 4;
  std::string say = Text("{} is 12 and {} is 4", first, second);
  if (isNumber(first)) {
    a = std::stoi(first);
    b = 1;
    say = Text("{} is 1", second);
  } else if (isNumber(second)) {
    b = std::stoi(second);
    a = 3 * b;
    say = Text("{} is {}", first, a);
  }
  constexpr auto kValue = [](Operation operation, int x, int y) {
    if (operation == Operation::Add) return x + y;
    if (operation == Operation::Subtract) return x - y;
    return operation == Operation::Multiply ? x * y : x / y;
  };
  const std::string sign =
      phrase.operation == Operation::Multiply ? tutor::Times : SignOf(phrase.operation);
  SayInBoxAnew(Text("Check:  Let us say that {}.", Words{say}));
  SayInBox(Text("{} is {},  and {} = {}.", Words{Capitalized(phrase.Text(NumStr(a), NumStr(b)))},
                kValue(phrase.operation, a, b), NumStr(a) + " " + sign + " " + NumStr(b),
                kValue(phrase.operation, a, b)));
  PageEnd();
}

}  // namespace

void ExplainWords(const Nest& nest) {
  NestSteps(nest).ExplainWords();
}

void ExplainSymbols(const Nest& nest) {
  NestSteps(nest).ExplainSymbols();
}

}  // namespace course::stories
