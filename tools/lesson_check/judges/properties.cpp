// Which properties of addition or of multiplication an equation shows: the fewest by which one side
// can be rewritten as the other, found by trying; none when the equation is false.
#include <algorithm>
#include <bit>
#include <set>
#include <string_view>

#include "lesson_check/exact/notation.h"
#include "lesson_check/exact/unreadable.h"
#include "lesson_check/judge.h"
#include "mathkit/tutor_codes.h"

namespace lesson_check {
namespace {

const char kTimes = course::tutor::Times[0];
const char kDivided = course::tutor::Divided[0];

enum Law { Commutative = 1, Associative = 2, Identity = 4, Inverse = 8, Zero = 16 };
constexpr int kAllLaws = 31;
constexpr int kFalse = 0;
constexpr std::pair<Law, std::string_view> kLaws[] = {{Commutative, "commutative"},
                                                      {Associative, "associative"},
                                                      {Identity, "identity"},
                                                      {Inverse, "inverse"},
                                                      {Zero, "property of zero"}};

// --- Sides as trees ------------------------------------------------------------------------------

// A number, or an operation between two sides; written with all parentheses, as "((3+5)+2)".
// Fractions and negative numbers are single numbers.
struct Tree {
  char operation = 0;
  Rational number;
  std::vector<Tree> parts;

  std::string Text() const {
    if (operation == 0) return number.get_str();
    return "(" + parts[0].Text() + operation + parts[1].Text() + ")";
  }
  Rational Value() const {
    if (operation == 0) return number;
    const Rational left = parts[0].Value();
    const Rational right = parts[1].Value();
    if (operation == '+') return left + right;
    if (operation == '-') return left - right;
    if (operation == kTimes) return left * right;
    if (right == 0) throw Unreadable("the equation divides by 0");
    return left / right;
  }
};

Tree Number(const Rational& number) {
  return {0, number, {}};
}
Tree Joined(char operation, const Tree& left, const Tree& right) {
  return {operation, 0, {left, right}};
}

class SideReader {
 public:
  explicit SideReader(const std::string& text) : line_(WithoutBlanks(text)) {}

  // Operations of one rank alone, from the left.
  Tree Whole() {
    Tree tree = Run();
    if (at_ != line_.size()) throw Unreadable("\"" + line_ + "\" is not read to its end");
    return tree;
  }

 private:
  bool Has(char c) const { return at_ < line_.size() && line_[at_] == c; }

  Tree Run() {
    Tree left = Operand();
    while (at_ < line_.size() && !Has(')')) {
      const char operation = line_[at_++];
      if (std::string_view("+-").find(operation) == std::string_view::npos && operation != kTimes &&
          operation != kDivided)
        throw Unreadable("\"" + line_ + "\" has an unknown sign");
      if (left.operation != 0 && !bracketed_ && IsProduct(left.operation) != IsProduct(operation))
        throw Unreadable("\"" + line_ + "\" mixes ranks without parentheses");
      const Tree right = Operand();
      left = Joined(operation, left, right);
      bracketed_ = false;
    }
    return left;
  }
  static bool IsProduct(char operation) { return operation == kTimes || operation == kDivided; }

  Tree Operand() {
    if (Has('(')) {
      ++at_;
      Tree inside = Run();
      if (!Has(')')) throw Unreadable("\"" + line_ + "\" has an open parenthesis");
      ++at_;
      bracketed_ = true;
      return inside;
    }
    const int sign = Has('-') ? -1 : 1;
    if (sign < 0) ++at_;
    Rational number = Digits();
    if (Has('/')) {
      ++at_;
      number /= Digits();
    }
    bracketed_ = false;
    return Number(sign * number);
  }
  Rational Digits() {
    const std::size_t end = std::min(line_.find_first_not_of("0123456789", at_), line_.size());
    if (end == at_) throw Unreadable("\"" + line_ + "\" lacks a number");
    const Rational number(line_.substr(at_, end - at_), 10);
    at_ = end;
    return number;
  }

  std::string line_;
  std::size_t at_ = 0;
  bool bracketed_ = false;  // the operand before stands in parentheses
};

// --- Rewriting -----------------------------------------------------------------------------------

// What one use of one law makes of the tree's top.  Identity, inverse and zero only shorten; since
// both sides are rewritten until they meet, that is enough.
std::vector<Tree> RewrittenAtTop(const Tree& tree, int laws) {
  std::vector<Tree> results;
  const char op = tree.operation;
  if (op != '+' && op != kTimes) return results;  // differences and quotients have no such laws
  const Tree& left = tree.parts[0];
  const Tree& right = tree.parts[1];
  const Rational neutral = op == '+' ? 0 : 1;
  const auto is = [](const Tree& part, const Rational& number) {
    return part.operation == 0 && part.number == number;
  };
  if ((laws & Commutative) != 0) results.push_back(Joined(op, right, left));
  if ((laws & Associative) != 0 && left.operation == op)
    results.push_back(Joined(op, left.parts[0], Joined(op, left.parts[1], right)));
  if ((laws & Associative) != 0 && right.operation == op)
    results.push_back(Joined(op, Joined(op, left, right.parts[0]), right.parts[1]));
  if ((laws & Identity) != 0 && is(right, neutral)) results.push_back(left);
  if ((laws & Identity) != 0 && is(left, neutral)) results.push_back(right);
  const bool numbers = left.operation == 0 && right.operation == 0;
  if ((laws & Inverse) != 0 && numbers && !is(left, neutral) && tree.Value() == neutral)
    results.push_back(Number(neutral));
  if ((laws & Zero) != 0 && op == kTimes && (is(left, 0) || is(right, 0)))
    results.push_back(Number(0));
  return results;
}

std::vector<Tree> Rewritten(const Tree& tree, int laws) {
  if (tree.operation == 0) return {};
  std::vector<Tree> results = RewrittenAtTop(tree, laws);
  for (std::size_t i = 0; i < 2; ++i)
    for (const Tree& part : Rewritten(tree.parts[i], laws)) {
      results.push_back(tree);
      results.back().parts[i] = part;
    }
  return results;
}

std::set<std::string> AllForms(const Tree& tree, int laws) {
  std::set<std::string> seen = {tree.Text()};
  std::vector<Tree> open = {tree};
  while (!open.empty()) {
    const Tree next = open.back();
    open.pop_back();
    for (const Tree& form : Rewritten(next, laws))
      if (seen.insert(form.Text()).second) open.push_back(form);
  }
  return seen;
}

bool Meet(const Tree& left, const Tree& right, int laws) {
  const std::set<std::string> forms = AllForms(left, laws);
  return std::ranges::any_of(AllForms(right, laws),
                             [&](const std::string& form) { return forms.contains(form); });
}

// Fewer laws never reach more forms, so that the sets are tried from the smallest on.  Unreadable
// when no laws lead from side to side, or two smallest sets do.
int FewestLaws(const Tree& left, const Tree& right) {
  for (int count = 1; count <= std::popcount(static_cast<unsigned>(kAllLaws)); ++count) {
    int found = 0;
    for (int laws = 1; laws <= kAllLaws; ++laws) {
      if (std::popcount(static_cast<unsigned>(laws)) != count || !Meet(left, right, laws)) continue;
      if (found != 0) throw Unreadable("the equation can be read as two sets of properties");
      found = laws;
    }
    if (found != 0) return found;
  }
  throw Unreadable("no properties lead from side to side");
}

// --- False equations -----------------------------------------------------------------------------

Tree WithSums(Tree tree) {
  if (tree.operation == '-') tree.operation = '+';
  if (tree.operation == kDivided) tree.operation = kTimes;
  for (Tree& part : tree.parts) part = WithSums(part);
  return tree;
}

int NumberCount(const Tree& tree) {
  return tree.operation == 0 ? 1 : NumberCount(tree.parts[0]) + NumberCount(tree.parts[1]);
}

bool Holds(const Tree& tree, const Rational& number) {
  if (tree.operation == 0) return tree.number == number;
  return Holds(tree.parts[0], number) || Holds(tree.parts[1], number);
}

// What a false equation makes a student think of, who does not work out the sides.
int SeemingLaws(const Tree& left, const Tree& right) {
  const Tree sums[] = {WithSums(left), WithSums(right)};
  const Tree& longer = NumberCount(left) > NumberCount(right) ? left : right;
  if (sums[0].Text() != left.Text() || sums[1].Text() != right.Text())
    return FewestLaws(sums[0], sums[1]);
  if (NumberCount(longer) == 3) return Inverse | Identity;
  if (longer.operation == kTimes && Holds(longer, 0)) return Zero;
  return Holds(longer, longer.operation == '+' ? 0 : 1) ? Identity : Inverse;
}

std::string MistakeAtFalseEquation(int seeming, bool undoes, bool isProduct) {
  if (undoes && seeming == Associative)
    return isProduct ? "moves the parentheses of a quotient"
                     : "moves the parentheses of a difference";
  if (undoes)
    return isProduct ? "exchanges the numbers of a quotient"
                     : "exchanges the numbers of a difference";
  if (seeming == Identity)
    return isProduct ? "expects a factor of 1 to give 1" : "expects 0 in a sum to give 0";
  if (seeming == Zero) return "expects a factor of 0 to change nothing";
  return isProduct ? "takes opposite numbers for reciprocals"
                   : "takes equal numbers for opposite numbers";
}

// --- Laws taken for others -----------------------------------------------------------------------

struct Confusion {
  std::string_view name;
  int gone;
  int seen;
};
constexpr Confusion kConfusions[] = {
    {"takes a new order for a new grouping", Commutative, Associative},
    {"takes a new grouping for a new order", Associative, Commutative},
    {"overlooks the new grouping", Associative, 0},
    {"overlooks the new order", Commutative, 0},
    {"sees a new grouping where there is none", 0, Associative},
    {"sees a new order where there is none", 0, Commutative},
    {"takes identical numbers for the identity", Commutative, Identity},
    {"takes identical numbers for the identity", Associative, Identity},
    {"takes identical numbers for the identity", Commutative | Associative, Identity},
    {"mixes up identity and inverse", Identity, Inverse},
    {"mixes up identity and inverse", Inverse, Identity},
    {"takes every 0 for the work of opposite numbers", Commutative | Identity, Inverse},
    {"takes every 0 for the work of opposite numbers", Zero, Inverse},
    {"takes every 1 for the work of reciprocals", Commutative | Identity, Inverse},
    {"overlooks the opposite numbers", Inverse, 0},
    {"overlooks the reciprocals", Inverse, 0},
    {"overlooks the 0 that is added", Identity, 0},
    {"overlooks the factor 1", Identity, 0},
    {"takes opposite numbers for a new order", Inverse, Commutative},
    {"takes reciprocals for a new order", Inverse, Commutative},
    {"counts the identity because of the 0", 0, Identity},
    {"counts the identity because of the 1", 0, Identity},
    {"sees opposite numbers where there are none", 0, Inverse},
    {"sees reciprocals where there are none", 0, Inverse},
    {"treats the factor 1 like a 0", Identity, Zero},
    {"treats the factor 0 like a 1", Zero, Identity},
    {"expects reciprocals to give 0", Inverse, Zero},
};

// Whom the name tells of, one mistake behind the other, ends at one of these sets.
void AddEnds(int laws, std::string_view name, std::set<int>& ends) {
  constexpr std::string_view kAnd = " and ";
  for (const Confusion& confusion : kConfusions) {
    if (!name.starts_with(confusion.name)) continue;
    if ((laws & confusion.gone) != confusion.gone || (laws & confusion.seen) != 0) continue;
    const int now = (laws & ~confusion.gone) | confusion.seen;
    const std::string_view rest = name.substr(confusion.name.size());
    if (rest.empty())
      ends.insert(now);
    else if (rest.starts_with(kAnd))
      AddEnds(now, rest.substr(kAnd.size()), ends);
  }
}

// --- Reading -------------------------------------------------------------------------------------

std::string NamesOf(int laws) {
  if (laws == kFalse) return "none, since it is false";
  std::string names;
  for (const auto& [law, name] : kLaws)
    if ((laws & law) != 0) names += "[" + std::string(name) + "]";
  return names;
}

std::string ValueOfChoice(const std::string& choice) {
  if (choice == NamesOf(kFalse)) return choice;
  int laws = 0;
  std::string rest = choice;
  while (true) {
    const auto law = std::ranges::find_if(kLaws, [&](const auto& l) {
      return rest == l.second || rest.starts_with(std::string(l.second) + " and ");
    });
    if (law == std::end(kLaws) || (laws & law->first) != 0)
      throw Unreadable("\"" + choice + "\" names no properties");
    laws |= law->first;
    if (rest == law->second) return NamesOf(laws);
    rest = rest.substr(law->second.size() + 5);
  }
}

// The mistakes that the choices claim, worked out from the equation.
void AddMistakes(const course::Problem& problem, int shown, int seeming, Reading& reading) {
  constexpr std::string_view kUnchecked = ", and does not check";
  if (shown != kFalse) reading.mistakes["expects both sides to look the same"] = {NamesOf(kFalse)};
  for (int slot = 1; slot <= course::ChoiceCountOf(problem.kind); ++slot) {
    std::string name = problem.choices[static_cast<std::size_t>(slot)].mistake;
    const std::string whole = name;
    if (name.ends_with(kUnchecked) != (shown == kFalse)) continue;
    if (shown == kFalse) name.resize(name.size() - kUnchecked.size());
    std::set<int> ends;
    AddEnds(seeming, name, ends);
    for (const int end : ends) reading.mistakes[whole].push_back(NamesOf(end));
  }
}

Reading ReadProperties(const course::Problem& problem) {
  if (problem.question.size() != 2) throw Unreadable("the question has no line of its own");
  const std::string line = WithoutBlanks(problem.question[1]);
  const std::size_t equals = line.find('=');
  if (equals == std::string::npos) throw Unreadable("\"" + line + "\" is no equation");
  const Tree left = SideReader(line.substr(0, equals)).Whole();
  const Tree right = SideReader(line.substr(equals + 1)).Whole();
  const bool isTrue = left.Value() == right.Value();
  const bool isProduct = line.find_first_of({kTimes, kDivided}) != std::string::npos;
  const int seeming = isTrue ? FewestLaws(left, right) : SeemingLaws(left, right);

  Reading reading;
  reading.answer = NamesOf(isTrue ? seeming : kFalse);
  reading.value = ValueOfChoice;
  reading.flaw = [](const std::string&) { return std::string(); };
  reading.kind = (isTrue ? "" : "false: ") + NamesOf(seeming);
  AddMistakes(problem, isTrue ? seeming : kFalse, seeming, reading);
  if (!isTrue) {
    const bool undoes =
        WithSums(left).Text() != left.Text() || WithSums(right).Text() != right.Text();
    reading.mistakes[MistakeAtFalseEquation(seeming, undoes, isProduct)] = {NamesOf(seeming)};
  }
  return reading;
}

const JudgeRegistration kRegistration(ReadProperties,
                                      {"Properties of Addition", "Properties of Multiplication"});

}  // namespace
}  // namespace lesson_check
