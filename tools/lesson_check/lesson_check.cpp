#include "lesson_check/lesson_check.h"

#include <algorithm>
#include <ctime>

#include "lesson_check/pages/page_check.h"
#include "lesson_check/pages/stop_catcher.h"
#include "lesson_check/problem_check.h"
#include "mathkit/tutor_codes.h"

namespace lesson_check {
namespace {

constexpr double kSlowest = 10;  // milliseconds that a problem may take
// A try costs at least one random number, so that with no more of them than this to a problem at
// least 0.1 % of the tries are accepted.
constexpr double kMostDraws = 1000;

// Of this process alone: what else the machine does is no fault of the lesson.
double ProcessorMilliseconds() {
  timespec time{};
  clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
  return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_nsec) / 1e6;
}

class DrawingCheck {
 public:
  explicit DrawingCheck(const MakeScript& make)
      : lesson_(make()), again_(make()), judge_(JudgeOf(lesson_->Title())) {}

  void Check(int seed) {
    try {
      CheckDrawn(seed);
    } catch (const StoppedRun& stopped) {
      report_.Add(seed, std::string("the draw stops the program: ") + stopped.what());
    }
  }

  Report Take() { return std::move(report_); }

 private:
  void CheckDrawn(int seed) {
    const auto complain = [&](const std::string& fault) { report_.Add(seed, fault); };
    const double start = ProcessorMilliseconds();
    const auto drawn = lesson_->Draw(seed);
    double spent = ProcessorMilliseconds() - start;
    const double startAgain = ProcessorMilliseconds();
    const auto redrawn = again_->Draw(seed);
    // An interrupted process counts some of the interruption as its own.
    spent = std::min(spent, ProcessorMilliseconds() - startAgain);
    Count(seed, drawn, spent);
    if (FingerprintText(drawn) != FingerprintText(redrawn))
      complain("a second draw gives another problem");
    if (spent > kSlowest) complain("the draw took " + std::to_string(spent) + " ms");
    CheckProblem(judge_, drawn, complain, report_.tally);
  }

  void Count(int seed, const course::LessonScript::DrawnProblem& drawn, double spent) {
    ++report_.problems;
    report_.draws += drawn.draws;
    if (spent <= report_.slowest) return;
    report_.slowest = spent;
    report_.slowestSeed = seed;
  }

  StopCatcher user_;
  std::unique_ptr<course::LessonScript> lesson_;
  std::unique_ptr<course::LessonScript> again_;
  Judge judge_;
  Report report_;
};

}  // namespace

Report CheckDrawing(const MakeScript& make, const SeedRange& seeds,
                    const std::function<void()>& tick) {
  DrawingCheck check(make);
  for (int seed = seeds.first; seed <= seeds.last; seed += seeds.step) {
    check.Check(seed);
    if (tick) tick();
  }
  return check.Take();
}

Report CountDraws(const MakeScript& make, const SeedRange& seeds) {
  const auto lesson = make();
  Report report;
  for (int seed = seeds.first; seed <= seeds.last; seed += seeds.step) {
    ++report.problems;
    report.draws += lesson->Draw(seed).draws;
  }
  return report;
}

Report CheckPages(const MakeScript& make, const SeedRange& seeds,
                  const std::function<void()>& tick) {
  const auto lesson = make();
  PageChecker checker(*lesson);
  Report report;
  for (int seed = seeds.first; seed <= seeds.last; seed += seeds.step) {
    checker.CheckProblem(seed, [&](const std::string& fault) { report.Add(seed, fault); });
    if (tick) tick();
  }
  report.pages = checker.PagesRead();
  return report;
}

Report CheckTeaching(const MakeScript& make) {
  const auto lesson = make();
  PageChecker checker(*lesson);
  Report report;
  checker.CheckTeaching([&](const std::string& fault) { report.Add(kNoSeed, fault); });
  report.pages = checker.PagesRead();
  return report;
}

void CheckAcceptance(Report& report) {
  if (report.problems == 0) return;
  const double draws = static_cast<double>(report.draws) / static_cast<double>(report.problems);
  if (draws > kMostDraws)
    report.Add(kNoSeed, "a problem takes " + std::to_string(draws) +
                            " random numbers: fewer than 0.1 % of the tries may be accepted");
}

void CheckHabits(Report& report, bool laidDown) {
  constexpr double kMost = 2;  // times the chance
  const Habits& habits = report.tally.habits;
  for (std::size_t i = 0; i < kHabits.size() && !laidDown; ++i)
    if (habits.wins[i] > kMost * habits.chance)
      report.Add(kNoSeed, std::string("who always takes ") + kHabits[i] +
                              " wins more than twice as often as by chance");
}

void CheckRecipes(const Tally& tally, Report& report) {
  for (const auto& [name, count] : tally.mistakes)
    if (count.met == 0) report.Add(kNoSeed, "no problem offers the mistake \"" + name + "\"");
}

std::array<std::uint64_t, kSeedBlocks> HashesOfProblems(course::LessonScript& lesson) {
  constexpr std::uint64_t kOffset = 0xcbf29ce484222325;  // FNV-1a
  constexpr std::uint64_t kPrime = 0x100000001b3;
  std::array<std::uint64_t, kSeedBlocks> hashes{};
  std::uint64_t hash = kOffset;
  for (int seed = 0; seed < kSeeds; ++seed) {
    for (const char c : FingerprintText(lesson.Draw(seed)) + "\f")
      hash = (hash ^ static_cast<unsigned char>(c)) * kPrime;
    hashes.at(static_cast<std::size_t>(seed / kBlockSeeds)) = hash;
  }
  return hashes;
}

}  // namespace lesson_check
