#include "lesson_check/pages/page_style.h"

#include <algorithm>
#include <cmath>
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

using Line = PageStyle::Line;

struct Cell {
  char character = ' ';
  Colour colour = 0;
};

// The cells of one row, and of some columns beside the panel.
struct Row {
  static constexpr long kBeside = 8;
  double row = 0;
  std::array<Cell, 64> cells{};

  void Set(long col, const Cell& cell) {
    const auto place = static_cast<std::size_t>(col + kBeside);
    if (col + kBeside >= 0 && place < cells.size()) cells[place] = cell;
  }
};

std::vector<Row> RowsOf(const TextPanel& panel) {
  std::vector<Row> rows;
  for (const Fragment& fragment : panel.Transcript()) {
    const double place = std::round(fragment.row * 10) / 10;
    auto row = std::ranges::find(rows, place, &Row::row);
    if (row == rows.end()) row = rows.insert(rows.end(), Row{.row = place});
    long col = std::lround(fragment.col);
    for (const char c : fragment.text) row->Set(col++, {c, fragment.colour});
  }
  std::ranges::sort(rows, {}, &Row::row);
  return rows;
}

bool IsBlank(const Cell& cell) {
  return cell.character == ' ' || cell.character == course::tutor::Gap[0];
}

void AddRow(const Row& row, Line& line) {
  const auto first = std::ranges::find_if_not(row.cells, IsBlank);
  const auto last = std::find_if_not(row.cells.rbegin(), row.cells.rend(), IsBlank).base();
  if (!line.text.empty()) line.text += ' ';
  for (auto cell = first; cell != last; ++cell) {
    line.text += cell->character;
    if (!IsBlank(*cell) && std::ranges::find(line.colours, cell->colour) == line.colours.end())
      line.colours.push_back(cell->colour);
  }
  line.lastRow = row.row;
}

std::vector<Line> LinesOf(const TextPanel& panel) {
  std::vector<Line> lines;
  for (const Row& row : RowsOf(panel)) {
    if (std::ranges::all_of(row.cells, IsBlank)) continue;
    if (lines.empty() || row.row - lines.back().lastRow > kSameLine) lines.emplace_back();
    AddRow(row, lines.back());
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

bool IsRedAsEver(const std::string& line) {
  return std::ranges::any_of(
      kRedAsEver, [&](std::string_view laidDown) { return Trimmed(line).starts_with(laidDown); });
}

void FindColours(const Line& line, bool onBlue, std::vector<std::string>& faults) {
  if (line.colours.size() > kMostColours) faults.push_back(style::kColours + Quoted(line.text));
  const bool red = std::ranges::find(line.colours, platform::colour::Red) != line.colours.end();
  if (onBlue && red && !IsRedAsEver(line.text)) faults.push_back(style::kRed + Quoted(line.text));
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

void PageStyle::Begin() {
  before_.clear();
}

const PageStyle::Verdict& PageStyle::Judge(const Line& line, bool onBlue) {
  constexpr std::size_t kMostKept = 100000;
  std::string key = line.text + (onBlue ? "\n1" : "\n0");
  for (const Colour colour : line.colours) key += std::to_string(colour) + " ";
  if (verdicts_.size() > kMostKept) verdicts_.clear();
  const auto [found, isNew] = verdicts_.try_emplace(std::move(key));
  if (isNew) {
    found->second.text = WithoutBlanks(line.text);
    FindColours(line, onBlue, found->second.faults);
    FindInProse(line.text, found->second.faults);
  }
  return found->second;
}

std::vector<std::string> PageStyle::FaultsOf(const course::LessonWindow& window,
                                             const std::vector<std::string>& question) {
  std::vector<std::string> faults;
  std::vector<std::string> lines;
  std::size_t added = 0;
  for (const TextPanel* panel : ShownPanels(window)) {
    for (const Line& line : LinesOf(*panel)) {
      const Verdict& verdict = Judge(line, panel == &window.lessonText);
      faults.insert(faults.end(), verdict.faults.begin(), verdict.faults.end());
      lines.push_back(verdict.text);
      const bool old = std::ranges::find(before_, verdict.text) != before_.end();
      if (!old && !IsBanner(line.text) && !IsOfQuestion(line.text, question)) ++added;
    }
  }
  if (added > kMostNewLines)
    faults.push_back(style::kNewLines + std::string(": ") + std::to_string(added));
  before_ = std::move(lines);
  return faults;
}

}  // namespace lesson_check
