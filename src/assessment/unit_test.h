// The unit test as the dispatcher sees it: a script that opens the start form before the problems,
// and the results after them.  The problems themselves are runs of the unit's lessons.
#pragma once

namespace course {

// One run, by gChapterTestStatus and gChapterTestType.  A stage that needs no form stops the
// program.
void Chapter_Test();

}  // namespace course
