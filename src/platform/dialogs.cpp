#include "platform/dialogs.h"

#include <QApplication>
#include <QCloseEvent>
#include <QInputDialog>
#include <QKeyEvent>
#include <QMessageBox>

#include "platform/stop.h"
#include "platform/user.h"
#include "platform/widgets_impl.h"

namespace platform {
namespace {

// A Yes/No box stays until one of its buttons is pressed.
class AnswerBox final : public QMessageBox {
 public:
  using QMessageBox::QMessageBox;

 protected:
  void closeEvent(QCloseEvent* event) override {
    if (MustAnswer())
      event->ignore();
    else
      QMessageBox::closeEvent(event);
  }
  void keyPressEvent(QKeyEvent* event) override {
    if (!(MustAnswer() && event->key() == Qt::Key_Escape)) QMessageBox::keyPressEvent(event);
  }

 private:
  bool MustAnswer() const { return standardButtons().testFlag(QMessageBox::Yes); }
};

QMessageBox::Icon IconOf(Icon icon) {
  switch (icon) {
    case Icon::Information:
      return QMessageBox::Information;
    case Icon::Question:
      return QMessageBox::Question;
    case Icon::Warning:
      return QMessageBox::Warning;
    default:
      return QMessageBox::NoIcon;
  }
}

QMessageBox::StandardButtons ButtonsOf(Buttons buttons) {
  switch (buttons) {
    case Buttons::YesNo:
      return QMessageBox::Yes | QMessageBox::No;
    case Buttons::OkCancel:
      return QMessageBox::Ok | QMessageBox::Cancel;
    default:
      return QMessageBox::Ok;
  }
}

}  // namespace

bool NobodyIsThere() {
  const QString name = QGuiApplication::platformName();
  return name == "offscreen" || name == "minimal";
}

Answer MessageBox(const Message& message) {
  if (User* user = InstalledUser()) return user->AtMessage(message);
  if (NobodyIsThere()) Stop("MessageBox: nobody is there to answer: " + message.text);
  AnswerBox box(IconOf(message.icon), ToText(message.title), ToText(message.text),
                ButtonsOf(message.buttons), FrontWindow());
  box.setTextFormat(Qt::PlainText);
  switch (box.exec()) {
    case QMessageBox::Yes:
      return Answer::Yes;
    case QMessageBox::No:
      return Answer::No;
    case QMessageBox::Cancel:
      return Answer::Cancel;
    default:
      return Answer::Ok;
  }
}

std::optional<std::string> InputBox(const std::string& prompt, const std::string& title) {
  if (User* user = InstalledUser()) return user->AtInput(prompt);
  if (NobodyIsThere()) Stop("InputBox: nobody is there to answer: " + prompt);
  bool accepted = false;
  const QString typed = QInputDialog::getText(FrontWindow(), ToText(title), ToText(prompt),
                                              QLineEdit::Normal, {}, &accepted);
  if (!accepted) return {};
  return FromText(typed);
}

void Beep() {
  QApplication::beep();
}

}  // namespace platform
