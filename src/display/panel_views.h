// The one list of what lies on the lesson window: the lesson panel and all that covers it.
#pragma once

#include <string>
#include <vector>

#include "display/figure_item.h"
#include "display/lesson_window.h"

namespace course {

// From back to front.
enum class PanelKind { Lesson, Wiper, Table, Cell, Figure, Picture, Comment, Note, Answer };

struct PanelView {
  PanelKind kind = PanelKind::Lesson;
  int index = 1;  // among the panels of its kind
  platform::PictureBox* control = nullptr;
  const TextPanel* text = nullptr;                 // none on a table, a figure, a picture
  const std::vector<FigureItem>* items = nullptr;  // of a figure

  // What can be read on it: its transcript's lines, or the description of a picture.
  std::vector<std::string> Lines() const;
};

// The panels that are shown, from back to front.  A cell is shown with its table.
std::vector<PanelView> ShownPanels(LessonWindow& window);

}  // namespace course
