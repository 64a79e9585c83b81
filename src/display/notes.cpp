#include "display/notes.h"

#include <algorithm>

#include "display/grid.h"
#include "display/lesson_window.h"
#include "display/plain_face.h"
#include "mathkit/tutor_codes.h"
#include "platform/stop.h"

namespace course {
namespace {

void CheckIndex(int index, const char* routine) {
  if (index < frmPR->picNotes.First() || index > frmPR->picNotes.Last())
    platform::Stop(std::string(routine) + ": note " + std::to_string(index) +
                   ".  Notes 1 to 5 exist.");
}

std::string FaceOf(const std::string& font) {
  if (font.empty()) return "MS Sans Serif";
  return UpperCase(font) == "TNR" ? "Times New Roman" : font;
}

platform::Label::Align AlignmentOf(const std::string& alignment) {
  const std::string letter = UpperCase(alignment);
  if (letter == "R") return platform::Label::Align::Right;
  if (letter == "C") return platform::Label::Align::Centre;
  return platform::Label::Align::Left;
}

// The label shows the text; a reader of the transcript finds it line by line.
void RecordLines(TextPanel& panel, const std::string& text, double lineHeight) {
  panel.Cls();
  double y = 0;
  for (std::size_t start = 0; start <= text.size(); y += lineHeight) {
    const std::size_t end = std::min(text.find('\r', start), text.size());
    const std::string line = text.substr(start, end - start);
    panel.SetCursor(0, y);
    panel.Record(line, PlainWidth(panel.surface, InPlainFace(line)));
    start = end + 1;
  }
}

}  // namespace

void lblNotesPrepare(int index, double row, double col, const std::string& text,
                     platform::Colour backColor, platform::Colour foreColor, bool bold, bool italic,
                     double fontSize, const std::string& font, const std::string& alignment) {
  CheckIndex(index, "lblNotesPrepare");
  platform::PictureBox& holder = frmPR->picNotes[index];
  platform::Label& label = frmPR->lblNotes[index];
  holder.SetVisible(false);
  label.SetUtf8Caption(PlainUtf8(text));
  label.SetFont(FaceOf(font), fontSize, bold, italic);
  label.SetColours(foreColor, backColor);
  label.SetAlignment(AlignmentOf(alignment));
  label.SizeToCaption();
  holder.BackColor = backColor;
  const platform::PixelPoint at = CellInTwips(row, col);
  holder.Move(at.x, at.y, label.Width(), label.Height());
  holder.FontName = FaceOf(font);
  holder.FontBold = bold;
  holder.FontItalic = italic;
  holder.FontSize = fontSize;
  holder.ForeColor = foreColor;
  RecordLines(*frmPR->noteText[index], text, holder.TextHeight(text));
}

void lblNotesShow(int index) {
  CheckIndex(index, "lblNotesShow");
  frmPR->picNotes[index].SetVisible(true);
  frmPR->lblNotes[index].SetVisible(true);
}

void lblNotesHide(int index) {
  CheckIndex(index, "lblNotesHide");
  frmPR->noteText[index]->Cls();
  frmPR->picNotes[index].SetVisible(false);
}

}  // namespace course
