// Equations with several letters, linear in the one that is asked for: "Solve for x.", "4x - 3y =
// z", "2(x + y) = 6z", "y = 3/4 x + 5z".

#include "lesson_check/exact/notation.h"
#include "lesson_check/exact/relations.h"
#include "lesson_check/exact/unreadable.h"
#include "lesson_check/judge.h"

namespace lesson_check {
namespace {

using Kind = Expression::Kind;

constexpr const char* kKeepsSign = " and keeps the sign of the other term";

// coefficient x + added = alone
struct LiteralEquation {
  char asked = 0;
  Polynomial coefficient;
  Polynomial added;
  Polynomial alone;
  bool inParentheses = false;  // coefficient (x + added) = alone, the coefficient taken out
  bool fraction = false;       // the coefficient is written as one
};

char AskedLetter(const std::string& line) {
  const std::string words = "Solve for ";
  if (!line.starts_with(words) || line.size() != words.size() + 2 || line.back() != '.')
    throw Unreadable("\"" + line + "\" asks for no letter");
  return line[words.size()];
}

bool HasParentheses(const std::string& side) {
  return side.find('(') != std::string::npos;
}

LiteralEquation ReadEquation(const course::Problem& problem) {
  if (problem.question.size() != 2) throw Unreadable("not a sentence and an equation");
  LiteralEquation equation;
  equation.asked = AskedLetter(problem.question[0]);
  const Statement cut = CutAtRelations(problem.question[1]);
  if (cut.sides.size() != 2 || cut.relations[0] != '=') throw Unreadable("no equation");
  const bool right = ValueOf(cut.sides[1]).Degree(equation.asked) > 0;
  const std::string& side = cut.sides[right ? 1 : 0];
  const Polynomial value = ValueOf(side);
  equation.alone = ValueOf(cut.sides[right ? 0 : 1]);
  equation.coefficient = value.Coefficient(equation.asked, 1);
  equation.added = value.Coefficient(equation.asked, 0);
  equation.inParentheses = HasParentheses(side);
  equation.fraction = side.find('/') != std::string::npos;
  if (equation.inParentheses) equation.added = equation.added / equation.coefficient;
  const bool fits = value.Degree(equation.asked) == 1 && equation.coefficient.TermCount() == 1 &&
                    equation.added.TermCount() == 1 && equation.alone.TermCount() == 1 &&
                    equation.alone.Degree(equation.asked) == 0;
  if (!fits) throw Unreadable("\"" + problem.question[1] + "\" is no sum of two terms");
  return equation;
}

Polynomial SolutionOf(const LiteralEquation& e) {
  return e.inParentheses ? e.alone / e.coefficient - e.added : (e.alone - e.added) / e.coefficient;
}

// The only letter of a term.
char LetterIn(const Polynomial& term) {
  const std::string letters = term.Letters();
  if (letters.size() != 1) throw Unreadable("a term with the letters \"" + letters + "\"");
  return letters[0];
}

LiteralEquation WithLettersExchanged(const LiteralEquation& e) {
  const bool byLetter = !e.coefficient.IsNumber();
  const char first = LetterIn(e.alone);
  const char second = LetterIn(byLetter ? e.coefficient : e.added);
  const Polynomial held = Polynomial::Letter('#');
  const auto exchange = [&](const Polynomial& value) {
    return value.With(first, held)
        .With(second, Polynomial::Letter(first))
        .With('#', Polynomial::Letter(second));
  };
  LiteralEquation exchanged = e;
  exchanged.alone = exchange(e.alone);
  exchanged.added = exchange(e.added);
  exchanged.coefficient = exchange(e.coefficient);
  return exchanged;
}

LiteralEquation WithSignKept(LiteralEquation e) {
  e.added = -e.added;
  return e;
}

bool CoefficientIsOne(const LiteralEquation& e) {
  return e.coefficient.IsNumber() && abs(e.coefficient.Number()) == 1;
}

void AddDivisionMistakes(const LiteralEquation& e, Reading& reading) {
  const auto add = [&](const std::string& name, const Polynomial& value) {
    reading.mistakes[name] = {value.Text()};
  };
  add("removes a term from one side only", e.alone / e.coefficient);
  if (e.inParentheses) {
    add("multiplies only the first letter in the parentheses", (e.alone - e.added) / e.coefficient);
    return;
  }
  add(e.fraction ? "multiplies only the first term" : "divides only the first term",
      e.alone / e.coefficient - e.added);
  const std::string name =
      e.fraction ? "multiplies by the fraction itself" : "multiplies by what should divide";
  add(name, (e.alone - e.added) * e.coefficient);
  add(name + kKeepsSign, (e.alone + e.added) * e.coefficient);
  const bool negative = e.coefficient.IsNumber() && e.coefficient.Number() < 0;
  if (negative && !e.fraction)
    add("overlooks the minus sign of the coefficient", (e.added - e.alone) / e.coefficient);
}

void AddMistakesWithoutDivision(const LiteralEquation& e, Reading& reading) {
  const auto add = [&](const std::string& name, const Polynomial& value) {
    reading.mistakes[name] = {value.Text()};
  };
  if (e.coefficient.Number() < 0) {
    add("forgets the minus sign in front of the letter", e.alone - e.added);
    add("changes no sign at all", e.alone + e.added);
  } else {
    add("divides by the term that is added", e.alone / e.added);
  }
  if (e.coefficient.Number() > 0) add("subtracts in the wrong order", e.added - e.alone);
}

void AddMistakes(const LiteralEquation& e, Reading& reading) {
  const auto add = [&](const std::string& name, const Polynomial& value) {
    reading.mistakes[name] = {value.Text()};
  };
  add("carries a term across without changing its sign", SolutionOf(WithSignKept(e)));
  const LiteralEquation exchanged = WithLettersExchanged(e);
  add("exchanges the other two letters", SolutionOf(exchanged));
  add(std::string("exchanges the other two letters") + kKeepsSign,
      SolutionOf(WithSignKept(exchanged)));
  // x + y = 4z is the sum -(x + y) = 4z without its factor.
  const Rational number = e.alone.Coefficient(LetterIn(e.alone), 1).Number();
  const bool wholeSum = e.inParentheses || (CoefficientIsOne(e) && abs(number) != 1);
  if (wholeSum) {
    const Polynomial letter = Polynomial::Letter(LetterIn(e.alone));
    const Polynomial quotient = e.coefficient / Polynomial(number);
    for (const std::string name :
         {"turns the fraction upside down", "divides by what should multiply"}) {
      add(name, quotient * letter - e.added);
      add(name + kKeepsSign, quotient * letter + e.added);
    }
    for (const char* name :
         {"subtracts in the wrong order", "forgets the minus sign before the letter"})
      add(name, e.added - e.alone / e.coefficient);
  }
  if (wholeSum && CoefficientIsOne(e)) return;
  if (CoefficientIsOne(e))
    AddMistakesWithoutDivision(e, reading);
  else
    AddDivisionMistakes(e, reading);
}

// A fraction whose numerator, all of its terms, and denominator share a number.
bool CanBeReduced(const Expression& e) {
  if (e.kind == Kind::Quotient && ValueOf(e.parts[1]).IsNumber()) {
    const Polynomial above = ValueOf(e.parts[0]);
    mpz_class common = ValueOf(e.parts[1]).Number().get_num();
    if (above.IsNumber()) common = gcd(common, above.Number().get_num());
    for (const char letter : above.Letters())
      common = gcd(common, above.Coefficient(letter, 1).Number().get_num());
    if (common != 1) return true;
  }
  for (const Expression& part : e.parts)
    if (CanBeReduced(part)) return true;
  return false;
}

// "(z - 4y)/3" of "x = (z - 4y)/3".
std::string SolvedSide(const std::string& choice, char asked) {
  const Statement cut = CutAtRelations(choice);
  const bool solved = cut.sides.size() == 2 && cut.relations[0] == '=' &&
                      Trimmed(cut.sides[0]) == std::string(1, asked);
  if (!solved) throw Unreadable("\"" + choice + "\" is no solved formula");
  return cut.sides[1];
}

std::string KindOf(const LiteralEquation& e, const std::string& line) {
  if (!e.coefficient.IsNumber()) return "a letter as coefficient";
  if (e.fraction) return "a formula with a fraction";
  const Rational number = e.alone.Coefficient(LetterIn(e.alone), 1).Number();
  if (e.inParentheses || abs(number) != 1)
    return CoefficientIsOne(e) ? "a sum, factor 1 or -1" : "a sum in parentheses";
  const bool left = line.find('=') > line.find(e.asked);
  return std::string(left ? "two terms on the left" : "two terms on the right") +
         (CoefficientIsOne(e) ? ", coefficient 1 or -1" : "");
}

Reading ReadLiteralEquation(const course::Problem& problem) {
  const LiteralEquation equation = ReadEquation(problem);
  Reading reading;
  reading.kind = KindOf(equation, problem.question[1]);
  reading.answer = SolutionOf(equation).Text();
  reading.value = [asked = equation.asked](const std::string& choice) {
    const Polynomial value = ValueOf(SolvedSide(choice, asked));
    if (value.Degree(asked) != 0) throw Unreadable("the letter asked for stands in a choice");
    return value.Text();
  };
  reading.flaw = [](const std::string& choice) {
    const Statement cut = CutAtRelations(choice);
    return std::string(CanBeReduced(ParseExpression(cut.sides.back())) ? "can be reduced" : "");
  };
  AddMistakes(equation, reading);
  return reading;
}

const JudgeRegistration kRegistration(ReadLiteralEquation,
                                      {"Solving Literal Equations and Formulas"});

}  // namespace
}  // namespace lesson_check
