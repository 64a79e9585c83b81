// What a form is like for the person before it: where the keyboard is, what Enter and Esc press,
// whether all of a text can be seen.  For tests and tools, and for the tour, which points at
// controls.
#pragma once

#include <string>
#include <vector>

#include "platform/dialogs.h"
#include "platform/form.h"

namespace platform::inspection {

// All controls on the form, those in its frames and boxes included, in the order of their making.
std::vector<Control*> Controls(const Form& form);
// Shown, as all of its parents are.
bool IsSeen(const Control& control);
// The control that a key goes to, nullptr for none.
Control* Focused(const Form& form);
// The buttons that Enter and Esc press, nullptr for none.
Button* DefaultButton(const Form& form);
Button* NeutralButton(const Form& form);
// The entries of the form's menus, separators left out.
std::vector<MenuItem*> MenuItems(const Form& form);
// Whether a text box shows dots for what is typed.
bool HidesCharacters(const Control& textBox);
// The bold parts of a label's marked caption.
std::vector<std::string> BoldParts(const Label& label);
// Whether Tab stops at the control when it can be used.
bool TakesTab(const Control& control);

// Left, top, right and bottom edge in pixels of the form; right and bottom lie outside.
struct Edges {
  int left, top, right, bottom;
};
Edges EdgesOf(const Control& control);
// How far the texts of a label, button, option, frame or list do not fit into the control, in
// pixels to the right and below: 0 and 0 when all can be read.  Of a list only the width counts.
struct Excess {
  int right, below;
};
Excess ExcessOfText(const Control& control);

// A message as its box shows it: the title on its frame, and the lines that its text takes.
struct ShownMessage {
  std::string title;
  int lines;
};
ShownMessage Shown(const Message& message);

}  // namespace platform::inspection
