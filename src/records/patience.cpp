#include "records/patience.h"

#include "platform/clock.h"
#include "platform/events.h"
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

void PauseBetweenAttempts() {
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
      PauseBetweenAttempts();
      if (start + kPatience <= platform::TheClock().SecondsSinceMidnight()) return error;
    }
  }
}

std::optional<FileError> AppendPatiently(
    const std::string& name, int recordLength,
    const std::function<std::string(RecordFile& file)>& makeRecord) {
  std::string record;
  long number = 0;  // where an attempt may have left the record before it failed
  return TryFor45Seconds([&] {
    RecordFile file(DataFile(name), recordLength, Access::ReadWrite, Sharing::Exclusive);
    const long count = file.Count();
    const bool isThere = number > 0 && number <= count && file.Read(number) == record;
    if (!isThere) {
      record = makeRecord(file);
      number = count + 1;
    }
    file.Write(number, record);
  });
}

void StopAtFile(const std::string& routine, const std::string& name, const FileError& error) {
  platform::Stop(routine + ": " + DataFile(name) + ": " + error.what());
}

void OrStop(const std::string& routine, const std::string& name,
            const std::function<void()>& action) {
  try {
    action();
  } catch (const FileError& error) {
    StopAtFile(routine, name, error);
  }
}

void RewriteFile(const Rewriting& rewriting,
                 const std::function<void(std::vector<std::string>& records)>& change) {
  const auto error = TryFor45Seconds([&] {
    RecordFile file(DataFile(rewriting.name), rewriting.recordLength, Access::ReadWrite,
                    Sharing::Exclusive);
    std::vector<std::string> records = file.ReadAll();
    change(records);
    platform::WriteWorkFile(DataFile(rewriting.workName), records, rewriting.workFile);
    file.ReplaceAll(records);
  });
  if (error) StopAtFile(rewriting.routine, rewriting.name, *error);
}

void ClearFile(const std::string& routine, const std::string& name, int recordLength) {
  const auto error = TryFor45Seconds([&] {
    RecordFile(DataFile(name), recordLength, Access::ReadWrite, Sharing::Exclusive).Clear();
  });
  if (error) StopAtFile(routine, name, *error);
}

}  // namespace course
