// The square root of a number or of a term with letters, simplified.  Two roots are the same answer
// when they are written alike: twice the root of 18 is six times the root of 2, and not simplified.
#include <map>
#include <utility>

#include "lesson_check/exact/notation.h"
#include "lesson_check/exact/unreadable.h"
#include "lesson_check/judge.h"
#include "lesson_check/judges/combined_sum.h"
#include "mathkit/tutor_codes.h"

namespace lesson_check {
namespace {

using Kind = Expression::Kind;

// A prime or a letter, and how often it is a factor.
using Factors = std::map<std::string, int>;

void AddPrimes(mpz_class number, Factors& factors) {
  for (mpz_class divisor = 2; number > 1; ++divisor)
    for (; number % divisor == 0; number /= divisor) ++factors[divisor.get_str()];
}

Factors FactorsOf(const Polynomial& term) {
  const Rational number = CoefficientOf(term);
  if (number.get_den() != 1 || number < 1)
    throw Unreadable("\"" + term.Text() + "\" has no prime factors");
  Factors factors;
  AddPrimes(number.get_num(), factors);
  for (const char letter : term.Letters()) factors[std::string(1, letter)] = term.Degree(letter);
  return factors;
}

Polynomial ProductOf(const Factors& factors) {
  Polynomial product(Rational(1));
  for (const auto& [name, count] : factors) {
    const bool letter = name[0] >= 'a';
    const Polynomial factor =
        letter ? Polynomial::Letter(name[0]) : Polynomial(Rational(mpz_class(name, 10)));
    for (int i = 0; i < count; ++i) product = product * factor;
  }
  return product;
}

struct WrittenRoot {
  Factors outside;
  Factors inside;
  std::string Text() const {
    return ProductOf(outside).Text() + " root " + ProductOf(inside).Text();
  }
  // With so many more of a factor outside and inside; no count stays below 0.
  WrittenRoot With(const std::string& factor, int moreOutside, int moreInside) const {
    WrittenRoot other = *this;
    other.outside[factor] += moreOutside;
    other.inside[factor] += moreInside;
    return other;
  }
};

WrittenRoot ReadRoot(const std::string& text) {
  const Expression expression = ParseExpression(text);
  std::vector<Expression> parts = {expression};
  if (expression.kind == Kind::Product) parts = expression.parts;
  Polynomial outside(Rational(1));
  Polynomial inside(Rational(1));
  for (const Expression& part : parts) {
    if (part.kind == Kind::Root)
      inside = inside * ValueOf(part.parts.at(0));
    else
      outside = outside * ValueOf(part);
  }
  return {FactorsOf(outside), FactorsOf(inside)};
}

WrittenRoot Simplified(const Factors& radicand) {
  WrittenRoot root;
  for (const auto& [name, count] : radicand) {
    root.outside[name] = count / 2;
    root.inside[name] = count % 2;
  }
  return root;
}

bool IsOne(const Factors& factors) {
  return ProductOf(factors).Text() == "1";
}

bool IsNumberName(const std::string& name) {
  return name[0] < 'a';
}

// --- Mistakes ------------------------------------------------------------------------------------

class Mistakes {
 public:
  Mistakes(const WrittenRoot& right, Reading& reading) : right_(right), reading_(reading) {}

  void WithSquare() {
    AddOutside();
    AddInside();
    for (const auto& [outside, changed] : outside_) {
      Add(outside, {changed, right_.inside});
      for (const auto& [inside, kept] : inside_) Add(outside + " and " + inside, {changed, kept});
    }
    for (const auto& [inside, kept] : inside_) Add(inside, {right_.outside, kept});
    for (const auto& [name, count] : right_.outside)
      if (count > 0) Add("leaves a square factor under the radical", right_.With(name, -1, 2));
    for (const auto& [name, count] : right_.inside)
      if (count > 0) Add("brings out a factor that has no pair", right_.With(name, 1, -1));
    if (IsOne(right_.inside))
      Add("takes the root and keeps the radical sign", {{}, right_.outside});
  }

  void WithoutSquare(const mpz_class& number) {
    for (mpz_class root = 2; root * root + 2 <= number; ++root)
      AddRoot("splits the radicand into a sum and brings out the root of one part", root,
              number - root * root);
    for (const auto& [name, count] : right_.inside) {
      if (count == 0) continue;
      const mpz_class factor(name, 10);
      AddRoot("brings out a factor and leaves it inside, too", factor, number);
      if (factor == number) continue;
      AddRoot("brings out a factor that has no pair", factor, number / factor);
      AddRoot("loses a factor that has no pair", 1, number / factor);
    }
    const mpz_class below = sqrt(number);
    const bool nearer = number - below * below < (below + 1) * (below + 1) - number;
    AddRoot("takes the root of the nearest perfect square", nearer ? below : mpz_class(below + 1),
            1);
    if (number % 2 == 0) AddRoot("takes half of the number instead of its root", number / 2, 1);
    AddRoot("leaves out the radical sign", number, 1);
    AddRoot("squares the number instead of taking its root", number * number, 1);
  }

 private:
  void Add(const std::string& name, const WrittenRoot& root) {
    if (root.Text() != right_.Text()) reading_.mistakes[name].push_back(root.Text());
  }
  void AddRoot(const std::string& name, const mpz_class& outside, const mpz_class& inside) {
    WrittenRoot root;
    AddPrimes(outside, root.outside);
    AddPrimes(inside, root.inside);
    Add(name, root);
  }
  void AddOutside() {
    for (const auto& [name, count] : right_.outside)
      if (count > 0)
        outside_.emplace_back("brings a square out without taking its root",
                              right_.With(name, 1, 0).outside);
    // A half of n^2 is n/2 times n.
    if (const auto two = right_.outside.find("2"); two != right_.outside.end() && two->second > 0) {
      Factors halved = right_.outside;
      for (auto& [name, count] : halved)
        if (IsNumberName(name)) count *= 2;
      --halved["2"];
      outside_.emplace_back("halves the square factor instead of taking its root", halved);
    }
    AddSum();
  }

  void AddSum() {
    mpz_class sum = 0;
    int terms = 0;
    Factors added = right_.outside;
    for (auto& [name, count] : added) {
      if (!IsNumberName(name)) continue;
      sum += mpz_class(name, 10) * count;
      terms += count;
      count = 0;
    }
    if (terms < 2) return;
    AddPrimes(sum, added);
    outside_.emplace_back("adds the factors that come out instead of multiplying", added);
  }

  void AddInside() {
    for (const auto& [name, count] : right_.outside)
      if (count > 0)
        inside_.emplace_back("leaves one factor of a pair under the radical",
                             right_.With(name, 0, 1).inside);
    for (const auto& [name, count] : right_.inside)
      if (count > 0)
        inside_.emplace_back("loses a factor that has no pair", right_.With(name, 0, -1).inside);
  }

  using Changed = std::vector<std::pair<std::string, Factors>>;  // by a mistake

  WrittenRoot right_;
  Reading& reading_;
  Changed outside_;
  Changed inside_;
};

// --- Question and choices ------------------------------------------------------------------------

// A radical with nothing but 1 under it, or no factor where one is printed.
std::string FlawOf(const std::string& choice) {
  const bool hasSign = choice.find(course::tutor::SquareRoot) != std::string::npos;
  return hasSign && IsOne(ReadRoot(choice).inside) ? "has nothing under the radical" : "";
}

void CheckRadicand(const Polynomial& radicand, Reading& reading) {
  const std::string letters = radicand.Letters();
  reading.Within("the number under the radical", CoefficientOf(radicand), letters.empty() ? 2 : 32,
                 9999);
  reading.Within("the count of letters", static_cast<long>(letters.size()), 0, 2);
  for (const char letter : letters) reading.Within("an exponent", radicand.Degree(letter), 2, 5);
}

std::string KindOf(const Polynomial& radicand, const WrittenRoot& root) {
  const std::size_t letters = radicand.Letters().size();
  const std::string size = letters > 0
                               ? std::to_string(letters) + (letters > 1 ? " letters" : " letter")
                               : (radicand.Number() > 201 ? "larger number" : "number");
  if (IsOne(root.outside)) return size + ", simple already";
  return size + (IsOne(root.inside) ? ", a perfect square" : "");
}

Reading ReadSimplifyingRadicals(const course::Problem& problem) {
  const WrittenRoot asked = ReadRoot(problem.question.back());
  if (!IsOne(asked.outside)) throw Unreadable("there is a factor outside the radical");
  const Polynomial radicand = ProductOf(asked.inside);
  const WrittenRoot right = Simplified(asked.inside);
  Reading reading;
  reading.answer = right.Text();
  reading.value = [](const std::string& choice) { return ReadRoot(choice).Text(); };
  reading.flaw = FlawOf;
  reading.kind = KindOf(radicand, right);
  CheckRadicand(radicand, reading);
  Mistakes mistakes(right, reading);
  if (IsOne(right.outside))
    mistakes.WithoutSquare(radicand.Number().get_num());
  else
    mistakes.WithSquare();
  return reading;
}

const JudgeRegistration kRegistration(ReadSimplifyingRadicals, {"Simplifying Radicals"});

}  // namespace
}  // namespace lesson_check
