#include <algorithm>

#include "display/animation.h"
#include "display/animation_frame.h"
#include "display/lesson_window.h"
#include "display/scoped_value.h"
#include "mathkit/integers.h"
#include "platform/events.h"
#include "platform/screen.h"
#include "session/session.h"

namespace course {
namespace {

constexpr double kShortestPause = 0.002;  // seconds

}  // namespace

void Delay(double seconds) {
  const ScopedValue flag(session.gInDelay, 1);
  platform::Pause(std::max(seconds, kShortestPause));
}

void DisableAnimSpeed() {
  if (frmPR) frmPR->fraAnimSpeed.SetEnabled(false);
}

void EnableAnimSpeed() {
  if (frmPR) frmPR->fraAnimSpeed.SetEnabled(true);
}

AnimationFrame::AnimationFrame() {
  session.gInAnimation = 1;
  DisableAnimSpeed();
  platform::SetMousePointer(platform::MousePointer::Hourglass);
}

AnimationFrame::~AnimationFrame() {
  platform::SetMousePointer(platform::MousePointer::Default);
  session.gInAnimation = 0;
  EnableAnimSpeed();
}

double StepPause(double sp) {
  return session.gAnimDelayUnit * IntOf(sp / 50) + session.gAnimDelayUnit;
}

int StepCount(double pixels) {
  // A product such as 1.16 * 25 lies a hair below the whole number that is meant.
  constexpr double kHair = 1e-6;
  return std::max(IntOf(pixels + kHair), 0);
}

}  // namespace course
