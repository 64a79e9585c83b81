#include "unit/walls.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <stdexcept>

namespace walls {
namespace {

std::filesystem::path Root() {
  const char* root = std::getenv("COURSE_SOURCE_DIR");
  if (root == nullptr) throw std::runtime_error("COURSE_SOURCE_DIR is not set");
  return root;
}

const Files& Tree() {
  static const Files tree = ReadTree(Root());
  return tree;
}

std::string Lines(const Complaints& complaints) {
  std::string text;
  for (const std::string& complaint : complaints) text += complaint + "\n";
  return text;
}

// --- The repository
// ----------------------------------------------------------------------------------

TEST(WallsTest, TheTreeIsRead) {
  EXPECT_GT(Tree().size(), 50u);
}

TEST(WallsTest, IncludesGoDownTheFloors) {
  EXPECT_EQ(Lines(ClimbingIncludes(Tree())), "");
}
TEST(WallsTest, NoFilesIncludeEachOther) {
  EXPECT_EQ(Lines(IncludeCycles(Tree())), "");
}
TEST(WallsTest, OnlyPlatformKnowsTheToolkit) {
  EXPECT_EQ(Lines(ToolkitOutsidePlatform(Tree())), "");
}
TEST(WallsTest, OnlyPlatformTouchesTheMachine) {
  EXPECT_EQ(Lines(MachineOutsidePlatform(Tree())), "");
}

// Two runs at once must not meet in a folder.
TEST(WallsTest, TestsMakeFoldersOfTheirOwn) {
  for (const SourceFile& file : Tree()) {
    if (!file.path.starts_with("tests/") || file.path == "tests/support/scratch_folder.h") continue;
    const std::string code = CodeOnly(file.text);
    for (const char* shared : {"temp_directory_path", "TempDir"})
      EXPECT_EQ(code.find(shared), std::string::npos) << file.path << ": " << shared;
  }
}
TEST(WallsTest, EveryRoomIsDescribed) {
  EXPECT_EQ(Lines(RoomsNotDescribed(Tree())), "");
}

TEST(WallsTest, EveryFileIsInTheBuild) {
  const std::set<std::string> compiled = CompiledSources("compile_commands.json", Root());
  ASSERT_TRUE(compiled.contains("tests/unit/walls_test.cpp"));
  EXPECT_EQ(Lines(LeftOutOfBuild(Tree(), compiled)), "");
}

// --- The checks themselves: each must be able to fail
// ------------------------------------------------

TEST(WallChecksTest, CommentsAndLiteralsAreNoCode) {
  EXPECT_EQ(CodeOnly("#include <QPen>\nb"), "#include       \nb");
  EXPECT_EQ(CodeOnly("a // b\nc"), "a     \nc");
  EXPECT_EQ(CodeOnly("a /* b\n */ c"), "a     \n    c");
  EXPECT_EQ(CodeOnly("f(\"x\\\"y\", '\\'', 1'000)"), "f(      ,     , 1'000)");
  EXPECT_EQ(CodeOnly("g(R\"(a\"b)\", R\"k(c)k\")"), "g(        ,         )");
}

TEST(WallChecksTest, IncludesAreReadFromCodeAlone) {
  const SourceFile file{"src/engine/a.cpp",
                        "#include \"engine/a.h\"\n  #  include <vector>\n// #include \"x.h\"\n"
                        "auto s = R\"(\n#include \"y.h\"\n)\";\nint include = 1;\n"};
  EXPECT_EQ(Includes(file), (std::vector<std::string>{"engine/a.h", "vector"}));
}

TEST(WallChecksTest, ClimbsAndNeighboursAreFound) {
  const Files files = {
      {"src/display/print.h", "#include \"engine/answers.h\"\n"},  // upwards
      {"src/engine/answers.h", "#include \"platform/stop.h\"\n#include \"engine/problem.h\"\n"},
      {"src/engine/problem.h", ""},
      {"src/platform/stop.h",
       "#include \"session/session.h\"\n"},  // another room of the same floor
      {"src/session/session.h", ""},
      {"src/main.cpp", "#include \"engine/answers.h\"\n"},
      {"src/cellar/coal.h", ""},  // a folder without a floor
  };
  EXPECT_EQ(ClimbingIncludes(files),
            (Complaints{"src/cellar/coal.h: the folder cellar stands on no floor",
                        "src/display/print.h includes src/engine/answers.h",
                        "src/platform/stop.h includes src/session/session.h"}));
}

TEST(WallChecksTest, ACircleIsFoundOnce) {
  const Files files = {{"src/display/a.h", "#include \"b.h\"\n#include \"display/c.h\"\n"},
                       {"src/display/b.h", "#include \"display/c.h\"\n"},
                       {"src/display/c.h", ""}};
  EXPECT_EQ(IncludeCycles(files), Complaints{});
  Files circle = files;
  circle[2].text = "#include \"display/a.h\"\n";
  EXPECT_EQ(
      IncludeCycles(circle),
      (Complaints{"src/display/a.h -> src/display/b.h -> src/display/c.h -> src/display/a.h"}));
}

TEST(WallChecksTest, TheToolkitIsFoundOutsideItsSources) {
  const std::string user = "#include <QString>\nQString name;\n";
  EXPECT_EQ(ToolkitOutsidePlatform({{"src/platform/a.cpp", user}, {"bench/a.cpp", user}}),
            Complaints{});
  EXPECT_EQ(ToolkitOutsidePlatform({{"src/platform/a.h", user}}),
            (Complaints{"src/platform/a.h includes QString", "src/platform/a.h:2: QString"}));
  EXPECT_EQ(ToolkitOutsidePlatform({{"src/shell/a.cpp", "class QWidget;\n"}}),
            (Complaints{"src/shell/a.cpp:1: QWidget"}));
  EXPECT_EQ(ToolkitOutsidePlatform({{"tests/unit/a.cpp", "#include <QtTest/QSignalSpy>\n"}}),
            (Complaints{"tests/unit/a.cpp includes QtTest/QSignalSpy"}));
  EXPECT_EQ(ToolkitOutsidePlatform({{"src/platform/a_impl.h", user}}), Complaints{});
  EXPECT_EQ(ToolkitOutsidePlatform({{"src/shell/a_impl.h", "class QWidget;\n"}}).size(), 1u);
  EXPECT_EQ(ToolkitOutsidePlatform({{"src/platform/b.h", "#include \"platform/a_impl.h\"\n"}}),
            (Complaints{"src/platform/b.h includes platform/a_impl.h"}));
  EXPECT_EQ(
      ToolkitOutsidePlatform({{"src/lessons/a.cpp", "int QUESTION; Quotient q; // QWidget\n"}}),
      Complaints{});
}

TEST(WallChecksTest, TheMachineIsFoundOutsidePlatform) {
  const char* const touching[] = {"std::ofstream out(name);",
                                  "FILE* f = fopen(name, mode);",
                                  "#include <filesystem>\n",
                                  "auto t = time(nullptr);",
                                  "auto t = std::time (nullptr);",
                                  "using std::chrono::steady_clock;",
                                  "int n = rand() % 6;",
                                  "std::random_device device;",
                                  "getenv(name);",
                                  "::exit(1);",
                                  "if (x) exit(1);",
                                  "system(command);"};
  for (const char* const text : touching) {
    EXPECT_EQ(MachineOutsidePlatform({{"src/lessons/a.cpp", text}}).size(), 1u) << text;
    EXPECT_EQ(MachineOutsidePlatform({{"src/platform/a.cpp", text}}), Complaints{}) << text;
  }
  const char* const harmless[] = {"double time = 0;",      "trip.time(5);", "clock->time(5);",
                                  "say(\"time(5)\");",     "Rand(1, 6);",   "platform::exit(1);",
                                  "exit = 1; // system()", "int rand;"};
  for (const char* const text : harmless) {
    EXPECT_EQ(MachineOutsidePlatform({{"src/lessons/a.cpp", text}}), Complaints{}) << text;
  }
}

TEST(WallChecksTest, ForgottenFilesAreFound) {
  const Files files = {{"src/engine/a.cpp", "#include \"engine/a.h\"\n"},
                       {"src/engine/a.h", "#include \"engine/b.h\"\n"},
                       {"src/engine/b.h", ""},
                       {"src/engine/dust.h", ""},
                       {"tests/unit/a_test.cpp", ""},
                       {"bench/a_bench.cpp", ""},
                       {"README.md", ""}};
  EXPECT_EQ(LeftOutOfBuild(files, {"src/engine/a.cpp"}),  // without benchmarks
            (Complaints{"src/engine/dust.h is included by no compiled source",
                        "tests/unit/a_test.cpp is not compiled"}));
  const SourceFile hook = {"scripts/hook.cpp", ""};
  EXPECT_EQ(LeftOutOfBuild({hook}, {}).size(), 1u);
  EXPECT_EQ(LeftOutOfBuild({hook, {"scripts/a.sh", "c++ scripts/hook.cpp\n"}}, {}), Complaints{});
  EXPECT_EQ(LeftOutOfBuild(files, {"src/engine/a.cpp", "bench/b_bench.cpp"}).size(), 3u);
}

TEST(WallChecksTest, RoomsLeftOutAreFound) {
  const Files files = {{"ARCHITECTURE.md", "floor 1   a/  x\n   b/  y\n- `a/`: z\n"},
                       {"src/a/a.h", ""},
                       {"src/b/deep/b.h", ""},
                       {"src/main.cpp", ""}};
  EXPECT_EQ(RoomsNotDescribed(files), Complaints{"ARCHITECTURE.md: \"- `b/`: \" is missing"});
}

}  // namespace
}  // namespace walls
