// The program of every test folder: the toolkit comes up once, without a display, and the tests are
// told where the sources stand.
#include <gtest/gtest.h>

#include <cstdlib>

#include "platform/program.h"

int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  setenv("QT_QPA_PLATFORM", "offscreen", 1);
  setenv("COURSE_SOURCE_DIR", COURSE_SOURCE_DIR, 0);
  platform::Application application(argc, argv);
  return RUN_ALL_TESTS();
}
