// Ties the forms of the tests to the running script, which knows nothing of them.
#pragma once

namespace course {

// Sets the engine's hooks for results and reviews.
void BindTests();

}  // namespace course
