#include "lessons/families/stories/worded_nest.h"

#include <array>
#include <cctype>
#include <cmath>
#include <string_view>
#include <utility>

#include "lessons/families/stories/word_table.h"
#include "mathkit/tutor_codes.h"

namespace course::stories {
namespace {

// Marks for the operands in the table.
constexpr std::string_view kFirst = "\xBF";
constexpr std::string_view kSecond = "#";

// A group for each operation: how its symbols stand, how many phrases it has, then these.
constexpr std::string_view kPhrases[] = {
    "\xBF + #",
    "4",
    "the quantity \xBF increased by #",
    "the sum of \xBF and #",
    "the quantity \xBF more than #",
    "the quantity \xBF plus #",
    "\xBF - #",
    "5",
    "the difference of \xBF and #",
    "the quantity # less than \xBF",
    "the quantity \xBF decreased by #",
    "the quantity \xBF minus #",
    "the quantity # subtracted from \xBF",
    "\xBF \xF8 #",
    "3",
    "the quantity \xBF multiplied by #",
    "the quantity \xBF times #",
    "the product of \xBF and #",
    "\xBF \x86 #",
    "3",
    "the quantity \xBF divided by #",
    "the quotient of \xBF and #",
    "the ratio of \xBF to #",
};
constexpr std::array kGroupStarts = {1, 7, 14, 19};  // the entry of each operation's symbols

WordTable GroupOf(Operation operation) {
  WordTable table(kPhrases);
  table.GoTo(kGroupStarts.at(static_cast<std::size_t>(operation) - 1));
  return table;
}

std::string PatternOf(const Phrase& phrase) {
  WordTable table = GroupOf(phrase.operation);
  table.Next();  // the symbols
  table.Next();  // the count
  for (int i = 1; i < phrase.number; ++i) table.Next();
  return table.Next();
}

// The marks of a pattern are found before anything is put in, so that no operand is read as one.
std::string PutIn(const std::string& pattern, const std::string& first, const std::string& second) {
  std::string text;
  for (const char c : pattern) {
    if (c == kFirst.front())
      text += first;
    else if (c == kSecond.front())
      text += second;
    else
      text += c;
  }
  return text;
}

std::string SymbolsOf(Operation operation, const std::string& first, const std::string& second) {
  return PutIn(GroupOf(operation).Next(), first, second);
}

// The third pair is for a nest deeper than any that is drawn.
constexpr std::array<std::pair<std::string_view, std::string_view>, 3> kBrackets = {
    {{"(", ")"}, {"[", "]"}, {"{", "}"}}};
std::string Bracketed(const std::string& text, std::size_t depth) {
  const auto& [open, close] = kBrackets.at((depth - 1) % kBrackets.size());
  return std::string(open) + text + std::string(close);
}

double ValueOf(Operation operation, double first, double second) {
  switch (operation) {
    case Operation::Add:
      return first + second;
    case Operation::Subtract:
      return first - second;
    case Operation::Multiply:
      return first * second;
    case Operation::Divide:
      return first / second;
  }
  return 0;
}

// A letter stands for a number without a pattern; two expressions that agree at both are equal.
double ValueOf(const std::string& operand, double root) {
  const char c = operand.front();
  return std::isdigit(static_cast<unsigned char>(c)) != 0 ? std::stod(operand)
                                                          : std::sqrt(root + (c - 'A'));
}
double ValueOf(const Nest& nest, double root) {
  double value = ValueOf(nest.start, root);
  for (const Nest::Level& level : nest.levels) {
    const double operand = ValueOf(level.operand, root);
    value = level.insideFirst ? ValueOf(level.phrase.operation, value, operand)
                              : ValueOf(level.phrase.operation, operand, value);
  }
  return value;
}

// --- Slips
// -----------------------------------------------------------------------------------------

constexpr std::array<std::string_view, kOperations> kDoes = {"adds", "subtracts", "multiplies",
                                                             "divides"};
constexpr std::array<std::string_view, kOperations> kDoing = {"adding", "subtracting",
                                                              "multiplying", "dividing"};

std::string NameOfOtherOperation(Operation taken, Operation meant) {
  return std::string(kDoes.at(static_cast<std::size_t>(taken) - 1)) + " instead of " +
         std::string(kDoing.at(static_cast<std::size_t>(meant) - 1));
}

// (A + B) times C becomes A + (B times C): the operand in the middle goes over to the other
// operation.  False where the outcome would have brackets on both sides.
bool MoveBrackets(Nest& nest, std::size_t inner) {
  Nest::Level& in = nest.levels[inner];
  Nest::Level& out = nest.levels[inner + 1];
  if (in.insideFirst != out.insideFirst) {
    // The middle is what is inside of both.
    std::swap(in, out);
    return true;
  }
  if (inner > 0) return false;
  std::swap(nest.start, in.operand);
  std::swap(in, out);
  out.insideFirst = !out.insideFirst;
  return true;
}

}  // namespace

std::string SignOf(Operation operation) {
  return SymbolsOf(operation, "", "").substr(1, 1);
}

bool OrderMatters(Operation operation) {
  return operation == Operation::Subtract || operation == Operation::Divide;
}

Phrase Phrase::Draw(Operation operation, RandomStream& random) {
  WordTable table = GroupOf(operation);
  table.Next();
  return {operation, random.Index(static_cast<int>(table.NextNumber()))};
}

std::string Phrase::Text(const std::string& first, const std::string& second) const {
  return PutIn(PatternOf(*this), first, second);
}

bool Phrase::TurnsOrder() const {
  const std::string pattern = PatternOf(*this);
  return pattern.find(kSecond) < pattern.find(kFirst);
}

std::string Phrase::KeyWords() const {
  const std::string pattern = PatternOf(*this);
  constexpr std::string_view kQuantity = "the quantity ";
  constexpr std::string_view kThe = "the ";
  if (!pattern.starts_with(kQuantity)) {
    return pattern.substr(kThe.size(), pattern.find(' ', kThe.size()) - kThe.size());
  }
  const std::size_t start = kQuantity.size() + 2;  // behind a mark and a blank
  return pattern.substr(start, pattern.size() - start - 2);
}

std::string Nest::InsideOf(std::size_t level) const {
  return level == 0 ? start : Bracketed(Symbols(level), level);
}

std::string Nest::Symbols(std::size_t depth) const {
  if (depth == 0) return start;
  const Level& level = levels[depth - 1];
  const std::string inside = InsideOf(depth - 1);
  return level.insideFirst ? SymbolsOf(level.phrase.operation, inside, level.operand)
                           : SymbolsOf(level.phrase.operation, level.operand, inside);
}

std::string Nest::WordsAround(std::size_t level, const std::string& inside) const {
  std::string text = inside;
  for (std::size_t i = level; i < levels.size(); ++i)
    text = levels[i].insideFirst ? levels[i].phrase.Text(text, levels[i].operand)
                                 : levels[i].phrase.Text(levels[i].operand, text);
  return text;
}

std::string Nest::Words(std::size_t depth) const {
  Nest part = *this;
  part.levels.resize(depth);
  return part.WordsAround(0, start);
}

bool Nest::SameValue(const Nest& other) const {
  for (const double root : {2.3, 7.9}) {
    const double a = ValueOf(*this, root);
    const double b = ValueOf(other, root);
    if (std::abs(a - b) > 1e-9 * (std::abs(a) + std::abs(b))) return false;
  }
  return true;
}

bool Nest::BeginsTwice() const {
  return UpperCase(Words()).starts_with("THE QUANTITY THE QUANTITY");
}

std::vector<NestSlip> OtherOperations(const Nest& nest, RandomStream& random) {
  std::vector<NestSlip> slips;
  for (std::size_t i = 0; i < nest.levels.size(); ++i) {
    const Operation meant = nest.levels[i].phrase.operation;
    for (int number = 1; number <= kOperations; ++number) {
      const auto taken = static_cast<Operation>(number);
      if (taken == meant) continue;
      Nest slip = nest;
      slip.levels[i].phrase = Phrase::Draw(taken, random);
      slips.push_back({NameOfOtherOperation(taken, meant), slip});
    }
  }
  return slips;
}

std::vector<NestSlip> OtherOrders(const Nest& nest) {
  std::vector<NestSlip> slips;
  for (std::size_t i = 0; i < nest.levels.size(); ++i) {
    const Operation operation = nest.levels[i].phrase.operation;
    if (!OrderMatters(operation)) continue;
    Nest slip = nest;
    slip.levels[i].insideFirst = !slip.levels[i].insideFirst;
    slips.push_back({operation == Operation::Subtract ? "exchanges the parts of the difference"
                                                      : "exchanges the parts of the quotient",
                     slip, nest.levels[i].phrase.TurnsOrder()});
  }
  for (std::size_t i = 0; i + 1 < nest.levels.size(); ++i) {
    Nest slip = nest;
    if (MoveBrackets(slip, i)) slips.push_back({"puts the brackets in the wrong place", slip});
  }
  return slips;
}

}  // namespace course::stories
