#include <gtest/gtest.h>

#include <algorithm>
#include <limits>
#include <set>
#include <string>
#include <vector>

#include "mathkit/draws.h"
#include "mathkit/random_stream.h"
#include "session/session.h"
#include "support/course_fixture.h"
#include "support/expect_stop.h"

namespace course {
namespace {

using testing::ExpectStop;

class DrawsTest : public testing::CourseTest {};

std::vector<int> FirstDraws(int seed, int count) {
  RandomStream random(static_cast<std::uint64_t>(seed));
  std::vector<int> draws;
  for (int i = 0; i < count; ++i) draws.push_back(random.Rand(0, 32766));
  return draws;
}

// The problems of every class, and the fixed diagnostic test, hang on these numbers: whoever
// changes them changes every problem of the course.
TEST(RandomStreamTest, SequencesOfASeedNeverChange) {
  EXPECT_EQ(FirstDraws(0, 6), (std::vector<int>{28943, 14139, 866, 31812, 3484, 10725}));
  EXPECT_EQ(FirstDraws(1, 6), (std::vector<int>{18564, 24437, 31816, 14560, 14557, 24997}));
  EXPECT_EQ(FirstDraws(32258, 6), (std::vector<int>{17557, 29075, 4251, 31984, 1850, 30035}));
  EXPECT_EQ(FirstDraws(32766, 6), (std::vector<int>{25387, 26775, 18221, 30592, 23361, 17435}));
  RandomStream random(2950);
  EXPECT_EQ(random.RandSeq(5, 5), (std::vector<int>{2, 5, 1, 4, 3}));
  EXPECT_EQ(random.OneOf(kVariableLetters), "h");
  EXPECT_EQ(random.Letter(), "B");
  EXPECT_EQ(random.Sign(), -1);
}

TEST(RandomStreamTest, EveryRangeIsReachedEvenlyAndNeverLeft) {
  struct Range {
    int low, high;
  };
  for (const Range range : {Range{1, 2}, Range{-6, 6}, Range{-38, 38}, Range{0, 99}}) {
    const int count = range.high - range.low + 1;
    const int draws = 1000 * count;
    std::vector<int> seen(static_cast<std::size_t>(count));
    RandomStream random(static_cast<std::uint64_t>(count));
    for (int i = 0; i < draws; ++i) {
      const int value = random.Rand(range.low, range.high);
      ASSERT_GE(value, range.low);
      ASSERT_LE(value, range.high);
      ++seen[static_cast<std::size_t>(value - range.low)];
    }
    // Five standard deviations of 1000 draws a value.
    for (const int times : seen) EXPECT_NEAR(times, 1000, 160);
  }
}

TEST(RandomStreamTest, WidestRangesStayInside) {
  RandomStream random(9);
  constexpr int kLowest = std::numeric_limits<int>::min();
  constexpr int kHighest = std::numeric_limits<int>::max();
  int negative = 0;
  for (int i = 0; i < 10000; ++i) {
    negative += random.Rand(kLowest, kHighest) < 0;
    ASSERT_LT(random.Rnd(), 1.0);
  }
  EXPECT_NEAR(negative, 5000, 250);
}

// Test problems 1 to 5 of a class may come from neighbouring seeds: they must not resemble each
// other.
TEST(RandomStreamTest, NeighbouringSeedsAreUnrelated) {
  constexpr int kCells = 10;
  for (int later = 0; later < 3; ++later) {
    std::vector<int> pairs(kCells * kCells);
    for (int seed = 0; seed < 32766; ++seed) {
      RandomStream here(static_cast<std::uint64_t>(seed));
      RandomStream next(static_cast<std::uint64_t>(seed + 1));
      for (int i = 0; i < later; ++i) next.Rnd();
      const int cell = here.Rand(0, kCells - 1) * kCells + next.Rand(0, kCells - 1);
      ++pairs[static_cast<std::size_t>(cell)];
    }
    const double expected = 32766.0 / (kCells * kCells);
    double chiSquare = 0;
    for (const int times : pairs) chiSquare += (times - expected) * (times - expected) / expected;
    EXPECT_LT(chiSquare, 149) << later;  // 99 degrees of freedom: exceeded once in a thousand
  }
}

TEST(RandomStreamTest, EachDrawTakesOneNumberOfTheStream) {
  RandomStream random(7);
  RandomStream counted(7);
  EXPECT_EQ(random.Rand(5, 5), 5);
  random.Sign();
  random.Letter();
  random.OneOf("x");
  random.Index(1);
  for (int i = 0; i < 5; ++i) counted.Rnd();
  EXPECT_EQ(random.Rnd(), counted.Rnd());
}

TEST(RandomStreamTest, SequencesHoldDifferentNumbersInEveryOrder) {
  RandomStream random(11);
  std::set<std::vector<int>> orders;
  for (int i = 0; i < 400; ++i) {
    std::vector<int> order = random.RandSeq(4, 4);
    orders.insert(order);
    std::sort(order.begin(), order.end());
    ASSERT_EQ(order, (std::vector<int>{1, 2, 3, 4}));
  }
  EXPECT_EQ(orders.size(), 24u);
  const std::vector<int> few = random.RandSeq(41, 8);
  EXPECT_EQ(std::set<int>(few.begin(), few.end()).size(), 8u);
  EXPECT_TRUE(random.RandSeq(3, 0).empty());
}

TEST_F(DrawsTest, AuthorsErrorsStopWithTheirValues) {
  ExpectStop("Parameters for Rand() are not integers", [] { Rand(3.5, 7); });
  ExpectStop("Parameters for Rand() are not integers", [] { Rand(3, 7.25); });
  ExpectStop("RandSeq: 5 numbers from a pool of 4", [] { RandSeq(4, 5); });
  ExpectStop("RandSeq: 1 numbers from a pool of 42", [] { RandSeq(42, 1); });
  ExpectStop("Index: there is no place in a table of 0", [] { ProblemStream().Index(0); });
  session.gUnitNum = 21;
  ExpectStop("NewProblemSeed: there is no unit 21, lesson 0", [] { NewProblemSeed(); });
  ExpectStop("AllDistinct: 4 strings asked for, 1 given", [] { AllDistinct(4, {"a"}); });
}

TEST_F(DrawsTest, RandTakesItsEndsInEitherOrder) {
  ReseedProblem(40);
  const double forwards = Rand(1, 9);
  ReseedProblem(40);
  EXPECT_EQ(Rand(9, 1), forwards);
}

TEST_F(DrawsTest, AProblemComesBackAtItsSeed) {
  NewProblemSeed();
  EXPECT_GE(session.gProblemSeed, 0);
  EXPECT_LE(session.gProblemSeed, 32766);
  std::vector<double> problem;
  ReseedProblem(session.gProblemSeed);
  for (int i = 0; i < 100; ++i) problem.push_back(Rnd());
  Randomize();
  ReseedProblem(session.gProblemSeed);
  for (const double number : problem) ASSERT_EQ(Rnd(), number);
}

// The clock stands still here: fresh seeds must differ all the same.
TEST_F(DrawsTest, FreshSeedsDifferWithinOneTickAndAreCounted) {
  session.gUnitNum = 10;
  session.gLessonNum = 1;
  std::set<int> seeds;
  for (int i = 0; i < 50; ++i) {
    NewProblemSeed();
    seeds.insert(session.gProblemSeed);
  }
  EXPECT_GE(seeds.size(), 48u);
  EXPECT_EQ(session.gProblemsGenerated[10][1], 50);
  EXPECT_EQ(session.gProblemsGenerated[1][10], 0);
}

TEST_F(DrawsTest, TheTimeOfDayDecidesWhatFollows) {
  std::set<double> numbers;
  for (int milliseconds = 0; milliseconds < 100; ++milliseconds) {
    ProblemStream().Reseed(1);
    clock.secondsSinceMidnight = 36000 + milliseconds / 1000.0;
    Randomize();
    numbers.insert(Rnd());
  }
  EXPECT_EQ(numbers.size(), 100u);
}

TEST_F(DrawsTest, TestSeedsAreAllDifferent) {
  // Some six of these runs meet an equal pair and must draw again.
  for (int run = 0; run < 20000; ++run) {
    NewTestSeeds();
    const std::set<int> seeds(session.gTestSeeds.begin() + 1, session.gTestSeeds.end());
    ASSERT_EQ(seeds.size(), 5u);
    ASSERT_GE(*seeds.begin(), 0);
    ASSERT_LE(*seeds.rbegin(), 32766);
  }
}

TEST_F(DrawsTest, EqualTextsAreFound) {
  const std::vector<std::string> texts = {"5", "-5", " 7", "7", "5"};
  EXPECT_TRUE(AllDistinct(4, texts));
  EXPECT_FALSE(AllDistinct(5, texts));
  EXPECT_TRUE(AllDistinct(0, {}));
}

TEST(SwapTest, ExchangesValues) {
  std::string a = "left";
  std::string b = "right";
  SwapStrings(a, b);
  EXPECT_EQ(a + " " + b, "right left");
  double x = 1.5;
  double y = -2;
  SwapVariant(x, y);
  EXPECT_EQ(x, -2);
  EXPECT_EQ(y, 1.5);
}

}  // namespace
}  // namespace course
