// What is special to "Simple Inequalities": the 52 rays, and the sentence that slides up.
#include <gtest/gtest.h>

#include "display/lesson_window.h"
#include "lesson_check/lesson_check.h"
#include "lesson_check/pages/page_reader.h"
#include "lessons/registry.h"
#include "session/session.h"

namespace course::testing {
namespace {

class SimpleInequalitiesTest : public ::testing::Test {
 protected:
  void TearDown() override { session = Session{}; }

  // One seed for each right answer, which tells the ray.
  std::map<std::string, int> SeedsOfAllProblems() {
    std::map<std::string, int> seeds;
    for (int seed = 0; seed < lesson_check::kSeeds; ++seed) {
      const auto drawn = lesson_->Draw(seed);
      EXPECT_EQ(drawn.order, (std::vector<int>{0, 1, 2, 3, 4, 5})) << seed;
      seeds.emplace(ChoiceText(drawn.problem, drawn.problem.correct), seed);
    }
    return seeds;
  }

  std::unique_ptr<LessonScript> lesson_ = MakeLesson("Simple Inequalities");
};

// 13 starting points, open or closed, in two directions.
TEST_F(SimpleInequalitiesTest, OnlyTheLastSentenceOfTheExplanationStandsAboveTheAnswer) {
  const auto seeds = SeedsOfAllProblems();
  ASSERT_EQ(seeds.size(), 52u);
  lesson_check::PageReader reader;
  for (const auto& [answer, seed] : seeds) {
    SCOPED_TRACE("Simple Inequalities#" + std::to_string(seed));
    int pages = 0;
    std::vector<std::string> end;
    reader.Read(*lesson_, mode::Explanation, seed, [&] {
      ++pages;
      end = TranscriptLines(frmPR->lessonText);
    });
    EXPECT_EQ(pages, 9);
    ASSERT_EQ(end.size(), 6u);
    EXPECT_EQ(end[2].substr(0, 20), "The arrow's range in");
    EXPECT_EQ(end[4], "  This is written as:");
    EXPECT_EQ(end[5], std::string(16, ' ') + answer);
  }
}

}  // namespace
}  // namespace course::testing
