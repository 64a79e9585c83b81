#include <sys/stat.h>

#include <sstream>

#include "login_fixture.h"
#include "platform/file_calls.h"
#include "records/record_report.h"
#include "roster_tool/commands.h"

namespace course::testing {
namespace {

const std::string kClasses = "class,percent\nPeriod 1,75\nPeriod 2,\n";
const std::string kStudents =
    "class,student,password\n"
    "Period 1,Ada,ab1\n"
    "Period 2,Bob,\n"
    "period 1,\"O\"\"Hara, Zo\xC3\xA9\",\n";

class RosterToolTest : public LoginTest {
 protected:
  void SetUp() override {
    LoginTest::SetUp();
    chmod(folder.Path().c_str(), 02770);  // a folder that is shared
  }
  // The exit status; what was told stands in told and complaints.
  int Make(const std::string& classes, const std::string& students, bool overwrite = false,
           bool dryRun = false) {
    csv.Put("c.csv", classes);
    csv.Put("s.csv", students);
    return Run([&](std::ostream& out, std::ostream& err) {
      return roster_tool::Make({.classesCsv = csv.Path() + "c.csv",
                                .studentsCsv = csv.Path() + "s.csv",
                                .folder = folder.Path(),
                                .overwrite = overwrite,
                                .dryRun = dryRun},
                               out, err);
    });
  }
  int Check() {
    return Run([&](std::ostream& out, std::ostream& err) {
      return roster_tool::Check(folder.Path(), out, err);
    });
  }
  int ListRecords(const roster_tool::Whose& whose, bool asCsv = false) {
    return Run([&](std::ostream& out, std::ostream& err) {
      return roster_tool::ListRecords({folder.Path(), whose, asCsv}, out, err);
    });
  }
  int ListResults(const roster_tool::Whose& whose) {
    return Run([&](std::ostream& out, std::ostream& err) {
      return roster_tool::ListResults({folder.Path(), whose}, out, err);
    });
  }
  int Erase(roster_tool::EraseRequest request) {
    request.folder = folder.Path();
    return Run([&](std::ostream& out, std::ostream& err) {
      return roster_tool::EraseFrom(request, out, err);
    });
  }
  Strings Rosters() const { return {folder.Bytes("CLASSES.DAT"), folder.Bytes("STUDENTS.DAT")}; }

  ScratchFolder csv;
  std::string told;
  std::string complaints;

 private:
  template <class Command>
  int Run(Command command) {
    std::ostringstream out;
    std::ostringstream err;
    const int status = command(out, err);
    told = out.str();
    // Names of files without the folder of this test.
    complaints = err.str();
    for (const std::string& path : {csv.Path(), folder.Path() + ": ", folder.Path()})
      for (std::size_t at = 0; (at = complaints.find(path)) != std::string::npos;)
        complaints.erase(at, path.size());
    return status;
  }
};

TEST_F(RosterToolTest, MakesFilesWithWhichStudentsLogIn) {
  ASSERT_EQ(Make(kClasses, kStudents), 0) << complaints;
  EXPECT_EQ(Rosters(), (Strings{"Period 1                   75 1 "
                                "Period 2                      2 ",
                                "Ada                  1 1 KL;   "
                                "Bob                  1 2       "
                                "O\"Hara, Zo\xE9          2 1       "}));
  EXPECT_EQ(folder.Bytes("RECORDS.DAT"), "");
  EXPECT_EQ(folder.Bytes("Diag.dat"), "");
  EXPECT_EQ(Check(), 0) << complaints;

  PassLogo();
  user.At("frmNetworkLogin").Select("lstClasses", 0).Select("lstStudents", 0).Click("cmdLogin");
  user.At("frmPassword").TypeIn("txtPassword", "ab1").Click("cmdOK");
  LoadOnNetwork();
  EXPECT_EQ(session.gStudentName, "Ada                  ");
  EXPECT_EQ(session.gTestPassPercent, 75);
}

TEST_F(RosterToolTest, ReadsWhatSpreadsheetsWrite) {
  ASSERT_EQ(Make("\xEF\xBB\xBFNumber,CLASS\r\n 7 , Period 1 \r\n\r\n",
                 "\r\nstudent,Number,class\r\n\"Ada\"\xC2\xA0,12,Period\xC2\xA0"
                 "1\t"),
            0)
      << complaints;
  EXPECT_EQ(Rosters(),
            (Strings{"Period 1                      7 ", "Ada                  127       "}));
}

TEST_F(RosterToolTest, OverwritesOnlyWhenToldAndKeepsNumbers) {
  ASSERT_EQ(Make(kClasses, kStudents), 0);
  folder.Put("RECORDS.DAT", std::string(25, '1'));
  const Strings before = Rosters();
  EXPECT_EQ(Make("class\nOther\n", "class,student\n"), 1);
  EXPECT_NE(complaints.find("STUDENTS.DAT is there already and holds something"),
            std::string::npos);
  EXPECT_EQ(Make(kClasses, kStudents, false, true), 1);  // a dry run refuses what the run would
  EXPECT_EQ(Make(kClasses, kStudents, true, true), 0);
  EXPECT_EQ(Rosters(), before);

  // Ada has left: nobody gets her number, and everybody else keeps his, whatever the order.
  EXPECT_EQ(
      Make("class\nPeriod 3\nperiod 2\nPeriod 1\n",
           "class,student\nPeriod 1,New\nPeriod 1,\"O\"\"Hara, Zo\xC3\xA9\"\nPeriod 2,Ada\n", true),
      0)
      << complaints;
  EXPECT_EQ(Rosters(), (Strings{"Period 3                      3 "
                                "period 2                      2 "
                                "Period 1                      1 ",
                                "New                  3 1       "
                                "O\"Hara, Zo\xE9          2 1       "
                                "Ada                  2 2       "}));
  EXPECT_EQ(folder.Bytes("RECORDS.DAT"), std::string(25, '1'));
}

struct BadInput {
  const char* name;
  std::string classes;
  std::string students;
  std::string complaint;
};
void PrintTo(const BadInput& input, std::ostream* out) {
  *out << input.name;
}

class RosterToolBadInput : public RosterToolTest, public ::testing::WithParamInterface<BadInput> {};

TEST_P(RosterToolBadInput, IsRefusedWithFileAndLine) {
  const BadInput& input = GetParam();
  EXPECT_EQ(Make(input.classes.empty() ? kClasses : input.classes,
                 input.students.empty() ? kStudents : input.students),
            1);
  EXPECT_EQ(complaints.substr(0, input.complaint.size()), input.complaint);
  EXPECT_EQ(std::count(complaints.begin(), complaints.end(), '\n'), 2) << complaints;
  EXPECT_TRUE(complaints.ends_with("\nNothing was changed.\n"));
  EXPECT_EQ(Rosters(), (Strings{"(none)", "(none)"}));
}

// A class with so many students.
std::string ManyStudents(int count) {
  std::string csv = "class,student\n";
  for (int i = 1; i <= count; ++i) csv += "Period 1,Student " + std::to_string(i) + "\n";
  return csv;
}
std::string Students(const std::string& row) {
  return "class,student,password,number\nPeriod 1,Ada,,7\n" + row + "\n";
}

INSTANTIATE_TEST_SUITE_P(
    Rows, RosterToolBadInput,
    ::testing::Values(
        BadInput{"LongName", "", Students("Period 1,Name of 22 characters.,,"),
                 "s.csv:3: the name \"Name of 22 characters.\" has 22 characters"},
        BadInput{"NoName", "", Students("Period 1,,,"), "s.csv:3: the name is missing"},
        BadInput{"LongPassword", "", Students("Period 1,Bob,abcdefg,"),
                 "s.csv:3: the password has 7 characters; there is place for 6"},
        BadInput{"OddPassword", "", Students("Period 1,Bob,a-b,"),
                 "s.csv:3: a password has letters and digits only"},
        BadInput{"HighNumber", "", Students("Period 1,Bob,,100"), "s.csv:3: a number is 1 to 99"},
        BadInput{"NumberZero", "", Students("Period 1,Bob,,0"), "s.csv:3: a number is 1 to 99"},
        BadInput{"NoNumber", "", Students("Period 1,Bob,,1x"), "s.csv:3: a number is 1 to 99"},
        BadInput{"SameNumber", "", Students("Period 1,Bob,,07"),
                 "s.csv:3: another student of the class has the number 7: s.csv:2"},
        BadInput{"SameName", "", Students("PERIOD 1,aDA,,"),
                 "s.csv:3: another student of the class has the name \"aDA\": s.csv:2"},
        BadInput{"NoSuchClass", "", Students("Period 4,Bob,,"),
                 "s.csv:3: there is no class \"Period 4\""},
        BadInput{"NoSuchClassTwice", "", Students("Period 4,Bob,,\nPeriod 4,Eve,,"),
                 "s.csv:3: there is no class \"Period 4\""},
        BadInput{"SameLine", "", Students("Period 1,Ada,,7"),
                 "s.csv:3: another student of the class has the name \"Ada\": s.csv:2"},
        BadInput{"LongAccents", "", Students("Period 1,Zo\xC3\xA9 of 22 characters..,,"),
                 "s.csv:3: the name \"Zo\xC3\xA9 of 22 characters..\" has 22 characters"},
        BadInput{"VeryLongName", "", Students("Period 1," + std::string(500, 'x') + ",,"),
                 "s.csv:3: the name \"" + std::string(60, 'x') + "...\" has 500 characters"},
        BadInput{"OutsideLatin1", "", Students("Period 1,\xC5\x81ukasz,,"), "s.csv:3: a character"},
        BadInput{"NoUtf8", "", Students("Period 1,Zo\xE9,,"), "s.csv:3: a character"},
        BadInput{"ControlCharacter", "", Students("Period 1,Zo\x01,,"), "s.csv:3: a control"},
        BadInput{"TooManyFields", "", Students("Period 1,Hara, O,,"),
                 "s.csv:3: there are more fields"},
        BadInput{"TooFewFields", "", Students("Period 1"), "s.csv:3: there are fewer fields"},
        BadInput{"OpenQuote", "", Students("Period 1,\"Ada,,"),
                 "s.csv:3: a double quote is not closed"},
        BadInput{"NoHeading", "", "Period 1,Ada\n", "s.csv:1: there is no column \"period 1\""},
        BadInput{"ColumnMissing", "", "student\nAda\n", "s.csv:1: the column \"class\" is missing"},
        BadInput{"AHundredStudents", "", ManyStudents(100),
                 "s.csv:101: a class has place for 99 students"},
        BadInput{"EmptyFile", "class\n", "class,student\n", "c.csv: there is no class"},
        BadInput{"LongClass", "class\nPeriod 1\nPeriod 2\nA class of 26 characters..\n", "",
                 "c.csv:4: the name \"A class of 26 characters..\" has 26 characters"},
        BadInput{"Percent", "class,percent\nPeriod 1,101\nPeriod 2,\n", "",
                 "c.csv:2: a percent is 1 to 100, not \"101\""},
        BadInput{"SameClass", "class\nPeriod 1\nPeriod 2\nPERIOD 2\n", "",
                 "c.csv:4: another class has the name \"PERIOD 2\": c.csv:3"},
        BadInput{"LongClassOfStudents", "class\nPeriod 1\nPeriod 2\nA class of 26 characters..\n",
                 "class,student\nA class of 26 characters..,Ada\n",
                 "c.csv:4: the name \"A class of 26 characters..\" has 26 characters"},
        BadInput{"LocalClass", "class,number\nPeriod 1,99\nPeriod 2,\n", "",
                 "c.csv:2: a number is 1 to 98"}),
    [](const auto& test) { return std::string(test.param.name); });

TEST_F(RosterToolTest, TellsTheFirstTwentyFaults) {
  std::string students = "class,student\n";
  for (int i = 0; i < 30; ++i) students += "Period 1,\n";
  EXPECT_EQ(Make(kClasses, students), 1);
  EXPECT_TRUE(
      complaints.ends_with("s.csv:21: the name is missing\nand 10 more\n"
                           "Nothing was changed.\n"))
      << complaints;
}

TEST_F(RosterToolTest, GivesNoNumberThatStandsInARecord) {
  folder.Put("RECORDS.DAT", "C202010115260101005005001");
  folder.Put("Diag.dat",
             "C20103011526" + std::string(60, 'A') + "C10301011526" + std::string(60, 'A'));
  ASSERT_EQ(Make("class\nNew\n", "class,student\nNew,Ada\nNew,Bob\n"), 0) << complaints;
  EXPECT_EQ(folder.Bytes("CLASSES.DAT"), Padded("New", 30) + "4 ");
  // One class with a number that was told: its own records count.
  ASSERT_EQ(Make("class,number\nNew,2\n", "class,student\nNew,Eve\nNew,Fay\n", true), 0);
  EXPECT_EQ(folder.Bytes("STUDENTS.DAT"), Padded("Eve", 21) + "2 2 " + std::string(6, ' ') +
                                              Padded("Fay", 21) + "3 2 " + std::string(6, ' '));
}

TEST_F(RosterToolTest, ChecksWhatTheCourseWouldTripOver) {
  EXPECT_EQ(Check(), 1);
  EXPECT_EQ(complaints,
            "CLASSES.DAT is missing\nSTUDENTS.DAT is missing\nRECORDS.DAT is missing\n"
            "Diag.dat is missing\n");
  ASSERT_EQ(Make(kClasses, kStudents), 0);
  const Strings good = Rosters();
  folder.Put("STUDENTS.DAT", good[1] + good[1].substr(0, 31) + "Eve                  9 5       K");
  folder.Put("RECORDS.DAT", "C2");
  EXPECT_EQ(Check(), 1);
  EXPECT_EQ(complaints,
            "STUDENTS.DAT ends with 1 bytes of a record of 31\n"
            "RECORDS.DAT ends with 2 bytes of a record of 25\n"
            "STUDENTS.DAT, record 4: another student of the class has the name \"Ada\": "
            "STUDENTS.DAT, record 1\n"
            "STUDENTS.DAT, record 5: there is no class with the number 5\n");
  // What follows from these is not told.
  folder.Put("STUDENTS.DAT", good[1]);
  folder.Put("RECORDS.DAT", "");
  folder.Put("CLASSES.DAT", good[0].substr(0, 32) + "Period 2                   7x x ");
  EXPECT_EQ(Check(), 1);
  EXPECT_EQ(complaints,
            "CLASSES.DAT, record 2: a percent is 1 to 100, not \"7x\"\n"
            "CLASSES.DAT, record 2: there is no class number\n");
  // Nothing that a terminal would obey.
  folder.Put("CLASSES.DAT", good[0] + good[0].substr(0, 30) + "3 " + Padded("\x1B[31m\xE9", 30) +
                                "4 " + Padded("\x1B[31m\xC9", 30) + "5 ");
  EXPECT_EQ(Check(), 1);
  EXPECT_NE(complaints.find("\"\\x1B[31m\xC3\x89\""), std::string::npos) << complaints;
}

TEST_F(RosterToolTest, TellsWhoCannotWork) {
  ASSERT_EQ(Make(kClasses, kStudents), 0) << complaints;
  const auto mode = [this](const std::string& name) {
    struct stat status {};
    stat((folder.Path() + name).c_str(), &status);
    return status.st_mode & 07777;
  };
  EXPECT_EQ(mode(""), 02770U);
  EXPECT_EQ(mode("CLASSES.DAT"), 0640U);
  EXPECT_EQ(mode("STUDENTS.DAT"), 0640U);
  EXPECT_EQ(mode("RECORDS.DAT"), 0660U);
  EXPECT_EQ(mode("Diag.dat"), 0660U);
  chmod((folder.Path() + "RECORDS.DAT").c_str(), 0644);
  chmod((folder.Path() + "CLASSES.DAT").c_str(), 0600);
  EXPECT_EQ(Check(), 1);
  EXPECT_EQ(complaints.find("CLASSES.DAT cannot be read by the group "), 0U) << complaints;
  EXPECT_NE(complaints.find("\nRECORDS.DAT cannot be written by the group "), std::string::npos);
  EXPECT_NE(complaints.find("\n  sudo chgrp GROUP "), std::string::npos);
  // A folder that is nobody else's.
  chmod(folder.Path().c_str(), 0700);
  EXPECT_EQ(Make(kClasses, kStudents, true), 1);
  EXPECT_EQ(complaints.find("The folder cannot be written by the group "), 0U) << complaints;
}

class RosterToolResults : public RosterToolTest {
 protected:
  void SetUp() override {
    RosterToolTest::SetUp();
    folder.Put("CLASSES.DAT", Padded("Period 1", 27) + "75 1 " + Padded("Period 2", 27) + "   2 ");
    folder.Put("STUDENTS.DAT",
               Student("Zo\xE9, Q.", 1, 1) + Student("Ada", 2, 1) + Student("Ada", 1, 2));
    folder.Put("RECORDS.DAT", kZoe + kAda + kAda2 + kGone);
    folder.Put("Diag.dat", Diagnostic("0101") + Diagnostic("0201"));
  }
  static std::string Student(const std::string& name, int number, int inClass) {
    return Padded(name, 21) + Padded(std::to_string(number), 2) +
           Padded(std::to_string(inClass), 2) + std::string(6, ' ');
  }
  static std::string Diagnostic(const std::string& who) {
    return "C2" + who + "011526" + std::string(60, 'A');
  }
  // Practice of lesson 1, a test of lesson 2 with 3 of 5, and both by others.
  const std::string kZoe = "C201010115260101010009012";
  const std::string kAda = "C201020116260152005003004";
  const std::string kAda2 = "C202010116260152005003004";
  const std::string kGone = "C201090117269999005003004";
};

TEST_F(RosterToolResults, AreListedByTheLinesOfTheViews) {
  EXPECT_EQ(ListRecords({"period 1", "ada"}), 0) << complaints;
  session.gTestPassPercent = 75;
  EXPECT_EQ(told,
            "Algebra 1 - Groundwork Series\nSTUDENT RECORDS: Period 1\n"
            "Test Passing Grade: 75%\n\n" +
                PrintedColumnHeadings()[0] + "\n" + PrintedColumnHeadings()[1] + "\n" +
                PrintedColumnHeadings()[2] + "\n" + PrintedLine(ExpandRecord(kAda, "Ada")) + "\n");
  EXPECT_EQ(ListRecords({"2", ""}, true), 0);
  EXPECT_EQ(told,
            "class,student,number,date,lesson,activity,attempted,correct,percent,grade,passed,"
            "minutes\nPeriod 2,Ada,1,2026-01-16," +
                session.gLessonShortTitle[1][2] + ",Lesson Test,5,3,60,,Yes,4\n");
  EXPECT_EQ(ListRecords({"Period 1", ""}, true), 1);  // a record is damaged
  EXPECT_NE(told.find("\nPeriod 1,\"Zo\xC3\xA9, Q.\",1,2026-01-15,"), std::string::npos) << told;
  EXPECT_EQ(complaints, "RECORDS.DAT, record 4: unit 99, lesson 49 is not in the catalogue\n");
  EXPECT_EQ(ListResults({"Period 2", "Ada"}), 0);
  EXPECT_EQ(told.find("Algebra 1 Diagnostic Test Results\n \nStudent: Ada, Period 2\n"), 0U)
      << told;
  EXPECT_EQ(told.find("Student:", 60), std::string::npos);
  EXPECT_EQ(ListResults({"1", "9"}), 0);
  EXPECT_EQ(told, "No records found.\n");
  for (const roster_tool::Whose& nobody :
       {roster_tool::Whose{"Period 3", ""}, {"", "Ada"}, {"", "9"}, {"Period 2", "Eve"}})
    EXPECT_EQ(ListRecords(nobody), 1) << nobody.className << nobody.student;
}

// The lock that is held when a file is replaced.
class LocksAtRename final : public platform::FileCalls {
 public:
  std::vector<platform::LockKind> held;
  int Lock(int descriptor, platform::LockKind kind) override {
    last_ = kind;
    return FileCalls::Lock(descriptor, kind);
  }
  int Rename(const std::string& from, const std::string& to) override {
    held.push_back(last_);
    return FileCalls::Rename(from, to);
  }

 private:
  platform::LockKind last_ = platform::LockKind::None;
};

TEST_F(RosterToolResults, AreErasedWhenItIsMeant) {
  const std::string all = folder.Bytes("RECORDS.DAT");
  EXPECT_EQ(Erase({.whose = {"Period 1", ""}, .records = true}), 1);
  EXPECT_EQ(told, "3 activity records would be erased.\n");
  EXPECT_EQ(Erase({.records = true, .yes = true}), 1);
  EXPECT_EQ(Erase({.everybody = true, .yes = true}), 1);
  EXPECT_EQ(folder.Bytes("RECORDS.DAT"), all);
  EXPECT_EQ(Erase({.whose = {"Period 1", "9"}, .records = true, .results = true, .yes = true}), 0);
  EXPECT_EQ(folder.Bytes("RECORDS.DAT"), kZoe + kAda + kAda2);
  EXPECT_EQ(folder.Bytes("Diag.dat"), Diagnostic("0101") + Diagnostic("0201"));
  EXPECT_EQ(Erase({.whose = {"Period 1", ""}, .records = true, .results = true, .yes = true}), 0);
  EXPECT_EQ(folder.Bytes("RECORDS.DAT"), kAda2);
  EXPECT_EQ(folder.Bytes("Diag.dat"), Diagnostic("0201"));
  LocksAtRename calls;
  platform::InstallFileCalls(&calls);
  EXPECT_EQ(Erase({.everybody = true, .records = true, .yes = true}), 0);
  platform::InstallFileCalls(nullptr);
  EXPECT_EQ(folder.Bytes("RECORDS.DAT"), "");
  EXPECT_EQ(calls.held, std::vector{platform::LockKind::Exclusive});
}

TEST_F(RosterToolTest, TellsOfAFolderThatIsNotThere) {
  std::filesystem::remove_all(folder.Path());
  EXPECT_EQ(Make(kClasses, kStudents), 1);
  EXPECT_NE(complaints.find("No such file or directory"), std::string::npos) << complaints;
}

}  // namespace
}  // namespace course::testing
