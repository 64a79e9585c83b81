#include "display/text_panel.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <map>

#include "display/grid.h"
#include "display/special_characters.h"
#include "mathkit/integers.h"
#include "mathkit/tutor_codes.h"
#include "platform/stop.h"

namespace course {
namespace {

constexpr std::size_t kMaxRuns = 30;

struct Run {
  std::size_t first;
  std::size_t length;
  int code;  // 0 for plain text
};

std::vector<Run> SplitIntoRuns(const std::string& s, CharacterSet characters) {
  std::vector<Run> runs;
  for (std::size_t i = 0; i < s.size(); ++i) {
    const int code = static_cast<unsigned char>(s[i]);
    if (IsDrawnCharacter(characters, code)) {
      runs.push_back({i, 1, code});
    } else if (!runs.empty() && runs.back().code == 0) {
      ++runs.back().length;
    } else {
      runs.push_back({i, 1, 0});
    }
  }
  if (runs.size() > kMaxRuns) platform::Stop("isTextOut: more than 30 runs in \"" + s + "\"");
  return runs;
}

int CheckedPixel(double value, const char* name) {
  const double rounded = std::nearbyint(value);
  if (!(rounded >= -32768 && rounded <= 32767))
    platform::Stop(std::string("Overflow: ") + name + " = " + std::to_string(value) +
                   ".  A word may be too long for its line.");
  return static_cast<int>(rounded);
}

}  // namespace

TextPanel::TextPanel(platform::PictureBox& box, const Layout& boxLayout)
    : surface(box), layout(boxLayout), textColour(boxLayout.restoredColour) {
  cursorX = layout.leftMargin;
  cursorY = layout.topMargin;
  RestoreFont();
}

double TextPanel::CellX(double col) const {
  return layout.leftMargin + layout.cellWidth * (col - 1);
}

double TextPanel::CellY(double row) const {
  return layout.topMargin + layout.cellHeight * (row - layout.firstRow);
}

void TextPanel::SetCursor(double x, double y) {
  cursorX = CheckedPixel(x, "cursor X");
  cursorY = CheckedPixel(y, "cursor Y");
}

void TextPanel::Locate(double row, double col) {
  SetCursor(CellX(col), CellY(row));
}

void TextPanel::UpdateCursorCell() {
  cursorCol = static_cast<float>(double(cursorX - layout.leftMargin) / layout.cellWidth + 1);
  cursorRow =
      static_cast<float>(double(cursorY - layout.topMargin) / layout.cellHeight + layout.firstRow);
}

void TextPanel::SetFontSize(double size) {
  surface.FontSize = size;
}

void TextPanel::RestoreFont() {
  surface.FontName = "Courier New";
  surface.FontBold = true;
  surface.FontItalic = false;
  surface.FontUnderline = false;
  surface.FontStrikethru = false;
  surface.FontSize = layout.fontSize;
  SetColor(layout.restoredColour);
}

void TextPanel::SetColor(platform::Colour colour) {
  surface.ForeColor = colour;
  textColour = colour;
}

void TextPanel::Cls() {
  surface.Cls();
  transcript_.clear();
}

void TextPanel::TextOut(const std::string& s) {
  // The flag is tested first: a text that is measured while the background is kept is drawn.
  const bool keepsBackground = erases && dontEraseBackground == 1;
  if (!keepsBackground && screenState.gMeasureOnly == 1) return;
  if (s.empty()) return;
  if (erases && !keepsBackground)
    surface.FillRect(
        {cursorX, cursorY + 4, static_cast<int>(s.size()) * layout.cellWidth, layout.cellHeight},
        eraseColour);
  Record(s);
  int x = cursorX;
  for (const Run& run : SplitIntoRuns(s, layout.characters)) {
    if (run.code == 0) {
      // Another face than the print font keeps its own widths; only the cursor counts cells.
      const int cell = surface.FontName == "Courier New" ? layout.cellWidth : 0;
      surface.TextOut(x, cursorY, std::string_view(s).substr(run.first, run.length), cell);
    } else {
      DrawSpecialCharacter(*this, run.code, x, cursorY);
    }
    x += static_cast<int>(run.length) * layout.cellWidth;
    surface.Refresh();
  }
}

void TextPanel::Record(const std::string& s) {
  UpdateCursorCell();
  const double row = scriptLevel == 0 ? cursorRow : scriptBaseRow;
  transcript_.push_back({row, cursorCol, surface.ForeColor, scriptLevel, s});
}

namespace {

bool Contains(const platform::PixelRect& rect, platform::PixelPoint point) {
  return point.x >= rect.left && point.x < rect.left + rect.width && point.y >= rect.top &&
         point.y < rect.top + rect.height;
}

// The rectangle and all that it passes on its way by (dx, dy).
platform::PixelRect Swept(const platform::PixelRect& rect, int dx, int dy) {
  return {rect.left + std::min(dx, 0), rect.top + std::min(dy, 0), rect.width + std::abs(dx),
          rect.height + std::abs(dy)};
}

// Adds one character of a fragment, to the stretch that is being built when it goes on there.
void Append(std::vector<Fragment>& pieces, const Fragment& whole, std::size_t i, double row,
            double col) {
  if (!pieces.empty()) {
    Fragment& last = pieces.back();
    if (last.row == row && last.col + static_cast<double>(last.text.size()) == col) {
      last.text += whole.text[i];
      return;
    }
  }
  pieces.push_back({row, col, whole.colour, whole.level, whole.text.substr(i, 1)});
}

}  // namespace

platform::PixelPoint TextPanel::CentreOf(const Fragment& fragment, std::size_t i) const {
  const double col = fragment.col + static_cast<double>(i) + 0.5;
  return {static_cast<int>(CellX(col)), static_cast<int>(CellY(fragment.row + 0.66))};
}

void TextPanel::MoveTranscript(const platform::PixelRect& rect, int dx, int dy,
                               bool keepsOriginal) {
  const platform::PixelRect swept = Swept(rect, dx, dy);
  const platform::PixelRect target{rect.left + dx, rect.top + dy, rect.width, rect.height};
  const double rows = static_cast<double>(dy) / layout.cellHeight;
  const double cols = static_cast<double>(dx) / layout.cellWidth;
  std::vector<Fragment> left;
  for (const Fragment& fragment : transcript_) {
    std::vector<Fragment> staying;
    std::vector<Fragment> moving;
    for (std::size_t i = 0; i < fragment.text.size(); ++i) {
      const platform::PixelPoint centre = CentreOf(fragment, i);
      const bool inside = Contains(rect, centre);
      const double col = fragment.col + static_cast<double>(i);
      if (inside) Append(moving, fragment, i, fragment.row + rows, col + cols);
      const bool copied = inside && keepsOriginal && !Contains(target, centre);
      if (copied || !Contains(swept, centre)) Append(staying, fragment, i, fragment.row, col);
    }
    left.insert(left.end(), staying.begin(), staying.end());
    left.insert(left.end(), moving.begin(), moving.end());
  }
  transcript_ = std::move(left);
}

void TextPanel::EraseTranscript(const platform::PixelRect& rect) {
  std::vector<Fragment> left;
  for (const Fragment& fragment : transcript_) {
    std::vector<Fragment> staying;
    for (std::size_t i = 0; i < fragment.text.size(); ++i)
      if (!Contains(rect, CentreOf(fragment, i)))
        Append(staying, fragment, i, fragment.row, fragment.col + static_cast<double>(i));
    left.insert(left.end(), staying.begin(), staying.end());
  }
  transcript_ = std::move(left);
}

std::vector<std::string> TranscriptLines(const TextPanel& panel) {
  struct Cell {
    char character;
    int level;
  };
  // Rows are told apart by halves: text between two rows is a line of its own.
  std::map<long, std::map<long, Cell>> rows;
  for (const Fragment& fragment : panel.Transcript()) {
    long col = std::lround(fragment.col);
    auto& cells = rows[std::lround(fragment.row * 2)];
    for (char c : fragment.text) cells[col++] = {c, fragment.level};
  }
  std::vector<std::string> lines;
  for (const auto& [row, cells] : rows) {
    std::string line;
    int level = 0;
    const auto setLevel = [&](int wanted) {
      if (level != 0 && wanted != level) line += level > 0 ? "^" : tutor::SubscriptMark;
      if (wanted != 0 && wanted != level) line += wanted > 0 ? "^" : tutor::SubscriptMark;
      level = wanted;
    };
    long next = 1;
    for (const auto& [col, cell] : cells) {
      if (col > next) {
        setLevel(0);
        line.append(static_cast<std::size_t>(col - next), ' ');
      }
      setLevel(cell.level);
      line += cell.character;
      next = col + 1;
    }
    setLevel(0);
    line.erase(line.find_last_not_of(' ') + 1);
    if (!line.empty()) lines.push_back(line);
  }
  return lines;
}

}  // namespace course
