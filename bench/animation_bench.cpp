// What a movement costs, with its pauses left out: the student's machine spends them waiting.
#include <benchmark/benchmark.h>

#include <memory>

#include "display/animation.h"
#include "display/grid.h"
#include "display/lesson_window.h"
#include "display/print.h"
#include "platform/manual_clock.h"

namespace {

// A lesson window with a row of text, and a clock that reaches the end of every pause at once.
class Stage {
 public:
  Stage() {
    platform::InstallClock(&clock_);
    course::frmPR = std::make_unique<course::LessonWindow>();
    course::frmPR->form.Show();
    course::ResetScreen();
    course::Locate(12, 1);
    course::isPrint("2x + 3 = 11 is an equation to be solved.");
  }
  ~Stage() {
    course::frmPR.reset();
    platform::InstallClock(nullptr);
  }
  Stage(const Stage&) = delete;
  Stage& operator=(const Stage&) = delete;

 private:
  platform::ManualClock clock_;
};

// A whole row goes up and comes down again, 50 steps of one pixel; erased behind or left in place.
void AnimationStep(benchmark::State& state) {
  Stage stage;
  const int eraseFlag = static_cast<int>(state.range(0));
  for (auto _ : state) {
    course::Anim(12, 1, 40, 1, 1, 1, 50, eraseFlag);
    course::Anim(11, 1, 40, 1, 2, 1, 50, eraseFlag);
  }
  state.SetItemsProcessed(state.iterations() * 50);
}
BENCHMARK(AnimationStep)->ArgName("erase")->Arg(1)->Arg(0);

}  // namespace
