// Text on a surface: characters in cells, whole strings, and strings at an angle.
#include <QPainter>
#include <QPainterPath>
#include <cmath>

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

void BlendSpan(QRgb* pixels, int count, QRgb colour, unsigned coverage) {
  if (coverage == 255) {
    std::fill(pixels, pixels + count, colour);
    return;
  }
  const unsigned weight = coverage + (coverage >> 7);
  for (int i = 0; i < count; ++i) pixels[i] = Blend(pixels[i], colour, weight);
}

// A glyph whose cell lies whole on the image.
void DrawGlyph(QImage& image, const Glyph& glyph, int x, int y, QRgb colour) {
  const qsizetype stride = image.bytesPerLine() / static_cast<qsizetype>(sizeof(QRgb));
  QRgb* corner = reinterpret_cast<QRgb*>(image.bits()) + y * stride + x;
  for (const InkSpan& span : glyph)
    BlendSpan(corner + span.y * stride + span.x, span.length, colour, span.coverage);
}

void DrawGlyphClipped(QImage& image, const Glyph& glyph, int x, int y, QRgb colour) {
  for (const InkSpan& span : glyph) {
    const int row = y + span.y;
    const int left = std::max(x + span.x, 0);
    const int right = std::min(x + span.x + span.length, image.width());
    if (row < 0 || row >= image.height() || left >= right) continue;
    BlendSpan(reinterpret_cast<QRgb*>(image.scanLine(row)) + left, right - left, colour,
              span.coverage);
  }
}

QFont Decorated(const QFont& font, bool underline, bool strikethru) {
  QFont decorated = font;
  decorated.setUnderline(underline);
  decorated.setStrikeOut(strikethru);
  return decorated;
}

}  // namespace

double Surface::Impl::DrawString(const Surface& surface, int x, int y, std::string_view text) {
  const Typeface& face =
      FindTypeface(surface.FontName, surface.FontSize, surface.FontBold, surface.FontItalic);
  const QString unicode = ToUnicode(text, surface.FontName);
  const double advance = QFontMetricsF(face.font).horizontalAdvance(unicode);
  if (unicode.isEmpty()) return advance;
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
  if (text.empty()) return;
  if (cellWidth <= 0) {
    impl_->DrawString(*this, x, y, text);
    return;
  }
  GlyphSet& glyphs = FindGlyphs(FontName, FontSize, FontBold, FontItalic, cellWidth);
  const QRgb rgb = ToRgb(ForeColor);
  const QRect band(x, y, cellWidth * static_cast<int>(text.size()), glyphs.Height());
  const bool whole = impl_->image.rect().contains(band);
  int left = x;
  for (const char letter : text) {
    const Glyph& glyph = glyphs[static_cast<unsigned char>(letter)];
    if (whole)
      DrawGlyph(impl_->image, glyph, left, y, rgb);
    else
      DrawGlyphClipped(impl_->image, glyph, left, y, rgb);
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
  const double pixels = QFontMetricsF(face.font).horizontalAdvance(ToUnicode(text, FontName));
  return pixels * std::abs(impl_->UnitX());
}

double Surface::TextHeight(std::string_view) const {
  const Typeface& face = FindTypeface(FontName, FontSize, FontBold, FontItalic);
  return face.height * std::abs(impl_->UnitY());
}

}  // namespace platform
