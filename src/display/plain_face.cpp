#include "display/plain_face.h"

#include <algorithm>
#include <iterator>
#include <vector>

#include "display/drawing_cells.h"
#include "display/special_characters.h"
#include "mathkit/tutor_codes.h"
#include "platform/stop.h"

namespace course {
namespace {

constexpr double kExponentSize = 0.65;

// The course's signs that no face of letters has, as the symbol face names them.
struct Sign {
  int code;
  char symbol;
};
constexpr Sign kSigns[] = {{127, '\x44'}, {129, '\x71'}, {131, '\xB3'}, {132, '\xA3'},
                           {133, '\xD6'}, {135, '\xAC'}, {136, '\xAE'}, {217, '\xD0'},
                           {218, '\xA5'}, {221, '\xB9'}, {226, '\xBB'}, {249, '\x70'}};

const Sign* SignOf(char c) {
  const int code = static_cast<unsigned char>(c);
  const auto* found = std::ranges::find(kSigns, code, &Sign::code);
  return found == std::end(kSigns) ? nullptr : found;
}

// A stretch of a text that is printed in one face and size.
struct Stretch {
  std::string text;
  bool raised = false;
  bool symbol = false;
};

bool HasExponents(const std::string& text) {
  return text.find('^') != std::string::npos;
}

std::vector<Stretch> Stretches(const std::string& text) {
  // With exponents each character is printed by itself.
  const bool single = HasExponents(text);
  std::vector<Stretch> stretches;
  bool raised = false;
  for (const char c : text) {
    if (c == '^') {
      raised = !raised;
      continue;
    }
    const Sign* sign = SignOf(c);
    const char letter = sign == nullptr ? c : sign->symbol;
    const bool symbol = sign != nullptr;
    if (!single && !stretches.empty() && stretches.back().symbol == symbol)
      stretches.back().text += letter;
    else
      stretches.push_back({std::string(1, letter), raised, symbol});
  }
  return stretches;
}

// Calls a routine with every stretch, the surface's face and size set for it.
template <class Each>
void ForEachStretch(platform::Surface& surface, const std::string& text, Each each) {
  const std::string face = surface.FontName;
  const double size = surface.FontSize;
  for (const Stretch& stretch : Stretches(text)) {
    surface.FontName = stretch.symbol ? "Symbol" : face;
    surface.FontSize = stretch.raised ? size * kExponentSize : size;
    each(stretch);
  }
  surface.FontName = face;
  surface.FontSize = size;
}

}  // namespace

std::string InPlainFace(std::string text) {
  static const std::string kCodes = "~" + tutor::Gap + tutor::Times + tutor::Dot + tutor::Divided +
                                    tutor::RaisedMinus + tutor::RaisedPlus + tutor::PlusOrMinus +
                                    tutor::Degree + Chr(219);
  static const std::string kLetters = "\" \xD7\xB7\xF7-+\xB1\xB0|";
  for (char& c : text) {
    const int code = static_cast<unsigned char>(c);
    const std::size_t at = kCodes.find(c);
    if (at != std::string::npos)
      c = kLetters[at];
    else if (SignOf(c) == nullptr && IsDrawnCharacter(code))
      platform::Stop("InPlainFace: no face of letters has the character " + std::to_string(code) +
                     " of \"" + text + "\"");
  }
  return text;
}

std::string PlainUtf8(const std::string& text) {
  std::string utf8;
  for (const char c : InPlainFace(text)) {
    const int code = static_cast<unsigned char>(c);
    if (SignOf(c) != nullptr)
      utf8 += ToUtf8(std::string(1, c));
    else if (code < 128)
      utf8 += c;
    else
      utf8 += Chr(0xC0 | (code >> 6)) + Chr(0x80 | (code & 0x3F));
  }
  return utf8;
}

void PrintPlain(platform::Surface& surface, const std::string& text, double x, double y) {
  constexpr double kPointRise = 0.12;   // pixels a point of size
  constexpr double kSymbolRise = 0.13;  // the symbol face hangs that much lower, a point of size
  surface.CurrentX = x;
  // Smaller letters are raised ones, since all text hangs from its top.
  ForEachStretch(surface, text, [&](const Stretch& stretch) {
    const bool point = HasExponents(text) && stretch.text == ".";
    const double rise = point ? kPointRise : stretch.symbol ? kSymbolRise : 0;
    surface.CurrentY = y - RoundedPixel(rise * surface.FontSize);
    surface.Print(stretch.text);
  });
}

double PlainWidth(platform::Surface& surface, const std::string& text) {
  double width = 0;
  ForEachStretch(surface, text,
                 [&](const Stretch& stretch) { width += surface.TextWidth(stretch.text); });
  return width;
}

}  // namespace course
