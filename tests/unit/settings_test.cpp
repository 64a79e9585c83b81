// The installation settings: what a line may say, and which file is read or written.
#include "platform/settings.h"

#include <gtest/gtest.h>

#include "support/expect_stop.h"
#include "support/faulty_calls.h"
#include "support/record_fixture.h"

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
  const Reading commented = Parse("\xEF\xBB\xBFgversion = 3 # ours\ngDataPath = /a#b\t# here\n");
  EXPECT_EQ(commented.error, "");
  EXPECT_EQ(commented.settings.gversion, 3);
  EXPECT_EQ(commented.settings.gDataPath, "/a#b");
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
      {"gversion = 4", "a.settings, line 1:\n\"gversion = 4\".\ngversion is 1 "},
      {"#\ngversion = 2.0", "a.settings, line 2:\n\"gversion = 2.0\".\ngversion is 1 "},
      {"gversion =", "a.settings, line 1:\n\"gversion =\".\ngversion is 1 "},
      {"gDataPath =", "a.settings, line 1:\n\"gDataPath =\".\ngDataPath is the path of a folder"},
      {"gDataPath /a", "a.settings, line 1:\n\"gDataPath /a\".\n\"name = value\" is expected"},
      {"gVersion = 2", "a.settings, line 1:\n\"gVersion = 2\".\n\"gVersion\" is no setting"},
      {"gversion = 1\n\nspeed = 3\ngversion = 9", "a.settings, line 3:\n\"speed = 3\".\n\"speed\""},
      {"gversion = 2\n#\ngversion = 2",
       "a.settings, line 3:\n\"gversion = 2\".\ngversion is given once, and line 1"},
      {"gDataPath = /a\ngDataPath = /b", "a.settings, line 2:\n\"gDataPath = /b\".\ngDataPath is"},
      {"g\x01\x7F", "a.settings, line 1:\n\"g\?\?\"."},
  };
  for (const auto& [text, error] : kCases)
    EXPECT_EQ(Parse(text).error.substr(0, std::string(error).size()), error) << text;
}

TEST(SettingsTextTest, MessagesStayOnTheScreen) {
  const std::string longLine(5000, 'x');
  std::string error;
  platform::ParseInstallationSettings(longLine + "=1", "/" + longLine + "/a.settings", kDefaults,
                                      error);
  EXPECT_NE(error.find("/a.settings, line 1:\n\"xxx"), std::string::npos);
  std::istringstream lines(error);
  for (std::string line; std::getline(lines, line);) EXPECT_LE(line.size(), 120u);
}

class SettingsFileTest : public CourseTest {
 protected:
  void SetUp() override {
    CourseTest::SetUp();
    const fs::path root = scratch_.Path();
    fs::create_directories(root / "program");
    folders = {root / "program", root / "config", root / "data"};
  }
  // A folder that nobody can write, the superuser included: there is none of this name.
  void MakeProgramFolderReadOnly() { folders.program = scratch_.Path() + "nowhere"; }
  static void Write(const fs::path& folder, const std::string& text) {
    fs::create_directories(folder);
    std::ofstream(folder / "sumwright-algebra1.settings") << text;
  }
  static bool Stands(const fs::path& folder) {
    return fs::exists(folder / "sumwright-algebra1.settings");
  }
  // The file's name as a message begins, of a long path the end.
  std::string Named() const {
    const std::string file = (folders.program / "sumwright-algebra1.settings").string();
    return file.size() <= 60 ? file : "..." + file.substr(file.size() - 60);
  }
  void ExpectUnreadable(const std::string& reason) {
    ExpectStop(Named() + " cannot be read.\n" + reason,
               [this] { platform::ReadSettingsIn(folders); });
    EXPECT_FALSE(Stands(folders.config));
  }
  platform::SettingsFolders folders;

 private:
  ScratchFolder scratch_;
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
  ExpectStop(Named() + ", line 2:\n\"gDataPath = elsewhere\".\ngDataPath is the path of a folder",
             [this] { platform::ReadSettingsIn(folders); });
  Write(folders.program, "gversion = 1\ngDataPath = elsewhere\n");
  EXPECT_EQ(platform::ReadSettingsIn(folders).gversion, 1);
  Write(folders.program, "gversion = 5\n");
  ExpectStop(Named() + ", line 1:\n\"gversion = 5\"",
             [this] { platform::ReadSettingsIn(folders); });
}

// Taken for none, it would make another installation out of a network's.
TEST_F(SettingsFileTest, FileThatCannotBeReadIsNotTakenForNone) {
  const fs::path file = folders.program / "sumwright-algebra1.settings";
  fs::create_directory(file);
  ExpectUnreadable("It is not a file.");
  fs::remove(file);
  fs::create_symlink("nothing", file);
  ExpectUnreadable("No such file or directory.");
  fs::remove(file);
  Write(folders.config, "gversion = 2\n");
  Write(folders.program, "gversion = 3\n");
  const auto read = [this] { platform::ReadSettingsIn(folders); };
  FaultyCalls counting(FaultyCalls::Fault::None, 0);
  {
    const InstalledCalls installed(counting);
    read();
  }
  for (int at = 1; at < counting.Count(); ++at) {  // the last one closes the file
    FaultyCalls refusing(FaultyCalls::Fault::Fail, at, 1, EIO);
    const InstalledCalls installed(refusing);
    ExpectStop(Named() + " cannot be read.\n", read);
  }
}

TEST_F(SettingsFileTest, FullDiskLeavesNoEmptyFile) {
  FaultyCalls counting(FaultyCalls::Fault::None, 0);
  {
    const InstalledCalls installed(counting);
    platform::ReadSettingsIn(folders);
  }
  ASSERT_GE(counting.Count(), 4);
  for (int at = 1; at < 4; ++at) {  // opening, writing, having it on the disk
    fs::remove(folders.program / "sumwright-algebra1.settings");
    FaultyCalls full(FaultyCalls::Fault::Fail, at, 1, ENOSPC);
    const InstalledCalls installed(full);
    EXPECT_EQ(platform::ReadSettingsIn(folders).gversion, 2);
    EXPECT_FALSE(Stands(folders.program)) << at;
  }
}

}  // namespace
}  // namespace course::testing
