// Full disks, folders that cannot be written, and files with nonsense in them.
#include <grp.h>
#include <gtest/gtest.h>
#include <sched.h>
#include <sys/mount.h>
#include <sys/resource.h>

#include <functional>
#include <string>

#include "records/activity_records.h"
#include "records/diagnostic_file.h"
#include "records/rosters.h"
#include "support/child_process.h"
#include "support/expect_stop.h"
#include "support/record_fixture.h"

namespace course {
namespace {

using testing::ChildProcess;
using testing::ExpectStop;

const std::string kAda = "C299070115260101005005001";
const std::string kBen = "C299080115260102005005001";
const std::string kCleo = "C299090115260103005005001";

std::string Repeated(const std::string& text, int times) {
  std::string all;
  for (int i = 0; i < times; ++i) all += text;
  return all;
}

class DamageTest : public testing::RecordsTest {
 protected:
  // Runs checks in a process whose machine is spoilt first.  False when it cannot be spoilt so.
  static bool Where(const std::function<bool()>& spoil, const std::function<void()>& checks) {
    constexpr int kFailed = 41;
    constexpr int kSkipped = 42;
    ChildProcess child([&] {
      if (!spoil()) return kSkipped;
      checks();
      return HasFailure() ? kFailed : 0;
    });
    const int status = child.Wait();
    EXPECT_TRUE(status == 0 || status == kSkipped) << "exit status " << status;
    return status != kSkipped;
  }
};

constexpr const char* kSaveFailed = "We have tried to save your data, \nbut after 45 seconds";

// Files cannot grow beyond so many bytes: a write that crosses the limit is cut there.
std::function<bool()> FilesUpTo(rlim_t bytes) {
  return [bytes] {
    signal(SIGXFSZ, SIG_IGN);
    const rlimit limit = {bytes, bytes};
    return setrlimit(RLIMIT_FSIZE, &limit) == 0;
  };
}

TEST_F(DamageTest, FullDiskLeavesNoHalfRecord) {
  folder.Put("RECORDS.DAT", kAda + kBen);
  folder.Put("Diag.dat", "");
  folder.Put("STUDENTS.DAT", MakeStudentRecord("Ada", 1) + MakeStudentRecord("Ben", 2));
  EXPECT_TRUE(Where(FilesUpTo(65), [] {
    ExpectStop(kSaveFailed, [] { SaveActivityRecord(kCleo); });
    ExpectStop(kSaveFailed, [] { FileAddStudent("Cleo"); });
    ExpectStop(kSaveFailed, [] {
      WriteDiagnosticRecord("C29907011526" + std::string(60, 'A'), kNoDiagnosticRecord);
    });
  }));
  EXPECT_EQ(folder.Bytes("RECORDS.DAT"), kAda + kBen);
  EXPECT_EQ(ReadStudents(99).size(), 2U);  // who would take 15 bytes for a third
  EXPECT_EQ(folder.Bytes("Diag.dat"), "");
  SaveActivityRecord(kCleo);
  EXPECT_EQ(folder.Bytes("RECORDS.DAT"), kAda + kBen + kCleo);
}

TEST_F(DamageTest, FullDiskLeavesWhatWasToBeErased) {
  folder.Put("RECORDS.DAT", kAda + kBen + kCleo);
  EXPECT_TRUE(Where(FilesUpTo(40), [] {
    ExpectStop(kSaveFailed, [] { EraseStudentRecords(7, EraseMode::OneStudent); });
  }));
  EXPECT_EQ(folder.Bytes("RECORDS.DAT"), kAda + kBen + kCleo);
  EXPECT_EQ(folder.Names(), (std::vector<std::string>{"RECORDS.DAT", "RECORDS.TMP"}));
  EraseStudentRecords(7, EraseMode::OneStudent);
  EXPECT_EQ(folder.Bytes("RECORDS.DAT"), kBen + kCleo);
}

TEST_F(DamageTest, FullFileSystemLeavesNoHalfRecord) {
  const std::string whole =
      kBen + Repeated(kAda, 162);  // 4,075 bytes of the one page that there is
  const auto smallDisk = [this] {
    return unshare(CLONE_NEWNS) == 0 &&
           mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0 &&
           mount("none", folder.Path().c_str(), "tmpfs", 0, "size=4096") == 0;
  };
  const bool done = Where(smallDisk, [&] {
    folder.Put("RECORDS.DAT", whole);
    ExpectStop(kSaveFailed, [] { SaveActivityRecord(kBen); });
    ExpectStop(kSaveFailed, [] { EraseStudentRecords(8, EraseMode::OneStudent); });
    EXPECT_EQ(folder.Bytes("RECORDS.DAT"), whole);
  });
  if (!done) GTEST_SKIP() << "no file system can be mounted here";
}

// The machine's master may write everywhere; nobody may not.
bool AsNobody() {
  constexpr uid_t kNobody = 65534;
  if (geteuid() != 0) return true;
  return setgroups(0, nullptr) == 0 && setgid(kNobody) == 0 && setuid(kNobody) == 0;
}

TEST_F(DamageTest, FolderThatCannotBeWrittenIsReadAllTheSame) {
  folder.Put("RECORDS.DAT", kAda);
  folder.Put("STUDENTS.DAT", MakeStudentRecord("Ada", 1));
  folder.Put("Diag.dat", "C29907011526" + std::string(60, 'A'));
  for (const char* name : {"RECORDS.DAT", "STUDENTS.DAT", "Diag.dat"})
    std::filesystem::permissions(folder.Path() + name, std::filesystem::perms(0444));
  std::filesystem::permissions(folder.Path(), std::filesystem::perms(0555));
  EXPECT_TRUE(Where(AsNobody, [] {
    ReadStudentProgress(99, 7);
    EXPECT_EQ(session.gProgressCodes[1][1], "W");
    ReadStudentProgress(12, 7);
    EXPECT_EQ(ReadDiagnosticRecords().size(), 1U);
    EXPECT_EQ(ReadActivityRecords().size(), 1U);
    EXPECT_EQ(CountStudents(), 1);
    ExpectStop(kSaveFailed, [] { SaveActivityRecord(kBen); });
    ExpectStop(kSaveFailed, [] { FileAddStudent("Ben"); });
    ExpectStop(kSaveFailed, [] { EraseStudentRecords(7, EraseMode::OneStudent); });
    ExpectStop(kSaveFailed, [] { EraseStudentRecords(0, EraseMode::All); });
  }));
  EXPECT_EQ(folder.Bytes("RECORDS.DAT"), kAda);
}

// What the system says of a file is for nobody at the screen; only a diagnostic result tells it.
TEST_F(DamageTest, MessagesTellNeitherPathNorReason) {
  for (const char* name : {"RECORDS.DAT", "STUDENTS.DAT", "CLASSES.DAT", "Diag.dat"})
    std::filesystem::create_directory(folder.Path() + name);
  const std::string saving = std::string(kSaveFailed) + " it is still not possible.";
  const struct {
    std::string told;
    std::function<void()> Run;
  } kCases[] = {
      {"Failed in attempt to read file RECORDS.DAT", [] { ReadStudentProgress(99, 7); }},
      {"Failed in attempt to read file RECORDS.DAT", [] { ReadActivityRecords(); }},
      {"Failed in attempt to read file STUDENTS.DAT", [] { ReadStudents(99); }},
      {"Failed in attempt to read file STUDENTS.DAT", [] { StudentListItems(); }},
      {"Failed in attempt to read file CLASSES.DAT", [] { ReadClasses(); }},
      {"Failed in attempt to read file Diag.dat", [] { FindDiagnosticRecord(99, 7); }},
      {saving, [] { SaveActivityRecord(kAda); }},
      {saving, [] { EraseStudentRecords(7, EraseMode::OneStudent); }},
      {saving, [] { EraseStudentRecords(0, EraseMode::All); }},
      {saving, [] { FileAddStudent("Ben"); }},
      {saving, [] { FileEditStudent(1, "Ben"); }},
      {saving, [] { FileDeleteStudent(0, DeleteMode::All); }},
      {saving, [] { EraseDiagnosticResults(7); }},
      {saving + "\n\nError message: 21 - Is a directory",
       [] { WriteDiagnosticRecord(std::string(72, 'A'), kNoDiagnosticRecord); }},
  };
  for (const auto& [told, Run] : kCases) {
    try {
      Run();
      ADD_FAILURE() << "not told: " << told;
    } catch (const testing::StoppedProgram& stopped) {
      EXPECT_EQ(stopped.message, told);
    }
  }
}

}  // namespace
}  // namespace course
