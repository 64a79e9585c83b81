// All pages of a run on one picture.
#pragma once

#include <string>
#include <vector>

#include "lesson_lab/page_turner.h"

namespace lesson_lab {

// Half size, three in a row.  At least one page; whether the file was written.
bool WriteContactSheet(const std::vector<Page>& pages, const std::string& file);

}  // namespace lesson_lab
