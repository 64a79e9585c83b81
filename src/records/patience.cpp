#include "records/patience.h"

#include "platform/clock.h"
#include "platform/events.h"
#include "platform/form.h"
#include "platform/stop.h"
#include "records/record_text.h"
#include "session/session.h"

namespace course {
namespace {

using platform::Access;
using platform::FileError;
using platform::RecordFile;
using platform::Sharing;

constexpr double kPatience = 45;  // seconds
constexpr double kPause = 0.002;  // seconds: the shortest pause that the course makes

// A handler that ran here would find a form half-way through a save, or begin a second one.
void PauseBetweenAttempts() {
  const platform::FrontFormWaits wait;
  const int inDelay = session.gInDelay;
  session.gInDelay = 1;
  platform::Pause(kPause);
  session.gInDelay = inDelay;
}

}  // namespace

std::optional<FileError> TryFor45Seconds(const std::function<void()>& attempt) {
  const double start = platform::TheClock().SecondsSinceMidnight();
  for (;;) {
    try {
      attempt();
      return std::nullopt;
    } catch (const FileError& error) {
      // Looked at before the pause, in which a question may stand open as long as it likes.
      if (start + kPatience <= platform::TheClock().SecondsSinceMidnight()) return error;
      PauseBetweenAttempts();
    }
  }
}

std::optional<FileError> AppendPatiently(
    const std::string& name, int recordLength,
    const std::function<std::string(RecordFile& file)>& makeRecord) {
  std::string record;
  long number = 0;  // where an attempt may have left the record before it failed
  const auto isThere = [&](RecordFile& file) {
    return number > 0 && number <= file.Count() && file.Read(number) == record;
  };
  const auto error = TryFor45Seconds([&] {
    RecordFile file(DataFile(name), recordLength, Access::ReadWrite, Sharing::Exclusive);
    if (!isThere(file)) {
      record = makeRecord(file);
      number = file.Count() + 1;
    }
    file.Write(number, record);
  });
  if (error && Stands(name, recordLength, isThere)) return std::nullopt;
  return error;
}

bool Stands(const std::string& name, int recordLength,
            const std::function<bool(RecordFile& file)>& looks) {
  try {
    RecordFile file(DataFile(name), recordLength, Access::Read, Sharing::Plain);
    return looks(file);
  } catch (const FileError&) {
    return false;
  }
}

void StopAtReading(const std::string& name) {
  platform::Stop("Failed in attempt to read file " + name);
}

void RewriteFile(const Rewriting& rewriting,
                 const std::function<void(std::vector<std::string>& records)>& change) {
  std::optional<std::vector<std::string>> wanted;
  const auto error = TryFor45Seconds([&] {
    RecordFile file(DataFile(rewriting.name), rewriting.recordLength, Access::ReadWrite,
                    Sharing::Exclusive);
    if (rewriting.prepare) rewriting.prepare(file);
    std::vector<std::string> records = file.ReadAll();
    change(records);
    wanted = records;
    platform::WriteWorkFile(DataFile(rewriting.workName), records, rewriting.workFile);
    file.ReplaceAll(records);
  });
  const auto isWanted = [&](RecordFile& file) { return wanted && file.ReadAll() == *wanted; };
  if (error && !Stands(rewriting.name, rewriting.recordLength, isWanted))
    platform::Stop(kSaveFailed);
}

void ClearFile(const std::string& name, int recordLength) {
  const auto error = TryFor45Seconds([&] {
    RecordFile(DataFile(name), recordLength, Access::ReadWrite, Sharing::Exclusive).Clear();
  });
  const auto isEmpty = [](RecordFile& file) { return file.ReadBytes().empty(); };
  if (error && !Stands(name, recordLength, isEmpty)) platform::Stop(kSaveFailed);
}

}  // namespace course
