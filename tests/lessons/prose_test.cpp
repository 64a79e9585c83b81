// What every lesson says is kept as text, a file a lesson under tests/lessons/prose, so that a
// changed sentence shows as a sentence; and it is spelled right.
//
// COURSE_BLESS_PROSE=1 renews the texts.
#include "lesson_check/prose/prose.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <set>

#include "lesson_check/file_name.h"
#include "lessons/registry.h"
#include "lessons/spelling.h"
#include "support/kept_text.h"

namespace lesson_check {
namespace {

namespace fs = std::filesystem;

fs::path TestFolder() {
  return fs::path(std::getenv("COURSE_SOURCE_DIR")) / "tests/lessons";
}

std::string FileOf(std::string_view title) {
  return FileNameOf(title) + ".txt";
}

std::string TextOf(const fs::path& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

class ProseOfLesson : public ::testing::TestWithParam<std::string> {};

TEST_P(ProseOfLesson, IsAsKept) {
  PageReader reader;
  const std::string text = ReadProse(*course::MakeLesson(GetParam()), reader).Text();
  course::testing::ExpectKept(text, "tests/lessons/prose/" + FileOf(GetParam()),
                              "COURSE_BLESS_PROSE");
}

std::vector<std::string> Titles() {
  std::vector<std::string> titles;
  for (const std::string_view title : course::LessonTitles()) titles.emplace_back(title);
  return titles;
}

INSTANTIATE_TEST_SUITE_P(Course, ProseOfLesson, ::testing::ValuesIn(Titles()),
                         [](const auto& parameter) { return FileNameOf(parameter.param); });

TEST(KeptProseTest, HasALessonForEachFile) {
  std::set<fs::path> lessons;
  for (const std::string& title : Titles()) lessons.insert(FileOf(title));
  for (const auto& file : fs::directory_iterator(TestFolder() / "prose"))
    EXPECT_TRUE(lessons.contains(file.path().filename())) << file.path() << " has no lesson";
}

TEST(KeptProseTest, IsSpelledRight) {
  Speller speller(TestFolder() / "course_words.txt");
  for (const auto& file : fs::directory_iterator(TestFolder() / "prose"))
    for (const std::string& fault : speller.Faults(TextOf(file.path())))
      ADD_FAILURE() << file.path().filename() << ", " << fault;
}

TEST(SpellerTest, FindsWrongWordsAndSkipsFormulas) {
  Speller speller(TestFolder() / "course_words.txt");
  const struct {
    const char* text;
    std::vector<std::string> faults;
  } cases[] = {
      {"We add the denominators:  5/14.\nThat's a well-known (rule).", {}},
      {"We ad the\ndenominaters, one by oen.", {"line 2: denominaters", "line 2: oen"}},
      {"Is it ot 3?  Not teh 4 of x.", {"line 1: ot", "line 1: teh"}},
      {"Add the the numbers.", {"line 1: the the"}},
      {"4abx + bx = cx\n  x² · bx    ac = bd, 2ab mph", {}},
  };
  for (const auto& each : cases) EXPECT_EQ(speller.Faults(each.text), each.faults) << each.text;
}

}  // namespace
}  // namespace lesson_check
