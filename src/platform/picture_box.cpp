#include "platform/picture_box.h"

#include <QPainter>
#include <algorithm>

#include "platform/surface_impl.h"
#include "platform/widgets_impl.h"

namespace platform {
namespace {

class SurfaceWidget final : public Pressable<QWidget> {
 public:
  SurfaceWidget(PictureBox& box, const QImage& image)
      : Pressable<QWidget>(box), box_(box), image_(image) {
    setAttribute(Qt::WA_OpaquePaintEvent);
  }

 protected:
  void paintEvent(QPaintEvent* event) override {
    QPainter painter(this);
    const QRect changed = event->rect();
    painter.drawImage(changed, image_, changed);
    if (!box_.Border()) return;
    painter.setPen(Qt::black);
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
  }

 private:
  PictureBox& box_;
  const QImage& image_;
};

}  // namespace

PictureBox::PictureBox(Control& parent, std::string name)
    : Control(&parent, std::move(name)), Surface(1, 1) {
  PutOn(parent, *this, new SurfaceWidget(*this, Surface::impl_->image));
}

PictureBox::~PictureBox() = default;

void PictureBox::SetBorder(bool border) {
  border_ = border;
  impl().widget->update();
}

bool PictureBox::Border() const {
  return border_;
}

void PictureBox::ShowRect(const PixelRect& changed) {
  impl().widget->repaint(changed.left, changed.top, changed.width, changed.height);
}

void PictureBox::OnResized() {
  Resize(std::max(ToPixels(Width()), 1), std::max(ToPixels(Height()), 1));
}

}  // namespace platform
