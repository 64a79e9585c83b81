// The clocks, and pauses during which the person is served.
#include "platform/clock.h"

#include <vector>

#include "platform/events.h"
#include "platform/robot.h"
#include "support/course_fixture.h"
#include "support/sample_form.h"

namespace course::testing {
namespace {

class ClockTest : public CourseTest {};

TEST_F(ClockTest, PauseMovesAClockThatStands) {
  std::vector<double> tried;
  user.OnPause = [&](double seconds) { tried.push_back(seconds); };
  clock.secondsSinceMidnight = 86399.5;
  platform::Pause(0.002);
  platform::Pause(1);
  EXPECT_DOUBLE_EQ(clock.Counter(), 1.002);
  EXPECT_NEAR(clock.SecondsSinceMidnight(), 0.502, 1e-9);
  EXPECT_EQ(tried, (std::vector<double>{0.002, 1}));
}

TEST_F(ClockTest, MachinePausesServeThePersonAndLastTheirTime) {
  platform::InstallClock(nullptr);
  platform::InstallUser(nullptr);
  SampleForm sample;
  sample.form.Show();
  platform::PumpEvents();
  sample.cmdContinue.SetFocus();
  platform::robot::Type(sample.form, 13);
  const double start = platform::TheClock().Counter();
  platform::Pause(0.005);
  EXPECT_GE(platform::TheClock().Counter() - start, 0.005);
  EXPECT_EQ(sample.done, std::vector<std::string>{"cmdContinue"});
}

TEST_F(ClockTest, MachineKnowsTheTimeOfDay) {
  platform::InstallClock(nullptr);
  const double before = platform::TheClock().SecondsSinceMidnight();
  const double after = platform::TheClock().SecondsSinceMidnight();
  EXPECT_GE(before, 0);
  EXPECT_LT(before, 86400);
  EXPECT_TRUE(after >= before || before > 86399) << before << ", then " << after;
  const platform::Date today = platform::TheClock().Today();
  EXPECT_TRUE(today.month >= 1 && today.month <= 12 && today.day >= 1 && today.day <= 31);
}

}  // namespace
}  // namespace course::testing
