// What the four tabs of the program overview say.
#pragma once

#include <string>

namespace course {

std::string OverviewText();
std::string MenuText();
std::string LessonText();
std::string RecordsText();

}  // namespace course
