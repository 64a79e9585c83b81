#include "platform/glyphs.h"

#include <QImage>
#include <QPainter>
#include <QPainterPath>
#include <QRawFont>
#include <algorithm>
#include <array>
#include <cmath>
#include <map>
#include <optional>
#include <tuple>

#include "platform/fonts_impl.h"

namespace platform {
namespace {

constexpr int kLargestExtent = 255;  // pixels; what an InkPixel can tell

// How far right of the cell's left edge the outline begins: its advance is centred, then it is
// moved inside the cell, so that erasing a cell takes its character away and no other's.
double Indent(const QPainterPath& outline, double advance, int cellWidth) {
  const QRectF ink = outline.boundingRect();
  double indent = (cellWidth - advance) / 2;
  if (ink.width() >= cellWidth) return (cellWidth - ink.width()) / 2 - ink.left();
  indent = std::max(indent, -ink.left());
  return std::min(indent, cellWidth - ink.right());
}

// How many pixels lower than its baseline asks a character stands, less than one: at the size of
// the lesson pages the tallest just reach out of the band that is erased behind a text.
double Drop(const QPainterPath& outline, int baseline, double points) {
  constexpr double kBandTop = 4;  // rows below the top of a text
  const double above = kBandTop - (baseline + outline.boundingRect().top());
  return points == 20 && above > 0 && above < 1 ? above : 0;
}

Glyph InkOf(const QImage& image) {
  Glyph glyph;
  for (int y = 0; y < image.height(); ++y) {
    const auto* row = reinterpret_cast<const QRgb*>(image.constScanLine(y));
    for (int x = 0; x < image.width(); ++x) {
      const int coverage = qAlpha(row[x]);
      if (coverage == 0) continue;
      (coverage == 255 ? glyph.inside : glyph.rim)
          .push_back({static_cast<std::uint8_t>(x), static_cast<std::uint8_t>(y),
                      static_cast<std::uint8_t>(coverage)});
    }
  }
  return glyph;
}

}  // namespace

struct GlyphSet::Impl {
  QRawFont font;
  std::string face;
  double points = 0;
  int baseline = 0;
  int height = 0;
  int cellWidth = 0;
  std::array<std::optional<Glyph>, 256> glyphs;

  Glyph Make(unsigned char code) const;
};

Glyph GlyphSet::Impl::Make(unsigned char code) const {
  const char letter = static_cast<char>(code);
  const auto indexes = font.glyphIndexesForString(ToUnicode({&letter, 1}, face));
  if (indexes.isEmpty() || indexes[0] == 0) return {};
  const QPainterPath outline = font.pathForGlyph(indexes[0]);
  if (outline.isEmpty()) return {};
  const double advance = font.advancesForGlyphIndexes(indexes).at(0).x();
  QImage image(cellWidth, height, QImage::Format_ARGB32_Premultiplied);
  image.fill(Qt::transparent);
  QPainter painter(&image);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.translate(Indent(outline, advance, cellWidth),
                    baseline + Drop(outline, baseline, points));
  painter.fillPath(outline, Qt::white);
  painter.end();
  return InkOf(image);
}

GlyphSet::GlyphSet(const std::string& face, double points, bool bold, bool italic, int cellWidth)
    : impl_(std::make_unique<Impl>()) {
  const Typeface& typeface = FindTypeface(face, points, bold, italic);
  impl_->font = QRawFont::fromFont(typeface.font);
  impl_->font.setPixelSize(typeface.pixelSize);
  impl_->face = face;
  impl_->points = points;
  impl_->baseline = typeface.ascent;
  impl_->cellWidth = std::min(cellWidth, kLargestExtent);
  const int below = static_cast<int>(std::ceil(impl_->font.descent())) + 1;
  impl_->height = std::min(typeface.ascent + below, kLargestExtent);
}

GlyphSet::~GlyphSet() = default;

const Glyph& GlyphSet::operator[](unsigned char code) {
  std::optional<Glyph>& glyph = impl_->glyphs[code];
  if (!glyph) glyph = impl_->Make(code);
  return *glyph;
}

int GlyphSet::Height() const {
  return impl_->height;
}

int GlyphSet::Baseline() const {
  return impl_->baseline;
}

int GlyphSet::LineWidth() const {
  return std::max(1, static_cast<int>(std::lround(impl_->font.lineThickness())));
}

GlyphSet& FindGlyphs(const std::string& face, double points, bool bold, bool italic,
                     int cellWidth) {
  // Never destroyed: fonts must not outlive the toolkit, which goes before the statics do.
  using Key = std::tuple<std::string, double, bool, bool, int>;
  static auto& cache = *new std::map<Key, std::unique_ptr<GlyphSet>>;
  std::unique_ptr<GlyphSet>& set = cache[Key(face, points, bold, italic, cellWidth)];
  if (!set) set = std::make_unique<GlyphSet>(face, points, bold, italic, cellWidth);
  return *set;
}

}  // namespace platform
