// Tables that files fill by themselves: a lesson, or a judge of lessons, stands in one by a line of
// its own file, so that adding it edits no file of others.
#pragma once

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

#include "mathkit/tutor_codes.h"

namespace course {

template <class Value>
struct TitledRow {
  std::string_view title;
  Value value;
};

// The place of a title, whatever its case, in the order of the course, from 0; the blank lesson
// comes last.  A title that the catalogue does not know stops the program.
std::size_t PlaceInCourse(std::string_view title);
[[noreturn]] void StopAtRepeatedTitle(std::string_view title);

// The rows in the order of the course, whatever the order in which the files of a program begin.
// A title that stands twice, in any case, or is unknown stops the program.
template <class Value>
std::vector<TitledRow<Value>> InCourseOrder(std::vector<TitledRow<Value>> rows) {
  const auto place = [](const TitledRow<Value>& row) { return PlaceInCourse(row.title); };
  std::ranges::for_each(rows, place);  // a row alone is compared with no other
  std::ranges::sort(rows, {}, place);
  const auto repeated = std::ranges::adjacent_find(rows, {}, place);
  if (repeated != rows.end()) StopAtRepeatedTitle(repeated->title);
  return rows;
}

// The row of a title, whatever its case; nullptr when there is none.
template <class Value>
const TitledRow<Value>* FindTitle(const std::vector<TitledRow<Value>>& rows,
                                  std::string_view title) {
  const std::string key = UpperCase(std::string(title));
  const auto row = std::ranges::find(
      rows, key, [](const TitledRow<Value>& each) { return UpperCase(std::string(each.title)); });
  return row == rows.end() ? nullptr : &*row;
}

}  // namespace course
