// The numbers from 1 to 30 in three rows of the lesson screen, from which the composite ones are
// crossed out.
#pragma once

namespace course::factoring {

class NumberGrid {
 public:
  static constexpr int kLast = 30;

  explicit NumberGrid(double row);
  void CrossOutOne() const { CrossOut(1, 1); }
  // All multiples of 2, 3 or 5 but itself.
  void CrossOutMultiples(int prime) const;
  void FramePrimes() const;

 private:
  void CrossOut(int number, int by) const;
  double RowOf(int number) const;

  double row_;
};

}  // namespace course::factoring
