// The time of day, the date and a high-resolution counter: the only clocks of the course.
//
// A test installs a clock of its own; nothing else in the program can tell the difference.
#pragma once

namespace platform {

struct Date {
  int year = 2000;
  int month = 1;  // 1 to 12
  int day = 1;    // 1 to 31
};

class Clock {
 public:
  virtual ~Clock() = default;
  virtual double SecondsSinceMidnight() = 0;  // local time, with fractions, 0 to below 86,400
  virtual Date Today() = 0;                   // local
  virtual double Counter() = 0;               // seconds since some instant; never runs back
  // Lets the counter reach the given value while events are served (see Pause in events.h).
  virtual void WaitUntil(double counter) = 0;
};

// The machine's clock unless another one is installed; nullptr puts the machine's back.
Clock& TheClock();
void InstallClock(Clock* clock);

}  // namespace platform
