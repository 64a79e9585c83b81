// A push button that may show a picture of the artwork in place of a caption: for the .cpp files of
// this folder alone.
#pragma once

#include <QPushButton>
#include <string>

namespace platform {

class FaceButton final : public QPushButton {
 public:
  void SetPicture(const std::string& name);
  const std::string& Picture() const { return picture_; }
  void SetRepeats(bool repeats) { repeats_ = repeats; }

 protected:
  void paintEvent(QPaintEvent* event) override;
  void enterEvent(QEnterEvent* event) override;
  void leaveEvent(QEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;

 private:
  void PaintCaption(QPaintEvent* event);

  std::string picture_;
  bool focusedByKey_ = false;
  bool repeats_ = false;
};

}  // namespace platform
