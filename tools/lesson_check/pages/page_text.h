// What stands on a page, as texts that can be compared letter for letter.
#pragma once

#include <string>
#include <vector>

#include "display/lesson_window.h"

namespace lesson_check {

struct PageText {
  struct Panel {
    std::string name;
    std::vector<course::Fragment> fragments;
  };
  std::vector<Panel> panels;               // that are shown, from back to front, but the answers
  std::vector<std::string> lines;          // of them all
  std::vector<std::string> answers;        // one a visible answer box
  std::vector<course::FigureItem> figure;  // of all figures, in their order

  // All lines as one text, single blanks between words.
  std::string Whole() const;
};

PageText ReadPage(course::LessonWindow& window);

// The lines of what a page shows and the page before did not.
PageText NewOn(const PageText& page, const PageText& before);

// Whether the part stands in the whole as words of its own: "5" does not stand in "15", "-5" or
// "5/2".  Both are texts to be compared, see Comparable.
bool ContainsAsWords(const std::string& whole, const std::string& part);

}  // namespace lesson_check
