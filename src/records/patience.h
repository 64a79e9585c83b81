// How long the course waits for a record file that another workstation holds, and what happens to
// errors that nobody waits for.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "platform/record_file.h"

namespace course {

// Tries until it goes well, a short pause between two attempts, while 45 seconds have not passed on
// the time of day; then returns the last error.  Handlers see gInDelay 1 in the pauses.
std::optional<platform::FileError> TryFor45Seconds(const std::function<void()>& attempt);

// Appends a record to a file of the data folder under an exclusive open, as patiently.  The record
// is made when the file is open.  One whose writing failed half-way is never written twice, and one
// that stands in the file in the end is no failure.
std::optional<platform::FileError> AppendPatiently(
    const std::string& name, int recordLength,
    const std::function<std::string(platform::RecordFile& file)>& makeRecord);

// Whether a file of the data folder can be read and looks as it should: what was told to have
// failed may stand there all the same.
bool Stands(const std::string& name, int recordLength,
            const std::function<bool(platform::RecordFile& file)>& looks);

// What is shown when even 45 seconds did not help.
inline constexpr const char* kSaveFailed =
    "We have tried to save your data, \nbut after 45 seconds it is still not possible.";

// Stops the program: neither path nor reason is for the student's eyes.
[[noreturn]] void StopAtReading(const std::string& name);
// What is read from a file; an error stops the program.
template <class Read>
auto ReadOrStop(const std::string& name, Read read) {
  try {
    return read();
  } catch (const platform::FileError&) {
    StopAtReading(name);
  }
}

// Copies the records that stay to the work file, which stays behind, then puts them in the place of
// the file's contents.  Waits as patiently for the file; an error stops the program.
struct Rewriting {
  std::string name;
  std::string workName;
  platform::OldContents workFile;
  int recordLength;
  // What comes before the records are read.
  std::function<void(platform::RecordFile& file)> prepare = nullptr;
};
void RewriteFile(const Rewriting& rewriting,
                 const std::function<void(std::vector<std::string>& records)>& change);

// Leaves a file empty, as patiently; an error stops the program.
void ClearFile(const std::string& name, int recordLength);

}  // namespace course
