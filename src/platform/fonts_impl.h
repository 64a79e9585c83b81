// Fonts of the toolkit for the course's faces: for the .cpp files of this folder alone.
#pragma once

#include <QFont>
#include <QString>
#include <string>
#include <string_view>
#include <unordered_map>

namespace platform {

struct Typeface {
  QFont font;
  double pixelSize = 0;  // height of the em
  int ascent = 0;        // pixel rows from the top of a text to its baseline
  int height = 0;        // pixel rows of a line of text
  mutable std::unordered_map<std::string, double> widths;  // of texts that were measured, in pixels
};

// The font of a face and a size in points.  Sizes are set in pixels, so that no desktop's dots per
// inch changes a page.  The reference stays valid.
const Typeface& FindTypeface(const std::string& face, double points, bool bold, bool italic);

// A text of the course for the toolkit.  Codes that no font has a letter for become blanks.
QString ToUnicode(std::string_view text, const std::string& face);

}  // namespace platform
