// lesson-lab new: the files of a lesson that the catalogue lists.
#include <cctype>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <optional>

#include "lesson_check/file_name.h"
#include "lesson_lab/commands.h"
#include "lesson_lab/new_lesson_texts.h"
#include "mathkit/tutor_codes.h"
#include "session/catalogue.h"
#include "session/session.h"

namespace lesson_lab {
namespace {

namespace fs = std::filesystem;

using course::session;

// The catalogue's lesson of a title in UTF-8 and any case.
std::optional<course::CatalogueLesson> Listed(const std::string& title) {
  for (const course::CatalogueLesson& lesson : course::CatalogueLessons())
    if (course::UpperCase(course::ToUtf8(std::string(lesson.title))) == course::UpperCase(title))
      return lesson;
  return {};
}

// The unit's folder as it stands, or as it will be called.
fs::path FolderOf(const fs::path& lessons, int unit) {
  if (unit == 0) return lessons / "outside_units";
  const std::string number = (unit < 10 ? "unit0" : "unit") + std::to_string(unit) + "_";
  std::error_code none;
  for (const auto& entry : fs::directory_iterator(lessons, none))
    if (entry.path().filename().string().starts_with(number)) return entry.path();
  return lessons / (number + lesson_check::FileNameOf(session.gUnitName[unit]));
}

// "work_problems" is WorkProblems.
std::string ClassNameOf(const std::string& fileName) {
  std::string name;
  bool begins = true;
  for (const char c : fileName) {
    if (c != '_') name += begins ? static_cast<char>(std::toupper(c)) : c;
    begins = c == '_';
  }
  return name;
}

bool Write(const fs::path& path, const std::string& text) {
  std::error_code error;
  fs::create_directories(path.parent_path(), error);
  std::ofstream file(path, std::ios::binary);
  file << text;
  file.close();
  if (!file)
    std::fprintf(stderr, "Cannot write %s.\n", path.c_str());
  else
    std::printf("%s\n", path.c_str());
  return static_cast<bool>(file);
}

}  // namespace

int WriteNewLesson(const std::string& title, const std::string& root) {
  const auto listed = Listed(title);
  if (!listed) {
    std::fprintf(stderr, "The catalogue lists no lesson \"%s\".\n", title.c_str());
    return 1;
  }
  const std::string name = lesson_check::FileNameOf(listed->title);
  const NewLesson lesson{std::string(listed->title), ClassNameOf(name), listed->screens};
  const fs::path top(root);
  const fs::path kept = top / "tests/lessons";
  const std::pair<fs::path, std::string> files[] = {
      {FolderOf(top / "src/lessons", UnitOf(lesson.title)) / (name + ".cpp"), LessonText(lesson)},
      {top / "tools/lesson_check/judges" / (name + ".cpp"), JudgeText(lesson)},
      // Empty until the lesson is done: then the tests renew them.
      {kept / "problem_hashes" / (name + ".txt"), ""},
      {kept / "prose" / (name + ".txt"), ""},
  };
  for (const auto& [path, text] : files)
    if (fs::exists(path)) {
      std::fprintf(stderr, "%s is there already.\n", path.c_str());
      return 1;
    }
  for (const auto& [path, text] : files)
    if (!Write(path, text)) return 1;
  return 0;
}

}  // namespace lesson_lab
