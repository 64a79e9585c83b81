// What the results of a test say.
#include "assessment/test_scores.h"

#include <gtest/gtest.h>

#include "assessment/unit_test_start.h"

namespace course {
namespace {

TEST(TestScores, ALessonTestCountsInTwentieths) {
  EXPECT_EQ(LessonTestPercentText(0), "Percent Correct: 0% (0 out of 5)");
  EXPECT_EQ(LessonTestPercentText(3), "Percent Correct: 60% (3 out of 5)");
  EXPECT_EQ(LessonTestPercentText(5), "Percent Correct: 100% (5 out of 5)");
}

TEST(TestScores, APercentOfAUnitTestGoesUpFromAHalf) {
  EXPECT_EQ(UnitTestPercentText(2, 3), " Percent Correct: 67% (2 out of 3)");
  EXPECT_EQ(UnitTestPercentText(1, 8), " Percent Correct: 13% (1 out of 8)");
  EXPECT_EQ(UnitTestPercentText(0, 4), " Percent Correct: 0% (0 out of 4)");
  EXPECT_EQ(UnitTestPercentText(20, 20), " Percent Correct: 100% (20 out of 20)");
}

// In whole numbers: half of the count is added before the division.
TEST(TestScores, NoCountOfATestIsRoundedWrongly) {
  for (int count = 4; count <= 20; ++count)
    for (int correct = 0; correct <= count; ++correct) {
      const int exact = (200 * correct + count) / (2 * count);
      const std::string wanted = " Percent Correct: " + std::to_string(exact) + "% (";
      EXPECT_EQ(UnitTestPercentText(correct, count).substr(0, wanted.size()), wanted)
          << correct << " of " << count;
    }
}

TEST(TestScores, NoTestHasMoreProblemsThanTheResultsHaveRows) {
  EXPECT_EQ(MostProblemsPerLesson(2), 4);
  EXPECT_EQ(MostProblemsPerLesson(6), 3);
  EXPECT_EQ(MostProblemsPerLesson(7), 2);
  for (int lessons = 1; lessons <= 10; ++lessons)
    EXPECT_LE(lessons * MostProblemsPerLesson(lessons), 20) << lessons;
}

}  // namespace
}  // namespace course
