// The installation settings: what a line may say, and which file is read or written.
#include "platform/settings.h"

#include <gtest/gtest.h>

#include <fstream>

#include "support/course_fixture.h"
#include "support/expect_stop.h"

namespace course::testing {
namespace {

using platform::InstallationSettings;
namespace fs = std::filesystem;

const InstallationSettings kDefaults = {2, "/default"};

struct Reading {
  InstallationSettings settings;
  std::string error;
};

Reading Parse(const std::string& text) {
  Reading reading;
  reading.settings =
      platform::ParseInstallationSettings(text, "a.settings", kDefaults, reading.error);
  return reading;
}

TEST(SettingsTextTest, GoodLinesAreTaken) {
  const Reading all = Parse("# a comment\r\n\r\n  gversion=3\r\ngDataPath = /a b/c=d  \r\n");
  EXPECT_EQ(all.error, "");
  EXPECT_EQ(all.settings.gversion, 3);
  EXPECT_EQ(all.settings.gDataPath, "/a b/c=d");
  EXPECT_EQ(all.settings.gDataPathLine, 4);
  const Reading none = Parse("");
  EXPECT_EQ(none.error, "");
  EXPECT_EQ(none.settings.gversion, 2);
  EXPECT_EQ(none.settings.gDataPath, "/default");
  EXPECT_EQ(none.settings.gDataPathLine, 0);
}

TEST(SettingsTextTest, BadLinesAreNamed) {
  const struct {
    const char* text;
    const char* error;
  } kCases[] = {
      {"gversion = 4", "a.settings, line 1: \"gversion = 4\".\ngversion is 1 "},
      {"#\ngversion = 2.0", "a.settings, line 2: \"gversion = 2.0\".\ngversion is 1 "},
      {"gversion =", "a.settings, line 1: \"gversion =\".\ngversion is 1 "},
      {"gDataPath =", "a.settings, line 1: \"gDataPath =\".\ngDataPath is the path of a folder"},
      {"gDataPath /a", "a.settings, line 1: \"gDataPath /a\".\n\"name = value\" is expected"},
      {"gVersion = 2", "a.settings, line 1: \"gVersion = 2\".\n\"gVersion\" is no setting"},
      {"gversion = 1\n\nspeed = 3\ngversion = 9", "a.settings, line 3: \"speed = 3\".\n\"speed\""},
  };
  for (const auto& [text, error] : kCases)
    EXPECT_EQ(Parse(text).error.substr(0, std::string(error).size()), error) << text;
}

class SettingsFileTest : public CourseTest {
 protected:
  void SetUp() override {
    CourseTest::SetUp();
    root_ = fs::temp_directory_path() /
            ("settings-test-" +
             std::string(::testing::UnitTest::GetInstance()->current_test_info()->name()));
    fs::remove_all(root_);
    fs::create_directories(root_ / "program");
    folders = {root_ / "program", root_ / "config", root_ / "data"};
  }
  void TearDown() override {
    fs::remove_all(root_);
    CourseTest::TearDown();
  }
  // A folder that nobody can write, the superuser included: there is none of this name.
  void MakeProgramFolderReadOnly() { folders.program = root_ / "nowhere"; }
  static void Write(const fs::path& folder, const std::string& text) {
    fs::create_directories(folder);
    std::ofstream(folder / "sumwright-algebra1.settings") << text;
  }
  static bool Stands(const fs::path& folder) {
    return fs::exists(folder / "sumwright-algebra1.settings");
  }
  platform::SettingsFolders folders;

 private:
  fs::path root_;
};

TEST_F(SettingsFileTest, MissingFileMeansTheDefaultsAndIsWritten) {
  const InstallationSettings first = platform::ReadSettingsIn(folders);
  EXPECT_EQ(first.gversion, 2);
  EXPECT_EQ(first.gDataPath, folders.program);
  EXPECT_TRUE(Stands(folders.program));
  const InstallationSettings again = platform::ReadSettingsIn(folders);
  EXPECT_EQ(again.gversion, 2);
  EXPECT_TRUE(fs::equivalent(again.gDataPath, folders.program));
}

TEST_F(SettingsFileTest, UnwritableProgramFolderMeansTheUsersOwn) {
  MakeProgramFolderReadOnly();
  for (int start = 1; start <= 2; ++start) {
    const InstallationSettings settings = platform::ReadSettingsIn(folders);
    EXPECT_EQ(settings.gDataPath, folders.data) << "start " << start;
    EXPECT_TRUE(fs::is_directory(folders.data));
    EXPECT_TRUE(Stands(folders.config));
  }
}

TEST_F(SettingsFileTest, FileBesideTheProgramComesFirst) {
  Write(folders.config, "gversion = 1\n");
  EXPECT_EQ(platform::ReadSettingsIn(folders).gversion, 1);
  EXPECT_FALSE(Stands(folders.program));
  Write(folders.program, "gversion = 3\n");
  EXPECT_EQ(platform::ReadSettingsIn(folders).gversion, 3);
}

TEST_F(SettingsFileTest, DataFolderMustExistWhereRecordsAreKept) {
  fs::create_directories(folders.program / "records");
  Write(folders.program, "gDataPath = records\n");
  EXPECT_EQ(platform::ReadSettingsIn(folders).gDataPath, folders.program / "records");
  Write(folders.program, "gversion = 3\ngDataPath = elsewhere\n");
  const std::string file = (folders.program / "sumwright-algebra1.settings").string();
  ExpectStop(file + ", line 2: \"gDataPath = elsewhere\".\ngDataPath is the path of a folder",
             [this] { platform::ReadSettingsIn(folders); });
  Write(folders.program, "gversion = 1\ngDataPath = elsewhere\n");
  EXPECT_EQ(platform::ReadSettingsIn(folders).gversion, 1);
  Write(folders.program, "gversion = 5\n");
  ExpectStop(file + ", line 1: \"gversion = 5\"", [this] { platform::ReadSettingsIn(folders); });
}

}  // namespace
}  // namespace course::testing
