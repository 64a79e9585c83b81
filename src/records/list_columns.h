// Headings over a list whose rows are columns of a fixed-pitch type.
#pragma once

#include <memory>
#include <span>
#include <vector>

#include "platform/form.h"

namespace course {

// A heading over the characters first to last of the rows, counted from 0; last lies outside.
struct ColumnLabel {
  const char* name;
  const char* caption;  // stands on the list: shorter captions begin with line breaks
  int first;
  int last;
  platform::Label::Align align;
};

using ColumnLabels = std::vector<std::unique_ptr<platform::Label>>;

// Makes the headings right above a list that has its place and type; the height is in pixels.
ColumnLabels MakeColumnLabels(const platform::ListBox& list, std::span<const ColumnLabel> columns,
                              int height);

}  // namespace course
