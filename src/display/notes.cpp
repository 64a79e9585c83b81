#include "display/notes.h"

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

}  // namespace

void lblNotesPrepare(int index, double row, double col, const std::string& text,
                     platform::Colour backColor, platform::Colour foreColor, bool bold, bool italic,
                     double fontSize, const std::string& font, const std::string& alignment) {
  CheckIndex(index, "lblNotesPrepare");
  platform::PictureBox& holder = frmPR->picNotes[index];
  platform::Label& label = frmPR->lblNotes[index];
  holder.SetVisible(false);
  label.SetCaption(InPlainFace(text));
  label.SetFont(FaceOf(font), fontSize, bold, italic);
  label.SetColours(foreColor, backColor);
  label.SetAlignment(AlignmentOf(alignment));
  label.SizeToCaption();
  holder.BackColor = backColor;
  holder.Move(RowOrColumnInTwips("C", col), RowOrColumnInTwips("R", row), label.Width(),
              label.Height());
  holder.Cls();
}

void lblNotesShow(int index) {
  CheckIndex(index, "lblNotesShow");
  frmPR->picNotes[index].SetVisible(true);
  frmPR->lblNotes[index].SetVisible(true);
}

void lblNotesHide(int index) {
  CheckIndex(index, "lblNotesHide");
  frmPR->picNotes[index].Cls();
  frmPR->picNotes[index].SetVisible(false);
}

}  // namespace course
