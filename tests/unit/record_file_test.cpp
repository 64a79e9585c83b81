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

struct stat StatusOf(const std::string& path) {
  struct stat status {};
  EXPECT_EQ(stat(path.c_str(), &status), 0);
  return status;
}

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
  EXPECT_EQ(StatusOf(folder.Path() + "A.DAT").st_mode & 0777, 0664U);
  EXPECT_EQ(OpenError("A.DAT", Access::ReadWrite, Sharing::Exclusive), 0);
}

// The file on this disk belongs to somebody else, and the system may let files be given away.
class OtherOwner final : public FileCalls {
 public:
  OtherOwner(const std::string& path, int giving)
      : inode_(StatusOf(path).st_ino), giving_(giving) {}
  int Facts(int descriptor, FileFacts& facts) override {
    const int result = FileCalls::Facts(descriptor, facts);
    if (facts.inode == inode_) facts.owner = kOwner, facts.group = kGroup;
    return result;
  }
  int SetOwner(int, unsigned owner, unsigned group) override {
    given = giving_ == 0 && owner == kOwner && group == kGroup;
    return giving_;
  }
  bool given = false;

 private:
  static constexpr unsigned kOwner = 4711;
  static constexpr unsigned kGroup = 4712;
  unsigned long long inode_;
  int giving_;
};

// A new file of this person's in the place of another one's would lock others out.
TEST_F(RecordFileTest, ReplacementKeepsOwnerAndGroupOrTheFileItself) {
  const std::string path = folder.Path() + "A.DAT";
  for (const int giving : {0, -EPERM}) {
    folder.Put("A.DAT", "annabertcarl");
    const auto inode = StatusOf(path).st_ino;
    OtherOwner calls(path, giving);
    const InstalledCalls installed(calls);
    Open("A.DAT").ReplaceAll({"dora", "emil"});
    EXPECT_EQ(folder.Bytes("A.DAT"), "doraemil");
    EXPECT_EQ(calls.given, giving == 0);
    EXPECT_EQ(StatusOf(path).st_ino == inode, giving != 0);
    EXPECT_EQ(folder.Names(), Strings{"A.DAT"});
  }
}

// A folder may let a file be written and take no other one.
class FolderTakesNothing final : public FileCalls {
 public:
  int Open(const std::string& path, OpenMode mode) override {
    return mode.create ? -EACCES : FileCalls::Open(path, mode);
  }
};

TEST_F(RecordFileTest, WrittenInItsPlaceAFileIsWhatItWasAfterAFailure) {
  folder.Put("A.DAT", "annabert");
  {
    FolderTakesNothing calls;
    const InstalledCalls installed(calls);
    Open("A.DAT").ReplaceAll({"carl"});
  }
  EXPECT_EQ(folder.Bytes("A.DAT"), "carl");
  for (int at = 1; at <= 3; ++at) {  // the write in place is among them
    folder.Put("A.DAT", "annabert");
    RecordFile file = Open("A.DAT");
    FaultyCalls calls(FaultyCalls::Fault::Fail, at, 1, EIO);
    const InstalledCalls installed(calls);
    EXPECT_THROW(file.Overwrite(2, "carl"), FileError);
    EXPECT_EQ(folder.Bytes("A.DAT"), "annabert");
  }
}

TEST_F(RecordFileTest, NewFileCanBeWrittenByWhomTheFolderCan) {
  const mode_t mask = umask(022);
  const struct {
    mode_t folder, file;
  } kCases[] = {{0755, 0644}, {0770, 0664}, {02775, 0664}, {0777, 0666}};
  for (const auto& [folderMode, fileMode] : kCases) {
    ASSERT_EQ(chmod(folder.Path().c_str(), folderMode), 0);
    Open("A.DAT").Write(1, "anna");
    WriteWorkFile(folder.Path() + "A.TMP", {"anna"}, OldContents::Removed);
    for (const char* name : {"A.DAT", "A.TMP"}) {
      EXPECT_EQ(StatusOf(folder.Path() + name).st_mode & 07777, fileMode) << name;
      std::filesystem::remove(folder.Path() + name);
    }
  }
  umask(mask);
}

TEST_F(RecordFileTest, TailIsNotCounted) {
  folder.Put("A.DAT", "annaxyz");
  RecordFile file = Open("A.DAT");
  EXPECT_EQ(file.Tail(), "xyz");
  file.WriteTail("no");
  EXPECT_EQ(folder.Bytes("A.DAT"), "annano");
  file.Overwrite(1, "bert");
  EXPECT_EQ(file.Count(), 1);
  file.WriteTail("");
  EXPECT_EQ(folder.Bytes("A.DAT"), "bert");
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
