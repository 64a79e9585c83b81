// A balance with the two sides of an equation on its pans: level while they are equal.
//
// It stands in the middle of the screen, seven rows high.  What is put on slides down on both pans.
#pragma once

#include <string>

namespace course::principles {

enum class Heavier { Neither, Left, Right };

class Balance {
 public:
  // The row of the texts on level pans; two rows above it stay free for what is put on.  Texts have
  // at most 12 characters.
  explicit Balance(double row) : row_(row) {}

  void Show(const std::string& left, const std::string& right, Heavier heavier = Heavier::Neither);
  // The term, such as "+ 4", slides down behind the text of each pan.
  void PutOnBoth(const std::string& term);
  void PutOnLeft(const std::string& term);

 private:
  void Clear() const;

  double row_;
  std::string left_;
  std::string right_;
};

}  // namespace course::principles
