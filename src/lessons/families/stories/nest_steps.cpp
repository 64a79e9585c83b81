#include "lessons/families/stories/nest_steps.h"

#include <algorithm>
#include <array>
#include <string>
#include <string_view>
#include <utility>

#include "engine/page.h"
#include "lessons/families/stories/story_words.h"
#include "lessons/families/stories/valued_nest.h"
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
constexpr double kBoxRow = 12.5;
constexpr double kBoxRows = 9;

class NestSteps {
 public:
  NestSteps(const Nest& nest, const std::vector<Nest>& wrong) : nest_(nest), wrong_(wrong) {}

  void ExplainWords();
  void ExplainSymbols();

 private:
  void ShowWork(const std::string& text) const;
  void ShowSymbols(const std::string& part) const;
  void ExplainLevelOfWords(std::size_t level);
  void ExplainLevelOfSymbols(std::size_t level);
  void CheckWithNumbers();

  const Nest& nest_;
  const std::vector<Nest>& wrong_;  // the check shows that they are other numbers
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
  if (!text.starts_with(kCode)) return AtStart(text);
  return std::string(kCode) + AtStart(text.substr(kCode.size()));
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
  SayAt(kQuestionRow, AtStart(nest_.Words()));
  PageEnd();
  SayAt(kQuestionRow, WithCapital(nest_.WordsAround(1, InYellow(nest_.Words(1)))));
  WhiteBox({.row = kBoxRow, .rows = kBoxRows});
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
  const std::string around =
      nest_.levels[level + 1].phrase.Text(WithoutBreaks(outer), WithoutBreaks(last));
  ShowWork(nest_.WordsAround(level + 2, InYellow(around)));
  SayInBoxAnew(
      Text("Now {} counts as one number.  What is done with it?", nest_.InsideOf(level + 1)));
  PageEnd();
}

// With a part in yellow, as its words are.
void NestSteps::ShowSymbols(const std::string& part) const {
  std::string symbols = nest_.Symbols();
  symbols.replace(symbols.find(part), part.size(), InYellow(part));
  ShowAt(kQuestionRow, symbols, kMathCol);
}

void NestSteps::ExplainSymbols() {
  ShowAt(kQuestionRow, nest_.Symbols(), kMathCol);
  PageEnd();
  ShowSymbols(nest_.levels.size() > 1 ? nest_.InsideOf(1) : nest_.Symbols());
  WhiteBox({.row = kBoxRow, .rows = kBoxRows});
  SayInBox(nest_.levels.size() > 1 ? "We begin inside the parentheses.  Which operation is it?"
                                   : "Which operation is it?");
  PageEnd();
  for (std::size_t level = 0; level < nest_.levels.size(); ++level) ExplainLevelOfSymbols(level);
  CheckWithNumbers();
}

void NestSteps::ExplainLevelOfSymbols(std::size_t level) {
  const Phrase& phrase = nest_.levels[level].phrase;
  const auto [first, second] = OperandsOf(nest_, level);
  if (level > 1) {
    ShowSymbols(nest_.InsideOf(level));
    ShowWork(InYellow(nest_.Words(level)));
  }
  SayInBoxAnew(
      Text("It is {}.  We say ~{}~.", Words{NameOf(phrase.operation)}, Words{phrase.KeyWords()}));
  if (phrase.TurnsOrder())
    SayInBox(Text("Watch out:  {} is taken away.  So it is named first.", second));
  else if (OrderMatters(phrase.operation))
    SayInBox(Text("{} comes first, so it is named first.", first));
  PageEnd();
  // The part that is yellow in the symbols, with the new words around it.
  const Nest::Level& at = nest_.levels[level];
  const std::string inside = InYellow(nest_.Words(level));
  if (level == 0)
    ShowWork(InYellow(nest_.Words(1)));
  else
    ShowWork(at.insideFirst ? phrase.Text(inside, at.operand) : phrase.Text(at.operand, inside));
  if (level + 1 < nest_.levels.size())
    SayInBoxAnew(
        Text("What is done with {} in {}?", nest_.InsideOf(level + 1), nest_.Symbols(level + 2)));
  PageEnd();
}

// "The sum of 2 and 3 is 5.  The quantity 5 times 4 is 20."
std::string WordsWorkedOut(const ValuedNest& valued) {
  std::string text;
  for (std::size_t level = 0; level < valued.values.size(); ++level)
    text += (level > 0 ? "  " : "") + AtStart(valued.From(level).Words(1)) + " is" + tutor::Gap +
            ValueText(valued.values[level]) + ".";
  return text;
}

// "(2 + 3) x 4 = 5 x 4 = 20", with multiplication signs between numbers.
std::string SymbolsWorkedOut(const ValuedNest& valued) {
  std::string text;
  for (std::size_t level = 0; level < valued.values.size(); ++level)
    text += WithoutBreaks(valued.From(level).Symbols()) + " = ";
  text += ValueText(valued.values.back());
  std::ranges::replace(text, tutor::Dot[0], tutor::Times[0]);
  return text;
}

// "but 2 / 6 is not 3" of 6 / 2: the order matters, or else the operation does.
std::string OtherWorkedOut(const ValuedNest& valued) {
  Nest other = valued.nest;
  Nest::Level& level = other.levels[0];
  if (OrderMatters(level.phrase.operation))
    level.insideFirst = !level.insideFirst;
  else
    level.phrase.operation =
        level.phrase.operation == Operation::Add ? Operation::Multiply : Operation::Add;
  std::string text =
      WithoutBreaks(other.Symbols()) + " is not" + tutor::Gap + ValueText(valued.values[0]);
  std::ranges::replace(text, tutor::Dot[0], tutor::Times[0]);
  return "but " + text;
}

// Numbers in place of the letters: the words and the symbols must give the same value.
void NestSteps::CheckWithNumbers() {
  const ValuedNest valued = WithNumbers(nest_, wrong_);
  SayInBoxAnew("Check:  Let us say that " + valued.LettersText() + ".");
  if (nest_.levels.size() == 1) {
    const std::string value = ValueText(valued.values[0]);
    SayInBox(Text("{} is {}.  And {}, {}.", Words{AtStart(valued.nest.Words())}, value,
                  SymbolsWorkedOut(valued), Words{OtherWorkedOut(valued)}));
    return PageEnd();
  }
  SayInBox("What do the words give?  And what do the symbols give?");
  PageEnd();
  SayInBoxAnew("In words:  " + WordsWorkedOut(valued));
  PageEnd();
  SayInBox("In symbols:  " + SymbolsWorkedOut(valued) + ".");
  PageEnd();
}

}  // namespace

void ExplainWords(const Nest& nest, const std::vector<Nest>& wrong) {
  NestSteps(nest, wrong).ExplainWords();
}

void ExplainSymbols(const Nest& nest, const std::vector<Nest>& wrong) {
  NestSteps(nest, wrong).ExplainSymbols();
}

}  // namespace course::stories
