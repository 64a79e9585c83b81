// The diagnostic test from its first problem to its record on the disk.
#include "journeys/assessment_fixture.h"
#include "mathkit/random_stream.h"
#include "platform/robot.h"
#include "shell/diagnostic_test.h"
#include "shell/record_hooks.h"
#include "support/record_fixture.h"

namespace course::testing {
namespace {

using platform::Answer;

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
  void Start() {
    StartDiagnosticTest([this] { RunRow(2, 1); });
    EXPECT_EQ(session.gDiagnosticTest, 0);
    EXPECT_EQ(session.gHideNav, kFalse);
    EXPECT_EQ(frmPR, nullptr);
  }
  // Problems answered by these letters, from the first one on.
  void AnswerProblems(const std::string& letters) {
    for (std::size_t problem = 1; problem <= letters.size(); ++problem) {
      Check("AnswerWait", [problem] {
        EXPECT_EQ(BannerText(), "Diagnostic Test Problem " + std::to_string(problem));
        EXPECT_FALSE(frmPR->fraNav.Visible());
        EXPECT_EQ(platform::robot::Spoken(frmPR->cmdNavigate[3]), "End Diagnostic Test");
      });
      PickBoxes(letters.substr(problem - 1, 1));
    }
  }
  std::vector<std::string> Messages() const {
    std::vector<std::string> texts;
    for (const platform::Message& message : user.messages) texts.push_back(message.text);
    return texts;
  }
  static std::string Record(const std::string& student, const std::string& letters) {
    return "C299" + student + "011526" + letters + std::string(30, 'A');
  }

  ScratchFolder folder;
};

const std::string kLetters = "ABCDABCDABCDABCDABCDABCDABCDAB";

const std::string kBegin =
    "The Algebra 1 Diagnostic Test contains 30 questions.\n"
    "It measures your skill level in areas covered by a course\n"
    "in algebra 1, and provides a suggested study plan\nbased on your performance.\n\n"
    "After the test you will be able to view or print\nthe results using the Diagnostics Menu.\n\n"
    "Would you like to begin the test?";
const std::string kAgain =
    "You have already taken a Algebra 1 Diagnostic Test.\n"
    "If you take the test again it will erase the previous\nresults.\n\n"
    "Would you like to take the test again (and erase the previous results)?";
const std::string kCompleted =
    "You have completed the Algebra 1 Diagnostic Test.\n\n"
    "Your teacher will be able to print out the results\nand review them with you.";

TEST_F(DiagnosticTest, AsksTheSameThirtyProblemsOfEverybodyAndSavesTheLetters) {
  folder.Put("Diag.dat", "");
  user.Answer(Answer::Yes).Answer(Answer::Ok);
  AnswerProblems(kLetters);
  Start();
  EXPECT_EQ(Messages(), (std::vector{kBegin, kCompleted}));
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
  user.Answer(Answer::Yes).Answer(Answer::Yes).Answer(Answer::Ok);
  AnswerProblems(std::string(30, 'D'));
  Start();
  EXPECT_EQ(Messages(), (std::vector{kBegin, kAgain, kCompleted}));
  EXPECT_EQ(folder.Bytes("Diag.dat"), before + Record("07", std::string(30, 'D')) + behind);
}

TEST_F(DiagnosticTest, NothingIsSavedOfATestThatIsNotTakenToItsEnd) {
  const std::string earlier = Record("07", kLetters);
  folder.Put("Diag.dat", earlier);
  session.gversion = 3;
  user.Answer(Answer::No);  // to begin
  Start();
  EXPECT_NE(Messages()[0].find("in algebra 1.\n\nYour teacher will be able to print out the results"
                               "\nand review them with you.\n\nWould you like to begin the test?"),
            std::string::npos);
  user.Answer(Answer::Yes).Answer(Answer::No);  // to take it again
  Start();
  EXPECT_TRUE(runs.empty());
  user.Answer(Answer::Yes).Answer(Answer::Yes).Answer(Answer::Yes);  // to end it
  AnswerProblems(kLetters.substr(0, 29));
  Click("AnswerWait", "cmdNavigate(3)");
  Start();
  EXPECT_EQ(session.gDiagnosticEndedEarly, 1);
  EXPECT_EQ(user.messages.size(), 6u) << "it is not called completed";
  EXPECT_EQ(folder.Bytes("Diag.dat"), earlier);
}

TEST_F(DiagnosticTest, NeedsAStudent) {
  folder.Put("Diag.dat", "");
  session.gStudentNum = 0;
  user.Answer(Answer::Yes);
  try {
    Start();
    ADD_FAILURE() << "the test began";
  } catch (const StoppedProgram& stopped) {
    EXPECT_EQ(stopped.message, "gClassNum% or gStudentNum% do not have proper values");
  }
}

}  // namespace
}  // namespace course::testing
