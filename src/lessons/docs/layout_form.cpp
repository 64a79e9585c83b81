#include "lessons/docs/layout_form.h"

#include <string>

#include "display/print.h"
#include "display/text_panel.h"
#include "display/word_wrap.h"
#include "guidance/form_frame.h"
#include "lessons/docs/typed_text.h"
#include "platform/dialogs.h"
#include "platform/picture_box.h"
#include "platform/text_box.h"

namespace course {
namespace {

using platform::look::MovePixels;
using platform::look::SetType;

constexpr int kColumns = 46;
constexpr int kRows = 18;
constexpr int kReasonIndent = 4;

// The wiper box's cells, on a panel of this form.
const TextPanel::Layout kLayout = {.leftMargin = 16,
                                   .topMargin = 5,
                                   .characters = CharacterSet::WiperBox,
                                   .restoredColour = platform::colour::Black};

// Pixels.
constexpr int kPanelWidth = 16 * (kColumns + 2);
constexpr int kPanelHeight = 25 * kRows + 10;
constexpr int kWidth = kPanelWidth + 2 * kFormMargin;
constexpr int kFieldsTop = kFormMargin + kPanelHeight + 16;
constexpr int kFieldHeight = 34;
constexpr int kFieldWidth = 440;
constexpr int kLabelWidth = 100;
constexpr int kHeight = kFieldsTop + 2 * (kFieldHeight + 12) + kFormMargin;

class GeoUtilityForm {
 public:
  GeoUtilityForm()
      : form("frmGeoUtility", FormTwips(kWidth), FormTwips(kHeight)),
        picUtility_(form, "picUtility"),
        text_(picUtility_, kLayout),
        lblStatement_(form, "lblStatement", "Statement"),
        txtStatement_(form, "txtStatement"),
        lblReason_(form, "lblReason", "Reason"),
        txtReason_(form, "txtReason"),
        cmdAdd_(form, "cmdAdd", "Add"),
        cmdClose_(form, "cmdClose", "Close") {
    form.SetCaption("Layout Utility");
    picUtility_.BackColor = platform::colour::White;
    MovePixels(picUtility_, kFormMargin, kFormMargin, kPanelWidth, kPanelHeight);
    text_.Cls();
    text_.RestoreFont();
    text_.Locate(1, 1);
    PlaceField(lblStatement_, txtStatement_, kFieldsTop);
    PlaceField(lblReason_, txtReason_, kFieldsTop + kFieldHeight + 12);
    PlaceFormButton(cmdAdd_, kWidth - kFormMargin - kFormButtonWidth, kFieldsTop - 4,
                    kFormButtonWidth);
    cmdAdd_.OnClick = [this] { cmdAdd_Click(); };
    MakeClosingButton(form, cmdClose_);
    form.SetDefaultButton(cmdAdd_);
  }

  platform::Form form;

 private:
  void PlaceField(platform::Label& label, platform::TextBox& box, int top) {
    MovePixels(label, kFormMargin, top + 6, kLabelWidth, 24);
    SetType(label, 12);
    MovePixels(box, kFormMargin + kLabelWidth, top, kFieldWidth, kFieldHeight);
    box.SetAccessibleName(label.Caption());
  }

  void cmdAdd_Click() {
    const std::string line = "Statement #" + std::to_string(count_ + 1) + ": " +
                             txtStatement_.Text() + " - Reason: " + txtReason_.Text();
    if (const std::string fault = Fault(line); !fault.empty()) {
      platform::MessageBox({.text = fault, .title = "Layout Utility"});
      return;
    }
    ++count_;
    WrapOn(text_, line, kColumns);
    NewLineOn(text_);
    picUtility_.Refresh();
    txtStatement_.SetText("");
    txtReason_.SetText("");
    txtStatement_.SetFocus();
  }

  std::string Fault(const std::string& line) {
    const std::string fault = FaultOfTyped(line, kColumns);
    return fault.empty() && !Fits(line) ? "The panel is full." : fault;
  }

  bool Fits(const std::string& line) {
    text_.UpdateCursorCell();
    const double rows = 1.0 + static_cast<double>(line.size()) / (kColumns / 2.0);
    return text_.cursorRow + rows <= kRows + 1;
  }

  platform::PictureBox picUtility_;
  TextPanel text_;
  platform::Label lblStatement_;
  platform::TextBox txtStatement_;
  platform::Label lblReason_;
  platform::TextBox txtReason_;
  platform::Button cmdAdd_;
  platform::Button cmdClose_;
  int count_ = 0;
};

}  // namespace

void ShowGeoUtility() {
  GeoUtilityForm().form.ShowModal();
}

}  // namespace course
