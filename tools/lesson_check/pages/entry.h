// Brings a run of a lesson to one of its entries, without the menu and the dispatcher.
#pragma once

namespace lesson_check {

// Writes the session's fields so that the next run enters the lesson in the mode, one of
// course::mode but Leave, with the seed.  A practice problem comes as "the same problem again",
// since a new one takes a seed of its own.
void WantEntry(int entry, int seed);

}  // namespace lesson_check
