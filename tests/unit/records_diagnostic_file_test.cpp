#include <gtest/gtest.h>

#include "records/diagnostic_file.h"
#include "support/expect_stop.h"
#include "support/record_fixture.h"

namespace course {
namespace {

using testing::ExpectStop;

// A record of a student with one letter for all answers.
std::string Result(const std::string& student, char letter, const std::string& code = "C2",
                   const std::string& classNum = "99") {
  return code + classNum + student + "011526" + std::string(30, letter) + std::string(30, 'A');
}

class DiagnosticFileTest : public testing::RecordsTest {
 protected:
  std::string File() const { return folder.Bytes("Diag.dat"); }
  static void Answer(int problems) {
    session.gDiagnosticProbCount = problems;
    for (int i = 1; i <= problems; ++i) {
      session.gDiagnosticData[i][diagnostic_column::StudentLetter] = i == 1 ? "E" : "B";
      session.gDiagnosticData[i][diagnostic_column::CorrectLetter] = i == problems ? "D" : "A";
    }
  }
};

TEST_F(DiagnosticFileTest, ResultIsWrittenByteByByte) {
  Answer(30);
  session.gProblemsAttempted = 3;
  records::SaveDiagnosticRecord(-1);
  EXPECT_EQ(File(),
            "C29907011526"
            "EBBBBBBBBBBBBBBBBBBBBBBBBBBBBB"
            "AAAAAAAAAAAAAAAAAAAAAAAAAAAAAD");
  EXPECT_EQ(session.gProblemsAttempted, 0);
  Answer(29);
  ExpectStop("Incorrect Record Length.", [] { records::SaveDiagnosticRecord(-1); });
  EXPECT_EQ(File().size(), 72U);
}

TEST_F(DiagnosticFileTest, NothingIsWrittenForNobody) {
  Answer(30);
  session.gRecordKeepingEnabled = 0;
  session.gProblemsCorrect = 3;
  records::SaveDiagnosticRecord(-1);
  EXPECT_EQ(File(), "(none)");
  EXPECT_EQ(session.gProblemsCorrect, 0);
}

TEST_F(DiagnosticFileTest, SecondResultTakesThePlaceOfTheFirst) {
  folder.Put("DIAG.DAT", Result("06", 'A') + Result("07", 'A', "C1") + Result("07", 'A') +
                             Result("08", 'A') + "torn");
  EXPECT_EQ(FindDiagnosticRecord(99, 7), 3);
  EXPECT_EQ(FindDiagnosticRecord(12, 7), kNoDiagnosticRecord);
  WriteDiagnosticRecord(Result("07", 'C'), 3);
  const std::string four =
      Result("06", 'A') + Result("07", 'A', "C1") + Result("07", 'C') + Result("08", 'A');
  EXPECT_EQ(folder.Bytes("DIAG.DAT"), four);
  // Its place is somebody else's by now: results were erased while the test ran.
  WriteDiagnosticRecord(Result("09", 'E'), 1);
  EXPECT_EQ(folder.Bytes("DIAG.DAT"), four + Result("09", 'E'));
  WriteDiagnosticRecord(Result("10", 'E'), kNoDiagnosticRecord);
  EXPECT_EQ(folder.Bytes("DIAG.DAT"), four + Result("09", 'E') + Result("10", 'E'));
  // The file was emptied while the test ran.
  folder.Put("DIAG.DAT", "");
  WriteDiagnosticRecord(Result("07", 'D'), 3);
  EXPECT_EQ(folder.Bytes("DIAG.DAT"), Result("07", 'D'));
  EXPECT_EQ(File(), "(none)");
}

// The file stays the one it was, whoever owns it.
TEST_F(DiagnosticFileTest, ResultIsReplacedInItsPlace) {
  folder.Put("Diag.dat", Result("06", 'A') + Result("07", 'A'));
  std::filesystem::create_hard_link(folder.Path() + "Diag.dat", folder.Path() + "same");
  WriteDiagnosticRecord(Result("07", 'C'), 2);
  EXPECT_EQ(folder.Bytes("same"), Result("06", 'A') + Result("07", 'C'));
}

// A machine fell while it replaced Ben's result: half of the new one stands before half of the old
// one, and all of it behind the last record.
TEST_F(DiagnosticFileTest, CutReplacementIsCompletedByWhoeverComesNext) {
  const std::string ada = Result("07", 'A');
  const std::string mixed = Result("08", 'E').substr(0, 36) + Result("08", 'B').substr(36);
  const std::string ben = Result("08", 'E');
  const std::string cleo = Result("09", 'C');
  const std::string fallen = ada + mixed + ben.substr(1);
  folder.Put("Diag.dat", fallen);
  EXPECT_EQ(ReadDiagnosticRecords(), (std::vector<std::string>{ada, ben}));
  EXPECT_EQ(File(), fallen) << "reading changes nothing";
  WriteDiagnosticRecord(cleo, kNoDiagnosticRecord);
  EXPECT_EQ(File(), ada + ben + cleo);
  folder.Put("Diag.dat", fallen);
  WriteDiagnosticRecord(Result("07", 'D'), 1);
  EXPECT_EQ(File(), Result("07", 'D') + ben);
  folder.Put("Diag.dat", fallen);
  EraseDiagnosticResults(7);
  EXPECT_EQ(File(), ben);
  // What is left of an append that was cut is no such thing.
  folder.Put("Diag.dat", ada + ben.substr(0, 71));
  EXPECT_EQ(ReadDiagnosticRecords(), std::vector<std::string>{ada});
  WriteDiagnosticRecord(cleo, kNoDiagnosticRecord);
  EXPECT_EQ(File(), ada + cleo);
}

TEST_F(DiagnosticFileTest, ReadingNeedsTheFile) {
  ExpectStop("Failed in attempt to read file Diag.dat", [] { FindDiagnosticRecord(99, 7); });
  MakeDiagnosticFile();
  EXPECT_EQ(FindDiagnosticRecord(99, 7), kNoDiagnosticRecord);
  EXPECT_EQ(ReadDiagnosticRecords(), std::vector<std::string>{});
}

TEST_F(DiagnosticFileTest, ErasingComparesTheNumberOnly) {
  folder.Put("Diag.TMP", "old");
  const std::string others = Result("06", 'B') + Result("70", 'C') + Result("08", 'D');
  folder.Put("Diag.dat",
             Result("07", 'A') + others + Result("07", 'C', "C1", "12") + Result("09", 'D') + "x");
  EraseDiagnosticResults(7);
  EXPECT_EQ(File(), others + Result("09", 'D'));
  EXPECT_EQ(folder.Bytes("Diag.TMP"), File());
  EraseDiagnosticResults(-1);
  EXPECT_EQ(File(), "");
  EXPECT_EQ(folder.Bytes("Diag.TMP"), "");
  ExpectStop("Student number not correct", [] { EraseDiagnosticResults(0); });
  ExpectStop("Student number not correct", [] { EraseDiagnosticResults(-2); });
}

}  // namespace
}  // namespace course
