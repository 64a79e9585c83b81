#include "platform/form.h"

#include <QAbstractButton>
#include <QApplication>
#include <QCloseEvent>
#include <QIcon>
#include <QKeyEvent>
#include <QLayout>
#include <QPushButton>
#include <QScreen>
#include <QTimer>
#include <QWindow>
#include <algorithm>

#include "platform/events.h"
#include "platform/surface.h"
#include "platform/surface_impl.h"
#include "platform/widgets_impl.h"

namespace platform {
namespace {

std::vector<Form*> shownForms;
std::vector<Form*> modalForms;

class FormWindow final : public QMainWindow {
 public:
  explicit FormWindow(Form& form) : form_(form) {}

 protected:
  void closeEvent(QCloseEvent* event) override {
    event->ignore();
    form_.ClickCloseBox();
  }

 private:
  Form& form_;
};

// The form's ground; it tells when it was painted for the first time.
class Client final : public QWidget {
 public:
  explicit Client(Form& form) : form_(form) {}
  bool painted = false;

 protected:
  void paintEvent(QPaintEvent*) override {
    if (std::exchange(painted, true)) return;
    // Not from within the painting: the handler may show other forms.
    QTimer::singleShot(0, this, [this] { CallHandler(form_.OnFirstShown); });
  }

 private:
  Form& form_;
};

// Keys reach the form before its controls.
class KeyFilter final : public QObject {
 public:
  bool eventFilter(QObject* target, QEvent* event) override {
    if (event->type() != QEvent::KeyPress || !target->isWindowType()) return false;
    for (Form* form : shownForms) {
      if (form->formImpl().window->windowHandle() != target) continue;
      const QByteArray typed = static_cast<QKeyEvent*>(event)->text().toLatin1();
      return !typed.isEmpty() && HandleKey(*form, static_cast<unsigned char>(typed[0]));
    }
    return false;
  }

  // True when the key was taken and no control is to see it.
  static bool HandleKey(Form& form, int code) {
    if (form.OnKeyPress && form.OnKeyPress(code)) return true;
    const Form::FormImpl& impl = form.formImpl();
    if (code == 27 && impl.neutral != nullptr) return impl.neutral->Click();
    const bool onButton = qobject_cast<QAbstractButton*>(impl.window->focusWidget()) != nullptr;
    if (code == 13 && impl.standard != nullptr && !onButton) return impl.standard->Click();
    return false;
  }
};

void InstallKeyFilter() {
  static QPointer<KeyFilter> filter;
  if (filter) return;
  filter = new KeyFilter;
  filter->setParent(qApp);
  qApp->installEventFilter(filter);
}

// A form before the program's first window has no other in front of it.
void KeepInFrontOf(QMainWindow& window, const Form* below) {
  if (below == nullptr) return;
  window.winId();
  window.windowHandle()->setTransientParent(below->formImpl().window->windowHandle());
}

}  // namespace

bool TakesInput(const Form& form) {
  if (!form.Shown() || !form.Enabled()) return false;
  return modalForms.empty() || modalForms.back() == &form;
}

Form::Form(std::string name, int width, int height)
    : Control(nullptr, std::move(name)), formImpl_(std::make_unique<FormImpl>()) {
  InstallKeyFilter();
  auto* window = new FormWindow(*this);
  auto* client = new Client(*this);
  client->setFixedSize(width / TwipsPerPixelX, height / TwipsPerPixelY);
  window->setCentralWidget(client);
  window->layout()->setSizeConstraint(QLayout::SetFixedSize);
  window->setWindowIcon(QIcon(":/art/app_icon.svg"));
  formImpl_->window = window;
  impl().widget = window;
  impl().client = client;
  impl().form = this;
  impl().width = width;
  impl().height = height;
  impl().visible = false;
}

Form::~Form() {
  Hide();
  formImpl_->menus.clear();
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
  formImpl_->window->move(screen.x() + screen.width() / 2 - size.width() / 2,
                          std::max(screen.y() + screen.height() / 2 - size.height() / 2, 0));
}

void Form::Show() {
  if (formImpl_->shown) return;
  formImpl_->shown = true;
  shownForms.push_back(this);
  static_cast<Client*>(impl().client)->painted = false;
  SetVisible(true);
  formImpl_->window->activateWindow();
}

void Form::Hide() {
  if (!formImpl_->shown) return;
  formImpl_->shown = false;
  std::erase(shownForms, this);
  if (formImpl_->window) SetVisible(false);
}

void Form::ShowModal() {
  QMainWindow& window = *formImpl_->window;
  window.setWindowModality(Qt::ApplicationModal);
  KeepInFrontOf(window, shownForms.empty() ? nullptr : shownForms.back());
  // Taken off on every path: a test's user may leave by an exception.
  struct ModalGuard {
    explicit ModalGuard(Form* shown) : form(shown) { modalForms.push_back(form); }
    ~ModalGuard() {
      std::erase(modalForms, form);
      form->Hide();
    }
    Form* form;
  } guard(this);
  Center();
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
  return TakesInput(*this) && (KeyFilter::HandleKey(*this, code), true);
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
  return SurfaceMaker::FromImage(formImpl_->window->grab().toImage());
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

Form* Form::ModalForm() {
  return modalForms.empty() ? nullptr : modalForms.back();
}

const std::vector<Form*>& Form::ShownForms() {
  return shownForms;
}

}  // namespace platform
