#include "shell/tour_stage.h"

#include <utility>

#include "engine/lesson_script.h"
#include "engine/navigation.h"
#include "lessons/registry.h"
#include "platform/stop.h"
#include "session/catalogue.h"

namespace course {

TourStage::TourStage()
    : before_{.session = std::exchange(session, {}),
              .screenState = screenState,
              .hooks = std::exchange(engineHooks, {}),
              .menu = std::move(frmMenu),
              .window = std::move(frmPR),
              .user = platform::InstalledUser(),
              .clock = &platform::TheClock()} {
  platform::InstallUser(this);
  platform::InstallClock(&clock_);
  FillCourseTables();
}

TourStage::~TourStage() {
  platform::InstallClock(before_.clock);
  platform::InstallUser(before_.user);
  frmPR = std::move(before_.window);
  frmMenu = std::move(before_.menu);
  engineHooks = std::move(before_.hooks);
  screenState = before_.screenState;
  session = std::move(before_.session);
}

void TourStage::PlayLesson(const Scene& scene, const Look& look) {
  lookAtPage_ = look;
  wrongBox_ = 0;
  Run(scene);
}

void TourStage::PlayWrongAnswer(const Scene& scene, const Look& lookAtPage,
                                const Look& lookAtVerdict) {
  lookAtPage_ = lookAtPage;
  lookAtForm_ = lookAtVerdict;
  wrongBox_ = MakeLesson(scene.title)->Draw(scene.seed).CorrectBox() % 4 + 1;
  Run(scene);
}

void TourStage::PlayForm(const std::function<void()>& show, const Look& look) {
  lookAtForm_ = look;
  show();
}

// Without the dispatcher, which would count and save.
void TourStage::Run(const Scene& scene) {
  const auto script = MakeLesson(scene.title);
  if (script == nullptr) platform::Stop("TourStage::Run: there is no lesson " + scene.title);
  LoadLessonWindow();
  session.gActivity = scene.activity;
  session.gLastActivity.clear();
  session.gScreenNum = 1;
  session.gProblemSeed = scene.seed;
  session.gTestSeeds.fill(scene.seed);
  session.gRepeatExample = 1;
  session.gExplainProblem = scene.explained ? 1 : 0;
  session.gRepeatProblem = scene.explained ? 0 : 1;
  session.gLessonTest = scene.activity == activity::LessonTest ? 1 : 0;
  session.gLessonTestProb = session.gLessonTest;
  pagesLeft_ = scene.page;
  script->Run();
  ClearTestBlock(session);
  UnloadLessonWindow();
  if (pagesLeft_ > 0)
    platform::Stop("TourStage::Run: " + scene.title + " has no page " + std::to_string(scene.page));
}

void TourStage::AtWait(const std::string& place) {
  if (place == "PageEnd" || place == "AnswerWait") return AtPage();
  platform::Form& form = *platform::Form::ModalForm();
  lookAtForm_(form);
  form.Close();
}

void TourStage::AtPage() {
  if (--pagesLeft_ > 0) {
    session.gProceed = 1;
    return;
  }
  lookAtPage_(frmPR->form);
  if (wrongBox_ != 0)
    session.gAnswerPicked = wrongBox_;
  else
    session.gLeaveLesson = 1;
}

void TourStage::AtPause(double) {}

platform::Answer TourStage::AtMessage(const platform::Message&) {
  return platform::Answer::No;
}

std::optional<std::string> TourStage::AtInput(const std::string&) {
  return {};
}

// Whoever was the user before is told.
void TourStage::AtStop(const std::string& message) {
  platform::InstallUser(before_.user);
  platform::Stop(message);
}

void TourStage::AtEnd() {
  platform::InstallUser(before_.user);
  platform::EndProgram();
}

}  // namespace course
