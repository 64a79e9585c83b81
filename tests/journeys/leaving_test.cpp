// The machine ends the program: a logout, a closed terminal, Ctrl+C.
#include <csignal>

#include "display/lesson_window.h"
#include "engine/program_exit.h"
#include "journeys/login_fixture.h"
#include "platform/leave_request.h"
#include "platform/record_file.h"

namespace course::testing {
namespace {

class LeavingTest : public LoginTest {
 protected:
  void SetUp() override {
    LoginTest::SetUp();
    platform::OnLeaveRequest(SaveAndExit);
    PutStudents({"Ada"});
    PassLogo();
    user.At("frmLogin").Select("lstStudents", 0).Click("cmdLogin");
    Load();
    Choose(10, 1);
  }
  void TearDown() override {
    platform::OnLeaveRequest(nullptr);
    LoginTest::TearDown();
  }
  // Answers one problem, and looks at the next one.
  void Practise() {
    user.At("PageEnd").Click("picNav(3)");
    user.At("AnswerWait").Click("picAnswer(1)");
    user.At("frmCorrect").Click("cmdOption(1)");
  }
  void ExpectEnd(const std::string& records) {
    EXPECT_THROW(frmMenu->cmdStart.Click(), ProgramEnded);
    EXPECT_EQ(folder.Bytes("RECORDS.DAT").substr(12, 7), records);
    EXPECT_EQ(folder.Bytes("RECORDS.DAT").size(), 25u);
  }
};

TEST_F(LeavingTest, WhatWasAnsweredIsSavedOnce) {
  for (const int number : {SIGTERM, SIGINT, SIGHUP}) {
    folder.Put("RECORDS.DAT", "");
    Practise();
    user.At("AnswerWait").Do("the machine asks", [number] { std::raise(number); });
    ExpectEnd("1001001");
    session.gProblemsAttempted = 0;
  }
}

// The result of a test waits for another workstation: it is saved as a test's, and only then does
// the program end.
TEST_F(LeavingTest, ASaveThatWaitsIsFinishedFirst) {
  folder.Put("RECORDS.DAT", "");
  auto other = std::make_unique<platform::RecordFile>(
      folder.Path() + "RECORDS.DAT", 25, platform::Access::Read, platform::Sharing::Exclusive);
  user.At("PageEnd").Click("picNav(4)");
  for (int problem = 1; problem <= 5; ++problem) user.At("AnswerWait").Click("picAnswer(1)");
  user.OnPause = [&](double) {
    clock.Advance(1);
    if (session.gLessonTestProb <= 5) return;
    if (other) std::raise(SIGTERM);
    other.reset();
  };
  ExpectEnd("1051005");
}

}  // namespace
}  // namespace course::testing
