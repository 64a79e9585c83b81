// Reads the classes and students of a school from two CSV files: UTF-8, a heading line with the
// columns' names in any order, fields in double quotes where they hold a comma.
//
//   classes:   class, percent (optional), number (optional)
//   students:  class, student, password (optional), number (optional)
#pragma once

#include <string>

#include "roster_tool/entries.h"

namespace roster_tool {

// Adds what the text of a file tells; the name stands in complaints.  A text with a complaint adds
// nothing that is complete.
Complaints ReadClassesCsv(const std::string& fileName, const std::string& text, Rosters& rosters);
Complaints ReadStudentsCsv(const std::string& fileName, const std::string& text, Rosters& rosters);

}  // namespace roster_tool
