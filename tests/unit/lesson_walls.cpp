#include "unit/lesson_walls.h"

#include <regex>

namespace walls {
namespace {

constexpr const char* kLessons = "src/lessons/";

bool IsCode(const std::string& path) {
  return path.ends_with(".cpp") || path.ends_with(".h");
}

// "equations" for src/lessons/families/equations/a.h, "page" for src/lessons/page/a.h, else "".
std::string SharedNamespaceOf(const std::string& path) {
  static const std::regex folder("src/lessons/(?:families/)?([a-z0-9_]+)/.*");
  std::smatch match;
  if (!std::regex_match(path, match, folder)) return "";
  return path.starts_with("src/lessons/families/") || match[1] == "page" ? match[1].str() : "";
}

bool IsInUnitFolder(const std::string& path) {
  static const std::regex unit("src/lessons/(unit[0-9]+_|outside_units/).*");
  return std::regex_match(path, unit);
}

void CheckShared(const SourceFile& file, const std::string& name, Complaints& complaints) {
  const std::string code = CodeOnly(file.text);
  if (code.find("namespace course::" + name) == std::string::npos)
    complaints.push_back(file.path + " declares nothing in course::" + name);
  for (const std::string& include : Includes(file)) {
    const bool lesson =
        include.starts_with("lessons/") && SharedNamespaceOf("src/" + include).empty();
    if (lesson) complaints.push_back(file.path + " includes " + include);
  }
  // What stands directly in course is at most the declaration of a type.
  static const std::regex outer(R"(namespace course \{(?!\s*(?:(?:struct|class) \w+;\s*)+\}))");
  if (std::regex_search(code, outer))
    complaints.push_back(file.path + " defines something outside course::" + name);
}

}  // namespace

Complaints MisplacedLessonFiles(const Files& files) {
  Complaints complaints;
  for (const SourceFile& file : files) {
    if (!file.path.starts_with(kLessons) || !IsCode(file.path)) continue;
    const std::string name = SharedNamespaceOf(file.path);
    if (!name.empty())
      CheckShared(file, name, complaints);
    else if (IsInUnitFolder(file.path) &&
             CodeOnly(file.text).find("LessonRegistration<") == std::string::npos)
      complaints.push_back(file.path + " registers no lesson");
  }
  return complaints;
}

Complaints RunningStreamInLessons(const Files& files) {
  static const std::regex reached(
      R"(\b(?:ProblemStream|Randomize|ReseedProblem|NewProblemSeed|NewTestSeeds)\b)"
      R"(|(?:^|[^.>\w])(?:Rnd|Rand|RandSeq)\s*\()");
  Complaints complaints;
  for (const SourceFile& file : files) {
    if (!file.path.starts_with(kLessons) || !IsCode(file.path)) continue;
    for (const std::string& include : Includes(file))
      if (include == "mathkit/draws.h") complaints.push_back(file.path + " includes " + include);
    const std::string code = CodeOnly(file.text);
    std::smatch match;
    if (std::regex_search(code, match, reached))
      complaints.push_back(file.path + ": " + match.str());
  }
  return complaints;
}

}  // namespace walls
