#include "display/transcript.h"

#include <algorithm>
#include <cctype>
#include <cmath>
#include <map>
#include <utility>

#include "mathkit/tutor_codes.h"

namespace course {
namespace {

// A letter of the print font, or a fragment that keeps to no cells.
struct Piece {
  std::string text;
  platform::Colour colour = 0;
  int level = 0;
  double col = 0;
  double right = 0;
  double top = 0;
  double bottom = 0;
  long cell = 0;
  bool inCells = false;
  bool fraction = false;
};

// Rows are told apart by halves: text between two rows is a line of its own.
struct Row {
  std::vector<Piece> pieces;
  bool inCells = true;  // all of its pieces are
};
using Rows = std::map<long, Row>;

bool Covers(const Fragment& fragment, const Piece& piece) {
  constexpr double kShared = 0.3;  // of a cell: less is a touch
  return std::min(fragment.Right(), piece.right) - std::max(fragment.col, piece.col) > kShared &&
         std::min(fragment.Bottom(), piece.bottom) - std::max(fragment.Top(), piece.top) > kShared;
}

void TakeAwayUnder(const Fragment& fragment, long row, Rows& rows) {
  const long first = std::lround(fragment.col);
  const long last = first + static_cast<long>(fragment.text.size()) - 1;
  for (auto& [key, other] : rows) {
    if (fragment.InCells() && other.inCells && key != row) continue;
    std::erase_if(other.pieces, [&](const Piece& piece) {
      if (!fragment.InCells() || !piece.inCells) return Covers(fragment, piece);
      return key == row && piece.cell >= first && piece.cell <= last;
    });
  }
}

void Add(const Fragment& fragment, Row& row) {
  Piece piece;
  piece.text = fragment.text;
  piece.colour = fragment.colour;
  piece.level = fragment.level;
  piece.col = fragment.col;
  piece.right = fragment.Right();
  piece.top = fragment.Top();
  piece.bottom = fragment.Bottom();
  piece.inCells = fragment.InCells();
  piece.fraction = fragment.whole && fragment.text.find('/') != std::string::npos;
  row.inCells = row.inCells && piece.inCells;
  if (!piece.inCells) return row.pieces.push_back(piece);
  row.pieces.reserve(std::max(row.pieces.capacity(), row.pieces.size() + fragment.text.size()));
  long cell = std::lround(fragment.col);
  for (const char c : fragment.text) {
    piece.text = c;
    piece.cell = cell++;
    piece.right = piece.col + 1;
    row.pieces.push_back(piece);
    piece.col = piece.right;
  }
}

const std::string kBlanks = " " + tutor::Gap;

bool IsLetterOrDigit(char c) {
  return std::isalnum(static_cast<unsigned char>(c)) != 0;
}

class LineWriter {
 public:
  explicit LineWriter(double row) { line_.row = row; }

  void Write(const Piece& piece) {
    const long blanks = std::lround(piece.col - right_);
    if (blanks > 0 || RunsIntoFraction(piece)) {
      SetLevel(0);
      line_.text.append(static_cast<std::size_t>(std::max(blanks, 1L)), ' ');
    }
    SetLevel(piece.level);
    line_.text += piece.text;
    const bool blank = piece.text.find_first_not_of(kBlanks) == std::string::npos;
    if (!blank && std::ranges::find(line_.colours, piece.colour) == line_.colours.end())
      line_.colours.push_back(piece.colour);
    right_ = piece.right;
    afterFraction_ = piece.fraction;
  }

  TextLine Take() {
    SetLevel(0);
    line_.text.erase(line_.text.find_last_not_of(' ') + 1);
    return std::move(line_);
  }

 private:
  bool RunsIntoFraction(const Piece& piece) const {
    return (piece.fraction || afterFraction_) && !line_.text.empty() &&
           IsLetterOrDigit(line_.text.back()) && IsLetterOrDigit(piece.text.front());
  }

  void SetLevel(int wanted) {
    const auto mark = [](int level) { return level > 0 ? "^" : tutor::SubscriptMark; };
    if (level_ != 0 && wanted != level_) line_.text += mark(level_);
    if (wanted != 0 && wanted != level_) line_.text += mark(wanted);
    level_ = wanted;
  }

  TextLine line_;
  double right_ = 1;
  int level_ = 0;
  bool afterFraction_ = false;
};

}  // namespace

std::vector<TextLine> TextLinesOf(const std::vector<Fragment>& fragments) {
  Rows rows;
  for (const Fragment& fragment : fragments) {
    const long row = std::lround(fragment.row * 2);
    TakeAwayUnder(fragment, row, rows);
    Add(fragment, rows[row]);
  }
  std::vector<TextLine> lines;
  for (auto& [key, row] : rows) {
    std::vector<Piece>& pieces = row.pieces;
    if (!std::ranges::is_sorted(pieces, {}, &Piece::col))
      std::ranges::stable_sort(pieces, {}, &Piece::col);
    LineWriter writer(static_cast<double>(key) / 2);
    for (const Piece& piece : pieces) writer.Write(piece);
    TextLine line = writer.Take();
    if (!line.text.empty()) lines.push_back(std::move(line));
  }
  return lines;
}

std::vector<std::string> LinesOf(const std::vector<Fragment>& fragments) {
  std::vector<std::string> texts;
  for (TextLine& line : TextLinesOf(fragments)) texts.push_back(std::move(line.text));
  return texts;
}

}  // namespace course
