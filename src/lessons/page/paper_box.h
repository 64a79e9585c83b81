// Comment boxes in the look that lessons share, black print on light paper: the rule of a lesson
// under its heading, and remarks.  Red is easier to read there than on the blue screen.
#pragma once

#include <string>
#include <vector>

namespace course::page {

// Shows comment box 1 to 5, centred and as wide as its lines, its top on the row given.  Lines may
// hold colour codes and exponents.  Returns the row below the box.
double ShowPaperBox(int box, double row, const std::vector<std::string>& lines);
// The same with a heading above the lines, which are centred; width in columns of the screen.
double ShowRuleBox(int box, double row, double width, const std::string& heading,
                   const std::vector<std::string>& lines);
// A paragraph in a box of so many columns of the screen, as high as it needs; col -1 centres the
// box.
void ShowParagraphOnPaper(int box, double row, double col, double width,
                          const std::string& paragraph);
// An empty box with room for so many lines of so many characters, and the text of one of them,
// from 1.
double ShowEmptyPaperBox(int box, double row, int characters, int lines);
void PrintOnPaper(int box, int line, const std::string& text);

}  // namespace course::page
