// No change alters a problem that a student has had without being noticed: the problems of all
// seeds of each lesson are kept as numbers, one for each block of seeds, in a file of the lesson
// under tests/lessons/problem_hashes.
//
// COURSE_BLESS_PROBLEMS=1 renews the numbers, after the reason for the change was understood: an
// option of its own, so that renewing pictures leaves them alone.
#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <set>
#include <sstream>

#include "lesson_check/file_name.h"
#include "lesson_check/lesson_check.h"
#include "lessons/registry.h"

namespace lesson_check {
namespace {

std::filesystem::path HashFolder() {
  return std::filesystem::path(std::getenv("COURSE_SOURCE_DIR")) / "tests/lessons/problem_hashes";
}

std::filesystem::path HashFile(const std::string& title) {
  return HashFolder() / (FileNameOf(title) + ".txt");
}

bool Blessing() {
  const char* bless = std::getenv("COURSE_BLESS_PROBLEMS");
  return bless != nullptr && std::string(bless) == "1";
}

// A line a block of seeds.
std::vector<std::string> HashLines(const std::string& title) {
  std::vector<std::string> lines;
  for (const std::uint64_t hash : HashesOfProblems(*course::MakeLesson(title))) {
    char text[17];
    std::snprintf(text, sizeof text, "%016llx", static_cast<unsigned long long>(hash));
    lines.emplace_back(text);
  }
  return lines;
}

std::vector<std::string> KeptLines(const std::string& title) {
  std::vector<std::string> lines;
  std::ifstream file(HashFile(title));
  for (std::string line; std::getline(file, line);) lines.push_back(line);
  return lines;
}

class ProblemHashes : public ::testing::TestWithParam<std::string> {};

TEST_P(ProblemHashes, AreThoseThatWereKept) {
  const std::string& title = GetParam();
  const std::vector<std::string> hashes = HashLines(title);
  if (Blessing()) {
    std::ofstream file(HashFile(title));
    for (const std::string& hash : hashes) file << hash << "\n";
    return;
  }
  const std::vector<std::string> kept = KeptLines(title);
  const char* const renew =
      "If they have to change, and for a new lesson: COURSE_BLESS_PROBLEMS=1 "
      "build/bin/lessons_tests --gtest_filter='*ProblemHashes*'";
  ASSERT_EQ(kept.size(), hashes.size()) << HashFile(title) << "\n" << renew;
  for (std::size_t block = 0; block < hashes.size(); ++block) {
    const int first = static_cast<int>(block) * kBlockSeeds;
    ASSERT_EQ(kept[block], hashes[block])
        << "Problems from " << ProblemName(title, first) << " to #"
        << std::min(first + kBlockSeeds, kSeeds) - 1 << " are not those that were kept.  " << renew;
  }
}

std::vector<std::string> Titles() {
  std::vector<std::string> titles;
  for (const std::string_view title : course::LessonTitles()) titles.emplace_back(title);
  return titles;
}

INSTANTIATE_TEST_SUITE_P(Course, ProblemHashes, ::testing::ValuesIn(Titles()),
                         [](const auto& parameter) { return FileNameOf(parameter.param); });

// A merge may drop a lesson's file without a word; its kept numbers remain.
TEST(KeptHashes, EachBelongsToALesson) {
  std::set<std::string> lessons;
  for (const std::string& title : Titles()) lessons.insert(HashFile(title).filename());
  for (const auto& entry : std::filesystem::directory_iterator(HashFolder()))
    EXPECT_TRUE(lessons.contains(entry.path().filename())) << entry.path() << " has no lesson";
}

TEST(FingerprintTextTest, TellsProblemsApart) {
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
