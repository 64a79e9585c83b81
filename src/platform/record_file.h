// Arrays of fixed-length records in files that several processes and workstations share: opening
// with denial, reading, appending and replacing so that no instant loses a whole record.
//
// A file has no header; record n, from 1, lies at (n - 1) times the record's length.  A partial
// record at the end is not counted, and the next append writes over it.  Names do not tell case
// apart: a file that is there in any spelling is the one that is meant.  Both slashes part folders.
// A record file may be a link to a file elsewhere, and stays one; nothing else follows links, so
// that nobody who may write to a shared folder turns a write aside.
#pragma once

#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

namespace platform {

// What the system refused.  The text is the system's own, in English, without the file's name.
struct FileError : std::runtime_error {
  FileError(int errorNumber, const std::string& text)
      : std::runtime_error(text), number(errorNumber) {}
  int number;
};

enum class Access { Read, Write, ReadWrite };

// Who may have the file open at the same time.  A second open that is denied fails at once.
enum class Sharing {
  Exclusive,  // nobody else
  Shared,     // all but exclusive ones, which are kept out until this one is closed
  Plain,      // all: kept out by an exclusive one, keeps out nobody
};

// The file, or the link to one, that an open of this path takes in whatever spelling; none when it
// is missing.  Throws FileError.
std::optional<std::string> PathOnDisk(const std::string& path);

// One open file; the end of its life closes it and lets others in.  All members but the destructor
// throw FileError.
class RecordFile {
 public:
  // A missing file is made, unless the access is Read; who may write into the folder may write it.
  // ReadWrite on a file that this person may only read opens it for reading.  After the lock is
  // taken the file still bears its name.
  RecordFile(const std::string& path, int recordLength, Access access, Sharing sharing);
  ~RecordFile();
  RecordFile(const RecordFile&) = delete;
  RecordFile& operator=(const RecordFile&) = delete;

  long Count();                        // whole records
  std::string ReadBytes();             // the whole file, a partial record at its end included
  std::string Read(long number);       // record number 1 to Count()
  std::vector<std::string> ReadAll();  // the whole records
  // Writes record number 1 to Count() + 1 by one write, then lets others in, and has it on the disk
  // on return: the last that is done with an open file.
  void Write(long number, const std::string& record);
  // Writes over record number 1 to Count() by one write, keeps others out, and has it on the disk
  // on return.  After an error the record is what it was, wherever the disk allows it.
  void Overwrite(long number, const std::string& record);
  // The bytes behind the last whole record, which nobody counts.  WriteTail puts others, fewer than
  // a record has, in their place and on the disk.
  std::string Tail();
  void WriteTail(const std::string& bytes);
  // Leaves the file empty.
  void Clear();
  // Puts these records in the place of all others; only after an exclusive open, and this object is
  // closed then.  In one step, so that whoever opens the file sees the old ones or the new ones
  // whatever happens; but where a new file could not keep the old one's owner and group, or the
  // folder takes none, they are written over the old ones.
  void ReplaceAll(const std::vector<std::string>& records);

 private:
  bool OpenNamed(const std::string& name, Access access, Sharing sharing);
  bool BearsName();
  std::string ReadAt(long offset, long size);
  bool ReplaceFile(const std::string& bytes);
  void WriteOver(const std::string& bytes);
  void Close();

  std::string folder_;
  std::string path_;  // in the spelling on the disk
  int recordLength_;
  int descriptor_ = -1;
};

// What a work file held before.
enum class OldContents { Removed, Kept };

// Writes records from the first on to a work file, which stays behind, and has them on the disk on
// return.  With Kept a longer file keeps what it held behind them.
void WriteWorkFile(const std::string& path, const std::vector<std::string>& records,
                   OldContents oldContents);

}  // namespace platform
