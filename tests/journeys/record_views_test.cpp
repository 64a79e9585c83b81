// A teacher looks at records, sorts, prints and erases them; a student looks at his session.
#include "records/activity_records.h"
#include "records/record_load.h"
#include "records/record_text.h"
#include "shell/record_hooks.h"
#include "shell/records_binding.h"
#include "shell_fixture.h"
#include "support/record_fixture.h"
#include "support/test_printer.h"

namespace course::testing {
namespace {

using platform::Answer;
using Strings = std::vector<std::string>;

class RecordViewsTest : public MenuTest {
 protected:
  void SetUp() override {
    MenuTest::SetUp();
    BindRecords(startUp);
    BindRecordViews(startUp);
    settings.gDataPath = folder.Path();
    folder.Put("STUDENTS.DAT", Student("zoe", 1) + Student("Ada", 2) + Student("Bo", 3));
    // Minutes tell the records apart.
    folder.Put("RECORDS.DAT",
               Record(1, "112126", "0101", "005005", 1) +      // practice, all correct
                   Record(2, "112226", "0151", "005003", 2) +  // lesson test, 60 percent
                   Record(2, "112026", "5106", "020013", 3) +  // unit test, 65 percent
                   Record(2, "010127", "0102", "004004", 4));  // practice, too little for a grade
  }
  void TearDown() override {
    recordHooks = {};
    MenuTest::TearDown();
  }

  static std::string Student(const std::string& name, int number) {
    return Padded(name, 21) + Padded(std::to_string(number), 2) + "99";
  }
  static std::string Record(int student, const std::string& date, const std::string& lesson,
                            const std::string& tally, int minutes) {
    return "C299" + Digits(student, 2) + date + lesson + tally + Digits(minutes, 3);
  }
  void OpenWithStudent(int student) {
    startUp.Login = [student] {
      session.gRecordKeepingEnabled = 1;
      session.gClassNum = 99;
      session.gStudentNum = student;
      session.gStudentName = "Ada";
    };
    Load(2);
  }
  static void ChooseRecords() { EXPECT_TRUE(frmMenu->mnuRecordsRecords->Click()); }

  static std::vector<std::string> Rows(const std::string& name) {
    const auto& list = dynamic_cast<platform::ListBox&>(FindControl(name));
    std::vector<std::string> rows;
    for (int i = 0; i < list.ListCount(); ++i) rows.push_back(list.List(i));
    return rows;
  }
  // The minutes at the end of the rows shown.
  void ExpectMinutes(const std::string& minutes) {
    user.Do("look at the rows", [minutes] {
      std::string shown;
      for (const std::string& row : Rows("lstRecords")) shown += row.back();
      EXPECT_EQ(shown, minutes);
    });
  }
  static bool IsChosen(const std::string& option) {
    return dynamic_cast<platform::OptionButton&>(FindControl(option)).Value();
  }
  static std::string Text(const std::string& label) {
    return dynamic_cast<platform::Label&>(FindControl(label)).Caption();
  }

  ScratchFolder folder;
};

TEST_F(RecordViewsTest, StudentsAreListedByNameAndNobodyIsSelected) {
  OpenWithStudent(2);
  user.At("frmRecords").Do("look", [] {
    const Strings students = Rows("lstStudents");
    ASSERT_EQ(students.size(), 3u);
    EXPECT_EQ(students[0].substr(0, 3), "Ada");
    EXPECT_EQ(students[2].substr(0, 3), "zoe");
    EXPECT_TRUE(IsChosen("optTestPassingPercent(1)"));
  });
  for (const char* button : {"cmdSelected(0)", "cmdSelected(1)", "cmdSelected(2)"})
    user.ClickRefused(button);
  user.Click("cmdMenu");
  ChooseRecords();
}

TEST_F(RecordViewsTest, AllRecordsAreSortedAsTheTeacherWants) {
  OpenWithStudent(2);
  user.At("frmRecords").Click("cmdAll(0)");
  user.At("frmDisplay").Do("look at the form", [] {
    EXPECT_EQ(FindControl("lstRecords").OwnForm()->Caption(), "STUDENT RECORDS: All Students");
    EXPECT_TRUE(IsChosen("optSort(1)"));
    EXPECT_TRUE(IsChosen("optSortDir(1)"));
    EXPECT_EQ(Text("lblTestPassingGradeComment"),
              " ** - The passing grade for a test is 60 percent ");
    EXPECT_EQ(
        Rows("lstRecords")[1],
        "  Ada             112226  Order of Operations       Lesson Test   5     3    60      "
        "     Yes    2");
  });
  ExpectMinutes("3241");  // Ada's by date, then zoe's
  user.Click("optSortDir(2)");
  ExpectMinutes("1423");
  user.Click("optSort(2)");
  ExpectMinutes("1432");  // 100 percent (zoe), 100 (Ada), 65, 60
  user.Click("optSort(3)");
  ExpectMinutes("4213");
  user.Click("optSort(4)");
  ExpectMinutes("4312");
  user.Click("cmdOK");
  // The choice holds for the next view, and goes when the form is opened again.
  user.At("frmRecords").Click("cmdAll(0)");
  user.Do("look at the options", [] {
    EXPECT_TRUE(IsChosen("optSort(4)"));
    EXPECT_TRUE(IsChosen("optSortDir(2)"));
  });
  user.Press(27);
  user.At("frmRecords").CloseBox();
  ChooseRecords();
  user.At("frmRecords").Click("cmdMenu");
  ChooseRecords();
  EXPECT_EQ(gRecordsSortOrder, SortOrder::Name);
  EXPECT_EQ(gRecordsSortDirection, SortDirection::Increasing);
}

TEST_F(RecordViewsTest, OneStudentIsSortedByDateInPlaceOfHisName) {
  OpenWithStudent(2);
  user.At("frmRecords").Select("lstStudents", 0).Click("cmdSelected(0)");
  user.At("frmDisplay").ClickRefused("optSort(1)").Do("look at the form", [] {
    EXPECT_EQ(FindControl("lstRecords").OwnForm()->Caption(), "STUDENT RECORDS: Ada");
    EXPECT_TRUE(IsChosen("optSort(3)"));
  });
  ExpectMinutes("324");
  user.Click("optSort(2)");
  ExpectMinutes("234");
  user.Click("cmdOK");
  // Bo has done nothing yet.
  user.At("frmRecords").Select("lstStudents", 1).Answer(Answer::Ok).Click("cmdSelected(0)");
  user.At("frmRecords").Click("cmdAll(0)");
  user.At("frmDisplay").Click("optSort(1)").Click("cmdOK");
  user.At("frmRecords").Click("cmdMenu");
  ChooseRecords();
  EXPECT_EQ(user.messages.at(0).text, "No records found.");
}

TEST_F(RecordViewsTest, ThePassingPercentHoldsForViewsAndTheMenu) {
  OpenWithStudent(2);
  user.At("frmRecords").Click("optTestPassingPercent(2)").Do("look at the menu", [] {
    EXPECT_EQ(frmMenu->lblTestPassPercent.Caption(), "Test Passing Percent: 70%");
  });
  user.Click("cmdAll(0)");
  user.At("frmDisplay").Do("look at the verdict", [] {
    EXPECT_EQ(Rows("lstRecords")[1].substr(90, 3), "No ");
    EXPECT_EQ(Text("lblTestPassingGradeComment"),
              " ** - The passing grade for a test is 70 percent ");
  });
  user.Click("cmdOK");
  user.At("frmRecords").Click("optTestPassingPercent(5)").Click("cmdMenu");
  ChooseRecords();
  EXPECT_EQ(session.gTestPassPercent, 100);
  // The session's view has a percent of its own, until the records are opened again.
  user.At("frmDisplaySession").Click("cmdOK");
  frmMenu->mnuRecordsSessionSee->Click();
  EXPECT_EQ(session.gTestPassPercent, 70);
  EXPECT_EQ(frmMenu->lblTestPassPercent.Caption(), "Test Passing Percent: 100%");
  user.At("frmRecords").Click("cmdMenu");
  ChooseRecords();
  EXPECT_EQ(session.gTestPassPercent, 60);
  EXPECT_EQ(frmMenu->lblTestPassPercent.Caption(), "Test Passing Percent: 60%");
}

TEST_F(RecordViewsTest, ErasingIsAskedForAndRefreshesTheMenu) {
  OpenWithStudent(2);
  EXPECT_EQ(session.gProgressCodes[1][1], "C");
  const std::string before = folder.Bytes("RECORDS.DAT");
  user.At("frmRecords").Select("lstStudents", 0);
  user.Answer(Answer::No).Click("cmdSelected(2)");
  user.Do("look at the file", [&] { EXPECT_EQ(folder.Bytes("RECORDS.DAT"), before); });
  user.Answer(Answer::Yes).Click("cmdSelected(2)");
  user.Do("look at the file", [&] {
    EXPECT_EQ(folder.Bytes("RECORDS.DAT"), before.substr(0, 25));
    EXPECT_EQ(session.gProgressCodes[1][1], "");
    EXPECT_EQ(session.gProgressCodes[1][0], "");
    const platform::PictureBox& marks = frmMenu->picProgress2;
    for (int y = 0; y < marks.PixelHeight(); ++y)
      for (int x = 0; x < marks.PixelWidth(); ++x)
        ASSERT_EQ(marks.Pixel(x, y), platform::colour::FormGrey) << x << ", " << y;
  });
  user.Answer(Answer::No).Click("cmdAll(2)");
  user.Answer(Answer::Yes).Click("cmdAll(2)");
  user.Answer(Answer::Ok).Click("cmdAll(0)");
  user.Click("cmdMenu");
  ChooseRecords();
  EXPECT_EQ(folder.Bytes("RECORDS.DAT"), "");
  EXPECT_EQ(user.messages[0].text, "Ada\n\nAre you sure you want to erase this student's records?");
  EXPECT_EQ(user.messages[2].text, "Are you sure you want to erase the records for ALL students?");
  EXPECT_EQ(user.messages[4].text, "No records found.");
  for (std::size_t i = 0; i < 4; ++i) EXPECT_EQ(user.messages[i].buttons, platform::Buttons::YesNo);
}

TEST_F(RecordViewsTest, RecordsArePrintedAfterTheQuestionAndThePreview) {
  OpenWithStudent(2);
  TestPrinter printer;
  user.At("frmRecords").Answer(Answer::Cancel).Click("cmdAll(1)");
  user.At("frmRecords").Answer(Answer::Ok).Click("cmdAll(1)");
  user.At("frmPrintPreview").Click("cmdPrint");
  user.At("frmRecords").Do("look at the paper", [&] {
    const Strings lines = printer.Lines(0);
    EXPECT_EQ(lines[2], "STUDENT RECORDS: All Students");
    ASSERT_EQ(lines.size(), 11u);
    EXPECT_EQ(lines[8].substr(2, 3), "Ada");
    EXPECT_EQ(lines[8].back(), '2');
  });
  user.Select("lstStudents", 2).Answer(Answer::Ok).Click("cmdSelected(1)");
  user.At("frmPrintPreview").Click("cmdSave");
  user.At("frmRecords").Select("lstStudents", 1).Answer(Answer::Ok).Click("cmdSelected(1)");
  user.Click("cmdMenu");
  ChooseRecords();
  EXPECT_EQ(printer.ended, 2);
  EXPECT_EQ(printer.Lines(0)[2], "STUDENT RECORDS: zoe");
  EXPECT_EQ(printer.Lines(0).size(), 8u);
  EXPECT_EQ(user.messages[0].title, "Printing Student Records");
  EXPECT_EQ(user.messages[0].text, "Turn printer on, then click OK");
  EXPECT_EQ(user.messages[0].buttons, platform::Buttons::OkCancel);
  EXPECT_EQ(user.messages.back().text, "No records found.");
}

TEST_F(RecordViewsTest, TheSessionIsSeenAndClearedWithoutALogin) {
  Load(2);
  ASSERT_EQ(session.gRecordKeepingEnabled, 0);
  const auto look = [this](const Strings& rows) {
    user.At("frmDisplaySession").Do("look at the rows", [rows] {
      EXPECT_EQ(Rows("lstRecords"), rows);
    });
    user.Click("cmdOK");
    EXPECT_TRUE(frmMenu->mnuRecordsSessionSee->Click());
  };
  look({"No records found"});
  session.gUnitNum = 10;
  session.gLessonNum = 1;
  session.gProblemsAttempted = 7;
  session.gProblemsCorrect = 6;
  SavePracticeRecord();
  session.gProblemsAttempted = 20;
  session.gProblemsCorrect = 10;
  session.gChapterTest = 1;
  session.gLessonNum = 4;
  SaveTestRecord();
  const Strings rows = {"Simple Inequalities          Practice       7        6       86",
                        "Unit 10: Inequalities        Unit Test     20       10       50"};
  look(rows);
  user.Answer(Answer::No);
  frmMenu->mnuRecordsSessionClear->Click();
  look(rows);
  user.Answer(Answer::Yes);
  frmMenu->mnuRecordsSessionClear->Click();
  EXPECT_EQ(session.gSessionRecordCount, 0);
  look({"No records found"});
  EXPECT_EQ(user.messages[0].text, "Are you sure you want to clear this session's records?");
  EXPECT_EQ(folder.Bytes("RECORDS.DAT").size(), 100u);
}

TEST_F(RecordViewsTest, OnANetworkOnlyTheSessionIsOffered) {
  std::filesystem::create_directory(folder.Path() + "station");
  settings.gDataPath = folder.Path() + "station";
  Load(3);
  EXPECT_FALSE(frmMenu->mnuRecordsRecords->Click());
  user.At("frmDisplaySession").CloseBox();
  EXPECT_TRUE(frmMenu->mnuRecordsSessionSee->Click());
}

}  // namespace
}  // namespace course::testing
