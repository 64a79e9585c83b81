// Numbers, dates and names as the record files write them.
#pragma once

#include <string>
#include <string_view>

namespace course {

// The digits at the start of a field, behind blanks, as a number; 0 when there are none.
int ParseNumber(std::string_view field);
// With leading zeros to the given width; a longer number keeps all its digits.
std::string Digits(int number, int width);
// Padded with blanks or cut.
std::string Padded(std::string_view text, std::size_t width);
std::string Trimmed(std::string_view text);
// Today as mmddyy.
std::string DateToday();
// The path of a record file.
std::string DataFile(const std::string& name);

}  // namespace course
