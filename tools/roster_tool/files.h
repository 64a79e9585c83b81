// The four record files of a folder that workstations share.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "platform/record_file.h"
#include "records/activity_records.h"
#include "records/diagnostic_file.h"

namespace roster_tool {

struct KindOfFile {
  const char* name;
  int recordLength;
};
inline constexpr KindOfFile kClasses = {"CLASSES.DAT", 32};
inline constexpr KindOfFile kStudents = {"STUDENTS.DAT", 31};
inline constexpr KindOfFile kRecords = {"RECORDS.DAT", course::kActivityRecordLength};
inline constexpr KindOfFile kDiagnostics = {"Diag.dat", course::kDiagnosticRecordLength};
inline constexpr KindOfFile kAllFiles[] = {kClasses, kStudents, kRecords, kDiagnostics};

// All of these throw platform::FileError with the file's name in its text.

// Waits two seconds for a file that a workstation holds.
std::unique_ptr<platform::RecordFile> Open(const std::string& folder, const KindOfFile& kind,
                                           platform::Access access, platform::Sharing sharing);
// The bytes of a file; none when it is missing.
std::optional<std::string> BytesOf(const std::string& folder, const KindOfFile& kind);
// Whole records; what a file's end lacks of one is left out.
std::vector<std::string> RecordsOf(const std::optional<std::string>& bytes, const KindOfFile& kind);
std::vector<std::string> RecordsIn(const std::string& folder, const KindOfFile& kind);
// Puts the records in the place of a file's others.
void Replace(platform::RecordFile& file, const KindOfFile& kind,
             const std::vector<std::string>& records);

// "STUDENTS.DAT, record 3" for the index 2.
std::string PlaceOf(const KindOfFile& kind, std::size_t index);

}  // namespace roster_tool
