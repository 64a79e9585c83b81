#include "mathkit/draws.h"

#include <bit>
#include <cmath>
#include <cstdint>
#include <limits>

#include "platform/clock.h"
#include "platform/stop.h"
#include "session/session.h"

namespace course {
namespace {

constexpr int kSeedCount = 32767;

int FreshSeed() {
  return ProblemStream().Rand(0, kSeedCount - 1);
}

int WholeArgument(double value) {
  if (std::floor(value) != value) platform::Stop("Parameters for Rand() are not integers");
  if (value < std::numeric_limits<int>::min() || value > std::numeric_limits<int>::max()) {
    platform::Stop("Rand: " + std::to_string(value) + " is beyond a 32-bit whole number");
  }
  return static_cast<int>(value);
}

void CheckCount(const char* routine, int n, const std::vector<std::string>& strings) {
  if (n > static_cast<int>(strings.size())) {
    platform::Stop(std::string(routine) + ": " + std::to_string(n) + " strings asked for, " +
                   std::to_string(strings.size()) + " given");
  }
}

}  // namespace

RandomStream& ProblemStream() {
  static RandomStream stream;
  return stream;
}

void Randomize() {
  // A number of the old stream goes in too, so that two calls within one tick of the clock differ.
  const auto kept = std::bit_cast<std::uint64_t>(ProblemStream().Rnd());
  const auto now = std::bit_cast<std::uint64_t>(platform::TheClock().SecondsSinceMidnight());
  ProblemStream().Reseed(std::rotl(now, 32) ^ kept);
}

void ReseedProblem(int seed) {
  ProblemStream().Reseed(static_cast<std::uint64_t>(seed));
}

void NewProblemSeed() {
  const int unit = session.gUnitNum;
  const int lesson = session.gLessonNum;
  if (unit < 0 || unit > kMaxUnits || lesson < 0 || lesson > kMaxLessons) {
    platform::Stop("NewProblemSeed: there is no unit " + std::to_string(unit) + ", lesson " +
                   std::to_string(lesson));
  }
  Randomize();
  session.gProblemSeed = FreshSeed();
  ++session.gProblemsGenerated[unit][lesson];
}

void NewTestSeeds() {
  Randomize();
  bool repeated = true;
  while (repeated) {
    repeated = false;
    for (int i = 1; i <= kLessonTestProblems; ++i) {
      session.gTestSeeds[i] = FreshSeed();
      for (int j = 1; j < i; ++j) repeated |= session.gTestSeeds[j] == session.gTestSeeds[i];
    }
  }
}

double Rnd() {
  return ProblemStream().Rnd();
}

double Rand(double low, double high) {
  const int first = WholeArgument(low);
  const int last = WholeArgument(high);
  return ProblemStream().Rand(first, last);
}

std::vector<int> RandSeq(int poolSize, int count) {
  return ProblemStream().RandSeq(poolSize, count);
}

bool AllDistinct(int n, const std::vector<std::string>& strings) {
  CheckCount("AllDistinct", n, strings);
  for (int i = 0; i < n; ++i) {
    for (int j = i + 1; j < n; ++j) {
      if (strings[i] == strings[j]) return false;
    }
  }
  return true;
}

}  // namespace course
