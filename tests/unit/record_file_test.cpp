#include "platform/record_file.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <algorithm>
#include <vector>

#include "platform/file_calls.h"
#include "support/faulty_calls.h"
#include "support/record_fixture.h"

namespace platform {
namespace {

using course::testing::FaultyCalls;
using course::testing::InstalledCalls;
using course::testing::ScratchFolder;
using Strings = std::vector<std::string>;

class RecordFileTest : public ::testing::Test {
 protected:
  RecordFile Open(const std::string& name, Access access = Access::ReadWrite,
                  Sharing sharing = Sharing::Exclusive) const {
    return RecordFile(folder.Path() + name, 4, access, sharing);
  }
  // 0 when the file can be opened, else the number of the error.
  int OpenError(const std::string& name, Access access, Sharing sharing) const {
    try {
      Open(name, access, sharing);
      return 0;
    } catch (const FileError& error) {
      return error.number;
    }
  }

  ScratchFolder folder;
};

TEST_F(RecordFileTest, RecordsStandOneBehindTheOther) {
  EXPECT_EQ(Open("A.DAT").Count(), 0);
  Open("A.DAT").Write(1, "anna");
  Open("A.DAT").Write(2, "bert");
  Open("A.DAT").Write(1, "ANNA");
  RecordFile file = Open("A.DAT");
  EXPECT_EQ(file.Count(), 2);
  EXPECT_EQ(file.Read(2), "bert");
  EXPECT_EQ(file.ReadAll(), (Strings{"ANNA", "bert"}));
  EXPECT_EQ(folder.Bytes("A.DAT"), "ANNAbert");
}

TEST_F(RecordFileTest, PartialTailIsNotCountedAndIsWrittenOver) {
  folder.Put("A.DAT", "annaber");
  RecordFile file = Open("A.DAT");
  EXPECT_EQ(file.Count(), 1);
  EXPECT_EQ(file.ReadAll(), Strings{"anna"});
  EXPECT_EQ(file.ReadBytes(), "annaber");
  file.Write(file.Count() + 1, "carl");
  EXPECT_EQ(folder.Bytes("A.DAT"), "annacarl");
}

TEST_F(RecordFileTest, NamesDoNotTellCaseApart) {
  Open("records.dat").Write(1, "anna");
  EXPECT_EQ(Open("RECORDS.DAT").ReadAll(), Strings{"anna"});
  EXPECT_EQ(Open("Records.Dat", Access::Read).ReadAll(), Strings{"anna"});
  Open("RECORDS.DAT").ReplaceAll({"bert"});
  EXPECT_EQ(folder.Names(), Strings{"records.dat"});
  EXPECT_EQ(folder.Bytes("records.dat"), "bert");
  // Of two spellings all programs take the same.
  folder.Put("RECORDS.dat", "carl");
  EXPECT_EQ(Open("records.dat").ReadAll(), Strings{"carl"});
  EXPECT_EQ(folder.Names(), (Strings{"RECORDS.dat", "records.dat"}));
}

TEST_F(RecordFileTest, BothSlashesPartFolders) {
  folder.Put("A.DAT", "anna");
  std::filesystem::create_directory(folder.Path() + "below");
  RecordFile file(folder.Path() + R"(below\..\a.dat)", 4, Access::Read, Sharing::Plain);
  EXPECT_EQ(file.ReadAll(), Strings{"anna"});
}

TEST_F(RecordFileTest, OnlyReadingDoesNotMakeAFile) {
  for (const Sharing sharing : {Sharing::Exclusive, Sharing::Shared, Sharing::Plain})
    EXPECT_EQ(OpenError("A.DAT", Access::Read, sharing), ENOENT);
  EXPECT_EQ(folder.Names(), Strings{});
  EXPECT_EQ(OpenError("A.DAT", Access::Write, Sharing::Exclusive), 0);
  EXPECT_EQ(folder.Bytes("A.DAT"), "");
  EXPECT_THROW(RecordFile("/no/such/folder/A.DAT", 4, Access::Write, Sharing::Exclusive),
               FileError);
}

TEST_F(RecordFileTest, ReplacementKeepsTheRightsAndTheReaders) {
  folder.Put("A.DAT", "annabert");
  ASSERT_EQ(chmod((folder.Path() + "A.DAT").c_str(), 0664), 0);
  RecordFile reader = Open("A.DAT", Access::Read, Sharing::Plain);
  RecordFile writer = Open("A.DAT");
  writer.ReplaceAll({"carl"});
  EXPECT_EQ(reader.ReadAll(), (Strings{"anna", "bert"}));  // as it was when it was opened
  EXPECT_EQ(folder.Bytes("A.DAT"), "carl");
  EXPECT_EQ(folder.Names(), Strings{"A.DAT"});
  struct stat status {};
  ASSERT_EQ(stat((folder.Path() + "A.DAT").c_str(), &status), 0);
  EXPECT_EQ(status.st_mode & 0777, 0664U);
  EXPECT_EQ(OpenError("A.DAT", Access::ReadWrite, Sharing::Exclusive), 0);
}

// Another workstation puts a new file in the place of one that is open and not locked yet.
class ReplacedInBetween final : public FileCalls {
 public:
  explicit ReplacedInBetween(const ScratchFolder& scratch) : scratch_(scratch) {}
  int Lock(int descriptor, LockKind kind) override {
    if (scratch_.Bytes("A.NEW") != "(none)")
      FileCalls::Rename(scratch_.Path() + "A.NEW", scratch_.Path() + "A.DAT");
    return FileCalls::Lock(descriptor, kind);
  }

 private:
  const ScratchFolder& scratch_;
};

TEST_F(RecordFileTest, LockedFileIsTheOneThatBearsTheName) {
  folder.Put("A.DAT", "annabert");
  folder.Put("A.NEW", "anna");
  ReplacedInBetween calls(folder);
  const InstalledCalls installed(calls);
  RecordFile file = Open("A.DAT");
  EXPECT_EQ(file.ReadAll(), Strings{"anna"});
  file.Write(2, "carl");
  EXPECT_EQ(folder.Bytes("A.DAT"), "annacarl");
}

TEST_F(RecordFileTest, FailedReplacementLeavesTheFileAndNothingElse) {
  int failures = 0;
  for (int at = 1; at <= 15; ++at) {
    folder.Put("A.DAT", "annabert");
    FaultyCalls calls(FaultyCalls::Fault::Fail, at, 1, ENOSPC);
    RecordFile file = Open("A.DAT");
    const InstalledCalls installed(calls);
    bool failed = false;
    try {
      file.ReplaceAll({"carl"});
    } catch (const FileError& error) {
      EXPECT_EQ(error.number, ENOSPC);
      EXPECT_STREQ(error.what(), "No space left on device");
      failed = true;
      ++failures;
    }
    EXPECT_EQ(folder.Names(), Strings{"A.DAT"}) << at;
    const std::string bytes = folder.Bytes("A.DAT");
    EXPECT_TRUE(bytes == "carl" || (failed && bytes == "annabert")) << at << bytes;
  }
  EXPECT_GE(failures, 5);
}

// Somebody foresees the name of a new file, and puts a link there in the last moment.
class ForeseenName final : public FileCalls {
 public:
  explicit ForeseenName(const std::string& path) : path_(path) {}
  int RandomName(std::string& name) override {
    name = "0123456789abcdef";
    std::filesystem::create_symlink("victim", path_ + "." + name + ".NEW");
    return 0;
  }

 private:
  std::string path_;
};

TEST_F(RecordFileTest, FollowsNoLinkThatSomebodyPlanted) {
  folder.Put("victim", "dear");
  for (const char* name : {"A.NEW", "A.TMP", "A.DAT.aaaabbbbccccdddd.NEW"})
    std::filesystem::create_symlink("victim", folder.Path() + name);
  std::filesystem::create_symlink("nothing", folder.Path() + "B.DAT");
  EXPECT_EQ(OpenError("B.DAT", Access::ReadWrite, Sharing::Exclusive), ENOENT);
  EXPECT_THROW(WriteWorkFile(folder.Path() + "A.TMP", {"anna"}, OldContents::Removed), FileError);
  Open("A.DAT").ReplaceAll({"anna"});  // removes what looks like a replacement cut short
  EXPECT_EQ(folder.Names(), (Strings{"A.DAT", "A.NEW", "A.TMP", "B.DAT", "victim"}));

  ForeseenName calls(folder.Path() + "A.DAT");
  const InstalledCalls installed(calls);
  RecordFile file = Open("A.DAT");
  EXPECT_THROW(file.ReplaceAll({"bert"}), FileError);
  EXPECT_EQ(folder.Bytes("A.DAT"), "anna");
  EXPECT_EQ(folder.Bytes("victim"), "dear");
}

TEST_F(RecordFileTest, OwnLinkStaysALink) {
  std::filesystem::create_directory(folder.Path() + "elsewhere");
  folder.Put("elsewhere/real.dat", "anna");
  std::filesystem::create_symlink("elsewhere/real.dat", folder.Path() + "A.DAT");
  Open("A.DAT").ReplaceAll({"bert"});
  Open("A.DAT").Write(2, "carl");
  EXPECT_TRUE(std::filesystem::is_symlink(folder.Path() + "A.DAT"));
  EXPECT_EQ(folder.Bytes("elsewhere/real.dat"), "bertcarl");
  EXPECT_EQ(folder.Names(), (Strings{"A.DAT", "elsewhere"}));
}

TEST_F(RecordFileTest, WorkFilesStayBehind) {
  folder.Put("A.TMP", "annabertcarl");
  WriteWorkFile(folder.Path() + "a.tmp", {"dora"}, OldContents::Kept);
  EXPECT_EQ(folder.Bytes("A.TMP"), "dorabertcarl");
  WriteWorkFile(folder.Path() + "a.tmp", {"emil"}, OldContents::Removed);
  EXPECT_EQ(folder.Bytes("A.TMP"), "emil");
}

}  // namespace
}  // namespace platform
