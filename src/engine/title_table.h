// Tables that files fill by themselves: a lesson, or a judge of lessons, stands in one by a line of
// its own file, so that adding it edits no file of others.
#pragma once

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

#include "mathkit/tutor_codes.h"

namespace course {

// The place of a title, whatever its case, in the order of the course, from 0; the blank lesson
// comes last.  A title that the catalogue does not know stops the program.
std::size_t PlaceInCourse(std::string_view title);
[[noreturn]] void StopAtRepeatedTitle(std::string_view title);
[[noreturn]] void StopAtLateTitle(std::string_view title);

template <class Value>
class TitleTable {
 public:
  struct Row {
    std::string_view title;
    Value value;
  };

  // Before main begins.  A row that comes after the table was read stops the program: who reads it
  // as early as that sees only what the files before his own have added.
  void Add(std::string_view title, Value value) {
    if (ordered_) StopAtLateTitle(title);
    rows_.push_back({title, value});
  }

  // In the order of the course, whatever the order in which the files of a program begin.  A title
  // that stands twice, in any case, or is unknown stops the program.
  const std::vector<Row>& Rows() {
    if (ordered_) return rows_;
    const auto place = [](const Row& row) { return PlaceInCourse(row.title); };
    std::ranges::for_each(rows_, place);  // a row alone is compared with no other
    std::ranges::sort(rows_, {}, place);
    const auto repeated = std::ranges::adjacent_find(rows_, {}, place);
    if (repeated != rows_.end()) StopAtRepeatedTitle(repeated->title);
    ordered_ = true;
    return rows_;
  }

  // The row of a title, whatever its case; nullptr when there is none.
  const Row* Find(std::string_view title) {
    const std::string key = UpperCase(std::string(title));
    const auto row = std::ranges::find(
        Rows(), key, [](const Row& each) { return UpperCase(std::string(each.title)); });
    return row == rows_.end() ? nullptr : &*row;
  }

 private:
  std::vector<Row> rows_;
  bool ordered_ = false;
};

}  // namespace course
