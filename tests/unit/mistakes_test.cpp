// What is said of the wrong choices: which ones, in which order, and in which words.
#include "engine/mistakes.h"

#include <gtest/gtest.h>

#include "engine/choices.h"

namespace course::testing {
namespace {

TEST(MistakesTest, VerbsTurnIntoOurs) {
  const struct {
    const char* someone;
    const char* we;
  } cases[] = {
      {"works from left to right", "work from left to right"},
      {"multiplies the exponents", "multiply the exponents"},
      {"ties it", "tie it"},
      {"reaches too far", "reach too far"},
      {"misses a term", "miss a term"},
      {"mixes the terms up", "mix the terms up"},
      {"goes on", "go on"},
      {"has a sign too many", "have a sign too many"},
      {"does not divide", "do not divide"},
      {"is too quick", "are too quick"},
      {"only adds the first", "only add the first"},
      {"always divides", "always divide"},
      {"adds and subtracts first", "add and subtract first"},
      {"forgets parentheses and brackets", "forget parentheses and brackets"},
      {"loses the sign under the radical and divides by a",
       "lose the sign under the radical and divide by a"},
      {"keeps the sign, then multiplies", "keep the sign, then multiply"},
      {"guesses his result", "guess our result"},
      {"passes over the minus signs", "pass over the minus signs"},
      {"moves 3 across with its sign", "move 3 across with its sign"},
  };
  for (const auto& each : cases) EXPECT_EQ(InOurWords(each.someone), each.we);
}

TEST(MistakesTest, TheStudentsOwnComesFirstThenTheBoxesInTheirOrder) {
  Problem problem;
  problem.kind = choice_kind::FourShuffledAndNone;
  problem.Right(1, "1");
  problem.Wrong(2, "adds", "2");
  problem.Wrong(3, kFiller, "3");
  problem.Wrong(4, "subtracts", "4");
  problem.Wrong(5, "is not shown", "5");
  const std::vector<int> order = {0, 4, 3, 1, 2, 5};
  const auto told = [&](int box) {
    std::string text;
    for (const NamedMistake& mistake : NamedMistakes(problem, order, box))
      text += (mistake.own ? "own " : "") + mistake.name + (mistake.rounded ? " about " : " ") +
              mistake.text + "; ";
    return text;
  };
  EXPECT_EQ(told(0), "subtracts 4; adds 2; ");
  EXPECT_EQ(told(4), "own adds 2; subtracts 4; ");
  for (const int box : {2, 3, 5}) EXPECT_EQ(told(box), told(0)) << "a filler, the right one, none";
  problem.Right(5, "1");
  problem.Wrong(1, "halves, rounded", "6");
  EXPECT_EQ(told(0), "subtracts 4; halves about 6; adds 2; ");
}

}  // namespace
}  // namespace course::testing
