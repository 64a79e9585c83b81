// A fresh session, a clock that stands and a scripted user: what every test of the course starts
// from.
#pragma once

#include <gtest/gtest.h>

#include "platform/manual_clock.h"
#include "session/session.h"
#include "support/scripted_user.h"

namespace course::testing {

class CourseTest : public ::testing::Test {
 protected:
  void SetUp() override {
    session = Session{};
    platform::InstallClock(&clock);
    platform::InstallUser(&user);
  }
  void TearDown() override {
    EXPECT_EQ(user.Unused(), std::vector<std::string>{}) << "the program did not come that far";
    platform::InstallUser(nullptr);
    platform::InstallClock(nullptr);
    session = Session{};
  }

  platform::ManualClock clock;
  ScriptedUser user;
};

}  // namespace course::testing
