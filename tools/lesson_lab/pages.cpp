#include <cstdio>
#include <filesystem>
#include <fstream>
#include <map>

#include "display/lesson_window.h"
#include "engine/navigation.h"
#include "lesson_lab/commands.h"
#include "lesson_lab/contact_sheet.h"
#include "lesson_lab/page_turner.h"
#include "lessons/docs/docs.h"
#include "mathkit/tutor_codes.h"
#include "session/session.h"

namespace lesson_lab {
namespace {

namespace mode = course::mode;

const std::map<std::string, int> kModeNames = {
    {"practice", mode::NewProblem},
    {"explanation", mode::Explanation},
    {"example", mode::Example},
    {"lesson-test", mode::LessonTestProblem},
    {"lesson-test-explanation", mode::LessonTestExplanation},
    {"lesson", mode::Lesson},
    {"unit-test", mode::UnitTestProblem},
    {"unit-test-explanation", mode::UnitTestExplanation},
    {"diagnostic", mode::DiagnosticProblem}};

// 0 when there is no such entry.
int ModeOf(const std::string& name) {
  if (const auto found = kModeNames.find(name); found != kModeNames.end()) return found->second;
  const int number = std::atoi(name.c_str());
  return number >= 1 && number <= 13 && number != mode::Leave ? number : 0;
}

bool WritePage(const Page& page, const std::string& stem) {
  std::ofstream text(stem + ".txt", std::ios::binary);
  text << page.text;
  return page.picture->SavePng(stem + ".png") && text.good();
}

int WriteAll(const std::vector<Page>& pages, const std::string& folder) {
  std::error_code error;
  std::filesystem::create_directories(folder, error);
  bool written = !error && !pages.empty();
  for (std::size_t i = 0; i < pages.size() && written; ++i) {
    const std::string number = (i < 9 ? "0" : "") + std::to_string(i + 1);
    written = WritePage(pages[i], folder + "/" + number);
  }
  written = written && WriteContactSheet(pages, folder + "/contact.png");
  if (!written)
    std::fprintf(stderr, "Cannot write the pages to \"%s\".\n", folder.c_str());
  else
    std::printf("%zu pages in %s\n", pages.size(), folder.c_str());
  return written ? 0 : 1;
}

}  // namespace

int WritePages(const PagesRequest& request) {
  const bool docs = course::UpperCase(request.title) == "DOCUMENTATION";
  std::vector<std::unique_ptr<course::LessonScript>> scripts;
  if (docs)
    scripts = course::MakeDocsScripts();
  else
    scripts.push_back(FindLesson(request.title));
  if (!scripts.front()) return 1;
  const int entry = docs ? mode::Lesson : ModeOf(request.mode);
  if (entry == 0) {
    std::fprintf(stderr, "There is no entry mode \"%s\".\n", request.mode.c_str());
    return 1;
  }
  PageTurner reader;
  try {
    for (const auto& script : scripts) reader.ReadRun(*script, entry, request.seed);
  } catch (const lesson_check::StoppedRun& stopped) {
    std::fprintf(stderr, "%s#%d: %s\n", request.title.c_str(), request.seed, stopped.what());
    return 1;
  }
  return WriteAll(reader.pages, request.folder);
}

}  // namespace lesson_lab
