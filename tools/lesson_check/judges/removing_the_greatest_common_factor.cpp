// A sum of two terms in one letter, from which the greatest common factor is to be taken out.  The
// choices are a factor in front of parentheses; those that are equal as values, 2(3x + 6) and
// 6(x + 2), are different answers.
#include <cstdlib>
#include <numeric>

#include "lesson_check/exact/notation.h"
#include "lesson_check/exact/unreadable.h"
#include "lesson_check/judge.h"

namespace lesson_check {
namespace {

struct OneTerm {
  long number = 0;
  int power = 0;
};

// number x^power + number x^power, the higher power first.
struct TwoTerms {
  OneTerm high, low;
};

// A factor in front, and what stands in the parentheses.
struct Taken {
  OneTerm factor;
  TwoTerms inside;
};

class Maker {
 public:
  explicit Maker(char letter) : letter_(Polynomial::Letter(letter)) {}

  Polynomial Value(const OneTerm& term) const {
    return Polynomial(Rational(term.number)) * letter_.Power(term.power);
  }
  // One text for a factor and what is inside, whatever their product is.
  static std::string Text(const Polynomial& factor, const Polynomial& inside) {
    return factor.Text() + " times " + inside.Text();
  }
  std::string Text(const Taken& taken) const {
    return Text(Value(taken.factor), Value(taken.inside.high) + Value(taken.inside.low));
  }
  std::string WithoutLowTerm(const Taken& taken) const {
    return Text(Value(taken.factor), Value(taken.inside.high));
  }

 private:
  Polynomial letter_;
};

TwoTerms ReadTwoTerms(const std::string& line, char letter) {
  const Polynomial sum = ValueOf(line);
  std::vector<OneTerm> terms;
  for (int power = sum.Degree(letter); power >= 0; --power)
    if (const Polynomial at = sum.Coefficient(letter, power); !at.IsZero())
      terms.push_back({at.Number().get_num().get_si(), power});
  if (terms.size() != 2) throw Unreadable("\"" + line + "\" has not two terms");
  return {terms[0], terms[1]};
}

// "6x^2^(3x^3^ - 2)" cut at its parenthesis.
std::string TextOfChoice(const std::string& choice) {
  const std::size_t open = choice.find('(');
  if (open == std::string::npos || open == 0 || choice.back() != ')')
    throw Unreadable("\"" + choice + "\" is no factor before parentheses");
  return Maker::Text(ValueOf(choice.substr(0, open)), ValueOf(choice.substr(open)));
}

// What is left when a factor is taken out of both terms.
Taken TakenOut(const TwoTerms& sum, const OneTerm& factor) {
  const auto divided = [&](const OneTerm& term) {
    return OneTerm{term.number / factor.number, term.power - factor.power};
  };
  return {factor, {divided(sum.high), divided(sum.low)}};
}

class MistakeFinder {
 public:
  MistakeFinder(const TwoTerms& sum, const Maker& maker, Reading& reading)
      : sum_(sum),
        maker_(maker),
        reading_(reading),
        common_{std::gcd(sum.high.number, sum.low.number), sum.low.power} {}

  std::string Answer() const { return maker_.Text(TakenOut(sum_, common_)); }

  void FindAll() {
    Add("takes out only the number", TakenOut(sum_, {common_.number, 0}));
    Add("takes out only the power", TakenOut(sum_, {1, common_.power}));
    FindCommonFactorsLeft();
    FindWrongQuotients();
    Taken reversed = TakenOut(sum_, common_);
    reversed.inside.low.number *= -1;
    Add("reverses the sign", reversed);
  }

 private:
  void Add(const std::string& name, const Taken& taken) {
    reading_.mistakes[name].push_back(maker_.Text(taken));
  }

  void FindCommonFactorsLeft() {
    for (long number = 2; number < common_.number; ++number)
      if (common_.number % number == 0)
        Add("leaves a common number inside", TakenOut(sum_, {number, common_.power}));
    for (int power = 1; power < common_.power; ++power)
      Add("leaves a common letter inside", TakenOut(sum_, {common_.number, power}));
  }

  void FindWrongQuotients() {
    const Taken right = TakenOut(sum_, common_);
    const auto addInside = [&](const std::string& name, const TwoTerms& inside) {
      Add(name, {common_, inside});
    };
    const auto [high, low] = right.inside;
    addInside("leaves the exponent inside as it was", {{high.number, sum_.high.power}, low});
    addInside("adds the exponents", {{high.number, sum_.high.power + common_.power}, low});
    addInside("divides only the numbers",
              {{high.number, sum_.high.power}, {low.number, sum_.low.power}});
    addInside("divides only the powers", {{sum_.high.number, high.power}, {sum_.low.number, 0}});
    addInside("divides only the first term", {high, {sum_.low.number, 0}});
    Add("takes out the higher power",
        {{common_.number, sum_.high.power}, {{high.number, 0}, {low.number, sum_.low.power}}});

    if (std::labs(right.inside.low.number) == 1)
      reading_.mistakes["leaves out the 1"].push_back(maker_.WithoutLowTerm(right));
  }

  TwoTerms sum_;
  const Maker& maker_;
  Reading& reading_;
  OneTerm common_;
};

Reading ReadCommonFactor(const course::Problem& problem) {
  if (problem.question.size() != 3) throw Unreadable("the question has not three lines");
  const std::string& line = problem.question[1];
  const std::string letters = ValueOf(line).Letters();
  if (letters.size() != 1) throw Unreadable("\"" + line + "\" has not one letter");
  const TwoTerms sum = ReadTwoTerms(line, letters[0]);
  const Maker maker(letters[0]);

  Reading reading;
  reading.value = TextOfChoice;
  MistakeFinder finder(sum, maker, reading);
  reading.answer = finder.Answer();
  finder.FindAll();
  for (const long number : {sum.high.number, std::labs(sum.low.number)})
    reading.Within("a number", Rational(number), 4, 60);
  reading.Within("the lower exponent", Rational(sum.low.power), 1, 5);
  reading.Within("the higher exponent", Rational(sum.high.power), 2, 6);
  reading.kind = sum.low.number > 0 ? "a sum" : "a difference";
  if (sum.high.number % sum.low.number == 0) reading.kind += ", a 1 is left";
  return reading;
}

const JudgeRegistration kRegistration(ReadCommonFactor, {"Removing the Greatest Common Factor"});

}  // namespace
}  // namespace lesson_check
