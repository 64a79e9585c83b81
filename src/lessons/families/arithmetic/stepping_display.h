// The display that steps through an evaluation: the part being worked on is picked out in yellow
// with a bracket below it, and its result stands under the bracket on the next line, where all
// other parts are copied straight down.  Nothing changes its column, so that the eye can follow
// every number.
#pragma once

#include <string>
#include <vector>

namespace course::arithmetic {

class SteppingDisplay {
 public:
  // Prints a line of text at a cell of the lesson window.  Its parts are what stands between
  // blanks; a bracket is a part of its own.  Exponents stand between "^".
  SteppingDisplay(const std::string& text, double row, double column);

  // Picks out parts first to last, from 0, of the line printed last.  Parts that are not there stop
  // the program.
  void PickOut(std::size_t first, std::size_t last);
  // Prints the next line: the result in place of what was picked out.
  void ShowResult(const std::string& result);

  double Row() const { return row_; }  // of the line printed last

 private:
  struct Part {
    std::string text;
    double column = 0;
    double EndColumn() const;  // the first free column behind it
  };
  void Print(const Part& part) const;

  std::vector<Part> parts_;
  double row_ = 0;
  std::size_t firstPicked_ = 0;
  std::size_t lastPicked_ = 0;
};

inline constexpr double kSteppingRows = 1.8;  // from one line to the next, the bracket between

}  // namespace course::arithmetic
