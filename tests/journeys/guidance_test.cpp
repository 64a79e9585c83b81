// The help, the alert about the screen, support and about.
#include "guidance/dpi_alert_form.h"
#include "guidance/dpi_instructions.h"
#include "guidance/guidance_forms.h"
#include "platform/form_inspection.h"
#include "platform/tab_control.h"
#include "shell/guidance_binding.h"
#include "support/course_fixture.h"
#include "support/test_printer.h"

namespace course::testing {
namespace {

class GuidanceTest : public CourseTest {
 protected:
  template <class T>
  static T& The(const std::string& name) {
    return dynamic_cast<T&>(FindControl(name));
  }
  TestPrinter printer;
};

TEST_F(GuidanceTest, TheOverviewHasATextOnEachOfItsFourTabs) {
  user.At("frmHelp").Do("read the tabs", [] {
    auto& tabs = The<platform::TabControl>("sstabHelp");
    ASSERT_EQ(tabs.PageCount(), 4);
    const std::pair<const char*, const char*> pages[] = {{"lblOverview", "Welcome to Algebra 1."},
                                                         {"lblMenu", "Start Lesson"},
                                                         {"lblLesson", "PRACTICE PROBLEMS"},
                                                         {"lblRecords", "student file"}};
    for (int page = 0; page < 4; ++page) {
      tabs.SetPage(page);
      const auto& [label, words] = pages[page];
      EXPECT_NE(The<platform::Label>(label).Caption().find(words), std::string::npos) << label;
    }
  });
  user.Click("cmdOK");
  ShowHelp();
}

TEST_F(GuidanceTest, AnUnknownSystemMustBeChosenBeforeItsStepsArePrinted) {
  session.gWindowsVersionName = "NOTA";
  user.At("frmDPIAlert").Do("choose Vista", [] {
    auto& print = The<platform::Button>("cmdPrint");
    for (const char* option : {"optWinVersion(1)", "optWinVersion(2)", "optWinVersion(3)"})
      EXPECT_FALSE(The<platform::OptionButton>(option).Value());
    EXPECT_FALSE(print.Click());
    The<platform::OptionButton>("optWinVersion(2)").Click();
    EXPECT_TRUE(print.Enabled());
    EXPECT_NE(The<platform::Label>("lblTop").Caption().find(
                  "shown for Windows Vista.  You can view the steps for Windows XP or Windows 7"),
              std::string::npos);
  });
  user.Click("cmdClose");
  ShowDpiAlert();
}

TEST_F(GuidanceTest, TheSystemsStepsArePrintedAfterTheQuestion) {
  session.gWindowsVersionName = "XP";
  user.At("frmDPIAlert").Click("cmdPrint");
  user.Answer(platform::Answer::Cancel);
  user.At("frmDPIAlert").Click("cmdPrint");
  user.Answer(platform::Answer::Ok);
  user.At("frmPrintPreview").Click("cmdPrint");
  user.At("frmDPIAlert").Click("cmdClose");
  ShowDpiAlert();
  ASSERT_EQ(printer.ended, 1);
  const std::vector<std::string> lines = printer.Lines(0);
  EXPECT_EQ(lines.front(), "You don't want to be running one of the Sumwright programs when you");
  EXPECT_EQ(lines.back(), "       Sumwright program again.  It should run successfully.");
  EXPECT_NE(std::ranges::find(lines, "Normal size (96 DPI)"), lines.end());
}

// The keywords are bold and stand where the line has them: each part begins where the one before
// ends.
TEST_F(GuidanceTest, KeywordsArePrintedBoldInTheirPlace) {
  for (int version = 1; version <= kDpiVersions; ++version) {
    const platform::PrintDocument document = DpiInstructions(version);
    ASSERT_EQ(document.pages.size(), 1u);
    const platform::Page& page = document.pages.front();
    EXPECT_GT(std::ranges::count_if(page, &platform::PageText::bold), 3) << version;
    for (std::size_t i = 1; i < page.size(); ++i) {
      if (page[i].y != page[i - 1].y) continue;
      EXPECT_NEAR(page[i].x, page[i - 1].x + platform::PrintedWidth(document, page[i - 1].text),
                  0.01)
          << page[i].text;
    }
  }
}

TEST_F(GuidanceTest, KeywordsAreAsBoldOnTheScreenAsOnPaper) {
  const char* const systems[] = {"XP", "VISTA", "7"};
  for (int version = 1; version <= kDpiVersions; ++version) {
    session.gWindowsVersionName = systems[version - 1];
    user.At("frmDPIAlert").Do("look", [version] {
      const std::vector<std::string> bold =
          platform::inspection::BoldParts(The<platform::Label>("lblTop"));
      const platform::PrintDocument paper = DpiInstructions(version);
      for (const platform::PageText& text : paper.pages.front())
        EXPECT_EQ(text.bold, std::ranges::count(bold, text.text) > 0) << text.text;
      EXPECT_EQ(The<platform::Label>("lblTop").Caption().find('|'), std::string::npos);
    });
    user.Click("cmdClose");
    ShowDpiAlert();
  }
}

TEST_F(GuidanceTest, TheMenuOffersTheFormsAndTheAlertOpensAboveAHundredDotsAnInch) {
  for (const int dots : {96, 100, 101}) {
    StartUp startUp;
    startUp.ReadSettings = [] { return platform::InstallationSettings{}; };
    startUp.ReadScreen = [dots] { return ScreenFacts{dots, 1024, "7"}; };
    BindGuidance(startUp);
    LoadMenu(startUp);
    if (dots > 100) user.At("frmDPIAlert").Click("cmdClose");
    frmMenu->Form_Activate();
    EXPECT_TRUE(frmMenu->mnuHelpProgramOverview->Enabled());
    EXPECT_FALSE(frmMenu->mnuHelpProgramTour->Visible());
    frmMenu.reset();
  }
}

}  // namespace
}  // namespace course::testing
