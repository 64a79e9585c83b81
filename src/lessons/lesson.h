// All that a lesson's file includes, beside the families (lessons/families/) that it draws from:
// what stands on the screen, the contract of a script, numbers and their texts, and the vocabulary
// of pages.
#pragma once

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "display/animation.h"
#include "display/comment_box.h"
#include "display/drawing.h"
#include "display/exponents.h"
#include "display/fractions.h"
#include "display/graphs.h"
#include "display/grid.h"
#include "display/images.h"
#include "display/lesson_window.h"
#include "display/notes.h"
#include "display/print.h"
#include "display/print_cells.h"
#include "display/radicals.h"
#include "display/stacked_text.h"
#include "display/wiper_box.h"
#include "display/word_wrap.h"
#include "engine/answers.h"
#include "engine/choices.h"
#include "engine/header.h"
#include "engine/lesson_script.h"
#include "engine/page.h"
#include "engine/rules_and_hints.h"
#include "lessons/page/answer_boxes.h"
#include "lessons/page/boxes.h"
#include "lessons/page/page_lines.h"
#include "lessons/page/paper_box.h"
#include "lessons/page/say.h"
#include "lessons/page/show.h"
#include "lessons/page/slides.h"
#include "lessons/registry.h"
#include "mathkit/expressions.h"
#include "mathkit/fraction.h"
#include "mathkit/integers.h"
#include "mathkit/square_roots.h"
#include "mathkit/tutor_codes.h"

namespace course {
using namespace page;
}
