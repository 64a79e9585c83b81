#include "lessons/families/stories/nest_draws.h"

#include <algorithm>
#include <string>

#include "mathkit/expressions.h"

namespace course::stories {
namespace {

constexpr int kMostLevels = 3;
constexpr double kNumberShare = 0.25;  // of the operands; the others are letters
constexpr int kLargestNumber = 12;
constexpr double kSecondPairShare = 0.85;

bool IsTaken(const Nest& nest, const std::string& operand) {
  return operand == nest.start || std::ranges::any_of(nest.levels, [&](const Nest::Level& level) {
           return level.operand == operand;
         });
}

// A letter or a number that does not stand in the nest yet: each has its own place to be looked
// for.
std::string DrawOperand(const Nest& nest, RandomStream& random) {
  std::string operand;
  do {
    if (random.Rnd() < kNumberShare) {
      operand = NumStr(random.Rand(2, kLargestNumber));
    } else {
      operand = random.Letter();
      if (operand == "O") operand = "Z";  // it would be read as zero
      if (operand == "I") operand = "J";  // and as one, or as a word
    }
  } while (IsTaken(nest, operand));
  return operand;
}

}  // namespace

Nest DrawNest(RandomStream& random) {
  const auto isNumber = [](const std::string& operand) { return operand.front() <= '9'; };
  Nest nest;
  nest.start = DrawOperand(nest, random);
  const int levels = random.Rand(1, kMostLevels);
  for (int i = 0; i < levels; ++i) {
    Nest::Level level;
    const auto operation = static_cast<Operation>(random.Rand(1, kOperations));
    level.phrase = Phrase::Draw(operation, random);
    level.insideFirst = random.Rand(0, 1) == 1;
    do {
      level.operand = DrawOperand(nest, random);
      // Two numbers would be worked out at once.
    } while (i == 0 && isNumber(nest.start) && isNumber(level.operand));
    nest.levels.push_back(level);
  }
  return nest;
}

std::vector<NestSlip> DrawSlips(const Nest& nest, RandomStream& random) {
  const auto oneOf = [&random](const std::vector<NestSlip>& slips) {
    return slips[static_cast<std::size_t>(random.Index(static_cast<int>(slips.size()))) - 1];
  };
  std::vector<NestSlip> slips;
  const auto addBoth = [&](const NestSlip& operation) {
    const std::vector<NestSlip> orders = OtherOrders(operation.nest);
    if (orders.empty()) return;
    const NestSlip order = oneOf(orders);
    slips.push_back({operation.name + " and " + order.name, order.nest});
  };
  const std::vector<NestSlip> operations = OtherOperations(nest, random);
  slips.push_back(oneOf(operations));
  addBoth(slips.front());
  if (std::vector<NestSlip> orders = OtherOrders(nest); !orders.empty()) {
    if (std::ranges::any_of(orders, &NestSlip::keepsOrderOfWords))
      std::erase_if(orders, [](const NestSlip& order) { return !order.keepsOrderOfWords; });
    slips.push_back(oneOf(orders));
  }
  if (nest.levels.size() > 1 && random.Rnd() < kSecondPairShare) addBoth(slips.front());
  while (slips.size() < 4) slips.push_back(oneOf(operations));
  return slips;
}

}  // namespace course::stories
