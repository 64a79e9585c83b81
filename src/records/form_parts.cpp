#include "records/form_parts.h"

#include "platform/dialogs.h"
#include "platform/look.h"
#include "records/name_order.h"

namespace course {

using platform::look::MovePixels;
using platform::look::SetType;
using namespace grid;

namespace {

constexpr const char* kFace = "MS Sans Serif";
constexpr int kCloseWidth = 140;

// Of a dialog that asks for a text.
constexpr int kPromptHeight = 48;
constexpr int kBoxTop = kMargin + kPromptHeight + 8;
constexpr int kBoxHeight = 34;
constexpr int kAnswersTop = kBoxTop + kBoxHeight + kMargin;
constexpr int kAnswerWidth = 140;

int ListTopOf(const ListView::Layout& layout) {
  return layout.labelHeight == 0 ? kHeadingBottom + kGap : kCaptionTop + layout.labelHeight + 4;
}

int ListBottomOf(const ListView::Layout& layout) {
  return ListTopOf(layout) + ListHeight(layout.rows, layout.rowHeight);
}

}  // namespace

void PlaceHeading(platform::Label& heading, int formWidth) {
  MovePixels(heading, kMargin, kMargin, formWidth - 2 * kMargin, kHeadingHeight);
  SetType(heading, 16, true);
}

void PlaceNames(platform::Label& caption, platform::ListBox& list, int left, int width, int rows) {
  MovePixels(caption, left, kCaptionTop, width, 20);
  SetType(caption, 10);
  MovePixels(list, left, kListTop, width, ListHeight(rows));
  list.SetFont(kFace, 11);
}

void PlaceButton(platform::Button& button, int left, int top, int width) {
  MovePixels(button, left, top, width, kButtonHeight);
  button.SetFont(kFace, 11, true);
}

void ListNames(platform::ListBox& list, const std::vector<std::string>& items) {
  list.Clear();
  for (const std::string& item : InAlphabeticalOrder(items)) list.AddItem(item);
  list.SetListIndex(-1);
}

bool IsSure(const std::string& title, const std::string& question) {
  return platform::MessageBox({.text = question,
                               .title = title,
                               .buttons = platform::Buttons::YesNo,
                               .icon = platform::Icon::Warning}) == platform::Answer::Yes;
}

ListView::ListView(const Layout& layout, const std::string& caption, const std::string& heading)
    : form(layout.name, (layout.width + 2 * kMargin) * kPixel,
           (ListBottomOf(layout) + layout.below + kButtonHeight + kMargin) * kPixel),
      lblHeading(form, "lblHeading", heading),
      lstRecords(form, "lstRecords") {
  form.SetCaption(caption);
  PlaceHeading(lblHeading, layout.width + 2 * kMargin);
  MovePixels(lstRecords, kMargin, ListTopOf(layout), layout.width,
             ListHeight(layout.rows, layout.rowHeight));
  lstRecords.SetFont("Courier New", layout.points);
  lstRecords.SetRowHeight(layout.rowHeight * kPixel);
}

void ListView::MakeClose(const char* caption) {
  cmdOK = std::make_unique<platform::Button>(form, "cmdOK", caption);
  PlaceButton(*cmdOK, form.Width() / kPixel - kMargin - kCloseWidth,
              form.Height() / kPixel - kMargin - kButtonHeight, kCloseWidth);
  cmdOK->OnClick = [this] { form.Close(); };
  form.SetDefaultButton(*cmdOK);
  form.SetNeutralButton(*cmdOK);
}

void ListView::Show(const std::vector<std::string>& lines) {
  lstRecords.Clear();
  for (const std::string& line : lines) lstRecords.AddItem(line);
}

int ListView::ListBottom() const {
  return (lstRecords.Top() + lstRecords.Height()) / kPixel;
}

TextDialog::TextDialog(const char* name, const char* boxName, int width, const std::string& caption,
                       const std::string& prompt)
    : form(name, width * kPixel, (kAnswersTop + kButtonHeight + kMargin) * kPixel),
      Label1(form, "Label1", prompt),
      textBox(form, boxName),
      cmdOK(form, "cmdOK", "OK"),
      cmdCancel(form, "cmdCancel", "Cancel") {
  form.SetCaption(caption);
  MovePixels(Label1, kMargin, kMargin, width - 2 * kMargin, kPromptHeight);
  SetType(Label1, 12);
  MovePixels(textBox, kMargin, kBoxTop, width - 2 * kMargin, kBoxHeight);
  textBox.SetFont(kFace, 12);
  textBox.SetFocus();
  const int right = width - kMargin - kAnswerWidth;
  PlaceButton(cmdOK, right - kGap - kAnswerWidth, kAnswersTop, kAnswerWidth);
  PlaceButton(cmdCancel, right, kAnswersTop, kAnswerWidth);
  form.SetDefaultButton(cmdOK);
  form.SetNeutralButton(cmdCancel);
}

void TextDialog::AskAgain() {
  textBox.SelectAll();
  textBox.SetFocus();
}

}  // namespace course
