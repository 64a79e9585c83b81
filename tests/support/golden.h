// Golden pictures: a drawing is compared with the picture that was looked at and kept.
#pragma once

#include <string>

#include "platform/surface.h"

namespace course::testing {

// Compares with tests/golden/NAME.png.  A pixel may differ by a little, and of each tile of 16 by
// 25 pixels one by more: fonts are rasterised a little differently from one machine to the next.
// On failure the picture and the difference stand in the build folder as golden/NAME.actual.png and
// golden/NAME.difference.png.  With COURSE_BLESS=1 in the environment the kept picture is renewed
// instead.
void ExpectGolden(const platform::Surface& actual, const std::string& name);

}  // namespace course::testing
