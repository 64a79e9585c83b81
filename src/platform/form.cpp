#include "platform/form.h"

#include <QApplication>
#include <QLayout>
#include <QPushButton>
#include <QScreen>
#include <QWindow>
#include <algorithm>

#include "platform/events.h"
#include "platform/form_window_impl.h"
#include "platform/off_screen.h"
#include "platform/painting.h"
#include "platform/surface.h"
#include "platform/surface_impl.h"
#include "platform/widgets_impl.h"

namespace platform {
namespace {

std::vector<Form*> shownForms;
std::vector<Form*> modalForms;

void KeepInFrontOf(QMainWindow& window, const QWidget* below) {
  if (below == nullptr || below == &window) return;
  window.winId();
  window.windowHandle()->setTransientParent(below->windowHandle());
}

void TakeKeyboard(QWidget& window) {
  if (!window.testAttribute(Qt::WA_DontShowOnScreen)) window.activateWindow();
}

// A form that is modal from here on until the end of its life, whichever way that comes: a test's
// user may leave by an exception.
class ModalStretch {
 public:
  explicit ModalStretch(Form& form) : form_(form) {
    modalForms.push_back(&form);
    form.formImpl().window->setWindowModality(Qt::ApplicationModal);
  }
  ~ModalStretch() {
    std::erase(modalForms, &form_);
    form_.Hide();
    form_.formImpl().window->setWindowModality(Qt::NonModal);
  }
  ModalStretch(const ModalStretch&) = delete;
  ModalStretch& operator=(const ModalStretch&) = delete;

 private:
  Form& form_;
};

}  // namespace

QWidget* FrontWindow() {
  const Form* front = Form::FrontForm();
  return front == nullptr ? nullptr : front->formImpl().window.data();
}

bool TakesInput(const Form& form) {
  if (!form.Shown() || !form.Enabled()) return false;
  return modalForms.empty() || modalForms.back() == &form;
}

Form::Form(std::string name, int width, int height)
    : Control(nullptr, std::move(name)), formImpl_(std::make_unique<FormImpl>()) {
  InstallInputFilter();
  auto* window = new FormWindow(*this);
  QWidget* client = window->centralWidget();
  client->setFixedSize(ToPixels(width), ToPixels(height));
  formImpl_->window = window;
  impl().widget = window;
  impl().client = client;
  impl().form = this;
  impl().width = width;
  impl().height = height;
}

Form::~Form() {
  std::erase(modalForms, this);
  Hide();
}

void Form::SetCaption(const std::string& caption) {
  formImpl_->window->setWindowTitle(ToText(caption));
}

std::string Form::Caption() const {
  return FromText(formImpl_->window->windowTitle());
}

Menu& Form::AddMenu(const std::string& caption) {
  formImpl_->menus.push_back(std::make_unique<Menu>(*this, caption));
  return *formImpl_->menus.back();
}

void Form::Center() {
  const QRect screen = QGuiApplication::primaryScreen()->geometry();
  const QSize size = formImpl_->window->sizeHint();
  const QPoint corner(screen.x() + screen.width() / 2 - size.width() / 2,
                      screen.y() + screen.height() / 2 - size.height() / 2);
  // On a screen that is too small the menu bar must stay in reach.
  Move(std::max(corner.x(), 0) * TwipsPerPixelX, std::max(corner.y(), 0) * TwipsPerPixelY, Width(),
       Height());
}

void Form::StandBeside(const Control& control) {
  formImpl_->neighbour = &control;
}

void Form::Place() {
  if (formImpl_->neighbour == nullptr) return Center();
  const QWidget& neighbour = *formImpl_->neighbour->impl().widget;
  const QRect screen = QGuiApplication::primaryScreen()->geometry();
  const QSize size = formImpl_->window->sizeHint();
  const QPoint corner = neighbour.mapToGlobal(neighbour.rect().topRight());
  const int left = std::min(corner.x() + 1, screen.x() + screen.width() - size.width());
  const int top = std::max(corner.y(), screen.y());
  Move(left * TwipsPerPixelX, top * TwipsPerPixelY, Width(), Height());
}

void Form::Show() {
  if (formImpl_->shown) return;
  formImpl_->shown = true;
  shownForms.push_back(this);
  if (PaintingOff::Active()) return;
  static_cast<FormWindow&>(*formImpl_->window).ExpectFirstPainting();
  formImpl_->window->setAttribute(Qt::WA_DontShowOnScreen, OffScreen::Active());
  formImpl_->window->show();
  TakeKeyboard(*formImpl_->window);
}

void Form::Hide() {
  if (!formImpl_->shown) return;
  formImpl_->shown = false;
  std::erase(shownForms, this);
  formImpl_->window->hide();
  if (PaintingOff::Active()) return;
  // Not every screen has a window manager that passes the keyboard on.
  if (QWidget* below = FrontWindow()) TakeKeyboard(*below);
}

void Form::ShowModal() {
  if (!PaintingOff::Active()) KeepInFrontOf(*formImpl_->window, FrontWindow());
  const ModalStretch stretch(*this);
  Place();
  Show();
  while (formImpl_->shown) WaitEvents(Name());
}

void Form::Close() {
  Hide();
}

bool Form::Shown() const {
  return formImpl_->shown;
}

bool Form::Press(int code) {
  const std::weak_ptr<const char> life = impl().life;
  if (!OfferKey(*this, KeyEventOf(QEvent::KeyPress, code))) return false;
  if (!life.expired() && Shown()) OfferKey(*this, KeyEventOf(QEvent::KeyRelease, code));
  return true;
}

bool Form::ClickCloseBox() {
  if (!TakesInput(*this)) return false;
  if (OnCloseBox)
    CallHandler(OnCloseBox);
  else if (formImpl_->neutral != nullptr)
    formImpl_->neutral->Click();
  return true;
}

void Form::SetNeutralButton(Button& button) {
  formImpl_->neutral = &button;
}

void Form::SetDefaultButton(Button& button) {
  formImpl_->standard = &button;
  static_cast<QPushButton*>(button.impl().widget.data())->setDefault(true);
}

std::unique_ptr<Surface> Form::Grab() {
  QMainWindow& window = *formImpl_->window;
  window.ensurePolished();
  window.layout()->activate();
  if (!formImpl_->shown) window.resize(window.sizeHint());
  // Not the window's own picture: that has the screen's pixels, which may be denser.
  QImage image(window.size(), QImage::Format_RGB32);
  window.render(&image);
  return SurfaceMaker::FromImage(image);
}

Control* Form::Find(const std::string& name) {
  for (Control* control : formImpl_->controls)
    if (control->Name() == name) return control;
  return nullptr;
}

MenuItem* Form::FindMenuItem(const std::string& name) {
  for (MenuItem* item : formImpl_->items)
    if (item->Name() == name) return item;
  return nullptr;
}

Form* Form::FrontForm() {
  if (!modalForms.empty()) return modalForms.back();
  return shownForms.empty() ? nullptr : shownForms.back();
}

Form* Form::ModalForm() {
  return modalForms.empty() ? nullptr : modalForms.back();
}

const std::vector<Form*>& Form::ShownForms() {
  return shownForms;
}

FrontFormWaits::FrontFormWaits() {
  Form* front = Form::FrontForm();
  if (front == nullptr || !TakesInput(*front)) return;
  form_ = front;
  life_ = front->impl().life;
  front->formImpl().waits = true;
  front->SetEnabled(false);
}

FrontFormWaits::~FrontFormWaits() {
  if (form_ == nullptr || life_.expired()) return;
  form_->formImpl().waits = false;
  form_->SetEnabled(true);
}

}  // namespace platform
