// The problems of "Adding Fractions", read from the line of the question.
#include <numeric>
#include <regex>
#include <set>

#include "lessons/registry.h"
#include "support/course_fixture.h"

namespace course::testing {
namespace {

class AddingFractionsTest : public CourseTest {};

TEST_F(AddingFractionsTest, FractionsAreProperInLowestTermsAndNeedACommonDenominator) {
  const auto lesson = MakeLesson("Adding Fractions");
  const std::regex sum(R"((\d+)/(\d+) \+ (?:(\d+)/(\d+)|\((-\d+)\)/(\d+)))");
  int shareAFactor = 0;
  int negative = 0;
  constexpr int kDrawn = 4000;
  for (int seed = 0; seed < kDrawn; ++seed) {
    const std::string line = lesson->Draw(seed).problem.question.back();
    std::smatch parts;
    ASSERT_TRUE(std::regex_match(line, parts, sum)) << line;
    const bool minus = parts[5].matched;
    const int a = std::stoi(parts[1]);
    const int b = std::stoi(parts[2]);
    const int c = std::stoi(parts[minus ? 5 : 3]);
    const int d = std::stoi(parts[minus ? 6 : 4]);
    ASSERT_TRUE(a < b && std::abs(c) < d && b <= 30 && d <= 30) << line;
    ASSERT_TRUE(std::gcd(a, b) == 1 && std::gcd(c, d) == 1) << line;
    ASSERT_TRUE(b % d != 0 && d % b != 0) << line;
    ASSERT_GT(a * d + b * c, 0) << line;
    ASSERT_LE(std::lcm(b, d), 180) << line;
    shareAFactor += std::gcd(b, d) > 1;
    negative += minus;
  }
  EXPECT_GT(shareAFactor, kDrawn / 2);  // all of one kind, some of the other
  EXPECT_GT(negative, kDrawn / 4);
}

}  // namespace
}  // namespace course::testing
