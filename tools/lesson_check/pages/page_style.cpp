#include "lesson_check/pages/page_style.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <set>
#include <string_view>

#include "engine/header.h"
#include "lesson_check/exact/notation.h"
#include "mathkit/tutor_codes.h"

namespace lesson_check {
namespace {

using course::Fragment;
using course::TextPanel;
using platform::Colour;

constexpr std::size_t kMostNewLines = 4;
constexpr std::size_t kMostColours = 2;
constexpr double kSameLine = 0.8;  // rows: a numerator, its bar and its denominator are one line

// What begins so in red is printed as it always was.
constexpr std::string_view kRedAsEver[] = {"d = r", "The answer is: "};

struct Cell {
  char character = ' ';
  Colour colour = 0;
};

// What stands in one line, in cells; of a fraction's rows those above come first.
struct Line {
  double lastRow = 0;
  std::map<std::pair<double, long>, Cell> cells;  // by row and column

  std::string Text() const {
    std::string text;
    double row = cells.begin()->first.first;
    long next = cells.begin()->first.second;
    for (const auto& [place, cell] : cells) {
      if (place.first != row) text += ' ';
      for (long col = next; place.first == row && col < place.second; ++col) text += ' ';
      text += cell.character;
      row = place.first;
      next = place.second + 1;
    }
    return text;
  }
};

std::vector<Line> LinesOf(const TextPanel& panel) {
  std::map<double, std::map<long, Cell>> rows;
  for (const Fragment& fragment : panel.Transcript()) {
    long col = std::lround(fragment.col);
    auto& row = rows[std::round(fragment.row * 10) / 10];
    for (const char c : fragment.text) row[col++] = {c, fragment.colour};
  }
  std::vector<Line> lines;
  for (const auto& [row, cells] : rows) {
    for (const auto& [col, cell] : cells) {
      if (cell.character == ' ' || cell.character == course::tutor::Gap[0]) continue;
      if (lines.empty() || row - lines.back().lastRow > kSameLine) lines.emplace_back();
      lines.back().lastRow = row;
      lines.back().cells[{row, col}] = cell;
    }
  }
  return lines;
}

std::string Quoted(const std::string& text) {
  return " \"" + course::ToUtf8(text) + "\"";
}

bool IsDigit(char c) {
  return c >= '0' && c <= '9';
}

// "2" in front of the full stop of a list's second item.
bool IsItemNumber(const std::string& text) {
  const std::string number = Trimmed(text);
  return std::ranges::all_of(number, IsDigit);
}

void FindInProse(const std::string& text, std::vector<std::string>& faults) {
  const char kDot = course::tutor::Dot[0];
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text[i] == '!') faults.push_back(style::kExclamation + Quoted(text));
    if (i == 0 || i + 1 >= text.size()) continue;
    if ((text[i] == kDot || text[i] == '\xB7') && IsDigit(text[i - 1]) && IsDigit(text[i + 1]))
      faults.push_back(style::kDot + Quoted(text));
    const bool sentence = i + 2 < text.size() && text[i] == '.' && text[i + 1] == ' ' &&
                          std::isupper(static_cast<unsigned char>(text[i + 2])) != 0;
    if (sentence && text[i - 1] != '.' && !IsItemNumber(text.substr(0, i)))
      faults.push_back(style::kOneBlank + Quoted(text));
  }
}

bool IsRedAsEver(const std::string& line, const std::string& red) {
  return std::ranges::any_of(kRedAsEver, [&](std::string_view laidDown) {
    return Trimmed(line).starts_with(laidDown) || red.starts_with(laidDown);
  });
}

void FindColours(const Line& line, bool onBlue, std::vector<std::string>& faults) {
  std::set<Colour> colours;
  std::string red;
  for (const auto& [place, cell] : line.cells) {
    colours.insert(cell.colour);
    if (cell.colour == platform::colour::Red) red += cell.character;
  }
  if (colours.size() > kMostColours) faults.push_back(style::kColours + Quoted(line.Text()));
  if (onBlue && !red.empty() && !IsRedAsEver(line.Text(), red))
    faults.push_back(style::kRed + Quoted(line.Text()));
}

// The question may come back behind "Line 1:", in parts, or with its fractions built up.
bool IsOfQuestion(const std::string& line, const std::vector<std::string>& question) {
  const std::string text = WithoutBlanks(Comparable(line));
  std::vector<std::string> numbers = NumbersIn(line);
  std::ranges::sort(numbers);
  return std::ranges::any_of(question, [&](const std::string& asked) {
    const std::string whole = WithoutBlanks(Comparable(asked));
    if (text.find(whole) != std::string::npos || whole.find(text) != std::string::npos) return true;
    std::vector<std::string> asks = NumbersIn(asked);
    std::ranges::sort(asks);
    return asked.find('/') != std::string::npos && asks == numbers;
  });
}

bool IsBanner(const std::string& line) {
  const std::string banner = course::BannerText();
  return !banner.empty() && line.find(banner) != std::string::npos;
}

// Panels with text, the lesson's own first.
std::vector<const TextPanel*> ShownPanels(const course::LessonWindow& window) {
  std::vector<const TextPanel*> panels = {&window.lessonText};
  if (window.picWiperBox.Visible()) panels.push_back(&window.wiperText);
  if (window.picWiperBox2.Visible()) panels.push_back(&window.wiperText2);
  for (int i = 1; i <= 5; ++i)
    if (window.picCommentBox[i].Visible())
      panels.push_back(window.commentText[static_cast<std::size_t>(i)].get());
  return panels;
}

}  // namespace

std::vector<std::string> PageStyle::FaultsOf(const course::LessonWindow& window,
                                             const std::vector<std::string>& question) {
  std::vector<std::string> faults;
  std::vector<std::string> lines;
  const std::set<std::string> old(before_.begin(), before_.end());
  std::size_t added = 0;
  for (const TextPanel* panel : ShownPanels(window)) {
    for (const Line& line : LinesOf(*panel)) {
      const std::string text = line.Text();
      lines.push_back(WithoutBlanks(Comparable(text)));
      FindColours(line, panel == &window.lessonText, faults);
      FindInProse(text, faults);
      if (!old.contains(lines.back()) && !IsBanner(text) && !IsOfQuestion(text, question)) ++added;
    }
  }
  if (added > kMostNewLines)
    faults.push_back(style::kNewLines + std::string(": ") + std::to_string(added));
  before_ = std::move(lines);
  return faults;
}

}  // namespace lesson_check
