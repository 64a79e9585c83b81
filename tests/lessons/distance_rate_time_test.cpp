// "Distance-Rate-Time Problems": the reader of its word table, its units, and its problems as a
// student reads them.
#include <map>
#include <regex>

#include "lessons/families/stories/durations.h"
#include "lessons/families/stories/motion.h"
#include "lessons/families/stories/word_table.h"
#include "lessons/registry.h"
#include "mathkit/tutor_codes.h"
#include "support/course_fixture.h"
#include "support/expect_stop.h"

namespace course::testing {
namespace {

using namespace stories;

class WordProblemTest : public CourseTest {};

TEST_F(WordProblemTest, AWordTableIsReadByARunningIndex) {
  constexpr std::string_view kEntries[] = {"boat", "3", "cake", ".75"};
  WordTable table(kEntries);
  EXPECT_EQ(table.Next(), "boat");
  EXPECT_EQ(table.NextNumber(), 3);
  table.GoToRow(2, 2);
  EXPECT_EQ(table.Next(), "cake");
  EXPECT_EQ(table.NextNumber(), 0.75);
  ExpectStop("WordTable::Next", [&] { table.Next(); });
  table.GoTo(1);
  ExpectStop("WordTable::NextNumber: entry 1 is \"boat\"", [&] { table.NextNumber(); });
  ExpectStop("WordTable::GoTo", [&] { table.GoToRow(3, 2); });
}

TEST_F(WordProblemTest, UnitsAgreeWithTheirNumbers) {
  EXPECT_EQ(ToUtf8(DurationText(60)), "1 hour");
  EXPECT_EQ(ToUtf8(DurationText(45)), "45 minutes");
  EXPECT_EQ(ToUtf8(DurationText(150)), "2 hours & 30 minutes");
  EXPECT_EQ(ToUtf8(QuantityText({1, 1}, "mile")), "1 mile");
  EXPECT_EQ(ToUtf8(QuantityText({3, 4}, "mile")), "3/4 mile");
  EXPECT_EQ(ToUtf8(QuantityText({5, 4}, "mile")), "1 1/4 miles");
  // No line breaks between a number and its unit.
  EXPECT_EQ(DurationText(150).find(' '), DurationText(150).find(" &"));
}

// Rates and times that a reader finds in a question, in the order of the text.
struct Found {
  std::string vehicle;
  std::vector<int> rates;  // miles an hour
  int minutes = 0;         // 0 when it is not told
  bool drifts = false;
  bool against = false;
};

Found Read(const std::string& question) {
  static const std::regex kRate(R"((\d+) mph)");
  static const std::regex kHours(R"((\d+) hours?)");
  static const std::regex kMinutes(R"((\d+) minutes)");
  Found found;
  std::smatch match;
  found.vehicle = question.substr(2, question.find(' ', 2) - 2);
  for (std::sregex_iterator i(question.begin(), question.end(), kRate), end; i != end; ++i)
    found.rates.push_back(std::stoi((*i)[1]));
  if (std::regex_search(question, match, kHours)) found.minutes += 60 * std::stoi(match[1]);
  if (std::regex_search(question, match, kMinutes)) found.minutes += std::stoi(match[1]);
  found.against = question.find(" against a ") != std::string::npos;
  found.drifts = found.against || question.find(" with a ") != std::string::npos;
  return found;
}

TEST_F(WordProblemTest, EveryVehicleKeepsToItsOwnRatesTimesAndWinds) {
  struct Limits {
    int slowest, fastest, longest;  // minutes
    int strongest;                  // wind or current, 0 for none
  };
  const std::map<std::string, Limits> limits = {
      {"boat", {3, 30, 585, 10}},   {"fish", {3, 15, 285, 10}},  {"plane", {150, 250, 585, 50}},
      {"jet", {200, 500, 585, 50}}, {"bird", {10, 45, 285, 10}}, {"car", {20, 65, 585, 0}},
      {"jogger", {4, 8, 60, 0}},    {"skater", {5, 10, 60, 0}}};
  std::map<std::string, int> met;
  const auto lesson = MakeLesson("Distance-Rate-Time Problems");
  constexpr int kDrawn = 6000;
  for (int seed = 0; seed < kDrawn; ++seed) {
    const Problem problem = lesson->Draw(seed).problem;
    const std::string question = ToUtf8(problem.question[0] + "  " + problem.question[1]);
    SCOPED_TRACE(question);
    const Found found = Read(question);
    const Limits& limit = limits.at(found.vehicle);
    ++met[found.vehicle];
    ASSERT_LE(found.minutes, limit.longest);
    ASSERT_EQ(found.minutes % 15, 0);
    ASSERT_TRUE(!found.drifts || limit.strongest > 0);
    const bool rateTold = found.rates.size() > (found.drifts ? 1u : 0u);
    if (found.drifts) {
      ASSERT_LE(found.rates.back(), limit.strongest);
    }
    if (rateTold) {
      ASSERT_TRUE(found.rates[0] >= limit.slowest && found.rates[0] <= limit.fastest);
      ASSERT_TRUE(!found.against || found.rates[1] < found.rates[0]);
    }
    const bool asksForRate = !rateTold;
    for (int choice = 1; choice <= 5; ++choice) {
      const std::string text = ToUtf8(problem.choices[static_cast<std::size_t>(choice)].text);
      ASSERT_NE(text[0], '0');
      if (!asksForRate) continue;
      ASSERT_EQ(text.find('/'), std::string::npos) << text;
      const int offered = std::stoi(text);
      ASSERT_TRUE(offered >= limit.slowest && offered <= limit.fastest) << text;
    }
  }
  EXPECT_EQ(met.size(), limits.size());
  EXPECT_NEAR(met["jogger"], 2 * kDrawn / 9, kDrawn / 45);
  EXPECT_NEAR(met["plane"], kDrawn / 9, kDrawn / 45);
}

TEST_F(WordProblemTest, TheWorkingIsWrittenLineByLineWithoutRepeats) {
  Motion motion;
  motion.rate = 20;
  motion.drift = 5;
  motion.direction = -1;
  motion.minutes = 270;
  const auto lines = [&](MotionPart asked) {
    motion.asked = asked;
    std::vector<std::string> printed;
    for (const std::string& line : WorkingLines(motion)) printed.push_back(ToUtf8(line));
    return printed;
  };
  using Lines = std::vector<std::string>;
  EXPECT_EQ(lines(MotionPart::Distance), (Lines{"15 × 4 1/2", "15 × 9/2", "135/2", "67 1/2"}));
  EXPECT_EQ(lines(MotionPart::Rate), (Lines{"67 1/2 ÷ 4 1/2", "135/2 ÷ 9/2", "135/2 × 2/9", "15"}));
  EXPECT_EQ(lines(MotionPart::Time),
            (Lines{"67 1/2 ÷ 15", "135/2 ÷ 15", "135/2 × 1/15", "9/2", "4 1/2"}));
  motion.minutes = 240;
  EXPECT_EQ(lines(MotionPart::Time), (Lines{"60 ÷ 15", "4"}));
}

}  // namespace
}  // namespace course::testing
