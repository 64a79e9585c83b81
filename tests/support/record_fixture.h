// A folder of record files for one test, and a student of class 99 who works there.
#pragma once

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include "support/course_fixture.h"

namespace course::testing {

// A fresh folder that goes with the object.
class ScratchFolder {
 public:
  ScratchFolder() {
    std::string pattern = ::testing::TempDir() + "/records-XXXXXX";
    if (mkdtemp(pattern.data()) == nullptr) throw TestFailure("no folder " + pattern);
    path_ = pattern + "/";
  }
  ~ScratchFolder() {
    std::error_code ignored;
    std::filesystem::permissions(path_, std::filesystem::perms::owner_all, ignored);
    std::filesystem::remove_all(path_, ignored);
  }
  ScratchFolder(const ScratchFolder&) = delete;
  ScratchFolder& operator=(const ScratchFolder&) = delete;

  const std::string& Path() const { return path_; }
  // The bytes of a file; "(none)" when there is no such file.
  std::string Bytes(const std::string& name) const {
    std::ifstream file(path_ + name, std::ios::binary);
    if (!file) return "(none)";
    return {std::istreambuf_iterator<char>(file), {}};
  }
  void Put(const std::string& name, const std::string& bytes) const {
    std::ofstream(path_ + name, std::ios::binary) << bytes;
  }
  // What is there, in the order of the codes.
  std::vector<std::string> Names() const {
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(path_))
      names.push_back(entry.path().filename());
    std::sort(names.begin(), names.end());
    return names;
  }

 private:
  std::string path_;
};

class RecordsTest : public CourseTest {
 protected:
  void SetUp() override {
    CourseTest::SetUp();
    session.gversion = 2;
    session.gDataPath = folder.Path();
    session.gRecordKeepingEnabled = 1;
    session.gClassNum = 99;
    session.gStudentNum = 7;
    session.gClassName = "Non-Network";
    session.gStudentName = "Ada                  ";
    session.gUnitCount = 12;
    session.gLessonCount.fill(8);
    // Pauses are there, and pass quickly.
    user.OnPause = [this](double) { clock.Advance(1); };
  }

  ScratchFolder folder;
};

}  // namespace course::testing
