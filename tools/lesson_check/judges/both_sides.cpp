// One operation on both sides of an equation: "Given:", "2x + 5 = 11", "Adding 3 to both sides of
// the given gives which equation?", or the second equation and "What was done to both sides?".
#include <string_view>

#include "lesson_check/exact/notation.h"
#include "lesson_check/exact/relations.h"
#include "lesson_check/exact/unreadable.h"
#include "lesson_check/judge.h"

namespace lesson_check {
namespace {

// a x + b = c, or c = a x + b
struct Equation {
  Rational a, b, c;
  bool turned = false;
};

Equation ReadEquation(const std::string& text) {
  const Statement cut = CutAtRelations(text);
  if (cut.sides.size() != 2 || cut.relations[0] != '=') throw Unreadable("no equation: " + text);
  Polynomial left = ValueOf(cut.sides[0]);
  Polynomial right = ValueOf(cut.sides[1]);
  Equation equation;
  equation.turned = left.IsNumber();
  if (equation.turned) std::swap(left, right);
  if (left.Degree('x') != 1) throw Unreadable("no equation with x on one side: " + text);
  equation.a = left.Coefficient('x', 1).Number();
  equation.b = left.Coefficient('x', 0).Number();
  equation.c = right.Number();
  return equation;
}

// Not whether it is true for the same x, but the very equation.
std::string TextOf(const Equation& e) {
  return e.a.get_str() + "x + " + e.b.get_str() + (e.turned ? " from = " : " = ") + e.c.get_str();
}

// What is done to a number, in one way for the same thing: a sum, or a product.
struct Step {
  bool sum = true;
  Rational number;
  Rational After(const Rational& value) const {
    if (sum) return value + number;
    return value * number;
  }
};

std::string TextOf(const Step& step) {
  return (step.sum ? "+ " : "* ") + step.number.get_str();
}

Equation After(const Step& step, Equation e) {
  if (!step.sum) e.a = e.a * step.number;
  e.b = step.After(e.b);
  e.c = step.After(e.c);
  return e;
}

enum class Verb { Add, Subtract, Multiply, Divide };

Step StepOf(Verb verb, const Rational& number) {
  if (verb == Verb::Add) return {true, number};
  if (verb == Verb::Subtract) return {true, -number};
  if (verb == Verb::Multiply) return {false, number};
  if (number == 0) throw Unreadable("a division by 0");
  return {false, 1 / number};
}

struct NamedStep {
  Verb verb = Verb::Add;
  Rational number;
};

// "Adding 3 to both sides of the given", "Multiplying both sides of the given by 3", "adding 3".
NamedStep ReadStep(const std::string& text) {
  constexpr std::string_view kVerbs[] = {"dding ", "ubtracting ", "ultiplying ", "ividing "};
  for (std::size_t i = 0; i < std::size(kVerbs); ++i) {
    if (text.find(kVerbs[i]) != 1) continue;  // behind a capital or a small letter
    const std::vector<std::string> numbers = NumbersIn(text);
    if (numbers.size() != 1) break;
    const bool negative = text.find("-" + numbers[0]) != std::string::npos;
    const Rational number(numbers[0]);
    return {static_cast<Verb>(i), negative ? Rational(-number) : number};
  }
  throw Unreadable("\"" + text + "\" is no step");
}

void AddEquation(Reading& reading, const std::string& name, const Equation& equation) {
  reading.mistakes[name].push_back(TextOf(equation));
}

// Adds or subtracts on one side what the other side should have got.
void AddSumMistakes(Reading& reading, const Equation& given, const NamedStep& named) {
  const bool adds = named.verb == Verb::Add;
  const Step step = StepOf(named.verb, named.number);
  const Step opposite = {true, -step.number};
  const Equation right = After(step, given);
  const Equation wrong = After(opposite, given);
  const auto mixed = [&](const Equation& withX, const Equation& without) {
    Equation equation = withX;
    equation.c = without.c;
    return equation;
  };
  AddEquation(reading, "changes only the side with x", mixed(right, given));
  AddEquation(reading, "changes only the side without x", mixed(given, right));
  AddEquation(reading, adds ? "subtracts instead of adding" : "adds instead of subtracting", wrong);
  AddEquation(reading, "adds on the side with x and subtracts on the other",
              adds ? mixed(right, wrong) : mixed(wrong, right));
  AddEquation(reading, "subtracts on the side with x and adds on the other",
              adds ? mixed(wrong, right) : mixed(right, wrong));
  Equation inFront = mixed(given, right);
  inFront.a += step.number;
  AddEquation(reading, "changes the number in front of x", inFront);
  if (adds) return;
  Equation order = right;
  order.c = -right.c;
  AddEquation(reading, "subtracts in the wrong order on the side without x", order);
}

void AddProductMistakes(Reading& reading, const Equation& given, const NamedStep& named) {
  const bool multiplies = named.verb == Verb::Multiply;
  const Step step = StepOf(named.verb, named.number);
  const Step sum = {true, multiplies ? named.number : Rational(-named.number)};
  const Equation right = After(step, given);
  const Equation summed = After(sum, given);
  const auto add = [&](const char* multiplying, const char* dividing, const Rational& a,
                       const Rational& b, const Rational& c) {
    AddEquation(reading, multiplies ? multiplying : dividing, {a, b, c, given.turned});
  };
  AddEquation(reading, "changes only the side with x", {right.a, right.b, given.c, given.turned});
  AddEquation(reading, "changes only the side without x",
              {given.a, given.b, right.c, given.turned});
  add("adds instead of multiplying", "subtracts instead of dividing", summed.a, summed.b, summed.c);
  add("multiplies the side with x and adds on the other",
      "divides the side with x and subtracts on the other", right.a, right.b, summed.c);
  add("multiplies only the term with x", "divides only the term with x", right.a, given.b, right.c);
  add("multiplies everything but the term with x", "divides everything but the term with x",
      given.a, right.b, right.c);
  add("adds on the side with x and multiplies the other",
      "subtracts on the side with x and divides the other", summed.a, summed.b, right.c);
}

Reading ReadSecondEquation(const Equation& given, const std::string& sentence) {
  const std::string ending = " gives which equation?";
  if (!sentence.ends_with(ending)) throw Unreadable("\"" + sentence + "\" asks for no equation");
  const NamedStep named = ReadStep(sentence);
  Reading reading;
  reading.kind = sentence.substr(0, sentence.find(' ')) + ", which equation";
  reading.answer = TextOf(After(StepOf(named.verb, named.number), given));
  reading.value = [](const std::string& choice) { return TextOf(ReadEquation(choice)); };
  if (named.verb == Verb::Add || named.verb == Verb::Subtract)
    AddSumMistakes(reading, given, named);
  else
    AddProductMistakes(reading, given, named);
  return reading;
}

// The one step that leads from the given to the second equation.
NamedStep StepBetween(const Equation& given, const Equation& second) {
  NamedStep named;
  if (given.a == second.a && given.b != second.b) {
    named.number = second.b - given.b;
  } else {
    named.verb = Verb::Multiply;
    named.number = second.a / given.a;
  }
  if (TextOf(After(StepOf(named.verb, named.number), given)) != TextOf(second))
    throw Unreadable("no step leads from one equation to the other");
  return named;
}

Reading ReadDoneStep(const Equation& given, const Equation& second) {
  const NamedStep done = StepBetween(given, second);
  const bool sum = done.verb == Verb::Add;
  Reading reading;
  reading.kind = std::string(sum ? "A sum" : "A product") + ", which step";
  const Step step = StepOf(done.verb, done.number);
  reading.answer = TextOf(step);
  reading.value = [](const std::string& choice) {
    const NamedStep named = ReadStep(choice);
    return TextOf(StepOf(named.verb, named.number));
  };
  const auto add = [&](const char* name, Verb verb, const Rational& number) {
    if (verb == Verb::Divide && number == 0) return;
    reading.mistakes[name].push_back(TextOf(StepOf(verb, number)));
  };
  const auto addBoth = [&](const char* name, Verb one, Verb other, const Rational& number) {
    add(name, one, number);
    add(name, other, number);
  };
  const Verb forward = sum ? Verb::Add : Verb::Multiply;
  const Verb back = sum ? Verb::Subtract : Verb::Divide;
  add("does the opposite", back, done.number);
  addBoth("reads the number on the side without x of the second equation", forward, back, second.c);
  if (sum) {
    addBoth("reads the number beside x in the second equation", forward, back, second.b);
    addBoth("does the opposite and reads the number beside x", forward, back, second.b);
    addBoth("does the opposite and reads the number without x", forward, back, second.c);
    add("takes the step that leaves the term with x alone", Verb::Subtract, given.b);
    add("takes a sum for a product", Verb::Multiply, done.number);
    add("takes a sum for a product", Verb::Divide, -done.number);
    return reading;
  }
  add(done.number < 0 ? "overlooks the minus sign" : "puts in a minus sign", forward, -done.number);
  add(done.number < 0 ? "overlooks the minus sign" : "puts in a minus sign", back,
      -1 / done.number);
  const Rational size = abs(done.number) < 1 ? Rational(1 / done.number) : done.number;
  addBoth("reads the number in front of x in the second equation", forward, back, second.a);
  addBoth("takes a product for a sum", Verb::Add, Verb::Subtract, size);
  add("compares the numbers in front of x by subtracting", Verb::Add, second.a - given.a);
  add("compares the sides without x by subtracting", Verb::Add, second.c - given.c);
  return reading;
}

Reading ReadBothSides(const course::Problem& problem) {
  const auto& lines = problem.question;
  if (lines.size() < 3 || lines[0] != "Given:") throw Unreadable("nothing is given");
  const Equation given = ReadEquation(lines[1]);
  const bool asksForStep = lines.size() == 5 && lines[2] == "Second equation:";
  Reading reading = asksForStep ? ReadDoneStep(given, ReadEquation(lines[3]))
                                : ReadSecondEquation(given, lines.back());
  reading.Within("a coefficient", given.a, -4, 4);
  return reading;
}

const JudgeRegistration kRegistration(ReadBothSides, {"Properties of Equations"});

}  // namespace
}  // namespace lesson_check
