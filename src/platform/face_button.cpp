#include <QFocusEvent>
#include <QPainter>
#include <QStyleOptionButton>
#include <QStylePainter>

#include "platform/face_button_impl.h"
#include "platform/picture_impl.h"
#include "platform/widgets_impl.h"

namespace platform {
namespace {

constexpr double kFaded = 0.4;
constexpr double kRingInset = 2;  // pixels inside the face
constexpr double kRingCorner = 5;
constexpr int kCaptionMargin = 4;  // pixels at either side

}  // namespace

void FaceButton::SetPicture(const std::string& name) {
  picture_ = name;
  update();
}

void FaceButton::paintEvent(QPaintEvent* event) {
  if (picture_.empty()) return PaintCaption(event);
  QPainter painter(this);
  const QRect face = rect().translated(0, isDown() ? 1 : 0);
  if (!isEnabled()) painter.setOpacity(kFaded);
  painter.drawImage(face, PictureImage(picture_, (QSizeF(size()) * devicePixelRatioF()).toSize()));
  const bool ringed = hasFocus() && focusedByKey_;
  if (!isEnabled() || !(ringed || underMouse())) return;
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(kAccent, ringed ? 2 : 1));
  const double inset = kRingInset + (ringed ? 1 : 0.5);
  painter.drawRoundedRect(QRectF(face).adjusted(inset, inset, -inset, -inset), kRingCorner,
                          kRingCorner);
}

// The toolkit cuts a caption that is too wide; here it takes more lines.
void FaceButton::PaintCaption(QPaintEvent* event) {
  const QRect inside = rect().adjusted(kCaptionMargin, 0, -kCaptionMargin, 0);
  if (fontMetrics().size(Qt::TextShowMnemonic, text()).width() <= inside.width())
    return QPushButton::paintEvent(event);
  QStylePainter painter(this);
  QStyleOptionButton option;
  initStyleOption(&option);
  option.text.clear();
  painter.drawControl(QStyle::CE_PushButton, option);
  painter.drawItemText(inside, Qt::AlignCenter | Qt::TextWordWrap | Qt::TextShowMnemonic, palette(),
                       isEnabled(), text(), QPalette::ButtonText);
}

void FaceButton::enterEvent(QEnterEvent* event) {
  QPushButton::enterEvent(event);
  update();
}

void FaceButton::leaveEvent(QEvent* event) {
  QPushButton::leaveEvent(event);
  update();
}

// The ring shows where the keyboard is; who clicks with the mouse need not be told.
void FaceButton::focusInEvent(QFocusEvent* event) {
  focusedByKey_ = event->reason() == Qt::TabFocusReason ||
                  event->reason() == Qt::BacktabFocusReason ||
                  event->reason() == Qt::ShortcutFocusReason;
  QPushButton::focusInEvent(event);
}

void FaceButton::mouseDoubleClickEvent(QMouseEvent* event) {
  if (repeats_) QPushButton::mouseDoubleClickEvent(event);
}

}  // namespace platform
