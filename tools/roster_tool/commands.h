// What roster-tool can be told to do.  Each command returns the exit status of the program: 0 when
// all is well, 1 after a complaint.
#pragma once

#include <iosfwd>
#include <string>

#include "roster_tool/selection.h"

namespace roster_tool {

struct MakeRequest {
  std::string classesCsv;
  std::string studentsCsv;
  std::string folder;
  std::string group = "";  // of the students, "" when the folder has it already
  bool overwrite = false;
  bool dryRun = false;  // checks and reports, and writes nothing
};

struct ListRequest {
  std::string folder;
  Whose whose;
  bool csv = false;  // in place of text; records only
};

struct EraseRequest {
  std::string folder = "";
  Whose whose = {};
  bool everybody = false;  // must be said where no class is named
  bool records = false;
  bool results = false;
  bool yes = false;  // without it the numbers of records are told, and nothing is done
};

// Makes the record files of a network installation.
int Make(const MakeRequest& request, std::ostream& out, std::ostream& complaints);
// Checks those that are there, and who may use them.
int Check(const std::string& folder, std::ostream& out, std::ostream& complaints);
// Lists records, or diagnostic results.
int ListRecords(const ListRequest& request, std::ostream& out, std::ostream& complaints);
int ListResults(const ListRequest& request, std::ostream& out, std::ostream& complaints);
int EraseFrom(const EraseRequest& request, std::ostream& out, std::ostream& complaints);

}  // namespace roster_tool
