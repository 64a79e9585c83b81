#include "engine/result_form.h"

#include <memory>
#include <string>

#include "display/lesson_window.h"
#include "platform/form.h"
#include "platform/look.h"
#include "platform/picture_box.h"
#include "session/session.h"

namespace course {
namespace {

using platform::Rgb;
using platform::colour::FormGrey;
using platform::look::kNavy;
using platform::look::MovePixels;

constexpr int kPixel = platform::TwipsPerPixelX;

// All in pixels: the verdict on the left, four equal buttons in a column on the right.
constexpr int kWidth = 560;
constexpr int kHeight = 268;
constexpr int kMargin = 24;
constexpr int kPictureSize = 120;
constexpr int kVerdictLeft = kMargin + kPictureSize + 20;
constexpr int kPromptWidth = 210;  // two lines of like length
constexpr int kButtonWidth = 152;  // the longer captions break as they are meant to
constexpr int kButtonHeight = 46;
constexpr int kButtonGap = 12;
constexpr int kButtonLeft = kWidth - kMargin - kButtonWidth;

struct Option {
  int index;  // gMode is one more
  const char* caption;
  const char* name;  // what a screen reader says
};
// Option 3, "See an example", is hidden: examples have a tab of their own.
constexpr Option kOptions[] = {
    {0, "Try problem again", "Try problem again"},
    {1, "Try a Different   Problem", "Try a Different Problem"},
    {2, "See Explanation of Problem", "See Explanation of Problem"},
    {4, "Leave Lesson", "Leave Lesson"},
};

class ResultForm {
 public:
  explicit ResultForm(Verdict verdict)
      : form_("frmCorrect", kWidth * kPixel, kHeight * kPixel),
        picResult_(form_, "picResult"),
        lblInfo1_(form_, "lblInfo1", "Your answer is:"),
        lblInfo2_(form_, "lblInfo2"),
        lblInfo3_(form_, "lblInfo3", "Please select one of the choices to the right") {
    form_.SetCaption(session.gLessonName);
    PlaceVerdict();
    ShowVerdict(verdict);
    MakeOptions();
  }

  void Show() { form_.ShowModal(); }

 private:
  void PlaceVerdict() {
    const int textWidth = kButtonLeft - kVerdictLeft - 12;
    MovePixels(picResult_, kMargin, kMargin + 8, kPictureSize, kPictureSize);
    MovePixels(lblInfo1_, kVerdictLeft, kMargin + 36, textWidth, 24);
    MovePixels(lblInfo2_, kVerdictLeft, kMargin + 62, textWidth, 36);
    MovePixels(lblInfo3_, kMargin, kMargin + 158, kPromptWidth, 48);
    lblInfo1_.SetFont("MS Sans Serif", 11);
    lblInfo2_.SetFont("MS Sans Serif", 18, true);
    lblInfo3_.SetFont("MS Sans Serif", 11);
    lblInfo1_.SetColours(kNavy, FormGrey);
    lblInfo3_.SetColours(kNavy, FormGrey);
  }

  void ShowVerdict(Verdict verdict) {
    const bool judged = verdict != Verdict::None;
    picResult_.SetVisible(judged);
    lblInfo1_.SetVisible(judged);
    lblInfo2_.SetVisible(judged);
    if (!judged) {
      lblInfo3_.SetTop((kHeight / 2 - 24) * kPixel);
      return;
    }
    const bool right = verdict == Verdict::Correct;
    picResult_.BackColor = FormGrey;
    picResult_.Cls();
    picResult_.DrawPicture(right ? "verdict_correct" : "verdict_incorrect", 0, 0);
    picResult_.SetAccessibleName(right ? "Correct" : "Incorrect");
    lblInfo2_.SetCaption(right ? "Correct" : "Incorrect");
    lblInfo2_.SetColours(right ? Rgb(0, 0, 255) : Rgb(255, 0, 0), FormGrey);
  }

  void MakeOptions() {
    int top = (kHeight - 4 * kButtonHeight - 3 * kButtonGap) / 2;
    for (const Option& option : kOptions) {
      MakeOption(option);
      MovePixels(cmdOption_[option.index], kButtonLeft, top, kButtonWidth, kButtonHeight);
      top += kButtonHeight + kButtonGap;
    }
    MakeOption({3, "See an example", "See an example"});
    cmdOption_[3].Move(0, 0, 0, 0);
    cmdOption_[3].SetVisible(false);
  }

  void MakeOption(const Option& option) {
    const int index = option.index;
    cmdOption_.MakeOne(index, "cmdOption", form_, option.caption);
    cmdOption_[index].SetAccessibleName(option.name);
    cmdOption_[index].SetFont("MS Sans Serif", 10, true);
    cmdOption_[index].OnClick = [this, index] {
      session.gMode = index + 1;
      form_.Close();
    };
  }

  platform::Form form_;
  platform::PictureBox picResult_;
  platform::Label lblInfo1_;
  platform::Label lblInfo2_;
  platform::Label lblInfo3_;
  ControlArray<platform::Button, 0, 4> cmdOption_;
};

}  // namespace

void ShowResultForm(Verdict verdict) {
  ResultForm(verdict).Show();
}

}  // namespace course
