// What students of a network have done: lists of records and diagnostic results by the lines of the
// course's own views, and their erasing.
#pragma once

#include <string>
#include <vector>

#include "roster_tool/files.h"
#include "roster_tool/selection.h"

namespace roster_tool {

// Lines in the course's single bytes.  Complaints tell of records that the course cannot show.
struct Listing {
  std::vector<std::string> lines;
  Complaints complaints;
};

// A part for each class, by names, then in the order of dates, as on paper.
Listing RecordLines(const Rosters& rosters, const std::vector<std::string>& records,
                    const Selection& selection);
// The same as CSV, a line a record under a line of column names.
Listing RecordCsv(const Rosters& rosters, const std::vector<std::string>& records,
                  const Selection& selection);
// The reports one after the other.
Listing ResultLines(const Rosters& rosters, const std::vector<std::string>& results,
                    const Selection& selection);

// Takes the records of those selected out of a file, under the lock that a save takes, in one step.
// Nothing is done unless really; the number of those selected.  Throws platform::FileError.
std::size_t Erase(const std::string& folder, const KindOfFile& kind, const Selection& selection,
                  bool really);

}  // namespace roster_tool
