#include <cstdio>
#include <nlohmann/json.hpp>

#include "lesson_lab/commands.h"
#include "mathkit/tutor_codes.h"

namespace lesson_lab {
namespace {

using Json = nlohmann::ordered_json;

constexpr int kSeeds = 32767;

Json FigureOf(const course::Problem& problem) {
  if (problem.figure.empty()) return nullptr;
  Json figure = Json::array();
  for (const course::FigureItem& item : problem.figure) {
    Json drawn{{"shape", item.shape}};
    for (const auto& [name, value] : item.values) drawn[name] = value;
    if (!item.label.empty()) drawn["label"] = course::ToUtf8(item.label);
    figure.push_back(drawn);
  }
  return figure;
}

Json ProblemOf(course::LessonScript& lesson, int seed) {
  const course::LessonScript::DrawnProblem drawn = lesson.Draw(seed);
  Json question = Json::array();
  for (const std::string& line : drawn.problem.question) question.push_back(course::ToUtf8(line));
  Json choices = Json::array();
  Json mistakes = Json::array();
  for (int box = 1; box <= course::ChoiceCountOf(drawn.problem.kind); ++box) {
    const int choice = drawn.order.at(static_cast<std::size_t>(box));
    choices.push_back(course::ToUtf8(course::ChoiceText(drawn.problem, choice)));
    const std::string mistake = course::MistakeOf(drawn.problem, choice);
    mistakes.push_back(mistake.empty() ? Json(nullptr) : Json(course::ToUtf8(mistake)));
  }
  return {{"title", course::ToUtf8(lesson.Title())},
          {"seed", seed},
          {"question", question},
          {"choices", choices},
          {"correct", std::string(1, static_cast<char>('A' + drawn.CorrectBox() - 1))},
          {"kind", drawn.problem.kind},
          {"mistakes", mistakes},
          {"figure", FigureOf(drawn.problem)}};
}

}  // namespace

int PrintProblems(const std::string& title, int first, int count) {
  const auto lesson = FindLesson(title);
  if (!lesson) return 1;
  for (int i = 0; i < count; ++i)
    std::printf("%s\n", ProblemOf(*lesson, (first + i) % kSeeds).dump().c_str());
  return 0;
}

}  // namespace lesson_lab
