// The system's file operations behind one seam: the record files reach the disk through it alone,
// so that a test can make any single operation fail, or end the process there.
//
// Every call returns 0 or more on success, and the negated number of the system's error otherwise.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace platform {

enum class LockKind { None, Shared, Exclusive };

struct OpenMode {
  bool read = false;
  bool write = false;
  bool create = false;    // it must be missing
  bool truncate = false;  // what it held is gone
};

struct FileFacts {
  unsigned long long device = 0;  // device and inode tell one file from all others
  unsigned long long inode = 0;
  long size = 0;  // bytes
  int permissions = 0;
  unsigned owner = 0;
  unsigned group = 0;
};

// The machine's own calls; a test overrides some.
class FileCalls {
 public:
  virtual ~FileCalls() = default;
  virtual int Open(const std::string& path, OpenMode mode);  // a descriptor; never of a link
  virtual int Close(int descriptor);
  // Locks the whole file for this open, or unlocks it; never waits.  The lock holds between
  // processes and, on a network mount, between workstations.
  virtual int Lock(int descriptor, LockKind kind);
  virtual int Facts(int descriptor, FileFacts& facts);
  virtual int FactsOfPath(const std::string& path, FileFacts& facts);
  virtual long Read(int descriptor, char* bytes, std::size_t count, long offset);
  virtual long Write(int descriptor, const char* bytes, std::size_t count, long offset);
  virtual int Sync(int descriptor);
  virtual int SyncFolder(const std::string& folder);
  virtual int Truncate(int descriptor, long size);
  virtual int SetPermissions(int descriptor, int permissions);
  virtual int SetOwner(int descriptor, unsigned owner, unsigned group);
  virtual int Rename(const std::string& from, const std::string& to);
  virtual int Remove(const std::string& path);
  virtual int List(const std::string& folder, std::vector<std::string>& names);
  // The path of the file to which all links lead; the path itself for a file that is none.
  virtual int FollowLinks(const std::string& path, std::string& target);
  // A name's end that nobody can foresee, so that nobody can put anything in its place.
  virtual int RandomName(std::string& name);
};

// The machine's unless others are installed; nullptr puts the machine's back.
FileCalls& TheFileCalls();
void InstallFileCalls(FileCalls* calls);

}  // namespace platform
