// A hand on the mouse and the keyboard: the toolkit takes its input at once, like that of the
// machine's own devices when their turn in the event queue has come.  For tests and benchmarks; the
// course itself never uses it.
#pragma once

#include "platform/form.h"

namespace platform::robot {

// Presses and releases the left button at a pixel of the control.
void ClickAt(const Control& control, int x, int y);
// The second click of a double click, wherever the first one was.
void SecondClickAt(const Control& control, int x, int y);
void DoubleClickAt(const Control& control, int x, int y);

// Presses and releases a key on the form: a character's code, or one of those without a character.
enum class Key { Up, Down, Left, Right, Tab, BackTab };
void Type(const Form& form, int code);
void Type(const Form& form, Key key);
// The key of a letter, held with Alt.
void TypeWithAlt(const Form& form, char letter);

// What a key does that is held down: it is pressed again without being released.
void HoldKey(const Form& form, int code);

// Copies what is selected where the focus is, and gives it back.
std::string Copied(const Form& form);
// Pastes a text, in UTF-8, where the focus is.
void Paste(const Form& form, const std::string& text);

// Asks the form's window to close, as its close box does.
void CloseWindow(const Form& form);

// What a screen reader says of the control, and its way to press it; false when it has none.
std::string Spoken(const Control& control);
std::string SpokenRow(const ListBox& list, int row);  // from 0
bool PressBySpeech(const Control& control);

}  // namespace platform::robot
