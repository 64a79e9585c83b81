// A number line with a scale and lettered points.  The figure's items: "scale" with numbers and
// ticks, then "point" with x and a letter.  Asked is a letter for a number, or a number for a
// letter.
#include <algorithm>
#include <cstdlib>
#include <string>
#include <vector>

#include "lesson_check/exact/notation.h"
#include "lesson_check/exact/unreadable.h"
#include "lesson_check/judge.h"

namespace lesson_check {
namespace {

using course::FigureItem;

struct Line {
  int numbers = 0;
  int ticks = 0;
  std::vector<std::pair<std::string, int>> points;

  int At(const std::string& letter) const {
    for (const auto& [label, x] : points)
      if (label == letter) return x;
    throw Unreadable("no point \"" + letter + "\"");
  }
};

int WholeValue(const FigureItem& item, const char* name) {
  if (const auto value = item.Find(name)) return static_cast<int>(*value);
  throw Unreadable("a " + item.shape + " without " + name);
}

Line LineOf(const std::vector<FigureItem>& figure) {
  Line line;
  for (const FigureItem& item : figure) {
    if (item.shape == "scale") {
      line.numbers = WholeValue(item, "numbers");
      line.ticks = WholeValue(item, "ticks");
    } else if (item.shape == "point") {
      line.points.emplace_back(item.label, WholeValue(item, "x"));
    } else {
      throw Unreadable("the figure has a \"" + item.shape + "\"");
    }
  }
  if (line.numbers == 0 || line.points.empty()) throw Unreadable("no scale, or no point");
  return line;
}

// What stands between the two words of the question.
std::string Between(const std::string& text, const std::string& front, const std::string& back) {
  if (!text.starts_with(front) || !text.ends_with(back)) return "";
  return text.substr(front.size(), text.size() - front.size() - back.size());
}

enum class Asked { Itself, Absolute, Opposite };
constexpr const char* kNames[] = {"itself", "its absolute value", "its opposite"};

// "|-6|", "the opposite of -6", "-K": what is asked about, and how.
std::pair<Asked, std::string> Cut(const std::string& text, bool isLetter) {
  if (text.starts_with('|')) return {Asked::Absolute, Between(text, "|", "|")};
  if (text.starts_with("the opposite of ")) return {Asked::Opposite, text.substr(16)};
  if (isLetter && text.starts_with('-')) return {Asked::Opposite, text.substr(1)};
  return {Asked::Itself, text};
}

int Result(Asked asked, int number) {
  if (asked == Asked::Absolute) return std::abs(number);
  return asked == Asked::Opposite ? -number : number;
}

void Add(Reading& reading, const std::string& name, int value) {
  reading.mistakes[name].push_back(std::to_string(value));
}

// The sign is lost, or the step that the question asks for.
std::string MistakeOfSign(Asked asked, int number) {
  const char* names[] = {"takes the wrong side of 0",
                         number < 0 ? "leaves the absolute value negative" : "takes the opposite",
                         "forgets to take the opposite"};
  return names[static_cast<int>(asked)];
}

// A place on the line is reached from the number printed before it, as one comes from 0: distances
// from 0 are counted, and get the sign of the place at the end.
void AddMistakesOfCounting(const Line& line, int place, bool reads, Asked after, Reading& reading) {
  const int size = std::abs(place);
  const int sign = place < 0 ? -1 : 1;
  const int before = size - size % line.numbers;
  const int behind = before + line.numbers;
  const auto add = [&](const char* name, int wrongSize) {
    const int result = Result(after, sign * wrongSize);
    Add(reading, name, result);
    if (reads) Add(reading, MistakeOfSign(after, place) + " and " + name, -result);
  };
  add("counts one tick too many", size + line.ticks);
  add("counts one tick too few", size - line.ticks);
  add("counts the ticks the wrong way", before - (size - before));
  add("counts the ticks from the wrong end", before + (behind - size));
  if (line.ticks == 1) return;
  // Read, two ticks are 2; looked for, 2 are two ticks.
  const int asOne = reads ? (size - before) / line.ticks : (size - before) * line.ticks;
  if (before + asOne < behind) add("counts each tick as 1", before + asOne);
}

void AddMistakesOfOrder(const Line& line, Reading& reading) {
  std::vector<int> sorted;
  for (const auto& [letter, x] : line.points) sorted.push_back(x);
  std::ranges::sort(sorted);
  std::vector<int> negative;
  std::vector<int> positive;
  for (const int x : sorted) (x < 0 ? negative : positive).push_back(x);
  if (negative.size() < 2 || positive.empty()) throw Unreadable("the points lie on one side");
  std::vector<int> sizes = sorted;
  const auto size = [](int x) { return std::abs(x); };
  std::ranges::sort(sizes, {}, size);
  const auto& mistake = [&](const char* name, int value) { Add(reading, name, value); };
  const int answer = std::stoi(reading.answer);
  if (reading.kind == "the least number") {
    mistake("compares without the minus signs", negative.back());
    mistake("overlooks a point", sorted[1]);
    mistake("leaves out the negative numbers", positive.front());
  } else if (reading.kind == "the greatest negative number") {
    mistake("compares without the minus signs", negative.front());
    mistake("overlooks a point", negative[negative.size() - 2]);
    mistake("takes the least positive number", positive.front());
  } else {
    mistake("takes the least number of all", sorted.front());
    const bool least = answer == sizes.front();
    if (least) {
      mistake("leaves out the negative numbers", positive.front());
      mistake("leaves out the positive numbers", negative.back());
    } else {
      mistake("takes the least absolute value", sizes.front());
      std::ranges::reverse(sizes);
    }
    mistake("overlooks a point", sizes[1]);
    mistake("overlooks two points", sizes.at(2));
  }
  mistake("takes the greatest number of all", sorted.back());
}

int NumberByOrder(const Line& line, const std::string& which) {
  std::vector<int> xs;
  for (const auto& [letter, x] : line.points)
    if (which.find("negative") == std::string::npos || x < 0) xs.push_back(x);
  const auto size = [](int x) { return std::abs(x); };
  if (which == "the least number") return *std::ranges::min_element(xs);
  if (which == "the greatest negative number") return *std::ranges::max_element(xs);
  if (which == "the number with the least absolute value")
    return *std::ranges::min_element(xs, {}, size);
  if (which == "the number with the greatest absolute value")
    return *std::ranges::max_element(xs, {}, size);
  throw Unreadable("what is \"" + which + "\"?");
}

// "Which letter represents ...?"
void ReadLetterQuestion(const Line& line, const std::string& which, Reading& reading) {
  reading.value = [line](const std::string& choice) {
    return std::to_string(line.At(Trimmed(choice)));
  };
  if (which.find("number") != std::string::npos) {
    reading.kind = which;
    reading.answer = std::to_string(NumberByOrder(line, which));
    AddMistakesOfOrder(line, reading);
    return;
  }
  const auto [asked, text] = Cut(which, false);
  const int number = static_cast<int>(ValueOf(text).Number().get_d());
  const int place = Result(asked, number);
  reading.kind = std::string("the letter of ") + kNames[static_cast<int>(asked)];
  reading.answer = std::to_string(place);
  Add(reading, MistakeOfSign(asked, number), -place);
  AddMistakesOfCounting(line, place, false, Asked::Itself, reading);
}

// "Which number does ... represent?"
void ReadNumberQuestion(const Line& line, const std::string& which, Reading& reading) {
  reading.value = [](const std::string& choice) { return ValueOf(choice).Number().get_str(); };
  const auto [asked, letter] = Cut(which, true);
  const int number = line.At(letter);
  reading.kind = std::string("the number of a letter: ") + kNames[static_cast<int>(asked)];
  reading.answer = std::to_string(Result(asked, number));
  Add(reading, MistakeOfSign(asked, number), -Result(asked, number));
  AddMistakesOfCounting(line, number, true, asked, reading);
}

Reading ReadScaleLine(const course::Problem& problem) {
  const Line line = LineOf(problem.figure);
  const std::string question = Comparable(problem.question.at(0));
  Reading reading;
  const std::string letterOf = Between(question, "Which letter represents ", "?");
  const std::string numberOf = Between(question, "Which number does ", " represent?");
  if (!letterOf.empty())
    ReadLetterQuestion(line, letterOf, reading);
  else if (!numberOf.empty())
    ReadNumberQuestion(line, numberOf, reading);
  else
    throw Unreadable("no question is \"" + question + "\"");
  reading.Within("the step of the numbers", line.numbers, 2, 8);
  for (const auto& [letter, x] : line.points) {
    reading.Within("a point", x, -3L * line.numbers, 3L * line.numbers);
    if (x % line.ticks != 0) reading.faults.push_back(letter + " stands on no tick");
  }
  return reading;
}

const JudgeRegistration kRegistration(ReadScaleLine, {"The Number Line and Absolute Value"});

}  // namespace
}  // namespace lesson_check
