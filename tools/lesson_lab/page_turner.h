// A user who reads a lesson from page to page, keeps every page, and answers nothing.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "lesson_check/pages/page_reader.h"
#include "platform/surface.h"

namespace lesson_lab {

struct Page {
  std::unique_ptr<platform::Surface> picture;
  std::string text;  // UTF-8
};

class PageTurner final : public lesson_check::PageReader {
 public:
  PageTurner() : PageReader(lesson_check::WindowLook::Shown) {}

  std::vector<Page> pages;

  // Keeps the pages of one run.  Throws lesson_check::StoppedRun.
  void ReadRun(course::LessonScript& script, int entry, int seed);
};

}  // namespace lesson_lab
