// Words for an expression, such as "the quantity 3 less than A", and its symbols: both are read
// into one tree, and are equal when their values are, for any numbers in place of the letters.
#include <algorithm>
#include <array>
#include <cctype>
#include <sstream>
#include <string_view>

#include "lesson_check/exact/notation.h"
#include "lesson_check/exact/unreadable.h"
#include "lesson_check/judge.h"
#include "mathkit/tutor_codes.h"

namespace lesson_check {
namespace {

struct Tree {
  char operation = 0;   // one of kSigns; 0 for a letter or a number
  std::string operand;  // then
  std::vector<Tree> parts;
  bool turned = false;  // the words name the second part first
};

const std::string kSigns = "+-" + course::tutor::Dot + course::tutor::Divided;

// --- Words
// -----------------------------------------------------------------------------------------

// What stands between the two parts, or with "of" in front of them.
struct Wording {
  std::string_view head;    // behind "the"
  std::string_view middle;  // between the parts
  std::size_t sign;         // in kSigns
  bool turned = false;
};
constexpr Wording kWordings[] = {
    {"sum of", "and", 0},
    {"difference of", "and", 1},
    {"product of", "and", 2},
    {"quotient of", "and", 3},
    {"ratio of", "to", 3},
    {"quantity", "increased by", 0},
    {"quantity", "more than", 0},
    {"quantity", "plus", 0},
    {"quantity", "less than", 1, true},
    {"quantity", "subtracted from", 1, true},
    {"quantity", "decreased by", 1},
    {"quantity", "minus", 1},
    {"quantity", "multiplied by", 2},
    {"quantity", "times", 2},
    {"quantity", "divided by", 3},
};

class WordReader {
 public:
  explicit WordReader(const std::string& text) {
    std::istringstream stream(text);
    for (std::string word; stream >> word;) words_.push_back(word);
    if (!words_.empty() && words_[0] == "The") words_[0] = "the";
  }

  Tree Whole() {
    Tree tree = Part();
    if (at_ != words_.size()) Fail();
    return tree;
  }

 private:
  [[noreturn]] void Fail() const {
    std::string text;
    for (const std::string& word : words_) text += word + " ";
    throw Unreadable("\"" + text + "\" cannot be read from word " + std::to_string(at_ + 1));
  }

  // Goes behind the words when they stand here.
  bool Take(std::string_view wanted) {
    std::istringstream stream{std::string(wanted)};
    std::size_t at = at_;
    for (std::string word; stream >> word; ++at)
      if (at == words_.size() || words_[at] != word) return false;
    at_ = at;
    return true;
  }

  Tree Part() {
    if (!Take("the")) return Operand();
    const std::size_t start = at_;
    std::string_view head;
    for (const Wording& wording : kWordings)
      if (at_ == start && Take(wording.head)) head = wording.head;
    if (head.empty()) Fail();
    Tree first = Part();
    for (const Wording& wording : kWordings) {
      if (wording.head != head || !Take(wording.middle)) continue;
      Tree second = Part();
      if (wording.turned) std::swap(first, second);
      return {kSigns[wording.sign], "", {first, second}, wording.turned};
    }
    Fail();
  }

  Tree Operand() {
    if (at_ == words_.size()) Fail();
    const std::string& word = words_[at_];
    const bool isNumber = word.find_first_not_of("0123456789") == std::string::npos;
    const bool isLetter = word.size() == 1 && std::isupper(static_cast<unsigned char>(word[0]));
    if (!isNumber && !isLetter) Fail();
    ++at_;
    return {0, word, {}};
  }

  std::vector<std::string> words_;
  std::size_t at_ = 0;
};

// --- Symbols
// ---------------------------------------------------------------------------------------

constexpr std::string_view kOpen = "([{";
constexpr std::string_view kClose = ")]}";

// One operation in each pair of brackets; the innermost pair is round, the one around it square.
class SymbolReader {
 public:
  explicit SymbolReader(const std::string& text) : text_(WithoutBlanks(text)) {}

  Tree Whole() {
    Tree tree = Operation();
    if (at_ != text_.size()) Fail();
    return tree;
  }

 private:
  [[noreturn]] void Fail() const {
    throw Unreadable("\"" + text_ + "\" cannot be read from place " + std::to_string(at_ + 1));
  }
  char Here() const { return at_ < text_.size() ? text_[at_] : '\0'; }

  static std::size_t DepthOf(const Tree& tree) {
    std::size_t depth = 0;
    for (const Tree& part : tree.parts) depth = std::max(depth, DepthOf(part) + 1);
    return depth;
  }

  Tree Operation() {
    Tree first = Part();
    const char sign = Here();
    if (sign == '\0' || kSigns.find(sign) == std::string::npos) Fail();
    ++at_;
    return {sign, "", {first, Part()}};
  }

  Tree Part() {
    const std::size_t pair = Here() == '\0' ? std::string::npos : kOpen.find(Here());
    if (pair != std::string::npos) {
      ++at_;
      Tree inside = Operation();
      if (Here() != kClose[pair] || DepthOf(inside) != pair + 1) Fail();
      ++at_;
      return inside;
    }
    const std::size_t start = at_;
    while (std::isdigit(static_cast<unsigned char>(Here())) != 0) ++at_;
    if (at_ == start && std::isupper(static_cast<unsigned char>(Here())) != 0) ++at_;
    if (at_ == start) Fail();
    return {0, text_.substr(start, at_ - start), {}};
  }

  std::string text_;
  std::size_t at_ = 0;
};

Tree ReadEither(const std::string& text) {
  return Trimmed(text).starts_with("The ") ? WordReader(text).Whole() : SymbolReader(text).Whole();
}

// --- Values
// ----------------------------------------------------------------------------------------

// Letters as fractions that no sum of the small numbers in a problem meets, in two ways.
Rational ValueOf(const Tree& tree, long shift) {
  if (tree.operation == 0) {
    if (std::isdigit(static_cast<unsigned char>(tree.operand[0])) != 0)
      return Rational(tree.operand, 10);
    const long place = tree.operand[0] - 'A' + shift;
    constexpr long kPrime = 10007;
    return Rational(place * place + place + 41, kPrime);
  }
  const Rational first = ValueOf(tree.parts[0], shift);
  const Rational second = ValueOf(tree.parts[1], shift);
  switch (kSigns.find(tree.operation)) {
    case 0:
      return first + second;
    case 1:
      return first - second;
    case 2:
      return first * second;
    default:
      if (second == 0) throw Unreadable("a division by 0");
      return first / second;
  }
}

std::string ValueText(const Tree& tree) {
  return "at two places " + ValueOf(tree, 1).get_str() + " and " + ValueOf(tree, 12).get_str();
}

// --- Mistakes
// --------------------------------------------------------------------------------------

struct Slip {
  std::string name;
  Tree tree;
};

constexpr std::array<std::string_view, 4> kDoes = {"adds", "subtracts", "multiplies", "divides"};
constexpr std::array<std::string_view, 4> kDoing = {"adding", "subtracting", "multiplying",
                                                    "dividing"};

std::vector<Slip> OtherSigns(const Tree& tree) {
  std::vector<Slip> slips;
  const std::size_t meant = kSigns.find(tree.operation);
  for (std::size_t taken = 0; taken < kSigns.size(); ++taken) {
    if (taken == meant) continue;
    Tree slip = tree;
    slip.operation = kSigns[taken];
    slips.push_back(
        {std::string(kDoes.at(taken)) + " instead of " + std::string(kDoing.at(meant)), slip});
  }
  return slips;
}

std::vector<Slip> Exchanges(const Tree& tree) {
  if (tree.operation != '-' && tree.operation != course::tutor::Divided[0]) return {};
  Tree slip = tree;
  std::swap(slip.parts[0], slip.parts[1]);
  const bool isDifference = tree.operation == '-';
  std::vector<Slip> slips = {{isDifference ? "exchanges the parts of the difference"
                                           : "exchanges the parts of the quotient",
                              slip}};
  if (tree.turned) slips.push_back({"keeps the order of the words", slip});
  return slips;
}

// (a + b) - c and a + (b - c): the part in the middle changes its partner.
std::vector<Slip> MovedBrackets(const Tree& tree) {
  std::vector<Slip> slips;
  const auto add = [&](const Tree& slip) {
    slips.push_back({"puts the brackets in the wrong place", slip});
  };
  const Tree& first = tree.parts[0];
  const Tree& second = tree.parts[1];
  if (first.operation != 0)
    add({first.operation, "", {first.parts[0], {tree.operation, "", {first.parts[1], second}}}});
  if (second.operation != 0)
    add({second.operation, "", {{tree.operation, "", {first, second.parts[0]}}, second.parts[1]}});
  return slips;
}

// What a rule makes of the tree, at any of its operations.
std::vector<Slip> Anywhere(const Tree& tree, std::vector<Slip> (*rule)(const Tree&)) {
  if (tree.operation == 0) return {};
  std::vector<Slip> slips = rule(tree);
  for (std::size_t i = 0; i < tree.parts.size(); ++i) {
    for (const Slip& slip : Anywhere(tree.parts[i], rule)) {
      Tree whole = tree;
      whole.parts[i] = slip.tree;
      slips.push_back({slip.name, whole});
    }
  }
  return slips;
}

void AddMistakes(const Tree& tree, Reading& reading) {
  const auto add = [&](const std::string& name, const Tree& slip) {
    reading.mistakes[name].push_back(ValueText(slip));
  };
  constexpr std::array kOrders = {Exchanges, MovedBrackets};
  for (const auto rule : kOrders)
    for (const Slip& slip : Anywhere(tree, rule)) add(slip.name, slip.tree);
  for (const Slip& sign : Anywhere(tree, OtherSigns)) {
    add(sign.name, sign.tree);
    for (const auto rule : kOrders)
      for (const Slip& slip : Anywhere(sign.tree, rule))
        if (slip.name != "keeps the order of the words")
          add(sign.name + " and " + slip.name, slip.tree);
  }
}

std::size_t OperationsIn(const Tree& tree) {
  std::size_t count = tree.operation == 0 ? 0 : 1;
  for (const Tree& part : tree.parts) count += OperationsIn(part);
  return count;
}

bool HasOperand(const Tree& tree, std::string_view operand) {
  return tree.operand == operand || std::ranges::any_of(tree.parts, [&](const Tree& part) {
           return HasOperand(part, operand);
         });
}

Reading ReadWords(const course::Problem& problem) {
  const std::string& asked = problem.question.front();
  const bool toAlgebra =
      asked.starts_with("What algebraic expression is equivalent to the English");
  if (!toAlgebra && !asked.starts_with("What English expression is equivalent to the algebraic"))
    throw Unreadable("\"" + asked + "\" asks for neither language");
  const std::string& given = problem.question.at(1);
  const Tree tree = toAlgebra ? WordReader(given).Whole() : SymbolReader(given).Whole();
  Reading reading;
  reading.answer = ValueText(tree);
  reading.value = [toAlgebra](const std::string& choice) {
    if (Trimmed(choice).starts_with("The ") == toAlgebra)
      throw Unreadable("\"" + choice + "\" is in the wrong language");
    return ValueText(ReadEither(choice));
  };
  reading.kind =
      std::to_string(OperationsIn(tree)) + " operations " + (toAlgebra ? "in words" : "in symbols");
  if (HasOperand(tree, "O")) reading.faults.emplace_back("O is read as zero");
  if (HasOperand(tree, "I")) reading.faults.emplace_back("I is read as one");
  AddMistakes(tree, reading);
  return reading;
}

const JudgeRegistration kRegistration(ReadWords, {"Translating Words Into Expressions"});

}  // namespace
}  // namespace lesson_check
