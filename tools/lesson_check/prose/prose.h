// A lesson as text, to be read without its window: what each page of the teaching screens adds to
// the page before, and some problems with their choices and explanations.
#pragma once

#include <string>
#include <vector>

#include "engine/lesson_script.h"
#include "lesson_check/pages/page_reader.h"

namespace lesson_check {

// All texts are UTF-8, with an end of line behind each line.

struct ProseScreen {
  std::string heading;             // "Screen 2", "Explanation"
  std::vector<std::string> pages;  // what each adds
};

struct ProseProblem {
  std::string name;  // Title#seed
  int seed = 0;
  std::string problem;  // question and choices, each wrong one with its mistake
  ProseScreen explanation;
};

struct Prose {
  std::string title;
  std::vector<ProseScreen> screens;
  std::vector<ProseProblem> problems;

  std::string Text() const;
};

// Problems of several shapes, always the same ones.  Throws StoppedRun.
Prose ReadProse(course::LessonScript& lesson, PageReader& reader, int problems = 3);

}  // namespace lesson_check
