#include "display/plain_face.h"

#include "display/drawing_cells.h"
#include "mathkit/tutor_codes.h"

namespace course {
namespace {

constexpr double kExponentSize = 0.65;

// Calls a routine with every character but the marks, the surface's font size set for it.
template <class Each>
void ForEachCharacter(platform::Surface& surface, const std::string& text, Each each) {
  const double size = surface.FontSize;
  bool raised = false;
  for (const char c : text) {
    if (c == '^') {
      raised = !raised;
      continue;
    }
    surface.FontSize = raised ? size * kExponentSize : size;
    each(c);
  }
  surface.FontSize = size;
}

bool HasExponents(const std::string& text) {
  return text.find('^') != std::string::npos;
}

}  // namespace

std::string InPlainFace(std::string text) {
  static const std::string kCodes = "~" + tutor::Gap + tutor::Times + tutor::Dot + tutor::Divided +
                                    tutor::RaisedMinus + tutor::PlusOrMinus + tutor::Degree;
  static const std::string kLetters = "\" \xD7\xB7\xF7-\xB1\xB0";
  for (char& c : text) {
    const std::size_t at = kCodes.find(c);
    if (at != std::string::npos) c = kLetters[at];
  }
  return text;
}

void PrintPlain(platform::Surface& surface, const std::string& text, double x, double y) {
  surface.CurrentX = x;
  surface.CurrentY = y;
  if (!HasExponents(text)) return surface.Print(text);
  constexpr double kPointRise = 0.12;  // pixels a point of size
  // Smaller letters are raised ones, since all text hangs from its top.
  ForEachCharacter(surface, text, [&](char c) {
    surface.CurrentY = c == '.' ? y - RoundedPixel(kPointRise * surface.FontSize) : y;
    surface.Print(std::string(1, c));
  });
}

double PlainWidth(platform::Surface& surface, const std::string& text) {
  if (!HasExponents(text)) return surface.TextWidth(text);
  double width = 0;
  ForEachCharacter(surface, text, [&](char c) { width += surface.TextWidth(std::string(1, c)); });
  return width;
}

}  // namespace course
