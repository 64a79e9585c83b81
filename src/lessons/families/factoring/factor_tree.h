// Factor trees: a number over two factors, each of these over two of its own, down to the primes.
// The figure grows level by level, its primes are framed, and at last they come down into a row of
// their own, the prime factorization.
#pragma once

#include <vector>

#include "lessons/families/factoring/factor_list.h"

namespace course::factoring {

struct FactorTree {
  int number = 1;
  std::vector<FactorTree> branches;  // two, or none
};

FactorTree Leaf(int number);
FactorTree Split(const FactorTree& first, const FactorTree& second);
// The smallest prime factor is split off again and again: it stands at the left on each level.
FactorTree TreeOfSmallestPrimes(int number);

class FactorTreeFigure {
 public:
  // Shows the number; the leaves will stand from the column on, from left to right as in their
  // product.  A level takes two rows.
  FactorTreeFigure(const FactorTree& tree, double row, double col);

  // The next level appears.
  void Grow();
  int Levels() const { return levels_; }
  // Row of a level; the number at the top is level 0.
  double RowOf(int level) const;
  // The leaves slide down into a row below the tree, and become a product there, with its
  // value behind it.
  void DropPrimes(double row) const;

 private:
  struct Node {
    int number;
    int level;
    int parent;     // index; -1 at the top
    bool isLeaf;    // leaves are primes
    double middle;  // column
    double FirstColumn() const;
    double Width() const;
  };
  int Place(const FactorTree& tree, int level, int parent);
  void ShowNode(const Node& node) const;
  void FrameNode(const Node& node) const;
  void DrawBranch(const Node& node) const;

  double row_;
  double nextLeaf_;  // column, while the tree is laid out
  double firstLeaf_;
  std::vector<Node> nodes_;  // the leaves among them from left to right
  int levels_ = 1;
  int shown_ = 1;  // levels
};

}  // namespace course::factoring
