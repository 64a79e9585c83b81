#include "roster_tool/installation.h"

#include <cerrno>
#include <chrono>
#include <memory>
#include <optional>
#include <thread>

#include "platform/record_file.h"
#include "records/activity_records.h"
#include "records/diagnostic_file.h"
#include "records/record_text.h"
#include "records/rosters.h"

namespace roster_tool {
namespace {

using course::Padded;
using course::ParseNumber;
using course::Trimmed;
using platform::Access;
using platform::FileError;
using platform::RecordFile;
using platform::Sharing;

struct KindOfFile {
  const char* name;
  int recordLength;
};
constexpr KindOfFile kClasses = {"CLASSES.DAT", 32};
constexpr KindOfFile kStudents = {"STUDENTS.DAT", 31};
constexpr KindOfFile kRecords = {"RECORDS.DAT", course::kActivityRecordLength};
constexpr KindOfFile kDiagnostics = {"Diag.dat", course::kDiagnosticRecordLength};

constexpr int kPasswordShift = 10;  // codes of a stored password lie that much higher
constexpr int kNotReadLength = 2;   // of a class record

[[noreturn]] void ThrowNamed(const KindOfFile& kind, const FileError& error) {
  throw FileError(error.number, std::string(kind.name) + ": " + error.what());
}

// A workstation holds a file for an instant only.
std::unique_ptr<RecordFile> Open(const std::string& folder, const KindOfFile& kind, Access access,
                                 Sharing sharing) {
  constexpr int kAttempts = 200;
  constexpr std::chrono::milliseconds kBetween(10);
  for (int attempt = 1;; ++attempt) {
    try {
      return std::make_unique<RecordFile>(folder + "/" + kind.name, kind.recordLength, access,
                                          sharing);
    } catch (const FileError& error) {
      if (error.number != EAGAIN || attempt == kAttempts) ThrowNamed(kind, error);
      std::this_thread::sleep_for(kBetween);
    }
  }
}

// The bytes of a file; none when it is missing.
std::optional<std::string> BytesOf(const std::string& folder, const KindOfFile& kind) {
  try {
    return Open(folder, kind, Access::Read, Sharing::Shared)->ReadBytes();
  } catch (const FileError& error) {
    if (error.number == ENOENT) return std::nullopt;
    throw;
  }
}

// Whole records; what a file's end lacks of one is left out.
std::vector<std::string> RecordsOf(const std::optional<std::string>& bytes,
                                   const KindOfFile& kind) {
  std::vector<std::string> records;
  const auto length = static_cast<std::size_t>(kind.recordLength);
  for (std::size_t at = 0; bytes && at + length <= bytes->size(); at += length)
    records.push_back(bytes->substr(at, length));
  return records;
}

std::string PlaceOf(const KindOfFile& kind, std::size_t index) {
  return std::string(kind.name) + ", record " + std::to_string(index + 1);
}

std::string Shifted(std::string password, int shift) {
  for (char& c : password) c = static_cast<char>(c + shift);
  return password;
}

Rosters RostersFrom(const std::vector<std::string>& classes,
                    const std::vector<std::string>& students) {
  Rosters rosters;
  for (std::size_t i = 0; i < classes.size(); ++i)
    rosters.classes.push_back(
        {.place = PlaceOf(kClasses, i),
         .name = Trimmed(classes[i].substr(0, course::kClassNameLength)),
         .percent = Trimmed(classes[i].substr(course::kClassNameLength + kNotReadLength, 3)),
         .number = ParseNumber(classes[i].substr(30, 2))});
  for (std::size_t i = 0; i < students.size(); ++i)
    rosters.students.push_back(
        {.place = PlaceOf(kStudents, i),
         .className = "",
         .classNumber = ParseNumber(students[i].substr(23, 2)),
         .name = Trimmed(students[i].substr(0, course::kStudentNameLength)),
         .password = Shifted(Trimmed(students[i].substr(25, 6)), -kPasswordShift),
         .number = ParseNumber(students[i].substr(course::kStudentNameLength, 2))});
  return rosters;
}

void AddMissingNumbers(const Rosters& rosters, Complaints& complaints) {
  for (const ClassEntry& entry : rosters.classes)
    if (entry.number == 0) complaints.push_back(entry.place + ": there is no class number");
  for (const StudentEntry& student : rosters.students)
    if (student.number == 0) complaints.push_back(student.place + ": there is no student number");
}

// Counts the whole records of a file, and complains of one that is missing or ends within a record.
long CountRecords(const std::optional<std::string>& bytes, const KindOfFile& kind,
                  Complaints& complaints) {
  if (!bytes) {
    complaints.push_back(std::string(kind.name) + " is missing");
    return 0;
  }
  const auto length = static_cast<std::size_t>(kind.recordLength);
  if (bytes->size() % length != 0)
    complaints.push_back(std::string(kind.name) + " ends with " +
                         std::to_string(bytes->size() % length) + " bytes of a record of " +
                         std::to_string(length));
  return static_cast<long>(bytes->size() / length);
}

void Append(Complaints& complaints, const Complaints& more) {
  complaints.insert(complaints.end(), more.begin(), more.end());
}

void MakeIfMissing(const std::string& folder, const KindOfFile& kind) {
  Open(folder, kind, Access::ReadWrite, Sharing::Shared);
}

}  // namespace

std::vector<std::string> ClassRecords(const Rosters& rosters) {
  std::vector<std::string> records;
  for (const ClassEntry& entry : rosters.classes)
    records.push_back(Padded(entry.name, course::kClassNameLength + kNotReadLength) +
                      Padded(entry.percent, 3) + Padded(std::to_string(entry.number), 2));
  return records;
}

std::vector<std::string> StudentRecords(const Rosters& rosters) {
  std::vector<std::string> records;
  for (const StudentEntry& student : rosters.students)
    records.push_back(Padded(student.name, course::kStudentNameLength) +
                      Padded(std::to_string(student.number), 2) +
                      Padded(std::to_string(student.classNumber), 2) +
                      Padded(Shifted(student.password, kPasswordShift), 6));
  return records;
}

Rosters ReadRosters(const std::string& folder) {
  return RostersFrom(RecordsOf(BytesOf(folder, kClasses), kClasses),
                     RecordsOf(BytesOf(folder, kStudents), kStudents));
}

Complaints WriteInstallation(const std::string& folder, const Rosters& rosters, bool overwrite) {
  Complaints complaints;
  for (const KindOfFile& kind : {kClasses, kStudents})
    if (!overwrite && !BytesOf(folder, kind).value_or("").empty())
      complaints.push_back(std::string(kind.name) + " is there already and holds something");
  if (!complaints.empty()) return complaints;

  MakeIfMissing(folder, kRecords);
  MakeIfMissing(folder, kDiagnostics);
  // The classes come last: before them nobody can log in.
  const auto students = Open(folder, kStudents, Access::ReadWrite, Sharing::Exclusive);
  const auto classes = Open(folder, kClasses, Access::ReadWrite, Sharing::Exclusive);
  students->ReplaceAll(StudentRecords(rosters));
  classes->ReplaceAll(ClassRecords(rosters));
  return {};
}

Inspection InspectInstallation(const std::string& folder) {
  Inspection found;
  const auto classes = BytesOf(folder, kClasses);
  const auto students = BytesOf(folder, kStudents);
  found.classes = CountRecords(classes, kClasses, found.complaints);
  found.students = CountRecords(students, kStudents, found.complaints);
  found.activityRecords = CountRecords(BytesOf(folder, kRecords), kRecords, found.complaints);
  found.diagnosticResults =
      CountRecords(BytesOf(folder, kDiagnostics), kDiagnostics, found.complaints);
  const Rosters rosters = RostersFrom(RecordsOf(classes, kClasses), RecordsOf(students, kStudents));
  Append(found.complaints, CheckFields(rosters));
  AddMissingNumbers(rosters, found.complaints);
  Append(found.complaints, CheckTogether(rosters));
  return found;
}

}  // namespace roster_tool
