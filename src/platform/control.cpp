#include <QAccessible>
#include <algorithm>
#include <utility>

#include "platform/fonts.h"
#include "platform/fonts_impl.h"
#include "platform/widgets_impl.h"

namespace platform {

QString ToText(const std::string& text) {
  QString s = QString::fromLatin1(text.data(), static_cast<qsizetype>(text.size()));
  return s.replace("\r\n", "\n").replace('\r', '\n');
}

std::string FromText(const QString& text) {
  return text.toLatin1().toStdString();
}

QFont ToFont(const std::string& face, double points, bool bold, bool italic) {
  return FindTypeface(face, points, bold, italic).font;
}

Control::Control(Control* parent, std::string name) : impl_(std::make_unique<Impl>()) {
  impl_->parent = parent;
  impl_->name = std::move(name);
  if (parent != nullptr) {
    impl_->form = parent->impl_->form;
    impl_->form->formImpl().controls.push_back(this);
  }
}

Control::~Control() {
  if (impl_->parent != nullptr) std::erase(impl_->form->formImpl().controls, this);
  delete impl_->widget.data();
}

const std::string& Control::Name() const {
  return impl_->name;
}
int Control::Left() const {
  return impl_->left;
}
int Control::Top() const {
  return impl_->top;
}
int Control::Width() const {
  return impl_->width;
}
int Control::Height() const {
  return impl_->height;
}

void Control::SetLeft(int twips) {
  Move(twips, impl_->top, impl_->width, impl_->height);
}

void Control::SetTop(int twips) {
  Move(impl_->left, twips, impl_->width, impl_->height);
}

void Control::Move(int left, int top, int width, int height) {
  const bool resized = width != impl_->width || height != impl_->height;
  impl_->left = left;
  impl_->top = top;
  impl_->width = width;
  impl_->height = height;
  if (impl_->form == this) {
    // The window is as large as its client and the menu bar want it.
    impl_->client->setFixedSize(ToPixels(width), ToPixels(height));
    impl_->widget->move(ToPixels(left), ToPixels(top));
  } else {
    impl_->widget->setGeometry(ToPixels(left), ToPixels(top), ToPixels(width), ToPixels(height));
  }
  if (resized) OnResized();
}

bool Control::Visible() const {
  return impl_->form == this ? impl_->form->Shown() : impl_->visible;
}

void Control::SetVisible(bool visible) {
  if (impl_->form == this) return visible ? impl_->form->Show() : impl_->form->Hide();
  impl_->visible = visible;
  impl_->widget->setVisible(visible);
}

bool Control::Enabled() const {
  return impl_->enabled;
}

void Control::SetEnabled(bool enabled) {
  const bool changed = enabled != std::exchange(impl_->enabled, enabled);
  if (!changed) return;
  // A disabled form loses its focus to nobody; the person goes on where he was.
  const bool isForm = impl_->form == this;
  if (isForm && !enabled) impl_->form->formImpl().focusBefore = impl_->widget->focusWidget();
  impl_->widget->setEnabled(enabled);
  if (!isForm || !enabled) return;
  if (QWidget* focus = impl_->form->formImpl().focusBefore) focus->setFocus();
}

void Control::BringToFront() {
  impl_->widget->raise();
}

void Control::SetFocus() {
  impl_->widget->setFocus();
}

void Control::SetAccessibleName(const std::string& name) {
  impl_->widget->setAccessibleName(ToText(name));
}

// The toolkit tells a screen reader of the change by itself.
void Control::SetAccessibleText(const std::string& text) {
  impl_->widget->setAccessibleDescription(ToText(text));
}

std::string Control::AccessibleName() const {
  return FromText(impl_->widget->accessibleName());
}

std::string Control::AccessibleText() const {
  return FromText(impl_->widget->accessibleDescription());
}

void Control::SetFont(const std::string& face, double points, bool bold, bool italic) {
  impl_->widget->setFont(ToFont(face, points, bold, italic));
}

void Control::SetColours(Colour fore, Colour back) {
  QPalette palette = impl_->widget->palette();
  for (const QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text})
    palette.setColor(role, ToQColor(fore));
  for (const QPalette::ColorRole role : {QPalette::Window, QPalette::Base})
    palette.setColor(role, ToQColor(back));
  impl_->widget->setPalette(palette);
  impl_->widget->setAutoFillBackground(true);
}

Form* Control::OwnForm() const {
  return impl_->form;
}

bool Control::CanBeClicked() const {
  for (const Control* control = this; control != impl_->form; control = control->impl_->parent)
    if (!control->Visible() || !control->Enabled()) return false;
  return TakesInput(*impl_->form);
}

bool Control::Click() {
  if (!CanBeClicked()) return false;
  BeforeClick();
  CallHandler(OnClick);
  return true;
}

}  // namespace platform
