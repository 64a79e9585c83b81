// Other workstations: child processes of a test, and gates through which the two sides tell each
// other how far they are.
#pragma once

#include <sys/wait.h>
#include <unistd.h>

#include <cstdlib>
#include <exception>
#include <utility>

namespace course::testing {

// Lets one process wait until another one has opened it; made before the processes part.
class Gate {
 public:
  Gate() {
    if (pipe(ends_) != 0) std::abort();
  }
  ~Gate() {
    close(ends_[0]);
    close(ends_[1]);
  }
  Gate(const Gate&) = delete;
  Gate& operator=(const Gate&) = delete;

  void Open() const {
    const char token = 'x';
    if (write(ends_[1], &token, 1) != 1) std::abort();
  }
  void Wait() const {
    char token;
    if (read(ends_[0], &token, 1) != 1) std::abort();
  }

 private:
  int ends_[2] = {-1, -1};
};

// Runs the work in a process of its own.
class ChildProcess {
 public:
  static constexpr int kThrew = 97;

  // The work's result is the exit status; one that throws ends with kThrew.
  template <class Work>
  explicit ChildProcess(Work work) : id_(fork()) {
    if (id_ < 0) std::abort();
    if (id_ != 0) return;
    int status = kThrew;
    try {
      status = work();
    } catch (...) {  // a stopped program, or a failed test: the parent tells
    }
    _exit(status);
  }
  ~ChildProcess() { Wait(); }
  ChildProcess(ChildProcess&& other) noexcept
      : id_(std::exchange(other.id_, -1)), status_(other.status_) {}
  ChildProcess(const ChildProcess&) = delete;
  ChildProcess& operator=(const ChildProcess&) = delete;

  // Exit status, or the negated number of the signal that ended it.
  int Wait() {
    if (id_ > 0) {
      int status = 0;
      waitpid(id_, &status, 0);
      status_ = WIFEXITED(status) ? WEXITSTATUS(status) : -WTERMSIG(status);
      id_ = -1;
    }
    return status_;
  }

 private:
  pid_t id_;
  int status_ = 0;
};

}  // namespace course::testing
