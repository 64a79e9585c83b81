#include "lessons/docs/docs_form.h"

#include <algorithm>
#include <cctype>
#include <functional>
#include <memory>

#include "guidance/form_frame.h"
#include "lessons/docs/layout_form.h"
#include "lessons/docs/tutor_chars_form.h"
#include "platform/dialogs.h"
#include "session/session.h"

namespace course {
namespace {

using platform::look::MovePixels;
using platform::look::SetType;

// Pixels.
constexpr int kListWidth = 330;
constexpr int kRowHeight = 24;
constexpr int kListHeight = 20 * kRowHeight + 4;
constexpr int kHeadingHeight = 30;
constexpr int kListTop = kFormMargin + kHeadingHeight + 10;
constexpr int kButtonsLeft = kFormMargin + kListWidth + kFormMargin;
constexpr int kButtonsWidth = 230;
constexpr int kButtonStep = kFormButtonHeight + 12;
constexpr int kWidth = kButtonsLeft + kButtonsWidth + kFormMargin;
constexpr int kHeight = kListTop + kListHeight + kFormMargin;

constexpr int kLargestCounter = 32767;  // the field has 16 bits

// Asks until a number is given; false when the person thinks better of it.
bool AskTestingCounter() {
  for (;;) {
    const auto typed = platform::InputBox("Enter testing counter (e.g., 25)", "Testing Counter");
    if (!typed) return false;
    const int counter = TestingCounterOf(*typed);
    if (counter >= 0) {
      session.gTestingCounter = counter;
      return true;
    }
    platform::MessageBox({.text = "Please enter a whole number from 0 to 32767.",
                          .title = "Testing Counter",
                          .icon = platform::Icon::Warning});
  }
}

class DocsMenu {
 public:
  DocsMenu(const std::vector<std::string>& topics, int selected,
           const std::vector<PictureHolder>& holders)
      : form("frmDocs", FormTwips(kWidth), FormTwips(kHeight)),
        lblHeading_(form, "lblHeading", "Topics"),
        lstTopics_(form, "lstTopics"),
        cmdShow_(form, "cmdShow", "Show Topic"),
        cmdPractice_(form, "cmdPractice", "Run Practice by Itself"),
        cmdCharacters_(form, "cmdCharacters", "Chart of Characters"),
        cmdGallery_(form, "cmdGallery", "Gallery"),
        cmdLayout_(form, "cmdLayout", "Layout Utility"),
        cmdClose_(form, "cmdClose", "Return to Menu") {
    form.SetCaption("Documentation");
    MovePixels(lblHeading_, kFormMargin, kFormMargin, kListWidth, kHeadingHeight);
    SetType(lblHeading_, 16, true);
    MovePixels(lstTopics_, kFormMargin, kListTop, kListWidth, kListHeight);
    lstTopics_.SetFont("Courier New", 12);
    lstTopics_.SetRowHeight(FormTwips(kRowHeight));
    lstTopics_.SetAccessibleName("Topics");
    for (const std::string& topic : topics) lstTopics_.AddItem(topic);
    lstTopics_.SetListIndex(selected);
    lstTopics_.OnDblClick = [this] { Choose(DocsChoice::Topic); };
    PlaceButtons();
    cmdShow_.OnClick = [this] { Choose(DocsChoice::Topic); };
    cmdPractice_.OnClick = [this] {
      if (AskTestingCounter()) Choose(DocsChoice::Practice);
    };
    cmdCharacters_.OnClick = ShowTutorCharsDisplay;
    cmdGallery_.OnClick = [&holders] { ShowGallery(holders); };
    cmdLayout_.OnClick = ShowGeoUtility;
    cmdClose_.OnClick = [this] { form.Close(); };
    form.SetDefaultButton(cmdShow_);
    form.SetNeutralButton(cmdClose_);
  }

  platform::Form form;
  DocsAnswer answer;

 private:
  void PlaceButtons() {
    int top = kListTop;
    for (platform::Button* button :
         {&cmdShow_, &cmdPractice_, &cmdCharacters_, &cmdGallery_, &cmdLayout_}) {
      PlaceFormButton(*button, kButtonsLeft, top, kButtonsWidth);
      top += kButtonStep;
    }
    PlaceFormButton(cmdClose_, kButtonsLeft, kListTop + kListHeight - kFormButtonHeight,
                    kButtonsWidth);
  }

  void Choose(DocsChoice choice) {
    answer = {choice, lstTopics_.ListIndex()};
    form.Close();
  }

  platform::Label lblHeading_;
  platform::ListBox lstTopics_;
  platform::Button cmdShow_;
  platform::Button cmdPractice_;
  platform::Button cmdCharacters_;
  platform::Button cmdGallery_;
  platform::Button cmdLayout_;
  platform::Button cmdClose_;
};

}  // namespace

int TestingCounterOf(const std::string& text) {
  const bool digits = !text.empty() && text.size() <= 5 &&
                      std::ranges::all_of(text, [](char c) { return std::isdigit(c) != 0; });
  if (!digits) return -1;
  const int counter = std::stoi(text);
  return counter <= kLargestCounter ? counter : -1;
}

DocsAnswer ShowDocsMenu(const std::vector<std::string>& topics, int selected,
                        const std::vector<PictureHolder>& holders) {
  DocsMenu menu(topics, selected, holders);
  menu.form.ShowModal();
  return menu.answer;
}

}  // namespace course
