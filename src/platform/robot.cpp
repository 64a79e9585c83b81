#include "platform/robot.h"

#include <QAccessible>
#include <QAccessibleActionInterface>
#include <QClipboard>
#include <QGuiApplication>
#include <QWindow>
#include <map>

#include "platform/form_window_impl.h"
#include "platform/widgets_impl.h"

// The toolkit's own entry for simulated devices.
Q_GUI_EXPORT void qt_handleMouseEvent(QWindow* window, const QPointF& local, const QPointF& global,
                                      Qt::MouseButtons state, Qt::MouseButton button,
                                      QEvent::Type type, Qt::KeyboardModifiers mods, int timestamp);
Q_GUI_EXPORT void qt_handleKeyEvent(QWindow* window, QEvent::Type type, int key,
                                    Qt::KeyboardModifiers mods, const QString& text,
                                    bool isAutoRepeat, ushort count);

namespace platform::robot {
namespace {

// Milliseconds on the devices' clock; clicks that lie further apart are no double click.
int timestamp = 1;
constexpr int kApart = 10000;

QWindow* WindowOf(const Control& control) {
  return control.impl().widget->window()->windowHandle();
}

void PressAndRelease(const Control& control, int x, int y) {
  QWidget* widget = control.impl().widget;
  const QPointF local = widget->mapTo(widget->window(), QPoint(x, y));
  const QPointF global = widget->mapToGlobal(QPoint(x, y));
  QWindow* window = WindowOf(control);
  qt_handleMouseEvent(window, local, global, Qt::LeftButton, Qt::LeftButton,
                      QEvent::MouseButtonPress, Qt::NoModifier, ++timestamp);
  qt_handleMouseEvent(window, local, global, Qt::NoButton, Qt::LeftButton,
                      QEvent::MouseButtonRelease, Qt::NoModifier, ++timestamp);
}

void TypeKey(const Form& form, int key, const QString& text,
             Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
  for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease})
    qt_handleKeyEvent(WindowOf(form), type, key, modifiers, text, false, 1);
}

}  // namespace

void ClickAt(const Control& control, int x, int y) {
  timestamp += kApart;
  PressAndRelease(control, x, y);
}

void SecondClickAt(const Control& control, int x, int y) {
  PressAndRelease(control, x, y);
}

void DoubleClickAt(const Control& control, int x, int y) {
  ClickAt(control, x, y);
  SecondClickAt(control, x, y);
}

void Type(const Form& form, int code) {
  const QKeyEvent event = KeyEventOf(QEvent::KeyPress, code);
  TypeKey(form, event.key(), event.text());
}

void Type(const Form& form, Key key) {
  static const std::map<Key, int> kKeys = {
      {Key::Up, Qt::Key_Up},       {Key::Down, Qt::Key_Down}, {Key::Left, Qt::Key_Left},
      {Key::Right, Qt::Key_Right}, {Key::Tab, Qt::Key_Tab},   {Key::BackTab, Qt::Key_Backtab}};
  TypeKey(form, kKeys.at(key), key == Key::Tab ? "\t" : "");
}

void TypeWithAlt(const Form& form, char letter) {
  const QKeyEvent event = KeyEventOf(QEvent::KeyPress, letter);
  TypeKey(form, event.key(), event.text(), Qt::AltModifier);
}

void HoldKey(const Form& form, int code) {
  const QKeyEvent event = KeyEventOf(QEvent::KeyPress, code);
  qt_handleKeyEvent(WindowOf(form), QEvent::KeyPress, event.key(), Qt::NoModifier, event.text(),
                    true, 1);
}

std::string Copied(const Form& form) {
  TypeKey(form, Qt::Key_C, "\x03", Qt::ControlModifier);
  return FromText(QGuiApplication::clipboard()->text());
}

void Paste(const Form& form, const std::string& text) {
  QGuiApplication::clipboard()->setText(QString::fromStdString(text));
  TypeKey(form, Qt::Key_V, "\x16", Qt::ControlModifier);
}

void CloseWindow(const Form& form) {
  WindowOf(form)->close();
}

std::string Spoken(const Control& control) {
  const QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(control.impl().widget);
  return FromText(spoken->text(QAccessible::Name));
}

std::string SpokenRow(const ListBox& list, int row) {
  const QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(list.impl().widget);
  return FromText(spoken->child(row)->text(QAccessible::Name));
}

bool PressBySpeech(const Control& control) {
  QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(control.impl().widget);
  QAccessibleActionInterface* actions = spoken->actionInterface();
  const QString press = QAccessibleActionInterface::pressAction();
  if (actions == nullptr || !actions->actionNames().contains(press)) return false;
  actions->doAction(press);
  return true;
}

}  // namespace platform::robot
