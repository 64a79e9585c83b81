// A box for one line of text that the person types.
#pragma once

#include "platform/form.h"

namespace platform {

class TextBox final : public Control {
 public:
  TextBox(Control& parent, std::string name);
  // Single-byte; the caret goes to the end.
  void SetText(const std::string& text);
  std::string Text() const;
  void SelectAll();
  // Shows a dot in place of each character.
  void HideCharacters();

  // The code of a key before the box takes it; Backspace is 8.  What is returned goes in, 0 is
  // nothing.  What comes in another way, pasted for example, is asked for character by character.
  // It must not wait, throw, or destroy the box.
  std::function<int(int code)> OnKeyPress;
  // Types key after key as the person would; false, and nothing is typed, as for Click.
  bool Type(const std::string& keys);
};

}  // namespace platform
