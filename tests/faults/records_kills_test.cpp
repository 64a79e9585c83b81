// A process that dies, or a disk that fails, at every single file operation of every writing: what
// was whole before can be read, the change is there wholly or not at all, and the next try
// completes it.
#include <gtest/gtest.h>

#include <filesystem>
#include <functional>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include "records/activity_records.h"
#include "records/diagnostic_file.h"
#include "records/patience.h"
#include "records/rosters.h"
#include "support/child_process.h"
#include "support/faulty_calls.h"
#include "support/record_fixture.h"

namespace course {
namespace {

using testing::ChildProcess;
using testing::FaultyCalls;
using testing::InstalledCalls;
using Fault = FaultyCalls::Fault;

const std::string kAda = "C299070115260101005005001";
const std::string kBen = "C299080115260102005005001";
const std::string kCleo = "C299090115260103005005001";

// One writing: the file before it, after it, and after it is done once more.
struct Change {
  std::string name;
  std::string file;
  std::size_t length;
  std::string before;
  std::function<void()> Run;
  std::string after;
  std::string again;
};

std::string Student(const std::string& name, int number) {
  return MakeStudentRecord(name, number);
}

std::string Result(const std::string& student, char letter) {
  return "C299" + student + "011526" + std::string(60, letter);
}

std::vector<Change> Changes() {
  const std::string roster = Student("Ada", 1) + Student("Ben", 2) + Student("Cleo", 3);
  const std::string results = Result("07", 'A') + Result("08", 'B');
  return {
      {"first record", "RECORDS.DAT", 25, "", [] { SaveActivityRecord(kAda); }, kAda, kAda + kAda},
      {"append", "RECORDS.DAT", 25, kAda + kBen, [] { SaveActivityRecord(kCleo); },
       kAda + kBen + kCleo, kAda + kBen + kCleo + kCleo},
      {"append behind a torn tail", "RECORDS.DAT", 25, kAda + kBen.substr(0, 24),
       [] { SaveActivityRecord(kCleo); }, kAda + kCleo, kAda + kCleo + kCleo},
      {"erase one", "RECORDS.DAT", 25, kAda + kBen + kAda + kCleo,
       [] { EraseStudentRecords(7, EraseMode::OneStudent); }, kBen + kCleo, kBen + kCleo},
      {"erase all", "RECORDS.DAT", 25, kAda + kBen, [] { EraseStudentRecords(0, EraseMode::All); },
       "", ""},
      {"add a student", "STUDENTS.DAT", 25, roster, [] { FileAddStudent("Dan"); },
       roster + Student("Dan", 4), roster + Student("Dan", 4) + Student("Dan", 5)},
      {"rename", "STUDENTS.DAT", 25, roster, [] { FileEditStudent(2, "Benjamin"); },
       Student("Ada", 1) + Student("Benjamin", 2) + Student("Cleo", 3),
       Student("Ada", 1) + Student("Benjamin", 2) + Student("Cleo", 3)},
      {"delete", "STUDENTS.DAT", 25, roster, [] { FileDeleteStudent(2, DeleteMode::OneStudent); },
       Student("Ada", 1) + Student("Cleo", 3), Student("Ada", 1) + Student("Cleo", 3)},
      {"replace a result", "Diag.dat", 72, results,
       [] { WriteDiagnosticRecord(Result("07", 'E'), 1); }, Result("07", 'E') + Result("08", 'B'),
       Result("07", 'E') + Result("08", 'B')},
      {"erase a result", "Diag.dat", 72, results, [] { EraseDiagnosticResults(7); },
       Result("08", 'B'), Result("08", 'B')},
  };
}

class KillsTest : public testing::RecordsTest {
 protected:
  void SetUp() override {
    RecordsTest::SetUp();
    session.gRecordKeepingEnabled = 0;  // no progress is read behind an erase
    // Every run takes the same calls, the first one too.
    for (const char* name : {"RECORDS.TMP", "STUDENTS.TMP", "Diag.TMP"}) folder.Put(name, "");
    user.OnPause = [this](double) { clock.Advance(pauseLasts); };
  }
  // The file's whole records, as they are read.
  std::string Whole(const Change& change) const {
    if (change.file == "Diag.dat") {
      std::string bytes;
      for (const std::string& record : ReadDiagnosticRecords()) bytes += record;
      return bytes;
    }
    const std::string bytes = folder.Bytes(change.file);
    return bytes == "(none)" ? "" : bytes.substr(0, bytes.size() / change.length * change.length);
  }
  static std::string WholeBefore(const Change& change) {
    return change.before.substr(0, change.before.size() / change.length * change.length);
  }
  // File operations of a change that goes well.
  int CallsOf(const Change& change) {
    folder.Put(change.file, change.before);
    FaultyCalls calls(Fault::None, 0);
    const InstalledCalls installed(calls);
    change.Run();
    EXPECT_EQ(folder.Bytes(change.file), change.after) << change.name;
    return calls.Count();
  }
  void ExpectOldOrNew(const Change& change, const std::string& where) const {
    const std::string whole = Whole(change);
    EXPECT_TRUE(whole == WholeBefore(change) || whole == change.after)
        << where << "\n  " << folder.Bytes(change.file);
  }
  // The change made once more after a cut.
  void ExpectCompletion(const Change& change, const std::string& where) {
    const bool done = Whole(change) == change.after;
    FaultyCalls calls(Fault::None, 0);
    const InstalledCalls installed(calls);
    change.Run();
    EXPECT_EQ(folder.Bytes(change.file), done ? change.again : change.after) << where;
  }

  double pauseLasts = 10;  // seconds
};

// A power failure keeps what was synced, and no other order of the operations is safe.
TEST_F(KillsTest, EverythingIsOnTheDiskBeforeTheNextStep) {
  using Steps = std::vector<std::string>;
  const Steps append = {"write", "sync"};
  const Steps create = {"sync folder", "write", "sync"};
  // Behind the last record, over the old one, and off again behind the last record.
  const Steps replace = {"truncate", "write", "sync", "write", "sync", "truncate", "sync"};
  const Steps rewrite = {"write", "sync", "write", "sync", "rename", "sync folder"};
  const std::map<std::string, Steps> expected = {
      {"first record", append},  // into an empty file
      {"append", append},         {"append behind a torn tail", append},
      {"erase one", rewrite},     {"erase all", {"truncate", "sync"}},
      {"add a student", append},  {"rename", rewrite},
      {"delete", rewrite},        {"replace a result", replace},
      {"erase a result", rewrite}};
  for (const Change& change : Changes()) {
    folder.Put(change.file, change.before);
    FaultyCalls calls(Fault::None, 0);
    const InstalledCalls installed(calls);
    change.Run();
    EXPECT_EQ(calls.Changes(), expected.at(change.name)) << change.name;
  }
  std::filesystem::remove(folder.Path() + "RECORDS.DAT");
  FaultyCalls calls(Fault::None, 0);
  const InstalledCalls installed(calls);
  SaveActivityRecord(kAda);
  EXPECT_EQ(calls.Changes(), create);
}

TEST_F(KillsTest, KilledProcessLeavesTheOldOrTheNewRecords) {
  for (const Change& change : Changes()) {
    const int calls = CallsOf(change);
    ASSERT_GT(calls, 5) << change.name;
    for (int at = 1; at <= calls; ++at) {
      for (const Fault fault : {Fault::KillBefore, Fault::KillWithin, Fault::KillAfter}) {
        const std::string where =
            change.name + ", killed at call " + std::to_string(at) + " of " + std::to_string(calls);
        folder.Put(change.file, change.before);
        ChildProcess child([&] {
          FaultyCalls faulty(fault, at);
          const InstalledCalls installed(faulty);
          change.Run();
          return 0;
        });
        ASSERT_EQ(child.Wait(), -SIGKILL) << where;
        ExpectOldOrNew(change, where);
        ExpectCompletion(change, where);
      }
    }
  }
}

TEST_F(KillsTest, FailingCallsAreTriedAgainWithoutDoublingAnything) {
  pauseLasts = 0.5;
  for (const Change& change : Changes()) {
    const int calls = CallsOf(change);
    for (int at = 1; at <= calls; ++at) {
      for (int lasting = 1; lasting <= 4; ++lasting) {
        folder.Put(change.file, change.before);
        FaultyCalls faulty(Fault::Fail, at, lasting);
        {
          const InstalledCalls installed(faulty);
          change.Run();
        }
        EXPECT_EQ(folder.Bytes(change.file), change.after)
            << change.name << ", calls " << at << " to " << at + lasting - 1 << " failed";
      }
    }
  }
}

TEST_F(KillsTest, DeadDiskEndsTheProgramAndLosesNothing) {
  for (const Change& change : Changes()) {
    const int calls = CallsOf(change);
    int stops = 0;
    for (int at = 1; at <= calls; ++at) {
      const std::string where = change.name + ", dead from call " + std::to_string(at);
      folder.Put(change.file, change.before);
      FaultyCalls faulty(Fault::Fail, at, 1000000);
      try {
        const InstalledCalls installed(faulty);
        change.Run();
      } catch (const testing::StoppedProgram& stopped) {
        ++stops;
        EXPECT_FALSE(stopped.message.empty());
      }
      ExpectOldOrNew(change, where);
      ExpectCompletion(change, where);
    }
    EXPECT_GE(stops, calls - 1) << change.name;  // only the last close may fail unheard
  }
}

// One operation that never works, as on a folder that cannot be synced.
class WithoutSync final : public platform::FileCalls {
 public:
  explicit WithoutSync(bool files) : files_(files) {}
  int Sync(int) override { return files_ ? -EIO : 0; }
  int SyncFolder(const std::string&) override { return files_ ? 0 : -EIO; }

 private:
  bool files_;
};

TEST_F(KillsTest, ChangeThatStandsIsNotToldAsAFailure) {
  for (const Change& change : Changes()) {
    for (const bool files : {false, true}) {
      folder.Put(change.file, change.before);
      WithoutSync calls(files);
      std::string told;
      try {
        const InstalledCalls installed(calls);
        change.Run();
      } catch (const testing::StoppedProgram& stopped) {
        told = stopped.message;
      }
      const bool stands = Whole(change) == change.after;
      EXPECT_EQ(told.empty(), stands) << change.name << (files ? ", files" : ", folders");
      // A rewrite is not begun before its work file is safe.
      const bool isRewrite = change.after == change.again && !change.after.empty() &&
                             change.name != "replace a result";
      EXPECT_EQ(stands, !(files && isRewrite)) << change.name;
    }
  }
}

// The save fails, and while it waits another workstation saves at the same place.
TEST_F(KillsTest, RetryTakesAPlaceBehindWhatOthersHaveSaved) {
  for (const char* failing : {"write", "sync"}) {
    folder.Put("RECORDS.DAT", kAda);
    FaultyCalls counting(Fault::None, 0);
    int at = 0;
    {
      const InstalledCalls installed(counting);
      SaveActivityRecord(kBen);
      at = counting.CallOf(failing);
    }
    folder.Put("RECORDS.DAT", kAda);
    FaultyCalls faulty(Fault::Fail, at);
    bool saved = false;
    user.OnPause = [&](double) {
      if (!std::exchange(saved, true))
        folder.Put("RECORDS.DAT", folder.Bytes("RECORDS.DAT") + kCleo);
      clock.Advance(1);
    };
    const InstalledCalls installed(faulty);
    SaveActivityRecord(kBen);
    EXPECT_EQ(folder.Bytes("RECORDS.DAT"),
              failing == std::string("write") ? kAda + kCleo + kBen : kAda + kBen + kCleo);
  }
}

}  // namespace
}  // namespace course
