#include "lesson_check/prose/sample_seeds.h"

#include <algorithm>
#include <cctype>
#include <map>

namespace lesson_check {
namespace {

bool IsDigit(char c) {
  return c >= '0' && c <= '9';
}
bool IsLetter(char c) {
  return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

// Every number "#", every single letter "x".
std::string WithoutValues(const std::string& text) {
  std::string plain;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const bool inNumber = IsDigit(text[i]);
    const bool single = IsLetter(text[i]) && (i == 0 || !IsLetter(text[i - 1])) &&
                        (i + 1 == text.size() || !IsLetter(text[i + 1]));
    if (inNumber && plain.ends_with('#')) continue;
    plain += inNumber ? '#' : single ? 'x' : text[i];
  }
  return plain;
}

// Question, figure and right answer without their numbers and letters.  Signs stay: a problem is
// explained in other words when one differs.
std::string ShapeOf(const course::Problem& problem) {
  std::string shape;
  for (const std::string& line : problem.question) shape += WithoutValues(line) + "\n";
  for (const course::FigureItem& item : problem.figure) shape += item.shape + "\n";
  return shape + WithoutValues(course::ChoiceText(problem, problem.correct));
}

}  // namespace

std::vector<int> SampleSeeds(course::LessonScript& lesson, int count) {
  constexpr int kSample = 200;
  std::map<std::string, std::vector<int>> seedsOf;
  for (int seed = 0; seed < kSample; ++seed)
    seedsOf[ShapeOf(lesson.Draw(seed).problem)].push_back(seed);

  std::vector<std::vector<int>> shapes;
  for (auto& [shape, seeds] : seedsOf) shapes.push_back(std::move(seeds));
  std::ranges::sort(shapes, [](const std::vector<int>& a, const std::vector<int>& b) {
    return a.size() != b.size() ? a.size() > b.size() : a.front() < b.front();
  });
  std::vector<int> picked;
  for (std::size_t round = 0; picked.size() < static_cast<std::size_t>(count); ++round)
    for (const std::vector<int>& seeds : shapes)
      if (round < seeds.size() && picked.size() < static_cast<std::size_t>(count))
        picked.push_back(seeds[round]);
  return picked;
}

}  // namespace lesson_check
