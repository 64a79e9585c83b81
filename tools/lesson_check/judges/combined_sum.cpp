// A sum to be simplified: products are multiplied out, then like terms are combined.
#include "lesson_check/judges/combined_sum.h"

#include <algorithm>
#include <cctype>

#include "lesson_check/exact/notation.h"
#include "lesson_check/exact/unreadable.h"

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
  if (!product) return {1, false, TermsOf(expression)};
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

// The letters of a term if its kind had been multiplied and not added.
Polynomial LettersMultiplied(const Terms& group) {
  return LettersOf(group[0]).Power(static_cast<int>(group.size()));
}

// All terms made one, whose letters come from each kind.
template <class Letters>
Polynomial MadeOne(const std::vector<Terms>& groups, Letters lettersOf) {
  Rational total = 0;
  Polynomial letters(Rational(1));
  for (const Terms& group : groups) {
    total += CoefficientOf(SumOf(group));
    letters = letters * lettersOf(group);
  }
  return Polynomial(total) * letters;
}

void AddUnlikeCombined(const std::vector<Terms>& groups, Mistakes mistakes) {
  if (groups.size() < 2) return;
  mistakes.Add("combines unlike terms",
               MadeOne(groups, [](const Terms& group) { return LettersOf(group[0]); }));
}

void AddExponentsAdded(const std::vector<Terms>& groups, Mistakes& mistakes) {
  const bool anyAreLike = std::ranges::any_of(
      groups, [](const Terms& group) { return group.size() > 1 && !IsNumber(group[0]); });
  if (!anyAreLike) return;
  Polynomial sum;
  for (const Terms& group : groups)
    sum = sum + Polynomial(CoefficientOf(SumOf(group))) * LettersMultiplied(group);
  mistakes.Add("adds the exponents too", sum);
}

void AddGroupMistakes(const Terms& terms, const Terms& group, Mistakes& mistakes) {
  const Polynomial total = SumOf(group);
  const Polynomial rest = SumOf(terms) - total;
  if (group.size() < 2) return;
  const auto negative = [](const Polynomial& term) { return CoefficientOf(term) < 0; };
  const auto negatives = static_cast<std::size_t>(std::ranges::count_if(group, negative));
  if (negatives == group.size()) mistakes.Add("makes two negatives a positive", rest - total);
  if (negatives != 0 && negatives != group.size())
    mistakes.Add("takes the wrong sign in a sum of unlike signs", rest - total);
}

void AddCombiningMistakes(const Terms& terms, Mistakes mistakes) {
  const std::vector<Terms> groups = Groups(terms);
  for (const Terms& group : groups)
    if (SumOf(group).IsZero()) return;
  AddUnlikeCombined(groups, mistakes);
  AddExponentsAdded(groups, mistakes);
  for (const Terms& group : groups) AddGroupMistakes(terms, group, mistakes);
}

// Terms that are combined after a slip, rightly or not.
void AddSlip(const std::string& name, Terms terms, Reading& reading) {
  std::erase_if(terms, [](const Polynomial& term) { return term.IsZero(); });
  Mistakes(reading).Add(name, SumOf(terms));
  AddCombiningMistakes(terms, Mistakes(reading, name));
}

void AddReadingSlips(const Terms& terms, Reading& reading) {
  for (std::size_t i = 0; i < terms.size(); ++i) {
    const Rational coefficient = CoefficientOf(terms[i]);
    Terms without = terms;
    without.erase(without.begin() + static_cast<std::ptrdiff_t>(i));
    if (!IsNumber(terms[i]) && abs(coefficient) == 1)
      AddSlip("counts a letter alone as 0", without, reading);
    if (i + 1 == terms.size()) {
      Mistakes(reading).Add("leaves out the last term", SumOf(without));
      AddUnlikeCombined(Groups(without), Mistakes(reading, "leaves out the last term"));
    }
    Terms positive = terms;
    positive[i] = -positive[i];
    if (i == 0 || coefficient > 0) continue;
    AddSlip("leaves a minus sign behind", positive, reading);
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

// Each kind of terms once, and none of them 0.
std::string FlawOf(const std::string& choice) {
  const Expression expression = ParseExpression(choice);
  const Terms terms = TermsOf(expression);
  return Groups(terms).size() == terms.size() ? "" : "can be simplified";
}

// "a(x + 1) + x", with x for the first letter and y for another.
std::string KindOf(const WrittenSum& sum) {
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

Reading ReadCombinedSum(const course::Problem& problem) {
  const WrittenSum sum = ReadSum(problem.question.back());
  const Terms terms = sum.Expanded();
  Reading reading;
  reading.answer = SumOf(terms).Text();
  reading.value = [](const std::string& choice) { return ValueOf(choice).Text(); };
  reading.flaw = FlawOf;
  reading.kind = KindOf(sum);
  if (SumOf(terms).TermCount() != Groups(terms).size())
    reading.faults.push_back("terms of one kind add up to 0");
  for (const Polynomial& term : terms) reading.Within("a term", CoefficientOf(term), -81, 81);
  AddCombiningMistakes(terms, Mistakes(reading));
  if (Groups(terms).size() > 1)
    Mistakes(reading).Add("combines unlike terms and adds the exponents too",
                          MadeOne(Groups(terms), LettersMultiplied));
  AddReadingSlips(terms, reading);
  if (std::ranges::any_of(sum.parts, &Part::isProduct)) AddProductSlips(sum, reading);
  return reading;
}

namespace {

const JudgeRegistration kRegistration(ReadCombinedSum, {"Simplifying Expressions"});

}  // namespace
}  // namespace lesson_check
