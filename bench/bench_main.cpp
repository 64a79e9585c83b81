// The benchmarks' program: the toolkit comes up first, since drawing and fonts need it.
#include <benchmark/benchmark.h>

#include "platform/program.h"

int main(int argc, char** argv) {
  benchmark::Initialize(&argc, argv);
  platform::Application application(argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  benchmark::Shutdown();
}
