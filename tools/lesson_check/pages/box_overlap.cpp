#include "lesson_check/pages/box_overlap.h"

#include "display/panel_views.h"
#include "lesson_check/pages/glyph_boxes.h"

namespace lesson_check {
namespace {

using platform::Control;

InkBox OutlineOf(const Control& box) {
  constexpr double kTwips = platform::TwipsPerPixelX;
  return {box.Left() / kTwips, box.Top() / kTwips, (box.Left() + box.Width()) / kTwips,
          (box.Top() + box.Height()) / kTwips};
}

// Boxes with one parent, whose places can be compared.
class Siblings {
 public:
  void Add(const Control& box) { boxes_.push_back(&box); }

  void FindOverlaps(std::vector<std::string>& faults) const {
    for (std::size_t i = 0; i < boxes_.size(); ++i)
      for (std::size_t j = i + 1; j < boxes_.size(); ++j)
        if (Overlap(OutlineOf(*boxes_[i]), OutlineOf(*boxes_[j])))
          faults.push_back(boxes_[i]->Name() + " and " + boxes_[j]->Name() +
                           " lie over each other");
  }

 private:
  std::vector<const Control*> boxes_;
};

}  // namespace

std::vector<std::string> OverlappingBoxes(course::LessonWindow& window) {
  std::vector<std::string> faults;
  Siblings boxes;
  Siblings cells;
  for (const course::PanelView& view : course::ShownPanels(window)) {
    if (view.kind == course::PanelKind::Lesson) continue;
    (view.kind == course::PanelKind::Cell ? cells : boxes).Add(*view.control);
  }
  boxes.FindOverlaps(faults);
  cells.FindOverlaps(faults);
  return faults;
}

}  // namespace lesson_check
