// lesson-lab check: problems and pages of a lesson, or of all, over many seeds.
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <map>
#include <string_view>
#include <vector>

#include "lesson_check/check_state.h"
#include "lesson_check/judge.h"
#include "lesson_check/lesson_check.h"
#include "lesson_check/not_yet.h"
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
  if (share.number == 0 && request.teaching) report.Add(lesson_check::CheckTeaching(make));
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

// The seeds in pieces that a stop loses at most one of.
constexpr int kPiece = 8192;

Report CheckPiece(const CheckRequest& request, const std::string& title,
                  lesson_check::CheckState& state, const std::function<void(long)>& progress) {
  const std::string piece = course::ToUtf8(title) + "#" + std::to_string(request.first) + "-" +
                            std::to_string(request.last) + (request.drawOnly ? " drawn" : "");
  if (const Report* done = state.Find(piece)) return *done;
  const Report report = lesson_check::ShareOut(
      lesson_check::CoreCount(),
      [&](const Share& share, const std::function<void(int)>& tick) {
        return CheckShare(request, title, share, tick);
      },
      progress);
  state.Keep(piece, report);
  return report;
}

Report CheckSeeds(const CheckRequest& request, const std::string& title,
                  lesson_check::CheckState& state) {
  const int stages = request.drawOnly ? 1 : 2;
  ProgressBar bar(course::ToUtf8(title), (request.last - request.first + 1L) * stages);
  Report report;
  for (int first = request.first; first <= request.last; first += kPiece) {
    CheckRequest piece = request;
    piece.first = first;
    piece.last = std::min(first + kPiece - 1, request.last);
    piece.teaching = first == request.first;
    const long before = (first - request.first) * long{stages};
    report.Add(CheckPiece(piece, title, state, [&](long done) { bar.Show(before + done); }));
  }
  return report;
}

bool AllSeeds(const CheckRequest& request) {
  return request.first == 0 && request.last == lesson_check::kSeeds - 1;
}

// A judge's mistakes may be offered by any of the lessons that it serves: they are known when all
// of those are checked.
class RecipeCheck {
 public:
  RecipeCheck() {
    for (const std::string& title : TitlesOf("")) ++lessons_[lesson_check::JudgeOf(title)].left;
  }
  void Add(const std::string& title, Report& report) {
    Lessons& lessons = lessons_[lesson_check::JudgeOf(title)];
    lessons.tally.Add(report.tally);
    if (--lessons.left == 0) lesson_check::CheckRecipes(lessons.tally, report);
  }

 private:
  struct Lessons {
    int left = 0;  // to be checked
    lesson_check::Tally tally;
  };
  std::map<lesson_check::Judge, Lessons> lessons_;
};

class CourseCheck {
 public:
  explicit CourseCheck(const CheckRequest& request) : request_(request), state_(request.state) {
    if (!request.notYet.empty()) notYet_ = lesson_check::ReadNotYet(request.notYet);
  }

  // The number of faults.
  long Check(const std::string& title) {
    const double start = Now();
    Report report = CheckSeeds(request_, title, state_);
    lesson_check::CheckAcceptance(report);
    const auto lesson = FindLesson(title);
    lesson_check::CheckHabits(report, lesson->ChoicesAreLaidDown());
    if (AllSeeds(request_)) recipes_.Add(title, report);
    lesson_check::Pardon(notYet_, course::ToUtf8(lesson->Title()), !request_.drawOnly, report);
    PrintReport(title, report, Now() - start);
    return report.faults;
  }

 private:
  const CheckRequest& request_;
  lesson_check::CheckState state_;
  lesson_check::NotYet notYet_;
  RecipeCheck recipes_;
};

}  // namespace

int Check(const CheckRequest& request) {
  const std::vector<std::string> titles = TitlesOf(request.title);
  if (titles.empty()) return 1;
  long faults = 0;
  CourseCheck check(request);
  for (const std::string& title : titles) faults += check.Check(title);
  if (titles.size() > 1) std::printf("%zu lessons, %ld faults\n", titles.size(), faults);
  return faults == 0 ? 0 : 1;
}

}  // namespace lesson_lab
