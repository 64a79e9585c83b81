#include "lesson_check/workers.h"

#include <poll.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdlib>
#include <exception>
#include <string_view>
#include <thread>
#include <vector>

namespace lesson_check {
namespace {

// What a process writes into its pipe: a line with the piece, for each that is finished; then this
// mark and its report.
constexpr std::string_view kReportMark = "=\n";

struct Worker {
  pid_t id = -1;
  int pipe = -1;
  std::string received;
  std::size_t counted = 0;  // bytes of it whose lines are counted
  int lastPiece = kNoSeed;
};

void WriteAll(int pipe, std::string_view text) {
  while (!text.empty()) {
    const ssize_t written = write(pipe, text.data(), text.size());
    if (written <= 0) _exit(EXIT_FAILURE);
    text.remove_prefix(static_cast<std::size_t>(written));
  }
}

[[noreturn]] void WorkInChild(const Work& work, const Share& share, int pipe) {
  const auto tick = [pipe](int piece) { WriteAll(pipe, std::to_string(piece) + "\n"); };
  try {
    const Report report = work(share, tick);
    WriteAll(pipe, kReportMark);
    WriteAll(pipe, report.Text());
  } catch (const std::exception& error) {
    Report failed;
    failed.Add(kNoSeed, std::string("the check failed: ") + error.what());
    WriteAll(pipe, kReportMark);
    WriteAll(pipe, failed.Text());
  }
  _exit(EXIT_SUCCESS);  // the parent's destructors and buffers are not this process's
}

Worker Start(const Work& work, const Share& share) {
  int ends[2];
  if (pipe(ends) != 0) std::abort();
  Worker worker;
  worker.id = fork();
  if (worker.id < 0) std::abort();
  if (worker.id == 0) {
    close(ends[0]);
    WorkInChild(work, share, ends[1]);
  }
  close(ends[1]);
  worker.pipe = ends[0];
  return worker;
}

bool HasReport(const Worker& worker) {
  return worker.received.compare(worker.counted, kReportMark.size(), kReportMark) == 0;
}

// Counts the pieces of the lines that have come whole.
long CountLines(Worker& worker) {
  long pieces = 0;
  while (!HasReport(worker)) {
    const std::size_t end = worker.received.find('\n', worker.counted);
    if (end == std::string::npos) break;
    worker.lastPiece = std::atoi(worker.received.c_str() + worker.counted);
    worker.counted = end + 1;
    ++pieces;
  }
  return pieces;
}

// False at the end of what the process has to say.
bool Receive(Worker& worker) {
  char buffer[4096];
  const ssize_t count = read(worker.pipe, buffer, sizeof buffer);
  if (count > 0) worker.received.append(buffer, static_cast<std::size_t>(count));
  return count > 0;
}

Report Finish(Worker& worker, int step) {
  close(worker.pipe);
  int status = 0;
  waitpid(worker.id, &status, 0);
  if (HasReport(worker))
    return Report::FromText(worker.received.substr(worker.counted + kReportMark.size()));
  Report died;
  const std::string how = WIFSIGNALED(status)
                              ? "died of signal " + std::to_string(WTERMSIG(status))
                              : "ended with status " + std::to_string(WEXITSTATUS(status));
  died.Add(worker.lastPiece == kNoSeed ? kNoSeed : worker.lastPiece + step,
           "the checking process " + how);
  return died;
}

}  // namespace

int CoreCount() {
  return std::max(1, static_cast<int>(std::thread::hardware_concurrency()));
}

Report ShareOut(int count, const Work& work, const std::function<void(long done)>& progress) {
  std::vector<Worker> workers;
  for (int number = 0; number < count; ++number) workers.push_back(Start(work, {number, count}));
  std::vector<pollfd> waiting;
  for (const Worker& worker : workers) waiting.push_back({worker.pipe, POLLIN, 0});
  long done = 0;
  for (int open = count; open > 0;) {
    poll(waiting.data(), waiting.size(), -1);
    for (std::size_t i = 0; i < workers.size(); ++i) {
      if (waiting[i].fd < 0 || waiting[i].revents == 0) continue;
      if (!Receive(workers[i])) {
        waiting[i].fd = -1;
        --open;
      }
      done += CountLines(workers[i]);
    }
    progress(done);
  }
  Report all;
  for (Worker& worker : workers) all.Add(Finish(worker, count));
  return all;
}

}  // namespace lesson_check
