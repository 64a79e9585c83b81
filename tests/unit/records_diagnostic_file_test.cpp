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
  WriteDiagnosticRecord(Result("09", 'E'), kNoDiagnosticRecord);
  EXPECT_EQ(folder.Bytes("DIAG.DAT"), four + Result("09", 'E'));
  // The file was emptied while the test ran.
  folder.Put("DIAG.DAT", "");
  WriteDiagnosticRecord(Result("07", 'D'), 3);
  EXPECT_EQ(folder.Bytes("DIAG.DAT"), Result("07", 'D'));
  EXPECT_EQ(File(), "(none)");
}

TEST_F(DiagnosticFileTest, ReadingNeedsTheFile) {
  ExpectStop("FindDiagnosticRecord: " + folder.Path() + "Diag.dat: No such file or directory",
             [] { FindDiagnosticRecord(99, 7); });
  ExpectStop("ReadDiagnosticRecords: ", [] { ReadDiagnosticRecords(); });
  folder.Put("Diag.dat", "");
  EXPECT_EQ(FindDiagnosticRecord(99, 7), kNoDiagnosticRecord);
  EXPECT_EQ(ReadDiagnosticRecords(), std::vector<std::string>{});
}

TEST_F(DiagnosticFileTest, ErasingComparesTheNumberOnly) {
  folder.Put("Diag.TMP", "old");
  folder.Put("Diag.dat", Result("07", 'A') + Result("08", 'B') + Result("07", 'C', "C1", "12") +
                             Result("09", 'D') + "x");
  EraseDiagnosticResults(7);
  EXPECT_EQ(File(), Result("08", 'B') + Result("09", 'D'));
  EXPECT_EQ(folder.Bytes("Diag.TMP"), File());
  EraseDiagnosticResults(-1);
  EXPECT_EQ(File(), "");
  EXPECT_EQ(folder.Bytes("Diag.TMP"), "");
  ExpectStop("Student number not correct", [] { EraseDiagnosticResults(0); });
  ExpectStop("Student number not correct", [] { EraseDiagnosticResults(-2); });
}

}  // namespace
}  // namespace course
