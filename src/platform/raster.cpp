#include "platform/raster.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>
#include <numbers>
#include <vector>

namespace platform {
namespace {

constexpr double kTiny = 1e-9;

double EvenShift(int thickness) {
  return thickness % 2 == 0 ? -0.5 : 0.0;
}

std::int64_t FloorDivide(std::int64_t a, std::int64_t b) {
  return a >= 0 ? a / b : -((-a + b - 1) / b);
}

struct Point {
  double x = 0;
  double y = 0;
};

// The part of a row that a convex shape covers, grown point by point.
struct Cover {
  double left = std::numeric_limits<double>::infinity();
  double right = -std::numeric_limits<double>::infinity();

  void Add(double x) {
    left = std::min(left, x);
    right = std::max(right, x);
  }

  void AddDisc(const Point& centre, double radius, double y) {
    const double rest = radius * radius - (y - centre.y) * (y - centre.y);
    if (rest < 0) return;
    Add(centre.x - std::sqrt(rest));
    Add(centre.x + std::sqrt(rest));
  }

  void AddEdge(const Point& a, const Point& b, double y) {
    if (y < std::min(a.y, b.y) || y > std::max(a.y, b.y)) return;
    if (a.y == b.y) {
      Add(a.x);
      Add(b.x);
    } else {
      Add(a.x + (b.x - a.x) * (y - a.y) / (b.y - a.y));
    }
  }
};

// One pixel a column; the height of the line there, half up.
void FlatLine(PixelPoint from, PixelPoint to, RasterSize size, const RunSink& sink) {
  if (from.x > to.x) std::swap(from, to);
  const std::int64_t dx = to.x - from.x;
  const std::int64_t dy = to.y - from.y;
  const int last = std::min(to.x, size.width - 1);
  int runStart = std::max(from.x, 0);
  const auto rowAt = [&](int x) {
    return dx == 0 ? from.y
                   : static_cast<int>(from.y + FloorDivide(2 * (x - from.x) * dy + dx, 2 * dx));
  };
  for (int x = runStart; x <= last; ++x) {
    const int y = rowAt(x);
    if (x < last && rowAt(x + 1) == y) continue;
    sink(y, runStart, x);
    runStart = x + 1;
  }
}

// One pixel a row.
void SteepLine(PixelPoint from, PixelPoint to, RasterSize size, const RunSink& sink) {
  if (from.y > to.y) std::swap(from, to);
  const std::int64_t dx = to.x - from.x;
  const std::int64_t dy = to.y - from.y;
  const int last = std::min(to.y, size.height - 1);
  for (int y = std::max(from.y, 0); y <= last; ++y) {
    const int x = static_cast<int>(from.x + FloorDivide(2 * (y - from.y) * dx + dy, 2 * dy));
    sink(y, x, x);
  }
}

// Every pixel within half the thickness of the line.
void ThickLine(const Point& a, const Point& b, int thickness, RasterSize size,
               const RunSink& sink) {
  const double radius = thickness / 2.0;
  const double length = std::hypot(b.x - a.x, b.y - a.y);
  const double sideX = length == 0 ? 0 : -(b.y - a.y) / length * radius;
  const double sideY = length == 0 ? 0 : (b.x - a.x) / length * radius;
  const Point corners[4] = {{a.x + sideX, a.y + sideY},
                            {b.x + sideX, b.y + sideY},
                            {b.x - sideX, b.y - sideY},
                            {a.x - sideX, a.y - sideY}};
  const double top = std::max(std::min(a.y, b.y) - radius, 0.0);
  const double bottom = std::min(std::max(a.y, b.y) + radius, size.height - 1.0);
  for (int y = static_cast<int>(std::ceil(top)); y <= bottom; ++y) {
    Cover cover;
    cover.AddDisc(a, radius, y);
    cover.AddDisc(b, radius, y);
    for (int i = 0; i < 4; ++i) cover.AddEdge(corners[i], corners[(i + 1) % 4], y);
    if (cover.left > cover.right) continue;
    const int left = static_cast<int>(std::ceil(std::max(cover.left, -1.0) - kTiny));
    const int right =
        static_cast<int>(std::floor(std::min<double>(cover.right, size.width) + kTiny));
    if (left <= right) sink(y, left, right);
  }
}

struct Ellipse {
  Point centre;
  double radiusX = 0;
  double radiusY = 0;

  bool Holds(int x, int y) const {
    if (radiusX <= 0 || radiusY <= 0) return false;
    const double dx = (x - centre.x) / radiusX;
    const double dy = (y - centre.y) / radiusY;
    return dx * dx + dy * dy <= 1 + kTiny;
  }
  // Inside, with one of the four neighbours outside: a line one pixel thin without gaps.
  bool OnEdge(int x, int y) const {
    return Holds(x, y) &&
           !(Holds(x - 1, y) && Holds(x + 1, y) && Holds(x, y - 1) && Holds(x, y + 1));
  }
};

bool Within(const Arc& arc, double dx, double dy) {
  if (arc.extent >= 360) return true;
  double angle = std::atan2(-dy, dx) * 180 / std::numbers::pi - arc.start;
  angle -= 360 * std::floor(angle / 360);
  return angle <= arc.extent + kTiny || angle >= 360 - kTiny;
}

// Tests every pixel around an ellipse and joins the neighbours that are taken.
template <class Taken>
void RunsOf(const Ellipse& bounds, RasterSize size, const RunSink& sink, const Taken& taken) {
  const double left = std::max(bounds.centre.x - bounds.radiusX - 1, 0.0);
  const double right = std::min(bounds.centre.x + bounds.radiusX + 1, size.width - 1.0);
  const double top = std::max(bounds.centre.y - bounds.radiusY - 1, 0.0);
  const double bottom = std::min(bounds.centre.y + bounds.radiusY + 1, size.height - 1.0);
  for (int y = static_cast<int>(top); y <= bottom; ++y) {
    int start = -1;
    for (int x = static_cast<int>(left); x <= right + 1; ++x) {
      const bool inside = x <= right && taken(x, y);
      if (inside && start < 0) start = x;
      if (!inside && start >= 0) {
        sink(y, start, x - 1);
        start = -1;
      }
    }
  }
}

// A radius reaches a little beyond the middle of its outermost pixel: by half a pixel a small
// circle would look square.
Ellipse Outermost(PixelPoint centre, double radiusX, double radiusY) {
  constexpr double kBeyond = 0.4;
  return {{static_cast<double>(centre.x), static_cast<double>(centre.y)},
          radiusX + kBeyond,
          radiusY + kBeyond};
}

}  // namespace

void RasterLine(PixelPoint from, PixelPoint to, int thickness, RasterSize size,
                const RunSink& sink) {
  if (thickness > 1) {
    const double shift = EvenShift(thickness);
    ThickLine({from.x + shift, from.y + shift}, {to.x + shift, to.y + shift}, thickness, size,
              sink);
  } else if (std::abs(to.y - from.y) > std::abs(to.x - from.x)) {
    SteepLine(from, to, size, sink);
  } else {
    FlatLine(from, to, size, sink);
  }
}

void RasterBox(PixelPoint from, PixelPoint to, int thickness, RasterSize size,
               const RunSink& sink) {
  const int before = std::max(thickness, 1) / 2;
  const int after = (std::max(thickness, 1) - 1) / 2;
  const int left = std::min(from.x, to.x);
  const int right = std::max(from.x, to.x);
  const int top = std::min(from.y, to.y);
  const int bottom = std::max(from.y, to.y);
  const int last = std::min(bottom + after, size.height - 1);
  for (int y = std::max(top - before, 0); y <= last; ++y) {
    const bool inSide = y > top + after && y < bottom - before;
    if (inSide && left + after + 1 < right - before) {
      sink(y, left - before, left + after);
      sink(y, right - before, right + after);
    } else {
      sink(y, left - before, right + after);
    }
  }
}

void RasterEllipse(PixelPoint centre, double radiusX, double radiusY, int thickness, const Arc& arc,
                   RasterSize size, const RunSink& sink) {
  if (thickness <= 1) {
    const Ellipse outer = Outermost(centre, radiusX, radiusY);
    RunsOf(outer, size, sink, [&](int x, int y) {
      return outer.OnEdge(x, y) && Within(arc, x - centre.x, y - centre.y);
    });
    return;
  }
  const double shift = EvenShift(thickness);
  const double half = thickness / 2.0;
  const Point middle{centre.x + shift, centre.y + shift};
  const Ellipse outer{middle, radiusX + half, radiusY + half};
  const Ellipse inner{middle, radiusX - half, radiusY - half};
  RunsOf(outer, size, sink, [&](int x, int y) {
    return outer.Holds(x, y) && !inner.Holds(x, y) && Within(arc, x - middle.x, y - middle.y);
  });
}

void RasterDisc(PixelPoint centre, double radiusX, double radiusY, RasterSize size,
                const RunSink& sink) {
  const Ellipse disc = Outermost(centre, radiusX, radiusY);
  RunsOf(disc, size, sink, [&](int x, int y) { return disc.Holds(x, y); });
}

void RasterPolygon(std::span<const PixelPoint> points, RasterSize size, const RunSink& sink) {
  if (points.empty()) return;
  const auto byRow = [](const PixelPoint& a, const PixelPoint& b) { return a.y < b.y; };
  const auto [highest, lowest] = std::minmax_element(points.begin(), points.end(), byRow);
  std::vector<double> crossings;
  for (int y = std::max(highest->y, 0); y <= std::min(lowest->y, size.height - 1); ++y) {
    crossings.clear();
    for (std::size_t i = 0; i < points.size(); ++i) {
      const PixelPoint& a = points[i];
      const PixelPoint& b = points[(i + 1) % points.size()];
      if ((a.y <= y) == (b.y <= y)) continue;
      crossings.push_back(a.x + static_cast<double>(b.x - a.x) * (y - a.y) / (b.y - a.y));
    }
    std::sort(crossings.begin(), crossings.end());
    for (std::size_t i = 0; i + 1 < crossings.size(); i += 2) {
      const int left = static_cast<int>(std::ceil(crossings[i] - kTiny));
      const int right = static_cast<int>(std::floor(crossings[i + 1] + kTiny));
      if (left <= right) sink(y, left, right);
    }
  }
}

void RasterRoundRect(const PixelRect& rect, int cornerWidth, int cornerHeight, int inset,
                     const RunSink& sink) {
  const int top = rect.top + inset;
  const int bottom = rect.top + rect.height - 1 - inset;
  const int left = rect.left + inset;
  const int right = rect.left + rect.width - 1 - inset;
  const double a = std::min(cornerWidth, rect.width / 2) - inset;
  const double b = std::min(cornerHeight, rect.height / 2) - inset;
  for (int y = top; y <= bottom && left <= right; ++y) {
    const double depth =
        b - 0.5 - std::min(y - top, bottom - y);  // of the row's middle in the corner
    int cut = 0;
    if (a > 0 && depth > 0)
      cut = static_cast<int>(std::lround(a - a * std::sqrt(1 - depth * depth / (b * b))));
    sink(y, left + cut, right - cut);
  }
}

}  // namespace platform
