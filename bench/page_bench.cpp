// What a page of a lesson costs: printing, fractions, animation, problems, whole pages.
#include <benchmark/benchmark.h>

#include <memory>
#include <string>

#include "display/fractions.h"
#include "display/grid.h"
#include "display/print.h"
#include "display/word_wrap.h"
#include "engine/navigation.h"
#include "lessons/registry.h"
#include "platform/events.h"
#include "platform/manual_clock.h"
#include "platform/user.h"
#include "session/session.h"

namespace {

using namespace course;

// A user who leaves at every wait: one page is what is measured.
class Leaver final : public platform::User {
 public:
  void AtWait(const std::string&) override { session.gLeaveLesson = 1; }
  void AtPause(double) override {}
  platform::Answer AtMessage(const platform::Message&) override { return platform::Answer::No; }
  std::optional<std::string> AtInput(const std::string&) override { return {}; }
  [[noreturn]] void AtStop(const std::string&) override { std::abort(); }
  [[noreturn]] void AtEnd() override { std::abort(); }
};

// A lesson window on the screen, with no real waiting.
class OpenWindow {
 public:
  OpenWindow() {
    platform::InstallUser(&user_);
    platform::InstallClock(&clock_);
    LoadLessonWindow();
    platform::PumpEvents();  // the window is painted from here on
    ResetScreen();
  }
  ~OpenWindow() {
    UnloadLessonWindow();
    platform::InstallClock(nullptr);
    platform::InstallUser(nullptr);
    session = Session{};
  }

 private:
  Leaver user_;
  platform::ManualClock clock_;
};

void LineOf40Characters(benchmark::State& state) {
  const OpenWindow window;
  const std::string line(40, 'x');
  for (auto _ : state) {
    Locate(10, 1);
    isPrint(line);
  }
}
BENCHMARK(LineOf40Characters);

// 23 lines of wrapped text in four colours with exponents, each run shown at once.
void FullPageWrapped(benchmark::State& state) {
  const OpenWindow window;
  const std::string fourLines =
      R"(The \csquare\z of a binomial such as (x + 3)^2^ is a \ytrinomial\z: it has the terms )"
      R"(x^2^, 6x and 9.  The \rmiddle term\z is twice the product of both terms. )";
  const std::string threeLines =
      R"(We \ymultiply\z x^2^ by each term of the second factor, and then \cadd\z the like )"
      R"(terms x^4^ and 3x^4^ of the product.)";
  for (auto _ : state) {
    frmPR->lessonText.SetTranscript({});
    Locate(2, 1);
    for (int part = 0; part < 5; ++part) WordWrap(fourLines);
    WordWrap(threeLines);
  }
  UpdateCursorCell();
  state.counters["rows"] = frmPR->lessonText.cursorRow - 2;
}
BENCHMARK(FullPageWrapped)->Unit(benchmark::kMillisecond);

void BuiltUpFraction(benchmark::State& state) {
  const OpenWindow window;
  for (auto _ : state) {
    Locate(10, 5);
    isPrintFraction("x + 12", "3y");
  }
}
BENCHMARK(BuiltUpFraction);

// From the cleared screen to the shown answer boxes.
void PracticePage(benchmark::State& state) {
  const OpenWindow window;
  for (auto _ : state) {
    session.gActivity = activity::Practice;
    session.gLeaveLesson = 0;
    MakeLesson("Simple Inequalities")->Run();
  }
}
BENCHMARK(PracticePage)->Unit(benchmark::kMillisecond);

}  // namespace
