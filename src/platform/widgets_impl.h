// Texts between the course's single bytes and the toolkit, and what a control is made of: for the
// .cpp files of this folder alone.
#pragma once

#include <QFont>
#include <QMainWindow>
#include <QPointer>
#include <QString>
#include <QWidget>
#include <cmath>
#include <string>

#include "platform/fonts.h"
#include "platform/form.h"

namespace platform {

inline QString ToText(const std::string& text) {
  QString s = QString::fromLatin1(text.data(), static_cast<qsizetype>(text.size()));
  return s.replace("\r\n", "\n").replace('\r', '\n');
}

inline std::string FromText(const QString& text) {
  return text.toLatin1().toStdString();
}

inline QColor ToQColor(Colour colour) {
  return QColor(colour & 0xFF, (colour >> 8) & 0xFF, (colour >> 16) & 0xFF);
}

inline QFont ToFont(const std::string& face, double points, bool bold) {
  QFont font(ToText(FamilyOf(face)));
  font.setPixelSize(static_cast<int>(std::lround(points * 4 / 3)));
  font.setBold(bold);
  return font;
}

struct Control::Impl {
  QPointer<QWidget> widget;   // placed in the parent's client
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
};

struct Form::FormImpl {
  QPointer<QMainWindow> window;
  std::vector<std::unique_ptr<Menu>> menus;
  std::vector<Control*> controls;  // all that stand on the form
  std::vector<MenuItem*> items;
  Button* neutral = nullptr;
  Button* standard = nullptr;
  bool shown = false;
  bool modal = false;
};

// Calls a handler that is set.
inline void CallHandler(const std::function<void()>& handler) {
  // A copy: the handler may destroy the control that holds it.
  if (const std::function<void()> call = handler) call();
}

// Whether the person reaches the form: it is shown, enabled, and no other form is modal before it.
bool TakesInput(const Form& form);

}  // namespace platform
