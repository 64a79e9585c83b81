// frmViewpicGalleryImages: shows the stored pictures to the writers of lessons, by number.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "platform/surface.h"

namespace course {

// A holder of pictures numbered from 1.
struct PictureHolder {
  std::string name;
  int count = 0;
  std::function<std::unique_ptr<platform::Surface>(int number)> picture;
};

// frmHoldPictures, the gallery of the lessons.
PictureHolder GalleryHolder();

// Modal; these holders stand beside the gallery's own.
void ShowGallery(const std::vector<PictureHolder>& holders);

}  // namespace course
