// Pictures of the gallery on the lesson screen: summaries of rules in boxes of their own, and
// images with a transparent ground.
#pragma once

#include <memory>

#include "platform/geometry.h"
#include "platform/surface.h"

namespace course {

// The numbers of the stored pictures, picGallery.
namespace gallery {
inline constexpr int LawsOfExponents = 1;
inline constexpr int QuadraticFormula = 2;
inline constexpr int InequalityFlip = 3;
inline constexpr int OrderOfOperations = 4;
inline constexpr int CheckMark = 5;  // 64 by 50 pixels, on white: for a transparent image
inline constexpr int Count = 5;
}  // namespace gallery

enum class ImageBorder { Keep, None, Thin };
inline constexpr ImageBorder SHOWBORDER = ImageBorder::Thin;
inline constexpr ImageBorder NOBORDER = ImageBorder::None;

// Puts a stored picture into box 1 to 5, which takes its size, with its upper left corner at a cell
// of the lesson screen.  Without a border the one of the box's last use stays.  A slot or image
// that does not exist stops the program.
void picGalleryImagePrepare(int slot, int image, double row, double col,
                            ImageBorder border = ImageBorder::Keep);
void picGalleryImageShow(int slot);
void picGalleryImageHide(int slot);
// The picture itself, on white.
std::unique_ptr<platform::Surface> GalleryImage(int image);

// Draws a stored picture on the lesson panel; where it is white the panel shows through.
void DisplayTransparentImage(int image, double row, double col);
// Puts the panel back as it was before the last transparent image, with everything printed since
// taken away.  Nothing before the first image.
void RestorepnlLesson();

}  // namespace course
