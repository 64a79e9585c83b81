#include "records/rosters.h"

#include <algorithm>
#include <cmath>
#include <optional>

#include "platform/record_file.h"
#include "platform/stop.h"
#include "records/patience.h"
#include "records/record_text.h"
#include "session/session.h"

namespace course {
namespace {

using platform::Access;
using platform::RecordFile;
using platform::Sharing;

constexpr const char* kStudentsFile = "STUDENTS.DAT";
constexpr const char* kWorkFile = "STUDENTS.TMP";
constexpr const char* kClassesFile = "CLASSES.DAT";
constexpr int kLocalLength = 25;
constexpr int kNetworkLength = 31;
constexpr int kClassLength = 32;
constexpr int kNetworkVersion = 3;
constexpr const char* kLocalClass = "99";
constexpr int kUsualPercent = 60;
constexpr int kPasswordShift = 10;  // codes of a stored password lie that much higher

// Places in a list item, behind the name and the gap.
constexpr std::size_t kStudentHidden = kStudentNameLength + kHiddenGap;
constexpr std::size_t kClassHidden = kClassNameLength + kHiddenGap;

int NumberOf(const std::string& record) {
  return ParseNumber(record.substr(kStudentNameLength, 2));
}

std::string StudentItem(const std::string& record) {
  return record.substr(0, kStudentNameLength) + std::string(kHiddenGap, ' ') +
         record.substr(kStudentNameLength, 2);
}

std::string ClassItem(const std::string& record) {
  return record.substr(0, kClassNameLength) + std::string(kHiddenGap, ' ') + record.substr(27, 3) +
         record.substr(30, 2);
}

RecordFile OpenShared(const char* name, int length) {
  return RecordFile(DataFile(name), length, Access::ReadWrite, Sharing::Shared);
}

// Records of a local roster, of which a larger half counts as a whole.
std::vector<std::string> RoundedRecords() {
  std::string bytes = OpenShared(kStudentsFile, kLocalLength).ReadBytes();
  const auto count =
      static_cast<std::size_t>(std::lrint(static_cast<double>(bytes.size()) / kLocalLength));
  bytes.resize(count * kLocalLength, ' ');
  std::vector<std::string> records;
  for (std::size_t i = 0; i < count; ++i)
    records.push_back(bytes.substr(i * kLocalLength, kLocalLength));
  return records;
}

std::vector<std::string> LocalItems() {
  std::vector<std::string> items;
  for (const std::string& record : RoundedRecords()) items.push_back(StudentItem(record));
  return items;
}

std::vector<std::string> NetworkItems(int classNum) {
  std::vector<std::string> items;
  for (const std::string& record : OpenShared(kStudentsFile, kNetworkLength).ReadAll())
    if (ParseNumber(record.substr(23, 2)) == classNum)
      items.push_back(StudentItem(record) + record.substr(25, 6));
  return items;
}

// More entries than the login has places end the program.
std::vector<std::string> Limited(std::vector<std::string> items, const char* name) {
  if (items.size() > kMaxRosterEntries) StopAtReading(name);
  return items;
}

std::vector<std::string> LocalRecords() {
  return ReadOrStop(kStudentsFile, [] {
    return RecordFile(DataFile(kStudentsFile), kLocalLength, Access::ReadWrite, Sharing::Plain)
        .ReadAll();
  });
}

std::optional<std::string> RecordWithNumber(const std::vector<std::string>& records, int number) {
  const auto found = std::find_if(records.begin(), records.end(), [number](const auto& record) {
    return NumberOf(record) == number;
  });
  if (found == records.end()) return std::nullopt;
  return *found;
}

// The roster is rewritten through a work file that is not shortened.
void RewriteRoster(const std::function<void(std::vector<std::string>&)>& change) {
  RewriteFile({.name = kStudentsFile,
               .workName = kWorkFile,
               .workFile = platform::OldContents::Kept,
               .recordLength = kLocalLength},
              change);
}

}  // namespace

std::vector<std::string> ReadStudents(int classNum) {
  return ReadOrStop(kStudentsFile, [classNum] {
    return Limited(session.gversion == kNetworkVersion ? NetworkItems(classNum) : LocalItems(),
                   kStudentsFile);
  });
}

std::vector<std::string> ReadClasses() {
  session.gClassNum = 0;
  session.gClassName.clear();
  return ReadOrStop(kClassesFile, [] {
    std::vector<std::string> items;
    for (const std::string& record : OpenShared(kClassesFile, kClassLength).ReadAll())
      items.push_back(ClassItem(record));
    return Limited(items, kClassesFile);
  });
}

long CountStudents() {
  return ReadOrStop(kStudentsFile, [] { return OpenShared(kStudentsFile, kLocalLength).Count(); });
}

std::string StudentNameOf(const std::string& item) {
  return item.substr(0, kStudentNameLength);
}

int StudentNumberOf(const std::string& item) {
  return ParseNumber(item.substr(kStudentHidden, 2));
}

std::string PasswordOf(const std::string& networkItem) {
  std::string password = Trimmed(networkItem.substr(kStudentHidden + 2));
  for (char& c : password) c = static_cast<char>(c - kPasswordShift);
  return password;
}

std::string ClassNameOf(const std::string& item) {
  return item.substr(0, kClassNameLength);
}

int ClassPercentOf(const std::string& item) {
  const std::string field = Trimmed(item.substr(kClassHidden, 3));
  const bool isNumber = !field.empty() && field.find_first_not_of("0123456789") == field.npos;
  return isNumber ? ParseNumber(field) : kUsualPercent;
}

int ClassNumberOf(const std::string& item) {
  return ParseNumber(item.substr(kClassHidden + 3, 2));
}

std::vector<std::string> StudentListItems() {
  std::vector<std::string> items;
  for (const std::string& record : LocalRecords()) items.push_back(StudentItem(record));
  return items;
}

bool StudentNumberExists(int number) {
  return RecordWithNumber(LocalRecords(), number).has_value();
}

std::string StudentNameFromNumber(int number) {
  const auto record = RecordWithNumber(LocalRecords(), number);
  return record ? record->substr(0, kStudentNameLength) : "";
}

std::string MakeStudentRecord(const std::string& name, int number) {
  return Padded(name, kStudentNameLength) + Padded(std::to_string(number), 2) + kLocalClass;
}

void FileAddStudent(const std::string& name) {
  const auto error = AppendPatiently(kStudentsFile, kLocalLength, [&name](RecordFile& file) {
    const std::vector<std::string> records = file.ReadAll();
    int number = 1;
    while (RecordWithNumber(records, number)) ++number;
    return MakeStudentRecord(name, number);
  });
  if (error) platform::Stop(kSaveFailed);
}

void FileEditStudent(int number, const std::string& name) {
  RewriteRoster([&](std::vector<std::string>& records) {
    for (std::string& record : records)
      if (NumberOf(record) == number)
        record.replace(0, kStudentNameLength, Padded(name, kStudentNameLength));
  });
}

void FileDeleteStudent(int number, DeleteMode mode) {
  if (mode == DeleteMode::All) return ClearFile(kStudentsFile, kLocalLength);
  RewriteRoster([number](std::vector<std::string>& records) {
    std::erase_if(records, [number](const auto& record) { return NumberOf(record) == number; });
  });
}

}  // namespace course
