// The teacher looks at, prints and erases the results of diagnostic tests.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <string>
#include <vector>

#include "platform/form.h"
#include "platform/printer.h"
#include "records/diagnostic_forms.h"
#include "shell/diagnostics_binding.h"
#include "support/expect_stop.h"
#include "support/record_fixture.h"
#include "support/test_printer.h"

namespace course {
namespace {

using platform::Answer;
using testing::FindControl;
using Lines = std::vector<std::string>;

// A record with the first questions answered wrongly.
std::string Record(const std::string& student, int wrong,
                   const std::string& classAndCode = "C299") {
  return classAndCode + student + "050312" + std::string(wrong, 'A') +
         std::string(30 - wrong, 'B') + std::string(30, 'B');
}

std::string Student(std::string name, std::string number) {
  name.resize(21, ' ');
  number.resize(2, ' ');
  return name + number + "99";
}

platform::ListBox& List(const std::string& name) {
  return dynamic_cast<platform::ListBox&>(FindControl(name));
}

Lines Texts(const platform::ListBox& list) {
  Lines lines;
  for (int i = 0; i < list.ListCount(); ++i) lines.push_back(list.List(i));
  return lines;
}

// Which of the six buttons can be pressed: "all" and "selected" as display, print, erase.
std::string Offered() {
  std::string offered;
  for (const char* const row : {"cmdAll", "cmdSelected"})
    for (const char* const index : {"(0)", "(1)", "(2)"})
      offered += FindControl(row + std::string(index)).CanBeClicked() ? 'x' : '-';
  return offered;
}

class DiagnosticsTest : public testing::RecordsTest {
 protected:
  void SetUp() override {
    RecordsTest::SetUp();
    folder.Put("STUDENTS.DAT", Student("Zoe Young", "3") + Student("Ann Smith", "12"));
    folder.Put("Diag.dat", Record("03", 2) + Record("05", 0) + Record("12", 30));
  }
  std::string Diag() const { return folder.Bytes("Diag.dat"); }

  testing::TestPrinter printer;
};

TEST_F(DiagnosticsTest, TheListFollowsTheFileAndHidesTheRecords) {
  user.At("frmDiagnostics").Do("look", [] {
    const Lines items = Texts(List("lstStudents"));
    ASSERT_EQ(items.size(), 3u);
    EXPECT_EQ(items[0], "Zoe Young" + std::string(41, ' ') + Record("03", 2));
    EXPECT_EQ(items[1], std::string(50, ' ') + Record("05", 0)) << "no longer on the roster";
    EXPECT_EQ(items[2], "Ann Smith" + std::string(41, ' ') + Record("12", 30));
    EXPECT_EQ(List("lstStudents").ListIndex(), -1);
    EXPECT_EQ(Offered(), "xxx---");
  });
  user.Select("lstStudents", 1);
  user.Do("look", [] { EXPECT_EQ(Offered(), "xxxxxx"); });
  user.Click("cmdMenu");
  ShowDiagnostics();
}

TEST_F(DiagnosticsTest, WithoutResultsNothingIsOffered) {
  folder.Put("Diag.dat", "");
  user.Do("look", [] {
    EXPECT_EQ(List("lstStudents").ListCount(), 0);
    EXPECT_EQ(Offered(), "------");
  });
  user.Press(13);  // its button is disabled
  user.CloseBox();
  ShowDiagnostics();
}

TEST_F(DiagnosticsTest, OneReportIsShown) {
  const Lines report = DiagnosticReport({Record("12", 30), "Ann Smith"});
  const auto look = [&report] { EXPECT_EQ(Texts(List("lstRecords")), report); };
  user.Select("lstStudents", 2).Click("cmdSelected(0)");
  user.At("frmDisplayDiagnostics").Do("look", look);
  user.Click("cmdOK");
  user.At("frmDiagnostics").DblClick("lstStudents");
  user.At("frmDisplayDiagnostics").Do("look", look);
  user.Press(27);
  user.At("frmDiagnostics").Press(13);
  user.At("frmDisplayDiagnostics").CloseBox();
  user.At("frmDiagnostics").Press(27);
  ShowDiagnostics();
}

TEST_F(DiagnosticsTest, AllReportsAreShownInTheOrderOfTheList) {
  user.Click("cmdAll(0)");
  user.At("frmDisplayDiagnostics").Do("look", [] {
    const Lines lines = Texts(List("lstRecords"));
    Lines students;
    for (const std::string& line : lines)
      if (line.starts_with("Student: ")) students.push_back(line.substr(9));
    EXPECT_EQ(students, (Lines{"Zoe Young", "", "Ann Smith"}));
    EXPECT_EQ(std::count(lines.begin(), lines.end(), std::string(94, '=')), 4);
  });
  user.Click("cmdOK").Click("cmdMenu");
  ShowDiagnostics();
}

TEST_F(DiagnosticsTest, ErasingOneAsksAndComparesTheNumberAlone) {
  folder.Put("Diag.dat",
             Record("03", 2) + Record("12", 1) + Record("03", 9, "C140") + Record("05", 4));
  const std::string before = Diag();
  user.Select("lstStudents", 0).Click("cmdSelected(2)").Answer(Answer::No);
  user.Do("look", [&] {
    EXPECT_EQ(Diag(), before);
    EXPECT_EQ(Offered(), "xxxxxx");
  });
  user.Click("cmdSelected(2)").Answer(Answer::Yes);
  user.Do("look", [this] {
    EXPECT_EQ(Diag(), Record("12", 1) + Record("05", 4));
    EXPECT_EQ(folder.Bytes("Diag.TMP"), Diag()) << "the work file stays";
    EXPECT_EQ(List("lstStudents").ListCount(), 2);
    EXPECT_EQ(Offered(), "xxx---");
  });
  user.Click("cmdMenu");
  ShowDiagnostics();
  ASSERT_EQ(user.messages.size(), 2u);
  EXPECT_EQ(user.messages[1].text,
            "Zoe Young\n\n"
            "Are you sure you want to erase this student's Diagnostic Test results?");
  EXPECT_EQ(user.messages[1].buttons, platform::Buttons::YesNo);
}

TEST_F(DiagnosticsTest, ErasingAllAsks) {
  const std::string before = Diag();
  user.Click("cmdAll(2)").Answer(Answer::No);
  user.Do("look", [&] { EXPECT_EQ(Diag(), before); });
  user.Click("cmdAll(2)").Answer(Answer::Yes);
  user.Do("look", [this] {
    EXPECT_EQ(Diag(), "");
    EXPECT_EQ(List("lstStudents").ListCount(), 0);
    EXPECT_EQ(Offered(), "------");
  });
  user.Click("cmdMenu");
  ShowDiagnostics();
  EXPECT_EQ(user.messages[0].text,
            "Are you sure you want to erase the Diagnostic Test results for ALL students?");
}

TEST_F(DiagnosticsTest, EachStudentIsPrintedOnTwoSheets) {
  user.Click("cmdAll(1)").At("frmPrintPreview").Click("cmdPrint");
  user.At("frmDiagnostics").Click("cmdMenu");
  ShowDiagnostics();
  EXPECT_EQ(printer.printed.face, "Courier New");
  EXPECT_EQ(printer.printed.orientation, platform::Orientation::Portrait);
  ASSERT_EQ(printer.printed.pages.size(), 6u);
  for (int page = 0; page < 6; ++page) {
    EXPECT_EQ(printer.Lines(page)[1],
              std::string(21, ' ') + "Page " + std::to_string(page % 2 + 1) + " of 2");
    EXPECT_EQ(printer.Lines(page)[3], page < 2   ? "Student: Zoe Young"
                                      : page < 4 ? "Student: "
                                                 : "Student: Ann Smith");
  }
}

TEST_F(DiagnosticsTest, WhatIsPrintedStaysWithinTheMargins) {
  user.Select("lstStudents", 2).Click("cmdSelected(1)");  // the longest report
  user.At("frmPrintPreview").Click("cmdPrint");
  user.At("frmDiagnostics").Click("cmdMenu");
  ShowDiagnostics();
  ASSERT_EQ(printer.printed.pages.size(), 2u);
  const double bottom = platform::PageHeight(printer.printed.orientation) - 0.5;
  const double right = platform::PageWidth(printer.printed.orientation) - 0.5;
  for (const platform::Page& page : printer.printed.pages) {
    double y = 0;
    for (const platform::PageText& line : page) {
      EXPECT_GE(line.x, 0.5);
      EXPECT_GE(line.y, y + 10.0 / 72) << "lines do not touch";
      y = line.y;
      EXPECT_LE(line.x + platform::PrintedWidth(printer.printed, line.text), right) << line.text;
    }
    EXPECT_LE(y, bottom);
  }
}

TEST_F(DiagnosticsTest, BrokenFilesStopWithAMessage) {
  folder.Put("Diag.dat", Record("03", 0, "C399") + Record("XY", 0));
  user.Select("lstStudents", 0).Click("cmdSelected(0)");
  testing::ExpectStop("DiagnosticReport: no tables for the program code C3", ShowDiagnostics);
  user.Select("lstStudents", 1).Click("cmdSelected(2)").Answer(Answer::Yes);
  testing::ExpectStop("Student number not correct", ShowDiagnostics);
  EXPECT_EQ(Diag().size(), 144u);

  folder.Put("Diag.dat", Record("03", 0) + "C299");
  user.Do("look", [] { EXPECT_EQ(List("lstStudents").ListCount(), 1); }).Click("cmdMenu");
  ShowDiagnostics();

  std::filesystem::remove(folder.Path() + "Diag.dat");
  testing::ExpectStop("Failed in attempt to read file Diag.dat", ShowDiagnostics);
}

TEST_F(DiagnosticsTest, TheMenuOpensTheForm) {
  StartUp startUp;
  startUp.ReadSettings = [this] { return platform::InstallationSettings{2, folder.Path()}; };
  startUp.ReadScreen = [] { return ScreenFacts{}; };
  startUp.Login = [] { session.gRecordKeepingEnabled = 1; };
  BindDiagnostics(startUp);
  LoadMenu(startUp);
  EXPECT_EQ(frmMenu->mnuDiagnosticsResults->Caption(), "Manage Diagnostic Test &Results");
  user.At("frmDiagnostics").Do("look", [] {
    EXPECT_EQ(List("lstStudents").ListCount(), 3);
    EXPECT_FALSE(frmMenu->cmdStart.CanBeClicked());
  });
  user.Click("cmdMenu");
  EXPECT_TRUE(frmMenu->mnuDiagnosticsResults->Click());
  EXPECT_TRUE(frmMenu->cmdStart.CanBeClicked());
  frmMenu.reset();
}

}  // namespace
}  // namespace course
