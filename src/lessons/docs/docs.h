// The hidden documentation lesson: a menu of topics, one a module of display/ and engine/, each
// with samples that the module's own routines draw, the call printed above them.  From the same
// menu the writers of lessons reach the chart of drawn characters, the gallery, the layout utility
// and practice that runs by itself.
#pragma once

#include <memory>
#include <vector>

#include "engine/lesson_script.h"
#include "lessons/docs/gallery_form.h"

namespace course {

// The scripts that show the topics, in their order: for checks and authors' tools, which go through
// all of their screens.
std::vector<std::unique_ptr<LessonScript>> MakeDocsScripts();

// One pass of the dispatcher's loop in the lesson window.  The gallery offers these holders of
// pictures beside its own.
void Docs(const std::vector<PictureHolder>& holders = {});

}  // namespace course
