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

// Gives a key to the form: to its handler, then to the neutral and the default button, then to the
// control that has the focus.  False when the form takes no such key now.
bool OfferKey(Form& form, const QKeyEvent& event);

// The key events of a single-byte code, pressed or released.
QKeyEvent KeyEventOf(QEvent::Type type, int code);

// From now on keys reach a form before its controls, and what has just opened takes no press.
void InstallInputFilter();

// The control that a key goes to, nullptr for none.
Control* FocusedControl(const Form& form);

}  // namespace platform
