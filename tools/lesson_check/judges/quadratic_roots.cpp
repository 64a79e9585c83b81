// A quadratic equation: its two roots, its one, or none.
#include <cstdlib>
#include <optional>
#include <set>

#include "lesson_check/exact/notation.h"
#include "lesson_check/exact/relations.h"
#include "lesson_check/exact/unreadable.h"
#include "lesson_check/judge.h"
#include "mathkit/tutor_codes.h"

namespace lesson_check {
namespace {

constexpr const char* kNoRealRoots = "No real roots";

struct Quadratic {
  Rational a, b, c;
  Rational Discriminant() const { return b * b - 4 * a * c; }
};

Quadratic ReadEquation(const course::Problem& problem) {
  for (const std::string& line : problem.question) {
    const Statement cut = CutAtRelations(line);
    if (cut.relations.size() != 1 || cut.relations[0] != '=') continue;
    const char x = LetterOf(line);
    const Polynomial left = ValueOf(cut.sides[0]) - ValueOf(cut.sides[1]);
    if (left.Degree(x) != 2) throw Unreadable("\"" + line + "\" is not quadratic");
    return {left.Coefficient(x, 2).Number(), left.Coefficient(x, 1).Number(),
            left.Coefficient(x, 0).Number()};
  }
  throw Unreadable("the question has no equation");
}

// Roots as a set, in a canonical order; the same root twice is one.
std::string TextOf(const std::vector<Polynomial>& roots) {
  std::set<std::string> texts;
  for (const Polynomial& root : roots) texts.insert(root.Text());
  std::string text;
  for (const std::string& root : texts) text += (text.empty() ? "" : " or ") + root;
  return text.empty() ? kNoRealRoots : text;
}

// (first plus or minus the root of under) over below.
std::string RootsText(const Rational& first, const Rational& under, const Rational& below) {
  if (under < 0) return kNoRealRoots;
  const Polynomial root = Polynomial::Root(Polynomial(under));
  const Polynomial divisor(below);
  return TextOf({(Polynomial(first) + root) / divisor, (Polynomial(first) - root) / divisor});
}

std::string ValueOfChoice(const std::string& choice) {
  const std::string text = Trimmed(choice);
  if (text == kNoRealRoots) return kNoRealRoots;
  const std::size_t at = text.find(" or ");
  if (at != std::string::npos)
    return TextOf({ValueOf(text.substr(0, at)), ValueOf(text.substr(at + 4))});
  const Expression expression = ParseExpression(text);
  return TextOf({ValueOf(expression, 1), ValueOf(expression, -1)});
}

void AddMistakes(const Quadratic& q, Reading& reading) {
  const Rational discriminant = q.Discriminant();
  const bool real = discriminant >= 0;
  // Who loses the minus sign goes on with the others' mistakes, too.
  const std::string lost = real ? "" : "loses the minus sign under the radical";
  const Rational under = abs(discriminant);
  const auto name = [&](const std::string& mistake) {
    return lost.empty() ? mistake : lost + " and " + mistake;
  };
  // The sign of 4ac is wrong, or b^2^ of a negative b is taken to be negative.
  const bool signMistake =
      q.b * q.b + 4 * q.a * q.c < 0 || (q.b < 0 && -q.b * q.b - 4 * q.a * q.c < 0);
  if (real && signMistake)
    reading.mistakes["gets a negative discriminant by a sign mistake"] = {kNoRealRoots};
  if (!real) reading.mistakes[lost] = {RootsText(-q.b, under, 2 * q.a)};
  reading.mistakes[name("puts b where -b belongs")] = {RootsText(q.b, under, 2 * q.a)};
  reading.mistakes[name("forgets to divide by 2a")] = {RootsText(-q.b, under, 1)};
  reading.mistakes[name("divides only the radical by 2a")] = {
      RootsText(-2 * q.a * q.b, under, 2 * q.a)};
  reading.mistakes[name("divides by a")] = {RootsText(-q.b, under, q.a)};
  if (!real) reading.mistakes[name("divides by 2")] = {RootsText(-q.b, under, 2)};
  reading.mistakes["leaves out the 4 of 4ac"] = {RootsText(-q.b, q.b * q.b - q.a * q.c, 2 * q.a)};
  reading.mistakes["adds 4ac"] = {RootsText(-q.b, q.b * q.b + 4 * q.a * q.c, 2 * q.a)};
}

bool HasSquareFactor(const mpz_class& n) {
  for (mpz_class root = 2; root * root <= n; ++root)
    if (n % (root * root) == 0) return true;
  return false;
}

// One root, or two with plus or minus: a radicand keeps no square factor, and a fraction no common
// one.
std::string FlawOfRoot(const std::string& text) {
  const std::vector<std::string> numbers = NumbersIn(text);
  const std::size_t sign = text.find(course::tutor::SquareRoot);
  std::optional<std::string> radicand;
  if (sign != std::string::npos) radicand = NumbersIn(text.substr(sign)).at(0);
  mpz_class common = 0;
  bool skipped = false;  // the radicand itself
  const std::size_t before = sign == std::string::npos ? 0 : NumbersIn(text.substr(0, sign)).size();
  for (std::size_t i = 0; i < numbers.size(); ++i) {
    if (radicand && i == before && !skipped)
      skipped = true;
    else
      common = gcd(common, mpz_class(numbers[i], 10));
  }
  if (radicand && (*radicand == "1" || HasSquareFactor(mpz_class(*radicand, 10))))
    return "has a square under the radical";
  // A bare root counts as a factor of 1.
  const bool bare = radicand && (sign == 0 || text[sign - 1] < '0' || text[sign - 1] > '9');
  if (text.find('/') == std::string::npos || bare) return "";
  return common == 1 ? "" : "can be reduced";
}

std::string FlawOfRoots(const std::string& choice) {
  const std::string text = Trimmed(choice);
  if (text == kNoRealRoots) return "";
  const std::size_t at = text.find(" or ");
  if (at == std::string::npos) return FlawOfRoot(text);
  const std::string first = FlawOfRoot(text.substr(0, at));
  return first.empty() ? FlawOfRoot(text.substr(at + 4)) : first;
}

// The real roots of a quadratic equation.
Reading ReadQuadraticEquation(const course::Problem& problem) {
  const Quadratic equation = ReadEquation(problem);
  Reading reading;
  reading.answer = RootsText(-equation.b, equation.Discriminant(), 2 * equation.a);
  reading.value = ValueOfChoice;
  reading.flaw = FlawOfRoots;
  AddMistakes(equation, reading);
  return reading;
}

const JudgeRegistration kRegistration(ReadQuadraticEquation, {"The Quadratic Formula"});

}  // namespace
}  // namespace lesson_check
