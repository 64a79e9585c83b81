#include "guidance/dpi_alert_form.h"

#include <memory>
#include <vector>

#include "guidance/dpi_instructions.h"
#include "guidance/form_frame.h"
#include "platform/dialogs.h"
#include "session/session.h"

namespace course {
namespace {

using platform::look::MovePixels;
using platform::look::SetType;

// Pixels.
constexpr int kWidth = 780;
constexpr int kTextHeight = 400;
constexpr int kHeight = kTextHeight + kFormButtonHeight + 3 * kFormMargin;
constexpr int kFrameWidth = 180;
constexpr int kFrameHeight = 176;
constexpr int kFramePadding = 14;
constexpr int kOptionHeight = 30;
constexpr int kTextLeft = kFormMargin + kFrameWidth + kFormMargin;
constexpr int kPrintWidth = 230;

class DpiAlertForm {
 public:
  DpiAlertForm()
      : form("frmDPIAlert", FormTwips(kWidth), FormTwips(kHeight)),
        frmWinVersion_(form, "frmWinVersion"),
        lblWinVersion_(frmWinVersion_, "lblWinVersion", "Version of\nWindows"),
        picAlert_(form, "picAlert"),
        lblTop_(picAlert_, "lblTop"),
        cmdPrint_(form, "cmdPrint", "Print These Instructions"),
        cmdClose_(form, "cmdClose", "Close") {
    form.SetCaption("Screen DPI Setting");
    PlaceVersions();
    PlaceText();
    PlaceFormButton(cmdPrint_, kTextLeft, kHeight - kFormMargin - kFormButtonHeight, kPrintWidth);
    cmdPrint_.OnClick = [this] { cmdPrint_Click(); };
    MakeClosingButton(form, cmdClose_);
    cmdClose_.SetFocus();
    Choose(DpiVersionOf(session.gWindowsVersionName));
  }

  platform::Form form;

 private:
  void PlaceVersions() {
    MovePixels(frmWinVersion_, kFormMargin, kFormMargin, kFrameWidth, kFrameHeight);
    MovePixels(lblWinVersion_, kFramePadding, kFramePadding, kFrameWidth - 2 * kFramePadding, 44);
    SetType(lblWinVersion_, 11, true);
    for (int version = 1; version <= kDpiVersions; ++version) {
      auto& option = *optWinVersion_.emplace_back(std::make_unique<platform::OptionButton>(
          frmWinVersion_, "optWinVersion(" + std::to_string(version) + ")",
          DpiVersionName(version)));
      MovePixels(option, kFramePadding, 64 + (version - 1) * kOptionHeight,
                 kFrameWidth - 2 * kFramePadding, kOptionHeight);
      option.SetFont("MS Sans Serif", 11);
      option.OnClick = [this, version] { Choose(version); };
    }
  }

  void PlaceText() {
    const int width = kWidth - kTextLeft - kFormMargin;
    MovePixels(picAlert_, kTextLeft, kFormMargin, width, kTextHeight);
    MovePixels(lblTop_, 0, 0, width, kTextHeight);
    SetType(lblTop_, 11);
  }

  // 0 for none yet.
  void Choose(int version) {
    version_ = version;
    if (version > 0) optWinVersion_.at(static_cast<std::size_t>(version - 1))->SetValue(true);
    lblTop_.SetMarkedCaption(DpiAlertText(version));
    cmdPrint_.SetEnabled(version > 0);
  }

  void cmdPrint_Click() {
    const platform::Message question = {.text = "Turn printer on, then click OK",
                                        .title = "Change DPI Setting",
                                        .buttons = platform::Buttons::OkCancel};
    if (platform::MessageBox(question) == platform::Answer::Ok)
      platform::PrintAfterPreview(DpiInstructions(version_));
  }

  platform::Frame frmWinVersion_;
  platform::Label lblWinVersion_;
  std::vector<std::unique_ptr<platform::OptionButton>> optWinVersion_;
  platform::Frame picAlert_;
  platform::Label lblTop_;
  platform::Button cmdPrint_;
  platform::Button cmdClose_;
  int version_ = 0;
};

}  // namespace

void ShowDpiAlert() {
  DpiAlertForm().form.ShowModal();
}

}  // namespace course
