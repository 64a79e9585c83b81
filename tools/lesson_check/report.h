// What a check of a lesson found, in a form that can be added up and sent from one process to
// another.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "lesson_check/problem_check.h"

namespace lesson_check {

inline constexpr int kSeeds = 32767;
inline constexpr int kNoSeed = -1;  // a fault of the lesson as a whole

struct Finding {
  int seed = kNoSeed;
  std::string fault;
};

struct Report {
  long problems = 0;
  long pages = 0;
  std::uint64_t draws = 0;  // random numbers
  double slowest = 0;       // milliseconds of processor time that one problem took
  int slowestSeed = kNoSeed;
  long faults = 0;  // all; findings keeps the first kKept
  MistakeCounts mistakes;
  std::vector<Finding> findings;

  static constexpr std::size_t kKept = 200;

  void Add(int seed, const std::string& fault);
  void Add(const Report& other);

  std::string Text() const;
  static Report FromText(const std::string& text);
};

// "Title#seed", or the title alone for a fault of the lesson.
std::string ProblemName(const std::string& title, int seed);

}  // namespace lesson_check
