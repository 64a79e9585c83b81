// What each lesson costs: a drawn problem with its choices, and the pages of its teaching screens,
// its problem and its explanation.
#include "lesson_bench.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <memory>
#include <string>

#include "lesson_check/pages/page_reader.h"
#include "lessons/registry.h"
#include "mathkit/tutor_codes.h"
#include "session/session.h"

namespace {

using namespace course;

constexpr int kSeeds = 32767;

double Milliseconds() {
  const auto now = std::chrono::steady_clock::now().time_since_epoch();
  return std::chrono::duration<double, std::milli>(now).count();
}

// Takes the time of each page.  What an animation takes from its first pause to its last is meant
// to take that long, and does not count.
class PageTimer final : public lesson_check::PageReader {
 public:
  PageTimer() : PageReader(lesson_check::WindowLook::Shown) {}

  int pages = 0;
  double total = 0;    // milliseconds
  double slowest = 0;  // of one page

  void ReadRun(LessonScript& lesson, int entry, int seed) {
    Start();
    Read(lesson, entry, seed, [this] { KeepTime(); });
  }
  void AtPause(double) override {
    const double now = Milliseconds();
    if (lastPause_ > 0) moving_ += now - lastPause_;
    lastPause_ = now;
  }

 private:
  void Start() {
    pageStart_ = Milliseconds();
    moving_ = 0;
    lastPause_ = 0;
  }
  void KeepTime() {
    const double spent = Milliseconds() - pageStart_ - moving_;
    ++pages;
    total += spent;
    slowest = std::max(slowest, spent);
    Start();
  }

  double pageStart_ = 0;
  double lastPause_ = 0;  // of this page, 0 before the first
  double moving_ = 0;     // from pause to pause
};

void DrawnProblemOf(benchmark::State& state, const std::string& title) {
  const auto lesson = MakeLesson(title);
  int seed = 0;
  for (auto _ : state) {
    benchmark::DoNotOptimize(lesson->Draw(seed));
    seed = (seed + 1) % kSeeds;
  }
  state.SetItemsProcessed(state.iterations());
}

// The time is that of a whole run, its animations included; the counters tell of pages without
// them.
void PagesOf(benchmark::State& state, const std::string& title, int entry) {
  PageTimer user;
  int seed = 0;
  for (auto _ : state) {
    user.ReadRun(*MakeLesson(title), entry, seed);
    seed = (seed + 1) % kSeeds;
  }
  state.counters["page_ms"] = user.total / std::max(user.pages, 1);
  state.counters["slowest_ms"] = user.slowest;
  state.counters["pages"] =
      static_cast<double>(user.pages) / static_cast<double>(state.iterations());
  session = Session{};
}

}  // namespace

void RegisterLessonBenchmarks() {
  for (const std::string_view each : LessonTitles()) {
    const std::string title(each);
    const std::string name = ToUtf8(title);
    benchmark::RegisterBenchmark(("DrawnProblem/" + name).c_str(), DrawnProblemOf, title);
    const auto pages = [&](const char* kind, int entry) {
      benchmark::RegisterBenchmark((kind + name).c_str(), PagesOf, title, entry)
          ->Unit(benchmark::kMillisecond);
    };
    pages("TeachingPages/", mode::Lesson);
    pages("ProblemPage/", mode::SameProblem);
    pages("ExplanationPages/", mode::Explanation);
  }
}
