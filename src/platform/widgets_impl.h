// What a control is made of, and texts between the course's single bytes and the toolkit: for the
// .cpp files of this folder alone.
#pragma once

#include <QFont>
#include <QMainWindow>
#include <QMouseEvent>
#include <QPointer>
#include <QString>
#include <QWidget>
#include <string>

#include "platform/form.h"
#include "platform/handler_queue_impl.h"

namespace platform {

// '\r', "\r\n" and '\n' break the line.
QString ToText(const std::string& text);
std::string FromText(const QString& text);
QFont ToFont(const std::string& face, double points, bool bold, bool italic = false);

inline QColor ToQColor(Colour colour) {
  return QColor(colour & 0xFF, (colour >> 8) & 0xFF, (colour >> 16) & 0xFF);
}

// Whole pixels: a control never reaches into one that it does not fill.
constexpr int ToPixels(int twips) {
  return twips / TwipsPerPixelX;
}

// The accent of the course's own controls: what is under the mouse, what has the focus.
inline const QColor kAccent(244, 168, 54);
inline const QColor kInk(16, 24, 48);
inline const QColor kNavy(22, 40, 79);

struct Control::Impl {
  QPointer<QWidget> widget;   // placed in the parent's client; the window of a form
  QWidget* client = nullptr;  // parent of the controls on this one
  Control* parent = nullptr;
  Form* form = nullptr;
  std::string name;
  bool visible = true;
  bool enabled = true;
  int left = 0;  // twips
  int top = 0;
  int width = 0;
  int height = 0;
  Life life = NewLife();
};

struct Form::FormImpl {
  QPointer<QMainWindow> window;
  std::vector<std::unique_ptr<Menu>> menus;
  std::vector<Control*> controls;  // all that stand on the form
  std::vector<MenuItem*> items;
  Button* neutral = nullptr;
  Button* standard = nullptr;
  QPointer<QWidget> focusBefore;       // what had the focus when the form was disabled
  const Control* neighbour = nullptr;  // the form stands beside it, not in the middle
  bool shown = false;
  bool waits = false;  // of all input it takes Esc alone
};

// A widget of the control's own that tells it of the mouse: a press is a click, so that it feels
// immediate.  The second press of a double click is none: what it meant is done, and what stands
// there now was not meant.
template <class Widget>
class Pressable : public Widget {
 public:
  template <class... Args>
  explicit Pressable(Control& control, Args&&... args)
      : Widget(std::forward<Args>(args)...), control_(control) {}

 protected:
  void mousePressEvent(QMouseEvent* event) override {
    if (event->button() != Qt::LeftButton) return;
    CallLater(control_.impl().life, [&control = control_] { control.Click(); });
  }
  void mouseDoubleClickEvent(QMouseEvent*) override {}
  Control& control_;
};

// Puts a new widget into the parent's client, and shows it as far as the parent is shown.
template <class Widget>
Widget& PutOn(Control& parent, Control& control, Widget* widget) {
  widget->setParent(parent.impl().client);
  control.impl().widget = widget;
  control.impl().client = widget;
  widget->setObjectName(ToText(control.Name()));
  // A click on a disabled control is no click on what lies under it.
  widget->setAttribute(Qt::WA_NoMousePropagation);
  widget->show();
  return *widget;
}

template <class Widget>
Widget& WidgetOf(const Control& control) {
  return *static_cast<Widget*>(control.impl().widget.data());
}

// The person has used the control's widget: its handler is called when the toolkit has returned.
inline void HandleLater(Control& control) {
  CallLater(control.impl().life, [&control] {
    if (control.CanBeClicked()) CallHandler(control.OnClick);
  });
}

// Whether the person reaches the form: it is shown, enabled, and no other form is modal before it.
bool TakesInput(const Form& form);
// The form that a new window belongs in front of, nullptr for none.
QWidget* FrontWindow();

}  // namespace platform
