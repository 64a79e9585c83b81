// What a surface is made of: for the .cpp files of this folder alone, since it shows the toolkit.
#pragma once

#include <QImage>
#include <QRect>
#include <QRectF>

#include "platform/surface.h"

namespace platform {

struct Surface::Impl {
  QImage image;  // Format_RGB32, device pixel ratio 1
  QRect dirty;   // drawn on since the last Refresh; empty when nothing was
  bool scaled = false;
  QRectF scale;  // user coordinates of the surface: upper left corner, signed width and height

  void Touch(const QRect& changed) { dirty |= changed & image.rect(); }
};

}  // namespace platform
