// Copying between surfaces, and filling up to a boundary.
#include <QPainter>
#include <cstdint>
#include <cstring>
#include <vector>

#include "platform/surface.h"
#include "platform/surface_impl.h"

namespace platform {

void Surface::BitBlt(int x, int y, int width, int height, const Surface& source, int sourceX,
                     int sourceY) {
  if (!impl_->paints || !source.impl_->paints) return;
  // What is copied, in pixels of this surface.
  const QPoint offset(x - sourceX, y - sourceY);
  const QRect copied = QRect(x, y, width, height) & impl_->image.rect() &
                       source.impl_->image.rect().translated(offset);
  if (copied.isEmpty()) return;
  const std::size_t bytes = static_cast<std::size_t>(copied.width()) * sizeof(QRgb);
  // Moving down within one surface, the lower rows first, before the upper ones are written over
  // them.
  const bool upwards = &source == this && offset.y() > 0;
  for (int i = 0; i < copied.height(); ++i) {
    const int row = upwards ? copied.bottom() - i : copied.top() + i;
    std::memmove(impl_->Row(row) + copied.left(),
                 std::as_const(*source.impl_).Row(row - offset.y()) + copied.left() - offset.x(),
                 bytes);
  }
  impl_->Touch(copied);
}

void Surface::StretchBlt(const PixelRect& rect, const Surface& source) {
  if (!impl_->paints || !source.impl_->paints) return;
  const QRect target(rect.left, rect.top, rect.width, rect.height);
  const QImage scaled =
      source.impl_->image.scaled(target.size(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
  QPainter(&impl_->image).drawImage(target.topLeft(), scaled);
  impl_->Touch(target);
}

namespace {

// Fills row by row from seeds: each seed is widened to a whole run, whose neighbours above and
// below give new seeds.
class Flood {
 public:
  Flood(QImage& image, QRgb fill, QRgb boundary)
      : image_(image),
        fill_(fill),
        boundary_(boundary),
        filled_(static_cast<std::size_t>(image.width()) * image.height()) {}

  void From(const QPoint& start) {
    seeds_.push_back(start);
    while (!seeds_.empty()) {
      const QPoint seed = seeds_.back();
      seeds_.pop_back();
      if (Open(seed.x(), seed.y())) FillRun(seed);
    }
  }
  const QRect& Bounds() const { return bounds_; }

 private:
  bool Open(int x, int y) const {
    return image_.rect().contains(x, y) && !filled_[Index(x, y)] && Row(y)[x] != boundary_;
  }

  void FillRun(const QPoint& seed) {
    const int y = seed.y();
    int left = seed.x();
    int right = seed.x();
    while (Open(left - 1, y)) --left;
    while (Open(right + 1, y)) ++right;
    for (int x = left; x <= right; ++x) {
      Row(y)[x] = fill_;
      filled_[Index(x, y)] = 1;
    }
    bounds_ |= QRect(QPoint(left, y), QPoint(right, y));
    AddSeeds(y - 1, left, right);
    AddSeeds(y + 1, left, right);
  }

  void AddSeeds(int y, int left, int right) {
    for (int x = left; x <= right; ++x)
      if (Open(x, y) && (x == left || !Open(x - 1, y))) seeds_.emplace_back(x, y);
  }

  std::size_t Index(int x, int y) const { return static_cast<std::size_t>(y) * image_.width() + x; }
  QRgb* Row(int y) const { return reinterpret_cast<QRgb*>(image_.scanLine(y)); }

  QImage& image_;
  QRgb fill_;
  QRgb boundary_;
  std::vector<std::uint8_t> filled_;
  std::vector<QPoint> seeds_;
  QRect bounds_;
};

}  // namespace

void Surface::FloodFill(int x, int y, Colour fill, Colour boundary) {
  if (!impl_->paints) return;
  Flood flood(impl_->image, ToRgb(fill), ToRgb(boundary));
  flood.From({x, y});
  impl_->Touch(flood.Bounds());
}

}  // namespace platform
