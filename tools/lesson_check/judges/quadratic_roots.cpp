#include "lesson_check/judges/quadratic_roots.h"

#include <optional>
#include <set>

#include "lesson_check/exact/notation.h"
#include "lesson_check/exact/relations.h"
#include "lesson_check/exact/unreadable.h"
#include "mathkit/tutor_codes.h"

namespace lesson_check {

Quadratic ReadQuadratic(const course::Problem& problem) {
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

std::string TextOfRoots(const std::vector<Polynomial>& roots) {
  std::set<std::string> texts;
  for (const Polynomial& root : roots) texts.insert(root.Text());
  std::string text;
  for (const std::string& root : texts) text += (text.empty() ? "" : " or ") + root;
  return text.empty() ? kNoRealRoots : text;
}

std::string RootsText(const Rational& first, const Rational& under, const Rational& below) {
  if (under < 0) return kNoRealRoots;
  const Polynomial root = Polynomial::Root(Polynomial(under));
  const Polynomial divisor(below);
  return TextOfRoots({(Polynomial(first) + root) / divisor, (Polynomial(first) - root) / divisor});
}

std::string ValueOfRoots(const std::string& choice) {
  const std::string text = Trimmed(choice);
  if (text == kNoRealRoots) return kNoRealRoots;
  const std::size_t at = text.find(" or ");
  if (at != std::string::npos)
    return TextOfRoots({ValueOf(text.substr(0, at)), ValueOf(text.substr(at + 4))});
  const Expression expression = ParseExpression(text);
  return TextOfRoots({ValueOf(expression, 1), ValueOf(expression, -1)});
}

namespace {

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

}  // namespace

std::string FlawOfRoots(const std::string& choice) {
  const std::string text = Trimmed(choice);
  if (text == kNoRealRoots) return "";
  const std::size_t at = text.find(" or ");
  if (at == std::string::npos) return FlawOfRoot(text);
  const std::string first = FlawOfRoot(text.substr(0, at));
  return first.empty() ? FlawOfRoot(text.substr(at + 4)) : first;
}

}  // namespace lesson_check
