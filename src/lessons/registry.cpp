#include "lessons/registry.h"

#include "engine/title_table.h"

namespace course {
namespace {

using LessonRows = std::vector<TitledRow<LessonMaker>>;

// Filled before main begins; put in order when the first lesson is asked for.
LessonRows& Registered() {
  static LessonRows rows;
  return rows;
}

const LessonRows& Lessons() {
  static const LessonRows rows = InCourseOrder(Registered());
  return rows;
}

}  // namespace

void RegisterLesson(std::string_view title, LessonMaker make) {
  Registered().push_back({title, make});
}

std::unique_ptr<LessonScript> MakeLesson(std::string_view title) {
  const auto* row = FindTitle(Lessons(), title);
  return row == nullptr ? nullptr : row->value(std::string(row->title));
}

std::vector<std::string_view> LessonTitles() {
  std::vector<std::string_view> titles;
  for (const auto& row : Lessons()) titles.push_back(row.title);
  return titles;
}

}  // namespace course
