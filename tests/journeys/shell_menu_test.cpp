#include "display/grid.h"
#include "display/lesson_window.h"
#include "lessons/registry.h"
#include "mathkit/tutor_codes.h"
#include "shell/menu.h"
#include "shell/progress_marks.h"
#include "shell_fixture.h"
#include "support/expect_stop.h"

namespace course::testing {
namespace {

TEST_F(MenuTest, StartsUpInOrder) {
  std::vector<std::string> order;
  startUp.ReadSettings = [&] {
    EXPECT_EQ(session.gAnimSpeedOption, 1);
    EXPECT_EQ(session.gTestPassPercent, 60);
    EXPECT_EQ(screenState.gRightColumn, 40);
    order.push_back("settings");
    return settings;
  };
  startUp.Login = [&] {
    EXPECT_EQ(session.gDataPath, "/records/");
    EXPECT_EQ(session.gUnitCount, 0) << "the catalogue comes behind the login";
    // What deleting a student in the first login does.
    DrawProgressMarks();
    session.gRecordKeepingEnabled = 1;
    session.gStudentName = "Ada";
    order.push_back("login");
  };
  startUp.ReadProgress = [&] {
    EXPECT_EQ(session.gUnitCount, 12);
    order.push_back("progress");
  };
  screenState.gRightColumn = 0;
  session.gTestPassPercent = 0;
  Load();
  EXPECT_EQ(order, (std::vector<std::string>{"settings", "login", "progress"}));
  EXPECT_EQ(frmMenu->lblStudent.Caption(), "Student: \nAda");
  EXPECT_TRUE(frmMenu->lblStudent.Visible());
  EXPECT_EQ(frmMenu->lblTestPassPercent.Caption(), "Test Passing Percent: 60%");
  EXPECT_EQ(frmMenu->lblTestPassPercent.Left(), 9570);
  EXPECT_EQ(frmMenu->lblTestPassPercent.Top(), 9250);
  EXPECT_EQ(frmMenu->mnuHelpAbout->Caption(), "&About Algebra 1");
  EXPECT_TRUE(frmMenu->form.Shown());
}

TEST_F(MenuTest, ANetworksRecordsLieAboveTheProgram) {
  Load(3);
  EXPECT_EQ(session.gDataPath, "/records/../");
}

TEST_F(MenuTest, ListsTwelveUnitsWhoseNumbersLineUp) {
  Load();
  ASSERT_EQ(frmMenu->lstChapter.ListCount(), 12);
  EXPECT_EQ(frmMenu->lstChapter.List(8), " 9 - Systems of Linear Equations");
  EXPECT_EQ(frmMenu->lstChapter.List(9), "10 - Inequalities");
  for (int i = 0; i < 12; ++i) EXPECT_EQ(frmMenu->lstChapter.List(i).substr(2, 3), " - ") << i;
}

TEST_F(MenuTest, SelectsAUnitsFirstLessonOnce) {
  Load();
  int clicks = 0;
  frmMenu->lstChapter.OnClick = [&] {
    ++clicks;
    frmMenu->DisplayLessonData();
  };
  frmMenu->BuildUnitList();
  EXPECT_EQ(clicks, 1);
  for (int unit = 1; unit <= 12; ++unit) {
    if (unit > 1) frmMenu->lstLesson.SetListIndex(2);
    frmMenu->lstChapter.SetListIndex(unit - 1);
    EXPECT_EQ(frmMenu->lblLessons2.Caption(), std::to_string(unit));
    EXPECT_EQ(frmMenu->lblLessons3.Caption(), session.gUnitName[unit]);
    ASSERT_EQ(frmMenu->lstLesson.ListCount(), session.gLessonCount[unit]);
    for (int row = 1; row <= session.gLessonCount[unit]; ++row)
      EXPECT_EQ(frmMenu->lstLesson.List(row - 1), session.gLessonTitle[unit][row]);
    EXPECT_EQ(frmMenu->lstLesson.ListIndex(), 0);
  }
  EXPECT_EQ(clicks, 12);
}

// What the installation and the login leave of the entries, when every form is there.
struct Offer {
  int gversion;
  bool loggedIn;
  bool rosters;      // names and records
  bool progress;     // the marks' own entry
  bool test;         // diagnostic
  bool results;      // enabled
  bool resultsSeen;  // with their separator

  friend void PrintTo(const Offer& offer, std::ostream* out) {
    *out << "version " << offer.gversion << (offer.loggedIn ? " logged in" : " without a login");
  }
};

class MenuOffer : public MenuTest, public ::testing::WithParamInterface<Offer> {};

TEST_P(MenuOffer, DependsOnVersionAndLogin) {
  const Offer& offer = GetParam();
  OfferAllForms();
  if (offer.loggedIn) LogIn("Ada");
  Load(offer.gversion);
  const MainMenu& menu = *frmMenu;
  EXPECT_EQ(menu.mnuRecordsStudents->Enabled(), offer.rosters);
  EXPECT_EQ(menu.mnuRecordsRecords->Enabled(), offer.rosters);
  EXPECT_EQ(menu.mnuRecordsProgress->Enabled(), offer.progress);
  EXPECT_EQ(menu.mnuDiagnosticsTest->Enabled(), offer.test);
  EXPECT_EQ(menu.mnuDiagnosticsResults->Visible(), offer.resultsSeen);
  EXPECT_EQ(menu.mnuDiagnosticsSeparator1->Visible(), offer.resultsSeen);
  EXPECT_EQ(menu.mnuDiagnosticsResults->Enabled() && offer.resultsSeen, offer.results);
  EXPECT_TRUE(menu.mnuRecordsSessionSee->Enabled());
  EXPECT_TRUE(menu.mnuHelpProgramOverview->Enabled());
  EXPECT_FALSE(menu.mnuHelpProgramTour->Visible());
  EXPECT_FALSE(menu.mnuHelpSeparator2->Visible());
  EXPECT_EQ(menu.picLegend.Visible(), offer.loggedIn);
}

INSTANTIATE_TEST_SUITE_P(Versions, MenuOffer,
                         ::testing::Values(Offer{1, false, false, false, false, false, true},
                                           Offer{2, true, true, true, true, true, true},
                                           Offer{2, false, true, false, false, false, true},
                                           Offer{3, true, false, true, true, false, false},
                                           Offer{3, false, false, false, false, false, false}));

TEST_F(MenuTest, StopsAtAnUnknownVersion) {
  const std::string message = "Incorrect value for gversion% or gRecordKeepingEnabled%";
  ExpectStop(message, [&] { Load(4); });
  startUp.Login = [] { session.gRecordKeepingEnabled = 2; };
  ExpectStop(message, [&] { Load(2); });
}

TEST_F(MenuTest, DisablesEntriesWhoseFormsAreMissing) {
  LogIn("Ada");
  Load();
  for (const char* entry : {"mnuRecordsStudents", "mnuRecordsRecords", "mnuRecordsSessionSee",
                            "mnuRecordsSessionClear", "mnuDiagnosticsTest", "mnuDiagnosticsResults",
                            "mnuHelpProgramOverview", "mnuHelpTechSupport", "mnuHelpAbout"}) {
    EXPECT_FALSE(FindMenuItem(entry).Enabled()) << entry;
  }
  EXPECT_THROW(FindMenuItem("mnuFileExit").Click(), ProgramEnded);
  EXPECT_THROW(frmMenu->form.ClickCloseBox(), ProgramEnded);
}

TEST_F(MenuTest, ChecksTheScreenOnceAndAfterItsVersion) {
  int alerts = 0;
  startUp.ShowDpiAlert = [&] {
    EXPECT_EQ(session.gWindowsVersionName, "NOTA");
    ++alerts;
  };
  screen = {.dotsPerInch = 101, .width = 800, .systemVersion = "NOTA"};
  user.Answer(platform::Answer::Ok);
  Load();
  frmMenu->Form_Activate();
  frmMenu->Form_Activate();
  EXPECT_EQ(alerts, 1);
  ASSERT_EQ(user.messages.size(), 1u);
  EXPECT_EQ(user.messages[0].title, "Screen Resolution Problem");
  EXPECT_EQ(user.messages[0].text.substr(0, 47),
            "The screen resolution setting for your monitor\n");
}

TEST_F(MenuTest, IsContentWithAnOrdinaryScreen) {
  startUp.ShowDpiAlert = [] { FAIL(); };
  screen = {.dotsPerInch = 100, .width = 801, .systemVersion = "NOTA"};
  Load();
  frmMenu->Form_Activate();
  EXPECT_TRUE(user.messages.empty());
}

TEST_F(MenuTest, RunsALessonBeforeTheDisabledMenu) {
  Load();
  Choose(10, 1);
  user.At("PageEnd").Do("look", [] {
    EXPECT_FALSE(frmMenu->form.Enabled());
    EXPECT_EQ(session.gUnitNum, 10);
    EXPECT_EQ(session.gLessonNum, 1);
    EXPECT_EQ(session.gChapterTestType, 1);
    EXPECT_EQ(frmPR->form.Caption(), "Simple Inequalities");
  });
  user.ClickRefused("cmdStart").Press(27);
  EXPECT_TRUE(frmMenu->cmdStart.Click());
  EXPECT_EQ(frmPR, nullptr);
  EXPECT_TRUE(frmMenu->form.Enabled());

  session.gChapterTestType = 0;
  user.At("PageEnd").Menu("mnuFileReturn");
  EXPECT_TRUE(frmMenu->lstLesson.DblClick());
  EXPECT_EQ(session.gChapterTestType, 1);
  EXPECT_EQ(frmMenu->lstChapter.ListIndex(), 9);
  EXPECT_EQ(frmMenu->lstLesson.ListIndex(), 0);
}

TEST_F(MenuTest, ComesBackAtOnceFromATitleWithoutAScript) {
  Load();
  int saved = 0;
  engineHooks.SavePracticeRecord = [&] {
    ++saved;
    EXPECT_EQ(session.gProblemsAttempted, 0);
  };
  int started = 0;
  for (int unit = 1; unit <= session.gUnitCount; ++unit) {
    for (int row = 1; row <= session.gLessonCount[unit]; ++row) {
      if (MakeLesson(session.gLessonTitle[unit][row])) continue;
      Choose(unit, row);
      if (row == session.gLessonCount[unit]) user.At("frmChapterTestStart").Click("cmdCancel");
      ASSERT_TRUE(frmMenu->cmdStart.Click());
      ++started;
      EXPECT_EQ(frmMenu->lstChapter.ListIndex(), unit - 1);
      EXPECT_EQ(frmMenu->lstLesson.ListIndex(), row - 1);
      EXPECT_EQ(session.gChapterTest, 0);
      EXPECT_EQ(session.gHideNav, kFalse);
      EXPECT_EQ(frmPR, nullptr);
      EXPECT_TRUE(frmMenu->form.Enabled());
    }
  }
  EXPECT_EQ(saved, started);
}

TEST_F(MenuTest, OpensTheWritersGuideByItsHiddenKeyOnly) {
  Load();
  EXPECT_FALSE(frmMenu->Form_KeyPress('x'));
  EXPECT_EQ(session.gChosenTitle, "");
  user.At("frmDocs").Click("cmdClose");
  EXPECT_TRUE(frmMenu->Form_KeyPress(254));
  EXPECT_EQ(session.gChosenTitle, "OurDocumentation");
  EXPECT_EQ(session.gShowDocumentation, kFalse);
}

// Whether a pixel of the colour stands in a row of the lessons' marks, from 1.
bool HasMark(int row, platform::Colour colour) {
  const platform::PictureBox& column = frmMenu->picProgress2;
  const int height = column.PixelHeight() / kLessonMarkRows;
  for (int y = (row - 1) * height; y < row * height; ++y)
    for (int x = 0; x < column.PixelWidth(); ++x)
      if (column.Pixel(x, y) == colour) return true;
  return false;
}

TEST_F(MenuTest, DrawsTheMarksOfTheSelectedUnit) {
  using platform::colour::Blue;
  using platform::colour::Red;
  LogIn("Ada");
  startUp.ReadProgress = [] {
    session.gProgressCodes[3][1] = "C";
    session.gProgressCodes[3][2] = "T";
    session.gProgressCodes[3][8] = "W";
    session.gProgressCodes[3][0] = "W";
  };
  Load();
  EXPECT_FALSE(HasMark(1, Blue));
  frmMenu->lstChapter.SetListIndex(2);
  EXPECT_TRUE(HasMark(1, Blue));
  EXPECT_FALSE(HasMark(1, Red));
  EXPECT_TRUE(HasMark(2, Red));
  EXPECT_FALSE(HasMark(3, Red));
  EXPECT_TRUE(HasMark(8, Red));
  EXPECT_EQ(
      frmMenu->picProgress2.AccessibleText(),
      "Like Terms: completed\nSimplifying Expressions: tested\nUnit Test: worked, no test yet");
  // A stroke may not reach into the row above its own.
  session.gProgressCodes[3] = {};
  session.gProgressCodes[3][2] = "C";
  DrawProgressMarks();
  EXPECT_TRUE(HasMark(2, Blue));
  EXPECT_FALSE(HasMark(1, Blue));
  EXPECT_FALSE(HasMark(3, Blue));

  session.gProgressCodes[3][1] = "X";
  ExpectStop("DrawProgressMarks: gProgressCodes(3, 1) is \"X\"", [] { DrawProgressMarks(); });
  session.gProgressCodes[3][1] = "";
  session.gProgressCodes[5][0] = "T";
  ExpectStop("DrawProgressMarks: gProgressCodes(5, 0) is \"T\"", [] { DrawProgressMarks(); });
}

TEST_F(MenuTest, ShowsTheMarksOfALessonWhenItIsLeft) {
  LogIn("Ada");
  Load();
  Choose(10, 1);
  engineHooks.SavePracticeRecord = [] { session.gProgressCodes[10][1] = "W"; };
  user.At("PageEnd").Press(27);
  EXPECT_TRUE(frmMenu->cmdStart.Click());
  EXPECT_TRUE(HasMark(1, platform::colour::Red));
  EXPECT_EQ(frmMenu->picProgress2.AccessibleText(), "Simple Inequalities: worked, no test yet");
}

TEST_F(MenuTest, HidesTheMarksAtTheStudentsWish) {
  LogIn("Ada");
  Load();
  const auto shown = [] {
    return std::vector<bool>{
        frmMenu->picProgress2.Visible(),       frmMenu->picLegend.Visible(),
        frmMenu->lblLessons4.Visible(),        frmMenu->linProgress.Visible(),
        frmMenu->lblTestPassPercent.Visible(), frmMenu->picProgress1.Visible()};
  };
  const std::vector<bool> all = {true, true, true, true, true, false};
  EXPECT_EQ(shown(), all);
  EXPECT_EQ(frmMenu->mnuRecordsProgress->Caption(), "Hide Student Progress Codes");
  EXPECT_TRUE(frmMenu->mnuRecordsProgress->Click());
  EXPECT_EQ(shown(), std::vector<bool>(6, false));
  EXPECT_EQ(session.gShowProgressCodes, kFalse);
  EXPECT_EQ(frmMenu->mnuRecordsProgress->Caption(), "Show Student Progress Codes");
  EXPECT_TRUE(frmMenu->mnuRecordsProgress->Click());
  EXPECT_EQ(session.gShowProgressCodes, kTrue);
  EXPECT_EQ(shown(), all);
}

TEST(CourseName, TakesSmallerTypeWhenItIsLong) {
  EXPECT_EQ(HeadingFontSize(std::string(27, 'x')), 24);
  EXPECT_EQ(HeadingFontSize(std::string(28, 'x')), 22);
}

}  // namespace
}  // namespace course::testing
