// Author's errors end the program: a test names the beginning of the message.
#pragma once

#include <gtest/gtest.h>

#include <string>

#include "support/scripted_user.h"

namespace course::testing {

// Runs the action with the scripted user installed; fails unless the program stops with a message
// that begins like this.
template <class Action>
void ExpectStop(const std::string& beginning, Action action) {
  try {
    action();
    ADD_FAILURE() << "the program did not stop with: " << beginning;
  } catch (const StoppedProgram& stopped) {
    EXPECT_EQ(stopped.message.substr(0, beginning.size()), beginning);
  }
}

}  // namespace course::testing
