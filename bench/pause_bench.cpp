// How exact a pause is, and what it costs: animations pause between pixels.
#include <benchmark/benchmark.h>
#include <time.h>

#include <algorithm>
#include <vector>

#include "platform/clock.h"
#include "platform/events.h"

namespace {

double ProcessorSeconds() {
  timespec used{};
  clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &used);
  return static_cast<double>(used.tv_sec) + static_cast<double>(used.tv_nsec) / 1e9;
}

// Reports the median overshoot in microseconds and the share of a core, in percent.
void Pause(benchmark::State& state) {
  const double seconds = static_cast<double>(state.range(0)) / 1000;
  std::vector<double> overshoots;
  const double processorBefore = ProcessorSeconds();
  const double before = platform::TheClock().Counter();
  for (auto _ : state) {
    const double start = platform::TheClock().Counter();
    platform::Pause(seconds);
    overshoots.push_back(platform::TheClock().Counter() - start - seconds);
  }
  const double elapsed = platform::TheClock().Counter() - before;
  std::ranges::nth_element(overshoots, overshoots.begin() + overshoots.size() / 2);
  state.counters["overshoot_us"] = overshoots[overshoots.size() / 2] * 1e6;
  state.counters["core_percent"] = (ProcessorSeconds() - processorBefore) / elapsed * 100;
}
BENCHMARK(Pause)->Arg(2)->Arg(5)->Unit(benchmark::kMillisecond);

}  // namespace
