// What a surface is made of: for the .cpp files of this folder alone, since it shows the toolkit.
#pragma once

#include <QImage>
#include <QRect>
#include <QRectF>

#include "platform/raster.h"
#include "platform/surface.h"

namespace platform {

inline QRgb ToRgb(Colour colour) {
  return qRgb(colour & 0xFF, (colour >> 8) & 0xFF, (colour >> 16) & 0xFF);
}

inline Colour ToColour(QRgb rgb) {
  return Rgb(qRed(rgb), qGreen(rgb), qBlue(rgb));
}

struct Surface::Impl {
  QImage image;        // Format_RGB32, device pixel ratio 1
  QRect dirty;         // drawn on since the last Refresh; empty when nothing was
  bool paints = true;  // see platform/painting.h
  bool scaled = false;
  QRectF scale;  // user coordinates of the surface: upper left corner, signed width and height

  void Touch(const QRect& changed) { dirty |= changed & image.rect(); }

  QRgb* Row(int y) { return reinterpret_cast<QRgb*>(image.scanLine(y)); }
  const QRgb* Row(int y) const { return reinterpret_cast<const QRgb*>(image.constScanLine(y)); }

  // User coordinates and pixels, not rounded.
  double ToPixelX(double x) const {
    return scaled ? (x - scale.x()) * image.width() / scale.width() : x;
  }
  double ToPixelY(double y) const {
    return scaled ? (y - scale.y()) * image.height() / scale.height() : y;
  }
  // User units a pixel; negative when the axis runs to the left or up.
  double UnitX() const { return scaled ? scale.width() / image.width() : 1; }
  double UnitY() const { return scaled ? scale.height() / image.height() : 1; }

  // Pixels left to right of row y, both included, clipped; a set and not a blend, or an exclusive
  // or.
  void Span(int y, int left, int right, QRgb rgb, DrawModes mode);
  // The same for a rectangle, and touches it.
  void Fill(const QRect& rect, QRgb rgb, DrawModes mode);
  // A sink that draws runs of pixels.
  RunSink Pen(Colour colour, DrawModes mode);
  PixelPoint PixelAt(double x, double y) const;
  RasterSize Size() const;
  void TouchAround(PixelPoint a, PixelPoint b, int margin);
  // A string in the surface's font, its top left at the pixel; returns its width in pixels.
  double DrawString(const Surface& surface, int x, int y, std::string_view text);
};

// A surface that shows an image.
struct SurfaceMaker {
  static std::unique_ptr<Surface> FromImage(const QImage& image);
};

// The pixel of a coordinate, half to even.  Far-off values are brought to where they stay integers.
int NearestPixel(double value);

}  // namespace platform
