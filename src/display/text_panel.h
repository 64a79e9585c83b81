// A surface on which text is printed into cells: the lesson panel, the wiper boxes, the comment
// boxes and the answer boxes are one thing with different cells, origins and rules.
//
// Rows and columns count from 1 and may be fractional; on the lesson panel row 2 is the first one
// that lies on the surface.  Every panel keeps a transcript, the printed fragments since the last
// clear.
#pragma once

#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "display/transcript.h"
#include "platform/picture_box.h"

namespace course {

// Which of the course's own characters a panel draws by itself, and how.
enum class CharacterSet { LessonWindow, WiperBox, AnswerBox, CommentBox };

class TextPanel {
 public:
  struct Layout {
    int cellWidth = 16;   // pixels
    int cellHeight = 25;  // pixels
    int leftMargin = 0;   // pixel X of column 1
    int topMargin = 0;    // pixel Y of firstRow
    int firstRow = 1;
    double fontSize = 20;   // points, "Courier New" bold
    int exponentSize = 14;  // points, in wrapped texts; stands high without a row change
    CharacterSet characters = CharacterSet::LessonWindow;
    platform::Colour restoredColour = 0;  // text colour that RestoreFont gives
  };

  TextPanel(platform::PictureBox& surface, const Layout& layout);

  platform::PictureBox& surface;
  Layout layout;

  // Text cursor in pixels, and the same as a cell, valid only just after UpdateCursorCell.
  int cursorX = 0;
  int cursorY = 0;
  float cursorCol = 1;
  float cursorRow = 1;

  platform::Colour textColour = 0;   // what "\z" returns to
  platform::Colour eraseColour = 0;  // paints the band behind a text
  bool erases = false;               // the panel is one that erases at all
  int dontEraseBackground = 0;       // flag
  int scriptLevel = 0;               // 1 while an exponent is printed, -1 for a subscript
  float scriptBaseRow = 1;           // the row that an exponent or subscript belongs to

  // Moves the cursor; row and column are not checked, but a pixel beyond 16 bits ends the program.
  void Locate(double row, double col);
  void UpdateCursorCell();
  // Moves the cursor by pixels, with the same check.
  void SetCursor(double x, double y);
  // Pixel of a cell's left and top edge, not rounded.
  double CellX(double col) const;
  double CellY(double row) const;

  // Pixels by which a text moves the cursor: a cell a letter in the print font, another face's own
  // widths.
  double WidthOf(const std::string& s) const;

  void SetFontSize(double size);
  // "Courier New" bold at the panel's size, upright, in restoredColour.
  void RestoreFont();
  void SetColor(platform::Colour colour);

  // Prints a string at the cursor and does not move it: erases the band behind it, then draws plain
  // runs and the panel's own characters.  More than 30 runs stop the program.
  void TextOut(const std::string& s);
  // Clears the surface and the transcript; the cursor stays.
  void Cls();
  // Adds a text at the cursor to the transcript: for texts that reach the surface in another way.
  // Width in pixels; 0 is WidthOf(s).
  void Record(const std::string& s, double width = 0);

  // What a reader finds after a part of the surface was moved by (dx, dy) pixels over what lay on
  // its way, or copied there, or painted over: the transcript follows the centres of the letters,
  // and of the whole box of a built-up fraction.
  void MoveTranscript(const platform::PixelRect& rect, int dx, int dy, bool keepsOriginal);
  void EraseTranscript(const platform::PixelRect& rect);

  const std::vector<Fragment>& Transcript() const { return transcript_; }
  void SetTranscript(std::vector<Fragment> fragments);
  // The transcript as lines, see TextLinesOf; they are gathered once for each change.
  const std::vector<TextLine>& Lines() const;

 private:
  platform::PixelPoint CentreOf(const Fragment& fragment) const;

  std::vector<Fragment> transcript_;
  // None when they have to be gathered again.
  mutable std::optional<std::vector<TextLine>> lines_;
};

// See LinesOf.
std::vector<std::string> TranscriptLines(const TextPanel& panel);

}  // namespace course
