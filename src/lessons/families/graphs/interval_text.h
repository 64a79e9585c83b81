// The inequalities that belong to a segment of the number line and to two arrows, as text; and how
// two of them are joined on the page.
//
// An end is a value as the figure takes it (interval_figure.h): with kOpenEnd added, its point is
// left out.  low is less than high.
#pragma once

#include <string>

namespace course::graphs {

inline constexpr double kOpenEnd = 0.1;

// The whole number of an end.
std::string EndText(double end);
// "-3 < x", "x < 5" and "x > -3".
std::string AtLeft(double low);
std::string AtRight(double high);
std::string FromLeft(double low);

// "-3 < x <= 5": the segment.
std::string Between(double low, double high);
// "x < -3 or x >= 5": the arrows to the left of low and to the right of high.
std::string Outside(double low, double high);
// The same with both symbols reversed: the first is true for no number, the second for every one.
std::string BetweenReversed(double low, double high);
std::string OutsideReversed(double low, double high);

// The same end with the other circle.
double Flipped(double end);

// A cell of the lesson screen.
struct TextCell {
  double row;
  double col;
};
// Prints "-3 < x and x <= 4", both x picked out.
void ShowPair(const TextCell& at, double low, double high);
// A copy of that pair comes down by so many rows, and its second part slides over the "and" until
// both share an x.
void JoinPair(const TextCell& at, double drop, double low, double high);

}  // namespace course::graphs
