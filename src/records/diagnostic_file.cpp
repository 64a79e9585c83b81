#include "records/diagnostic_file.h"

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

// In one step, so that a cut leaves the old result or the new one.
void ReplaceRecord(const std::string& record, long number) {
  RecordFile file(DataFile(kDiagnosticFile), kDiagnosticRecordLength, Access::ReadWrite,
                  Sharing::Exclusive);
  std::vector<std::string> records = file.ReadAll();
  const auto index = static_cast<std::size_t>(number - 1);
  if (index < records.size())
    records[index] = record;
  else
    records.push_back(record);  // the file has been emptied since: no gap of nothing
  file.ReplaceAll(records);
}

std::vector<std::string> ReadDiagnosticFile(const char* routine) {
  std::vector<std::string> records;
  OrStop(routine, kDiagnosticFile, [&] {
    records = RecordFile(DataFile(kDiagnosticFile), kDiagnosticRecordLength, Access::Read,
                         Sharing::Exclusive)
                  .ReadAll();
  });
  return records;
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
  const auto error = recordNum == kNoDiagnosticRecord
                         ? AppendPatiently(kDiagnosticFile, kDiagnosticRecordLength,
                                           [&record](RecordFile&) { return record; })
                         : TryFor45Seconds([&] { ReplaceRecord(record, recordNum); });
  if (error)
    platform::Stop(std::string(kSaveFailed) +
                   "\n\nError message: " + std::to_string(error->number) + " - " + error->what());
}

int FindDiagnosticRecord(int classNum, int studentNum) {
  const std::vector<std::string> records = ReadDiagnosticFile("FindDiagnosticRecord");
  for (std::size_t i = 0; i < records.size(); ++i)
    if (records[i].substr(0, 2) == kProgramCode &&
        ParseNumber(records[i].substr(2, 2)) == classNum && StudentOf(records[i]) == studentNum)
      return static_cast<int>(i) + 1;
  return kNoDiagnosticRecord;
}

std::vector<std::string> ReadDiagnosticRecords() {
  return ReadDiagnosticFile("ReadDiagnosticRecords");
}

void EraseDiagnosticResults(int studentNum) {
  if (studentNum != kEverybody && studentNum <= 0) platform::Stop("Student number not correct");
  RewriteFile({.routine = "EraseDiagnosticResults",
               .name = kDiagnosticFile,
               .workName = kWorkFile,
               .workFile = platform::OldContents::Removed,
               .recordLength = kDiagnosticRecordLength},
              [studentNum](std::vector<std::string>& records) {
                std::erase_if(records, [studentNum](const std::string& record) {
                  return studentNum == kEverybody || StudentOf(record) == studentNum;
                });
              });
}

}  // namespace course
