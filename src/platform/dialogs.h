// Message boxes, the input box and the beep.
#pragma once

#include <optional>
#include <string>

namespace platform {

enum class Buttons { Ok, OkCancel, YesNo };
enum class Icon { None, Information, Question, Warning };
enum class Answer { Ok, Cancel, Yes, No };

struct Message {
  std::string text;  // '\r' or '\n' breaks the line
  std::string title;
  Buttons buttons = Buttons::Ok;
  Icon icon = Icon::None;
};

// Shows the message and returns the button pressed.  A Yes/No box cannot be closed without an
// answer; closing another one is Cancel, or Ok where there is no Cancel.
Answer MessageBox(const Message& message);

// What was typed, nothing when the person cancelled.
std::optional<std::string> InputBox(const std::string& prompt, const std::string& title = "");

void Beep();

}  // namespace platform
