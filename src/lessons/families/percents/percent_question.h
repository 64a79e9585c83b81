// "30.71 is 37% of what number?": a question about part, percent and whole, and the equation that
// says the same.
#pragma once

#include <string>
#include <vector>

namespace course::percents {

enum class Asked { Part = 1, Percent, Whole };

struct PercentQuestion {
  Asked asked = Asked::Part;
  int percent = 10;  // 10 to 99
  int whole = 1;     // 1 to 100

  int PartInHundredths() const { return percent * whole; }
  std::string PartText() const;
  std::string PercentText() const;
  std::string DecimalText() const;  // of the percent: "0.37"
  std::string WholeText() const;
  // The sentence, and "n = 0.37 x 83".
  std::string Sentence() const;
  std::string Equation() const;
  // The letter that stands for what is asked.
  std::string Letter() const;

  // What stands in the sentence, word by word, and in the equation.
  struct Piece {
    std::string words;
    std::string symbol;
  };
  std::vector<Piece> Pieces() const;
};

// The sentence on a row of the lesson screen; its words slide two rows down and become the
// equation.
class SentenceFigure {
 public:
  SentenceFigure(double row, const PercentQuestion& question);
  void Translate() const;

 private:
  double row_;
  std::vector<PercentQuestion::Piece> pieces_;
  std::vector<double> cols_;  // of their words
};

// Cells for part, percent and whole, still empty; three rows.
void ShowPartPercentWhole(double row);
// What is known, and a question mark for what is asked.
void FillKnown(const PercentQuestion& question);
// The answer takes the place of the question mark.
void FillAsked(const PercentQuestion& question);

}  // namespace course::percents
