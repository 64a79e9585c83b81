// A folder of files in memory in place of the disk, which a fuzzer would spend its time on.
#pragma once

#include <cerrno>
#include <cstring>
#include <map>
#include <string>
#include <vector>

#include "platform/file_calls.h"

namespace course::testing {

// One folder, one process: every lock is granted.
class MemoryFiles final : public platform::FileCalls {
 public:
  MemoryFiles() { platform::InstallFileCalls(this); }
  ~MemoryFiles() override { platform::InstallFileCalls(nullptr); }
  MemoryFiles(const MemoryFiles&) = delete;
  MemoryFiles& operator=(const MemoryFiles&) = delete;

  static constexpr const char* kFolder = "/memory/";
  std::string& operator[](const std::string& name) { return files_[name]; }

  int Open(const std::string& path, platform::OpenMode mode) override {
    const std::string name = NameOf(path);
    if (!mode.create && !files_.contains(name)) return -ENOENT;
    std::string& bytes = files_[name];
    if (mode.truncate) bytes.clear();
    opened_.push_back(name);
    return static_cast<int>(opened_.size()) - 1;
  }
  int Close(int) override { return 0; }
  int Lock(int, platform::LockKind) override { return 0; }
  int Facts(int descriptor, platform::FileFacts& facts) override {
    facts.size = static_cast<long>(Of(descriptor).size());
    return 0;
  }
  int FactsOfPath(const std::string& path, platform::FileFacts& facts) override {
    facts.size = static_cast<long>(files_[NameOf(path)].size());
    return 0;
  }
  long Read(int descriptor, char* bytes, std::size_t count, long offset) override {
    return static_cast<long>(Of(descriptor).copy(bytes, count, static_cast<std::size_t>(offset)));
  }
  long Write(int descriptor, const char* bytes, std::size_t count, long offset) override {
    std::string& file = Of(descriptor);
    const auto at = static_cast<std::size_t>(offset);
    if (file.size() < at + count) file.resize(at + count);
    file.replace(at, count, bytes, count);
    return static_cast<long>(count);
  }
  int Sync(int) override { return 0; }
  int SyncFolder(const std::string&) override { return 0; }
  int Truncate(int descriptor, long size) override {
    Of(descriptor).resize(static_cast<std::size_t>(size));
    return 0;
  }
  int SetPermissions(int, int) override { return 0; }
  int SetOwner(int, unsigned, unsigned) override { return 0; }
  int Rename(const std::string& from, const std::string& to) override {
    files_[NameOf(to)] = files_[NameOf(from)];
    return Remove(from);
  }
  int Remove(const std::string& path) override {
    files_.erase(NameOf(path));
    return 0;
  }
  int List(const std::string&, std::vector<std::string>& names) override {
    for (const auto& [name, bytes] : files_) names.push_back(name);
    return 0;
  }
  int FollowLinks(const std::string& path, std::string& target) override {
    target = path;
    return 0;
  }

 private:
  static std::string NameOf(const std::string& path) { return path.substr(std::strlen(kFolder)); }
  std::string& Of(int descriptor) { return files_[opened_[static_cast<std::size_t>(descriptor)]]; }

  std::map<std::string, std::string> files_;
  std::vector<std::string> opened_;  // a descriptor is a place here
};

}  // namespace course::testing
