#include "records/list_columns.h"

#include <string>

namespace course {
namespace {

constexpr int kPixel = platform::TwipsPerPixelX;

// Pixels.
constexpr int kTextLeft = 7;  // from the list's left edge to a row's first character
constexpr int kGap = 4;       // between headings and list

int TwipsOf(const platform::ListBox& list, int characters) {
  return list.TextWidth(std::string(static_cast<std::size_t>(characters), 'x'));
}

}  // namespace

ColumnLabels MakeColumnLabels(const platform::ListBox& list, std::span<const ColumnLabel> columns,
                              int height) {
  ColumnLabels labels;
  const int left = list.Left() + kTextLeft * kPixel;
  for (const ColumnLabel& column : columns) {
    auto label = std::make_unique<platform::Label>(*list.OwnForm(), column.name, column.caption);
    label->Move(left + TwipsOf(list, column.first), list.Top() - (height + kGap) * kPixel,
                TwipsOf(list, column.last - column.first), height * kPixel);
    label->SetFont("MS Sans Serif", 9.5, true);
    label->SetAlignment(column.align);
    labels.push_back(std::move(label));
  }
  return labels;
}

}  // namespace course
