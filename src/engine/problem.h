// A drawn problem: what is asked, what is offered, what is right.  Everything that the screen, a
// test and the authors' tools need to know about it, and nothing of how it is shown.
#pragma once

#include <array>
#include <string>
#include <utility>
#include <vector>

#include "display/figure_item.h"

namespace course {

// One answer choice.  A wrong one carries the name of the mistake that leads to it.
struct Choice {
  std::string text;
  std::string mistake;
};

// How many boxes there are, which of them are shuffled, and what stands in the fifth.
namespace choice_kind {
constexpr int FourShuffled = 1;
constexpr int FourShuffledAndNone = 2;  // box 5 is "None of the above"
constexpr int FiveShuffled = 3;
constexpr int FourInOrder = -1;
constexpr int FourInOrderAndNone = -2;
constexpr int FiveInOrder = -3;
}  // namespace choice_kind

inline constexpr const char* kNoneOfTheAbove = "None of the above";

struct Problem {
  std::vector<std::string> question;  // lines as a student reads them
  std::array<Choice, 6> choices;      // 1 to 5
  int correct = 0;                    // 1 to 5; 5 is "None of the above" in the kinds that have it
  int kind = choice_kind::FourShuffled;
  std::vector<FigureItem> figure;

  // The right choice, and a wrong one with its mistake.
  void Right(int slot, std::string text) {
    choices.at(static_cast<std::size_t>(slot)) = {std::move(text), ""};
    correct = slot;
  }
  void Wrong(int slot, std::string mistake, std::string text) {
    choices.at(static_cast<std::size_t>(slot)) = {std::move(text), std::move(mistake)};
  }
};

// Boxes of a kind: 4 or 5.
int ChoiceCountOf(int kind);
bool HasNoneOfTheAbove(int kind);
// Name of the mistake that leads to a choice 1 to 5; none for the right one and "None of the
// above", whatever its slot holds.
std::string MistakeOf(const Problem& problem, int choice);
// Text of a choice 1 to 5 as the student reads it, "None of the above" included.
std::string ChoiceText(const Problem& problem, int choice);

}  // namespace course
