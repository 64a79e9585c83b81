// The fuzzer's corpus: what once led to a finding, and what leads it to all readers.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>

#include "fuzz/record_readers.h"
#include "support/scripted_user.h"

namespace course::testing {
namespace {

TEST(RecordsCorpus, IsReadWithoutLoss) {
  int files = 0;
  for (const auto& entry : std::filesystem::directory_iterator(COURSE_CORPUS)) {
    std::ifstream file(entry.path(), std::ios::binary);
    const std::string bytes{std::istreambuf_iterator<char>(file), {}};
    try {
      ReadRecordFiles(bytes);
      // Cut at every place, as a fallen machine leaves a file.
      for (std::size_t size = 0; size < bytes.size(); ++size)
        ReadRecordFiles(bytes.substr(0, size));
    } catch (const TestFailure& failure) {
      ADD_FAILURE() << entry.path().filename() << ": " << failure.what();
    }
    ++files;
  }
  EXPECT_GT(files, 5);
}

}  // namespace
}  // namespace course::testing
