// A number line with a scale of its own: a number at every so many units, ticks between them, and
// points with letters above.  It is as wide as the lesson screen.
//
//   ScaleLine line({4, 2}, 7);        // ..., -8, -4, 0, 4, 8, ... and a tick at every 2
//   line.Add({PointOnLineItem(-6, "K")});
//   line.Hop(-4, -6);                 // an arc below the line, from tick to tick
//   line.Distance(-6);                // an arrow above the letters, from 0
//   line.Jump(2, 6, "+ 4");           // an arrow from 2 to 6
#pragma once

#include <string>
#include <vector>

#include "display/figure_item.h"
#include "platform/geometry.h"

namespace course::graphs {

inline constexpr int kNumbersASide = 3;  // on each side of 0

// Whole numbers above 0; numbers is a multiple of ticks.
struct LineScale {
  int numbers = 1;  // from one printed number to the next
  int ticks = 1;    // from one tick to the next

  int Spaces() const { return numbers / ticks; }  // between two printed numbers
  int End() const { return kNumbersASide * numbers; }
};

// "scale" with numbers and ticks: what a problem's figure begins with.
FigureItem ScaleItem(const LineScale& scale);

class ScaleLine {
 public:
  // Shows it with its top on a row of the lesson's cell grid; index 1 to 5.  It is kRows high.
  ScaleLine(const LineScale& scale, double row, int index = 1);
  static constexpr double kRows = 3.8;

  // Points between -End and End; a scale among the items must be this one's.
  void Add(const std::vector<FigureItem>& items,
           platform::Colour colour = platform::colour::Black) const;
  // Arcs over the spaces from one tick to another, the last one with an arrowhead.
  void Hop(int from, int to) const;
  // An arrow above the letters from one number to another, with what is added above it.
  void Jump(int from, int to, const std::string& label) const;
  // The same from 0 to the point, with the number of units.
  void Distance(int to) const;

 private:
  int PixelOf(double number) const;

  LineScale scale_;
  int index_;
  int tickPixels_;
};

}  // namespace course::graphs
