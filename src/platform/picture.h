// What is to be known of a picture of the artwork before it is drawn.
#pragma once

#include <string>

#include "platform/geometry.h"

namespace platform {

// The picture's own width and height in pixels.  A name that does not exist stops the program.
PixelPoint PictureExtent(const std::string& name);

}  // namespace platform
