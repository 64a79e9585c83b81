#include "records/activity_records.h"

#include <cmath>
#include <string_view>

#include "platform/clock.h"
#include "platform/stop.h"
#include "records/patience.h"
#include "records/progress.h"
#include "records/record_text.h"
#include "session/session.h"

namespace course {

RecordHooks recordHooks;

namespace {

using platform::Access;
using platform::RecordFile;
using platform::Sharing;

constexpr const char* kRecordsFile = "RECORDS.DAT";
constexpr const char* kWorkFile = "RECORDS.TMP";
constexpr const char* kProgramCode = "C2";
constexpr int kLocalClass = 99;
constexpr int kTestOffset = 50;  // added to the unit of a unit test, to the lesson of a lesson test
constexpr int kSecondsOfDay = 86400;
constexpr int kMostMinutes = 999;

// From the start of the lesson to now, begun minutes counted whole.
int Minutes(double now) {
  double elapsed = now - static_cast<double>(session.gLessonStartTime);
  if (elapsed <= 0) elapsed += kSecondsOfDay;
  const long minutes = std::lrint(elapsed) / 60 + 1;
  return minutes < 0 || minutes > kMostMinutes ? kMostMinutes : static_cast<int>(minutes);
}

std::string ActivityRecord(int unitField, int lessonField, double now) {
  const std::string record = kProgramCode + Digits(session.gClassNum, 2) +
                             Digits(session.gStudentNum, 2) + DateToday() + Digits(unitField, 2) +
                             Digits(lessonField, 2) + Digits(session.gProblemsAttempted, 3) +
                             Digits(session.gProblemsCorrect, 3) + Digits(Minutes(now), 3);
  if (record.size() != kActivityRecordLength) platform::Stop("Incorrect Record Length.");
  return record;
}

void AddSessionEntry(const std::string& record, char kind, double now) {
  if (++session.gSessionRecordCount > kMaxSessionRecords)
    platform::Stop("gSessionRecords(" + std::to_string(session.gSessionRecordCount) +
                   "): subscript out of range");
  session.gSessionRecords.push_back(record + kind + Digits(static_cast<int>(now), 5));
}

void SaveRecord(int unitField, int lessonField, char kind) {
  const double now = platform::TheClock().SecondsSinceMidnight();
  const std::string record = ActivityRecord(unitField, lessonField, now);
  AddSessionEntry(record, kind, now);
  if (RecordsAreKept()) SaveActivityRecord(record);
}

void ClearTally() {
  session.gProblemsAttempted = 0;
  session.gProblemsCorrect = 0;
}

const char* TestCode(int correct, int attempted) {
  const double ratio = static_cast<double>(correct) / attempted;
  return ratio >= session.gTestPassPercent / 100.0 ? "C" : "T";
}

// A record as the progress reads it.
class RecordView {
 public:
  explicit RecordView(std::string_view record) : record_(record) {}
  std::string_view Code() const { return record_.substr(0, 2); }
  int Class() const { return ParseNumber(record_.substr(2, 2)); }
  int Student() const { return ParseNumber(record_.substr(4, 2)); }
  int UnitField() const { return ParseNumber(record_.substr(12, 2)); }
  int LessonField() const { return ParseNumber(record_.substr(14, 2)); }
  int Attempted() const { return ParseNumber(record_.substr(16, 3)); }
  int Correct() const { return ParseNumber(record_.substr(19, 3)); }

 private:
  std::string_view record_;
};

// On a network the file holds other classes and courses too; at home everything of the student
// counts.
bool Counts(const RecordView& record, int classNum, int studentNum) {
  if (record.Student() != studentNum) return false;
  if (classNum == kLocalClass) return true;
  return record.Code() == kProgramCode && classNum <= kLocalClass && record.Class() == classNum;
}

// False for a record that has no place in the table, or a test without a problem.
bool TakeProgress(const RecordView& record) {
  int unit = record.UnitField();
  int lesson = record.LessonField();
  const bool lessonTest = lesson > kTestOffset;
  const bool unitTest = unit > kTestOffset;
  if (lessonTest) lesson -= kTestOffset;
  if (unitTest) unit -= kTestOffset;
  if (unit < 1 || unit > kMaxUnits || lesson > kMaxLessons) return false;
  std::string& code = session.gProgressCodes[unit][lesson];
  if (lessonTest || unitTest) {
    if (record.Attempted() == 0) return false;
    code = TestCode(record.Correct(), record.Attempted());
  } else if (code.empty()) {
    code = "W";
  }
  return true;
}

// The file is held no longer than its reading takes.
std::vector<std::string> ReadForProgress(int classNum) {
  const bool local = classNum == kLocalClass;
  return ReadOrStop(kRecordsFile, [local] {
    return RecordFile(DataFile(kRecordsFile), kActivityRecordLength,
                      local ? Access::ReadWrite : Access::Read,
                      local ? Sharing::Plain : Sharing::Exclusive)
        .ReadAll();
  });
}

}  // namespace

bool RecordsAreKept() {
  if (session.gRecordKeepingEnabled != 1) return false;
  switch (session.gversion) {
    case 1:
      return false;
    case 2:
      return !session.gStudentName.empty();
    case 3:
      return !session.gClassName.empty() && !session.gStudentName.empty();
    default:
      platform::Stop("Incorrect version number detected!");
  }
}

void records::SavePracticeRecord() {
  if (session.gProblemsAttempted <= 0) return;
  SaveRecord(session.gUnitNum, session.gLessonNum, 'P');
  std::string& code = session.gProgressCodes.at(session.gUnitNum).at(session.gLessonNum);
  if (code.empty()) code = "W";
  UpdateUnitProgress();
  ClearTally();
}

void records::SaveTestRecord() {
  if (session.gProblemsAttempted <= 0) return;
  const bool lessonTest = session.gLessonTest == 1;
  const bool unitTest = session.gChapterTest == 1;
  if (lessonTest == unitTest) platform::Stop("Not clear if you are doing a test or not");
  SaveRecord(session.gUnitNum + (unitTest ? kTestOffset : 0),
             session.gLessonNum + (lessonTest ? kTestOffset : 0), 'T');
  session.gProgressCodes.at(session.gUnitNum).at(session.gLessonNum) =
      TestCode(session.gProblemsCorrect, session.gProblemsAttempted);
  UpdateUnitProgress();
  ClearTally();
}

void SaveActivityRecord(const std::string& record) {
  const auto error = AppendPatiently(kRecordsFile, kActivityRecordLength, [&record](RecordFile&) {
    return Padded(record, kActivityRecordLength);
  });
  if (error) platform::Stop(kSaveFailed);
}

void ReadStudentProgress(int classNum, int studentNum) {
  session.gProgressCodes = {};
  for (const std::string& text : ReadForProgress(classNum)) {
    const RecordView record(text);
    if (Counts(record, classNum, studentNum) && !TakeProgress(record)) StopAtReading(kRecordsFile);
  }
  UpdateUnitProgress();
}

std::vector<std::string> ReadActivityRecords() {
  return ReadOrStop(kRecordsFile, [] {
    return RecordFile(DataFile(kRecordsFile), kActivityRecordLength, Access::ReadWrite,
                      Sharing::Plain)
        .ReadAll();
  });
}

void EraseStudentRecords(int studentNum, EraseMode mode) {
  if (mode == EraseMode::All) {
    ClearFile(kRecordsFile, kActivityRecordLength);
  } else {
    RewriteFile({.name = kRecordsFile,
                 .workName = kWorkFile,
                 .workFile = platform::OldContents::Removed,
                 .recordLength = kActivityRecordLength},
                [studentNum](std::vector<std::string>& records) {
                  std::erase_if(records, [studentNum](const std::string& record) {
                    return RecordView(record).Student() == studentNum;
                  });
                });
  }
  if (session.gRecordKeepingEnabled == 1)
    ReadStudentProgress(session.gClassNum, session.gStudentNum);
  UpdateUnitProgress();
  if (recordHooks.RefreshProgress) recordHooks.RefreshProgress();
}

}  // namespace course
