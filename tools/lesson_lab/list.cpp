#include <cstdio>

#include "lesson_lab/commands.h"
#include "lessons/registry.h"
#include "mathkit/tutor_codes.h"
#include "session/session.h"

namespace lesson_lab {
namespace {

using course::session;

// A command line is UTF-8, and a title such as "... x^2+bx+c" with its raised 2 is not.
std::string AsListed(const std::string& title) {
  for (const std::string_view each : course::LessonTitles()) {
    const std::string listed(each);
    if (course::UpperCase(course::ToUtf8(listed)) == course::UpperCase(title)) return listed;
  }
  return title;
}

}  // namespace

int UnitOf(const std::string& title) {
  const std::string key = course::UpperCase(title);
  for (int unit = 1; unit <= session.gUnitCount; ++unit)
    for (int row = 1; row <= session.gLessonCount[unit]; ++row)
      if (course::UpperCase(session.gLessonTitle[unit][row]) == key) return unit;
  return 0;
}

std::unique_ptr<course::LessonScript> FindLesson(const std::string& title) {
  auto lesson = course::MakeLesson(AsListed(title));
  if (!lesson) std::fprintf(stderr, "No lesson has the title \"%s\".\n", title.c_str());
  return lesson;
}

std::vector<std::string> TitlesOf(const std::string& title) {
  std::vector<std::string> titles;
  if (!title.empty()) {
    if (const auto lesson = FindLesson(title)) titles.push_back(lesson->Title());
    return titles;
  }
  for (const std::string_view each : course::LessonTitles()) titles.emplace_back(each);
  return titles;
}

int List() {
  for (const std::string_view title : course::LessonTitles()) {
    const std::string name(title);
    const int unit = UnitOf(name);
    std::printf("%4s  %-45s %d\n", unit == 0 ? "-" : std::to_string(unit).c_str(),
                course::ToUtf8(name).c_str(), course::MakeLesson(name)->ScreenCount());
  }
  return 0;
}

}  // namespace lesson_lab
