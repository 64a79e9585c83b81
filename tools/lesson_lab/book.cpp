// lesson-lab book: the lessons as a page for a browser, for teachers who read.
#include <cstdio>
#include <filesystem>
#include <fstream>

#include "lesson_check/file_name.h"
#include "lesson_check/prose/prose.h"
#include "lesson_lab/commands.h"
#include "lesson_lab/contact_sheet.h"
#include "lesson_lab/page_turner.h"
#include "session/session.h"

namespace lesson_lab {
namespace {

namespace fs = std::filesystem;
namespace mode = course::mode;

using lesson_check::Prose;
using lesson_check::ProseProblem;
using lesson_check::ProseScreen;

constexpr const char* kHead = R"(<!DOCTYPE html>
<html lang="en">
<head>
<meta charset="utf-8">
<meta name="viewport" content="width=device-width">
<title>Algebra 1: the lessons</title>
<style>
body { max-width: 66rem; margin: 2rem auto; padding: 0 1rem; font: 1rem/1.5 sans-serif; color: #111; }
h2 { margin-top: 4rem; border-top: 2px solid #00c; padding-top: 1rem; }
img { max-width: 100%; border: 1px solid #ccc; }
pre { margin: 0; padding: .5rem 1rem; background: #f4f4fa; font-size: .95rem; white-space: pre-wrap; }
pre + pre { border-top: 1px dashed #99c; }
</style>
</head>
<body>
<h1>Algebra 1: the lessons</h1>
<p>Each block of text is what one page adds to the page before it.</p>
)";

std::string Escaped(const std::string& text) {
  std::string html;
  for (const char c : text) {
    if (c == '<')
      html += "&lt;";
    else if (c == '>')
      html += "&gt;";
    else if (c == '&')
      html += "&amp;";
    else if (c == '"')
      html += "&quot;";
    else
      html += c;
  }
  return html;
}

std::string Element(const std::string& name, const std::string& text) {
  return "<" + name + ">" + Escaped(text) + "</" + name + ">\n";
}

std::string Picture(const std::string& file, const std::string& whatIsSeen) {
  return "<p><img src=\"" + file + "\" alt=\"" + Escaped(whatIsSeen) + "\" loading=\"lazy\"></p>\n";
}

std::string PagesOf(const ProseScreen& screen) {
  std::string html;
  for (const std::string& page : screen.pages) html += Element("pre", page);
  return html;
}

// The contact sheet of the runs: of a lesson's teaching, or of a problem and its explanation.
bool WriteSheet(const std::string& title, const std::vector<int>& entries, int seed,
                const std::string& file) {
  PageTurner turner;
  const auto lesson = FindLesson(title);
  for (const int entry : entries) turner.ReadRun(*lesson, entry, seed);
  return !turner.pages.empty() && WriteContactSheet(turner.pages, file);
}

// "Unit 3: Equations"
std::string UnitName(const std::string& title) {
  const int unit = UnitOf(title);
  return unit == 0 ? "Outside of the units"
                   : "Unit " + std::to_string(unit) + ": " + course::session.gUnitName[unit];
}

class Book {
 public:
  explicit Book(std::string folder) : folder_(std::move(folder)) {}

  // Throws lesson_check::StoppedRun.
  bool AddLesson(const std::string& title, const std::string& unit) {
    if (unit != unit_)
      contents_ += (unit_.empty() ? "" : "</ul>\n") + Element("h3", unit) + "<ul>\n";
    unit_ = unit;
    const Prose prose = [&] {
      lesson_check::PageReader reader;
      return lesson_check::ReadProse(*FindLesson(title), reader);
    }();
    const std::string name = lesson_check::FileNameOf(title);
    contents_ += "<li><a href=\"#" + name + "\">" + Escaped(prose.title) + "</a></li>\n";
    lessons_ += "<h2 id=\"" + name + "\">" + Escaped(prose.title) + "</h2>\n";
    bool written = AddPictures(name, "teaching", title, {mode::Lesson}, 0);
    for (const ProseScreen& screen : prose.screens)
      lessons_ += Element("h3", screen.heading) + PagesOf(screen);
    for (const ProseProblem& problem : prose.problems) {
      lessons_ += Element("h3", problem.name) + Element("pre", problem.problem);
      written = AddPictures(name, "problem_" + std::to_string(problem.seed), title,
                            {mode::SameProblem, mode::Explanation}, problem.seed) &&
                written;
      lessons_ += Element("h4", problem.explanation.heading) + PagesOf(problem.explanation);
    }
    return written;
  }

  bool Write() const {
    std::ofstream file(folder_ + "/index.html", std::ios::binary);
    file << kHead << contents_ << "</ul>\n" << lessons_ << "</body>\n</html>\n";
    return file.good();
  }

 private:
  bool AddPictures(const std::string& name, const std::string& what, const std::string& title,
                   const std::vector<int>& entries, int seed) {
    const std::string file = name + "_" + what + ".png";
    lessons_ += Picture(file, "All pages, from left to right");
    return WriteSheet(title, entries, seed, folder_ + "/" + file);
  }

  std::string folder_;
  std::string unit_;  // of the lesson added last
  std::string contents_;
  std::string lessons_;
};

}  // namespace

int WriteBook(const std::string& title, const std::string& folder) {
  const std::vector<std::string> titles = TitlesOf(title);
  if (titles.empty()) return 1;
  // Runs of lessons clear the session, in which the units stand.
  std::vector<std::string> units;
  for (const std::string& each : titles) units.push_back(UnitName(each));
  std::error_code error;
  fs::create_directories(folder, error);
  Book book(folder);
  bool written = !error;
  for (std::size_t i = 0; i < titles.size(); ++i) {
    try {
      written = written && book.AddLesson(titles[i], units[i]);
    } catch (const lesson_check::StoppedRun& stopped) {
      std::fprintf(stderr, "%s: %s\n", titles[i].c_str(), stopped.what());
      return 1;
    }
  }
  if (!written || !book.Write()) {
    std::fprintf(stderr, "Cannot write the book to \"%s\".\n", folder.c_str());
    return 1;
  }
  std::printf("%zu lessons in %s/index.html\n", titles.size(), folder.c_str());
  return 0;
}

}  // namespace lesson_lab
