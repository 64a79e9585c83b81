// File operations that go wrong: the n-th of them fails, or the process dies there.  What is synced
// is not really pushed to the disk: that matters to a power failure only, and takes long.
#pragma once

#include <signal.h>

#include <algorithm>
#include <cerrno>
#include <string>
#include <vector>

#include "platform/file_calls.h"

namespace course::testing {

class FaultyCalls final : public platform::FileCalls {
 public:
  enum class Fault {
    None,
    Fail,  // with the given error
    KillBefore,
    KillWithin,  // a write after half its bytes, any other call after its end
    KillAfter,
  };
  // From the n-th call on, counted from 1; a failure lasts for so many calls.
  FaultyCalls(Fault fault, int at, int lasting = 1, int error = EIO)
      : fault_(fault), at_(at), lasting_(lasting), error_(error) {}

  int Count() const { return count_; }
  // The operations that change something on the disk, in their order.
  const std::vector<std::string>& Changes() const { return changes_; }
  // The number of the first call of a kind that is among them, from 1; 0 for none.
  int CallOf(const std::string& change) const {
    const auto found = std::find(changes_.begin(), changes_.end(), change);
    return found == changes_.end() ? 0
                                   : places_[static_cast<std::size_t>(found - changes_.begin())];
  }

  int Open(const std::string& path, platform::OpenMode mode) override {
    return Do([&] { return FileCalls::Open(path, mode); });
  }
  int Close(int descriptor) override {
    const int result = FileCalls::Close(descriptor);  // a failing close lets go all the same
    return Do([&] { return result; });
  }
  int Lock(int descriptor, platform::LockKind kind) override {
    return Do([&] { return FileCalls::Lock(descriptor, kind); });
  }
  int Facts(int descriptor, platform::FileFacts& facts) override {
    return Do([&] { return FileCalls::Facts(descriptor, facts); });
  }
  int FactsOfPath(const std::string& path, platform::FileFacts& facts) override {
    return Do([&] { return FileCalls::FactsOfPath(path, facts); });
  }
  long Read(int descriptor, char* bytes, std::size_t count, long offset) override {
    return Do([&] { return FileCalls::Read(descriptor, bytes, count, offset); });
  }
  long Write(int descriptor, const char* bytes, std::size_t count, long offset) override {
    Change("write");
    if (fault_ == Fault::KillWithin && count_ + 1 == at_)
      FileCalls::Write(descriptor, bytes, count / 2, offset);
    return Do([&] { return FileCalls::Write(descriptor, bytes, count, offset); });
  }
  int Sync(int) override {
    Change("sync");
    return Do([] { return 0; });
  }
  int SyncFolder(const std::string&) override {
    Change("sync folder");
    return Do([] { return 0; });
  }
  int Truncate(int descriptor, long size) override {
    Change("truncate");
    return Do([&] { return FileCalls::Truncate(descriptor, size); });
  }
  int SetPermissions(int descriptor, int permissions) override {
    return Do([&] { return FileCalls::SetPermissions(descriptor, permissions); });
  }
  int SetOwner(int descriptor, unsigned owner, unsigned group) override {
    return Do([&] { return FileCalls::SetOwner(descriptor, owner, group); });
  }
  int Rename(const std::string& from, const std::string& to) override {
    Change("rename");
    return Do([&] { return FileCalls::Rename(from, to); });
  }
  int Remove(const std::string& path) override {
    Change("remove");
    return Do([&] { return FileCalls::Remove(path); });
  }
  int List(const std::string& folder, std::vector<std::string>& names) override {
    return Do([&] { return FileCalls::List(folder, names); });
  }
  int FollowLinks(const std::string& path, std::string& target) override {
    return Do([&] { return FileCalls::FollowLinks(path, target); });
  }
  int RandomName(std::string& name) override {
    return Do([&] { return FileCalls::RandomName(name); });
  }

 private:
  void Change(const std::string& what) {
    changes_.push_back(what);
    places_.push_back(count_ + 1);
  }
  template <class Call>
  auto Do(Call call) -> decltype(call()) {
    ++count_;
    const bool here = count_ == at_;
    if (here && (fault_ == Fault::KillBefore || fault_ == Fault::KillWithin)) raise(SIGKILL);
    if (fault_ == Fault::Fail && count_ >= at_ && count_ < at_ + lasting_) return -error_;
    const auto result = call();
    if (here && fault_ == Fault::KillAfter) raise(SIGKILL);
    return result;
  }

  Fault fault_;
  int at_;
  int lasting_;
  int error_;
  int count_ = 0;
  std::vector<std::string> changes_;
  std::vector<int> places_;  // numbers of their calls
};

// Puts the calls in place for as long as it lives.
class InstalledCalls {
 public:
  explicit InstalledCalls(platform::FileCalls& calls) { platform::InstallFileCalls(&calls); }
  ~InstalledCalls() { platform::InstallFileCalls(nullptr); }
  InstalledCalls(const InstalledCalls&) = delete;
  InstalledCalls& operator=(const InstalledCalls&) = delete;
};

}  // namespace course::testing
