// Notes 1 to 5: a label of its text's size that points at something on the lesson screen.  An index
// outside 1 to 5 stops the program.
#pragma once

#include <string>

#include "platform/geometry.h"

namespace course {

// At a cell of the lesson screen, invisible.  Chr(13) in the text breaks the line.  An empty font
// is "MS Sans Serif", "TNR" "Times New Roman".  Alignment "R" right, "C" centre, else left; letters
// in any case.
void lblNotesPrepare(int index, double row, double col, const std::string& text,
                     platform::Colour backColor, platform::Colour foreColor, bool bold, bool italic,
                     double fontSize, const std::string& font = "",
                     const std::string& alignment = "");
void lblNotesShow(int index);
void lblNotesHide(int index);

}  // namespace course
