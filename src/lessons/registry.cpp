#include "lessons/registry.h"

#include "engine/title_table.h"

namespace course {
namespace {

TitleTable<LessonMaker>& Lessons() {
  static TitleTable<LessonMaker> lessons;
  return lessons;
}

}  // namespace

void RegisterLesson(std::string_view title, LessonMaker make) {
  Lessons().Add(title, make);
}

std::unique_ptr<LessonScript> MakeLesson(std::string_view title) {
  const auto* row = Lessons().Find(title);
  return row == nullptr ? nullptr : row->value(std::string(row->title));
}

std::vector<std::string_view> LessonTitles() {
  std::vector<std::string_view> titles;
  for (const auto& row : Lessons().Rows()) titles.push_back(row.title);
  return titles;
}

}  // namespace course
