// What the files of the comment boxes share.
#pragma once

#include <string>

#include "display/text_panel.h"

namespace course {

// The text of comment box 1 to 5; another box stops the program in the name of the routine.
TextPanel& CommentPanel(int box, const char* routine);

// A shadowed line's type.  An empty font is "Times New Roman"; size in points, shadow in pixels.
struct HeadingStyle {
  std::string font;
  bool bold = true;
  bool italic = false;
  double size = 18;
  platform::Colour foreColor = 0;
  platform::Colour shadowColor = 0;
  int shadowThickness = 0;
};
void SetHeadingFont(platform::Surface& surface, const HeadingStyle& style);
// At pixel (x, y) of the panel.  The surface keeps the heading's font.
void PrintHeadingOn(TextPanel& panel, const std::string& text, int x, int y,
                    const HeadingStyle& style);

}  // namespace course
