// The program of every test folder: the toolkit comes up once, without a display.
#include <gtest/gtest.h>

#include "platform/program.h"

int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  platform::Application application(argc, argv);
  return RUN_ALL_TESTS();
}
