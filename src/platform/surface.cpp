#include "platform/surface.h"

#include <QString>
#include <algorithm>
#include <cmath>
#include <cstring>

#include "platform/surface_impl.h"

namespace platform {

int NearestPixel(double value) {
  constexpr double kFarthest = 1 << 24;
  return static_cast<int>(std::nearbyint(std::clamp(value, -kFarthest, kFarthest)));
}

void Surface::Impl::Span(int y, int left, int right, QRgb rgb, DrawModes mode) {
  if (y < 0 || y >= image.height()) return;
  left = std::max(left, 0);
  right = std::min(right, image.width() - 1);
  if (left > right) return;
  QRgb* row = Row(y);
  if (mode == DrawModes::CopyPen) {
    std::fill(row + left, row + right + 1, rgb);
    return;
  }
  for (int x = left; x <= right; ++x) row[x] ^= rgb & 0xFFFFFF;
}

void Surface::Impl::Fill(const QRect& rect, QRgb rgb, DrawModes mode) {
  if (!paints) return;
  const QRect filled = rect & image.rect();
  if (filled.isEmpty()) return;
  // The first row pixel by pixel, the others as copies of it, which is several times as quick.
  const bool copies = mode == DrawModes::CopyPen;
  const int last = copies ? filled.top() : filled.bottom();
  for (int y = filled.top(); y <= last; ++y) Span(y, filled.left(), filled.right(), rgb, mode);
  const QRgb* first = Row(filled.top()) + filled.left();
  const std::size_t bytes = static_cast<std::size_t>(filled.width()) * sizeof(QRgb);
  for (int y = last + 1; y <= filled.bottom(); ++y)
    std::memcpy(Row(y) + filled.left(), first, bytes);
  Touch(filled);
}

Surface::Surface(int width, int height) : impl_(std::make_unique<Impl>()) {
  Resize(width, height);
}

Surface::~Surface() = default;

int Surface::PixelWidth() const {
  return impl_->image.width();
}

int Surface::PixelHeight() const {
  return impl_->image.height();
}

void Surface::Resize(int width, int height) {
  impl_->image = QImage(std::max(width, 1), std::max(height, 1), QImage::Format_RGB32);
  impl_->dirty = QRect();
  Cls();
}

void Surface::Cls() {
  CurrentX = 0;
  CurrentY = 0;
  if (!impl_->paints) return;
  impl_->image.fill(ToRgb(BackColor));
  impl_->dirty = impl_->image.rect();
}

void Surface::Refresh() {
  const QRect shown = impl_->dirty;
  if (shown.isEmpty()) return;
  impl_->dirty = QRect();
  ShowRect({shown.x(), shown.y(), shown.width(), shown.height()});
}

void Surface::ShowRect(const PixelRect&) {}

void Surface::Scale(double x1, double y1, double x2, double y2) {
  impl_->scaled = true;
  impl_->scale = QRectF(x1, y1, x2 - x1, y2 - y1);
}

void Surface::ScalePixels() {
  impl_->scaled = false;
}

double Surface::ScaleWidth() const {
  return impl_->scaled ? impl_->scale.width() : impl_->image.width();
}

double Surface::ScaleHeight() const {
  return impl_->scaled ? impl_->scale.height() : impl_->image.height();
}

Colour Surface::Pixel(int x, int y) const {
  if (!impl_->image.rect().contains(x, y)) return colour::Black;
  return ToColour(impl_->Row(y)[x]);
}

std::unique_ptr<Surface> SurfaceMaker::FromImage(const QImage& image) {
  auto surface = std::make_unique<Surface>(image.width(), image.height());
  surface->impl_->image = image.convertToFormat(QImage::Format_RGB32);
  surface->impl_->image.setDevicePixelRatio(1);
  return surface;
}

std::unique_ptr<Surface> Surface::LoadPng(const std::string& path) {
  const QImage image(QString::fromStdString(path), "PNG");
  return image.isNull() ? nullptr : SurfaceMaker::FromImage(image);
}

bool Surface::SavePng(const std::string& path) const {
  return impl_->image.save(QString::fromStdString(path), "PNG");
}

}  // namespace platform
