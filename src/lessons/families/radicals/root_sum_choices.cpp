#include "lessons/families/radicals/root_sum_choices.h"

#include <algorithm>
#include <functional>
#include <optional>
#include <utility>

#include "engine/choices.h"

namespace course::radicals {
namespace {

struct Slip {
  std::string mistake;
  RootSum sum;
};

// A slip with the number in front of the like radicals, or with what else stands in the answer.
// One of each and both together make four choices with the right one.
struct Changed {
  std::string mistake;
  int number;
};

RootTerm Root(int outside, int inside) {
  return {{outside, ""}, {inside, ""}};
}

class SumSlips {
 public:
  explicit SumSlips(const RootSum& sum) : sum_(sum) {
    for (const RootTerm& term : sum) {
      const int inside = Simplified(term).inside.coef;
      const bool like = std::ranges::count_if(sum, [&](const RootTerm& other) {
                          return Simplified(other).inside.coef == inside;
                        }) > 1;
      if (like)
        like_.push_back(term);
      else
        unlike_ = term;
    }
    inside_ = Simplified(like_.front()).inside.coef;
    AddFront();
    if (unlike_)
      AddUnlike();
    else
      AddInside();
  }

  std::vector<Slip> Drawn(RandomStream& random) const {
    const Changed& front = OneOf(front_, random);
    const Changed& rest = OneOf(rest_, random);
    const Changed& other = OneOf(front_, random);
    std::vector<Slip> lasts = Lasts();
    const int last = random.Index(static_cast<int>(lasts.size()) + 1);
    std::vector<Slip> slips = {With(&front, nullptr), With(nullptr, &rest), With(&front, &rest)};
    if (last <= static_cast<int>(lasts.size()))
      slips.push_back(lasts[static_cast<std::size_t>(last) - 1]);
    else
      slips.push_back(With(&other, &rest));
    for (const Changed& changed : front_) slips.push_back(With(&changed, &rest));
    for (const Changed& changed : front_) slips.push_back(With(&changed, nullptr));
    return slips;
  }

 private:
  static const Changed& OneOf(const std::vector<Changed>& changes, RandomStream& random) {
    return changes[static_cast<std::size_t>(random.Index(static_cast<int>(changes.size()))) - 1];
  }

  // The like terms added up when each counts as it is told there.
  int Total(const std::function<int(int front, int root)>& counted) const {
    int total = 0;
    for (const RootTerm& term : like_) {
      const int sign = term.outside.coef < 0 ? -1 : 1;
      const int root = Simplified(term.inside).outside.coef;
      total += sign * counted(std::abs(term.outside.coef), root);
    }
    return total;
  }
  int RightTotal() const {
    return Total([](int front, int root) { return front * root; });
  }
  RootTerm RightUnlike() const { return Simplified(*unlike_); }

  void Add(std::vector<Changed>& changes, const std::string& mistake, int number, int right) {
    if (number != 0 && number != right) changes.push_back({mistake, number});
  }

  void AddFront() {
    const int right = RightTotal();
    const RootTerm first = Simplified(like_.front());
    const bool minus = like_.back().outside.coef < 0;
    // An unlike radical is simplified rightly, so the mistake is told of the like ones alone.
    const std::string ofLike = unlike_ ? " of the like radicals" : "";
    Add(front_, minus ? "adds instead of subtracting" : "subtracts instead of adding",
        2 * first.outside.coef - right, right);
    Add(front_, "brings a square out without taking its root",
        Total([](int front, int root) { return front * root * root; }), right);
    Add(front_,
        "adds the root to the number in front" + (unlike_ ? ofLike : " instead of multiplying"),
        Total([](int front, int root) { return root == 1 ? front : front + root; }), right);
    Add(front_, "loses the roots that come out" + ofLike,
        Total([](int front, int) { return front; }), right);
    Add(front_, "leaves out the numbers in front" + ofLike,
        Total([](int, int root) { return root; }), right);
    Add(front_, "multiplies the numbers in front",
        first.outside.coef * Simplified(like_.back()).outside.coef, right);
  }

  void AddInside() {
    Add(rest_, "adds the numbers under the radicals", 2 * inside_, inside_);
    Add(rest_, "multiplies the numbers under the radicals", inside_ * inside_, inside_);
    Add(rest_, "leaves out the radical sign", 1, inside_);
  }

  void AddUnlike() {
    const int right = RightUnlike().outside.coef;
    const int front = unlike_->outside.coef;
    const int root = Simplified(unlike_->inside).outside.coef;
    Add(rest_, "changes the sign of the unlike radical", -right, right);
    Add(rest_, "loses the root of the unlike radical", front, right);
    Add(rest_, "takes the unlike radical without its number in front", front < 0 ? -root : root,
        right);
  }

  // In the order of the right answer.
  Slip With(const Changed* front, const Changed* rest) const {
    std::string mistake = front == nullptr ? "" : front->mistake;
    if (rest != nullptr) mistake += (mistake.empty() ? "" : " and ") + rest->mistake;
    const int total = front == nullptr ? RightTotal() : front->number;
    if (!unlike_) return {mistake, {Root(total, rest == nullptr ? inside_ : rest->number)}};
    RootTerm unlike = RightUnlike();
    if (rest != nullptr) unlike.outside.coef = rest->number;
    const RootTerm like = Root(total, inside_);
    return {mistake, sum_.front() == *unlike_ ? RootSum{unlike, like} : RootSum{like, unlike}};
  }

  // Slips of another kind.
  std::vector<Slip> Lasts() const {
    std::vector<Slip> lasts;
    if (unlike_) {
      const RootTerm unlike = RightUnlike();
      const int total = RightTotal() + unlike.outside.coef;
      if (total != 0)
        lasts.push_back({"adds unlike radicals", {Root(total, inside_ + unlike.inside.coef)}});
      return lasts;
    }
    const RootTerm& first = like_.front();
    const RootTerm& second = like_.back();
    const bool simple = IsSimple(first.inside) && IsSimple(second.inside);
    const int total = first.outside.coef + second.outside.coef;
    if (total != 0 && !simple)
      lasts.push_back({"adds the numbers under the radicals without simplifying",
                       {Root(total, first.inside.coef + second.inside.coef)}});
    if (!simple)
      lasts.push_back(
          {"leaves a square factor under the radical",
           IsSimple(first.inside) ? RootSum{first, second} : RootSum{first, Simplified(second)}});
    return lasts;
  }

  RootSum sum_;
  RootSum like_;
  std::optional<RootTerm> unlike_;
  int inside_ = 1;  // of the like radicals, simplified
  std::vector<Changed> front_;
  std::vector<Changed> rest_;
};

}  // namespace

void OfferRootSums(Problem& problem, const RootSum& sum, RandomStream& random) {
  Choices choices(problem, choice_kind::FiveShuffled, RootSumText);
  choices.Right(Combined(Simplified(sum)));
  for (const Slip& slip : SumSlips(sum).Drawn(random)) choices.Wrong(slip.mistake, slip.sum);
  choices.Fill([&] {
    const int outside = random.Rand(2, 20);
    const int inside = Simplified(sum.front()).inside.coef;
    return RootSum{Root(outside, inside)};
  });
}

}  // namespace course::radicals
