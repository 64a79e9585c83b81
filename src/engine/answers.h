// Answer boxes: layout, choices, and the ways of choosing.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <vector>

#include "engine/problem.h"
#include "mathkit/random_stream.h"

namespace course {

// The layout record of a problem page.  Header clears parametersSet.
struct AnswerParameters {
  int layout = 0;        // 1 to 4
  double answerRow = 0;  // grid row of the first box
  double column1 = 0;
  double column2 = 0;
  double column3 = 0;
  double boxWidth = 0;   // columns
  double boxHeight = 0;  // pixels
  double rowGap = 0;     // pixels between box rows
  double textOffset = 0; // pixels, added to the top of the text
  std::string fontName = "Courier New";
  double fontSize = 20;
  int parametersSet = 0;       // flag
  int lastBoxFontSize = 0;     // 0: as it is
  std::string customLastText;  // "" : "None of the above"
};
extern AnswerParameters answerParameters;

// "TNR", in any case, is "Times New Roman".
void picAnswerSetParameters(int layout, double answerRow, double column1, double column2,
                            double column3, double boxWidth, double boxHeight, double rowGap,
                            double textOffset = 0, const std::string& fontName = "",
                            double fontSize = 0);
// The order of the boxes: from 1, order[i] is the choice in box i.  Draws from the stream unless the kind
// is negative.
std::vector<int> ChoiceOrder(int kind, RandomStream& random);
// Draws the boxes with the choices; writes the order and sets gChoiceCount.
void AnswerChoicesShow(const Problem& problem, std::vector<int>& order);
// Sizes and places the five boxes and draws the letters.
void AnswerLayout();
// Typing a letter: 1 to the choice count.  Asks again, with a beep, until one is given.
int LetterEntry(int choiceCount);

// Text inside a box 1 to 5 stands in display/answer_text.h.

}  // namespace course
