// A user who turns the pages of one run after another, looks at each, and answers nothing.
//
// Installed as long as it lives; the lesson window stands meanwhile.
#pragma once

#include <functional>
#include <optional>
#include <string>

#include "engine/lesson_script.h"
#include "lesson_check/pages/stop_catcher.h"
#include "platform/painting.h"

namespace lesson_check {

// Hidden: the texts can be read, the surfaces are never painted, which would cost most of the time.
enum class WindowLook { Hidden, Shown };

class PageReader : public StopCatcher {
 public:
  explicit PageReader(WindowLook look = WindowLook::Hidden);
  ~PageReader() override;

  // Runs the lesson in a mode, see WantEntry, and calls look at each of its pages.  Throws
  // StoppedRun.
  void Read(course::LessonScript& lesson, int entry, int seed, std::function<void()> look);

  void AtWait(const std::string& place) override;
  platform::Answer AtMessage(const platform::Message& message) override;

 private:
  std::optional<platform::PaintingOff> paintingOff_;
  std::function<void()> look_;
};

}  // namespace lesson_check
