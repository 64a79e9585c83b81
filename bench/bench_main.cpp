// The benchmarks' program: the toolkit comes up first, since drawing and fonts need it.
#include <benchmark/benchmark.h>
#include <stdlib.h>

#include "lesson_bench.h"
#include "platform/program.h"

int main(int argc, char** argv) {
  setenv("QT_QPA_PLATFORM", "offscreen", 0);  // measured without a display unless one is asked for
  benchmark::Initialize(&argc, argv);
  RegisterLessonBenchmarks();
  platform::Application application(argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  benchmark::Shutdown();
}
