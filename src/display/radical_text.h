// Text with radicands between backquotes, cut into its parts.
#pragma once

#include <string>
#include <vector>

namespace course {

struct RadicalPart {
  std::string text;
  bool radicand = false;
};

// At most 5 radicands; an odd count of backquotes, or more, stops the program.  Empty plain parts
// are left out.
std::vector<RadicalPart> CutAtBackquotes(const std::string& s);

}  // namespace course
