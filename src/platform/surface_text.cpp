// Text on a surface: characters in cells, whole strings, and strings at an angle.
#include <QPainter>
#include <QPainterPath>
#include <array>
#include <cmath>
#include <cstdint>

#include "platform/fonts_impl.h"
#include "platform/glyphs.h"
#include "platform/surface.h"
#include "platform/surface_impl.h"

namespace platform {
namespace {

// The colour over what lies below it, red and blue in one step; weight is 0 to 256.
QRgb Blend(QRgb below, QRgb colour, unsigned weight) {
  const unsigned rest = 256 - weight;
  const QRgb redBlue = ((colour & 0xFF00FF) * weight + (below & 0xFF00FF) * rest) >> 8;
  const QRgb green = ((colour & 0x00FF00) * weight + (below & 0x00FF00) * rest) >> 8;
  return 0xFF000000 | (redBlue & 0xFF00FF) | (green & 0x00FF00);
}

// What a colour gives over one ground at every coverage.  Text mostly stands on a single colour,
// and looking a blend up is several times as quick as working it out.
class BlendTable {
 public:
  void Set(QRgb ground, QRgb colour) {
    if (ground == ground_ && colour == colour_ && filled_) return;
    ground_ = ground;
    colour_ = colour;
    filled_ = true;
    for (unsigned i = 0; i < blends_.size(); ++i) blends_[i] = Blend(ground, colour, Weight(i));
  }
  QRgb Over(QRgb below, std::uint8_t coverage) const {
    return below == ground_ ? blends_[coverage] : Blend(below, colour_, Weight(coverage));
  }
  QRgb FullColour() const { return colour_; }

 private:
  static unsigned Weight(unsigned coverage) { return coverage + (coverage >> 7); }

  bool filled_ = false;
  QRgb ground_ = 0;
  QRgb colour_ = 0;
  std::array<QRgb, 256> blends_{};
};

// The pixels of an image, which must not be shared or resized meanwhile.
struct Pixels {
  QRgb* first;
  qsizetype stride;
  QRect bounds;

  explicit Pixels(QImage& image)
      : first(reinterpret_cast<QRgb*>(image.bits())),
        stride(image.bytesPerLine() / static_cast<qsizetype>(sizeof(QRgb))),
        bounds(image.rect()) {}
};

// A glyph whose cell lies whole on the image.
void DrawGlyph(const Pixels& pixels, const Glyph& glyph, int x, int y, const BlendTable& blends) {
  QRgb* corner = pixels.first + y * pixels.stride + x;
  const QRgb colour = blends.FullColour();
  for (const InkPixel& ink : glyph.inside) corner[ink.y * pixels.stride + ink.x] = colour;
  for (const InkPixel& ink : glyph.rim) {
    QRgb& pixel = corner[ink.y * pixels.stride + ink.x];
    pixel = blends.Over(pixel, ink.coverage);
  }
}

void DrawGlyphClipped(const Pixels& pixels, const Glyph& glyph, int x, int y,
                      const BlendTable& blends) {
  const auto draw = [&](const InkPixel& ink) {
    if (!pixels.bounds.contains(x + ink.x, y + ink.y)) return;
    QRgb& pixel = pixels.first[(y + ink.y) * pixels.stride + x + ink.x];
    pixel = blends.Over(pixel, ink.coverage);
  };
  for (const InkPixel& ink : glyph.inside) draw(ink);
  for (const InkPixel& ink : glyph.rim) draw(ink);
}

QFont Decorated(const QFont& font, bool underline, bool strikethru) {
  QFont decorated = font;
  decorated.setUnderline(underline);
  decorated.setStrikeOut(strikethru);
  return decorated;
}

// In pixels.  Shaping a text takes longer than anything else that is done with it, and pages
// measure the same few again and again.
double WidthIn(const Typeface& face, std::string_view text, const std::string& name) {
  constexpr std::size_t kMostWidths = 10000;
  if (face.widths.size() > kMostWidths) face.widths.clear();
  const auto [width, isNew] = face.widths.try_emplace(std::string(text));
  if (isNew) width->second = QFontMetricsF(face.font).horizontalAdvance(ToUnicode(text, name));
  return width->second;
}

}  // namespace

double Surface::Impl::DrawString(const Surface& surface, int x, int y, std::string_view text) {
  const Typeface& face =
      FindTypeface(surface.FontName, surface.FontSize, surface.FontBold, surface.FontItalic);
  const QString unicode = ToUnicode(text, surface.FontName);
  const double advance = WidthIn(face, text, surface.FontName);
  if (unicode.isEmpty() || !paints) return advance;
  QPainter painter(&image);
  painter.setFont(surface.FontUnderline || surface.FontStrikethru
                      ? Decorated(face.font, surface.FontUnderline, surface.FontStrikethru)
                      : face.font);
  painter.setPen(QColor::fromRgb(ToRgb(surface.ForeColor)));
  painter.drawText(QPointF(x, y + face.ascent), unicode);
  painter.end();
  // Slanted and wide letters reach a little over their own widths and lines.
  const int margin = static_cast<int>(std::ceil(face.pixelSize / 2));
  Touch(QRect(x, y, static_cast<int>(std::ceil(advance)), face.height)
            .adjusted(-margin, -margin, margin, margin));
  return advance;
}

void Surface::TextOut(int x, int y, std::string_view text, int cellWidth) {
  if (text.empty() || !impl_->paints) return;
  if (cellWidth <= 0) {
    impl_->DrawString(*this, x, y, text);
    return;
  }
  GlyphSet& glyphs = FindGlyphs(FontName, FontSize, FontBold, FontItalic, cellWidth);
  const QRect band(x, y, cellWidth * static_cast<int>(text.size()), glyphs.Height());
  if (!impl_->image.rect().intersects(band)) return;
  static BlendTable blends;
  const Pixels pixels(impl_->image);
  const QRect shown = band & pixels.bounds;
  blends.Set(pixels.first[shown.top() * pixels.stride + shown.left()], ToRgb(ForeColor));
  int left = x;
  for (const char letter : text) {
    const Glyph& glyph = glyphs[static_cast<unsigned char>(letter)];
    const QRect cell(left, y, cellWidth, glyphs.Height());
    if (pixels.bounds.contains(cell))
      DrawGlyph(pixels, glyph, left, y, blends);
    else
      DrawGlyphClipped(pixels, glyph, left, y, blends);
    left += cellWidth;
  }
  impl_->Touch(band);
  const int thickness = glyphs.LineWidth();
  if (FontUnderline) FillRect({x, y + glyphs.Baseline() + 2, band.width(), thickness}, ForeColor);
  if (FontStrikethru)
    FillRect({x, y + glyphs.Baseline() * 2 / 3, band.width(), thickness}, ForeColor);
}

void Surface::Print(std::string_view text) {
  const PixelPoint at = impl_->PixelAt(CurrentX, CurrentY);
  CurrentX += impl_->DrawString(*this, at.x, at.y, text) * impl_->UnitX();
}

void Surface::PrintRotated(std::string_view text, double x, double y, double degrees, Colour colour,
                           const std::string& face, double points, bool bold) {
  if (!impl_->paints) return;
  const Typeface& typeface = FindTypeface(face, points, bold, false);
  QPainterPath outlines;
  outlines.addText(0, typeface.ascent, typeface.font, ToUnicode(text, face));
  QPainter painter(&impl_->image);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.translate(impl_->ToPixelX(x), impl_->ToPixelY(y));
  painter.rotate(-degrees);
  painter.fillPath(outlines, QColor::fromRgb(ToRgb(colour)));
  impl_->Touch(painter.transform().mapRect(outlines.boundingRect()).toAlignedRect());
}

double Surface::TextWidth(std::string_view text) const {
  const Typeface& face = FindTypeface(FontName, FontSize, FontBold, FontItalic);
  return WidthIn(face, text, FontName) * std::abs(impl_->UnitX());
}

double Surface::TextHeight(std::string_view) const {
  const Typeface& face = FindTypeface(FontName, FontSize, FontBold, FontItalic);
  return face.height * std::abs(impl_->UnitY());
}

}  // namespace platform
