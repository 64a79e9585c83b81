// A user who reads a lesson from page to page, keeps every page, and answers nothing.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "lesson_check/pages/idle_user.h"
#include "platform/surface.h"

namespace lesson_lab {

struct Page {
  std::unique_ptr<platform::Surface> picture;
  std::string text;  // UTF-8
};

class PageTurner final : public lesson_check::IdleUser {
 public:
  std::vector<Page> pages;

  void AtWait(const std::string& place) override;
  platform::Answer AtMessage(const platform::Message& message) override;

 private:
  void KeepPage();
};

}  // namespace lesson_lab
