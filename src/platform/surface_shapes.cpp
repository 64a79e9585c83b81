// Lines, boxes, circles, polygons and round rectangles of a surface.
#include <algorithm>
#include <cmath>
#include <vector>

#include "platform/raster.h"
#include "platform/surface.h"
#include "platform/surface_impl.h"

namespace platform {

RunSink Surface::Impl::Pen(Colour colour, DrawModes mode) {
  return [this, rgb = ToRgb(colour), mode](int y, int left, int right) {
    Span(y, left, right, rgb, mode);
  };
}

PixelPoint Surface::Impl::PixelAt(double x, double y) const {
  return {NearestPixel(ToPixelX(x)), NearestPixel(ToPixelY(y))};
}

RasterSize Surface::Impl::Size() const {
  return {image.width(), image.height()};
}

void Surface::Impl::TouchAround(PixelPoint a, PixelPoint b, int margin) {
  const QRect corners(QPoint(std::min(a.x, b.x), std::min(a.y, b.y)),
                      QPoint(std::max(a.x, b.x), std::max(a.y, b.y)));
  Touch(corners.adjusted(-margin, -margin, margin, margin));
}

void Surface::Line(double x1, double y1, double x2, double y2, std::optional<Colour> colour) {
  CurrentX = x2;
  CurrentY = y2;
  if (!impl_->paints) return;
  const PixelPoint from = impl_->PixelAt(x1, y1);
  const PixelPoint to = impl_->PixelAt(x2, y2);
  RasterLine(from, to, DrawWidth, impl_->Size(), impl_->Pen(colour.value_or(ForeColor), DrawMode));
  impl_->TouchAround(from, to, DrawWidth / 2 + 1);
}

void Surface::Box(double x1, double y1, double x2, double y2, std::optional<Colour> colour) {
  CurrentX = x2;
  CurrentY = y2;
  if (!impl_->paints) return;
  const PixelPoint from = impl_->PixelAt(x1, y1);
  const PixelPoint to = impl_->PixelAt(x2, y2);
  RasterBox(from, to, DrawWidth, impl_->Size(), impl_->Pen(colour.value_or(ForeColor), DrawMode));
  impl_->TouchAround(from, to, DrawWidth / 2 + 1);
}

void Surface::FilledBox(double x1, double y1, double x2, double y2, std::optional<Colour> colour) {
  const PixelPoint from = impl_->PixelAt(x1, y1);
  const PixelPoint to = impl_->PixelAt(x2, y2);
  const QRect box(QPoint(std::min(from.x, to.x), std::min(from.y, to.y)),
                  QPoint(std::max(from.x, to.x), std::max(from.y, to.y)));
  impl_->Fill(box, ToRgb(colour.value_or(ForeColor)), DrawMode);
  CurrentX = x2;
  CurrentY = y2;
}

void Surface::PSet(double x, double y, std::optional<Colour> colour) {
  Line(x, y, x, y, colour);
}

void Surface::Circle(double x, double y, double radius, std::optional<Colour> colour, double start,
                     double end, double aspect) {
  CurrentX = x;
  CurrentY = y;
  if (!impl_->paints) return;
  const PixelPoint centre = impl_->PixelAt(x, y);
  // Whole pixels make the rounder circle.
  const double longer = std::abs(radius / impl_->UnitX());
  const int radiusX = NearestPixel(aspect > 1 ? longer / aspect : longer);
  const int radiusY = NearestPixel(aspect > 1 ? longer : longer * aspect);
  const double turn = (end - start) - 360 * std::floor((end - start) / 360);
  const Arc arc{start, turn == 0 ? 360 : turn};
  if (arc.extent >= 360 && FillStyle == FillStyles::Solid)
    RasterDisc(centre, radiusX, radiusY, impl_->Size(), impl_->Pen(FillColor, DrawMode));
  RasterEllipse(centre, radiusX, radiusY, DrawWidth, arc, impl_->Size(),
                impl_->Pen(colour.value_or(ForeColor), DrawMode));
  impl_->TouchAround(centre, centre, std::max(radiusX, radiusY) + DrawWidth + 1);
}

void Surface::FillRect(const PixelRect& rect, Colour colour) {
  impl_->Fill(QRect(rect.left, rect.top, rect.width, rect.height), ToRgb(colour),
              DrawModes::CopyPen);
}

void Surface::RoundRect(const PixelRect& rect, int cornerWidth, int cornerHeight, Colour line,
                        int lineWidth, std::optional<Colour> fill) {
  if (!impl_->paints) return;
  // The line is what the outer shape has and the inner one has not.
  std::vector<std::pair<int, int>> inner(std::max(rect.height, 0), {0, -1});
  RasterRoundRect(rect, cornerWidth, cornerHeight, std::max(lineWidth, 1),
                  [&](int y, int left, int right) {
                    inner[y - rect.top] = {left, right};
                  });
  const RunSink pen = impl_->Pen(line, DrawModes::CopyPen);
  RasterRoundRect(rect, cornerWidth, cornerHeight, 0, [&](int y, int left, int right) {
    const auto [hollowLeft, hollowRight] = inner[y - rect.top];
    if (hollowLeft > hollowRight) {
      pen(y, left, right);
      return;
    }
    pen(y, left, hollowLeft - 1);
    pen(y, hollowRight + 1, right);
    if (fill) impl_->Span(y, hollowLeft, hollowRight, ToRgb(*fill), DrawModes::CopyPen);
  });
  impl_->Touch(QRect(rect.left, rect.top, rect.width, rect.height));
}

void Surface::Polygon(std::span<const PixelPoint> points, Colour colour) {
  if (!impl_->paints) return;
  const RunSink pen = impl_->Pen(colour, DrawModes::CopyPen);
  RasterPolygon(points, impl_->Size(), pen);
  for (std::size_t i = 0; i < points.size(); ++i) {
    const PixelPoint& next = points[(i + 1) % points.size()];
    RasterLine(points[i], next, 1, impl_->Size(), pen);
    impl_->TouchAround(points[i], next, 0);
  }
}

}  // namespace platform
