// An expression in one or two letters and the numbers for which they stand: its value, and what
// comes out when a student puts the numbers in, or works with them, in a wrong way.
#include <map>
#include <optional>
#include <vector>

#include "lesson_check/exact/notation.h"
#include "lesson_check/exact/unreadable.h"
#include "lesson_check/judge.h"

namespace lesson_check {
namespace {

using Kind = Expression::Kind;
using Numbers = std::map<char, Rational>;

// A printed term, sign and factors apart.
struct Letter {
  char name;
  int exponent;
};
struct Term {
  bool minus = false;
  std::optional<Rational> coefficient;  // as it is printed, above 0
  std::vector<Letter> letters;
};

void AddFactor(const Expression& factor, Term& term) {
  if (factor.kind == Kind::Number)
    term.coefficient = factor.number;
  else if (factor.kind == Kind::Letter)
    term.letters.push_back({factor.letter, 1});
  else if (factor.kind == Kind::Power && factor.parts[0].kind == Kind::Letter)
    term.letters.push_back(
        {factor.parts[0].letter, static_cast<int>(ValueOf(factor.parts[1]).Number().get_d())});
  else
    throw Unreadable("a factor is neither a number nor a power of a letter");
}

Term TermOf(const Expression& expression) {
  Term term;
  const bool minus = expression.kind == Kind::Minus;
  const Expression& bare = minus ? expression.parts[0] : expression;
  term.minus = minus;
  if (bare.kind == Kind::Product)
    for (const Expression& factor : bare.parts) AddFactor(factor, term);
  else
    AddFactor(bare, term);
  return term;
}

std::vector<Term> TermsOf(const Expression& expression) {
  std::vector<Term> terms;
  if (expression.kind != Kind::Sum) return {TermOf(expression)};
  for (const Expression& part : expression.parts) terms.push_back(TermOf(part));
  return terms;
}

Numbers NumbersOf(const std::string& line) {
  Numbers numbers;
  const std::string plain = WithoutBlanks(line);
  for (std::size_t at = 0; (at = plain.find('=', at)) != std::string::npos; ++at) {
    const std::size_t end = plain.find_first_not_of("-0123456789", at + 1);
    numbers[plain.at(at - 1)] = ValueOf(plain.substr(at + 1, end - at - 1)).Number();
  }
  return numbers;
}

Rational Power(const Rational& base, int exponent) {
  Rational power = 1;
  for (int i = 0; i < exponent; ++i) power *= base;
  return power;
}

// Who works in which way.
struct Habit {
  bool dropsMinus = false;           // of the values
  bool squaresStayNegative = false;  // (-3)^2 = -9
  bool exponentIsFactor = false;     // 5^2 = 10
  bool coefficientIsInPower = false;
  bool adds = false;        // for times
  bool sideBySide = false;  // digits
  bool oneWrongSign = false;
  bool stopsAtTwoFactors = false;
};

class Student {
 public:
  Student(std::vector<Term> terms, Numbers numbers, const Habit& habit = {})
      : terms_(std::move(terms)), numbers_(std::move(numbers)), habit_(habit) {}

  Rational Value() {
    Rational sum = 0;
    for (std::size_t i = 0; i < terms_.size(); ++i) {
      const Rational worth = Worth(i);
      sum += i > 0 && terms_[i].minus ? Rational(-worth) : worth;
    }
    return sum;
  }

  // The numbers of a term in the order in which they are written, its sign in the first of them
  // only where the expression begins.
  std::vector<Rational> FactorsOf(std::size_t i) {
    const Term& term = terms_[i];
    const bool ownMinus = i == 0 && term.minus;
    std::vector<Rational> factors;
    if (term.coefficient) factors.push_back(ownMinus ? -*term.coefficient : *term.coefficient);
    if (!term.coefficient && ownMinus) factors.emplace_back(-1);
    for (const Letter& letter : term.letters) factors.push_back(PowerOf(letter));
    if (habit_.coefficientIsInPower && !term.letters.empty() &&
        factors.size() > term.letters.size())
      factors[0] = Power(factors[0], term.letters[0].exponent);
    return factors;
  }

 private:
  Rational PowerOf(const Letter& letter) {
    if (!numbers_.contains(letter.name)) throw Unreadable("a letter has no value");
    Rational base = numbers_[letter.name];
    if (habit_.dropsMinus) base = abs(base);
    if (letter.exponent > 1 && habit_.exponentIsFactor) return base * letter.exponent;
    const Rational power = Power(base, letter.exponent);
    const bool keeps = habit_.squaresStayNegative && base < 0 && letter.exponent == 2;
    return keeps ? Rational(-power) : power;
  }

  Rational Worth(std::size_t i) {
    const Term& term = terms_[i];
    const std::vector<Rational> factors = FactorsOf(i);
    Rational product = 1;
    Rational sum = 0;
    std::string digits;
    bool hasNegative = false;
    for (const Rational& factor : factors) {
      product *= factor;
      sum += factor;
      digits += factor.get_str();
      hasNegative = hasNegative || factor < 0;
    }
    const bool loneMinus = !term.coefficient && i == 0 && term.minus;
    if (habit_.adds && !loneMinus) return sum;
    if (habit_.stopsAtTwoFactors && !loneMinus && factors.size() > 2)
      return factors[0] * factors[1];
    if (habit_.sideBySide && !loneMinus && CanStandSideBySide(term)) return Rational(digits);
    if (habit_.oneWrongSign && !turned_ && hasNegative && factors.size() > 1) {
      turned_ = true;
      return -product;
    }
    return product;
  }

  bool CanStandSideBySide(const Term& term) {
    for (std::size_t i = 0; i < term.letters.size(); ++i)
      if (term.letters[i].exponent != 1 ||
          (numbers_[term.letters[i].name] < 0 && (i > 0 || term.coefficient)))
        return false;
    return true;
  }

  std::vector<Term> terms_;
  Numbers numbers_;
  Habit habit_;
  bool turned_ = false;  // a product has got its wrong sign
};

// The whole line from its left end, each number joined to what has come out so far.
Rational FromLeft(const std::vector<Term>& terms, const Numbers& numbers) {
  Student student(terms, numbers);
  Rational value = 0;
  for (std::size_t i = 0; i < terms.size(); ++i) {
    const std::vector<Rational> factors = student.FactorsOf(i);
    value += i > 0 && terms[i].minus ? Rational(-factors[0]) : factors[0];
    for (std::size_t j = 1; j < factors.size(); ++j) value *= factors[j];
  }
  return value;
}

// Products of sums: a times sign parts two groups.
Rational AdditionsFirst(const std::vector<Term>& terms, const Numbers& numbers) {
  Student student(terms, numbers);
  std::vector<Rational> groups;
  for (std::size_t i = 0; i < terms.size(); ++i) {
    const std::vector<Rational> factors = student.FactorsOf(i);
    if (i == 0)
      groups.push_back(factors[0]);
    else
      groups.back() += terms[i].minus ? Rational(-factors[0]) : factors[0];
    groups.insert(groups.end(), factors.begin() + 1, factors.end());
  }
  Rational value = 1;
  for (const Rational& group : groups) value *= group;
  return value;
}

// 3x + 4 taken for 7x; nothing where it is not a term with a letter beside a number.
std::optional<Rational> Gathered(const std::vector<Term>& terms, const Numbers& numbers) {
  if (terms.size() != 2 || terms[0].letters.empty() == terms[1].letters.empty()) return {};
  Rational coefficient = 0;
  for (const Term& term : terms) {
    const Rational size = term.coefficient.value_or(1);
    coefficient += term.minus ? Rational(-size) : size;
  }
  Term gathered = terms[terms[0].letters.empty() ? 1 : 0];
  gathered.minus = false;
  gathered.coefficient = 1;
  return Rational(coefficient * Student({gathered}, numbers).Value());
}

Numbers Exchanged(Numbers numbers) {
  if (numbers.size() == 2) std::swap(numbers.begin()->second, std::next(numbers.begin())->second);
  return numbers;
}

Numbers PlacesInAlphabet(Numbers numbers) {
  for (auto& [letter, number] : numbers) number = letter - 'a' + 1;
  return numbers;
}

void AddMistakes(const std::vector<Term>& terms, const Numbers& numbers, Reading& reading) {
  const auto add = [&](const char* name, const Rational& value) {
    reading.mistakes[name] = {value.get_str()};
  };
  const auto addHabit = [&](const char* name, const Habit& habit) {
    add(name, Student(terms, numbers, habit).Value());
  };
  addHabit("drops the minus sign of a value", {.dropsMinus = true});
  addHabit("makes the square of a negative number negative", {.squaresStayNegative = true});
  addHabit("multiplies base and exponent", {.exponentIsFactor = true});
  addHabit("squares the coefficient too", {.coefficientIsInPower = true});
  addHabit("adds instead of multiplying", {.adds = true});
  addHabit("sets the digits side by side", {.sideBySide = true});
  addHabit("gives a product the wrong sign", {.oneWrongSign = true});
  addHabit("multiplies only the first two factors", {.stopsAtTwoFactors = true});
  add("works from left to right", FromLeft(terms, numbers));
  add("adds and subtracts first", AdditionsFirst(terms, numbers));
  add("exchanges the values of the letters", Student(terms, Exchanged(numbers)).Value());
  add("takes a letter for its place in the alphabet",
      Student(terms, PlacesInAlphabet(numbers)).Value());
  if (const auto value = Gathered(terms, numbers))
    add("adds the number to the coefficient", *value);
}

// "ax^2 + by": the form of the terms, without their signs.
std::string KindOf(const std::vector<Term>& terms) {
  std::string kind;
  std::string letters;  // by their first occurrence x, then y
  for (const Term& term : terms) {
    kind += kind.empty() ? "" : " + ";
    kind += term.letters.empty() ? "c" : "a";
    for (const Letter& letter : term.letters) {
      if (letters.find(letter.name) == std::string::npos) letters += letter.name;
      kind += letter.name == letters[0] ? 'x' : 'y';
      if (letter.exponent > 1) kind += "^" + std::to_string(letter.exponent);
    }
  }
  return kind;
}

// The expression in the second line of the question, the values in the third.
Reading ReadValueOfExpression(const course::Problem& problem) {
  if (problem.question.size() != 3) throw Unreadable("the question has not three lines");
  const Expression expression = ParseExpression(problem.question[1]);
  const Numbers numbers = NumbersOf(problem.question[2]);
  Polynomial value = ValueOf(expression);
  for (const auto& [letter, number] : numbers) value = value.With(letter, Polynomial(number));
  Reading reading;
  reading.answer = value.Number().get_str();
  reading.value = [](const std::string& choice) { return ValueOf(choice).Number().get_str(); };
  const std::vector<Term> terms = TermsOf(expression);
  AddMistakes(terms, numbers, reading);
  reading.kind = KindOf(terms);
  reading.Within("the value", value.Number(), -100, 100);
  for (const auto& [letter, number] : numbers) reading.Within("a letter", number, -9, 9);
  for (const Term& term : terms)
    if (term.coefficient) reading.Within("a coefficient", *term.coefficient, 1, 9);
  const bool isTerm = problem.question[0].find("term") != std::string::npos;
  if (isTerm != (terms.size() == 1)) reading.faults.push_back("a sum is called a term");
  return reading;
}

const JudgeRegistration kRegistration(ReadValueOfExpression, {"Variables and Expressions"});

}  // namespace
}  // namespace lesson_check
