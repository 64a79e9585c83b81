#include "lesson_check/prose/page_parts.h"

#include <algorithm>
#include <utility>

#include "display/panel_views.h"
#include "lesson_check/exact/notation.h"
#include "mathkit/tutor_codes.h"

namespace lesson_check {
namespace {

constexpr std::pair<char, const char*> kRaised[] = {
    {'0', "⁰"}, {'1', "¹"}, {'2', "²"}, {'3', "³"}, {'4', "⁴"}, {'5', "⁵"}, {'6', "⁶"},
    {'7', "⁷"}, {'8', "⁸"}, {'9', "⁹"}, {'+', "⁺"}, {'-', "⁻"}, {'a', "ᵃ"}, {'b', "ᵇ"},
    {'m', "ᵐ"}, {'n', "ⁿ"}, {'x', "ˣ"}, {'y', "ʸ"}, {' ', " "}};

std::string Raised(const std::string& exponent) {
  std::string raised;
  for (const char c : exponent) {
    const auto* const found = std::ranges::find(kRaised, c, &std::pair<char, const char*>::first);
    if (found == std::end(kRaised)) return "^(" + exponent + ")";
    raised += found->second;
  }
  return raised;
}

std::vector<std::string> LinesOf(const course::PanelView& view) {
  using course::PanelKind;
  std::vector<std::string> lines;
  for (const std::string& line : view.Lines()) {
    // Blanks at the ends are for air in a note; in a box they tell nothing.
    const bool bare = view.kind == PanelKind::Note || view.kind == PanelKind::Answer;
    lines.push_back(ReadableText(bare ? Trimmed(line) : line));
  }
  return lines;
}

}  // namespace

std::string ReadableText(const std::string& text) {
  const std::string plain = course::ToUtf8(text);
  std::string readable;
  for (std::size_t i = 0; i < plain.size(); ++i) {
    const std::size_t end = plain[i] == '^' ? plain.find('^', i + 1) : std::string::npos;
    if (end == std::string::npos) {
      readable += plain[i];
    } else {
      readable += Raised(plain.substr(i + 1, end - i - 1));
      i = end;
    }
  }
  return readable;
}

std::vector<PagePart> PartsOfPage(course::LessonWindow& window) {
  std::vector<PagePart> parts;
  for (const course::PanelView& view : course::ShownPanels(window)) {
    const bool isLesson = view.kind == course::PanelKind::Lesson;
    std::vector<std::string> lines = LinesOf(view);
    if (view.kind == course::PanelKind::Answer && !lines.empty())
      lines[0].insert(0, std::string(1, static_cast<char>('A' + view.index - 1)) + ": ");
    if (isLesson || !lines.empty())
      parts.push_back({isLesson ? "" : view.control->Name(), std::move(lines)});
  }
  return parts;
}

}  // namespace lesson_check
