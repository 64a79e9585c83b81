// What roster-tool can be told to do.  Each command returns the exit status of the program: 0 when
// all is well, 1 after a complaint.
#pragma once

#include <iosfwd>
#include <string>

namespace roster_tool {

struct MakeRequest {
  std::string classesCsv;
  std::string studentsCsv;
  std::string folder;
  bool overwrite = false;
  bool dryRun = false;  // checks and reports, and writes nothing
};

// Makes the record files of a network installation.
int Make(const MakeRequest& request, std::ostream& out, std::ostream& complaints);
// Checks those that are there.
int Check(const std::string& folder, std::ostream& out, std::ostream& complaints);

}  // namespace roster_tool
