// frmDocs: the menu of the documentation lesson.
#pragma once

#include <string>
#include <vector>

#include "lessons/docs/gallery_form.h"

namespace course {

enum class DocsChoice { Leave, Topic, Practice };
struct DocsAnswer {
  DocsChoice choice = DocsChoice::Leave;
  int topic = 0;  // index, for Topic
};
// Modal, with the topic of this index selected.  The chart, the gallery and the layout utility open
// from it and come back to it.  Practice asks for the testing counter and sets
// session.gTestingCounter.
DocsAnswer ShowDocsMenu(const std::vector<std::string>& topics, int selected,
                        const std::vector<PictureHolder>& holders);

// The text as a testing counter, 0 to 32767; -1 for any other text.
int TestingCounterOf(const std::string& text);

}  // namespace course
