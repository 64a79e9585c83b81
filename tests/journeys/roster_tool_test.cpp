#include <sstream>

#include "login_fixture.h"
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
    for (const std::string& path : {csv.Path(), folder.Path()})
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
  ASSERT_EQ(Make("\xEF\xBB\xBFnumber,class\r\n 7 , Period 1 \r\n\r\n",
                 "student,number,class\r\n\"Ada\",12,Period 1"),
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
  EXPECT_NE(complaints.find("STUDENTS.DAT is there already and holds something\n"),
            std::string::npos);
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
  EXPECT_EQ(std::count(complaints.begin(), complaints.end(), '\n'), 1);
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
        BadInput{"OutsideLatin1", "", Students("Period 1,\xC5\x81ukasz,,"), "s.csv:3: a character"},
        BadInput{"NoUtf8", "", Students("Period 1,Zo\xE9,,"), "s.csv:3: a character"},
        BadInput{"ControlCharacter", "", Students("Period 1,Zo\x01,,"), "s.csv:3: a control"},
        BadInput{"TooManyFields", "", Students("Period 1,Hara, O,,"), "s.csv:3: Too many columns"},
        BadInput{"TooFewFields", "", Students("Period 1"), "s.csv:3: Too few columns"},
        BadInput{"OpenQuote", "", Students("Period 1,\"Ada,,"), "s.csv:3: Escaped string"},
        BadInput{"NoHeading", "", "Period 1,Ada\n", "s.csv:1: Extra column \"Period 1\""},
        BadInput{"ColumnMissing", "", "student\nAda\n", "s.csv:1: Missing column \"class\""},
        BadInput{"AHundredStudents", "", ManyStudents(100),
                 "s.csv:101: a class has place for 99 students"},
        BadInput{"EmptyFile", "class\n", "class,student\n", "c.csv: there is no class"},
        BadInput{"LongClass", "class\nPeriod 1\nPeriod 2\nA class of 26 characters..\n", "",
                 "c.csv:4: the name \"A class of 26 characters..\" has 26 characters"},
        BadInput{"Percent", "class,percent\nPeriod 1,101\nPeriod 2,\n", "",
                 "c.csv:2: a percent is 1 to 100, not \"101\""},
        BadInput{"SameClass", "class\nPeriod 1\nPeriod 2\nPERIOD 2\n", "",
                 "c.csv:4: another class has the name \"PERIOD 2\": c.csv:3"},
        BadInput{"LocalClass", "class,number\nPeriod 1,99\nPeriod 2,\n", "",
                 "c.csv:2: a number is 1 to 98"}),
    [](const auto& test) { return std::string(test.param.name); });

TEST_F(RosterToolTest, ChecksWhatTheCourseWouldTripOver) {
  EXPECT_EQ(Check(), 1);
  EXPECT_EQ(complaints,
            "CLASSES.DAT is missing\nSTUDENTS.DAT is missing\nRECORDS.DAT is missing\n"
            "Diag.dat is missing\n");
  ASSERT_EQ(Make(kClasses, kStudents), 0);
  const Strings good = Rosters();
  folder.Put("CLASSES.DAT", good[0].substr(0, 32) + "Period 2                   7x x ");
  folder.Put("STUDENTS.DAT", good[1] + good[1].substr(0, 31) + "Eve                  9 5       K");
  folder.Put("RECORDS.DAT", "C2");
  EXPECT_EQ(Check(), 1);
  EXPECT_EQ(complaints,
            "STUDENTS.DAT ends with 1 bytes of a record of 31\n"
            "RECORDS.DAT ends with 2 bytes of a record of 25\n"
            "CLASSES.DAT, record 2: a percent is 1 to 100, not \"7x\"\n"
            "CLASSES.DAT, record 2: there is no class number\n"
            "STUDENTS.DAT, record 4: another student of the class has the name \"Ada\": "
            "STUDENTS.DAT, record 1\n"
            "STUDENTS.DAT, record 4: another student of the class has the number 1: "
            "STUDENTS.DAT, record 1\n"
            "STUDENTS.DAT, record 2: there is no class with the number 2\n"
            "STUDENTS.DAT, record 5: there is no class with the number 5\n");
}

TEST_F(RosterToolTest, TellsOfAFolderThatIsNotThere) {
  std::filesystem::remove_all(folder.Path());
  EXPECT_EQ(Make(kClasses, kStudents), 1);
  EXPECT_NE(complaints.find("No such file or directory"), std::string::npos) << complaints;
}

}  // namespace
}  // namespace course::testing
