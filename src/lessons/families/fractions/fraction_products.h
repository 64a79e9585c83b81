// Two fractions that are multiplied: numbers that are struck out before multiplying, and the
// picture of a part of a part.
#pragma once

#include <string>

#include "mathkit/fraction.h"

namespace course::fractions {

// Both positive and in lowest terms.
struct FractionProduct {
  Fraction first;
  Fraction second;

  // The common factors of the first numerator and the second denominator, and of the second
  // numerator and the first denominator; 1 when nothing can be struck out.
  int FallingFactor() const;
  int RisingFactor() const;
  Fraction Result() const { return first * second; }
  // "4/15 x 5/8"
  std::string Text() const;
  // "(4 x 5)/(15 x 8)"
  std::string JoinedText() const;
  // "20/120", not reduced.
  std::string UnreducedText() const;
  // "(1 x 1)/(3 x 2)": what is left when both factors are struck out.
  std::string LeftText() const;
};

// The line "4/15 x 5/8 = (4 x 5)/(15 x 8)" on the page, in whose joined fraction numbers are struck
// out.  Two rows above and below the bar what is left of each number stands, in yellow.  After each
// step the next AddLine goes on below all that stands on the page.
class StrikingLine {
 public:
  // row is that of the bar.
  StrikingLine(double row, const FractionProduct& product);

  // The first numerator and the second denominator, or the second numerator and the first
  // denominator, are divided by their common factor, which is more than 1.
  void StrikeFalling() const;
  void StrikeRising() const;
  // "= (1 x 1)/(3 x 2) = 1/6" behind the joined fraction.
  void ShowRest() const;

 private:
  enum class Side { Above, Below };
  enum class Place { First, Second };
  struct Pair {
    Side side;
    int first;
    int second;
  };
  void Strike(const Pair& pair, Place place, int factor) const;

  double row_;
  FractionProduct product_;
};

// A rectangle cut into columns, the first of which are filled with one colour; of these the first
// rows, when it is cut into rows too, with another.  30 columns of the screen wide and 5 rows high.
struct PartOfPart {
  int columns;
  int filledColumns;
  int rows = 1;
  int filledRows = 0;
};
void DrawPartOfPart(double row, double col, const PartOfPart& parts);

}  // namespace course::fractions
