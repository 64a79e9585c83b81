// What a page says, part by part: the panel, then each box, note, picture and table cell on it.
#pragma once

#include <string>
#include <vector>

#include "display/lesson_window.h"

namespace lesson_check {

struct PagePart {
  std::string name;                // of the control; "" for the lesson panel
  std::vector<std::string> lines;  // as ReadableText gives them
};

// The parts that are shown and say something; the answer boxes come last.
std::vector<PagePart> PartsOfPage(course::LessonWindow& window);

// UTF-8, with exponents as raised characters: x², or x^(a/b) where there is no raised one.
std::string ReadableText(const std::string& text);

}  // namespace lesson_check
