#include "lessons/docs/gallery_form.h"

#include <algorithm>
#include <cctype>

#include "display/images.h"
#include "guidance/form_frame.h"
#include "platform/dialogs.h"
#include "platform/picture_box.h"
#include "platform/text_box.h"

namespace course {
namespace {

using platform::look::MovePixels;
using platform::look::SetType;

// Pixels.
constexpr int kWidth = 860;
constexpr int kPictureHeight = 430;
constexpr int kSourceHeight = 30;
constexpr int kOptionWidth = 200;
constexpr int kPictureTop = kFormMargin + kSourceHeight + 12;
constexpr int kRowTop = kPictureTop + kPictureHeight + 16;
constexpr int kHeight = kRowTop + kFormButtonHeight + kFormMargin;
constexpr int kNumberLabelWidth = 120;
constexpr int kNumberWidth = 80;
constexpr int kInfoWidth = 180;

class GalleryWindow {
 public:
  explicit GalleryWindow(std::vector<PictureHolder> holders)
      : form("frmViewpicGalleryImages", FormTwips(kWidth), FormTwips(kHeight)),
        holders_(std::move(holders)),
        fraSource_(form, "fraSource"),
        pic1_(form, "pic1"),
        lblNumber_(form, "lblNumber", "Image number"),
        txtImageNumber_(form, "txtImageNumber"),
        cmdDisplay_(form, "cmdDisplay", "Display Image"),
        lblImageInfo_(form, "lblImageInfo"),
        cmdExit_(form, "cmdExit", "Exit") {
    form.SetCaption("Gallery");
    PlaceSources();
    pic1_.BackColor = platform::colour::White;
    MovePixels(pic1_, kFormMargin, kPictureTop, kWidth - 2 * kFormMargin, kPictureHeight);
    pic1_.Cls();
    PlaceRow();
    cmdDisplay_.OnClick = [this] { cmdDisplay_Click(); };
    MakeClosingButton(form, cmdExit_);
    form.SetDefaultButton(cmdDisplay_);
  }

  platform::Form form;

 private:
  void PlaceSources() {
    MovePixels(fraSource_, kFormMargin, kFormMargin, kWidth - 2 * kFormMargin, kSourceHeight);
    for (std::size_t i = 0; i < holders_.size(); ++i) {
      auto& option = *optSource_.emplace_back(std::make_unique<platform::OptionButton>(
          fraSource_, "optSource(" + std::to_string(i) + ")", holders_[i].name));
      MovePixels(option, static_cast<int>(i) * kOptionWidth, 0, kOptionWidth, kSourceHeight);
      option.SetFont("MS Sans Serif", 11);
    }
    optSource_.front()->SetValue(true);
  }

  void PlaceRow() {
    int left = kFormMargin;
    MovePixels(lblNumber_, left, kRowTop + 10, kNumberLabelWidth, 24);
    SetType(lblNumber_, 12);
    left += kNumberLabelWidth + 8;
    MovePixels(txtImageNumber_, left, kRowTop + 4, kNumberWidth, 34);
    txtImageNumber_.SetAccessibleName("Image number");
    left += kNumberWidth + 16;
    PlaceFormButton(cmdDisplay_, left, kRowTop, 160);
    left += 160 + 16;
    MovePixels(lblImageInfo_, left, kRowTop + 10, kInfoWidth, 24);
    SetType(lblImageInfo_, 12);
  }

  const PictureHolder& Chosen() const {
    const auto chosen =
        std::ranges::find_if(optSource_, [](const auto& option) { return option->Value(); });
    return holders_.at(static_cast<std::size_t>(chosen - optSource_.begin()));
  }

  // 0 for what is no number of this holder.
  int Number() const {
    const std::string text = txtImageNumber_.Text();
    const bool digits = !text.empty() && text.size() <= 4 &&
                        std::ranges::all_of(text, [](char c) { return std::isdigit(c) != 0; });
    const int number = digits ? std::stoi(text) : 0;
    return number <= Chosen().count ? number : 0;
  }

  void cmdDisplay_Click() {
    pic1_.Cls();
    if (Number() == 0) {
      pic1_.Refresh();
      lblImageInfo_.SetCaption("");
      Refuse();
      return;
    }
    const auto picture = Chosen().picture(Number());
    const int width = picture->PixelWidth();
    const int height = picture->PixelHeight();
    // A larger picture is made to fit.
    const double scale =
        std::min({1.0, 1.0 * pic1_.PixelWidth() / width, 1.0 * pic1_.PixelHeight() / height});
    pic1_.StretchBlt({0, 0, static_cast<int>(width * scale), static_cast<int>(height * scale)},
                     *picture);
    pic1_.Refresh();
    lblImageInfo_.SetCaption("about " + std::to_string(width) + " x " + std::to_string(height));
  }

  void Refuse() {
    platform::MessageBox({.text = "There is no such image.  Enter a number from 1 to " +
                                  std::to_string(Chosen().count) + ".",
                          .title = "Gallery",
                          .icon = platform::Icon::Warning});
    txtImageNumber_.SelectAll();
    txtImageNumber_.SetFocus();
  }

  std::vector<PictureHolder> holders_;
  platform::Frame fraSource_;
  std::vector<std::unique_ptr<platform::OptionButton>> optSource_;
  platform::PictureBox pic1_;
  platform::Label lblNumber_;
  platform::TextBox txtImageNumber_;
  platform::Button cmdDisplay_;
  platform::Label lblImageInfo_;
  platform::Button cmdExit_;
};

}  // namespace

PictureHolder GalleryHolder() {
  return {"Lesson pictures", gallery::Count, GalleryImage};
}

void ShowGallery(const std::vector<PictureHolder>& holders) {
  std::vector<PictureHolder> all = {GalleryHolder()};
  all.insert(all.end(), holders.begin(), holders.end());
  GalleryWindow(all).form.ShowModal();
}

}  // namespace course
