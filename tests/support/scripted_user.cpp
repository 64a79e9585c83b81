#include "support/scripted_user.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "platform/text_box.h"

namespace course::testing {
namespace {

[[noreturn]] void Fail(const std::string& what) {
  ADD_FAILURE() << what;
  throw TestFailure(what);
}

std::vector<platform::Form*> FormsFromTheFront() {
  std::vector<platform::Form*> forms = platform::Form::ShownForms();
  std::reverse(forms.begin(), forms.end());
  return forms;
}

platform::Form& FrontForm() {
  if (platform::Form::ShownForms().empty()) Fail("no form is shown");
  return *platform::Form::ShownForms().back();
}

platform::ListBox& FindList(const std::string& name) {
  return dynamic_cast<platform::ListBox&>(FindControl(name));
}

void Expect(bool done, const std::string& what) {
  if (!done) Fail("the student cannot do this now: " + what);
}

}  // namespace

platform::Control& FindControl(const std::string& name) {
  for (platform::Form* form : FormsFromTheFront())
    if (platform::Control* control = form->Find(name)) return *control;
  Fail("no shown form has a control " + name);
}

platform::MenuItem& FindMenuItem(const std::string& name) {
  for (platform::Form* form : FormsFromTheFront())
    if (platform::MenuItem* item = form->FindMenuItem(name)) return *item;
  Fail("no shown form has a menu entry " + name);
}

ScriptedUser& ScriptedUser::At(const std::string& place) {
  nextPlace_ = place;
  return *this;
}

ScriptedUser& ScriptedUser::Do(const std::string& what, std::function<void()> action) {
  steps_.push_back({std::exchange(nextPlace_, ""), what, std::move(action)});
  return *this;
}

ScriptedUser& ScriptedUser::Click(const std::string& control) {
  const std::string what = "click " + control;
  return Do(what, [=] { Expect(FindControl(control).Click(), what); });
}

ScriptedUser& ScriptedUser::ClickRefused(const std::string& control) {
  return Do("click in vain " + control, [=] {
    if (FindControl(control).Click()) Fail(control + " took a click");
  });
}

ScriptedUser& ScriptedUser::DblClick(const std::string& list) {
  const std::string what = "double click " + list;
  return Do(what, [=] { Expect(FindList(list).DblClick(), what); });
}

ScriptedUser& ScriptedUser::Select(const std::string& list, int index) {
  const std::string what = "select row " + std::to_string(index) + " of " + list;
  return Do(what, [=] {
    Expect(FindList(list).CanBeClicked(), what);
    FindList(list).SetListIndex(index);
  });
}

ScriptedUser& ScriptedUser::Menu(const std::string& item) {
  const std::string what = "choose " + item;
  return Do(what, [=] { Expect(FindMenuItem(item).Click(), what); });
}

ScriptedUser& ScriptedUser::TypeIn(const std::string& textBox, const std::string& keys) {
  const std::string what = "type " + keys + " in " + textBox;
  return Do(what, [=] {
    Expect(dynamic_cast<platform::TextBox&>(FindControl(textBox)).Type(keys), what);
  });
}

ScriptedUser& ScriptedUser::Press(int code) {
  const std::string what = "press key " + std::to_string(code);
  return Do(what, [=] { Expect(FrontForm().Press(code), what); });
}

ScriptedUser& ScriptedUser::CloseBox() {
  return Do("click the close box", [] { Expect(FrontForm().ClickCloseBox(), "close box"); });
}

ScriptedUser& ScriptedUser::Answer(platform::Answer answer) {
  answers_.push_back(answer);
  return *this;
}

ScriptedUser& ScriptedUser::Type(const std::string& text) {
  inputs_.emplace_back(text);
  return *this;
}

ScriptedUser& ScriptedUser::CancelInput() {
  inputs_.emplace_back(std::nullopt);
  return *this;
}

std::vector<std::string> ScriptedUser::Unused() const {
  std::vector<std::string> unused;
  for (const Step& step : steps_) unused.push_back(step.what);
  if (!answers_.empty()) unused.push_back(std::to_string(answers_.size()) + " answer(s)");
  if (!inputs_.empty()) unused.push_back(std::to_string(inputs_.size()) + " input(s)");
  return unused;
}

void ScriptedUser::AtWait(const std::string& place) {
  if (steps_.empty()) Fail("the program waits at " + place + " and the student has no step left");
  const Step step = std::move(steps_.front());
  steps_.pop_front();
  if (!step.place.empty() && step.place != place)
    Fail("\"" + step.what + "\" was meant for " + step.place + ", but the program waits at " +
         place);
  step.action();
}

void ScriptedUser::AtPause(double seconds) {
  ++pauses;
  pausedSeconds += seconds;
  if (OnPause) OnPause(seconds);
}

platform::Answer ScriptedUser::AtMessage(const platform::Message& message) {
  messages.push_back(message);
  if (answers_.empty()) Fail("the student has no answer to: " + message.text);
  const platform::Answer answer = answers_.front();
  answers_.pop_front();
  return answer;
}

std::optional<std::string> ScriptedUser::AtInput(const std::string& prompt) {
  prompts.push_back(prompt);
  if (inputs_.empty()) Fail("the student has nothing to type at: " + prompt);
  const std::optional<std::string> input = inputs_.front();
  inputs_.pop_front();
  return input;
}

void ScriptedUser::AtStop(const std::string& message) {
  throw StoppedProgram{message};
}

void ScriptedUser::AtEnd() {
  throw ProgramEnded{};
}

}  // namespace course::testing
