#include "lesson_check/pages/page_style.h"

#include <algorithm>
#include <string_view>

#include "display/panel_views.h"
#include "engine/header.h"
#include "lesson_check/exact/notation.h"
#include "mathkit/tutor_codes.h"

namespace lesson_check {
namespace {

using course::TextPanel;
using platform::Colour;

constexpr std::size_t kMostNewLines = 4;
constexpr std::size_t kMostColours = 2;
constexpr double kSameLine = 0.8;  // rows: what stands a little higher or lower belongs to its line

// What begins so in red is printed as it always was.
constexpr std::string_view kRedAsEver[] = {"d = r", "The answer is: "};

using Line = PageStyle::Line;

std::vector<Line> LinesOf(const TextPanel& panel) {
  std::vector<Line> lines;
  for (const course::TextLine& row : panel.Lines()) {
    if (lines.empty() || row.row - lines.back().lastRow > kSameLine) lines.emplace_back();
    Line& line = lines.back();
    if (!line.text.empty()) line.text += ' ';
    line.text += Trimmed(row.text);
    for (const Colour colour : row.colours)
      if (std::ranges::find(line.colours, colour) == line.colours.end())
        line.colours.push_back(colour);
    line.lastRow = row.row;
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

bool IsBanner(const std::string& line) {
  const std::string banner = course::BannerText();
  return !banner.empty() && line.find(banner) != std::string::npos;
}

// Tables, notes and answers have a look of their own.
bool IsProse(const course::PanelView& view) {
  using course::PanelKind;
  return view.kind == PanelKind::Lesson || view.kind == PanelKind::Wiper ||
         view.kind == PanelKind::Comment;
}

}  // namespace

void PageStyle::Begin(const std::vector<std::string>& question) {
  before_.clear();
  question_.clear();
  for (const std::string& line : question)
    if (!Trimmed(line).empty()) question_.push_back(WithoutBlanks(Comparable(line)));
}

// The question may come back behind "Line 1:", or in parts.
bool PageStyle::IsOfQuestion(const std::string& line) const {
  return std::ranges::any_of(question_, [&](const std::string& asked) {
    return line.find(asked) != std::string::npos || asked.find(line) != std::string::npos;
  });
}

const PageStyle::Verdict& PageStyle::Judge(const Line& line, bool onBlue) {
  constexpr std::size_t kMostKept = 100000;
  std::string key = line.text + (onBlue ? "\n1" : "\n0");
  for (const Colour colour : line.colours) key += std::to_string(colour) + " ";
  if (verdicts_.size() > kMostKept) verdicts_.clear();
  const auto [found, isNew] = verdicts_.try_emplace(std::move(key));
  if (isNew) {
    found->second.text = WithoutBlanks(Comparable(line.text));
    FindColours(line, onBlue, found->second.faults);
    FindInProse(line.text, found->second.faults);
  }
  return found->second;
}

std::vector<std::string> PageStyle::FaultsOf(course::LessonWindow& window) {
  std::vector<std::string> faults;
  std::vector<std::string> lines;
  std::size_t added = 0;
  for (const course::PanelView& view : course::ShownPanels(window)) {
    if (!IsProse(view)) continue;
    for (const Line& line : LinesOf(*view.text)) {
      const Verdict& verdict = Judge(line, view.kind == course::PanelKind::Lesson);
      faults.insert(faults.end(), verdict.faults.begin(), verdict.faults.end());
      lines.push_back(verdict.text);
      const bool old = std::ranges::find(before_, verdict.text) != before_.end();
      if (!old && !IsBanner(line.text) && !IsOfQuestion(verdict.text)) ++added;
    }
  }
  if (added > kMostNewLines)
    faults.push_back(style::kNewLines + std::string(": ") + std::to_string(added));
  before_ = std::move(lines);
  return faults;
}

}  // namespace lesson_check
