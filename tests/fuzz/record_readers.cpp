#include "fuzz/record_readers.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "fuzz/memory_files.h"
#include "platform/manual_clock.h"
#include "records/activity_records.h"
#include "records/diagnostic_file.h"
#include "records/diagnostic_report.h"
#include "records/record_load.h"
#include "records/record_text.h"
#include "records/rosters.h"
#include "session/catalogue.h"
#include "session/session.h"
#include "support/scripted_user.h"

namespace course::testing {
namespace {

using Strings = std::vector<std::string>;

// Somebody who reads every message, and for whom waiting takes no time.
class Reader final : public platform::User {
 public:
  Reader() {
    platform::InstallUser(this);
    platform::InstallClock(&clock_);
  }
  ~Reader() override {
    platform::InstallClock(nullptr);
    platform::InstallUser(nullptr);
  }
  Reader(const Reader&) = delete;
  Reader& operator=(const Reader&) = delete;

  void AtWait(const std::string&) override {}
  void AtPause(double) override { clock_.Advance(10); }
  platform::Answer AtMessage(const platform::Message&) override { return platform::Answer::Ok; }
  std::optional<std::string> AtInput(const std::string&) override { return {}; }
  void AtStop(const std::string& message) override { throw StoppedProgram{message}; }
  void AtEnd() override { throw ProgramEnded{}; }

 private:
  platform::ManualClock clock_;
};

void Require(bool right, const std::string& what) {
  if (!right) throw TestFailure(what);
}

// Runs a reading that may stop the program, for one of the reasons that a bad file is.
void MayStop(const std::function<void()>& reading) {
  constexpr const char* kReasons[] = {"Failed in attempt to read file ", "RecordTitle: unit ",
                                      "SelectRecords: a view has place for 1000 records",
                                      "DiagnosticReport: no tables for the program code "};
  try {
    reading();
  } catch (const StoppedProgram& stopped) {
    const bool known =
        std::any_of(std::begin(kReasons), std::end(kReasons),
                    [&](const char* reason) { return stopped.message.starts_with(reason); });
    Require(known, "the program stopped with: " + stopped.message);
  }
}

std::string Joined(const Strings& records) {
  std::string bytes;
  for (const std::string& record : records) bytes += record;
  return bytes;
}

// The whole records of a file without those that a condition holds for.
template <class Condition>
Strings Without(Strings records, Condition condition) {
  std::erase_if(records, condition);
  return records;
}

Strings Cut(const std::string& bytes, std::size_t length) {
  Strings records;
  for (std::size_t at = 0; at + length <= bytes.size(); at += length)
    records.push_back(bytes.substr(at, length));
  return records;
}

void ReadActivities(MemoryFiles& folder, const std::string& bytes) {
  folder["STUDENTS.DAT"] = MakeStudentRecord("Ada", 7);
  folder["RECORDS.DAT"] = bytes;
  const Strings records = Cut(bytes, kActivityRecordLength);
  const int student = records.empty() ? 7 : StudentOfRecord(records.front());
  MayStop([&] { ReadStudentProgress(99, student); });
  MayStop([&] { ReadStudentProgress(12, student); });
  for (const int shown : {kAllStudents, student})
    for (const SortOrder order :
         {SortOrder::Name, SortOrder::Percent, SortOrder::Date, SortOrder::Lesson})
      MayStop([&] {
        gRecordsSortOrder = order;
        for (const ExpandedRecord& record : LoadRecords(shown))
          Require(DisplayLine(record).size() >= 98 && PrintedLine(record).size() >= 113 &&
                      SessionLine(record).size() >= 63,
                  "a line is too short");
      });
  const std::string added = "C299070115260101005005001";
  SaveActivityRecord(added);
  Require(folder["RECORDS.DAT"] == Joined(records) + added, "an append changed the others");
  session.gRecordKeepingEnabled = 0;
  EraseStudentRecords(student, EraseMode::OneStudent);
  Require(Cut(folder["RECORDS.DAT"], kActivityRecordLength) ==
              Without(Cut(Joined(records) + added, kActivityRecordLength),
                      [&](const auto& record) { return StudentOfRecord(record) == student; }),
          "an erase took or left too much");
}

void ReadLocalRoster(MemoryFiles& folder, const std::string& bytes) {
  folder["STUDENTS.DAT"] = bytes;
  const Strings records = Cut(bytes, 25);
  CountStudents();
  MayStop([] {
    for (const std::string& item : ReadStudents(99)) {
      Require(item.size() == 123, "an item of a wrong length");
      StudentNumberOf(item);
    }
  });
  const Strings items = StudentListItems();
  Require(items.size() == records.size(), "the list does not show every record");
  const int number = items.empty() ? 1 : StudentNumberOf(items.front());
  if (!items.empty())
    Require(StudentNameFromNumber(number) == StudentNameOf(items.front()), "another one's name");
  FileAddStudent("Ada");
  const std::string before = folder["STUDENTS.DAT"];
  Require(before.starts_with(Joined(records)) && before.size() == (records.size() + 1) * 25,
          "an added name changed the others");
  FileEditStudent(number, "Ben");
  Require(folder["STUDENTS.DAT"].size() == before.size(), "a new name changed the length");
  FileDeleteStudent(number, DeleteMode::OneStudent);
  Require(!StudentNumberExists(number), "a deleted student is there");
}

void ReadNetworkRoster(MemoryFiles& folder, const std::string& bytes) {
  folder["STUDENTS.DAT"] = bytes;
  session.gversion = 3;
  for (const int classNum : {0, 12})
    MayStop([classNum] {
      for (const std::string& item : ReadStudents(classNum)) {
        Require(item.size() == 129, "an item of a wrong length");
        StudentNumberOf(item);
        Require(PasswordOf(item).size() <= 6, "a long password");
      }
    });
}

void ReadClassFile(MemoryFiles& folder, const std::string& bytes) {
  folder["CLASSES.DAT"] = bytes;
  MayStop([] {
    for (const std::string& item : ReadClasses()) {
      Require(item.size() == 130, "an item of a wrong length");
      const int percent = ClassPercentOf(item);
      Require(percent >= 0 && percent <= 999, "a percent out of range");
      ClassNumberOf(item);
    }
  });
}

void ReadResults(MemoryFiles& folder, const std::string& bytes) {
  folder["Diag.dat"] = bytes;
  const Strings records = Cut(bytes, kDiagnosticRecordLength);
  Require(ReadDiagnosticRecords() == records, "the list does not show every result");
  for (const std::string& record : records) {
    MayStop([&] { DiagnosticReports({{record, "Ada"}, {record, ""}}); });
    MayStop([&] { DiagnosticReportPages({record, "Ada"}); });
  }
  const std::string result = "C29907011526" + std::string(60, 'A');
  WriteDiagnosticRecord(result, FindDiagnosticRecord(99, 7));
  const int place = FindDiagnosticRecord(99, 7);
  Require(place != kNoDiagnosticRecord, "a result is not found again");
  EraseDiagnosticResults(7);
  Require(FindDiagnosticRecord(99, 7) == kNoDiagnosticRecord, "an erased result is there");
}

}  // namespace

void ReadRecordFiles(std::string_view input) {
  constexpr void (*kReaders[])(MemoryFiles&, const std::string&) = {
      ReadActivities, ReadLocalRoster, ReadNetworkRoster, ReadClassFile, ReadResults};
  if (input.empty()) return;
  MemoryFiles folder;
  const Reader reader;
  session = Session{};
  FillCourseTables();
  session.gversion = 2;
  session.gDataPath = MemoryFiles::kFolder;
  const auto chosen = static_cast<unsigned char>(input.front()) % std::size(kReaders);
  kReaders[chosen](folder, std::string(input.substr(1)));
}

}  // namespace course::testing

// The entry of the fuzzer; an exception that leaves it is a finding.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  course::testing::ReadRecordFiles({reinterpret_cast<const char*>(data), size});
  return 0;
}
