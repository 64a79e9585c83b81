#include <QAbstractButton>
#include <QGroupBox>
#include <QLabel>
#include <QListWidget>
#include <QPainter>
#include <QPushButton>
#include <QRadioButton>

#include "platform/picture_impl.h"
#include "platform/widgets_impl.h"

namespace platform {
namespace {

constexpr int kRowHeight = 27;  // pixels of a list's row

// A push button that may show a picture of the artwork in place of a caption.
class FaceButton final : public QPushButton {
 public:
  using QPushButton::QPushButton;
  std::string picture;

 protected:
  void paintEvent(QPaintEvent* event) override {
    if (picture.empty()) return QPushButton::paintEvent(event);
    QPainter painter(this);
    if (!isEnabled()) painter.setOpacity(0.45);
    const QRect face = rect().translated(0, isDown() ? 1 : 0);
    const double ratio = devicePixelRatioF();
    QImage image = PictureImage(picture, rect().size() * ratio);
    painter.drawImage(face, image);
    painter.setOpacity(1);
    painter.setRenderHint(QPainter::Antialiasing);
    if (underMouse() || hasFocus()) {
      painter.setPen(QPen(QColor(244, 168, 54), hasFocus() ? 2 : 1));
      painter.drawRoundedRect(QRectF(face).adjusted(2.5, 2.5, -2.5, -2.5), 5, 5);
    }
  }
  void enterEvent(QEnterEvent* event) override {
    QPushButton::enterEvent(event);
    update();
  }
  void leaveEvent(QEvent* event) override {
    QPushButton::leaveEvent(event);
    update();
  }
};

template <class Widget>
Widget& WidgetOf(const Control& control) {
  return *static_cast<Widget*>(control.impl().widget.data());
}

// Puts a new widget into the parent's client, and shows it as far as the parent is shown.
template <class Widget>
Widget& Install(Control& control, Control& parent, Widget* widget) {
  widget->setParent(parent.impl().client);
  control.impl().widget = widget;
  control.impl().client = widget;
  widget->setObjectName(ToText(control.Name()));
  widget->show();
  return *widget;
}

}  // namespace

Label::Label(Control& parent, std::string name, const std::string& caption)
    : Control(&parent, std::move(name)) {
  QLabel& label = Install(*this, parent, new QLabel);
  label.setWordWrap(true);
  label.setTextFormat(Qt::PlainText);
  label.setAlignment(Qt::AlignLeft | Qt::AlignTop);
  SetCaption(caption);
}

void Label::SetCaption(const std::string& caption) {
  WidgetOf<QLabel>(*this).setText(ToText(caption));
}

std::string Label::Caption() const {
  return FromText(WidgetOf<QLabel>(*this).text());
}

void Label::SetAlignment(Align align) {
  const Qt::Alignment horizontal = align == Align::Left     ? Qt::AlignLeft
                                   : align == Align::Centre ? Qt::AlignHCenter
                                                            : Qt::AlignRight;
  WidgetOf<QLabel>(*this).setAlignment(horizontal | Qt::AlignTop);
}

Button::Button(Control& parent, std::string name, const std::string& caption)
    : Control(&parent, std::move(name)) {
  FaceButton& button = Install(*this, parent, new FaceButton);
  QObject::connect(&button, &QPushButton::clicked, [this] { CallHandler(OnClick); });
  SetCaption(caption);
}

void Button::SetCaption(const std::string& caption) {
  WidgetOf<FaceButton>(*this).setText(ToText(caption));
}

std::string Button::Caption() const {
  return FromText(WidgetOf<FaceButton>(*this).text());
}

void Button::SetPicture(const std::string& name) {
  WidgetOf<FaceButton>(*this).picture = name;
  WidgetOf<FaceButton>(*this).update();
}

std::string Button::Picture() const {
  return WidgetOf<FaceButton>(*this).picture;
}

OptionButton::OptionButton(Control& parent, std::string name, const std::string& caption)
    : Control(&parent, std::move(name)) {
  QRadioButton& option = Install(*this, parent, new QRadioButton(ToText(caption)));
  QObject::connect(&option, &QRadioButton::clicked, [this] { CallHandler(OnClick); });
}

void OptionButton::SetValue(bool chosen) {
  WidgetOf<QRadioButton>(*this).setChecked(chosen);
}

bool OptionButton::Value() const {
  return WidgetOf<QRadioButton>(*this).isChecked();
}

Frame::Frame(Control& parent, std::string name, const std::string& caption)
    : Control(&parent, std::move(name)) {
  if (caption.empty())
    Install(*this, parent, new QWidget);
  else
    Install(*this, parent, new QGroupBox(ToText(caption)));
}

ListBox::ListBox(Control& parent, std::string name) : Control(&parent, std::move(name)) {
  QListWidget& list = Install(*this, parent, new QListWidget);
  list.setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  list.setTextElideMode(Qt::ElideNone);
  list.setUniformItemSizes(true);
  QObject::connect(&list, &QListWidget::currentRowChanged, [this](int row) {
    if (row >= 0) CallHandler(OnClick);
  });
  QObject::connect(&list, &QListWidget::itemActivated, [this] { CallHandler(OnDblClick); });
}

void ListBox::Clear() {
  const QSignalBlocker quiet(&WidgetOf<QListWidget>(*this));
  WidgetOf<QListWidget>(*this).clear();
}

void ListBox::AddItem(const std::string& text) {
  auto* item = new QListWidgetItem(ToText(text), &WidgetOf<QListWidget>(*this));
  item->setSizeHint({0, kRowHeight});
}

int ListBox::ListCount() const {
  return WidgetOf<QListWidget>(*this).count();
}

std::string ListBox::List(int index) const {
  const QListWidgetItem* item = WidgetOf<QListWidget>(*this).item(index);
  return item == nullptr ? "" : FromText(item->text());
}

int ListBox::ListIndex() const {
  return WidgetOf<QListWidget>(*this).currentRow();
}

void ListBox::SetListIndex(int index) {
  WidgetOf<QListWidget>(*this).setCurrentRow(index);
}

std::string ListBox::Text() const {
  return List(ListIndex());
}

int ListBox::RowHeight() const {
  return kRowHeight * TwipsPerPixelY;
}

bool ListBox::DblClick() {
  if (!CanBeClicked()) return false;
  CallHandler(OnDblClick);
  return true;
}

}  // namespace platform
