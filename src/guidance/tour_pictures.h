// The pictures that the tour lays over its screens, drawn when they are wanted: the text about a
// part of the screen, and the arrow from the text to the part.
#pragma once

#include <memory>
#include <string>

#include "guidance/tour_form.h"
#include "platform/surface.h"

namespace course {

// Pixels between the text and the part that it is about: the arrow's length.
inline constexpr int kTourArrowLength = 48;

// Heading and text on paper; as high as they want it.
std::unique_ptr<platform::Surface> TourTextPicture(const std::string& heading,
                                                   const std::string& text);

// An arrow that begins at a point of the text's edge, and points away from the side on which the
// text stands.
void DrawTourArrow(platform::Surface& surface, TourSide side, platform::PixelPoint start);

// The arrow by itself, on white.
std::unique_ptr<platform::Surface> TourArrowPicture(TourSide side);

}  // namespace course
