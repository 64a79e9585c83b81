// A sum to be simplified: products are multiplied out, then like terms are combined.  A sum in
// parentheses alone counts as a product with the factor 1 or -1.
#include "lesson_check/judges/combined_sum.h"

#include <algorithm>
#include <cctype>

#include "lesson_check/exact/notation.h"
#include "lesson_check/exact/unreadable.h"
#include "mathkit/tutor_codes.h"

namespace lesson_check {
namespace {

using Kind = Expression::Kind;
using Terms = std::vector<Polynomial>;

// What stands between two signs of the sum: a term, or a number times a sum in parentheses.
struct Part {
  Rational factor = 1;
  bool isProduct = false;
  Terms inside;
};

struct WrittenSum {
  std::vector<Part> parts;
  Terms Expanded() const {
    Terms terms;
    for (const Part& part : parts)
      for (const Polynomial& term : part.inside) terms.push_back(Polynomial(part.factor) * term);
    return terms;
  }
};

Polynomial SumOf(const Terms& terms) {
  Polynomial sum;
  for (const Polynomial& term : terms) sum = sum + term;
  return sum;
}

Terms TermsOf(const Expression& sum) {
  Terms terms;
  if (sum.kind == Kind::Sum)
    for (const Expression& part : sum.parts) terms.push_back(ValueOf(part));
  else
    terms.push_back(ValueOf(sum));
  for (const Polynomial& term : terms)
    if (term.TermCount() != 1) throw Unreadable("a part of the sum is no term");
  return terms;
}

Part ReadPart(const Expression& expression) {
  if (expression.kind == Kind::Minus) {
    Part part = ReadPart(expression.parts.at(0));
    part.factor = -part.factor;
    return part;
  }
  const bool product = expression.kind == Kind::Product && expression.parts.size() == 2 &&
                       expression.parts[0].kind == Kind::Number && expression.parts[1].bracketed;
  if (!product) return {1, expression.bracketed, TermsOf(expression)};
  return {expression.parts[0].number, true, TermsOf(expression.parts[1])};
}

WrittenSum ReadSum(const std::string& text) {
  const Expression expression = ParseExpression(text);
  WrittenSum sum;
  if (expression.kind == Kind::Sum)
    for (const Expression& part : expression.parts) sum.parts.push_back(ReadPart(part));
  else
    sum.parts.push_back(ReadPart(expression));
  for (Part& part : sum.parts) {  // -2x is a term, and no product of -1 and 2x
    if (part.isProduct) continue;
    part.inside[0] = Polynomial(part.factor) * part.inside[0];
    part.factor = 1;
  }
  return sum;
}

bool IsNumber(const Polynomial& term) {
  return term.IsNumber();
}

// --- Mistakes ------------------------------------------------------------------------------------

class Mistakes {
 public:
  // Of someone who makes another one before, or none.
  explicit Mistakes(Reading& reading, const std::string& before = "")
      : reading_(reading), before_(before.empty() ? "" : before + " and ") {}
  void Add(const std::string& name, const Polynomial& value) {
    if (value.Text() != reading_.answer) reading_.mistakes[before_ + name].push_back(value.Text());
  }

 private:
  Reading& reading_;
  std::string before_;
};

std::vector<Terms> Groups(const Terms& terms) {
  std::vector<Terms> groups;
  for (const Polynomial& term : terms) {
    const auto like = std::ranges::find_if(
        groups, [&](const Terms& group) { return LettersOf(group[0]) == LettersOf(term); });
    if (like == groups.end())
      groups.push_back({term});
    else
      like->push_back(term);
  }
  return groups;
}

std::vector<Terms> GroupsThatStay(const Terms& terms) {
  std::vector<Terms> groups = Groups(terms);
  std::erase_if(groups, [](const Terms& group) { return SumOf(group).IsZero(); });
  return groups;
}

// The letters of a term if its kind had been multiplied and not added.
Polynomial LettersMultiplied(const Terms& group) {
  return LettersOf(group[0]).Power(static_cast<int>(group.size()));
}

int DegreeOf(const Polynomial& term) {
  int degree = 0;
  for (const char letter : term.Letters()) degree += term.Degree(letter);
  return degree;
}

// Two neighbours in falling powers made one term, with the letters of both.
void AddUnlikeCombined(const std::string& name, const Terms& terms, Mistakes mistakes) {
  Terms kinds;
  for (const Terms& group : GroupsThatStay(terms)) kinds.push_back(SumOf(group));
  std::ranges::stable_sort(kinds, std::ranges::greater{}, DegreeOf);
  for (std::size_t i = 1; i < kinds.size(); ++i) {
    const Polynomial& a = kinds[i - 1];
    const Polynomial& b = kinds[i];
    const Polynomial one =
        Polynomial(CoefficientOf(a) + CoefficientOf(b)) * LettersOf(a) * LettersOf(b);
    mistakes.Add(name, SumOf(terms) - a - b + one);
  }
}

Terms WithExponentsAdded(const std::vector<Terms>& groups) {
  Terms terms;
  for (const Terms& group : groups)
    terms.push_back(Polynomial(CoefficientOf(SumOf(group))) * LettersMultiplied(group));
  return terms;
}

void AddExponentsAdded(const std::vector<Terms>& groups, Mistakes& mistakes) {
  const bool anyAreLike = std::ranges::any_of(
      groups, [](const Terms& group) { return group.size() > 1 && !IsNumber(group[0]); });
  if (anyAreLike) mistakes.Add("adds the exponents too", SumOf(WithExponentsAdded(groups)));
}

// Polynomials tell terms and additions apart that are not told apart where one letter is met.
enum class Naming { InGeneral, ByTerm };

// Whether numbers that are added from left to right end with two of different signs.
bool LastSignsDiffer(const Terms& group) {
  const Rational last = CoefficientOf(group.back());
  const Polynomial before = SumOf(group) - group.back();
  if (before.IsZero()) return false;
  return CoefficientOf(before) * last < 0;
}

// "counts -x^2^ as 0x^2^"
std::string NameOfLone(const Polynomial& term, Naming naming) {
  if (naming == Naming::InGeneral) return "counts a letter alone as 0";
  const char letter = term.Letters().at(0);
  const int degree = term.Degree(letter);
  std::string power(1, letter);
  if (degree > 1) power += "^" + std::to_string(degree) + "^";
  return "counts " + std::string(CoefficientOf(term) < 0 ? "-" : "") +
         course::WithoutBreaks(power + " as 0" + power);
}

void AddGroupMistakes(const Terms& terms, const Terms& group, Mistakes& mistakes, Naming naming) {
  const Polynomial total = SumOf(group);
  const Polynomial rest = SumOf(terms) - total;
  if (group.size() < 2) return;
  const auto negative = [](const Polynomial& term) { return CoefficientOf(term) < 0; };
  const auto negatives = static_cast<std::size_t>(std::ranges::count_if(group, negative));
  if (negatives == group.size()) mistakes.Add("makes two negatives a positive", rest - total);
  const bool bothSigns = negatives != 0 && negatives != group.size();
  if (naming == Naming::ByTerm ? LastSignsDiffer(group) : bothSigns)
    mistakes.Add("takes the wrong sign in a sum of unlike signs", rest - total);
}

void AddCombiningMistakes(const Terms& terms, Mistakes mistakes, Naming naming) {
  const std::vector<Terms> groups = GroupsThatStay(terms);
  AddUnlikeCombined("combines unlike terms", terms, mistakes);
  AddExponentsAdded(groups, mistakes);
  for (const Terms& group : groups) AddGroupMistakes(terms, group, mistakes, naming);
}

// Terms that are combined after a slip, rightly or not.
void AddSlip(const std::string& name, Terms terms, Reading& reading,
             Naming naming = Naming::InGeneral) {
  std::erase_if(terms, [](const Polynomial& term) { return term.IsZero(); });
  Mistakes(reading).Add(name, SumOf(terms));
  AddCombiningMistakes(terms, Mistakes(reading, name), naming);
}

void AddReadingSlips(const Terms& terms, Reading& reading, Naming naming) {
  for (std::size_t i = 0; i < terms.size(); ++i) {
    const Rational coefficient = CoefficientOf(terms[i]);
    Terms without = terms;
    without.erase(without.begin() + static_cast<std::ptrdiff_t>(i));
    if (!IsNumber(terms[i]) && abs(coefficient) == 1)
      AddSlip(NameOfLone(terms[i], naming), without, reading, naming);
    if (i + 1 == terms.size()) {
      Mistakes(reading).Add("leaves out the last term", SumOf(without));
      AddUnlikeCombined("combines unlike terms", without,
                        Mistakes(reading, "leaves out the last term"));
    }
    Terms positive = terms;
    positive[i] = -positive[i];
    if (i == 0 || coefficient > 0) continue;
    AddSlip("leaves a minus sign behind", positive, reading, naming);
    const bool isLast = std::all_of(terms.begin() + static_cast<std::ptrdiff_t>(i) + 1, terms.end(),
                                    [](const Polynomial& t) { return CoefficientOf(t) > 0; });
    if (!isLast) Mistakes(reading).Add("leaves an earlier minus sign behind", SumOf(positive));
  }
}

// --- Products ------------------------------------------------------------------------------------

// The terms with the products worked otherwise.
template <class Worked>
Terms With(const WrittenSum& sum, Worked worked) {
  Terms terms;
  for (const Part& part : sum.parts)
    for (std::size_t i = 0; i < part.inside.size(); ++i)
      terms.push_back(part.isProduct ? worked(part.factor, part.inside[i], i) : part.inside[i]);
  return terms;
}

void AddProductSlips(const WrittenSum& sum, Reading& reading) {
  AddSlip("multiplies only the first term in the parentheses",
          With(sum, [](const Rational& factor, const Polynomial& term,
                       std::size_t i) { return i == 0 ? Polynomial(factor) * term : term; }),
          reading);
  AddSlip("adds the factor instead of multiplying",
          With(sum,
               [](const Rational& factor, const Polynomial& term, std::size_t) {
                 return Polynomial(factor + CoefficientOf(term)) * LettersOf(term);
               }),
          reading);
  AddSlip("carries the minus sign to the first term only",
          With(sum,
               [](const Rational& factor, const Polynomial& term, std::size_t i) {
                 return Polynomial(i == 0 ? factor : Rational(abs(factor))) * term;
               }),
          reading);
  const std::vector<Part>& parts = sum.parts;
  if (parts.size() != 2 || parts[0].isProduct || !IsNumber(parts[0].inside[0])) return;
  Terms leftToRight;
  for (const Polynomial& term : parts[1].inside)
    leftToRight.push_back((parts[0].inside[0] + Polynomial(parts[1].factor)) * term);
  AddSlip("works from left to right", leftToRight, reading);
}

// --- Two sums in parentheses ---------------------------------------------------------------------

bool AreTwoBrackets(const WrittenSum& sum) {
  return sum.parts.size() == 2 && std::ranges::all_of(sum.parts, [](const Part& part) {
           return part.isProduct && abs(part.factor) == 1;
         });
}

Terms Negated(Terms terms) {
  for (Polynomial& term : terms) term = -term;
  return terms;
}

Terms Together(Terms first, const Terms& second) {
  first.insert(first.end(), second.begin(), second.end());
  return first;
}

void AddBracketSlips(const WrittenSum& sum, Reading& reading) {
  const Terms& first = sum.parts[0].inside;
  const Terms& second = sum.parts[1].inside;
  if (sum.parts[1].factor < 0) {
    Terms onlyFirstSign = second;
    onlyFirstSign[0] = -onlyFirstSign[0];
    AddSlip("carries the minus sign to the first term only", Together(first, onlyFirstSign),
            reading, Naming::ByTerm);
    AddSlip("adds instead of subtracting", Together(first, second), reading, Naming::ByTerm);
    AddSlip("subtracts the first polynomial from the second", Together(Negated(first), second),
            reading, Naming::ByTerm);
  } else {
    AddSlip("subtracts instead of adding", Together(first, Negated(second)), reading,
            Naming::ByTerm);
  }
  const Terms terms = sum.Expanded();
  for (const Terms& group : Groups(terms)) {
    if (!SumOf(group).IsZero() || IsNumber(group[0])) continue;
    Terms kept = {LettersOf(group[0])};
    std::ranges::copy_if(terms, std::back_inserter(kept), [&](const Polynomial& term) {
      return LettersOf(term) != LettersOf(group[0]);
    });
    AddSlip("keeps the letter of a term that is 0", kept, reading, Naming::ByTerm);
  }
}

std::string KindOfBrackets(const WrittenSum& sum) {
  const Terms terms = sum.Expanded();
  const bool allStay = Groups(terms).size() == GroupsThatStay(terms).size();
  return std::string(sum.parts[1].factor < 0 ? "difference" : "sum") +
         (allStay ? "" : ", with terms that vanish");
}

// --- Question and choices ------------------------------------------------------------------------

void CheckQuestion(const WrittenSum& sum, Reading& reading) {
  const Terms terms = sum.Expanded();
  const Polynomial total = SumOf(terms);
  const bool brackets = AreTwoBrackets(sum);
  if (!brackets && total.TermCount() != Groups(terms).size())
    reading.faults.push_back("terms of one kind add up to 0");
  if (total.IsZero()) reading.faults.push_back("nothing is left");
  const int largest = brackets ? 9 : 81;
  for (const Polynomial& term : terms)
    reading.Within("a term", CoefficientOf(term), -largest, largest);
  if (!brackets) return;
  if (total.Letters().size() > 1) reading.faults.push_back("there is more than one letter");
  for (const Part& part : sum.parts)
    if (part.inside.size() != 3 || Groups(part.inside).size() != 3)
      reading.faults.push_back("there are not three unlike terms in parentheses");
}

// Each kind of terms once, and none of them 0.
std::string FlawOf(const std::string& choice) {
  const Expression expression = ParseExpression(choice);
  const Terms terms = TermsOf(expression);
  return Groups(terms).size() == terms.size() ? "" : "can be simplified";
}

// "3 + 1 + 1 terms": how many of each kind, the most first.
std::string KindOfLongSum(const Terms& terms) {
  std::vector<std::size_t> sizes;
  for (const Terms& group : Groups(terms)) sizes.push_back(group.size());
  std::ranges::sort(sizes, std::ranges::greater{});
  std::string kind;
  for (const std::size_t size : sizes) kind += (kind.empty() ? "" : " + ") + std::to_string(size);
  return kind + " terms";
}

// "a(x + 1) + x", with x for the first letter and y for another.
std::string KindOf(const WrittenSum& sum) {
  if (AreTwoBrackets(sum)) return KindOfBrackets(sum);
  if (Groups(sum.Expanded()).size() > 2) return KindOfLongSum(sum.Expanded());
  const std::string letters = SumOf(sum.Expanded()).Letters();
  const auto letterPart = [&](const Polynomial& term) {
    std::string text = LettersOf(term).Text();
    if (text.size() > 1) text.erase(0, 1);  // its coefficient
    for (char& c : text)
      if (std::isalpha(static_cast<unsigned char>(c))) c = c == letters[0] ? 'x' : 'y';
    return text;
  };
  std::string kind;
  for (const Part& part : sum.parts) {
    std::string terms;
    for (const Polynomial& term : part.inside)
      terms += (terms.empty() ? "" : " + ") + letterPart(term);
    kind += (kind.empty() ? "" : " + ") + (part.isProduct ? "a(" + terms + ")" : terms);
  }
  return kind;
}

}  // namespace

Polynomial LettersOf(const Polynomial& term) {
  return term / Polynomial(CoefficientOf(term));
}

Rational CoefficientOf(const Polynomial& term) {
  if (term.TermCount() != 1) throw Unreadable("\"" + term.Text() + "\" is no single term");
  Polynomial number = term;
  for (const char letter : term.Letters()) number = number.With(letter, Polynomial(Rational(1)));
  return number.Number();
}

namespace {

Reading ReadNamed(const course::Problem& problem, Naming naming) {
  const WrittenSum sum = ReadSum(problem.question.back());
  const Terms terms = sum.Expanded();
  Reading reading;
  reading.answer = SumOf(terms).Text();
  reading.value = [](const std::string& choice) { return ValueOf(choice).Text(); };
  reading.flaw = FlawOf;
  reading.kind = KindOf(sum);
  CheckQuestion(sum, reading);
  AddCombiningMistakes(terms, Mistakes(reading), naming);
  AddUnlikeCombined("combines unlike terms and adds the exponents too",
                    WithExponentsAdded(GroupsThatStay(terms)), Mistakes(reading));
  AddReadingSlips(terms, reading, naming);
  if (AreTwoBrackets(sum))
    AddBracketSlips(sum, reading);
  else if (std::ranges::any_of(sum.parts, &Part::isProduct))
    AddProductSlips(sum, reading);
  return reading;
}

Reading ReadPolynomials(const course::Problem& problem) {
  return ReadNamed(problem, Naming::ByTerm);
}

}  // namespace

Reading ReadCombinedSum(const course::Problem& problem) {
  return ReadNamed(problem, Naming::InGeneral);
}

namespace {

const JudgeRegistration kExpressions(ReadCombinedSum, {"Simplifying Expressions"});
const JudgeRegistration kPolynomials(ReadPolynomials, {"Simplifying Polynomials",
                                                       "Adding and Subtracting Polynomials"});

}  // namespace
}  // namespace lesson_check
