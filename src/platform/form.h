// Forms and what stands on them: thin classes over the toolkit's widgets, placed in twips.
//
// Every control belongs to a parent (a form, a frame or a picture box) that must outlive it.  A
// control has a name in the course's words, such as "cmdNavigate(2)"; tests and failures speak of
// it by name. Positions are those inside the parent.  Texts are single-byte (Latin-1); "&" before a
// letter makes it the shortcut of a button, a menu or an entry.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "platform/geometry.h"

namespace platform {

class Surface;
class Form;

class Control {
 public:
  virtual ~Control();
  Control(const Control&) = delete;
  Control& operator=(const Control&) = delete;

  const std::string& Name() const;
  // Twips.
  int Left() const;
  int Top() const;
  int Width() const;
  int Height() const;
  void SetLeft(int twips);
  void SetTop(int twips);
  void Move(int left, int top, int width, int height);

  // The control's own flags, whatever its parents' are.
  bool Visible() const;
  void SetVisible(bool visible);
  bool Enabled() const;
  void SetEnabled(bool enabled);

  void BringToFront();
  void SetFocus();
  // For a screen reader: what the control is, and what it holds at the moment.
  void SetAccessibleName(const std::string& name);
  void SetAccessibleText(const std::string& text);
  std::string AccessibleName() const;
  std::string AccessibleText() const;
  // The face in points, "MS Sans Serif" 10 when not set.
  void SetFont(const std::string& face, double points, bool bold = false, bool italic = false);
  void SetColours(Colour fore, Colour back);

  // What a click by the person does.  It is called between two looks into the event queue and never
  // inside the toolkit, so that it may wait, throw and destroy the control.
  std::function<void()> OnClick;
  // Clicks as the person would.  False, and nothing happens, when he could not: the control or one
  // of its parents is hidden or disabled, or a modal form or a disabled form stands before it.
  bool Click();
  bool CanBeClicked() const;

  // The form that the control stands on, or the form itself.
  Form* OwnForm() const;

  // What the folder's own sources know of a control.
  struct Impl;
  Impl& impl() const { return *impl_; }

 protected:
  Control(Control* parent, std::string name);
  // Called when the size in twips has changed.
  virtual void OnResized() {}
  // What the control itself does on a click, before OnClick is called.
  virtual void BeforeClick() {}

 private:
  std::unique_ptr<Impl> impl_;
};

class Label final : public Control {
 public:
  Label(Control& parent, std::string name, const std::string& caption = "");
  // '\r' or '\n' breaks the line; long lines are wrapped.
  void SetCaption(const std::string& caption);
  // For letters beyond Latin-1.
  void SetUtf8Caption(const std::string& caption);
  // The same of a text in which what stands between two bars is bold; Caption gives it without
  // them.
  void SetMarkedCaption(const std::string& marked);
  std::string Caption() const;
  enum class Align { Left, Centre, Right };
  void SetAlignment(Align align);
  // The text stands in the middle of the label's height; without it at the top.
  void CentreVertically();
  // Gives the label the size of its caption, whose lines are not wrapped.
  void SizeToCaption();
};

class Button final : public Control {
 public:
  Button(Control& parent, std::string name, const std::string& caption = "");
  void SetCaption(const std::string& caption);
  std::string Caption() const;
  // Fills the button with a picture of the artwork in place of a caption.
  void SetPicture(const std::string& name);
  std::string Picture() const;
  // Every quick press counts, as on a button that turns pages.  Otherwise the second press of a
  // double click is lost.
  void SetRepeats(bool repeats);
};

class OptionButton final : public Control {
 public:
  OptionButton(Control& parent, std::string name, const std::string& caption);
  // Options with one parent exclude each other.  Setting a value does not call OnClick.
  void SetValue(bool chosen);
  bool Value() const;

 protected:
  void BeforeClick() override;
};

// A box with a caption around other controls; with an empty caption only a container.
class Frame final : public Control {
 public:
  Frame(Control& parent, std::string name, const std::string& caption = "");
};

class ListBox final : public Control {
 public:
  ListBox(Control& parent, std::string name);
  void Clear();
  // What stands behind 100 blanks, or behind so many characters, is kept, and neither seen nor read
  // out nor copied.
  void AddItem(const std::string& text, std::size_t seen = std::string::npos);
  int ListCount() const;
  std::string List(int index) const;  // "" outside 0 to ListCount - 1
  // 0-based, -1 for none.  Setting another index than the present one calls OnClick once, as the
  // person's own click or arrow key does.
  int ListIndex() const;
  void SetListIndex(int index);
  std::string Text() const;  // the selected item's, "" for none
  // Twips; to be set before the first item is added.
  int RowHeight() const;
  void SetRowHeight(int twips);
  // Twips that a text takes in the list's type.
  int TextWidth(const std::string& text) const;
  std::function<void()> OnDblClick;
  // The keyboard has come to the list.
  std::function<void()> OnGotFocus;
  // As the person would; false as Click.
  bool DblClick();

 private:
  int rowHeight_ = 27 * TwipsPerPixelY;
};

class MenuItem {
 public:
  MenuItem(Form& form, std::string name);
  ~MenuItem();
  void SetCaption(const std::string& caption);
  std::string Caption() const;
  void SetVisible(bool visible);
  bool Visible() const;
  void SetEnabled(bool enabled);
  bool Enabled() const;
  std::function<void()> OnClick;
  bool Click();
  const std::string& Name() const;

  struct Impl;
  Impl& impl() const { return *impl_; }

 private:
  std::unique_ptr<Impl> impl_;
};

class Menu {
 public:
  Menu(Form& form, const std::string& caption);
  ~Menu();
  MenuItem& AddItem(std::string name, const std::string& caption);
  MenuItem& AddSeparator(std::string name);

 private:
  struct Impl;
  std::unique_ptr<Impl> impl_;
};

class Form : public Control {
 public:
  // The client area below the menu bar, in twips.  A form has a fixed size, the grey ground of the
  // course, and is hidden.
  Form(std::string name, int width, int height);
  ~Form() override;

  void SetCaption(const std::string& caption);
  std::string Caption() const;
  Menu& AddMenu(const std::string& caption);

  // Centres the form on the screen: half the screen less half the form, each half a whole number.
  void Center();
  void Show();
  void Hide();
  // ShowModal places the form to the right of this control of another form, with their tops in
  // line, as far as the screen has room there, and not in the middle of the screen.
  void StandBeside(const Control& control);
  // Shows the form, centred, before all others, and returns when Close is called.  Other forms take
  // no input meanwhile.
  void ShowModal();
  void Close();
  // True between Show or ShowModal and Hide or Close.
  bool Shown() const;

  // The person's key as a single-byte code (Esc is 27), before any control sees it.  True swallows
  // it.
  std::function<bool(int code)> OnKeyPress;
  // Types a key as the person would; false when the form takes no input.
  bool Press(int code);
  // The close box or Alt+F4.  Without it the form stays: no window closes by accident.
  std::function<void()> OnCloseBox;
  bool ClickCloseBox();
  // The first time that the form is painted after it was shown.
  std::function<void()> OnFirstShown;
  // Esc and the close box press this button.
  void SetNeutralButton(Button& button);
  // Enter presses this one.
  void SetDefaultButton(Button& button);

  // What the form shows at this moment, menu bar included.
  std::unique_ptr<Surface> Grab();
  // The control or entry of this name, nullptr when there is none: for tests and tools.
  Control* Find(const std::string& name);
  MenuItem* FindMenuItem(const std::string& name);

  // The form in front, which all input goes to; nullptr while none is shown.
  static Form* FrontForm();
  // The modal form in front, nullptr for none.
  static Form* ModalForm();
  // Forms that are shown, in the order in which they were.
  static const std::vector<Form*>& ShownForms();

  struct FormImpl;
  FormImpl& formImpl() const { return *formImpl_; }

 private:
  void Place();

  std::unique_ptr<FormImpl> formImpl_;
};

// For the lifetime of this the program waits for something else than the person: the form in front
// is disabled, and of all input Esc alone gets through, to the form's OnKeyPress.
class FrontFormWaits {
 public:
  FrontFormWaits();
  ~FrontFormWaits();
  FrontFormWaits(const FrontFormWaits&) = delete;
  FrontFormWaits& operator=(const FrontFormWaits&) = delete;

 private:
  Form* form_ = nullptr;  // the one that waits; nullptr for none, or when it waits already
  std::weak_ptr<const char> life_;
};

}  // namespace platform
