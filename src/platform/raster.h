// Shapes as runs of pixels: which pixels a line, an ellipse or a polygon takes, without
// antialiasing.
//
// Each shape gives a row's pixels in runs, from left to right, both ends included, and no pixel
// twice: what is drawn a second time in exclusive-or mode is taken away again.  Runs outside rows 0
// to height - 1 and columns 0 to width - 1 of the given size are left out or may reach over its
// sides.
#pragma once

#include <functional>
#include <span>

#include "platform/geometry.h"

namespace platform {

struct RasterSize {
  int width = 0;   // pixels
  int height = 0;  // pixels
};

using RunSink = std::function<void(int y, int left, int right)>;

// Both end points are taken.  From two pixels of thickness on the ends are round; an even thickness
// lies half a pixel up and left, as the grid has no middle for it.
void RasterLine(PixelPoint from, PixelPoint to, int thickness, RasterSize size,
                const RunSink& sink);

// The four sides, centred on the edges in the same way, with square corners.
void RasterBox(PixelPoint from, PixelPoint to, int thickness, RasterSize size, const RunSink& sink);

struct Arc {
  double start = 0;     // degrees, counter-clockwise from the right
  double extent = 360;  // degrees
};

// Outline of an ellipse, radii in pixels from the middle of the centre pixel.
void RasterEllipse(PixelPoint centre, double radiusX, double radiusY, int thickness, const Arc& arc,
                   RasterSize size, const RunSink& sink);
// The pixels that the one pixel thin outline encloses, and the outline.
void RasterDisc(PixelPoint centre, double radiusX, double radiusY, RasterSize size,
                const RunSink& sink);

// Inside (by the even-odd rule) of the closed polygon, without its outline.
void RasterPolygon(std::span<const PixelPoint> points, RasterSize size, const RunSink& sink);

// The rectangle with its edges pulled in by so many pixels and its corners rounded off by quarter
// ellipses, which are of the given size where nothing is pulled in.
void RasterRoundRect(const PixelRect& rect, int cornerWidth, int cornerHeight, int inset,
                     const RunSink& sink);

}  // namespace platform
