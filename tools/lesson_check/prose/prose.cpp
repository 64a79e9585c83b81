#include "lesson_check/prose/prose.h"

#include <algorithm>
#include <sstream>

#include "display/lesson_window.h"
#include "lesson_check/prose/page_parts.h"
#include "lesson_check/prose/sample_seeds.h"
#include "lesson_check/report.h"
#include "mathkit/tutor_codes.h"
#include "session/session.h"

namespace lesson_check {
namespace {

namespace mode = course::mode;

constexpr const char* kNothing = "(no new words)\n";

// The lines that were not there, each as often as it came anew.
std::vector<std::string> Added(const std::vector<std::string>& lines,
                               std::vector<std::string> before) {
  std::vector<std::string> added;
  for (const std::string& line : lines) {
    const auto old = std::ranges::find(before, line);
    if (old == before.end())
      added.push_back(line);
    else
      before.erase(old);
  }
  return added;
}

// "picCommentBox(2)" is a comment box.
std::string SpokenName(const std::string& control) {
  constexpr std::pair<const char*, const char*> kNames[] = {{"picWiperBox", "white box"},
                                                            {"picCommentBox", "paper box"},
                                                            {"picNotes", "note"},
                                                            {"picGalleryImage", "picture"},
                                                            {"picPrintCell", "cell of table"},
                                                            {"picAnswer", "answer box"}};
  for (const auto& [name, spoken] : kNames)
    if (control.starts_with(name)) return spoken;
  return control;
}

std::string AddedText(const std::vector<PagePart>& page, const std::vector<PagePart>& before) {
  std::string text;
  for (const PagePart& part : page) {
    const auto old = std::ranges::find(before, part.name, &PagePart::name);
    const auto lines =
        Added(part.lines, old == before.end() ? std::vector<std::string>{} : old->lines);
    if (!part.name.empty() && !lines.empty())
      text += "[" + SpokenName(part.name) + "]" + (lines.size() == 1 ? " " : "\n");
    for (const std::string& line : lines) text += line + "\n";
  }
  return text.empty() ? kNothing : text;
}

// Puts each page of a run under the heading of its screen.
class Writer {
 public:
  // A new heading begins a screen.
  void TakePage(const std::string& heading) {
    if (screens.empty() || screens.back().heading != heading) screens.push_back({heading, {}});
    std::vector<PagePart> page = PartsOfPage(*course::frmPR);
    screens.back().pages.push_back(AddedText(page, before_));
    before_ = std::move(page);
  }

  std::vector<ProseScreen> screens;

 private:
  std::vector<PagePart> before_;
};

// "fromClosed" in two words.
std::string InWords(const std::string& name) {
  std::string words;
  for (const char c : name) {
    const bool capital = c >= 'A' && c <= 'Z';
    if (capital) words += ' ';
    words += capital ? static_cast<char>(c - 'A' + 'a') : c;
  }
  return words;
}

std::string FigureText(const course::FigureItem& item) {
  std::ostringstream text;
  text << "[figure] " << item.shape;
  for (const auto& [name, value] : item.values) text << ", " << InWords(name) << " " << value;
  if (!item.label.empty()) text << ", " << ReadableText(item.label);
  return text.str() + "\n";
}

std::string ProblemText(const course::LessonScript::DrawnProblem& drawn) {
  const course::Problem& problem = drawn.problem;
  std::string text;
  for (const std::string& line : problem.question) text += ReadableText(line) + "\n";
  for (const course::FigureItem& item : problem.figure) text += FigureText(item);
  for (int box = 1; box <= course::ChoiceCountOf(problem.kind); ++box) {
    const int choice = drawn.order.at(static_cast<std::size_t>(box));
    const std::string& mistake = problem.choices.at(static_cast<std::size_t>(choice)).mistake;
    text += std::string(1, static_cast<char>('A' + box - 1)) + "  " +
            ReadableText(course::ChoiceText(problem, choice));
    if (choice == problem.correct)
      text += "  (right)";
    else if (choice != 5 || !course::HasNoneOfTheAbove(problem.kind))
      text += "  (" + ReadableText(mistake) + ")";
    text += "\n";
  }
  return text;
}

ProseProblem ReadProblem(course::LessonScript& lesson, PageReader& reader, int seed) {
  Writer writer;
  reader.Read(lesson, mode::Explanation, seed, [&] { writer.TakePage("Explanation"); });
  ProseScreen explanation = writer.screens.empty() ? ProseScreen{} : writer.screens.front();
  // The dialog that asks what comes next opens over the last page.
  if (!explanation.pages.empty() && explanation.pages.back() == kNothing)
    explanation.pages.pop_back();
  return {ProblemName(course::ToUtf8(lesson.Title()), seed), seed, ProblemText(lesson.Draw(seed)),
          std::move(explanation)};
}

std::string ScreenText(const ProseScreen& screen) {
  std::string text = "\n== " + screen.heading + "\n\n";
  for (std::size_t i = 0; i < screen.pages.size(); ++i)
    text += (i == 0 ? "" : "--\n") + screen.pages[i];
  return text;
}

}  // namespace

std::string Prose::Text() const {
  std::string text = title + "\n";
  for (const ProseScreen& screen : screens) text += ScreenText(screen);
  for (const ProseProblem& problem : problems)
    text += "\n== " + problem.name + "\n\n" + problem.problem + ScreenText(problem.explanation);
  return text;
}

Prose ReadProse(course::LessonScript& lesson, PageReader& reader, int problems) {
  Prose prose{course::ToUtf8(lesson.Title()), {}, {}};
  Writer teaching;
  reader.Read(lesson, mode::Lesson, 0,
              [&] { teaching.TakePage("Screen " + std::to_string(course::session.gScreenNum)); });
  prose.screens = std::move(teaching.screens);
  for (const int seed : SampleSeeds(lesson, problems))
    prose.problems.push_back(ReadProblem(lesson, reader, seed));
  return prose;
}

}  // namespace lesson_check
