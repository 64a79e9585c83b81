// From process start to a painted window, and what a waiting lesson costs: measured on programs of
// their own, which report in one line.
#include <benchmark/benchmark.h>

#include <chrono>
#include <cstdio>
#include <filesystem>
#include <string>

namespace {

struct Report {
  double milliseconds = 0;  // from process start to paint, or processor time
  double megabytes = 0;     // highest resident memory
};

// Runs "startup-probe KIND STARTED" beside this program; the start is the monotonic clock's
// nanosecond.
Report Probe(const std::string& kind) {
  const auto folder = std::filesystem::read_symlink("/proc/self/exe").parent_path();
  const auto started = std::chrono::steady_clock::now().time_since_epoch();
  const std::string command = "exec " + (folder / "startup-probe").string() + " " + kind + " " +
                              std::to_string(std::chrono::nanoseconds(started).count());
  Report report;
  FILE* pipe = popen(command.c_str(), "r");
  if (pipe == nullptr || std::fscanf(pipe, "%lf %lf", &report.milliseconds, &report.megabytes) != 2)
    std::fprintf(stderr, "startup-probe %s reported nothing\n", kind.c_str());
  if (pipe != nullptr) pclose(pipe);
  return report;
}

void Start(benchmark::State& state, const std::string& kind) {
  Report report;
  for (auto _ : state) {
    report = Probe(kind);
    state.SetIterationTime(report.milliseconds / 1000);
  }
  state.counters["MiB"] = report.megabytes;
}
BENCHMARK_CAPTURE(Start, BareWindow, std::string("bare"))
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond)
    ->Iterations(15);
BENCHMARK_CAPTURE(Start, Menu, std::string("menu"))
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond)
    ->Iterations(15);

// Processor time used in 10 seconds of waiting at a page's end.
void TenSecondsOfWaiting(benchmark::State& state) {
  for (auto _ : state) state.SetIterationTime(Probe("wait").milliseconds / 1000);
}
BENCHMARK(TenSecondsOfWaiting)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(1);

}  // namespace
