#include "roster_tool/files.h"

#include <cerrno>
#include <chrono>
#include <thread>

namespace roster_tool {
namespace {

using platform::Access;
using platform::FileError;
using platform::RecordFile;
using platform::Sharing;

[[noreturn]] void ThrowNamed(const KindOfFile& kind, const FileError& error) {
  throw FileError(error.number, std::string(kind.name) + ": " + error.what());
}

}  // namespace

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

std::optional<std::string> BytesOf(const std::string& folder, const KindOfFile& kind) {
  try {
    return Open(folder, kind, Access::Read, Sharing::Shared)->ReadBytes();
  } catch (const FileError& error) {
    if (error.number == ENOENT) return std::nullopt;
    throw;
  }
}

std::vector<std::string> RecordsOf(const std::optional<std::string>& bytes,
                                   const KindOfFile& kind) {
  std::vector<std::string> records;
  const auto length = static_cast<std::size_t>(kind.recordLength);
  for (std::size_t at = 0; bytes && at + length <= bytes->size(); at += length)
    records.push_back(bytes->substr(at, length));
  return records;
}

std::vector<std::string> RecordsIn(const std::string& folder, const KindOfFile& kind) {
  return RecordsOf(BytesOf(folder, kind), kind);
}

void Replace(RecordFile& file, const KindOfFile& kind, const std::vector<std::string>& records) {
  try {
    file.ReplaceAll(records);
  } catch (const FileError& error) {
    ThrowNamed(kind, error);
  }
}

std::string PlaceOf(const KindOfFile& kind, std::size_t index) {
  return std::string(kind.name) + ", record " + std::to_string(index + 1);
}

}  // namespace roster_tool
