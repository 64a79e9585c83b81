#include "display/special_characters.h"

#include <algorithm>
#include <iterator>

#include "display/drawing_cells.h"
#include "display/plain_face.h"
#include "mathkit/tutor_codes.h"
#include "platform/stop.h"

namespace course {
namespace {

// Coordinates are pixels relative to the top left of the cell.
struct Stroke {
  int code;
  int width;
  int x1, y1, x2, y2;
};

constexpr Stroke kStrokes[] = {
    {127, 2, 2, 22, 8, 7},   {127, 2, 8, 7, 14, 22},  {127, 2, 14, 22, 2, 22},
    {129, 3, 4, 14, 12, 14}, {130, 1, 5, 10, 13, 10}, {130, 1, 5, 11, 13, 11},
    {131, 3, 1, 5, 13, 11},  {131, 3, 1, 17, 13, 11}, {131, 3, 1, 21, 13, 21},
    {132, 3, 1, 11, 13, 5},  {132, 3, 1, 11, 13, 17}, {132, 3, 1, 21, 13, 21},
    {133, 3, 1, 10, 4, 8},   {133, 3, 4, 8, 9, 22},   {133, 3, 9, 22, 15, 0},
    {134, 1, 2, 14, 14, 14}, {134, 1, 2, 15, 14, 15}, {134, 1, 2, 16, 14, 16},
    {134, 1, 7, 8, 10, 8},   {134, 1, 7, 9, 10, 9},   {134, 1, 7, 10, 10, 10},
    {134, 1, 7, 21, 10, 21}, {134, 1, 7, 22, 10, 22}, {141, 3, 3, 11, 12, 19},
    {141, 3, 3, 19, 12, 11}, {157, 1, 5, 10, 13, 10}, {157, 1, 5, 11, 13, 11},
    {157, 1, 8, 6, 8, 15},   {157, 1, 9, 6, 9, 15},   {162, 3, 0, 3, 15, 3},
    {163, 3, 0, 3, 15, 3},   {164, 3, 0, 3, 15, 3},   {165, 3, 0, 3, 15, 3},
    {166, 3, 0, 3, 15, 3},   {167, 3, 0, 3, 15, 3},   {176, 3, 0, 3, 15, 3},
    {168, 2, 1, 16, 13, 16}, {168, 2, 1, 20, 13, 20}, {169, 3, 5, 4, 5, 24},
    {169, 3, 10, 4, 10, 24}, {170, 3, 7, 7, 7, 21},   {170, 3, 1, 21, 13, 21},
    {171, 2, 7, 8, 14, 8},   {171, 2, 14, 8, 9, 22},  {171, 2, 9, 22, 2, 22},
    {171, 2, 2, 22, 7, 8},   {171, 1, 6, 7, 14, 7},   {171, 1, 2, 22, 11, 22},
    {173, 2, 4, 8, 12, 8},   {173, 2, 12, 8, 12, 22}, {173, 2, 12, 22, 4, 22},
    {173, 2, 4, 22, 4, 8},   {174, 2, 5, 11, 11, 11}, {174, 2, 11, 11, 14, 22},
    {174, 2, 14, 22, 2, 22}, {174, 2, 2, 22, 5, 11},  {174, 1, 5, 10, 11, 10},
    {191, 3, 1, 12, 13, 12}, {191, 3, 7, 5, 7, 21},   {191, 3, 1, 21, 13, 21},
    {217, 3, 1, 21, 12, 5},  {217, 3, 1, 21, 12, 21}, {219, 1, 7, 5, 7, 26},
    {219, 1, 8, 5, 8, 26},   {219, 1, 9, 5, 9, 26},   {221, 3, 11, 5, 3, 22},
    {221, 3, 1, 11, 13, 11}, {221, 3, 1, 16, 13, 16},
};

// The wiper box gives the division sign's lower dot one more row.
constexpr Stroke kWiperDot = {134, 1, 7, 23, 10, 23};

// Letters of the print font that are part of a drawing; size 0 is the panel's own.
struct Letter {
  int code;
  char character;
  int x, y;
  int size;
};

constexpr Letter kLetters[] = {
    {129, '0', 0, 0, 0}, {162, 'a', 0, 0, 0}, {163, 'b', 0, 0, 0},   {164, 'c', 0, 0, 0},
    {165, 'd', 0, 0, 0}, {166, 'e', 0, 0, 0}, {167, 'o', 0, 0, 0},   {168, '~', 0, -6, 0},
    {176, 'p', 0, 0, 0}, {177, '~', 0, 0, 0}, {216, 'o', 2, -3, 14}, {248, '\xB7', 0, 2, 0},
};

// Glyphs of the Symbol face.
struct SymbolGlyph {
  int code;
  char character;
  int size;  // points
  int x, y;
};

constexpr SymbolGlyph kRightArrow = {136, '\xAE', 16, 0, 0};
constexpr SymbolGlyph kInfinity = {218, '\xA5', 18, 0, -2};
constexpr SymbolGlyph kInfinityOnWiper = {218, '\xA5', 16, 0, 0};
constexpr SymbolGlyph kPi = {249, '\x70', 18, 0, -1};
constexpr SymbolGlyph kPiInAnswer = {249, '\x70', 16, 0, -1};

// Comment boxes draw four characters in shapes of their own for the sizes 10, 12 and 15; the others
// are those of the lesson panel, made smaller.
struct SizedStroke {
  int size;
  Stroke stroke;
};

constexpr SizedStroke kCommentStrokes[] = {
    {15, {130, 1, 4, 8, 10, 8}},  {15, {130, 1, 4, 9, 10, 9}},   {12, {130, 1, 3, 7, 8, 7}},
    {12, {130, 1, 3, 8, 8, 8}},   {10, {130, 1, 2, 5, 7, 5}},    {10, {130, 1, 2, 6, 7, 6}},
    {15, {141, 2, 2, 8, 8, 14}},  {15, {141, 2, 2, 14, 8, 8}},   {12, {141, 2, 2, 7, 7, 12}},
    {12, {141, 2, 2, 12, 7, 7}},  {10, {141, 2, 1, 6, 5, 10}},   {10, {141, 2, 1, 10, 5, 6}},
    {15, {248, 1, 4, 11, 7, 11}}, {15, {248, 1, 4, 12, 7, 12}},  {15, {248, 1, 4, 13, 7, 13}},
    {12, {248, 1, 3, 9, 6, 9}},   {12, {248, 1, 3, 10, 6, 10}},  {12, {248, 1, 3, 11, 6, 11}},
    {10, {248, 1, 3, 7, 5, 7}},   {10, {248, 1, 3, 8, 5, 8}},    {15, {249, 1, 0, 7, 12, 7}},
    {15, {249, 1, 0, 8, 12, 8}},  {15, {249, 1, 2, 8, 2, 17}},   {15, {249, 1, 3, 8, 3, 17}},
    {15, {249, 1, 8, 8, 8, 17}},  {15, {249, 1, 9, 8, 9, 17}},   {15, {249, 1, 1, 16, 5, 16}},
    {15, {249, 1, 1, 17, 5, 17}}, {15, {249, 1, 7, 16, 11, 16}}, {15, {249, 1, 7, 17, 11, 17}},
    {12, {249, 1, 0, 6, 9, 6}},   {12, {249, 1, 0, 7, 9, 7}},    {12, {249, 1, 2, 6, 2, 14}},
    {12, {249, 1, 3, 6, 3, 14}},  {12, {249, 1, 5, 6, 5, 14}},   {12, {249, 1, 6, 6, 6, 14}},
    {10, {249, 1, 0, 5, 9, 5}},   {10, {249, 1, 0, 6, 9, 6}},    {10, {249, 1, 2, 6, 2, 12}},
    {10, {249, 1, 3, 6, 3, 12}},  {10, {249, 1, 5, 6, 5, 12}},   {10, {249, 1, 6, 6, 6, 12}},
};

// The codes that the print font cannot be trusted to show.
constexpr int kDrawnCodes[] = {127, 129, 130, 131, 132, 133, 134, 135, 136, 141, 157, 161, 162,
                               163, 164, 165, 166, 167, 168, 169, 170, 171, 173, 174, 176, 177,
                               191, 216, 217, 218, 219, 221, 226, 230, 231, 248, 249, 253, 255};

void DrawStroke(platform::Surface& surface, const Stroke& stroke, int x, int y) {
  surface.DrawWidth = stroke.width;
  surface.Line(x + stroke.x1, y + stroke.y1, x + stroke.x2, y + stroke.y2);
  surface.DrawWidth = 1;
}

void DrawSymbol(TextPanel& panel, const SymbolGlyph& glyph, int x, int y) {
  platform::Surface& surface = panel.surface;
  const platform::Colour colour = surface.ForeColor;
  surface.CurrentX = x + glyph.x;
  surface.CurrentY = y + glyph.y;
  surface.FontName = "Symbol";
  surface.FontSize = glyph.size;
  surface.FontBold = true;
  surface.Print(std::string(1, glyph.character));
  panel.RestoreFont();
  // The lesson panel and the wiper boxes lose the colour of the text behind the glyph; lessons were
  // written with that.  An answer box keeps its own.
  if (panel.layout.characters == CharacterSet::AnswerBox) panel.SetColor(colour);
}

void DrawLetters(TextPanel& panel, int code, int x, int y) {
  for (const Letter& letter : kLetters) {
    if (letter.code != code) continue;
    if (letter.size != 0) panel.SetFontSize(letter.size);
    panel.surface.TextOut(x + letter.x, y + letter.y, std::string(1, letter.character),
                          panel.layout.cellWidth);
    if (letter.size != 0) panel.SetFontSize(panel.layout.fontSize);
  }
}

void DrawCircledDot(TextPanel& panel, int x, int y) {
  platform::Surface& surface = panel.surface;
  surface.DrawWidth = 2;
  surface.PSet(x + 8, y + 15);
  surface.Circle(x + 8, y + 15, 6);
  // The wiper box forgets to put the width back, and later lines on it are thick.
  if (panel.layout.characters != CharacterSet::WiperBox) surface.DrawWidth = 1;
}

int SpriteKind(CharacterSet characters) {
  switch (characters) {
    case CharacterSet::LessonWindow:
      return 1;
    case CharacterSet::WiperBox:
      return 2;
    default:
      return 3;
  }
}

bool DrawnAsSprite(CharacterSet characters, int code) {
  if (code == 135 || code == 226 || code == 230 || code == 231) return true;
  return characters == CharacterSet::AnswerBox && (code == 136 || code == 218);
}

// The size whose drawings a comment box of another size borrows.
int CommentDrawingSize(double fontSize) {
  if (fontSize < 12) return 10;
  return fontSize < 15 ? 12 : 15;
}

// A cell that is smaller than the one for which the characters were drawn.
struct Scaled {
  double x;
  double y;
  int X(int at) const { return RoundedPixel(at * x); }
  int Y(int at) const { return RoundedPixel(at * y); }
};

Scaled ScaleOf(const TextPanel& panel) {
  constexpr double kWidth = 16;
  constexpr double kHeight = 25;
  return {panel.layout.cellWidth / kWidth, panel.layout.cellHeight / kHeight};
}

void DrawSmallLetters(TextPanel& panel, int code, int x, int y) {
  constexpr double kFull = 20;  // points
  const double size = panel.layout.fontSize;
  const Scaled scale = ScaleOf(panel);
  for (const Letter& letter : kLetters) {
    if (letter.code != code) continue;
    if (letter.size != 0) panel.SetFontSize(letter.size * size / kFull);
    panel.surface.TextOut(x + scale.X(letter.x), y + scale.Y(letter.y),
                          std::string(1, letter.character), panel.layout.cellWidth);
    panel.SetFontSize(size);
  }
}

bool DrawSmallShape(TextPanel& panel, int code, int x, int y) {
  platform::Surface& surface = panel.surface;
  const Scaled scale = ScaleOf(panel);
  switch (code) {
    case 135:
    case 136:
    case 218:
    case 226:
      surface.FontSize = panel.layout.fontSize * 0.8;
      PrintPlain(surface, Chr(code), x, y + scale.Y(1));
      surface.FontSize = panel.layout.fontSize;
      return true;
    case 161:
      surface.PSet(x + scale.X(8), y + scale.Y(15));
      surface.Circle(x + scale.X(8), y + scale.Y(15), scale.X(6));
      return true;
    case 253:
      surface.FilledBox(x + scale.X(4), y + scale.Y(12), x + scale.X(11), y + scale.Y(19));
      return true;
    default:
      return false;
  }
}

void DrawCommentCharacter(TextPanel& panel, int code, int x, int y) {
  const int size = CommentDrawingSize(panel.layout.fontSize);
  bool own = false;
  for (const SizedStroke& sized : kCommentStrokes) {
    if (sized.stroke.code != code) continue;
    own = true;
    if (sized.size == size) DrawStroke(panel.surface, sized.stroke, x, y);
  }
  if (own || DrawSmallShape(panel, code, x, y)) return;
  DrawSmallLetters(panel, code, x, y);
  const Scaled scale = ScaleOf(panel);
  for (const Stroke& s : kStrokes)
    if (s.code == code)
      DrawStroke(panel.surface,
                 {code, std::max(1, scale.X(s.width)), scale.X(s.x1), scale.Y(s.y1), scale.X(s.x2),
                  scale.Y(s.y2)},
                 x, y);
}

bool DrawSymbolOf(TextPanel& panel, int code, int x, int y) {
  const CharacterSet characters = panel.layout.characters;
  switch (code) {
    case 136:
      DrawSymbol(panel, kRightArrow, x, y);
      return true;
    case 218:
      DrawSymbol(panel, characters == CharacterSet::WiperBox ? kInfinityOnWiper : kInfinity, x, y);
      return true;
    case 249:
      DrawSymbol(panel, characters == CharacterSet::AnswerBox ? kPiInAnswer : kPi, x, y);
      return true;
    default:
      return false;
  }
}

}  // namespace

bool IsDrawnCharacter(int code) {
  return code >= 127 && std::ranges::find(kDrawnCodes, code) != std::end(kDrawnCodes);
}

void DrawSprite(platform::Surface& target, int code, int x, int y, int surfaceKind) {
  constexpr int kFirstY[] = {0, 200, 285, 370};
  if (code < 127 || code > 255 || surfaceKind < 1 || surfaceKind > 3)
    platform::Stop("DrawSprite: code " + std::to_string(code) + ", surface " +
                   std::to_string(surfaceKind) + ".  Codes 127 to 255 and surfaces 1 to 3 exist.");
  constexpr int kCodesInRow = 43;
  const int place = code - 127;
  const int sourceX = place % kCodesInRow * 16 + 20;
  int sourceY = kFirstY[surfaceKind] + place / kCodesInRow * 25;
  if (code == 249) ++sourceY;  // pi stands a pixel lower on the sheet
  const int drop = surfaceKind == 3 ? 1 : 4;
  target.DrawPicturePart("sprite_sheet", x, y + drop, {sourceX, sourceY, 16, 25});
}

void DrawSpecialCharacter(TextPanel& panel, int code, int x, int y) {
  const CharacterSet characters = panel.layout.characters;
  platform::Surface& surface = panel.surface;
  if (code == 255) return;  // a hard blank
  if (characters == CharacterSet::CommentBox && panel.layout.fontSize != 20)
    return DrawCommentCharacter(panel, code, x, y);
  if (DrawnAsSprite(characters, code))
    return DrawSprite(surface, code, x, y, SpriteKind(characters));
  if (DrawSymbolOf(panel, code, x, y)) return;
  if (code == 161) return DrawCircledDot(panel, x, y);
  if (code == 253) return surface.FilledBox(x + 4, y + 12, x + 11, y + 19);
  DrawLetters(panel, code, x, y);
  for (const Stroke& stroke : kStrokes)
    if (stroke.code == code) DrawStroke(surface, stroke, x, y);
  if (code == kWiperDot.code && characters == CharacterSet::WiperBox)
    DrawStroke(surface, kWiperDot, x, y);
}

std::string gTutorCharTable;

void FillTutorCharTable() {
  gTutorCharTable.clear();
  for (int code : {127, 129, 130, 131, 132, 133, 134, 141, 157, 162, 163, 164, 165, 166, 167,
                   168, 191, 216, 217, 218, 219, 221, 226, 230, 231, 248, 249, 253, 255})
    gTutorCharTable += Chr(code);
}

}  // namespace course
