// Characters ready for printing into cells: for each face, size and cell width the coverage of its
// characters, worked out once and blended by hand afterwards, which is what makes a line quick.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace platform {

// A pixel that a character's ink covers, in full or in part.
struct InkPixel {
  std::uint8_t x = 0;         // pixels from the left edge of the cell
  std::uint8_t y = 0;         // rows from the top of the text
  std::uint8_t coverage = 0;  // 1 to 255
};

struct Glyph {
  std::vector<InkPixel> inside;  // covered in full
  std::vector<InkPixel> rim;     // covered in part
};

class GlyphSet {
 public:
  GlyphSet(const std::string& face, double points, bool bold, bool italic, int cellWidth);
  ~GlyphSet();
  // The ink of a character, all of it inside its cell.
  const Glyph& operator[](unsigned char code);
  int Height() const;  // rows, from the top of the text, that any ink may lie in
  int Baseline() const;
  int LineWidth() const;  // thickness of an underline, pixels

 private:
  struct Impl;
  std::unique_ptr<Impl> impl_;
};

// The one set of its kind.  The reference stays valid.
GlyphSet& FindGlyphs(const std::string& face, double points, bool bold, bool italic, int cellWidth);

}  // namespace platform
