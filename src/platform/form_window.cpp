#include <QApplication>
#include <QCloseEvent>
#include <QLayout>
#include <QMenuBar>
#include <QWindow>
#include <cctype>
#include <memory>

#include "platform/clock.h"
#include "platform/form_window_impl.h"
#include "platform/picture_box.h"

namespace platform {
namespace {

constexpr int kEnter = 13;
constexpr int kEsc = 27;

// Who double clicks meant both presses for what stood there before: seconds in which a form or a
// box that opened takes none, as long as the second press may take.
constexpr double kOpening = 0.4;
constexpr const char* kOpened = "openedAt";  // property of a window, on the course's clock

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

void HandleKey(Form& form, const QKeyEvent& event) {
  if (event.type() == QEvent::KeyPress && TakeKey(form, CodeOf(event))) return;
  QWidget* receiver = form.formImpl().window->focusWidget();
  if (receiver == nullptr) receiver = form.formImpl().window;
  const std::unique_ptr<QKeyEvent> copy(event.clone());
  QCoreApplication::sendEvent(receiver, copy.get());
}

// What the toolkit's windows are told of the machine's devices, before they see it.
class InputFilter final : public QObject {
 public:
  // True: the window never sees it.
  bool eventFilter(QObject* target, QEvent* event) override {
    if (!target->isWindowType()) return false;
    switch (event->type()) {
      case QEvent::Show:
        target->setProperty(kOpened, TheClock().Counter());
        return false;
      case QEvent::MouseButtonPress:
      case QEvent::MouseButtonDblClick:
        return HasJustOpened(*static_cast<QWindow*>(target));
      case QEvent::KeyPress:
      case QEvent::KeyRelease:
        return TakesOver(*target, *static_cast<QKeyEvent*>(event));
      default:
        return false;
    }
  }

 private:
  // A menu opens under the very press that goes on to its entry.
  static bool HasJustOpened(const QWindow& window) {
    if (window.type() != Qt::Window && window.type() != Qt::Dialog) return false;
    return TheClock().Counter() < window.property(kOpened).toDouble() + kOpening;
  }
  static bool TakesOver(const QObject& window, const QKeyEvent& key) {
    const int code = CodeOf(key);
    // A key that is held down leads no further than one that is pressed: the next form is not
    // meant.
    if (key.isAutoRepeat() && (code == kEsc || code == kEnter)) return true;
    Form* const form = FormOf(&window);
    if (form == nullptr || InMenu(*form)) return false;
    // The release waits behind its press.
    if (code < 0 || !(form->OnKeyPress || code == kEsc || code == kEnter)) return false;
    CallLater(form->impl().life,
              [form, copy = std::shared_ptr<QKeyEvent>(key.clone())] { OfferKey(*form, *copy); });
    return true;
  }
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

bool OfferKey(Form& form, const QKeyEvent& event) {
  if (TakesInput(form)) {
    HandleKey(form, event);
    return true;
  }
  if (!form.formImpl().waits || CodeOf(event) != kEsc || !form.OnKeyPress) return false;
  if (event.type() == QEvent::KeyPress) form.OnKeyPress(kEsc);
  return true;
}

QKeyEvent KeyEventOf(QEvent::Type type, int code) {
  return {type, ToolkitKey(code), Qt::NoModifier, QString(QChar(code))};
}

void InstallInputFilter() {
  static QPointer<InputFilter> filter;
  if (filter) return;
  filter = new InputFilter;
  filter->setParent(qApp);
  qApp->installEventFilter(filter);
}

}  // namespace platform
