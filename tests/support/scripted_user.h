// A person made of steps: what a test's student does wherever the program waits for him.
//
//   user.Click("cmdNavigate(2)");        at the next wait, presses the control of this name
//   user.At("AnswerWait").Click(...);    the same, and the wait must be that one
//   user.Answer(platform::Answer::Yes);  at the next message box
//
// A wait with no step left throws TestFailure, which names the place; so does a step that cannot be
// done.
#pragma once

#include <deque>
#include <functional>
#include <stdexcept>
#include <string>
#include <vector>

#include "platform/form.h"
#include "platform/user.h"

namespace course::testing {

struct TestFailure : std::runtime_error {
  using std::runtime_error::runtime_error;
};

// The program stopped on an author's error, or ended at the person's wish.
struct StoppedProgram {
  std::string message;
};
struct ProgramEnded {};

class ScriptedUser final : public platform::User {
 public:
  // The place of the next step; "" is any.
  ScriptedUser& At(const std::string& place);
  // Steps, done one at a wait.
  ScriptedUser& Click(const std::string& control);
  ScriptedUser& ClickRefused(const std::string& control);  // it must not be possible
  ScriptedUser& DblClick(const std::string& list);
  ScriptedUser& Select(const std::string& list, int index);
  ScriptedUser& Menu(const std::string& item);
  ScriptedUser& TypeIn(const std::string& textBox, const std::string& keys);
  ScriptedUser& Press(int code);
  ScriptedUser& CloseBox();
  ScriptedUser& Do(const std::string& what, std::function<void()> action);
  // Answers, taken by the message boxes and input boxes in their order.
  ScriptedUser& Answer(platform::Answer answer);
  ScriptedUser& Type(const std::string& text);
  ScriptedUser& CancelInput();

  // Tried at every pause of an animation or delay.
  std::function<void(double seconds)> OnPause;

  // What the program showed and did.
  std::vector<platform::Message> messages;
  std::vector<std::string> prompts;
  int pauses = 0;
  double pausedSeconds = 0;

  // Steps and answers not used so far.
  std::vector<std::string> Unused() const;

  void AtWait(const std::string& place) override;
  void AtPause(double seconds) override;
  platform::Answer AtMessage(const platform::Message& message) override;
  std::optional<std::string> AtInput(const std::string& prompt) override;
  [[noreturn]] void AtStop(const std::string& message) override;
  [[noreturn]] void AtEnd() override;

 private:
  struct Step {
    std::string place;
    std::string what;
    std::function<void()> action;
  };
  std::string nextPlace_;
  std::deque<Step> steps_;
  std::deque<platform::Answer> answers_;
  std::deque<std::optional<std::string>> inputs_;
};

// The control or menu entry of this name on a shown form, the front one first; throws TestFailure
// when there is none.
platform::Control& FindControl(const std::string& name);
platform::MenuItem& FindMenuItem(const std::string& name);

}  // namespace course::testing
