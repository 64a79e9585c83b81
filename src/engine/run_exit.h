// The ways out of a run: exceptions that only LessonScript catches, thrown behind a wait and never
// inside a delay, an animation or a handler.
#pragma once

#include <functional>

namespace course {

// Leaves the run.
struct RunAbandoned {};
// Leaves the pages of an example or explanation for its end.
struct PagesEnded {};

bool WantsElsewhere();
// Leaves the run when the student wants to go elsewhere.
void ExitIfWanted();
// Saves, and leaves the run when the student asked to leave the lesson while the save waited for
// its file: what comes next in the run is not for him.
void SaveThenExitIfLeft(const std::function<void()>& save);
// Ends the run; the dispatcher starts the next one.
[[noreturn]] void RunAgain();
[[noreturn]] void GoToActivity(int index);

}  // namespace course
