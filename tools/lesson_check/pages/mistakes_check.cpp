#include "lesson_check/pages/mistakes_check.h"

#include <algorithm>
#include <string_view>

#include "engine/choices.h"
#include "engine/mistakes.h"
#include "lesson_check/exact/notation.h"
#include "mathkit/tutor_codes.h"

namespace lesson_check {
namespace {

constexpr std::string_view kOthers = "Someone who ";
constexpr std::string_view kOwn = "You chose";

// Without blanks and the marks of exponents and radicands.
std::string Bare(const std::string& text) {
  std::string bare = WithoutBlanks(Comparable(text));
  std::erase_if(bare, [](char c) { return c == '^' || c == '`'; });
  return bare;
}

// All that is printed, in the order of printing: there a built-up value stands behind its sentence,
// whatever rows it takes.
std::string Printed(const PageText& page) {
  std::string text;
  for (const PageText::Panel& panel : page.panels)
    for (const course::Fragment& fragment : panel.fragments) text += fragment.text;
  return Bare(text);
}

std::size_t CountOf(const std::string& whole, const std::string& part) {
  std::size_t count = 0;
  for (std::size_t at = whole.find(part); at != std::string::npos; at = whole.find(part, at + 1))
    ++count;
  return count;
}

// Whether the words stand there with the value behind them.
bool Tells(const std::string& printed, const std::string& words, const std::string& value) {
  const std::size_t at = printed.find(Bare(words));
  if (at == std::string::npos) return false;
  const std::string behind = printed.substr(at + Bare(words).size());
  return behind.starts_with(Bare(value)) || behind.starts_with(":" + Bare(value));
}

}  // namespace

bool IsMistakesPage(const PageText& page) {
  return std::ranges::any_of(page.lines, [](const std::string& line) {
    const std::string text = Trimmed(line);
    return text.starts_with(kOthers) || text.starts_with(kOwn);
  });
}

PageText TakeMistakesPage(std::vector<PageText>& explanation) {
  PageText all;
  std::vector<std::string> after;  // the end of an explanation may show its last page twice
  while (!explanation.empty() && IsMistakesPage(explanation.back())) {
    const PageText& page = explanation.back();
    if (page.lines != after) {
      all.lines.insert(all.lines.begin(), page.lines.begin(), page.lines.end());
      all.panels.insert(all.panels.begin(), page.panels.begin(), page.panels.end());
    }
    after = page.lines;
    explanation.pop_back();
  }
  return all;
}

std::string FaultOfMistakesPage(const PageText& page,
                                const course::LessonScript::DrawnProblem& drawn, int pickedBox,
                                bool choicesAreWords) {
  const course::Problem& problem = drawn.problem;
  const std::string printed = Printed(page);
  std::size_t others = 0;
  std::size_t own = 0;
  std::string reason = "That is what we get when we ";
  for (int box = 1; box <= course::ChoiceCountOf(problem.kind); ++box) {
    const int choice = drawn.order.at(static_cast<std::size_t>(box));
    std::string mistake = course::MistakeOf(problem, choice);
    if (choice == problem.correct || mistake.empty() || mistake == course::kFiller) continue;
    const bool isOwn = box == pickedBox;
    ++(isOwn ? own : others);
    std::string verb = choicesAreWords ? " chooses" : " gets";
    if (mistake.ends_with(course::kRounded)) {
      mistake.resize(mistake.size() - course::kRounded.size());
      verb += " about";
      if (isOwn) reason = "That is about what we get when we ";
    }
    const std::string words = isOwn ? std::string(kOwn) : std::string(kOthers) + mistake + verb;
    const std::string text = ChoiceText(problem, choice);
    const std::string value = choicesAreWords ? '"' + text + '"' : text;
    if (!Tells(printed, words, value)) return "it does not tell \"" + words + " " + value + "\"";
  }
  if (CountOf(printed, Bare(reason)) != own) return "it does not give the reason of the box picked";
  if (CountOf(printed, Bare(std::string(kOthers))) != others)
    return "it tells of a mistake that no box has";
  return "";
}

}  // namespace lesson_check
