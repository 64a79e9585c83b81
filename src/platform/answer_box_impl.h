// A message on the screen, with its buttons: for the .cpp files of this folder alone.
#pragma once

#include <QDialog>
#include <QDialogButtonBox>
#include <QLabel>

#include "platform/dialogs.h"

namespace platform {

class AnswerBox final : public QDialog {
 public:
  AnswerBox(const Message& message, QWidget* parent);
  // The button pressed.
  Answer Chosen() const { return answer_; }
  // Lines that the text takes.
  int Lines();

  // Esc and the close box: the button that changes nothing.  A Yes/No box stays.
  void reject() override;

 private:
  Message message_;
  QLabel* text_;
  QDialogButtonBox* buttons_;
  Answer answer_ = Answer::Ok;
};

}  // namespace platform
