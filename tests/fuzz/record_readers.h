// Everything that reads the five record files, run over bytes that nobody promised to be right.
#pragma once

#include <string_view>

namespace course::testing {

// The first byte of the input chooses the file, the others are what it holds.  Besides reading it,
// the file is written to: what was whole before must be there afterwards.  Throws TestFailure when
// something is lost, or the program stops for a reason that no bad file gives it.
void ReadRecordFiles(std::string_view input);

}  // namespace course::testing
