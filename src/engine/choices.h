// Fills the choices of a problem: the right one, the values that mistakes lead to, then fillers.
//
//   Choices choices(problem, choice_kind::FiveShuffled, MixedText);
//   choices.Right(sum);
//   choices.Wrong("adds the denominators too", Reduced(a + b, c + d));
//   choices.Fill([&] { return Reduced(random.Rand(1, 20), 12); });
#pragma once

#include <algorithm>
#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "engine/problem.h"
#include "mathkit/random_stream.h"
#include "platform/stop.h"

namespace course {

inline constexpr const char* kFiller = "filler";  // the mistake of a choice drawn at random
// How often the right choice hides behind "None of the above": as often as in any other box.
inline constexpr double kNoneShare = 0.2;

// All choices differ as values and as texts.  Value needs ==; text(value) is what the student
// reads.
template <class Value>
class Choices {
 public:
  // Fills the slots that the kind shows, or slots 1 to a number of them: 5 with "None of the
  // above", when the right choice may be hidden at the end by HideRight.
  Choices(Problem& problem, int kind, std::function<std::string(const Value&)> text, int slots = 0)
      : problem_(problem),
        text_(std::move(text)),
        slots_(slots != 0 ? slots : ChoiceCountOf(kind) - (HasNoneOfTheAbove(kind) ? 1 : 0)) {
    problem_.kind = kind;
  }

  // Takes slot 1; it comes before the wrong ones.
  void Right(const Value& value) {
    if (!values_.empty()) platform::Stop("Choices: the right one comes first, " + text_(value));
    problem_.Right(1, text_(value));
    values_.push_back(value);
    filled_ = 1;
  }
  // The same behind "None of the above": all four boxes are wrong.
  void RightBehindNone(const Value& value) {
    if (!HasNoneOfTheAbove(problem_.kind))
      platform::Stop("Choices: kind " + std::to_string(problem_.kind) +
                     " can hide no right choice");
    Right(value);
    problem_.choices[1] = {};
    problem_.Right(5, text_(value));
    filled_ = 0;
    slots_ = 4;
  }
  // Takes the next slot, unless none is free or a choice has this value or text already.
  void Wrong(const std::string& mistake, const Value& value) {
    if (Full() || IsTaken(value)) return;
    problem_.Wrong(++filled_, mistake, text_(value));
    values_.push_back(value);
  }
  // Draws fillers until no slot is free: next() gives a value.
  template <class Next>
  void Fill(Next next) {
    constexpr int kTries = 10000;
    for (int tries = 0; !Full(); ++tries) {
      if (tries == kTries)
        platform::Stop("Choices: no filler differs from the choices of " + text_(values_.front()));
      Wrong(kFiller, next());
    }
  }
  bool Full() const { return filled_ == slots_; }

 private:
  bool IsTaken(const Value& value) const {
    const std::string text = text_(value);
    return std::ranges::any_of(
        values_, [&](const Value& other) { return other == value || text_(other) == text; });
  }

  Problem& problem_;
  std::function<std::string(const Value&)> text_;
  int slots_;
  int filled_ = 0;
  std::vector<Value> values_;
};
template <class Value>
Choices(Problem&, int, std::string (*)(Value), int = 0) -> Choices<std::remove_cvref_t<Value>>;

// Hides the right choice of slot 1 behind "None of the above": the choice of slot 5, which is not
// shown otherwise, takes its place.  A kind without that box, or no choice there, stops the
// program.
void HideRight(Problem& problem);
// The same at random; one draw.
void HideRightAtTimes(Problem& problem, RandomStream& random, double share = kNoneShare);

// Whether "None of the above" is right.
bool RightIsHidden(const Problem& problem);
// Whether the problem that is explained has stood on the screen with its boxes: an example's has
// not.
bool BoxesStood();
// Whether an explanation has to end at "None of the above".
bool EndsAtNone(const Problem& problem);
// The true answer, also when it hides behind "None of the above".
std::string RightText(const Problem& problem);
// The sentence that ends an explanation or an example, the answer in a colour by its code: y on the
// blue screen, b in a white box.
std::string ConclusionText(const Problem& problem, char colour = 'y');

// For recipes that fill fixed slots first: the later of two slots 1 to count that are the same is
// drawn anew, and the comparison starts again at the first pair.  The right choice stands in slot
// 1, so it is never the later one.  same(i, j) has i before j; redraw(j) fills slot j.
template <class Same, class Redraw>
void ReplaceRepeated(int count, Same same, Redraw redraw) {
  const auto repeated = [&] {
    for (int i = 1; i <= count; ++i)
      for (int j = i + 1; j <= count; ++j)
        if (same(i, j)) return j;
    return 0;
  };
  for (int slot; (slot = repeated()) != 0;) redraw(slot);
}

// For choices whose values are the same exactly when their texts are.
template <class Redraw>
void ReplaceRepeatedTexts(const Problem& problem, Redraw redraw) {
  ReplaceRepeated(
      ChoiceCountOf(problem.kind) - (HasNoneOfTheAbove(problem.kind) ? 1 : 0),
      [&](int i, int j) {
        return problem.choices[static_cast<std::size_t>(i)].text ==
               problem.choices[static_cast<std::size_t>(j)].text;
      },
      redraw);
}

}  // namespace course
