#include "platform/file_calls.h"

#include <dirent.h>
#include <fcntl.h>
#include <sys/random.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdint>
#include <cstdio>
#include <cstdlib>

namespace platform {
namespace {

FileCalls* installedCalls = nullptr;

// Runs a system call until no signal interrupts it; its result, or the error's negated number.
template <class Call>
auto Result(Call call) {
  auto result = call();
  while (result < 0 && errno == EINTR) result = call();
  return result < 0 ? -errno : result;
}

int FactsFrom(int result, const struct stat& status, FileFacts& facts) {
  if (result < 0) return result;
  facts.device = status.st_dev;
  facts.inode = status.st_ino;
  facts.size = status.st_size;
  facts.permissions = static_cast<int>(status.st_mode & 07777);
  facts.owner = status.st_uid;
  facts.group = status.st_gid;
  return 0;
}

int Flags(OpenMode mode) {
  int flags = mode.write ? (mode.read ? O_RDWR : O_WRONLY) : O_RDONLY;
  if (mode.create) flags |= O_CREAT | O_EXCL;
  if (mode.truncate) flags |= O_TRUNC;
  return flags | O_NOFOLLOW | O_CLOEXEC;
}

}  // namespace

int FileCalls::Open(const std::string& path, OpenMode mode) {
  constexpr mode_t kEverybody = 0666;  // less what the person's mask forbids
  return Result([&] { return ::open(path.c_str(), Flags(mode), kEverybody); });
}

// Not repeated after a signal: the descriptor is gone in any case.
int FileCalls::Close(int descriptor) {
  return ::close(descriptor) < 0 ? -errno : 0;
}

int FileCalls::Lock(int descriptor, LockKind kind) {
  struct flock lock {};  // the whole file, however long it grows
  lock.l_type = kind == LockKind::Exclusive ? F_WRLCK
                : kind == LockKind::Shared  ? F_RDLCK
                                            : F_UNLCK;
  lock.l_whence = SEEK_SET;
  return Result([&] { return ::fcntl(descriptor, F_OFD_SETLK, &lock); });
}

int FileCalls::Facts(int descriptor, FileFacts& facts) {
  struct stat status {};
  return FactsFrom(Result([&] { return ::fstat(descriptor, &status); }), status, facts);
}

int FileCalls::FactsOfPath(const std::string& path, FileFacts& facts) {
  struct stat status {};
  return FactsFrom(Result([&] { return ::stat(path.c_str(), &status); }), status, facts);
}

long FileCalls::Read(int descriptor, char* bytes, std::size_t count, long offset) {
  return Result([&] { return static_cast<long>(::pread(descriptor, bytes, count, offset)); });
}

long FileCalls::Write(int descriptor, const char* bytes, std::size_t count, long offset) {
  return Result([&] { return static_cast<long>(::pwrite(descriptor, bytes, count, offset)); });
}

int FileCalls::Sync(int descriptor) {
  return Result([&] { return ::fdatasync(descriptor); });
}

int FileCalls::SyncFolder(const std::string& folder) {
  const int descriptor =
      Result([&] { return ::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC); });
  if (descriptor < 0) return descriptor;
  const int result = Result([&] { return ::fsync(descriptor); });
  ::close(descriptor);
  return result == -EINVAL ? 0 : result;  // some network mounts have no such thing
}

int FileCalls::Truncate(int descriptor, long size) {
  return Result([&] { return ::ftruncate(descriptor, size); });
}

int FileCalls::SetPermissions(int descriptor, int permissions) {
  return Result([&] { return ::fchmod(descriptor, static_cast<mode_t>(permissions)); });
}

int FileCalls::SetOwner(int descriptor, unsigned owner, unsigned group) {
  return Result([&] { return ::fchown(descriptor, owner, group); });
}

int FileCalls::Rename(const std::string& from, const std::string& to) {
  return Result([&] { return ::rename(from.c_str(), to.c_str()); });
}

int FileCalls::Remove(const std::string& path) {
  return Result([&] { return ::unlink(path.c_str()); });
}

int FileCalls::List(const std::string& folder, std::vector<std::string>& names) {
  DIR* stream = ::opendir(folder.c_str());
  if (stream == nullptr) return -errno;
  errno = 0;
  while (const dirent* entry = ::readdir(stream)) names.emplace_back(entry->d_name);
  const int result = -errno;
  ::closedir(stream);
  return result;
}

int FileCalls::FollowLinks(const std::string& path, std::string& target) {
  char* resolved = ::realpath(path.c_str(), nullptr);
  if (resolved == nullptr) return -errno;
  target = resolved;
  std::free(resolved);
  return 0;
}

int FileCalls::RandomName(std::string& name) {
  std::uint64_t number = 0;
  if (Result([&] { return ::getrandom(&number, sizeof number, 0); }) < 0) return -errno;
  char digits[17];
  std::snprintf(digits, sizeof digits, "%016llx", static_cast<unsigned long long>(number));
  name = digits;
  return 0;
}

FileCalls& TheFileCalls() {
  static FileCalls machine;
  return installedCalls != nullptr ? *installedCalls : machine;
}

void InstallFileCalls(FileCalls* calls) {
  installedCalls = calls;
}

}  // namespace platform
