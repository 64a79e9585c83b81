#include "lesson_check/file_name.h"

#include "mathkit/tutor_codes.h"

namespace lesson_check {

std::string FileNameOf(std::string_view title) {
  std::string name;
  for (const char c : title) {
    const char plain = c == course::tutor::SquaredSign[0] ? '2'
                       : c >= 'A' && c <= 'Z'             ? static_cast<char>(c + 32)
                       : (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9') ? c
                                                                          : '_';
    if (plain != '_' || (!name.empty() && name.back() != '_')) name += plain;
  }
  return name;
}

}  // namespace lesson_check
