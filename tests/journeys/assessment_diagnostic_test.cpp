// The diagnostic test from its first problem to its record on the disk.
#include "journeys/assessment_fixture.h"
#include "mathkit/random_stream.h"
#include "platform/robot.h"
#include "shell/record_hooks.h"
#include "support/record_fixture.h"

namespace course::testing {
namespace {

class DiagnosticTest : public AssessmentJourney {
 protected:
  void SetUp() override {
    AssessmentJourney::SetUp();
    StartUp startUp;
    BindRecords(startUp);
    session.gversion = 2;
    session.gDataPath = folder.Path();
    session.gRecordKeepingEnabled = 1;
    session.gClassNum = 99;
    session.gStudentNum = 7;
    session.gStudentName = "Ada";
  }
  // All problems, every one answered by the next letter.
  void TakeTest(int recordNum, const std::string& letters) {
    session.gDiagnosticTest = 1;
    session.gDiagnosticProb = 1;
    session.gDiagnosticEndedEarly = 0;
    session.gDiagnosticRecordNum = recordNum;
    session.gHideNav = kTrue;
    for (int problem = 1; problem <= 30; ++problem) {
      Check("AnswerWait", [problem] {
        EXPECT_EQ(BannerText(), "Diagnostic Test Problem " + std::to_string(problem));
        EXPECT_FALSE(frmPR->fraNav.Visible());
        EXPECT_EQ(platform::robot::Spoken(frmPR->cmdNavigate[3]), "End Diagnostic Test");
      });
      PickBoxes(letters.substr(static_cast<std::size_t>(problem - 1), 1));
    }
    RunRow(2, 1);
    EXPECT_EQ(session.gDiagnosticEndedEarly, 0);
    EXPECT_EQ(frmPR, nullptr);
  }
  static std::string Record(const std::string& student, const std::string& letters) {
    return "C299" + student + "011526" + letters + std::string(30, 'A');
  }

  ScratchFolder folder;
};

const std::string kLetters = "ABCDABCDABCDABCDABCDABCDABCDAB";

TEST_F(DiagnosticTest, AsksTheSameThirtyProblemsOfEverybodyAndSavesTheLetters) {
  TakeTest(-1, kLetters);
  const std::map<std::size_t, int> seeds = {{10, 32258}, {17, 32329}, {19, 15380}, {20, 2950},
                                            {21, 28024}, {22, 24029}, {26, 29165}, {28, 16678}};
  ASSERT_EQ(runs.size(), 30u);
  for (std::size_t problem = 1; problem <= 30; ++problem) {
    const auto found = seeds.find(problem);
    RandomStream random(static_cast<std::uint64_t>(found == seeds.end() ? 1 : found->second));
    EXPECT_EQ(runs[problem - 1], "13:" + std::to_string(random.Rand(1, 1000000))) << problem;
  }
  EXPECT_EQ(folder.Bytes("Diag.dat"), Record("07", kLetters));
  EXPECT_EQ(folder.Bytes("RECORDS.DAT"), "(none)") << "no practice";
}

TEST_F(DiagnosticTest, ASecondResultTakesThePlaceOfTheFirst) {
  const std::string before = Record("06", kLetters);
  const std::string behind = Record("08", kLetters);
  folder.Put("Diag.dat", before + Record("07", kLetters) + behind);
  TakeTest(2, std::string(30, 'D'));
  EXPECT_EQ(folder.Bytes("Diag.dat"), before + Record("07", std::string(30, 'D')) + behind);
}

}  // namespace
}  // namespace course::testing
