// A sum of square roots, simplified.  Two sums are the same answer when they have the same terms as
// they are written: the root of 8 plus the root of 2 is not yet three times the root of 2.
#include <map>
#include <optional>

#include "lesson_check/exact/notation.h"
#include "lesson_check/exact/unreadable.h"
#include "lesson_check/judge.h"
#include "mathkit/tutor_codes.h"

namespace lesson_check {
namespace {

using Kind = Expression::Kind;

struct Term {
  long front = 1;   // with its sign
  long inside = 1;  // as it is written
  long Root() const {
    long root = 1;
    for (long factor = 2; factor * factor <= inside; ++factor)
      if (inside % (factor * factor) == 0) root = factor;
    return root;
  }
  long Rest() const { return inside / (Root() * Root()); }
};
using Sum = std::vector<Term>;

long WholeNumber(const Expression& expression) {
  const Rational number = ValueOf(expression).Number();
  if (number.get_den() != 1) throw Unreadable("the fraction " + number.get_str());
  return number.get_num().get_si();
}

Term ReadTerm(const Expression& expression) {
  if (expression.kind == Kind::Minus) {
    Term term = ReadTerm(expression.parts.at(0));
    term.front = -term.front;
    return term;
  }
  if (expression.kind == Kind::Root) return {1, WholeNumber(expression.parts.at(0))};
  if (expression.kind != Kind::Product) return {WholeNumber(expression), 1};
  Term term;
  for (const Expression& part : expression.parts) {
    if (part.kind == Kind::Root)
      term.inside *= WholeNumber(part.parts.at(0));
    else
      term.front *= WholeNumber(part);
  }
  return term;
}

Sum ReadSum(const std::string& text) {
  const Expression expression = ParseExpression(text);
  if (expression.kind != Kind::Sum) return {ReadTerm(expression)};
  Sum sum;
  for (const Expression& part : expression.parts) sum.push_back(ReadTerm(part));
  return sum;
}

// In any order.
std::string TextOf(const Sum& sum) {
  std::multimap<long, long> terms;
  for (const Term& term : sum)
    if (term.front != 0) terms.emplace(term.inside, term.front);
  std::string text;
  for (const auto& [inside, front] : terms)
    text += (text.empty() ? "" : " + ") + std::to_string(front) + " root " + std::to_string(inside);
  return text.empty() ? "0" : text;
}

// --- Mistakes ------------------------------------------------------------------------------------

struct Question {
  Sum like;
  std::optional<Term> unlike;
};

Question Sorted(const Sum& sum) {
  std::map<long, Sum> byRest;
  for (const Term& term : sum) byRest[term.Rest()].push_back(term);
  Question question;
  for (const auto& [rest, terms] : byRest) {
    if (terms.size() == 2)
      question.like = terms;
    else if (terms.size() == 1 && !question.unlike)
      question.unlike = terms.front();
    else
      throw Unreadable("there are too many unlike radicals, or too many like ones");
  }
  if (question.like.empty()) throw Unreadable("there are no like radicals");
  return question;
}

class Mistakes {
 public:
  Mistakes(const Question& question, Reading& reading)
      : like_(question.like), unlike_(question.unlike), reading_(reading) {
    for (const Term& term : like_) total_ += term.front * term.Root();
    rest_ = like_[0].Rest();
  }

  long Total() const { return total_; }
  Sum Right() const { return Answer(total_, std::nullopt); }

  void Derive() {
    FindFronts();
    FindOthers();
    for (const auto& [front, total] : fronts_) {
      Add(front, Answer(total, std::nullopt));
      for (const auto& [other, number] : others_)
        Add(front + " and " + other, Answer(total, number));
    }
    for (const auto& [other, number] : others_) Add(other, Answer(total_, number));
    if (unlike_)
      Add("adds unlike radicals",
          {{total_ + unlike_->front * unlike_->Root(), rest_ + unlike_->Rest()}});
    else
      AddUnsimplified();
  }

 private:
  // The number is what stands inside, or in front of the unlike radical.
  Sum Answer(long total, std::optional<long> number) const {
    if (!unlike_) return {{total, number.value_or(rest_)}};
    return {{total, rest_}, {number.value_or(unlike_->front * unlike_->Root()), unlike_->Rest()}};
  }

  void Add(const std::string& name, const Sum& sum) {
    const std::string text = TextOf(sum);
    if (text != reading_.answer && text != "0") reading_.mistakes[name].push_back(text);
  }

  static long SignOf(const Term& term) { return term.front < 0 ? -1 : 1; }

  void FindFronts() {
    const Term& a = like_[0];
    const Term& b = like_[1];
    const long first = a.front * a.Root();
    const long second = b.front * b.Root();
    fronts_[b.front < 0 ? "adds instead of subtracting" : "subtracts instead of adding"] =
        first - second;
    fronts_["brings a square out without taking its root"] = first * a.Root() + second * b.Root();
    const auto added = [](const Term& term) {
      return term.Root() == 1 ? term.front : term.front + SignOf(term) * term.Root();
    };
    const long fronts = a.front + b.front;
    const long roots = SignOf(a) * a.Root() + SignOf(b) * b.Root();
    if (unlike_) {  // these mistakes leave it as it should be, and say so
      fronts_["adds the root to the number in front of the like radicals"] = added(a) + added(b);
      fronts_["loses the roots that come out of the like radicals"] = fronts;
      fronts_["leaves out the numbers in front of the like radicals"] = roots;
    } else {
      fronts_["adds the root to the number in front instead of multiplying"] = added(a) + added(b);
      fronts_["loses the roots that come out"] = fronts;
      fronts_["leaves out the numbers in front"] = roots;
    }
    fronts_["multiplies the numbers in front"] = first * second;
    std::erase_if(fronts_,
                  [&](const auto& slip) { return slip.second == total_ || slip.second == 0; });
  }

  void FindOthers() {
    if (unlike_) {
      const long right = unlike_->front * unlike_->Root();
      others_["changes the sign of the unlike radical"] = -right;
      if (unlike_->Root() > 1) others_["loses the root of the unlike radical"] = unlike_->front;
      others_["takes the unlike radical without its number in front"] =
          SignOf(*unlike_) * unlike_->Root();
      return;
    }
    others_["adds the numbers under the radicals"] = 2 * rest_;
    others_["multiplies the numbers under the radicals"] = rest_ * rest_;
    others_["leaves out the radical sign"] = 1;
  }

  void AddUnsimplified() {
    const Term& a = like_[0];
    const Term& b = like_[1];
    if (a.Root() == 1 && b.Root() == 1) return;
    Add("adds the numbers under the radicals without simplifying",
        {{a.front + b.front, a.inside + b.inside}});
    const auto simplified = [](const Term& term) {
      return Term{term.front * term.Root(), term.Rest()};
    };
    Add("leaves a square factor under the radical",
        a.Root() == 1 ? Sum{a, b} : Sum{a, simplified(b)});
  }

  Sum like_;
  std::optional<Term> unlike_;
  Reading& reading_;
  long total_ = 0;
  long rest_ = 1;
  std::map<std::string, long> fronts_;
  std::map<std::string, long> others_;
};

// --- Question and choices ------------------------------------------------------------------------

std::string FlawOf(const std::string& choice) {
  for (const Term& term : ReadSum(choice))
    if (term.front == 0) return "has a term of 0";
  const bool bare = choice.find(course::tutor::SquareRoot + "1") != std::string::npos;
  return bare && ReadSum(choice).front().inside == 1 ? "has nothing under the radical" : "";
}

std::string KindOf(const Question& question) {
  const std::string end = question.unlike ? ", an unlike third" : "";
  const bool simple = question.like[0].Root() == 1 && question.like[1].Root() == 1;
  return (simple ? "like radicals" : "radicals that become like") + end;
}

Reading ReadRadicalExpression(const course::Problem& problem) {
  const Sum sum = ReadSum(problem.question.back());
  const Question question = Sorted(sum);
  Reading reading;
  Mistakes mistakes(question, reading);
  reading.answer = TextOf(mistakes.Right());
  reading.value = [](const std::string& choice) { return TextOf(ReadSum(choice)); };
  reading.flaw = FlawOf;
  reading.kind = KindOf(question);
  if (mistakes.Total() == 0) reading.faults.emplace_back("the like radicals vanish");
  for (const Term& term : sum) {
    reading.Within("a number in front", std::abs(term.front), 2, 5);
    reading.Within("a number under a radical", term.inside, 2, 175);
  }
  mistakes.Derive();
  return reading;
}

const JudgeRegistration kRegistration(ReadRadicalExpression, {"Simplifying Radical Expressions"});

}  // namespace
}  // namespace lesson_check
