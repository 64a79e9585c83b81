// lesson-lab check: problems and pages of a lesson, or of all, over many seeds.
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <string_view>
#include <vector>

#include "lesson_check/lesson_check.h"
#include "lesson_check/workers.h"
#include "lesson_lab/commands.h"
#include "lesson_lab/tally.h"
#include "lessons/registry.h"
#include "mathkit/tutor_codes.h"
#include "platform/program.h"

namespace lesson_lab {
namespace {

using lesson_check::Report;
using lesson_check::Share;

double Now() {  // seconds
  const auto now = std::chrono::steady_clock::now().time_since_epoch();
  return std::chrono::duration<double>(now).count();
}

// One line at the bottom of the terminal; without a terminal nothing.
class ProgressBar {
 public:
  ProgressBar(std::string title, long whole)
      : title_(std::move(title)), whole_(whole), shown_(isatty(STDERR_FILENO) == 1) {}
  ~ProgressBar() {
    if (shown_) std::fprintf(stderr, "\r\033[K");
  }
  ProgressBar(const ProgressBar&) = delete;
  ProgressBar& operator=(const ProgressBar&) = delete;

  void Show(long done) {
    constexpr long kWidth = 40;
    const long percent = whole_ == 0 ? 100 : done * 100 / whole_;
    if (!shown_ || percent == percent_) return;
    percent_ = percent;
    const long filled = percent * kWidth / 100;
    std::fprintf(stderr, "\r\033[K%s [%s%s] %ld %%", title_.c_str(),
                 std::string(static_cast<std::size_t>(filled), '#').c_str(),
                 std::string(static_cast<std::size_t>(kWidth - filled), '.').c_str(), percent);
  }

 private:
  std::string title_;
  long whole_;
  bool shown_;
  long percent_ = -1;
};

// The seeds of one process, and what it has to do with them.
Report CheckShare(const CheckRequest& request, const std::string& title, const Share& share,
                  const std::function<void(int)>& tick) {
  const auto make = [&title] { return FindLesson(title); };
  const lesson_check::SeedRange seeds{request.first + share.number, request.last, share.count};
  int seed = seeds.first;
  const auto tickSeed = [&] {
    tick(seed);
    seed += seeds.step;
  };
  Report report = lesson_check::CheckDrawing(make, seeds, tickSeed);
  if (request.drawOnly) return report;
  int argc = 1;
  char name[] = "lesson-lab";
  char* argv[] = {name, nullptr};
  platform::Application application(argc, argv);
  if (share.number == 0) report.Add(lesson_check::CheckTeaching(make));
  seed = seeds.first;
  report.Add(lesson_check::CheckPages(make, seeds, tickSeed));
  return report;
}

void PrintReport(const std::string& title, const Report& report, double seconds) {
  const std::string name = course::ToUtf8(title);
  for (const lesson_check::Finding& finding : report.findings)
    std::printf("%s: %s\n", lesson_check::ProblemName(name, finding.seed).c_str(),
                finding.fault.c_str());
  if (report.faults > static_cast<long>(report.findings.size()))
    std::printf("... and %ld more\n", report.faults - static_cast<long>(report.findings.size()));
  const double problems = static_cast<double>(std::max(report.problems, 1L));
  std::printf(
      "%s: %ld problems, %ld pages, %ld faults, %.1f s; %.1f random numbers a problem, slowest "
      "#%d in %.2f ms\n",
      name.c_str(), report.problems, report.pages, report.faults, seconds,
      static_cast<double>(report.draws) / problems, report.slowestSeed, report.slowest);
  PrintTally(report.tally);
  std::fflush(stdout);
}

long CheckLesson(const CheckRequest& request, const std::string& title) {
  const long seeds = request.last - request.first + 1;
  const double start = Now();
  Report report;
  {
    ProgressBar bar(course::ToUtf8(title), seeds * (request.drawOnly ? 1 : 2));
    report = lesson_check::ShareOut(
        lesson_check::CoreCount(),
        [&](const Share& share, const std::function<void(int)>& tick) {
          return CheckShare(request, title, share, tick);
        },
        [&](long done) { bar.Show(done); });
  }
  lesson_check::CheckAcceptance(report);
  PrintReport(title, report, Now() - start);
  return report.faults;
}

std::vector<std::string> TitlesOf(const std::string& title) {
  std::vector<std::string> titles;
  if (!title.empty()) {
    if (const auto lesson = FindLesson(title)) titles.push_back(lesson->Title());
    return titles;
  }
  for (const std::string_view each : course::LessonTitles()) titles.emplace_back(each);
  return titles;
}

}  // namespace

int Check(const CheckRequest& request) {
  const std::vector<std::string> titles = TitlesOf(request.title);
  if (titles.empty()) return 1;
  long faults = 0;
  for (const std::string& title : titles) faults += CheckLesson(request, title);
  if (titles.size() > 1) std::printf("%zu lessons, %ld faults\n", titles.size(), faults);
  return faults == 0 ? 0 : 1;
}

}  // namespace lesson_lab
