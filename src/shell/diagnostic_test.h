// The way into the diagnostic test and out of it: what the student is asked before, and told after.
#pragma once

#include <functional>

namespace course {

// Whether each of the thirty questions has a script.
bool DiagnosticTestIsComplete();

// Asks whether to begin, and whether an earlier result may go; then runs the test.  run is the
// dispatcher, which returns when the test is over or ended.  A session without a student stops the
// program, and so does a Diag.dat that cannot be read.
void StartDiagnosticTest(const std::function<void()>& run);

}  // namespace course
