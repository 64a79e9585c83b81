// A user who reads a lesson from page to page, keeps every page, and answers nothing.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "platform/surface.h"
#include "platform/user.h"

namespace lesson_lab {

struct Page {
  std::unique_ptr<platform::Surface> picture;
  std::string text;  // UTF-8
};

class PageTurner final : public platform::User {
 public:
  std::vector<Page> pages;

  void AtWait(const std::string& place) override;
  void AtPause(double seconds) override;
  platform::Answer AtMessage(const platform::Message& message) override;
  std::optional<std::string> AtInput(const std::string& prompt) override;
  [[noreturn]] void AtStop(const std::string& message) override;
  [[noreturn]] void AtEnd() override;

 private:
  void KeepPage();
};

}  // namespace lesson_lab
