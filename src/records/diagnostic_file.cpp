#include "records/diagnostic_file.h"

#include <algorithm>
#include <optional>

#include "platform/record_file.h"
#include "platform/stop.h"
#include "records/activity_records.h"
#include "records/patience.h"
#include "records/record_text.h"
#include "session/session.h"

namespace course {
namespace {

using platform::Access;
using platform::FileError;
using platform::RecordFile;
using platform::Sharing;

constexpr const char* kDiagnosticFile = "Diag.dat";
constexpr const char* kWorkFile = "Diag.TMP";
constexpr const char* kProgramCode = "C2";
constexpr int kEverybody = -1;

int StudentOf(const std::string& record) {
  return ParseNumber(record.substr(4, 2));
}

std::string Letters(int column) {
  std::string letters;
  for (int problem = 1; problem <= session.gDiagnosticProbCount; ++problem)
    letters += session.gDiagnosticData.at(problem)[column];
  return letters;
}

// A result that takes an older one's place is written over it: the file keeps its owner, and nobody
// needs a right on the folder.  A machine that falls meanwhile leaves a mixture of both; so the new
// one stands behind the last record first, without its first letter.  So short it counts for
// nobody; and the next one at the file, who finds it there, completes what was cut.
constexpr std::size_t kKeyLength = 6;  // code, class and student
constexpr std::size_t kNoteLength = kDiagnosticRecordLength - 1;

std::string NoteOf(const std::string& record) {
  return record.substr(1);
}

// A replacement that was cut short.
struct Unfinished {
  long number;  // from 1
  std::string record;
};

bool AreOfOneStudent(const std::string& a, const std::string& b) {
  return a.substr(0, kKeyLength) == b.substr(0, kKeyLength);
}

std::optional<Unfinished> FindUnfinished(const std::vector<std::string>& records,
                                         const std::string& tail) {
  if (tail.size() != kNoteLength) return std::nullopt;
  const std::string record = kProgramCode[0] + tail;
  const auto found = std::ranges::find_if(
      records, [&](const std::string& old) { return AreOfOneStudent(old, record); });
  if (found == records.end()) return std::nullopt;
  return Unfinished{found - records.begin() + 1, record};
}

void FinishReplacement(RecordFile& file) {
  const auto unfinished = FindUnfinished(file.ReadAll(), file.Tail());
  if (!unfinished) return;
  file.Overwrite(unfinished->number, unfinished->record);
  file.WriteTail("");
}

void ReplaceRecord(const std::string& record, long number) {
  RecordFile file(DataFile(kDiagnosticFile), kDiagnosticRecordLength, Access::ReadWrite,
                  Sharing::Exclusive);
  FinishReplacement(file);
  // Results may have been erased since: no gap of nothing, and nobody else's result is lost.
  if (number > file.Count() || !AreOfOneStudent(file.Read(number), record))
    return file.Write(file.Count() + 1, record);
  file.WriteTail(NoteOf(record));
  file.Overwrite(number, record);
  file.WriteTail("");
}

std::vector<std::string> RecordsIn(RecordFile& file) {
  std::vector<std::string> records = file.ReadAll();
  if (const auto unfinished = FindUnfinished(records, file.Tail()))
    records[static_cast<std::size_t>(unfinished->number - 1)] = unfinished->record;
  return records;
}

// Null when all went well, or when the record stands in its place in the end.
std::optional<FileError> ReplacePatiently(const std::string& record, long number) {
  const auto error = TryFor45Seconds([&] { ReplaceRecord(record, number); });
  const auto stands = [&](RecordFile& file) {
    const std::vector<std::string> records = RecordsIn(file);
    const auto index = static_cast<std::size_t>(number - 1);
    return index < records.size() && records[index] == record;
  };
  if (error && Stands(kDiagnosticFile, kDiagnosticRecordLength, stands)) return std::nullopt;
  return error;
}

std::optional<FileError> AddPatiently(const std::string& record) {
  return AppendPatiently(kDiagnosticFile, kDiagnosticRecordLength, [&record](RecordFile& file) {
    FinishReplacement(file);
    return record;
  });
}

}  // namespace

void records::SaveDiagnosticRecord(int recordNum) {
  const std::string record =
      kProgramCode + Digits(session.gClassNum, 2) + Digits(session.gStudentNum, 2) + DateToday() +
      Letters(diagnostic_column::StudentLetter) + Letters(diagnostic_column::CorrectLetter);
  if (record.size() != kDiagnosticRecordLength) platform::Stop("Incorrect Record Length.");
  if (RecordsAreKept()) WriteDiagnosticRecord(record, recordNum);
  session.gProblemsAttempted = 0;
  session.gProblemsCorrect = 0;
}

void WriteDiagnosticRecord(const std::string& record, int recordNum) {
  const auto error =
      recordNum == kNoDiagnosticRecord ? AddPatiently(record) : ReplacePatiently(record, recordNum);
  if (error)
    platform::Stop(std::string(kSaveFailed) +
                   "\n\nError message: " + std::to_string(error->number) + " - " + error->what());
}

void MakeDiagnosticFile() {
  try {
    RecordFile(DataFile(kDiagnosticFile), kDiagnosticRecordLength, Access::ReadWrite,
               Sharing::Plain);
  } catch (const FileError&) {  // who needs the file is told
  }
}

int FindDiagnosticRecord(int classNum, int studentNum) {
  const std::vector<std::string> records = ReadDiagnosticRecords();
  for (std::size_t i = 0; i < records.size(); ++i)
    if (records[i].substr(0, 2) == kProgramCode &&
        ParseNumber(records[i].substr(2, 2)) == classNum && StudentOf(records[i]) == studentNum)
      return static_cast<int>(i) + 1;
  return kNoDiagnosticRecord;
}

std::vector<std::string> ReadDiagnosticRecords() {
  return ReadOrStop(kDiagnosticFile, [] {
    RecordFile file(DataFile(kDiagnosticFile), kDiagnosticRecordLength, Access::Read,
                    Sharing::Exclusive);
    return RecordsIn(file);
  });
}

void EraseDiagnosticResults(int studentNum) {
  if (studentNum != kEverybody && studentNum <= 0) platform::Stop("Student number not correct");
  RewriteFile({.name = kDiagnosticFile,
               .workName = kWorkFile,
               .workFile = platform::OldContents::Removed,
               .recordLength = kDiagnosticRecordLength,
               .prepare = FinishReplacement},
              [studentNum](std::vector<std::string>& records) {
                std::erase_if(records, [studentNum](const std::string& record) {
                  return studentNum == kEverybody || StudentOf(record) == studentNum;
                });
              });
}

}  // namespace course
