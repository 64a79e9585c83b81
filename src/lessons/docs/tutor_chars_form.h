// frmTutorCharsDisplay: the chart of the course's characters from code 127 on.
#pragma once

#include <string>
#include <vector>

namespace course {

struct ChartedCharacter {
  int code;
  const char* name;
  int size;  // points
};
const std::vector<ChartedCharacter>& TutorCharacters();

// Modal.
void ShowTutorCharsDisplay();

}  // namespace course
