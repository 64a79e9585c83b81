#include "lesson_lab/contact_sheet.h"

namespace lesson_lab {

bool WriteContactSheet(const std::vector<Page>& pages, const std::string& file) {
  constexpr int kColumns = 3;
  constexpr int kGap = 12;
  const int width = pages[0].picture->PixelWidth() / 2;
  const int height = pages[0].picture->PixelHeight() / 2;
  const int count = static_cast<int>(pages.size());
  const int rows = (count + kColumns - 1) / kColumns;
  platform::Surface sheet(kColumns * (width + kGap) + kGap, rows * (height + kGap) + kGap);
  for (int i = 0; i < count; ++i)
    sheet.StretchBlt({kGap + i % kColumns * (width + kGap), kGap + i / kColumns * (height + kGap),
                      width, height},
                     *pages[static_cast<std::size_t>(i)].picture);
  return sheet.SavePng(file);
}

}  // namespace lesson_lab
