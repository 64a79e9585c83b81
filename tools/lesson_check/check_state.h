// What a check has done so far, in a file: one that was stopped goes on there.
#pragma once

#include <map>
#include <string>

#include "lesson_check/report.h"

namespace lesson_check {

// Pieces of a check by name, each with its report.  Without a path nothing is kept.
class CheckState {
 public:
  // Reads what the file holds of this program's own work; the file of another build of it counts
  // for nothing, and begins anew.
  explicit CheckState(std::string path);

  // nullptr for a piece that has not been done.
  const Report* Find(const std::string& piece) const;
  // Adds it to the file at once.
  void Keep(const std::string& piece, const Report& report);

 private:
  std::string path_;
  std::map<std::string, Report> done_;
};

}  // namespace lesson_check
