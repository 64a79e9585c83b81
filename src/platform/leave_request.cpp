#include "platform/leave_request.h"

#include <fcntl.h>
#include <unistd.h>

#include <QApplication>
#include <QDialog>
#include <QSocketNotifier>
#include <cerrno>
#include <csignal>
#include <utility>

namespace platform {
namespace {

constexpr int kSignals[] = {SIGTERM, SIGINT, SIGHUP};

std::function<void()> leaveRoutine;
volatile std::sig_atomic_t asked = 0;
int wakeUp[2] = {-1, -1};  // a pipe: a signal's handler can wake the event loop by no other means

void NoteSignal(int) {
  const int error = errno;
  asked = 1;
  [[maybe_unused]] const auto written = write(wakeUp[1], "", 1);  // full is as good
  errno = error;
}

// A message box waits in a loop of the toolkit's own.  What it asks was asked by a handler that is
// complete but for the answer.
void LeaveDialog() {
  if (qobject_cast<QDialog*>(QApplication::activeModalWidget()) != nullptr) LeaveIfAsked();
}

void WatchSignals() {
  if (pipe2(wakeUp, O_CLOEXEC | O_NONBLOCK) != 0) return;
  auto* notifier = new QSocketNotifier(wakeUp[0], QSocketNotifier::Read, qApp);
  QObject::connect(notifier, &QSocketNotifier::activated, [] {
    char bytes[16];
    while (read(wakeUp[0], bytes, sizeof bytes) > 0) {
    }
    LeaveDialog();
  });
  QObject::connect(qApp, &QGuiApplication::commitDataRequest, [] {
    asked = 1;
    LeaveDialog();
  });
}

// A signal that was ignored when the program was started stays ignored: nohup asks for that.
void Handle(int number, void (*handler)(int)) {
  struct sigaction action {};
  sigaction(number, nullptr, &action);
  if (action.sa_handler == SIG_IGN) return;
  action.sa_handler = handler;
  action.sa_flags = SA_RESTART;
  sigaction(number, &action, nullptr);
}

}  // namespace

void OnLeaveRequest(std::function<void()> leave) {
  leaveRoutine = std::move(leave);
  asked = 0;
  if (leaveRoutine && wakeUp[0] < 0) WatchSignals();
  for (const int number : kSignals) Handle(number, leaveRoutine ? NoteSignal : SIG_DFL);
}

void LeaveIfAsked() {
  if (asked == 0 || !leaveRoutine) return;
  asked = 0;
  leaveRoutine();
}

}  // namespace platform
