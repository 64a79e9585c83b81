#include "guidance/guidance_forms.h"

#include <string>

#include "guidance/form_frame.h"
#include "guidance/help_texts.h"
#include "guidance/support_details.h"
#include "platform/form.h"
#include "platform/look.h"
#include "platform/picture_box.h"
#include "platform/tab_control.h"
#include "session/course_name.h"

namespace course {
namespace {

using platform::Label;
using platform::look::MovePixels;
using platform::look::SetType;

// --- The program overview ------------------------------------------------------------------------

// Pixels.
constexpr int kHelpWidth = 720;
constexpr int kTabsHeight = 440;
constexpr int kHelpHeight = kTabsHeight + kFormButtonHeight + 3 * kFormMargin;
constexpr int kTabBarHeight = 40;
constexpr int kPagePadding = 20;

class HelpForm {
 public:
  HelpForm()
      : form("frmHelp", FormTwips(kHelpWidth), FormTwips(kHelpHeight)),
        sstabHelp_(form, "sstabHelp"),
        lblOverview_(MakePage("Overview"), "lblOverview", OverviewText()),
        lblMenu_(MakePage("Menu"), "lblMenu", MenuText()),
        lblLesson_(MakePage("Lessons"), "lblLesson", LessonText()),
        lblRecords_(MakePage("Records"), "lblRecords", RecordsText()),
        cmdOK_(form, "cmdOK", "&Close") {
    form.SetCaption("Program Overview");
    MovePixels(sstabHelp_, kFormMargin, kFormMargin, kHelpWidth - 2 * kFormMargin, kTabsHeight);
    sstabHelp_.SetFont("MS Sans Serif", 11, true);
    sstabHelp_.SetAccessibleName("Program Overview");
    for (Label* label : {&lblOverview_, &lblMenu_, &lblLesson_, &lblRecords_}) {
      MovePixels(*label, kPagePadding, kPagePadding, kHelpWidth - 2 * (kFormMargin + kPagePadding),
                 kTabsHeight - kTabBarHeight - 2 * kPagePadding);
      SetType(*label, 11, false, platform::look::kNavy, platform::look::kPaper);
    }
    MakeClosingButton(form, cmdOK_);
  }

  platform::Form form;

 private:
  platform::Frame& MakePage(const std::string& caption) {
    platform::Frame& page = sstabHelp_.AddPage(caption);
    page.SetColours(platform::look::kNavy, platform::look::kPaper);
    return page;
  }

  platform::TabControl sstabHelp_;
  Label lblOverview_;
  Label lblMenu_;
  Label lblLesson_;
  Label lblRecords_;
  platform::Button cmdOK_;
};

// --- Support and about ---------------------------------------------------------------------------

// Pixels.
constexpr int kSupportWidth = 520;
constexpr int kSupportHeight = 250;
constexpr int kAboutWidth = 408;  // the logo and its margins
constexpr int kLogoHeight = 240;
constexpr int kAboutHeight = kLogoHeight + 190;

class TechSupportForm {
 public:
  TechSupportForm()
      : form("frmTechSupport", FormTwips(kSupportWidth), FormTwips(kSupportHeight)),
        lblSupport1_(form, "lblSupport1",
                     "If something does not work, ask your teacher first, or whoever "
                     "installed the program.  Please have at hand what you did last and what "
                     "the program said."),
        lblSupport2_(
            form, "lblSupport2",
            "E-mail:  " + std::string(kSupportAddress) + "\nTelephone:  " + kSupportTelephone),
        cmdOK_(form, "cmdOK", "OK") {
    form.SetCaption("Technical Support");
    const int width = kSupportWidth - 2 * kFormMargin;
    MovePixels(lblSupport1_, kFormMargin, kFormMargin, width, 70);
    SetType(lblSupport1_, 12);
    MovePixels(lblSupport2_, kFormMargin, kFormMargin + 84, width, 56);
    SetType(lblSupport2_, 12, true);
    MakeClosingButton(form, cmdOK_);
  }

  platform::Form form;

 private:
  Label lblSupport1_;
  Label lblSupport2_;
  platform::Button cmdOK_;
};

class AboutForm {
 public:
  AboutForm()
      : form("frmAbout", FormTwips(kAboutWidth), FormTwips(kAboutHeight)),
        picLogo_(form, "picLogo"),
        lblSubject_(form, "lblSubject", kCourseName),
        lblSeries_(form, "lblSeries", kSeriesName),
        lblRelease_(form, "lblRelease", kReleaseName),
        cmdOK_(form, "cmdOK", "OK") {
    form.SetCaption("About " + std::string(kCourseName));
    const int width = kAboutWidth - 2 * kFormMargin;
    MovePixels(picLogo_, kFormMargin, kFormMargin, width, kLogoHeight);
    picLogo_.DrawPicture("logo", 0, 0);
    picLogo_.Refresh();
    MovePixels(lblSubject_, kFormMargin, kFormMargin + kLogoHeight + 16, width, 28);
    SetType(lblSubject_, 16, true);
    MovePixels(lblSeries_, kFormMargin, kFormMargin + kLogoHeight + 48, width, 22);
    SetType(lblSeries_, 12);
    MovePixels(lblRelease_, kFormMargin, kFormMargin + kLogoHeight + 72, width, 22);
    SetType(lblRelease_, 12);
    MakeClosingButton(form, cmdOK_);
  }

  platform::Form form;

 private:
  platform::PictureBox picLogo_;
  Label lblSubject_;
  Label lblSeries_;
  Label lblRelease_;
  platform::Button cmdOK_;
};

}  // namespace

void ShowHelp() {
  HelpForm().form.ShowModal();
}

void ShowTechSupportForm() {
  TechSupportForm().form.ShowModal();
}

void ShowAboutForm() {
  AboutForm().form.ShowModal();
}

}  // namespace course
