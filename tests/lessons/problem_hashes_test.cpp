// No change alters a problem that a student has had without being noticed: the problems of all
// seeds of each lesson are kept as one number, in tests/lessons/problem_hashes.txt.
//
// COURSE_BLESS_PROBLEMS=1 renews the numbers, after the reason for the change was understood: an
// option of its own, so that renewing pictures leaves them alone.
#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>

#include "lesson_check/lesson_check.h"
#include "lessons/lesson_table.h"
#include "mathkit/tutor_codes.h"

namespace lesson_check {
namespace {

using Hashes = std::map<std::string, std::string>;  // by title, in UTF-8

std::string HashFile() {
  return std::string(std::getenv("COURSE_SOURCE_DIR")) + "/tests/lessons/problem_hashes.txt";
}

Hashes KeptHashes() {
  Hashes hashes;
  std::ifstream file(HashFile());
  for (std::string hash, title; file >> hash >> std::ws && std::getline(file, title);)
    hashes[title] = hash;
  return hashes;
}

// In the order of the course, a line a lesson.
void Keep(const Hashes& hashes) {
  std::ofstream file(HashFile());
  for (const std::string_view title : course::LessonTitles()) {
    const auto found = hashes.find(course::ToUtf8(std::string(title)));
    if (found != hashes.end()) file << found->second << "  " << found->first << "\n";
  }
}

bool Blessing() {
  const char* bless = std::getenv("COURSE_BLESS_PROBLEMS");
  return bless != nullptr && std::string(bless) == "1";
}

std::string HexText(std::uint64_t number) {
  char text[17];
  std::snprintf(text, sizeof text, "%016llx", static_cast<unsigned long long>(number));
  return text;
}

class ProblemHashes : public ::testing::TestWithParam<std::string> {};

TEST_P(ProblemHashes, AreThoseThatWereKept) {
  const std::string title = course::ToUtf8(GetParam());
  const std::string hash = HexText(HashOfProblems(*course::MakeLesson(GetParam())));
  Hashes kept = KeptHashes();
  if (Blessing()) {
    kept[title] = hash;
    return Keep(kept);
  }
  EXPECT_EQ(kept[title], hash) << "The problems of \"" << title
                               << "\" are not those that were kept.  If they have to change: "
                                  "COURSE_BLESS_PROBLEMS=1 build/bin/lessons_tests "
                                  "--gtest_filter='*ProblemHashes*'";
}

std::vector<std::string> Titles() {
  std::vector<std::string> titles;
  for (const std::string_view title : course::LessonTitles()) titles.emplace_back(title);
  return titles;
}

INSTANTIATE_TEST_SUITE_P(Course, ProblemHashes, ::testing::ValuesIn(Titles()),
                         [](const auto& parameter) {
                           return "Lesson" + std::to_string(parameter.index + 1);
                         });

TEST(HashOfProblemsTest, TellsProblemsApart) {
  const auto simple = course::MakeLesson("Simple Inequalities");
  const auto once = simple->Draw(1);
  auto changed = once;
  changed.problem.choices[2].text += " ";
  EXPECT_NE(FingerprintText(once), FingerprintText(changed));
  changed = once;
  changed.problem.figure.at(0).values.at(0).second += 1;
  EXPECT_NE(FingerprintText(once), FingerprintText(changed));
  changed = once;
  std::swap(changed.order[1], changed.order[2]);
  EXPECT_NE(FingerprintText(once), FingerprintText(changed));
}

}  // namespace
}  // namespace lesson_check
