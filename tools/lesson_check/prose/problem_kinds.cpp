#include "lesson_check/prose/problem_kinds.h"

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

}  // namespace

std::string KindOf(const course::Problem& problem) {
  std::string kind;
  for (const std::string& line : problem.question) kind += WithoutValues(line) + "\n";
  for (const course::FigureItem& item : problem.figure) kind += item.shape + "\n";
  return kind + WithoutValues(course::ChoiceText(problem, problem.correct));
}

std::vector<int> SeedsOfSeveralKinds(course::LessonScript& lesson, int count) {
  constexpr int kSample = 200;
  std::map<std::string, std::vector<int>> seedsOf;
  for (int seed = 0; seed < kSample; ++seed)
    seedsOf[KindOf(lesson.Draw(seed).problem)].push_back(seed);

  std::vector<std::vector<int>> kinds;
  for (auto& [kind, seeds] : seedsOf) kinds.push_back(std::move(seeds));
  std::ranges::sort(kinds, [](const std::vector<int>& a, const std::vector<int>& b) {
    return a.size() != b.size() ? a.size() > b.size() : a.front() < b.front();
  });
  std::vector<int> picked;
  for (std::size_t round = 0; picked.size() < static_cast<std::size_t>(count); ++round)
    for (const std::vector<int>& seeds : kinds)
      if (round < seeds.size() && picked.size() < static_cast<std::size_t>(count))
        picked.push_back(seeds[round]);
  return picked;
}

}  // namespace lesson_check
