// What stands in record files and CSV files, as a terminal may show it: UTF-8, and no control
// character ever raw.
#pragma once

#include <optional>
#include <string>

namespace roster_tool {

// Latin-1, as records have it, as UTF-8; control characters as "\x1B".
std::string Shown(const std::string& latin1);
// The same in double quotes, cut after 60 characters.
std::string Quoted(const std::string& latin1);
// The path of a file, UTF-8 already; control characters as above.
std::string ShownPath(const std::string& path);

// The single bytes of UTF-8; none when a character has no code in Latin-1 or the text is no UTF-8.
std::optional<std::string> Latin1From(const std::string& utf8);

// 0 to 31 and 127 to 159.
bool IsControl(char latin1);

}  // namespace roster_tool
