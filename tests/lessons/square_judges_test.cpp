// The judges of perfect squares and of differences of squares: a root's negative is as right as the
// root, and a product that is right but not factored completely is not.
#include <gtest/gtest.h>

#include "lesson_check/exact/unreadable.h"
#include "lesson_check/judge.h"

namespace lesson_check {
namespace {

Reading Read(std::string_view title, std::vector<std::string> question) {
  course::Problem problem;
  problem.question = std::move(question);
  return JudgeOf(title)(problem);
}

bool IsRight(const Reading& reading, const std::string& choice) {
  return reading.value(choice) == reading.answer;
}

TEST(SquareJudges, RootOfAPerfectSquare) {
  constexpr const char* kTitle = "Perfect Square Trinomials";
  const Reading reading = Read(kTitle, {"Find the square root.", "4x^2^ - 20x + 25"});
  EXPECT_TRUE(IsRight(reading, "2x - 5"));
  EXPECT_TRUE(IsRight(reading, "-2x + 5"));
  EXPECT_FALSE(IsRight(reading, "2x + 5"));
  EXPECT_FALSE(IsRight(reading, "5x - 2"));
  EXPECT_THROW(reading.value("5"), Unreadable);
  EXPECT_THROW(Read(kTitle, {"4x^2^ - 10x + 25"}), Unreadable);
  EXPECT_THROW(Read(kTitle, {"4x^2^ - 20x - 25"}), Unreadable);
}

TEST(SquareJudges, DifferenceIsFactoredCompletely) {
  constexpr const char* kTitle = "Difference of Two Squares";
  const Reading common = Read(kTitle, {"Factor.", "12x^2^ - 75"});
  EXPECT_TRUE(IsRight(common, "3(2x - 5)(2x + 5)"));
  EXPECT_FALSE(IsRight(common, "(6x + 15)(2x - 5)"));
  EXPECT_FALSE(IsRight(common, "3(2x - 5)(2x - 5)"));
  const Reading fourth = Read(kTitle, {"Factor.", "16x^4^ - 81"});
  EXPECT_TRUE(IsRight(fourth, "(4x^2^ + 9)(2x + 3)(2x - 3)"));
  EXPECT_FALSE(IsRight(fourth, "(4x^2^ + 9)(4x^2^ - 9)"));
  EXPECT_FALSE(IsRight(fourth, "(2x + 3)^2^(2x - 3)^2^"));
  EXPECT_THROW(Read(kTitle, {"Factor.", "4x^2^ + 25"}), Unreadable);
  EXPECT_THROW(Read(kTitle, {"Factor.", "5x^2^ - 16"}), Unreadable);
}

}  // namespace
}  // namespace lesson_check
