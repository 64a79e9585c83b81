#include "platform/clock.h"

#include <sys/timerfd.h>
#include <unistd.h>

#include <QCoreApplication>
#include <QSocketNotifier>
#include <chrono>
#include <cmath>
#include <ctime>

#include "platform/handler_queue_impl.h"

namespace platform {
namespace {

// A wake-up call in the event loop, exact to some microseconds where the toolkit's timers know
// milliseconds only.
class WakeUp {
 public:
  WakeUp()
      : descriptor_(timerfd_create(CLOCK_MONOTONIC, TFD_NONBLOCK | TFD_CLOEXEC)),
        notifier_(descriptor_, QSocketNotifier::Read) {
    QObject::connect(&notifier_, &QSocketNotifier::activated, [this] { Drain(); });
  }
  void In(double seconds) {
    Drain();
    itimerspec when{};
    when.it_value.tv_sec = static_cast<time_t>(seconds);
    when.it_value.tv_nsec = static_cast<long>((seconds - std::floor(seconds)) * 1e9);
    timerfd_settime(descriptor_, 0, &when, nullptr);
  }

 private:
  void Drain() {
    std::uint64_t expirations;
    [[maybe_unused]] const auto got = read(descriptor_, &expirations, sizeof expirations);
  }
  int descriptor_;
  QSocketNotifier notifier_;
};

class MachineClock final : public Clock {
 public:
  double SecondsSinceMidnight() override {
    // Seconds and their fraction from one reading: two readings may lie on two sides of a second.
    const auto now = std::chrono::system_clock::now();
    const auto second = std::chrono::floor<std::chrono::seconds>(now);
    const std::tm local = LocalTime(std::chrono::system_clock::to_time_t(second));
    return local.tm_hour * 3600 + local.tm_min * 60 + local.tm_sec +
           std::chrono::duration<double>(now - second).count();
  }
  Date Today() override {
    const std::tm local = LocalTime(std::time(nullptr));
    return {local.tm_year + 1900, local.tm_mon + 1, local.tm_mday};
  }
  double Counter() override {
    const auto now = std::chrono::steady_clock::now().time_since_epoch();
    return std::chrono::duration<double>(now).count();
  }
  void WaitUntil(double target) override {
    constexpr double kSpin = 0.0003;  // seconds: a sleeping process is woken that much too late
    for (double rest = target - Counter(); rest > 0; rest = target - Counter()) {
      if (rest > kSpin) {
        static WakeUp& wakeUp = *new WakeUp;  // the toolkit goes before the statics do
        wakeUp.In(rest - kSpin);
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        RunHandlers();
      }
    }
  }

 private:
  static std::tm LocalTime(std::time_t now) {
    std::tm local{};
    localtime_r(&now, &local);
    return local;
  }
};

Clock* installedClock = nullptr;

}  // namespace

Clock& TheClock() {
  static MachineClock machine;
  return installedClock != nullptr ? *installedClock : machine;
}

void InstallClock(Clock* clock) {
  installedClock = clock;
}

}  // namespace platform
