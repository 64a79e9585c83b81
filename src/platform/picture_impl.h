// Pictures of the artwork as images: for the .cpp files of this folder alone.
#pragma once

#include <QImage>
#include <QSize>
#include <string>

namespace platform {

// The picture's own size in pixels.  A name that does not exist stops the program.
QSize PictureSize(const std::string& name);
// The picture drawn at a size, antialiased, transparent where it has no paint.  Kept for the next
// time; the image is shared and cheap to copy.
QImage PictureImage(const std::string& name, const QSize& size);

}  // namespace platform
