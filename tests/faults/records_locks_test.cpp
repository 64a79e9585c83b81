// Several workstations at one folder: who is kept out, how long a save waits, and that no record is
// lost or doubled.
#include <gtest/gtest.h>
#include <sched.h>

#include <map>
#include <optional>
#include <vector>

#include "platform/record_file.h"
#include "records/activity_records.h"
#include "records/diagnostic_file.h"
#include "records/rosters.h"
#include "support/child_process.h"
#include "support/expect_stop.h"
#include "support/record_fixture.h"

namespace course {
namespace {

using platform::Access;
using platform::FileError;
using platform::RecordFile;
using platform::Sharing;
using testing::ChildProcess;
using testing::ExpectStop;
using testing::Gate;

const std::string kAda = "C299070115260101005005001";
const std::string kBen = "C299080115260102005005001";

// A clock on which no time passes: a writer with it never gives up, and only lets others run.
class YieldingClock final : public platform::Clock {
 public:
  double SecondsSinceMidnight() override { return 36000; }
  platform::Date Today() override { return {2026, 1, 15}; }
  double Counter() override { return 0; }
  void WaitUntil(double) override { sched_yield(); }
};

class LocksTest : public testing::RecordsTest {
 protected:
  // A workstation that has the file open until it is told to let go.
  class Holder {
   public:
    Holder(const std::string& path, Sharing sharing)
        : child_([this, path, sharing] {
            const RecordFile file(path, 25, Access::ReadWrite, sharing);
            open_.Open();
            release_.Wait();
            return 0;
          }) {
      open_.Wait();
    }
    ~Holder() { LetGo(); }
    void LetGo() {
      if (!released_) release_.Open();
      released_ = true;
      child_.Wait();
    }

   private:
    Gate open_;
    Gate release_;
    bool released_ = false;
    ChildProcess child_;
  };

  bool CanOpen(Sharing sharing) const {
    try {
      const RecordFile file(folder.Path() + "RECORDS.DAT", 25, Access::ReadWrite, sharing);
      return true;
    } catch (const FileError& error) {
      EXPECT_EQ(error.number, EAGAIN);
      return false;
    }
  }
  // How often each record stands in a file.
  std::map<std::string, int> Counted(const std::string& name, std::size_t length) const {
    const std::string bytes = folder.Bytes(name);
    EXPECT_EQ(bytes.size() % length, 0U);
    std::map<std::string, int> counts;
    for (std::size_t at = 0; at + length <= bytes.size(); at += length)
      ++counts[bytes.substr(at, length)];
    return counts;
  }
  // Lets the holder go when so many seconds have passed in the pauses of the save, which take a
  // little longer than they should.
  void LetGoAfter(Holder& holder, double seconds) {
    user.OnPause = [this, &holder, end = clock.counter + seconds](double) {
      if (clock.counter >= end) holder.LetGo();
      clock.Advance(0.01);
    };
  }
};

TEST_F(LocksTest, OpensHoldBetweenProcesses) {
  struct Case {
    Sharing holder;
    bool exclusive, shared, plain;  // who else may
  };
  for (const Case& c :
       {Case{Sharing::Exclusive, false, false, false}, Case{Sharing::Shared, false, true, true},
        Case{Sharing::Plain, true, true, true}}) {
    const Holder holder(folder.Path() + "records.dat", c.holder);
    EXPECT_EQ(CanOpen(Sharing::Exclusive), c.exclusive);
    EXPECT_EQ(CanOpen(Sharing::Shared), c.shared);
    EXPECT_EQ(CanOpen(Sharing::Plain), c.plain);
  }
  EXPECT_TRUE(CanOpen(Sharing::Exclusive));
}

TEST_F(LocksTest, LockGoesWithAKilledProcess) {
  const Gate open;
  ChildProcess child([&] {
    const RecordFile file(folder.Path() + "RECORDS.DAT", 25, Access::Write, Sharing::Exclusive);
    open.Open();
    raise(SIGKILL);
    return 0;
  });
  open.Wait();
  EXPECT_EQ(child.Wait(), -SIGKILL);
  EXPECT_TRUE(CanOpen(Sharing::Exclusive));
}

TEST_F(LocksTest, SaveWaitsFortyFourSeconds) {
  folder.Put("RECORDS.DAT", kAda);
  Holder holder(folder.Path() + "RECORDS.DAT", Sharing::Exclusive);
  LetGoAfter(holder, 44);
  SaveActivityRecord(kBen);
  EXPECT_EQ(folder.Bytes("RECORDS.DAT"), kAda + kBen);
  EXPECT_NEAR(clock.counter, 44, 0.1);
  EXPECT_NEAR(user.pausedSeconds / user.pauses, 0.002, 1e-9);
  EXPECT_EQ(session.gInDelay, 0);
}

TEST_F(LocksTest, SaveGivesUpAfterFortyFive) {
  folder.Put("RECORDS.DAT", kAda);
  Holder holder(folder.Path() + "RECORDS.DAT", Sharing::Exclusive);
  LetGoAfter(holder, 46);
  session.gUnitNum = session.gLessonNum = session.gProblemsAttempted = 1;
  ExpectStop("We have tried to save your data, \nbut after 45 seconds it is still not possible.",
             records::SavePracticeRecord);
  EXPECT_NEAR(clock.counter, 45, 0.1);
  EXPECT_EQ(session.gSessionRecordCount, 1);
  holder.LetGo();
  EXPECT_EQ(folder.Bytes("RECORDS.DAT"), kAda);
}

TEST_F(LocksTest, HandlersSeeADelayWhileASaveWaits) {
  Holder holder(folder.Path() + "RECORDS.DAT", Sharing::Exclusive);
  int flag = 0;
  user.OnPause = [&](double) {
    flag = session.gInDelay;
    holder.LetGo();
  };
  SaveActivityRecord(kBen);
  EXPECT_EQ(flag, 1);
  EXPECT_EQ(session.gInDelay, 0);
}

TEST_F(LocksTest, DiagnosticResultTellsTheReason) {
  const std::string result = "C29907011526" + std::string(60, 'A');
  Holder holder(folder.Path() + "Diag.dat", Sharing::Exclusive);
  LetGoAfter(holder, 44);
  WriteDiagnosticRecord(result, kNoDiagnosticRecord);
  EXPECT_EQ(folder.Bytes("Diag.dat"), result);
  Holder second(folder.Path() + "Diag.dat", Sharing::Shared);
  LetGoAfter(second, 46);
  const std::string message =
      "We have tried to save your data, \nbut after 45 seconds it is still not possible.\n\n"
      "Error message: 11 - The file is in use";
  ExpectStop(message, [&] { WriteDiagnosticRecord(result, kNoDiagnosticRecord); });
  second.LetGo();
  Holder third(folder.Path() + "Diag.dat", Sharing::Exclusive);
  LetGoAfter(third, 46);
  ExpectStop(message, [&] { WriteDiagnosticRecord(result, 1); });
  third.LetGo();
  EXPECT_EQ(folder.Bytes("Diag.dat"), result);
}

TEST_F(LocksTest, ReadingDoesNotWait) {
  session.gversion = 3;
  const Holder records(folder.Path() + "RECORDS.DAT", Sharing::Exclusive);
  const Holder results(folder.Path() + "Diag.dat", Sharing::Exclusive);
  ExpectStop("Failed in attempt to read file RECORDS.DAT", [] { ReadStudentProgress(12, 7); });
  ExpectStop("Failed in attempt to read file RECORDS.DAT", [] { ReadStudentProgress(99, 7); });
  ExpectStop("Failed in attempt to read file RECORDS.DAT", [] { ReadActivityRecords(); });
  ExpectStop("Failed in attempt to read file Diag.dat", [] { ReadDiagnosticRecords(); });
  EXPECT_EQ(user.pauses, 0);
}

// On a network nobody else may have the file while it is read; at home it is read beside others.
TEST_F(LocksTest, NetworkIsReadAlone) {
  const Holder records(folder.Path() + "RECORDS.DAT", Sharing::Shared);
  const Holder results(folder.Path() + "Diag.dat", Sharing::Shared);
  ExpectStop("Failed in attempt to read file RECORDS.DAT", [] { ReadStudentProgress(12, 7); });
  ExpectStop("Failed in attempt to read file Diag.dat", [] { FindDiagnosticRecord(12, 7); });
  ReadStudentProgress(99, 7);
  EXPECT_TRUE(ReadActivityRecords().empty());
}

TEST_F(LocksTest, RostersAreReadWhileAnotherToolReadsThem) {
  session.gversion = 3;
  folder.Put("STUDENTS.DAT", "Ada                  7 12      ");
  folder.Put("CLASSES.DAT", "Monday                     60 12");
  const Holder students(folder.Path() + "STUDENTS.DAT", Sharing::Shared);
  const Holder classes(folder.Path() + "CLASSES.DAT", Sharing::Plain);
  EXPECT_EQ(ReadStudents(12).size(), 1U);
  EXPECT_EQ(ReadClasses().size(), 1U);
}

// Work of another workstation, which waits for its turn for ever.
template <class Work>
ChildProcess Workstation(Work work) {
  return ChildProcess([work] {
    YieldingClock clock;
    platform::InstallClock(&clock);
    work();
    return 0;
  });
}

// Record number n of a writer.
std::string RecordOf(int writer, int n) {
  char text[48];
  std::snprintf(text, sizeof text, "C299%02d0115260101%03d000001", writer, n);
  return text;
}

// A writer that saves so many records, from 1 on.
ChildProcess Writer(int number, int records) {
  return Workstation([number, records] {
    for (int n = 1; n <= records; ++n) SaveActivityRecord(RecordOf(number, n));
  });
}

TEST_F(LocksTest, ThirtyWritersLoseAndDoubleNothing) {
  constexpr int kWriters = 30;
  constexpr int kRecords = 20;
  user.OnPause = nullptr;
  {
    std::vector<ChildProcess> writers;
    for (int w = 1; w <= kWriters; ++w) writers.push_back(Writer(w, kRecords));
    for (ChildProcess& writer : writers) EXPECT_EQ(writer.Wait(), 0);
  }
  const auto counts = Counted("RECORDS.DAT", 25);
  EXPECT_EQ(counts.size(), static_cast<std::size_t>(kWriters * kRecords));
  for (const auto& [record, count] : counts) EXPECT_EQ(count, 1) << record;
}

TEST_F(LocksTest, ErasingAmongWritersTakesOnlyWhatIsMeant) {
  constexpr int kWriters = 6;
  constexpr int kRecords = 40;
  user.OnPause = nullptr;
  session.gRecordKeepingEnabled = 0;
  {
    std::vector<ChildProcess> writers;
    for (int w = 1; w <= kWriters; ++w) writers.push_back(Writer(w, kRecords));
    writers.push_back(Writer(99, kRecords));
    ChildProcess eraser = Workstation([] {
      for (int i = 0; i < 30; ++i) EraseStudentRecords(99, EraseMode::OneStudent);
    });
    for (ChildProcess& writer : writers) EXPECT_EQ(writer.Wait(), 0);
    EXPECT_EQ(eraser.Wait(), 0);
  }
  EraseStudentRecords(99, EraseMode::OneStudent);
  const auto counts = Counted("RECORDS.DAT", 25);
  EXPECT_EQ(counts.size(), static_cast<std::size_t>(kWriters * kRecords));
  for (const auto& [record, count] : counts) EXPECT_EQ(count, 1) << record;
}

// Each of several rewriters takes out his own, and none brings back what another has taken.
TEST_F(LocksTest, RewritersAtOnceUndoNothing) {
  constexpr int kRewriters = 6;
  constexpr int kEach = 5;
  user.OnPause = nullptr;
  std::string roster;
  for (int number = 1; number <= kRewriters * kEach + 1; ++number)
    roster += MakeStudentRecord("S", number);
  folder.Put("STUDENTS.DAT", roster);
  {
    std::vector<ChildProcess> rewriters;
    for (int r = 0; r < kRewriters; ++r)
      rewriters.push_back(Workstation([r] {
        for (int i = 1; i <= kEach; ++i) FileDeleteStudent(r * kEach + i, DeleteMode::OneStudent);
      }));
    for (ChildProcess& rewriter : rewriters) EXPECT_EQ(rewriter.Wait(), 0);
  }
  EXPECT_EQ(folder.Bytes("STUDENTS.DAT"), MakeStudentRecord("S", kRewriters * kEach + 1));
}

TEST_F(LocksTest, StudentsAddedAtOnceGetNumbersOfTheirOwn) {
  constexpr int kAdders = 10;
  user.OnPause = nullptr;
  {
    std::vector<ChildProcess> adders;
    for (int a = 0; a < kAdders; ++a)
      adders.push_back(Workstation([a] {
        for (int i = 0; i < 5; ++i) FileAddStudent("S" + std::to_string(a) + std::to_string(i));
      }));
    for (ChildProcess& adder : adders) EXPECT_EQ(adder.Wait(), 0);
  }
  EXPECT_EQ(StudentListItems().size(), 50U);
  for (int number = 1; number <= 50; ++number) EXPECT_TRUE(StudentNumberExists(number)) << number;
}

}  // namespace
}  // namespace course
