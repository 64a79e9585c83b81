#include "login_fixture.h"
#include "shell/diagnostics_binding.h"
#include "support/expect_stop.h"

namespace course::testing {
namespace {

TEST_F(LoginTest, AFirstUserIsWelcomedEntersNamesAndPicksHimself) {
  PassLogo();
  user.At("frmWelcome").Do("read", [] {
    EXPECT_EQ(LabelText("lblWelcome"), "Welcome to ALGEBRA 1");
  });
  user.Click("cmdOK").At("frmStudents").Do("look", [] {
    EXPECT_EQ(Names("lstStudents"), Strings{});
  });
  AddStudent("Zoe");
  AddStudent("  Ada Byron ");
  user.At("frmStudents").Click("cmdMenu");
  user.At("frmLogin").Do("look", [] {
    EXPECT_EQ(Names("lstStudents"), (Strings{"Ada Byron", "Zoe"}));
    EXPECT_EQ(LabelText("lblInstruction"),
              "In order to keep records for a student, select the student's name and click "
              "\"Login\".");
  });
  user.Select("lstStudents", 0).Click("cmdLogin");
  Load();

  EXPECT_EQ(session.gRecordKeepingEnabled, 1);
  EXPECT_EQ(session.gClassName, "Non-Network");
  EXPECT_EQ(session.gClassNum, 99);
  EXPECT_EQ(session.gStudentName, "Ada Byron            ");
  EXPECT_EQ(session.gStudentNum, 2);
  EXPECT_EQ(folder.Bytes("STUDENTS.DAT"),
            "Zoe                  1 99"
            "Ada Byron            2 99");
  EXPECT_EQ(frmMenu->lblStudent.Caption(), "Student: \nAda Byron");
  EXPECT_TRUE(frmMenu->mnuRecordsProgress->Enabled());
  EXPECT_TRUE(frmMenu->mnuRecordsStudents->Enabled());
  EXPECT_TRUE(frmMenu->picLegend.Visible());
}

// An installation that is new, or that was there before results were kept, needs nothing else.
TEST_F(LoginTest, TheFirstStartMakesTheFileOfDiagnosticResults) {
  BindDiagnostics(startUp);
  PutStudents({"Ada"});
  PassLogo();
  user.At("frmLogin").Select("lstStudents", 0).Click("cmdLogin");
  Load();
  EXPECT_EQ(folder.Bytes("Diag.dat"), "");
  user.At("frmDiagnostics").Click("cmdMenu");
  EXPECT_TRUE(frmMenu->mnuDiagnosticsResults->Click());
}

TEST_F(LoginTest, WithoutRecordsNothingIsMade) {
  Load(1);
  EXPECT_EQ(folder.Names(), Strings{});
}

TEST_F(LoginTest, AStudentFindsHisProgressOfEarlierDays) {
  PutStudents({"Ada", "Zoe"});
  const std::string ofAda = "C299010115260101004003005";
  const std::string worked = "C299020115260102004003005";
  const std::string passed = "C299020115260153005003004";
  folder.Put("RECORDS.DAT", ofAda + worked + passed);
  PassLogo();
  user.At("frmLogin").Select("lstStudents", 1).Click("cmdLogin");
  Load();
  EXPECT_EQ(session.gProgressCodes[1][1], "");
  EXPECT_EQ(session.gProgressCodes[1][2], "W");
  EXPECT_EQ(session.gProgressCodes[1][3], "C");
  EXPECT_EQ(session.gProgressCodes[1][0], "W");
}

TEST_F(LoginTest, LoginWantsASelectionFirst) {
  PutStudents({"Ada"});
  PassLogo();
  user.At("frmLogin").Click("cmdLogin").Answer(platform::Answer::Ok);
  user.At("frmLogin").Press(13).Answer(platform::Answer::Ok);
  user.At("frmLogin").Select("lstStudents", 0).Click("cmdLogin");
  Load();
  ASSERT_EQ(user.messages.size(), 2u);
  EXPECT_EQ(user.messages[0].text, "Be sure to select a student before clicking the LOGIN button");
  EXPECT_EQ(user.messages[0].title, "Login Warning");
  EXPECT_EQ(user.messages[0].icon, platform::Icon::Warning);
  EXPECT_EQ(session.gStudentNum, 1);
}

TEST_F(LoginTest, WhoSkipsWorksWithoutRecords) {
  PutStudents({"Ada"});
  const std::string roster = folder.Bytes("STUDENTS.DAT");
  for (int way = 0; way < 3; ++way) {
    PassLogo();
    user.At("frmLogin").Select("lstStudents", 0);
    user.At("frmLogin");
    if (way == 0) user.Click("cmdSkip");
    if (way == 1) user.Press(27);
    if (way == 2) user.CloseBox();
    Load();
    EXPECT_EQ(session.gRecordKeepingEnabled, 0);
    EXPECT_EQ(session.gStudentName, "");
    EXPECT_EQ(session.gClassName, "");
    EXPECT_EQ(session.gStudentNum, 0);
    EXPECT_FALSE(frmMenu->mnuRecordsProgress->Enabled());
    EXPECT_FALSE(frmMenu->mnuDiagnosticsTest->Enabled());
    EXPECT_FALSE(frmMenu->lblStudent.Visible());
    EXPECT_FALSE(frmMenu->picLegend.Visible());
    frmMenu.reset();
  }
  EXPECT_EQ(folder.Bytes("STUDENTS.DAT"), roster);
  EXPECT_EQ(folder.Bytes("RECORDS.DAT"), "(none)");
}

TEST_F(LoginTest, NinetyNineStudentsHavePlaceAndAHundredHaveNot) {
  Strings names;
  for (int i = 1; i <= 99; ++i) names.push_back("Student " + Digits(i, 2));
  PutStudents(names);
  PassLogo();
  user.At("frmLogin").Do("look", [&] { EXPECT_EQ(Names("lstStudents"), names); });
  user.Select("lstStudents", 98).Click("cmdLogin");
  Load();
  EXPECT_EQ(session.gStudentNum, 99);

  // A hundredth name gets what its number leaves in two places, and no login gets past it.
  user.At("frmStudents").Click("cmdStudent(1)");
  user.TypeIn("txtName", "One too many").Click("cmdOK").Click("cmdMenu");
  EXPECT_TRUE(frmMenu->mnuRecordsStudents->Click());
  EXPECT_EQ(folder.Bytes("STUDENTS.DAT").substr(99 * 25), "One too many         1099");
  frmMenu.reset();
  PassLogo();
  ExpectStop("Failed in attempt to read file STUDENTS.DAT", [this] { Load(); });
}

TEST_F(LoginTest, ARosterThatCannotBeReadEndsTheProgram) {
  std::filesystem::create_directory(folder.Path() + "students.dat");
  PassLogo();
  ExpectStop("Failed in attempt to read file STUDENTS.DAT", [this] { Load(); });
}

TEST_F(LoginTest, ADamagedRosterIsShownAsItIs) {
  const std::string breaks = "\r\n\r\n\r\n\r\n\r\n\r\n\r\n\r\n\r\n\r\n\r";
  const std::string nothing(25, '\0');
  folder.Put("STUDENTS.DAT", nothing + breaks + "8 99" + "Ada                  x 99" + breaks);
  PassLogo();
  user.At("frmLogin").Do("look", [] {
    const auto& list = dynamic_cast<platform::ListBox&>(FindControl("lstStudents"));
    EXPECT_EQ(list.ListCount(), 4);  // a torn record of more than half its length counts
  });
  user.Select("lstStudents", 2).Click("cmdLogin");
  Load();
  EXPECT_EQ(session.gStudentName, breaks);
  EXPECT_EQ(session.gStudentNum, 8);
}

TEST_F(LoginTest, WithoutRecordsNobodyIsAsked) {
  Load(1);
  EXPECT_EQ(session.gRecordKeepingEnabled, 0);
  EXPECT_FALSE(frmMenu->mnuRecordsStudents->Enabled());
  EXPECT_EQ(folder.Bytes("STUDENTS.DAT"), "(none)");
}

}  // namespace
}  // namespace course::testing
