// Brings a run of a lesson to one of its entries, without the menu and the dispatcher.
#pragma once

namespace lesson_check {

// The box, 1 to 4, that the student of an explanation has picked before.
int PickedBox(int seed);

// Writes the session's fields so that the next run enters the lesson in the mode, one of
// course::mode but Leave, with the seed.  A practice problem comes as "the same problem again",
// since a new one takes a seed of its own.
void WantEntry(int entry, int seed);

}  // namespace lesson_check
