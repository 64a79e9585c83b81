// What a check of a lesson found, in a form that can be added up, sent from one process to another
// and kept in a file.
#pragma once

#include <cstdint>
#include <map>
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
  long faults = 0;  // all; findings keeps the first ones
  Tally tally;
  std::vector<Finding> findings;

  static constexpr std::size_t kKept = 200;
  static constexpr long kKeptOfOne =
      5;  // of faults that differ in their numbers and quotations only

  void Add(int seed, const std::string& fault);
  void Add(const Report& other);
  // Takes out the faults that are, or end in behind the name of a page, a text that begins with
  // this one.  Returns how many there were.
  long Forget(const std::string& beginning);

  std::string Text() const;
  static Report FromText(const std::string& text);

 private:
  void Keep(const Finding& finding);

  struct Alike {
    long met = 0;
    long kept = 0;
  };
  std::map<std::string, Alike> alike_;  // by their faults without numbers and quotations
};

// "Title#seed", or the title alone for a fault of the lesson.
std::string ProblemName(const std::string& title, int seed);

}  // namespace lesson_check
