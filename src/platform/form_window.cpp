#include <QApplication>
#include <QCloseEvent>
#include <QLayout>
#include <QMenuBar>
#include <QWindow>
#include <cctype>
#include <memory>

#include "platform/form_window_impl.h"
#include "platform/picture_box.h"

namespace platform {
namespace {

constexpr int kEnter = 13;
constexpr int kEsc = 27;

// The form's ground; it tells when it was painted for the first time.
class Client final : public Pressable<QWidget> {
 public:
  explicit Client(Form& form) : Pressable<QWidget>(form), form_(form) {}
  bool painted = false;

 protected:
  void paintEvent(QPaintEvent*) override {
    if (std::exchange(painted, true) || !form_.OnFirstShown) return;
    CallLater(form_.impl().life, [&form = form_] {
      if (form.Shown()) CallHandler(form.OnFirstShown);
    });
  }

 private:
  Form& form_;
};

// The single-byte code that was typed, -1 for none.
int CodeOf(const QKeyEvent& event) {
  constexpr Qt::KeyboardModifiers kShortcuts =
      Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier;
  if (event.modifiers() & kShortcuts) return -1;
  // Not every platform gives these a text: a VNC screen gives Esc none.
  if (event.key() == Qt::Key_Escape) return kEsc;
  if (event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter) return kEnter;
  const QString text = event.text();
  if (text.size() != 1 || text[0].unicode() > 255) return -1;
  return text[0].unicode();
}

bool PressEnter(const Form& form) {
  Control* focused = FocusedControl(form);
  if (dynamic_cast<Button*>(focused) || dynamic_cast<PictureBox*>(focused)) return focused->Click();
  auto* list = dynamic_cast<ListBox*>(focused);
  if (list != nullptr && list->OnDblClick) return list->DblClick();
  Button* standard = form.formImpl().standard;
  return standard != nullptr && standard->Click();
}

// True when the key was taken and no control is to see it.
bool TakeKey(Form& form, int code) {
  if (form.OnKeyPress && form.OnKeyPress(code)) return true;
  // The handler may have closed the form.
  if (!TakesInput(form)) return true;
  Button* neutral = form.formImpl().neutral;
  if (code == kEsc) return neutral != nullptr && neutral->Click();
  return code == kEnter && PressEnter(form);
}

class KeyFilter final : public QObject {
 public:
  bool eventFilter(QObject* target, QEvent* event) override {
    const bool isKey = event->type() == QEvent::KeyPress || event->type() == QEvent::KeyRelease;
    if (!isKey || !target->isWindowType()) return false;
    Form* const form = FormOf(target);
    if (form == nullptr || InMenu(*form)) return false;
    const auto& key = *static_cast<QKeyEvent*>(event);
    const int code = CodeOf(key);
    // The release waits behind its press.
    if (code < 0 || !(form->OnKeyPress || code == kEsc || code == kEnter)) return false;
    CallLater(form->impl().life, [form, copy = std::shared_ptr<QKeyEvent>(key.clone())] {
      if (TakesInput(*form)) HandleKey(*form, *copy);
    });
    return true;
  }

 private:
  static Form* FormOf(const QObject* window) {
    for (Form* form : Form::ShownForms())
      if (form->formImpl().window->windowHandle() == window) return form;
    return nullptr;
  }
  // An open menu, or a menu bar that is walked along by keys, takes Esc and Enter for itself.
  static bool InMenu(const Form& form) {
    return QApplication::activePopupWidget() != nullptr ||
           qobject_cast<QMenuBar*>(form.formImpl().window->focusWidget()) != nullptr;
  }
};

int ToolkitKey(int code) {
  if (code >= 32 && code < 127) return std::toupper(code);
  switch (code) {
    case 8:
      return Qt::Key_Backspace;
    case 9:
      return Qt::Key_Tab;
    case kEnter:
      return Qt::Key_Return;
    case kEsc:
      return Qt::Key_Escape;
    default:
      return Qt::Key_unknown;
  }
}

}  // namespace

Control* FocusedControl(const Form& form) {
  const QWidget* focused = form.formImpl().window->focusWidget();
  for (Control* control : form.formImpl().controls)
    if (const QWidget* widget = control->impl().widget;
        widget == focused || (focused != nullptr && widget->focusProxy() == focused))
      return control;
  return nullptr;
}

FormWindow::FormWindow(Form& form) : form_(form) {
  setCentralWidget(new Client(form));
  layout()->setSizeConstraint(QLayout::SetFixedSize);
}

void FormWindow::ExpectFirstPainting() {
  static_cast<Client*>(centralWidget())->painted = false;
}

void FormWindow::closeEvent(QCloseEvent* event) {
  event->ignore();
  CallLater(form_.impl().life, [&form = form_] { form.ClickCloseBox(); });
}

void HandleKey(Form& form, const QKeyEvent& event) {
  if (event.type() == QEvent::KeyPress && TakeKey(form, CodeOf(event))) return;
  QWidget* receiver = form.formImpl().window->focusWidget();
  if (receiver == nullptr) receiver = form.formImpl().window;
  const std::unique_ptr<QKeyEvent> copy(event.clone());
  QCoreApplication::sendEvent(receiver, copy.get());
}

QKeyEvent KeyEventOf(QEvent::Type type, int code) {
  return {type, ToolkitKey(code), Qt::NoModifier, QString(QChar(code))};
}

void InstallKeyFilter() {
  static QPointer<KeyFilter> filter;
  if (filter) return;
  filter = new KeyFilter;
  filter->setParent(qApp);
  qApp->installEventFilter(filter);
}

}  // namespace platform
