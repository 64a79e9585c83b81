// A problem that a student has had stays what it was: one hash a lesson over the problems of all
// seeds, kept in problem_hashes.txt.  COURSE_BLESS_PROBLEMS=1 writes the file anew, for a change
// that is meant to alter problems.
#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <map>

#include "lesson_check/lesson_check.h"
#include "lessons/blank_lesson.h"
#include "lessons/lesson_table.h"
#include "mathkit/tutor_codes.h"

namespace lesson_check {
namespace {

std::string HashText(course::LessonScript& lesson) {
  char text[17];
  std::snprintf(text, sizeof text, "%016llx",
                static_cast<unsigned long long>(HashOfProblems(lesson)));
  return text;
}

std::map<std::string, std::string> HashesOfTheCourse() {
  std::map<std::string, std::string> hashes;
  for (const std::string_view title : course::LessonTitles()) {
    const auto lesson = course::MakeLesson(std::string(title));
    hashes[course::ToUtf8(std::string(title))] = HashText(*lesson);
  }
  hashes["Blank Lesson"] = HashText(*course::MakeBlankLesson());
  return hashes;
}

// A line is the hash, a blank, and the title.
std::map<std::string, std::string> KeptHashes(const std::string& file) {
  std::map<std::string, std::string> hashes;
  std::ifstream lines(file);
  for (std::string hash, title; lines >> hash && std::getline(lines >> std::ws, title);)
    hashes[title] = hash;
  return hashes;
}

TEST(ProblemHashes, ProblemsOfAllSeedsAreWhatTheyWere) {
  const char* source = std::getenv("COURSE_SOURCE_DIR");
  ASSERT_NE(source, nullptr);
  const std::string file = std::string(source) + "/tests/lessons/problem_hashes.txt";
  const auto hashes = HashesOfTheCourse();
  if (const char* bless = std::getenv("COURSE_BLESS_PROBLEMS"); bless != nullptr && *bless == '1') {
    std::ofstream lines(file);
    for (const auto& [title, hash] : hashes) lines << hash << " " << title << "\n";
    ASSERT_TRUE(lines.good()) << file;
    return;
  }
  EXPECT_EQ(KeptHashes(file), hashes)
      << "If students shall have other problems than before, renew the hashes: "
         "COURSE_BLESS_PROBLEMS=1 build/bin/lessons_tests --gtest_filter='ProblemHashes.*'";
}

}  // namespace
}  // namespace lesson_check
