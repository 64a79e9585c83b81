#include "lesson_check/pages/page_text.h"

#include <algorithm>
#include <cctype>
#include <iterator>

#include "display/panel_views.h"
#include "lesson_check/exact/notation.h"
#include "mathkit/tutor_codes.h"

namespace lesson_check {
namespace {

using course::Fragment;

bool Same(const Fragment& a, const Fragment& b) {
  return a.row == b.row && a.col == b.col && a.text == b.text;
}

std::string Joined(const std::vector<std::string>& lines) {
  std::string whole;
  for (const std::string& line : lines) whole += line + " ";
  return Comparable(whole);
}

bool IsDigit(char c) {
  return c >= '0' && c <= '9';
}
bool IsLetter(char c) {
  return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

// Characters that belong to a number or a term in front of, or behind, another character.
bool JoinsLeft(char c) {
  return IsDigit(c) || IsLetter(c) || c == '.' || c == '/' || c == '-' || c == '^';
}
bool JoinsRight(const std::string& text, std::size_t at) {
  if (at >= text.size()) return false;
  const char c = text[at];
  const bool point = c == '.' && at + 1 < text.size() && IsDigit(text[at + 1]);
  return IsDigit(c) || IsLetter(c) || c == '/' || c == '^' || point;
}

}  // namespace

std::string PageText::Whole() const {
  return Joined(lines);
}

PageText ReadPage(course::LessonWindow& window) {
  PageText page;
  for (const course::PanelView& view : course::ShownPanels(window)) {
    if (view.items != nullptr)
      page.figure.insert(page.figure.end(), view.items->begin(), view.items->end());
    if (view.text == nullptr) continue;
    const std::vector<std::string> lines = view.Lines();
    if (view.kind == course::PanelKind::Answer) {
      page.answers.push_back(Joined(lines));
      continue;
    }
    page.panels.push_back({view.control->Name(), view.text->Transcript()});
    page.lines.insert(page.lines.end(), lines.begin(), lines.end());
  }
  return page;
}

PageText NewOn(const PageText& page, const PageText& before) {
  PageText added;
  for (const PageText::Panel& panel : page.panels) {
    const auto earlier = std::ranges::find(before.panels, panel.name, &PageText::Panel::name);
    PageText::Panel fresh{panel.name, {}};
    const auto stood = [&](const Fragment& fragment) {
      return earlier != before.panels.end() &&
             std::ranges::any_of(earlier->fragments,
                                 [&](const Fragment& old) { return Same(old, fragment); });
    };
    std::ranges::copy_if(panel.fragments, std::back_inserter(fresh.fragments),
                         [&](const Fragment& fragment) { return !stood(fragment); });
    for (std::string& line : course::LinesOf(fresh.fragments)) added.lines.push_back(line);
    added.panels.push_back(std::move(fresh));
  }
  return added;
}

bool ContainsAsWords(const std::string& whole, const std::string& part) {
  if (part.empty()) return false;
  for (std::size_t at = whole.find(part); at != std::string::npos; at = whole.find(part, at + 1)) {
    const bool left = at > 0 && JoinsLeft(whole[at - 1]) && JoinsLeft(part.front());
    const bool right = JoinsRight(whole, at + part.size());
    if (!left && !right) return true;
  }
  return false;
}

}  // namespace lesson_check
