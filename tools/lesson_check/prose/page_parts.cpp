#include "lesson_check/prose/page_parts.h"

#include <algorithm>
#include <sstream>
#include <utility>

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

std::vector<std::string> LinesOf(const course::TextPanel& panel) {
  std::vector<std::string> lines;
  for (const std::string& line : course::TranscriptLines(panel))
    lines.push_back(ReadableText(line));
  return lines;
}

std::vector<std::string> LinesOf(const std::string& text) {
  std::vector<std::string> lines;
  std::istringstream in(ReadableText(text));
  // A note's caption has blanks at its ends, for air.
  for (std::string line; std::getline(in >> std::ws, line);) {
    line.erase(line.find_last_not_of(' ') + 1);
    lines.push_back(line);
  }
  return lines;
}

class Collector {
 public:
  void Add(const platform::Control& control, std::vector<std::string> lines) {
    if (control.Visible() && !lines.empty()) parts.push_back({control.Name(), std::move(lines)});
  }

  std::vector<PagePart> parts;
};

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

std::vector<PagePart> PartsOfPage(const course::LessonWindow& window) {
  Collector page;
  page.parts.push_back({"", LinesOf(window.lessonText)});
  page.Add(window.picWiperBox, LinesOf(window.wiperText));
  page.Add(window.picWiperBox2, LinesOf(window.wiperText2));
  for (int i = 1; i <= 5; ++i) {
    page.Add(window.picCommentBox[i], LinesOf(*window.commentText[static_cast<std::size_t>(i)]));
    page.Add(window.picNotes[i], LinesOf(window.lblNotes[i].Caption()));
    page.Add(window.picGalleryImage[i], LinesOf(window.picGalleryImage[i].AccessibleText()));
  }
  if (window.picPrintCellBox.Visible())
    for (int i = 1; i <= window.picPrintCell.Last(); ++i)
      page.Add(window.picPrintCell[i], LinesOf(window.picPrintCell[i].AccessibleText()));
  for (int i = 1; i <= 5; ++i)
    page.Add(window.picAnswer[i], LinesOf(window.picAnswer[i].AccessibleText()));
  return std::move(page.parts);
}

}  // namespace lesson_check
