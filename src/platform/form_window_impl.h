// The toolkit's side of a form, its window and the keys that reach it: for the .cpp files of this
// folder alone.
#pragma once

#include <QKeyEvent>
#include <QMainWindow>

#include "platform/widgets_impl.h"

namespace platform {

class FormWindow final : public QMainWindow {
 public:
  explicit FormWindow(Form& form);
  // The next painting is the first one after the form was shown.
  void ExpectFirstPainting();

 protected:
  void closeEvent(QCloseEvent* event) override;

 private:
  Form& form_;
};

// What a key does on a form: the form's handler, then the neutral and the default button, then the
// control that has the focus.
void HandleKey(Form& form, const QKeyEvent& event);

// The key events of a single-byte code, pressed or released.
QKeyEvent KeyEventOf(QEvent::Type type, int code);

// Keys reach a form before its controls from now on.
void InstallKeyFilter();

// The control that a key goes to, nullptr for none.
Control* FocusedControl(const Form& form);

}  // namespace platform
