// The stage on which the screens of the tour come about: forms and lessons run on it as ever, off
// the screen, without a person and without waiting, and all is afterwards as it was before.
#pragma once

#include <functional>
#include <memory>
#include <string>

#include "display/grid.h"
#include "display/lesson_window.h"
#include "engine/hooks.h"
#include "platform/manual_clock.h"
#include "platform/off_screen.h"
#include "platform/user.h"
#include "session/session.h"
#include "shell/menu.h"

namespace course {

// One stands at a time.  While it does, the session is a fresh one with the course's catalogue, no
// menu and no lesson window are loaded, nothing is saved, and the stage itself is the user.
class TourStage final : public platform::User {
 public:
  TourStage();
  ~TourStage() override;
  TourStage(const TourStage&) = delete;
  TourStage& operator=(const TourStage&) = delete;

  // What is shown on the stage, while it is shown.
  using Look = std::function<void(platform::Form& form)>;

  // A lesson in the lesson window.
  struct Scene {
    std::string title;
    int activity = 0;        // see course::activity
    int seed = 0;            // of its problem
    bool explained = false;  // practice: the worked explanation of the problem
    int page = 1;            // the one to look at, from 1
  };
  void PlayLesson(const Scene& scene, const Look& look);
  // Practice up to the dialog that tells a wrong answer.  lookAtPage is called just before it.
  void PlayWrongAnswer(const Scene& scene, const Look& lookAtPage, const Look& lookAtVerdict);
  // A form that is shown modally, and is closed when it was looked at.
  void PlayForm(const std::function<void()>& show, const Look& look);

  void AtWait(const std::string& place) override;
  void AtPause(double seconds) override;
  platform::Answer AtMessage(const platform::Message& message) override;
  std::optional<std::string> AtInput(const std::string& prompt) override;
  [[noreturn]] void AtStop(const std::string& message) override;
  [[noreturn]] void AtEnd() override;

 private:
  void Run(const Scene& scene);
  void AtPage();

  // As they were before.
  struct Before {
    Session session;
    ScreenState screenState;
    EngineHooks hooks;
    std::unique_ptr<MainMenu> menu;
    std::unique_ptr<LessonWindow> window;
    platform::User* user;
    platform::Clock* clock;
  };
  Before before_;
  platform::ManualClock clock_;
  platform::OffScreen offScreen_;

  int pagesLeft_ = 0;  // of the scene, until the one to look at
  int wrongBox_ = 0;   // to be picked, 0 for none
  Look lookAtPage_;
  Look lookAtForm_;
};

}  // namespace course
