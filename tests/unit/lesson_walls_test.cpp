#include "unit/lesson_walls.h"

#include <gtest/gtest.h>

#include <cstdlib>

namespace walls {
namespace {

std::string Lines(const Complaints& complaints) {
  std::string text;
  for (const std::string& complaint : complaints) text += complaint + "\n";
  return text;
}

const Files& Tree() {
  static const Files tree = ReadTree(std::getenv("COURSE_SOURCE_DIR"));
  return tree;
}

TEST(LessonWallsTest, FilesStandWhereTheyBelong) {
  EXPECT_EQ(Lines(MisplacedLessonFiles(Tree())), "");
}
TEST(LessonWallsTest, NoLessonReachesTheRunningStream) {
  EXPECT_EQ(Lines(RunningStreamInLessons(Tree())), "");
}

// Each check must be able to fail.
TEST(LessonWallsTest, MisplacedFilesAreFound) {
  const std::string lesson = "const LessonRegistration<A> kRegistration(\"A\");\n";
  const std::string family = "namespace course::powers {\nstruct Term {};\n}\n";
  EXPECT_EQ(MisplacedLessonFiles({{"src/lessons/unit05_exponents/a.cpp", lesson},
                                  {"src/lessons/outside_units/a.cpp", lesson},
                                  {"src/lessons/registry.cpp", "namespace course {}"},
                                  {"src/lessons/families/powers/a.h",
                                   "#include \"lessons/page/say.h\"\nnamespace course {\n"
                                   "struct Problem;\n}\n" +
                                       family}}),
            Complaints{});
  const Files misplaced[] = {
      {{"src/lessons/unit05_exponents/powers.h", family}},
      {{"src/lessons/outside_units/a.cpp", "// LessonRegistration<A>\n"}},
      {{"src/lessons/families/equations/a.cpp", family}},
      {{"src/lessons/page/a.h", "namespace course {\nvoid F();\n}\n"}},
      {{"src/lessons/families/powers/a.h", "#include \"lessons/lesson.h\"\n" + family}},
      {{"src/lessons/families/powers/a.h", family + "namespace course {\nstruct Term {};\n}\n"}},
  };
  for (const Files& files : misplaced)
    EXPECT_GE(MisplacedLessonFiles(files).size(), 1u) << files[0].path << ":\n" << files[0].text;
}

TEST(LessonWallsTest, TheRunningStreamIsFound) {
  for (const char* const text : {"#include \"mathkit/draws.h\"\n", "ProblemStream().Sign();",
                                 "x = Rand (1, 6);", "course::Rnd();", "ReseedProblem(seed);"})
    EXPECT_EQ(RunningStreamInLessons({{"src/lessons/a.cpp", text}}).size(), 1u) << text;
  for (const char* const text : {"random.Rand(1, 6);", "stream->RandSeq(4, 4);", "// Rand(1, 6)\n",
                                 "DrawRand(1);", "RandomStream& random"})
    EXPECT_EQ(RunningStreamInLessons({{"src/lessons/a.cpp", text}}), Complaints{}) << text;
}

}  // namespace
}  // namespace walls
