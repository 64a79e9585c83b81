#include "lesson_check/problem_check.h"

#include <algorithm>
#include <charconv>
#include <cstdlib>
#include <set>
#include <vector>

#include "lesson_check/exact/notation.h"
#include "lesson_check/exact/unreadable.h"
#include "lesson_check/form/text_form.h"
#include "lesson_check/form/tokens.h"
#include "lesson_check/form/units.h"
#include "mathkit/tutor_codes.h"

namespace lesson_check {
namespace {

using course::Problem;
using DrawnProblem = course::LessonScript::DrawnProblem;
using Complain = std::function<void(const std::string&)>;

std::string Quoted(const std::string& text) {
  return "\"" + course::ToUtf8(text) + "\"";
}

const course::Choice& ChoiceAt(const Problem& problem, int slot) {
  return problem.choices.at(static_cast<std::size_t>(slot));
}

bool IsNone(const Problem& problem, int slot) {
  return slot == 5 && course::HasNoneOfTheAbove(problem.kind);
}

// The slots whose texts stand in boxes and are judged.
std::vector<int> JudgedSlots(const Problem& problem) {
  std::vector<int> slots;
  for (int slot = 1; slot <= course::ChoiceCountOf(problem.kind); ++slot)
    if (!IsNone(problem, slot)) slots.push_back(slot);
  return slots;
}

std::string NumberText(double number) {
  char digits[40];
  return std::string(digits, std::to_chars(digits, digits + sizeof digits, number).ptr);
}

std::string FigureText(const Problem& problem) {
  std::string text;
  for (const course::FigureItem& item : problem.figure) {
    text += "\n" + item.shape + (item.label.empty() ? "" : "," + item.label);
    for (const auto& [name, value] : item.values) text += "," + name + "=" + NumberText(value);
  }
  return text;
}

// What is asked, the choices aside.
std::string AskedText(const Problem& problem) {
  std::string text;
  for (const std::string& line : problem.question) text += line + "\n";
  return text + FigureText(problem);
}

// --- Form ----------------------------------------------------------------------------------------

bool KindIsKnown(int kind) {
  return kind != 0 && std::abs(kind) <= course::choice_kind::FiveShuffled;
}

void CheckOrder(const DrawnProblem& drawn, const Complain& complain) {
  const int count = course::ChoiceCountOf(drawn.problem.kind);
  if (drawn.order.size() <= static_cast<std::size_t>(count))
    return complain("there is no order of the boxes");
  std::set<int> placed(drawn.order.begin() + 1, drawn.order.begin() + 1 + count);
  if (placed.size() != static_cast<std::size_t>(count) || *placed.begin() != 1 ||
      *placed.rbegin() != count)
    complain("the boxes do not hold each choice once");
  for (int box = 1; box <= count; ++box) {
    const bool fixed = drawn.problem.kind < 0 || IsNone(drawn.problem, box);
    if (fixed && drawn.order[static_cast<std::size_t>(box)] != box)
      complain("box " + std::to_string(box) + " was shuffled");
  }
}

void CheckNames(const Problem& problem, const Complain& complain) {
  for (const int slot : JudgedSlots(problem)) {
    const course::Choice& choice = ChoiceAt(problem, slot);
    if (Trimmed(choice.text).empty()) complain("choice " + std::to_string(slot) + " is empty");
    if (choice.mistake.empty() != (slot == problem.correct))
      complain(slot == problem.correct ? "the right choice is named a mistake"
                                       : "no mistake leads to " + Quoted(choice.text));
  }
}

bool CheckForm(const DrawnProblem& drawn, const Complain& complain) {
  const Problem& problem = drawn.problem;
  if (!KindIsKnown(problem.kind)) {
    complain("there is no kind " + std::to_string(problem.kind));
    return false;
  }
  if (problem.correct < 1 || problem.correct > course::ChoiceCountOf(problem.kind)) {
    complain("choice " + std::to_string(problem.correct) + " cannot be right");
    return false;
  }
  if (problem.question.empty()) complain("there is no question");
  CheckOrder(drawn, complain);
  CheckNames(problem, complain);
  return true;
}

// --- Values --------------------------------------------------------------------------------------

struct JudgedChoice {
  int slot;
  std::string text;
  std::string value;
};

void CheckDifferent(const std::vector<JudgedChoice>& choices, const Complain& complain) {
  for (std::size_t i = 0; i < choices.size(); ++i) {
    for (std::size_t j = i + 1; j < choices.size(); ++j) {
      if (Comparable(choices[i].text) == Comparable(choices[j].text))
        complain("two choices read " + Quoted(choices[i].text));
      else if (choices[i].value == choices[j].value)
        complain(Quoted(choices[i].text) + " and " + Quoted(choices[j].text) + " are equal");
    }
  }
}

void CheckRight(const Problem& problem, const std::vector<JudgedChoice>& choices,
                const Reading& reading, const Complain& complain) {
  for (const JudgedChoice& choice : choices) {
    const bool right = choice.value == reading.answer;
    if (right && choice.slot != problem.correct) complain(Quoted(choice.text) + " is right, too");
    if (!right && choice.slot == problem.correct)
      complain(Quoted(choice.text) + " is not right: " + choice.value + ", not " + reading.answer);
  }
}

// The right text has to be true, and in the form that was asked for, also when it is hidden behind
// "None of the above".
void CheckTruth(const Problem& problem, const Reading& reading, const Complain& complain) {
  const std::string& truth = ChoiceAt(problem, problem.correct).text;
  if (IsNone(problem, problem.correct) && reading.value(truth) != reading.answer)
    complain(Quoted(truth) + " behind the last box is not right: not " + reading.answer);
}

std::string FlawOf(const Reading& reading, const std::string& text) {
  return reading.flaw ? reading.flaw(text) : FlawOfFractions(text);
}

// A choice in another form than the right one has gives itself away.
void CheckTexts(const Problem& problem, const Reading& reading, const Complain& complain) {
  const auto check = [&](const std::string& name, const std::string& text) {
    for (const std::string& fault : FormFaults(text))
      if (!reading.excused.contains(fault)) complain(name + Quoted(text) + " has " + fault);
    for (const std::string& fault : UnitFaults(text)) complain(name + Quoted(text) + " " + fault);
  };
  for (const std::string& line : problem.question) check("the question's line ", line);
  std::vector<int> slots = JudgedSlots(problem);
  if (IsNone(problem, problem.correct)) slots.push_back(problem.correct);
  std::vector<std::string> texts;
  for (const int slot : slots) {
    texts.push_back(ChoiceAt(problem, slot).text);
    const std::string name = slot == problem.correct ? "the right choice " : "the choice ";
    check(name, texts.back());
    const std::string flaw = FlawOf(reading, texts.back());
    if (!flaw.empty()) complain(name + Quoted(texts.back()) + " " + flaw);
  }
  for (const std::string& fault : UnitFaultsAmong(texts)) complain(fault);
  const std::string letter = FlawOfAskedLetter(problem.question);
  if (!letter.empty()) complain(letter);
  for (const std::string& fault : reading.faults) complain(fault);
}

// Hard blanks hold values of the problem together; mistakes that differ in nothing else are counted
// as one.
std::string NameInTally(const std::string& name) {
  std::string counted;
  for (std::size_t at = 0; at < name.size();) {
    const std::size_t end = std::min(name.find(' ', at), name.size());
    const std::string word = name.substr(at, end - at);
    const bool isValue = word.find(course::tutor::Gap) != std::string::npos;
    counted += (at == 0 ? "" : " ") + (isValue ? "..." : word);
    at = end + 1;
  }
  return counted;
}

void CheckMistakes(const Problem& problem, const std::vector<JudgedChoice>& choices,
                   const Reading& reading, const Complain& complain, MistakeCounts& mistakes) {
  for (const JudgedChoice& choice : choices) {
    const std::string& name = ChoiceAt(problem, choice.slot).mistake;
    if (name.empty()) continue;
    MistakeCount& count = mistakes[NameInTally(name)];
    ++count.met;
    if (name == kFiller) continue;
    const auto recipe = reading.mistakes.find(name);
    if (recipe == reading.mistakes.end()) {
      complain("the judge derives no mistake \"" + name + "\"");
      continue;
    }
    ++count.derived;
    if (std::ranges::find(recipe->second, choice.value) != recipe->second.end()) continue;
    std::string values;
    for (const std::string& value : recipe->second)
      values.append(values.empty() ? "" : " or ").append(value);
    complain("who \"" + name + "\" does not come to " + Quoted(choice.text) + " but to " + values);
  }
}

// The form of all that a problem asks and draws.
std::string KindOf(const Problem& problem, const Reading& reading) {
  if (!reading.kind.empty()) return reading.kind;
  std::string kind;
  for (const std::string& line : problem.question)
    kind += (kind.empty() ? "" : " | ") + FormOf(line);
  for (const course::FigureItem& item : problem.figure) kind += " + " + item.shape;
  return kind;
}

std::uint32_t HashOf(const std::string& text) {  // FNV-1a
  std::uint32_t hash = 0x811c9dc5;
  for (const char c : text) hash = (hash ^ static_cast<unsigned char>(c)) * 0x01000193;
  return hash;
}

void Count(const Problem& problem, const std::vector<JudgedChoice>& choices, const Reading& reading,
           Tally& tally) {
  for (const auto& [name, values] : reading.mistakes) tally.mistakes[NameInTally(name)];
  ++tally.kinds[KindOf(problem, reading)];
  tally.different.insert(HashOf(AskedText(problem)));
  std::vector<std::string> texts;
  std::vector<std::string> values;
  int right = -1;
  for (const JudgedChoice& choice : choices) {
    if (choice.slot == problem.correct) right = static_cast<int>(texts.size());
    texts.push_back(choice.text);
    values.push_back(choice.value);
  }
  tally.habits.Add(texts, values, right, course::ChoiceCountOf(problem.kind));
}

void CheckValues(Judge judge, const Problem& problem, const Complain& complain, Tally& tally) {
  const Reading reading = judge(problem);
  std::vector<JudgedChoice> choices;
  for (const int slot : JudgedSlots(problem)) {
    const std::string& text = ChoiceAt(problem, slot).text;
    choices.push_back({slot, text, reading.value(text)});
  }
  CheckDifferent(choices, complain);
  CheckRight(problem, choices, reading, complain);
  CheckTruth(problem, reading, complain);
  CheckTexts(problem, reading, complain);
  CheckMistakes(problem, choices, reading, complain, tally.mistakes);
  Count(problem, choices, reading, tally);
}

}  // namespace

void Tally::Add(const Tally& other) {
  for (const auto& [name, count] : other.mistakes) {
    mistakes[name].met += count.met;
    mistakes[name].derived += count.derived;
  }
  for (const auto& [kind, count] : other.kinds) kinds[kind] += count;
  different.insert(other.different.begin(), other.different.end());
  habits.Add(other.habits);
}

void CheckProblem(Judge judge, const DrawnProblem& drawn, const Complain& complain, Tally& tally) {
  if (!CheckForm(drawn, complain)) return;
  if (judge == nullptr) return complain("no judge reads this lesson");
  try {
    CheckValues(judge, drawn.problem, complain, tally);
  } catch (const Unreadable& unreadable) {
    complain("cannot be read: " + course::ToUtf8(unreadable.what()));
  }
}

std::string FingerprintText(const DrawnProblem& drawn) {
  const Problem& problem = drawn.problem;
  std::string text;
  for (const std::string& line : problem.question) text += line + "\n";
  // Slots in their order, then boxes in theirs.
  for (int slot = 1; slot <= 5; ++slot) text += "\n" + ChoiceAt(problem, slot).text;
  for (int box = 1; box <= course::ChoiceCountOf(problem.kind); ++box)
    text += "\n" + std::to_string(drawn.order.at(static_cast<std::size_t>(box)));
  text += "\n" + std::to_string(problem.correct) + "\n" + std::to_string(problem.kind);
  return text + FigureText(problem);
}

}  // namespace lesson_check
