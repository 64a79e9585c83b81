#include "platform/text_box.h"

#include <QKeyEvent>
#include <QLineEdit>

#include "platform/widgets_impl.h"

namespace platform {
namespace {

constexpr int kBackspace = 8;

bool IsPrintable(QChar c) {
  const char16_t code = c.unicode();
  return (code >= 32 && code <= 126) || (code >= 160 && code <= 255);
}

class LineBox final : public QLineEdit {
 public:
  explicit LineBox(TextBox& box) : box_(box) {
    connect(this, &QLineEdit::textChanged, [this] { KeepToAllowed(); });
  }

  void TakeKey(int code) {
    const int taken = box_.OnKeyPress ? box_.OnKeyPress(code) : code;
    if (taken == kBackspace)
      backspace();
    else if (taken != 0)
      insert(QChar(taken));
  }

  void SetText(const QString& text) {
    const QSignalBlocker quiet(this);
    setText(text);
  }

 protected:
  void keyPressEvent(QKeyEvent* event) override {
    const QString typed = event->text();
    const auto commands = Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier;
    const auto held = event->modifiers() & commands;
    const bool plain = held == Qt::NoModifier && typed.size() == 1;
    // A shortcut that no button has is no letter.
    if (held == Qt::AltModifier && !typed.isEmpty()) return event->ignore();
    if (plain && (typed[0].unicode() == kBackspace || IsPrintable(typed[0])))
      TakeKey(typed[0].unicode());
    else
      QLineEdit::keyPressEvent(event);
  }

 private:
  // Text may come by other ways than keys.
  void KeepToAllowed() {
    QString allowed;
    for (const QChar c : text()) {
      if (!IsPrintable(c)) continue;
      const int taken = box_.OnKeyPress ? box_.OnKeyPress(c.unicode()) : c.unicode();
      if (taken != 0) allowed += QChar(taken);
    }
    if (allowed != text()) SetText(allowed);
  }

  TextBox& box_;
};

LineBox& LineOf(const TextBox& box) {
  return WidgetOf<LineBox>(box);
}

}  // namespace

TextBox::TextBox(Control& parent, std::string name) : Control(&parent, std::move(name)) {
  PutOn(parent, *this, new LineBox(*this));
}

void TextBox::SetText(const std::string& text) {
  LineOf(*this).SetText(ToText(text));
}

std::string TextBox::Text() const {
  return FromText(LineOf(*this).text());
}

void TextBox::SelectAll() {
  LineOf(*this).selectAll();
}

void TextBox::HideCharacters() {
  LineOf(*this).setEchoMode(QLineEdit::Password);
}

bool TextBox::Type(const std::string& keys) {
  if (!CanBeClicked()) return false;
  for (const unsigned char code : keys) LineOf(*this).TakeKey(code);
  return true;
}

}  // namespace platform
