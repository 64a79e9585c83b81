#include "roster_tool/installation.h"

#include "platform/program.h"
#include "records/record_text.h"
#include "records/rosters.h"
#include "roster_tool/files.h"
#include "roster_tool/rights.h"
#include "roster_tool/terminal_text.h"

namespace roster_tool {
namespace {

using course::Padded;
using course::ParseNumber;
using course::Trimmed;
using platform::Access;
using platform::FileError;
using platform::Sharing;

constexpr int kPasswordShift = 10;  // codes of a stored password lie that much higher
constexpr int kNotReadLength = 2;   // of a class record

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

// Writes file after file, and can tell how far it came.
class Writer {
 public:
  explicit Writer(std::string folder) : folder_(std::move(folder)) {}

  void MakeResults(const KindOfFile& kind) {
    if (MakeIfMissing(kind)) IsNewNow(kind);
  }
  // So that it has its rights before it holds anything.
  void PrepareRoster(const KindOfFile& kind) { MakeIfMissing(kind); }
  void ReplaceAll(const std::vector<std::pair<KindOfFile, std::vector<std::string>>>& contents) {
    // All are held before the first is changed.
    std::vector<std::unique_ptr<platform::RecordFile>> files;
    for (const auto& [kind, records] : contents)
      files.push_back(Open(folder_, kind, Access::ReadWrite, Sharing::Exclusive));
    for (std::size_t i = 0; i < files.size(); ++i) {
      Replace(*files[i], contents[i].first, contents[i].second);
      IsNewNow(contents[i].first);
    }
  }
  const std::string& NewFiles() const { return newFiles_; }

 private:
  bool MakeIfMissing(const KindOfFile& kind) {
    if (BytesOf(folder_, kind)) return false;
    Open(folder_, kind, Access::ReadWrite, Sharing::Shared);
    return true;
  }
  void IsNewNow(const KindOfFile& kind) {
    newFiles_ += (newFiles_.empty() ? "" : ", ") + std::string(kind.name);
  }

  std::string folder_;
  std::string newFiles_;  // names
};

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
  return RostersFrom(RecordsIn(folder, kClasses), RecordsIn(folder, kStudents));
}

UsedNumbers ReadUsedNumbers(const std::string& folder) {
  UsedNumbers used;
  for (const KindOfFile& kind : {kRecords, kDiagnostics})
    for (const std::string& record : RecordsIn(folder, kind))
      used[ParseNumber(record.substr(2, 2))].insert(ParseNumber(record.substr(4, 2)));
  return used;
}

Complaints WhatKeepsFromWriting(const Writing& writing) {
  Complaints complaints = ForeignLinks(writing.folder);
  if (!complaints.empty()) return complaints;
  for (const KindOfFile& kind : {kClasses, kStudents})
    if (!writing.overwrite && !BytesOf(writing.folder, kind).value_or("").empty())
      complaints.push_back(std::string(kind.name) +
                           " is there already and holds something; --overwrite replaces it");
  if (!complaints.empty()) return complaints;
  if (!platform::IsWritable(writing.folder))
    return {ShownPath(writing.folder) + " cannot be written"};
  for (const KindOfFile& kind : {kClasses, kStudents})
    if (BytesOf(writing.folder, kind))
      Open(writing.folder, kind, Access::ReadWrite, Sharing::Exclusive);
  return WhatKeepsFromGiving(writing.folder, writing.group);
}

Complaints WriteInstallation(const Writing& writing, const Rosters& rosters) {
  Writer writer(writing.folder);
  try {
    for (const KindOfFile& kind : {kRecords, kDiagnostics}) writer.MakeResults(kind);
    for (const KindOfFile& kind : {kStudents, kClasses}) writer.PrepareRoster(kind);
    // Before a password stands there.
    const Complaints complaints = GiveToGroup(writing.folder, writing.group);
    // The classes come last: before them nobody can log in.
    writer.ReplaceAll({{kStudents, StudentRecords(rosters)}, {kClasses, ClassRecords(rosters)}});
    return complaints;
  } catch (const FileError& error) {
    if (writer.NewFiles().empty()) throw;
    throw FileError(error.number,
                    std::string(error.what()) +
                        "\nThe work is half done, and has to be done again; new are " +
                        writer.NewFiles());
  }
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
  Complaints fields = CheckFields(rosters);
  AddMissingNumbers(rosters, fields);
  Append(found.complaints, fields.empty() ? CheckTogether(rosters) : fields);
  Append(found.complaints, ForeignLinks(folder));
  Append(found.complaints, CheckRights(folder));
  return found;
}

}  // namespace roster_tool
