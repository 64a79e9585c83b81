// A radicand written as a product of its primes, or of its letters: equal factors are framed two by
// two, one of each pair comes down to what stands outside the radical, and what has no pair comes
// down to what stays inside.
//
//   PairsFigure figure = PairsFigure::OfNumber(72, 7);
//   figure.BringPairsOut();
//   figure.KeepRest();
#pragma once

#include <string>
#include <vector>

namespace course::radicals {

class PairsFigure {
 public:
  // Shows "v72 = v(2 x 2 x 2 x 3 x 3)" on the row; the two rows of Outside and Inside stand below,
  // down to row + 3.5.
  static PairsFigure OfNumber(int number, double row);
  static PairsFigure OfLetters(const std::string& letters, double row);

  bool HasPair() const { return !outside_.empty(); }
  bool HasRest() const { return !inside_.empty(); }
  void BringPairsOut() const;
  void KeepRest() const;
  // "2 x 3", the factors that come out, and those that stay; "" for none.
  std::string OutsideText() const { return Joined(outside_); }
  std::string InsideText() const { return Joined(inside_); }

 private:
  struct Factor {
    std::string text;
    double col = 0;
  };
  PairsFigure(const std::string& radical, const std::vector<std::string>& factors, std::string sign,
              double row);
  std::string Joined(const std::vector<Factor>& factors) const;
  void FramePairs() const;
  void Drop(const std::vector<Factor>& factors, const std::string& words, double row) const;

  double row_;
  std::string sign_;
  std::vector<std::vector<Factor>> pairs_;
  std::vector<Factor> outside_;  // one of each pair
  std::vector<Factor> inside_;
};

}  // namespace course::radicals
