// The lesson in words, for a student who cannot see it: before each wait the panel's and the answer
// boxes' accessible texts are brought up to what is printed on them.
#pragma once

#include <string>

namespace course {

// Texts of the panel and of the shown answer boxes ("A: x < 3"), from their transcripts; of figures
// from what is kept of them.
void UpdateAccessibleTexts();

// The text with the course's own characters in words, since a screen reader knows none of them.
std::string SpokenText(const std::string& text);

}  // namespace course
