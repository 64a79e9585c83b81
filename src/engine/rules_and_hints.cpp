#include "engine/rules_and_hints.h"

#include <memory>
#include <string>

#include "display/images.h"
#include "display/lesson_window.h"
#include "platform/picture.h"
#include "session/session.h"

namespace course {
namespace {

constexpr int kRulesSlot = 1;

// Rules are a help for practice: neither a test nor an explanation shows them.
bool InPractice() {
  return session.gMode <= mode::NewProblem;
}

const char* RulesCaption() {
  return session.gRulesShown == kTrue ? "Hide Rules and Reminders" : "Show Rules and Reminders";
}

bool InputIgnored() {
  return session.gInDelay == 1 || session.gInAnimation == 1;
}

// The stored pictures of the window of hints; it shows the second.
constexpr const char* kPicRulesGallery[] = {
    "", "gallery_laws_of_exponents", "gallery_order_of_operations", "gallery_inequality_flip"};
constexpr const char* kHints = kPicRulesGallery[2];

constexpr int kBelowPicture = 900;  // twips
constexpr int kCloseWidth = 1500;
constexpr int kCloseHeight = 495;

int WidthInTwips(const std::string& picture) {
  return platform::PictureExtent(picture).x * platform::TwipsPerPixelX;
}

int HeightInTwips(const std::string& picture) {
  return platform::PictureExtent(picture).y * platform::TwipsPerPixelY;
}

class RulesAndHintsForm final : public platform::Form {
 public:
  explicit RulesAndHintsForm(const std::string& picture)
      : Form("frmRulesAndHints", WidthInTwips(picture), HeightInTwips(picture) + kBelowPicture),
        picRulesAndHints_(*this, "picRulesAndHints"),
        cmdClose_(*this, "cmdClose", "Close") {
    SetCaption("Hints");
    picRulesAndHints_.Move(0, 0, WidthInTwips(picture), HeightInTwips(picture));
    picRulesAndHints_.DrawPicture(picture, 0, 0);
    picRulesAndHints_.SetAccessibleName("Hints");
    cmdClose_.Move((WidthInTwips(picture) - kCloseWidth) / 2,
                   HeightInTwips(picture) + (kBelowPicture - kCloseHeight) / 2, kCloseWidth,
                   kCloseHeight);
    cmdClose_.OnClick = cmdClose_Click;
    OnCloseBox = cmdClose_Click;
    SetNeutralButton(cmdClose_);
    Center();
  }

 private:
  static void cmdClose_Click() {
    frmPR->frmRulesAndHints.reset();
    frmPR->cmdShowRulesAndHints.SetVisible(true);
  }

  platform::PictureBox picRulesAndHints_;
  platform::Button cmdClose_;
};

// The list only shows: nothing in it is ever selected.
void KeepListUnselected() {
  frmPR->lstRules1.SetListIndex(-1);
  frmPR->cmdHidden.SetFocus();
}

}  // namespace

void ShowRulesPicture(int image, double row, double col) {
  if (session.gRulesShown != kTrue || !InPractice()) return picGalleryImageHide(kRulesSlot);
  picGalleryImagePrepare(kRulesSlot, image, row, col);
  picGalleryImageShow(kRulesSlot);
}

void ShowRulesButton() {
  frmPR->cmdShowRulesandReminders.SetCaption(RulesCaption());
  frmPR->cmdShowRulesandReminders.SetVisible(session.gHasRules == kTrue && InPractice());
}

void cmdShowRulesandReminders_Click() {
  session.gRulesShown = session.gRulesShown == kTrue ? kFalse : kTrue;
  frmPR->cmdShowRulesandReminders.SetCaption(RulesCaption());
  session.gProceed = 1;
  session.gRunAgain = 1;
  session.gRepeatProblem = 1;
}

void cmdShowRulesAndHints_Click() {
  frmPR->frmRulesAndHints = std::make_unique<RulesAndHintsForm>(kHints);
  frmPR->frmRulesAndHints->Show();
  frmPR->cmdShowRulesAndHints.SetVisible(false);
}

void UnloadRulesAndHints() {
  frmPR->frmRulesAndHints.reset();
  frmPR->cmdShowRulesAndHints.SetVisible(false);
}

void BindRules() {
  frmPR->cmdShowRulesandReminders.OnClick = [] {
    if (!InputIgnored()) cmdShowRulesandReminders_Click();
  };
  frmPR->cmdShowRulesAndHints.OnClick = [] {
    if (!InputIgnored()) cmdShowRulesAndHints_Click();
  };
  frmPR->lstRules1.OnClick = KeepListUnselected;
  frmPR->lstRules1.OnDblClick = KeepListUnselected;
  frmPR->lstRules1.OnGotFocus = [] { frmPR->cmdHidden.SetFocus(); };
}

}  // namespace course
