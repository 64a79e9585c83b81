// What the program tour shows, in the order in which a new student meets it.  The screens are taken
// of the forms and lessons as they are when the tour is shown, so that they cannot go stale.
#pragma once

#include <vector>

#include "guidance/tour_form.h"
#include "lessons/docs/gallery_form.h"

namespace course {

inline constexpr int kTourSteps = 12;

// Runs a lesson and shows forms to nobody, see tour_stage.h; session and records stay as they are.
std::vector<TourStep> TourSteps();

// frmTourHoldPictures: the tour's texts, arrows and screens by step, for the writers' gallery.
std::vector<PictureHolder> TourHolders();

}  // namespace course
