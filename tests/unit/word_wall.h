// The words in which the repository must not speak: they point at papers, places and tools that its
// reader does not have.
#pragma once

#include "unit/walls.h"

namespace walls {

// One complaint a line that holds such a word; the files' names count as lines, too.
Complaints PointersOutside(const Files& files);

// The messages of all commits of a repository, as files "commit HASH"; none where there is no
// history to read: in a copy without it, or without git.
Files CommitMessages(const std::filesystem::path& root);

}  // namespace walls
