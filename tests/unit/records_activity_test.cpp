#include <gtest/gtest.h>

#include "records/activity_records.h"
#include "records/progress.h"
#include "support/expect_stop.h"
#include "support/record_fixture.h"

namespace course {
namespace {

using testing::ExpectStop;

class ActivityTest : public testing::RecordsTest {
 protected:
  // 10:00:00 on 15 January 2026, a minute and a half after the lesson began.
  void Work(int unit, int lesson, int attempted, int correct) {
    session.gUnitNum = unit;
    session.gLessonNum = lesson;
    session.gProblemsAttempted = attempted;
    session.gProblemsCorrect = correct;
    session.gLessonStartTime = 36000 - 90;
  }
  void LessonTest(int unit, int lesson, int correct) {
    Work(unit, lesson, 5, correct);
    session.gLessonTest = 1;
    records::SaveTestRecord();
    session.gLessonTest = 0;
  }
  std::string File() const { return folder.Bytes("RECORDS.DAT"); }
  std::string Code(int unit, int lesson) const { return session.gProgressCodes[unit][lesson]; }
  // Minutes of a save so many seconds after the start.
  std::string MinutesAfter(long start, double now) {
    Work(1, 1, 1, 1);
    session.gLessonStartTime = start;
    clock.secondsSinceMidnight = now;
    records::SavePracticeRecord();
    return session.gSessionRecords.back().substr(22, 3);
  }
};

TEST_F(ActivityTest, PracticeIsWrittenByteByByte) {
  Work(3, 2, 12, 9);
  records::SavePracticeRecord();
  EXPECT_EQ(File(), "C299070115260302012009002");
  EXPECT_EQ(session.gSessionRecords, std::vector<std::string>{"C299070115260302012009002P36000"});
  EXPECT_EQ(session.gSessionRecordCount, 1);
  EXPECT_EQ(session.gProblemsAttempted, 0);
  EXPECT_EQ(session.gProblemsCorrect, 0);
  EXPECT_EQ(Code(3, 2), "W");
  EXPECT_EQ(Code(3, 0), "W");
}

TEST_F(ActivityTest, NothingAttemptedLeavesNothing) {
  Work(3, 2, 0, 0);
  records::SavePracticeRecord();
  session.gLessonTest = 1;
  records::SaveTestRecord();
  EXPECT_EQ(File(), "(none)");
  EXPECT_EQ(session.gSessionRecordCount, 0);
  EXPECT_EQ(Code(3, 2), "");
}

TEST_F(ActivityTest, TestsAddFiftyToLessonOrUnit) {
  LessonTest(3, 2, 3);
  EXPECT_EQ(File(), "C299070115260352005003002");
  EXPECT_EQ(session.gSessionRecords.back().substr(25), "T36000");
  Work(3, 8, 21, 20);
  session.gChapterTest = 1;
  records::SaveTestRecord();
  EXPECT_EQ(File().substr(25), "C299070115265308021020002");
  EXPECT_EQ(session.gSessionRecords.back().substr(25), "T36000");
  Work(3, 2, 5, 5);
  session.gLessonTest = 1;
  ExpectStop("Not clear if you are doing a test or not", records::SaveTestRecord);
  session.gLessonTest = session.gChapterTest = 0;
  ExpectStop("Not clear if you are doing a test or not", records::SaveTestRecord);
  EXPECT_EQ(File().size(), 50U);
}

TEST_F(ActivityTest, MinutesCountBegunOnesAndCrossMidnight) {
  EXPECT_EQ(MinutesAfter(36000, 36001), "001");
  EXPECT_EQ(MinutesAfter(36000, 36059.4), "001");
  EXPECT_EQ(MinutesAfter(36000, 36059.6), "002");
  EXPECT_EQ(MinutesAfter(86100, 300), "011");
  // A save no later than the start counts as a whole day, which the field cannot hold.
  EXPECT_EQ(MinutesAfter(36000, 36000), "999");
  EXPECT_EQ(MinutesAfter(36000, 35999.7), "999");
  EXPECT_EQ(MinutesAfter(0, 59999), "999");
  EXPECT_EQ(session.gSessionRecords.back().substr(26), "59999");
}

TEST_F(ActivityTest, StartTimeIsNotResetByASave) {
  Work(3, 2, 1, 1);
  records::SavePracticeRecord();
  clock.Advance(60);
  session.gProblemsAttempted = 1;
  records::SavePracticeRecord();
  EXPECT_EQ(File().substr(22, 3), "002");
  EXPECT_EQ(File().substr(47, 3), "003");
}

TEST_F(ActivityTest, TooLargeATallyStopsBeforeAnythingIsKept) {
  Work(3, 2, 1000, 9);
  ExpectStop("Incorrect Record Length.", records::SavePracticeRecord);
  EXPECT_EQ(File(), "(none)");
  EXPECT_EQ(session.gSessionRecordCount, 0);
}

TEST_F(ActivityTest, SessionHoldsAHundredEntries) {
  session.gRecordKeepingEnabled = 0;
  for (int i = 1; i <= 100; ++i) {
    Work(1, 1, i, 0);
    records::SavePracticeRecord();
  }
  EXPECT_EQ(session.gSessionRecords[99].substr(16, 3), "100");
  session.gRecordKeepingEnabled = 1;
  Work(1, 1, 1, 1);
  ExpectStop("gSessionRecords(101)", records::SavePracticeRecord);
  EXPECT_EQ(File(), "(none)");
}

TEST_F(ActivityTest, RecordsAreKeptForSomebodyOnly) {
  struct Case {
    int version, enabled;
    std::string className, studentName;
    bool kept;
  };
  for (const Case& c : std::vector<Case>{{2, 1, "", "Ada", true},
                                         {2, 1, "Non-Network", "", false},
                                         {2, 0, "Non-Network", "Ada", false},
                                         {1, 1, "Non-Network", "Ada", false},
                                         {3, 1, "Class", "Ada", true},
                                         {3, 1, "", "Ada", false},
                                         {3, 1, "Class", "", false},
                                         {4, 0, "Class", "Ada", false}}) {
    session.gversion = c.version;
    session.gRecordKeepingEnabled = c.enabled;
    session.gClassName = c.className;
    session.gStudentName = c.studentName;
    EXPECT_EQ(RecordsAreKept(), c.kept) << c.version << c.className << c.studentName;
  }
  session.gRecordKeepingEnabled = 1;
  ExpectStop("Incorrect version number detected!", RecordsAreKept);
}

TEST_F(ActivityTest, WithoutALoginTheSessionStillCounts) {
  session.gRecordKeepingEnabled = 0;
  Work(3, 2, 4, 4);
  records::SavePracticeRecord();
  EXPECT_EQ(File(), "(none)");
  EXPECT_EQ(session.gSessionRecordCount, 1);
  EXPECT_EQ(Code(3, 2), "W");
}

TEST_F(ActivityTest, TestsReplaceACodeAndPracticeDoesNot) {
  LessonTest(3, 2, 3);  // exactly 60 percent
  EXPECT_EQ(Code(3, 2), "C");
  Work(3, 2, 4, 0);
  records::SavePracticeRecord();
  EXPECT_EQ(Code(3, 2), "C");
  LessonTest(3, 2, 2);
  EXPECT_EQ(Code(3, 2), "T");
  session.gProgressCodes = {};
  ReadStudentProgress(99, 7);
  EXPECT_EQ(Code(3, 2), "T");
  session.gTestPassPercent = 40;  // the mark in force now decides
  ReadStudentProgress(99, 7);
  EXPECT_EQ(Code(3, 2), "C");
}

TEST_F(ActivityTest, AtHomeEveryRecordOfTheNumberCounts) {
  folder.Put("records.dat",
             "C299070115260101005005001"
             "P112070115260102005005001"  // another course, another class
             "C299080115260103005005001"  // another student
             "C2997 0115260154005005001"  // a lesson test, the number with a blank
             "C299070115265208020020001"
             "C29907011526");
  session.gProgressCodes[5][5] = "C";
  ReadStudentProgress(99, 7);
  EXPECT_EQ(Code(1, 1) + Code(1, 2) + Code(1, 3) + Code(1, 4), "WWC");
  EXPECT_EQ(Code(2, 8), "C");
  EXPECT_EQ(Code(5, 5), "");
  EXPECT_EQ(Code(1, 0) + Code(2, 0) + Code(3, 0), "WW");
}

TEST_F(ActivityTest, OnANetworkCodeAndClassMustMatch) {
  session.gversion = 3;
  ExpectStop("Failed in attempt to read file RECORDS.DAT", [] { ReadStudentProgress(12, 7); });
  EXPECT_EQ(File(), "(none)");
  folder.Put("RECORDS.DAT",
             "C212070115260101005005001"
             "P112070115260102005005001"
             "C211070115260103005005001");
  ReadStudentProgress(12, 7);
  EXPECT_EQ(Code(1, 1) + Code(1, 2) + Code(1, 3), "W");
}

TEST_F(ActivityTest, RecordsOutsideTheTableEndTheReading) {
  for (const char* fields : {"2101005005", "0001005005", "0121005005", "0171005005", "7101005005",
                             "0152000000", "5301000000", "9999005005"}) {
    folder.Put("RECORDS.DAT", "C29907011526" + std::string(fields) + "001");
    ExpectStop("Failed in attempt to read file RECORDS.DAT", [] { ReadStudentProgress(99, 7); });
    // Another student's bad record harms nobody.
    ReadStudentProgress(99, 8);
  }
}

TEST_F(ActivityTest, ErasingKeepsTheOrderOfTheOthers) {
  const std::string ada = "C299070115260101005005001";
  const std::string ben = "C299080115260102005005001";
  const std::string cleo = "C299090115260103005005001";
  folder.Put("RECORDS.TMP", std::string(500, 'x'));
  folder.Put("RECORDS.DAT", ada + ben + "P412070115260102005005001" + cleo + ada + ben + "C2990");
  int refreshed = 0;
  recordHooks.RefreshProgress = [&refreshed] { ++refreshed; };
  session.gProgressCodes[1][1] = "W";
  EraseStudentRecords(7, EraseMode::OneStudent);
  EXPECT_EQ(File(), ben + cleo + ben);
  EXPECT_EQ(folder.Bytes("RECORDS.TMP"), ben + cleo + ben);
  EXPECT_EQ(Code(1, 1), "");
  EXPECT_EQ(refreshed, 1);
  SaveActivityRecord(cleo);
  EXPECT_EQ(File(), ben + cleo + ben + cleo);
  EXPECT_EQ(folder.Bytes("RECORDS.TMP"), ben + cleo + ben);
  EraseStudentRecords(0, EraseMode::All);
  EXPECT_EQ(File(), "");
  EXPECT_EQ(refreshed, 2);
  recordHooks = {};
}

TEST_F(ActivityTest, ReadingForTheViewsGivesTheFileAsItIs) {
  EXPECT_EQ(ReadActivityRecords(), std::vector<std::string>{});
  EXPECT_EQ(File(), "");
  folder.Put("RECORDS.DAT", "S1070701152601010050050019" + std::string(23, '?'));
  EXPECT_EQ(ReadActivityRecords(), std::vector<std::string>{"S107070115260101005005001"});
}

TEST_F(ActivityTest, UnitIsCompleteWithAllItsRows) {
  session.gUnitCount = 3;
  session.gLessonCount[1] = session.gLessonCount[2] = session.gLessonCount[3] = 2;
  session.gProgressCodes[1][1] = "C";
  session.gProgressCodes[2][1] = session.gProgressCodes[2][2] = "C";
  session.gProgressCodes[2][3] = "T";  // behind the unit's last row
  session.gProgressCodes[3][0] = "C";
  session.gProgressCodes[4][0] = "?";  // not listed
  UpdateUnitProgress();
  EXPECT_EQ(Code(1, 0), "W");
  EXPECT_EQ(Code(2, 0), "C");
  EXPECT_EQ(Code(3, 0), "");
  EXPECT_EQ(Code(4, 0), "?");
  session.gProgressCodes[2][2] = "T";
  UpdateUnitProgress();
  EXPECT_EQ(Code(2, 0), "W");
}

}  // namespace
}  // namespace course
