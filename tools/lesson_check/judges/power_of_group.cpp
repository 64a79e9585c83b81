// A group in parentheses with an exponent behind them, to be simplified: a power of a letter, which
// may be raised twice, such as ((b^3^)^2^)^4^; a product of two letters, (b^3^c)^4^; and a number
// with one or two letters, (5b^3^c)^2^.
#include <algorithm>
#include <vector>

#include "lesson_check/exact/notation.h"
#include "lesson_check/exact/unreadable.h"
#include "lesson_check/judge.h"
#include "mathkit/tutor_codes.h"

namespace lesson_check {
namespace {

using Kind = Expression::Kind;

struct Factor {
  char letter = 0;
  int exponent = 1;
};

// What stands in the parentheses.
struct Inside {
  int number = 1;
  std::vector<Factor> letters;
};

struct Group {
  Inside inside;
  int exponent = 2;
};

int WholeNumber(const Expression& expression) {
  if (expression.kind != Kind::Number || expression.number.get_den() != 1)
    throw Unreadable("a number is no whole number");
  return static_cast<int>(expression.number.get_num().get_si());
}

Factor ReadFactor(const Expression& expression) {
  if (expression.kind == Kind::Letter) return {expression.letter, 1};
  if (expression.kind != Kind::Power || expression.parts[0].kind != Kind::Letter)
    throw Unreadable("a factor is no power of a letter");
  return {expression.parts[0].letter, WholeNumber(expression.parts[1])};
}

Inside ReadInside(const Expression& expression) {
  if (expression.kind != Kind::Product) return {1, {ReadFactor(expression)}};
  Inside inside;
  for (const Expression& part : expression.parts) {
    if (part.kind == Kind::Number && &part == &expression.parts[0])
      inside.number = WholeNumber(part);
    else
      inside.letters.push_back(ReadFactor(part));
  }
  return inside;
}

// The line of the question that is a power of a group.
std::string GroupLine(const course::Problem& problem) {
  for (const std::string& text : problem.question)
    if (text.find(")^") != std::string::npos) return text;
  throw Unreadable("no line of the question is a power of a group");
}

Expression ReadPower(const std::string& line) {
  Expression expression = ParseExpression(line);
  if (expression.kind != Kind::Power) throw Unreadable("\"" + line + "\" is no power of a group");
  return expression;
}

Group ReadGroup(const std::string& line, Reading& reading) {
  const Expression power = ReadPower(line);
  Group group = {ReadInside(power.parts[0]), WholeNumber(power.parts[1])};
  for (const Factor& factor : group.inside.letters)
    reading.Within("an exponent inside", factor.exponent, 1, 9);
  reading.Within("the exponent behind", group.exponent, 2, 9);
  if (group.inside.letters.size() == 2 &&
      group.inside.letters[0].letter == group.inside.letters[1].letter)
    throw Unreadable("the letters are equal");
  return group;
}

Polynomial PowerOf(char letter, int exponent) {
  return Polynomial::Letter(letter).Power(exponent);
}

Polynomial Number(int number) {
  return Polynomial(Rational(number));
}

// A bare letter has the exponent behind the parentheses when exponents are added.
int Added(const Factor& factor, int exponent) {
  return factor.exponent == 1 ? exponent : factor.exponent + exponent;
}

// Whoever leaves the bare letter the exponent behind the parentheses adds that of the other one.
std::string NameOfAdding(const Group& group) {
  std::string name = "adds the exponents";
  const std::vector<Factor>& letters = group.inside.letters;
  if (std::ranges::count(letters, 1, &Factor::exponent) == 0) return name;
  const int other = letters[letters[0].exponent == 1 ? 1 : 0].exponent;
  const std::string gap = course::tutor::Gap;  // values of a problem are held together
  return name + " " + std::to_string(other) + gap + "and" + gap + std::to_string(group.exponent);
}

// What becomes of the letters: right, or with a mistake that can be made with them.
struct Letters {
  std::string mistake;  // "" when they are right
  Polynomial value;
};

// exponentOf(i) is the exponent that letter i gets.
template <class ExponentOf>
Polynomial ProductOf(const std::vector<Factor>& letters, ExponentOf exponentOf) {
  Polynomial value = Number(1);
  for (std::size_t i = 0; i < letters.size(); ++i)
    value = value * PowerOf(letters[i].letter, exponentOf(i));
  return value;
}

// keeping: the names of leaving the first letter, and the second, without the power.
std::vector<Letters> LettersOf(const Group& group, const std::vector<std::string>& keeping) {
  const std::vector<Factor>& letters = group.inside.letters;
  const auto raised = [&](std::size_t i) { return letters[i].exponent * group.exponent; };
  const auto added = [&](std::size_t i) { return Added(letters[i], group.exponent); };
  std::vector<Letters> ways = {{"", ProductOf(letters, raised)},
                               {NameOfAdding(group), ProductOf(letters, added)}};
  for (std::size_t kept = 0; kept < letters.size(); ++kept)
    ways.push_back({keeping.at(kept), ProductOf(letters, [&](std::size_t i) {
                      return i == kept ? letters[i].exponent : raised(i);
                    })});
  return ways;
}

// Mistakes that are met where a number stands in front; no exponent is above 250.
std::vector<Letters> MoreLettersOf(const Group& group) {
  constexpr int kLargestExponent = 250;
  const std::vector<Factor>& letters = group.inside.letters;
  const auto power = [&](std::size_t i) {
    int value = 1;
    for (int n = 0; n < group.exponent; ++n) value *= letters[i].exponent;
    return value;
  };
  std::vector<Letters> ways;
  const bool readable =
      power(0) <= kLargestExponent && power(letters.size() - 1) <= kLargestExponent;
  if (readable) ways.push_back({"raises the inner exponents", ProductOf(letters, power)});
  if (letters.size() != 2) return ways;
  const int larger = std::max(letters[0].exponent, letters[1].exponent) * group.exponent;
  ways.push_back({"gives both letters the larger exponent",
                  ProductOf(letters, [&](std::size_t) { return larger; })});
  return ways;
}

// A simplified product names each letter once, in the order of the alphabet.
std::string FlawOf(const std::string& choice) {
  if (choice.find('(') != std::string::npos) return "has parentheses";
  if (choice.find("^1^") != std::string::npos) return "has an exponent of 1";
  const Inside product = ReadInside(ParseExpression(choice));
  const std::vector<Factor>& letters = product.letters;
  if (letters.empty()) return "has no letter";
  if (choice[0] == '1' && product.number == 1) return "has a factor of 1";
  const bool ordered = std::ranges::adjacent_find(letters, std::ranges::greater_equal{},
                                                  &Factor::letter) == letters.end();
  return ordered ? "" : "does not name its letters in the order of the alphabet";
}

Reading BeginReading(const std::string& line) {
  Reading reading;
  reading.answer = ValueOf(line).Text();
  reading.value = [](const std::string& choice) { return ValueOf(choice).Text(); };
  reading.flaw = FlawOf;
  return reading;
}

Reading ReadPowerOfProduct(const course::Problem& problem) {
  const std::string line = GroupLine(problem);
  Reading reading = BeginReading(line);
  const Group group = ReadGroup(line, reading);
  const std::vector<Factor>& letters = group.inside.letters;
  if (letters.size() != 2 || group.inside.number != 1)
    throw Unreadable("not two letters in parentheses");
  reading.kind =
      letters[0].exponent > 1 && letters[1].exponent > 1 ? "two powers inside" : "one power inside";
  for (const Letters& way : LettersOf(group, {"leaves the first factor without the power",
                                              "leaves the second factor without the power"}))
    if (!way.mistake.empty()) reading.mistakes[way.mistake].push_back(way.value.Text());
  return reading;
}

// Whoever leaves both as they are says so in one.
std::string BothMistakes(const std::string& ofNumber, const std::string& ofLetters) {
  if (ofNumber.empty() || ofLetters.empty()) return ofNumber + ofLetters;
  const std::string leaves = "leaves ";
  const std::string asItIs = " as it is";
  if (!ofNumber.starts_with(leaves) || !ofLetters.starts_with(leaves))
    return ofNumber + " and " + ofLetters;
  return ofNumber.substr(0, ofNumber.size() - asItIs.size()) + " and " +
         ofLetters.substr(leaves.size(), ofLetters.size() - leaves.size() - asItIs.size()) +
         " as they are";
}

void AddMonomialMistakes(const Group& group, Reading& reading) {
  const auto [number, letters] = group.inside;
  const std::vector<std::string> one = {"leaves the letter as it is"};
  const std::vector<std::string> two = {"leaves the first letter as it is",
                                        "leaves the second letter as it is"};
  std::vector<Letters> ways = LettersOf(group, letters.size() == 1 ? one : two);
  std::ranges::copy(MoreLettersOf(group), std::back_inserter(ways));
  const std::pair<std::string, Polynomial> coefficients[] = {
      {"", Number(number).Power(group.exponent)},
      {"leaves the coefficient as it is", Number(number)},
      {"multiplies the coefficient by the exponent", Number(number * group.exponent)}};
  for (const auto& [slip, coefficient] : coefficients)
    for (const Letters& way : ways)
      if (const std::string name = BothMistakes(slip, way.mistake); !name.empty())
        reading.mistakes[name].push_back((coefficient * way.value).Text());
}

Reading ReadPowerOfMonomial(const course::Problem& problem) {
  constexpr int kLargestNumber = 1000;
  const std::string line = GroupLine(problem);
  Reading reading = BeginReading(line);
  const Group group = ReadGroup(line, reading);
  const auto [number, letters] = group.inside;
  if (letters.empty() || letters.size() > 2) throw Unreadable("not one or two letters");
  reading.Within("the coefficient", number, 2, 9);
  const Polynomial raised = Number(number).Power(group.exponent);
  reading.Within("the coefficient raised", raised.Number(), 4, kLargestNumber);
  reading.kind = letters.size() == 1                                     ? "one letter"
                 : std::ranges::count(letters, 1, &Factor::exponent) > 0 ? "a bare letter"
                                                                         : "two powers inside";
  AddMonomialMistakes(group, reading);
  return reading;
}

// The exponents of one letter, from the innermost one to that behind all parentheses.
std::vector<int> ReadTower(const Expression& expression, char& letter) {
  if (expression.kind == Kind::Letter) {
    letter = expression.letter;
    return {};
  }
  if (expression.kind != Kind::Power) throw Unreadable("not powers of one letter");
  std::vector<int> exponents = ReadTower(expression.parts[0], letter);
  exponents.push_back(WholeNumber(expression.parts[1]));
  return exponents;
}

Reading ReadPowerOfPower(const course::Problem& problem) {
  constexpr int kLargestExponent = 99;
  const std::string line = GroupLine(problem);
  Reading reading = BeginReading(line);
  char letter = 0;
  const std::vector<int> exponents = ReadTower(ReadPower(line), letter);
  if (exponents.size() < 2 || exponents.size() > 3) throw Unreadable("not two or three exponents");
  int sum = 0;
  int product = 1;
  for (const int exponent : exponents) {
    reading.Within("an exponent", exponent, 2, 9);
    sum += exponent;
    product *= exponent;
  }
  reading.Within("the product of the exponents", product, 4, kLargestExponent);
  reading.kind = exponents.size() == 2 ? "two exponents" : "three exponents";
  const int last = exponents.back();
  const int before = product / last;
  const auto add = [&](const char* name, int number, int exponent) {
    reading.mistakes[name].push_back((Number(number) * PowerOf(letter, exponent)).Text());
  };
  add("adds the exponents", 1, sum);
  add("writes the outer exponent in front instead of raising to it", last, before);
  if (exponents.size() == 2) {
    add("multiplies the exponents and writes the outer one in front, too", last, product);
    add("leaves out the outer exponent", 1, before);
    int raised = 1;
    for (int i = 0; i < last; ++i) raised *= before;
    if (raised <= kLargestExponent) add("raises the inner exponent", 1, raised);
  } else {
    add("multiplies the inner exponents but adds the outer one", 1, before + last);
    add("adds the inner exponents but multiplies by the outer one", 1,
        (exponents[0] + exponents[1]) * last);
  }
  return reading;
}

const JudgeRegistration kProduct(ReadPowerOfProduct, {"Power of a Product"});
const JudgeRegistration kPower(ReadPowerOfPower, {"Power of a Power"});
const JudgeRegistration kMonomial(ReadPowerOfMonomial, {"Power of a Monomial"});

}  // namespace
}  // namespace lesson_check
