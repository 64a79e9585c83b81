// The scripted user and the ways in which the program ends.
#include <gtest/gtest-spi.h>

#include "platform/dialogs.h"
#include "platform/events.h"
#include "platform/stop.h"
#include "support/course_fixture.h"
#include "support/sample_form.h"

namespace course::testing {
namespace {

class ScriptedUserTest : public CourseTest {
 protected:
  // Runs what makes the user complain; the complaint must be a failure of the test and an
  // exception.
  template <class Action>
  static void ExpectComplaint(const std::string& part, Action action) {
    ::testing::TestPartResultArray failures;
    {
      ::testing::ScopedFakeTestPartResultReporter reporter(
          ::testing::ScopedFakeTestPartResultReporter::INTERCEPT_ALL_THREADS, &failures);
      EXPECT_THROW(action(), TestFailure);
    }
    ASSERT_EQ(failures.size(), 1);
    EXPECT_NE(std::string(failures.GetTestPartResult(0).message()).find(part), std::string::npos)
        << failures.GetTestPartResult(0).message();
  }
};

TEST_F(ScriptedUserTest, WaitWithoutAStepNamesThePlace) {
  ExpectComplaint("waits at PageEnd", [] { platform::WaitEvents("PageEnd"); });
  SampleForm sample;
  ExpectComplaint("waits at frmSample", [&] { sample.form.ShowModal(); });
  EXPECT_FALSE(sample.form.Shown());
}

TEST_F(ScriptedUserTest, StepAtAnotherPlaceOrInVainIsAFailure) {
  user.At("AnswerWait").Click("picAnswer(1)");
  ExpectComplaint("meant for AnswerWait", [] { platform::WaitEvents("PageEnd"); });
  SampleForm sample;
  sample.form.Show();
  user.Click("cmdRefused");
  ExpectComplaint("cannot do this now: click cmdRefused", [] { platform::WaitEvents("x"); });
  user.Click("cmdNowhere");
  ExpectComplaint("no shown form has a control cmdNowhere", [] { platform::WaitEvents("x"); });
  user.Click("cmdContinue");
  EXPECT_EQ(user.Unused(), std::vector<std::string>{"click cmdContinue"});
  platform::WaitEvents("x");
}

TEST_F(ScriptedUserTest, DialogsAreAnsweredInTheirOrder) {
  user.Answer(platform::Answer::No).Type("x\xB2").CancelInput();
  const platform::Message question = {"End the test?", "", platform::Buttons::YesNo,
                                      platform::Icon::Warning};
  EXPECT_EQ(platform::MessageBox(question), platform::Answer::No);
  EXPECT_EQ(platform::InputBox("Lesson?"), "x\xB2");
  EXPECT_EQ(platform::InputBox("Lesson?"), std::nullopt);
  ASSERT_EQ(user.messages.size(), 1u);
  EXPECT_EQ(user.messages[0].text, "End the test?");
  ExpectComplaint("no answer to: End the test?", [&] { platform::MessageBox(question); });
}

TEST_F(ScriptedUserTest, ProgramEndsAreExceptions) {
  EXPECT_THROW(platform::Stop("too long"), StoppedProgram);
  EXPECT_THROW(platform::EndProgram(), ProgramEnded);
}

// Without a user and without a screen nobody could close a message: no program may hang there.
TEST(ProgramEndDeathTest, NobodyIsAskedWithoutAScreen) {
  EXPECT_EXIT(platform::Stop("too long"), ::testing::ExitedWithCode(1), "too long");
  EXPECT_EXIT(platform::EndProgram(), ::testing::ExitedWithCode(0), "");
  EXPECT_EXIT(platform::MessageBox({"End the test?", ""}), ::testing::ExitedWithCode(1),
              "nobody is there to answer: End the test");
}

}  // namespace
}  // namespace course::testing
