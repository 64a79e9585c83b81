// What the forms of records, rosters and login are made of: one grid, one type, and the two kinds
// of form that occur more than once.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "platform/form.h"
#include "platform/text_box.h"

namespace course {

// The grid.  All of these, and the arguments of the routines below, are in pixels.
namespace grid {
inline constexpr int kPixel = platform::TwipsPerPixelX;
inline constexpr int kMargin = 24;  // on all sides of a form
inline constexpr int kGap = 12;     // between buttons
inline constexpr int kHeadingHeight = 30;
inline constexpr int kHeadingBottom = kMargin + kHeadingHeight;
inline constexpr int kCaptionTop = kHeadingBottom + 14;
inline constexpr int kListTop = kCaptionTop + 24;  // of a list under a heading and a caption
inline constexpr int kButtonHeight = 46;
inline constexpr int kNameHeight = 27;  // of a row

constexpr int ListHeight(int rows, int rowHeight = kNameHeight) {
  return rows * rowHeight + 4;
}
}  // namespace grid

// The heading of a form, from margin to margin.
void PlaceHeading(platform::Label& heading, int formWidth);
// A list with its top at kListTop, and its caption over it.
void PlaceNames(platform::Label& caption, platform::ListBox& list, int left, int width, int rows);
void PlaceButton(platform::Button& button, int left, int top, int width);

// The items in alphabetical order, none of them selected.
void ListNames(platform::ListBox& list, const std::vector<std::string>& items);

// Asks whether something that cannot be undone is wanted.
bool IsSure(const std::string& title, const std::string& question);

// A form that shows lines in a fixed-pitch type under a heading, and is closed.
class ListView {
 public:
  struct Layout {
    const char* name;
    int width;            // of the list
    int labelHeight = 0;  // of the headings of its columns
    int rows;
    int rowHeight;
    double points;
    int below = grid::kGap;  // between the list and the button
  };
  ListView(const Layout& layout, const std::string& caption, const std::string& heading);
  // Makes the button behind all controls that Tab reaches before it.
  void MakeClose(const char* caption);
  void Show(const std::vector<std::string>& lines);
  int ListBottom() const;

  platform::Form form;
  platform::Label lblHeading;
  platform::ListBox lstRecords;
  std::unique_ptr<platform::Button> cmdOK;
};

// A form that asks for a line of text, between a prompt of two lines and two buttons.
class TextDialog {
 public:
  TextDialog(const char* name, const char* boxName, int width, const std::string& caption,
             const std::string& prompt);
  // Selects what stands in the box, for the person to type over it.
  void AskAgain();

  platform::Form form;
  platform::Label Label1;
  platform::TextBox textBox;
  platform::Button cmdOK;
  platform::Button cmdCancel;
};

}  // namespace course
