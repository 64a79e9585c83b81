// The numbers from 1 to 30 in three rows of the lesson screen, from which the composite ones are
// crossed out.
#pragma once

namespace course::factoring {

class NumberGrid {
 public:
  static constexpr int kLast = 30;

  explicit NumberGrid(double row);
  void CrossOut(int number) const;
  // All multiples of a number but itself.
  void CrossOutMultiples(int of) const;
  void FramePrimes() const;

 private:
  double RowOf(int number) const;

  double row_;
};

}  // namespace course::factoring
