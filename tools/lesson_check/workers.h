// Shares the seeds of one lesson among processes: a lesson window is one a process, and so is the
// session.
#pragma once

#include <functional>
#include <string>

#include "lesson_check/report.h"

namespace lesson_check {

// What one process does: every count-th piece of the work, from number on.  It calls tick with the
// piece it has finished, and returns what it found.
struct Share {
  int number = 0;  // from 0
  int count = 1;
};
using Work = std::function<Report(const Share& share, const std::function<void(int piece)>& tick)>;

// As many as the machine has cores.
int CoreCount();

// Runs the work in count processes and adds up what they found; progress gets the number of
// finished pieces.  A process that dies is a fault, named by the piece behind the last one that it
// finished.  To be called before the toolkit is up: each process brings up its own.
Report ShareOut(int count, const Work& work, const std::function<void(long done)>& progress);

}  // namespace lesson_check
