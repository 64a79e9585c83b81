#include "platform/picture_box.h"

#include <QAccessibleWidget>
#include <QKeyEvent>
#include <QPainter>
#include <algorithm>

#include "platform/painting.h"
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
    if (box_.Border()) DrawFrame(painter, 1, Qt::black);
    if (hasFocus() && byKeyboard_) DrawFrame(painter, 2, kAccent);
  }
  // Only a person who goes by the keyboard has to be shown where he is.
  void focusInEvent(QFocusEvent* event) override {
    const Qt::FocusReason reason = event->reason();
    byKeyboard_ = reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason;
    Pressable<QWidget>::focusInEvent(event);
  }
  void keyPressEvent(QKeyEvent* event) override {
    if (event->key() != Qt::Key_Space) return Pressable<QWidget>::keyPressEvent(event);
    if (event->isAutoRepeat()) return;
    CallLater(box_.impl().life, [&box = box_] { box.Click(); });
  }

 private:
  friend class SpokenSurface;
  // By areas, as a pen's line would lie half a pixel off on a dense screen.
  void DrawFrame(QPainter& painter, int thickness, const QColor& color) const {
    const QRect inside = rect().adjusted(thickness, thickness, -thickness, -thickness);
    for (const QRect& side : QRegion(rect()) - inside) painter.fillRect(side, color);
  }
  PictureBox& box_;
  const QImage& image_;
  bool byKeyboard_ = false;
};

// What a screen reader makes of a box: a text, or a button when a click does something.
class SpokenSurface final : public QAccessibleWidget {
 public:
  explicit SpokenSurface(SurfaceWidget& widget) : QAccessibleWidget(&widget), box_(widget.box_) {}

  QAccessible::Role role() const override {
    return box_.OnClick ? QAccessible::Button : QAccessible::StaticText;
  }
  QString text(QAccessible::Text kind) const override {
    if (kind != QAccessible::Name) return QAccessibleWidget::text(kind);
    QStringList parts = {widget()->accessibleName(), widget()->accessibleDescription()};
    parts.removeAll("");
    return parts.join(": ");
  }
  QStringList actionNames() const override {
    return box_.OnClick ? QStringList{pressAction()} : QStringList{};
  }
  void doAction(const QString& name) override {
    if (name == pressAction()) CallLater(box_.impl().life, [&box = box_] { box.Click(); });
  }

 private:
  PictureBox& box_;
};

QAccessibleInterface* MakeSpoken(const QString&, QObject* object) {
  auto* surface = dynamic_cast<SurfaceWidget*>(object);
  return surface == nullptr ? nullptr : new SpokenSurface(*surface);
}

}  // namespace

PictureBox::PictureBox(Control& parent, std::string name)
    : Control(&parent, std::move(name)), Surface(1, 1) {
  Surface::impl_->paints = !PaintingOff::Active();
  static const bool installed = (QAccessible::installFactory(MakeSpoken), true);
  static_cast<void>(installed);
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

void PictureBox::SetTabStop(bool tabStop) {
  impl().widget->setFocusPolicy(tabStop ? Qt::TabFocus : Qt::NoFocus);
}

void PictureBox::ShowRect(const PixelRect& changed) {
  impl().widget->repaint(changed.left, changed.top, changed.width, changed.height);
}

void PictureBox::OnResized() {
  Resize(std::max(ToPixels(Width()), 1), std::max(ToPixels(Height()), 1));
}

}  // namespace platform
