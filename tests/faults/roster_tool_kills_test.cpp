// The roster tool dies, or the disk fails, at every single file operation: each roster file holds
// the old rosters or the new ones, results stay, and the next run completes the work.
#include <sys/stat.h>

#include <sstream>

#include "records/record_text.h"
#include "roster_tool/commands.h"
#include "support/child_process.h"
#include "support/faulty_calls.h"
#include "support/record_fixture.h"

namespace course::testing {
namespace {

using Fault = FaultyCalls::Fault;

const std::string kOldClass = Padded("Old class", 30) + "1 ";
const std::string kNewClass = Padded("New class", 30) + "2 ";
const std::string kOldStudent = Padded("Ada", 21) + "1 1 " + std::string(6, ' ');
const std::string kNewStudent = Padded("Bob", 21) + "1 2 " + std::string(6, ' ');
const std::string kResults = "C201010115260101005005001";

class RosterToolKills : public RecordsTest {
 protected:
  void PutOld() {
    chmod(folder.Path().c_str(), 02770);  // a folder that is shared
    folder.Put("CLASSES.DAT", kOldClass);
    folder.Put("STUDENTS.DAT", kOldStudent);
    folder.Put("RECORDS.DAT", kResults);
    std::filesystem::remove(folder.Path() + "Diag.dat");
    folder.Put("c.csv", "class\nNew class\n");
    folder.Put("s.csv", "class,student\nNew class,Bob\n");
  }
  int Make() {
    std::ostringstream told;
    return roster_tool::Make({.classesCsv = folder.Path() + "c.csv",
                              .studentsCsv = folder.Path() + "s.csv",
                              .folder = folder.Path(),
                              .overwrite = true},
                             told, told);
  }
  void ExpectOldOrNew(const std::string& what) {
    const std::string students = folder.Bytes("STUDENTS.DAT");
    const std::string classes = folder.Bytes("CLASSES.DAT");
    EXPECT_TRUE(students == kOldStudent || students == kNewStudent) << what << students;
    EXPECT_TRUE(classes == kOldClass || classes == kNewClass) << what << classes;
    EXPECT_EQ(folder.Bytes("RECORDS.DAT"), kResults) << what;
  }
  void ExpectNew(const std::string& what) {
    FaultyCalls good(Fault::None, 0);
    const InstalledCalls installed(good);
    EXPECT_EQ(Make(), 0) << what;
    EXPECT_EQ(folder.Bytes("STUDENTS.DAT"), kNewStudent) << what;
    EXPECT_EQ(folder.Bytes("CLASSES.DAT"), kNewClass) << what;
    EXPECT_EQ(folder.Bytes("RECORDS.DAT"), kResults) << what;
    EXPECT_EQ(folder.Bytes("Diag.dat"), "") << what;
  }
  int CountCalls() {
    PutOld();
    FaultyCalls counting(Fault::None, 0);
    const InstalledCalls installed(counting);
    EXPECT_EQ(Make(), 0);
    return counting.Count();
  }
};

TEST_F(RosterToolKills, AtEveryCall) {
  const int calls = CountCalls();
  ASSERT_GT(calls, 20);
  for (const Fault fault : {Fault::KillBefore, Fault::KillWithin}) {
    for (int at = 1; at <= calls; ++at) {
      const std::string what = "killed at call " + std::to_string(at) + ": ";
      PutOld();
      ChildProcess child([&] {
        FaultyCalls faulty(fault, at);
        const InstalledCalls installed(faulty);
        return Make();
      });
      EXPECT_EQ(child.Wait(), -SIGKILL) << what;
      ExpectOldOrNew(what);
      ExpectNew(what);
    }
  }
}

TEST_F(RosterToolKills, AFailingDiskIsToldAndLosesNothing) {
  const int calls = CountCalls();
  int refused = 0;
  for (int at = 1; at <= calls; ++at) {
    const std::string what = "call " + std::to_string(at) + " fails: ";
    PutOld();
    {
      FaultyCalls faulty(Fault::Fail, at, 1, ENOSPC);
      const InstalledCalls installed(faulty);
      refused += Make();
    }
    ExpectOldOrNew(what);
    ExpectNew(what);
  }
  EXPECT_GT(refused, calls / 2);  // what fails on closing a file is of no account
}

}  // namespace
}  // namespace course::testing
