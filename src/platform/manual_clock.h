// A clock that stands until it is moved: tests and the authors' tools wait no real time.
#pragma once

#include "platform/clock.h"

namespace platform {

class ManualClock final : public Clock {
 public:
  double secondsSinceMidnight = 36000;
  Date today{2026, 1, 15};
  double counter = 0;

  double SecondsSinceMidnight() override { return secondsSinceMidnight; }
  Date Today() override { return today; }
  double Counter() override { return counter; }
  void WaitUntil(double target) override {
    if (target > counter) Advance(target - counter);
  }
  // Lets so many seconds pass; midnight begins a new count, and the date stays.
  void Advance(double seconds) {
    counter += seconds;
    secondsSinceMidnight += seconds;
    while (secondsSinceMidnight >= 86400) secondsSinceMidnight -= 86400;
  }
};

}  // namespace platform
