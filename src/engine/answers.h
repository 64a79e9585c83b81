// Answer boxes: layout, choices, and the ways of choosing.
#pragma once

#include <string>
#include <vector>

#include "engine/problem.h"
#include "mathkit/random_stream.h"

namespace course {

// The layout record of a problem page.  Header clears the last four fields.
struct AnswerParameters {
  int layout = 0;        // 1 to 4
  double answerRow = 0;  // grid row of the first box
  double column1 = 0;    // grid columns of the boxes, as far as the layout has them
  double column2 = 0;
  double column3 = 0;
  double boxWidth = 0;    // columns
  double boxHeight = 0;   // pixels
  double rowGap = 0;      // pixels between box rows
  double textOffset = 0;  // pixels, added to the top of the text
  std::string fontName = "Courier New";
  double fontSize = 20;        // points
  int parametersSet = 0;       // flag
  int lastBoxFontSize = 0;     // points; 0 leaves it as it is
  std::string customLastText;  // blank: "None of the above"
  // Prints a choice at the cursor of its box: fractions as built-up ones, for example.  Null prints
  // one line with raised exponents.
  void (*printChoice)(int box, const std::string& text) = nullptr;
};
extern AnswerParameters answerParameters;

// Every problem page calls it, since Header forgets what the page before had.  The font is "Courier
// New" 20 when missing; "TNR", in any case, is "Times New Roman".
void picAnswerSetParameters(int layout, double answerRow, double column1, double column2,
                            double column3, double boxWidth, double boxHeight, double rowGap,
                            double textOffset = 0, const std::string& fontName = "",
                            double fontSize = 0);

// The order of the boxes: from 1, order[i] is the choice in box i.  Draws from the stream unless
// the kind is negative.
std::vector<int> ChoiceOrder(int kind, RandomStream& random);
// The box, 1 to 5, in which a choice stands; 0 when it stands in none of the first count.
int BoxOfChoice(int choice, const std::vector<int>& order, int count);

// Draws the boxes with the choices in the order, as they are numbered without one, and sets
// gChoiceCount.  A page without picAnswerSetParameters stops the program.
void AnswerChoicesShow(const Problem& problem, const std::vector<int>& order = {0, 1, 2, 3, 4, 5});
// Sizes and places the five boxes and draws the letters of those that gChoiceCount wants.  A
// layout outside 1 to 4, or no choice count, stops the program.
void AnswerLayout();

// Typing a letter in place of a click; returns its number, from 1 to the choice count.  Asks again,
// with a beep, until one is given.
int LetterEntry(int choiceCount);

// Text inside a box 1 to 5 stands in display/answer_text.h.

}  // namespace course
