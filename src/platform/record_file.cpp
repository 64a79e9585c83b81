#include "platform/record_file.h"

#include <algorithm>
#include <cctype>
#include <cerrno>
#include <cstring>
#include <string_view>

#include "platform/file_calls.h"

namespace platform {
namespace {

// A file that is replaced again and again between its opening and its locking.
constexpr int kMostReopenings = 1000;

// The result of a call that went well.
template <class Number>
Number Checked(Number result) {
  if (result >= 0) return result;
  const int number = static_cast<int>(-result);
  const char* text = strerrordesc_np(number);
  throw FileError(number, text != nullptr ? text : "Unknown error");
}

[[noreturn]] void ThrowBusy() {
  throw FileError(EAGAIN, "The file is in use");
}

bool IsRefusal(int result) {
  return result == -EACCES || result == -EPERM || result == -EROFS;
}

bool SameName(const std::string& a, const std::string& b) {
  return std::equal(a.begin(), a.end(), b.begin(), b.end(), [](unsigned char x, unsigned char y) {
    return std::toupper(x) == std::toupper(y);
  });
}

struct Place {
  std::string folder;  // with a slash at its end
  std::string name;
};

Place PlaceOf(std::string path) {
  std::replace(path.begin(), path.end(), '\\', '/');
  const std::size_t slash = path.rfind('/');
  if (slash == std::string::npos) return {"./", path};
  return {path.substr(0, slash + 1), path.substr(slash + 1)};
}

// The name under which a file stands on the disk.  Of several spellings the first in the order of
// their codes is the one, so that all workstations take the same.
std::optional<std::string> NameOnDisk(const Place& place) {
  std::vector<std::string> names;
  Checked(TheFileCalls().List(place.folder, names));
  std::optional<std::string> found;
  for (const std::string& name : names)
    if (SameName(name, place.name) && (!found || name < *found)) found = name;
  return found;
}

// Closes at the end of its life.
class Descriptor {
 public:
  explicit Descriptor(int number) : number_(Checked(number)) {}
  ~Descriptor() { TheFileCalls().Close(number_); }
  Descriptor(const Descriptor&) = delete;
  Descriptor& operator=(const Descriptor&) = delete;
  int Number() const { return number_; }

 private:
  int number_;
};

FileFacts FactsOf(int descriptor) {
  FileFacts facts;
  Checked(TheFileCalls().Facts(descriptor, facts));
  return facts;
}

// Workstations share the folder: the mask of the one that makes a file must not keep the others
// from it.  Not every network mount knows rights, so it is no error when they cannot be set.
void TakeRightsOfFolder(int descriptor, const std::string& folder) {
  FileFacts above;
  Checked(TheFileCalls().FactsOfPath(folder, above));
  const int writers = above.permissions & 0022;
  const int own = FactsOf(descriptor).permissions;
  const int wanted = own | writers | (writers << 1);  // who writes reads, too
  if (wanted != own) TheFileCalls().SetPermissions(descriptor, wanted);
}

// One write; a short one is what a full disk does.
void WriteOnce(int descriptor, const std::string& bytes, long offset) {
  if (bytes.empty()) return;
  const long written =
      Checked(TheFileCalls().Write(descriptor, bytes.data(), bytes.size(), offset));
  if (written < static_cast<long>(bytes.size())) Checked(-ENOSPC);
}

std::string Joined(const std::vector<std::string>& records) {
  std::string bytes;
  for (const std::string& record : records) bytes += record;
  return bytes;
}

// The file that takes another one's place: "RECORDS.DAT.0123456789abcdef.NEW" beside it.
constexpr std::string_view kReplacementEnd = ".NEW";
constexpr std::size_t kRandomLength = 16;

bool IsReplacement(std::string_view file, const std::string& name) {
  const std::string begin = std::string(file) + ".";
  return name.size() == begin.size() + kRandomLength + kReplacementEnd.size() &&
         name.starts_with(begin) && name.ends_with(kReplacementEnd);
}

// What replacements left that were cut short.  Only under the exclusive lock of the file, which a
// replacement in progress holds.
void RemoveUnfinished(const Place& place) {
  std::vector<std::string> names;
  Checked(TheFileCalls().List(place.folder, names));
  for (const std::string& name : names)
    if (IsReplacement(place.name, name)) TheFileCalls().Remove(place.folder + name);
}

std::string ReplacementOf(const std::string& path) {
  std::string random;
  Checked(TheFileCalls().RandomName(random));
  return path + "." + random + std::string(kReplacementEnd);
}

// False when the system does not let this person give the file away.
bool HandOver(int descriptor, const FileFacts& old) {
  const FileFacts made = FactsOf(descriptor);
  if (made.owner == old.owner && made.group == old.group) return true;
  const int result = TheFileCalls().SetOwner(descriptor, old.owner, old.group);
  if (IsRefusal(result)) return false;
  Checked(result);
  return true;
}

// Writes a new file with the old one's owner, group and rights.  False when it cannot be made so.
bool WriteReplacement(const std::string& path, const std::string& bytes, const FileFacts& old) {
  FileCalls& calls = TheFileCalls();
  const int opened = calls.Open(path, {.write = true, .create = true});
  if (IsRefusal(opened)) return false;
  const Descriptor file(opened);
  if (!HandOver(file.Number(), old)) return false;
  Checked(calls.SetPermissions(file.Number(), old.permissions));
  WriteOnce(file.Number(), bytes, 0);
  Checked(calls.Sync(file.Number()));
  return true;
}

}  // namespace

std::optional<std::string> PathOnDisk(const std::string& path) {
  const Place place = PlaceOf(path);
  const std::optional<std::string> name = NameOnDisk(place);
  if (!name) return std::nullopt;
  return place.folder + *name;
}

RecordFile::RecordFile(const std::string& path, int recordLength, Access access, Sharing sharing)
    : recordLength_(recordLength) {
  const Place place = PlaceOf(path);
  folder_ = place.folder;
  try {
    for (int i = 0; !OpenNamed(place.name, access, sharing); ++i)
      if (i == kMostReopenings) ThrowBusy();
  } catch (const FileError&) {
    Close();
    throw;
  }
}

RecordFile::~RecordFile() {
  Close();
}

void RecordFile::Close() {
  if (descriptor_ >= 0) TheFileCalls().Close(descriptor_);
  descriptor_ = -1;
}

// False when another file has taken the name before the lock was there.
bool RecordFile::OpenNamed(const std::string& name, Access access, Sharing sharing) {
  Close();
  FileCalls& calls = TheFileCalls();
  const std::optional<std::string> present = NameOnDisk({folder_, name});
  path_ = folder_ + present.value_or(name);
  // A record file may be a link; then the file behind it is read, written and replaced.
  if (present) Checked(calls.FollowLinks(path_, path_));
  LockKind lock = sharing == Sharing::Exclusive ? LockKind::Exclusive : LockKind::Shared;
  descriptor_ = calls.Open(
      path_, {.read = true,
              .write = access != Access::Read || lock == LockKind::Exclusive,  // the lock needs it
              .create = !present && access != Access::Read});
  if (descriptor_ == -EEXIST) return false;  // somebody else has just made it
  const bool readingWillDo =
      access == Access::Read || (access == Access::ReadWrite && lock == LockKind::Shared);
  if (IsRefusal(descriptor_) && readingWillDo) {
    descriptor_ = calls.Open(path_, {.read = true});
    lock = LockKind::Shared;  // keeps out those who can write
  }
  Checked(descriptor_);
  const int locked = calls.Lock(descriptor_, lock);
  if (locked == -EAGAIN || locked == -EACCES) ThrowBusy();
  Checked(locked);
  if (!BearsName()) return false;
  if (!present) {
    TakeRightsOfFolder(descriptor_, folder_);
    Checked(calls.SyncFolder(folder_));
  }
  if (sharing == Sharing::Plain) Checked(calls.Lock(descriptor_, LockKind::None));
  return true;
}

bool RecordFile::BearsName() {
  FileFacts named;
  const int result = TheFileCalls().FactsOfPath(path_, named);
  if (result == -ENOENT) return false;
  Checked(result);
  const FileFacts opened = FactsOf(descriptor_);
  return named.device == opened.device && named.inode == opened.inode;
}

long RecordFile::Count() {
  return FactsOf(descriptor_).size / recordLength_;
}

std::string RecordFile::ReadAt(long offset, long size) {
  std::string bytes(static_cast<std::size_t>(size), '\0');
  std::size_t had = 0;
  while (had < bytes.size()) {
    const long got = Checked(TheFileCalls().Read(
        descriptor_, bytes.data() + had, bytes.size() - had, offset + static_cast<long>(had)));
    if (got == 0) break;  // somebody has shortened the file
    had += static_cast<std::size_t>(got);
  }
  bytes.resize(had);
  return bytes;
}

std::string RecordFile::ReadBytes() {
  return ReadAt(0, FactsOf(descriptor_).size);
}

std::string RecordFile::Read(long number) {
  return ReadAt((number - 1) * recordLength_, recordLength_);
}

std::vector<std::string> RecordFile::ReadAll() {
  const std::string bytes = ReadBytes();
  const auto length = static_cast<std::size_t>(recordLength_);
  std::vector<std::string> records;
  records.reserve(bytes.size() / length);
  for (std::size_t at = 0; at + length <= bytes.size(); at += length)
    records.push_back(bytes.substr(at, length));
  return records;
}

void RecordFile::Write(long number, const std::string& record) {
  FileCalls& calls = TheFileCalls();
  const long offset = (number - 1) * recordLength_;
  const bool append = number > Count();
  try {
    WriteOnce(descriptor_, record, offset);
  } catch (const FileError&) {
    // No half a record for readers who round; where even this fails the next append repairs it.
    if (append) calls.Truncate(descriptor_, offset);
    throw;
  }
  // The record has its place, and many writers can wait for the disk at the same time.
  Checked(calls.Lock(descriptor_, LockKind::None));
  Checked(calls.Sync(descriptor_));
}

void RecordFile::Overwrite(long number, const std::string& record) {
  FileCalls& calls = TheFileCalls();
  const long offset = (number - 1) * recordLength_;
  const std::string old = Read(number);
  try {
    WriteOnce(descriptor_, record, offset);
    Checked(calls.Sync(descriptor_));
  } catch (const FileError&) {
    calls.Write(descriptor_, old.data(), old.size(), offset);
    throw;
  }
}

std::string RecordFile::Tail() {
  const long end = Count() * recordLength_;
  return ReadAt(end, FactsOf(descriptor_).size - end);
}

void RecordFile::WriteTail(const std::string& bytes) {
  FileCalls& calls = TheFileCalls();
  const long end = Count() * recordLength_;
  Checked(calls.Truncate(descriptor_, end));
  WriteOnce(descriptor_, bytes, end);
  Checked(calls.Sync(descriptor_));
}

void RecordFile::Clear() {
  Checked(TheFileCalls().Truncate(descriptor_, 0));
  Checked(TheFileCalls().Sync(descriptor_));
}

void RecordFile::ReplaceAll(const std::vector<std::string>& records) {
  const std::string bytes = Joined(records);
  if (!ReplaceFile(bytes)) WriteOver(bytes);
  Close();
}

// False when the file can only be written in its place.
bool RecordFile::ReplaceFile(const std::string& bytes) {
  FileCalls& calls = TheFileCalls();
  const Place place = PlaceOf(path_);
  RemoveUnfinished(place);
  const std::string replacement = ReplacementOf(path_);
  try {
    const bool written = WriteReplacement(replacement, bytes, FactsOf(descriptor_));
    const int renamed = written ? calls.Rename(replacement, path_) : 0;
    if (!written || IsRefusal(renamed)) {
      calls.Remove(replacement);
      return false;
    }
    Checked(renamed);
  } catch (const FileError&) {
    calls.Remove(replacement);
    throw;
  }
  Checked(calls.SyncFolder(place.folder));
  return true;
}

void RecordFile::WriteOver(const std::string& bytes) {
  FileCalls& calls = TheFileCalls();
  const std::string old = ReadBytes();
  try {
    WriteOnce(descriptor_, bytes, 0);
    Checked(calls.Truncate(descriptor_, static_cast<long>(bytes.size())));
    Checked(calls.Sync(descriptor_));
  } catch (const FileError&) {
    calls.Write(descriptor_, old.data(), old.size(), 0);
    calls.Truncate(descriptor_, static_cast<long>(old.size()));
    throw;
  }
}

void WriteWorkFile(const std::string& path, const std::vector<std::string>& records,
                   OldContents oldContents) {
  FileCalls& calls = TheFileCalls();
  const Place place = PlaceOf(path);
  const std::optional<std::string> present = NameOnDisk(place);
  const Descriptor file(calls.Open(
      place.folder + present.value_or(place.name),
      {.write = true, .create = !present, .truncate = oldContents == OldContents::Removed}));
  if (!present) TakeRightsOfFolder(file.Number(), place.folder);
  WriteOnce(file.Number(), Joined(records), 0);
  Checked(calls.Sync(file.Number()));
}

}  // namespace platform
