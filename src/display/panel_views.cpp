#include "display/panel_views.h"

namespace course {

std::vector<std::string> PanelView::Lines() const {
  if (text != nullptr) {
    std::vector<std::string> lines = TranscriptLines(*text);
    // One text in the middle, whose indent means nothing.
    if (kind == PanelKind::Cell)
      for (std::string& line : lines) line.erase(0, line.find_first_not_of(' '));
    return lines;
  }
  const std::string description = control->AccessibleText();
  if (kind != PanelKind::Picture || description.empty()) return {};
  return {description};
}

std::vector<PanelView> ShownPanels(LessonWindow& window) {
  std::vector<PanelView> shown;
  const auto add = [&](const PanelView& view) {
    if (view.control->Visible()) shown.push_back(view);
  };
  const auto addAll = [&](PanelKind kind, auto& controls, const auto* texts) {
    for (int i = controls.First(); i <= controls.Last(); ++i)
      add({kind, i, &controls[i], texts == nullptr ? nullptr : (*texts)[i].get(), nullptr});
  };
  constexpr const TextPanels<1>* kNoTexts = nullptr;
  add({PanelKind::Lesson, 1, &window.pnlLesson, &window.lessonText, nullptr});
  add({PanelKind::Wiper, 1, &window.picWiperBox, &window.wiperText, nullptr});
  add({PanelKind::Wiper, 2, &window.picWiperBox2, &window.wiperText2, nullptr});
  add({PanelKind::Table, 1, &window.picPrintCellBox, nullptr, nullptr});
  if (window.picPrintCellBox.Visible())
    addAll(PanelKind::Cell, window.picPrintCell, &window.cellText);
  for (int i = 1; i <= window.picGraph2D.Last(); ++i)
    add({PanelKind::Figure, i, &window.picGraph2D[i], nullptr, &window.figureItems.at(i)});
  addAll(PanelKind::Picture, window.picGalleryImage, kNoTexts);
  addAll(PanelKind::Comment, window.picCommentBox, &window.commentText);
  addAll(PanelKind::Note, window.picNotes, &window.noteText);
  addAll(PanelKind::Answer, window.picAnswer, &window.answerText);
  return shown;
}

}  // namespace course
