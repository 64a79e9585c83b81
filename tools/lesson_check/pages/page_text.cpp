#include "lesson_check/pages/page_text.h"

#include <algorithm>
#include <cctype>

#include "display/exponents.h"
#include "lesson_check/exact/notation.h"
#include "mathkit/tutor_codes.h"

namespace lesson_check {
namespace {

using course::Fragment;
using course::TextPanel;

void AddPanel(PageText& page, const TextPanel& panel) {
  page.lesson.insert(page.lesson.end(), panel.Transcript().begin(), panel.Transcript().end());
  for (const std::string& line : course::TranscriptLines(panel)) page.lines.push_back(line);
}

bool Same(const Fragment& a, const Fragment& b) {
  return a.row == b.row && a.col == b.col && a.text == b.text;
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
  std::string whole;
  for (const std::string& line : lines) whole += line + " ";
  return Comparable(whole);
}

PageText ReadPage(const course::LessonWindow& window) {
  PageText page;
  AddPanel(page, window.lessonText);
  if (window.picWiperBox.Visible()) AddPanel(page, window.wiperText);
  if (window.picWiperBox2.Visible()) AddPanel(page, window.wiperText2);
  for (int i = 1; i <= 5; ++i) {
    const auto place = static_cast<std::size_t>(i);
    if (window.picCommentBox[i].Visible()) AddPanel(page, *window.commentText[place]);
    if (!window.picAnswer[i].Visible()) continue;
    std::string answer;
    for (const std::string& line : course::TranscriptLines(*window.answerText[place]))
      answer += line + " ";
    page.answers.push_back(Comparable(answer));
  }
  return page;
}

PageText NewOn(const PageText& page, const PageText& before) {
  PageText added;
  for (const Fragment& fragment : page.lesson) {
    const bool old = std::ranges::any_of(
        before.lesson, [&](const Fragment& earlier) { return Same(earlier, fragment); });
    if (old) continue;
    const bool goesOn = !added.lesson.empty() && added.lesson.back().row == fragment.row &&
                        fragment.col > added.lesson.back().col;
    std::string text = fragment.text;
    if (fragment.level > 0) text.insert(0, "^").append("^");
    if (!goesOn) {
      added.lines.push_back(text);
    } else {
      const Fragment& last = added.lesson.back();
      const double gap = fragment.col - last.col - static_cast<double>(last.text.size());
      if (gap > 0.5) added.lines.back() += " ";
      added.lines.back() += text;
    }
    added.lesson.push_back(fragment);
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
