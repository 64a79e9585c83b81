// What frames every movement: the flag, the pointer, the choice of speed, the pause between two
// steps.
#pragma once

namespace course {

// For its lifetime an animation runs: gInAnimation is 1, the speed cannot be chosen, the pointer is
// an hourglass.  Everything ends with it, on every path.
class AnimationFrame {
 public:
  AnimationFrame();
  ~AnimationFrame();
  AnimationFrame(const AnimationFrame&) = delete;
  AnimationFrame& operator=(const AnimationFrame&) = delete;
};

// Seconds between two pixel steps at a speed.
double StepPause(double sp);

// The last step of a loop that counts from 1 to a real number of pixels: 12.5 gives 12 steps.
int StepCount(double pixels);

}  // namespace course
