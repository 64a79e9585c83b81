#include "lessons/families/factoring/factor_tree.h"

#include <algorithm>
#include <string>

#include "display/drawing.h"
#include "lessons/families/factoring/factor_frame.h"
#include "lessons/families/fractions/fraction_steps.h"
#include "lessons/page/show.h"
#include "mathkit/expressions.h"
#include "platform/stop.h"

namespace course::factoring {

namespace {

constexpr double kLevelRows = 2;
constexpr double kSignColumns = 3;  // a multiplication sign between two blanks

}  // namespace

FactorTree Leaf(int number) {
  return {number, {}};
}

FactorTree Split(const FactorTree& first, const FactorTree& second) {
  return {first.number * second.number, {first, second}};
}

FactorTree TreeOfSmallestPrimes(int number) {
  const std::vector<int> primes = fractions::PrimeFactorsOf(number);
  FactorTree tree = Leaf(primes.back());
  for (auto prime = primes.rbegin() + 1; prime != primes.rend(); ++prime)
    tree = Split(Leaf(*prime), tree);
  return tree;
}

double FactorTreeFigure::Node::Width() const {
  return static_cast<double>(NumStr(number).size());
}

double FactorTreeFigure::Node::FirstColumn() const {
  return middle - (Width() - 1) / 2;
}

FactorTreeFigure::FactorTreeFigure(const FactorTree& tree, double row, double col)
    : row_(row), nextLeaf_(col), firstLeaf_(col) {
  Place(tree, 0, -1);
  ShowNode(nodes_.front());
}

// Leaves stand side by side; every other number over the middle of its two factors.
int FactorTreeFigure::Place(const FactorTree& tree, int level, int parent) {
  const std::size_t at = nodes_.size();
  const int index = static_cast<int>(at);
  nodes_.push_back({tree.number, level, parent, tree.branches.empty(), 0});
  levels_ = std::max(levels_, level + 1);
  if (tree.branches.empty()) {
    const double width = nodes_[at].Width();
    nodes_[at].middle = nextLeaf_ + (width - 1) / 2;
    nextLeaf_ += width + kSignColumns;
    return index;
  }
  double sum = 0;
  for (const FactorTree& branch : tree.branches) {
    const int child = Place(branch, level + 1, index);
    sum += nodes_[static_cast<std::size_t>(child)].middle;
  }
  nodes_[at].middle = sum / 2;
  return index;
}

double FactorTreeFigure::RowOf(int level) const {
  return row_ + kLevelRows * level;
}

void FactorTreeFigure::ShowNode(const Node& node) const {
  const double row = RowOf(node.level);
  page::ShowAt(row, (node.isLeaf ? R"(\y)" : "") + NumStr(node.number), node.FirstColumn());
  if (node.isLeaf) FrameNode(node);
}

void FactorTreeFigure::FrameNode(const Node& node) const {
  const double row = RowOf(node.level);
  FrameFactor(row, row, node.FirstColumn(), node.FirstColumn() + node.Width() - 1);
}

void FactorTreeFigure::DrawBranch(const Node& node) const {
  constexpr double kBelowNumber = 0.65;  // rows from the middle of its cell
  constexpr double kAboveNumber = 0.5;
  const Node& parent = nodes_[static_cast<std::size_t>(node.parent)];
  isDrawDiagonalLineWithColor(RowOf(parent.level) + kBelowNumber, parent.middle,
                              RowOf(node.level) - kAboveNumber, node.middle, 2,
                              platform::colour::White);
}

void FactorTreeFigure::Grow() {
  if (shown_ == levels_) platform::Stop("FactorTreeFigure: there is no further level");
  for (const Node& node : nodes_) {
    if (node.level != shown_) continue;
    DrawBranch(node);
    ShowNode(node);
  }
  ++shown_;
}

void FactorTreeFigure::DropPrimes(double row) const {
  FactorList leaves;
  for (const Node& node : nodes_) {
    if (!node.isLeaf) continue;
    leaves.push_back(node.number);
    SlideFactorDown(RowOf(node.level), row, node.FirstColumn(), node.Width());
    FrameNode(node);
  }
  ShowOverSlid(
      row, firstLeaf_,
      R"(\y)" + fractions::ProductText(leaves) + R"(\z = )" + NumStr(nodes_.front().number));
}

}  // namespace course::factoring
