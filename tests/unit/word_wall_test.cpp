#include "unit/word_wall.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>

namespace walls {
namespace {

std::string Lines(const Complaints& complaints) {
  std::string text;
  for (const std::string& complaint : complaints) text += complaint + "\n";
  return text;
}

std::filesystem::path Root() {
  return std::getenv("COURSE_SOURCE_DIR");
}

// "~" parts the words, so that the check does not find them here.
std::string Joined(std::string text) {
  text.erase(std::remove(text.begin(), text.end(), '~'), text.end());
  return text;
}

TEST(WordWallTest, NoFilePointsOutOfTheRepository) {
  EXPECT_EQ(Lines(PointersOutside(ReadTree(Root()))), "");
}

TEST(WordWallTest, NoCommitMessagePointsOutOfTheRepository) {
  const Files messages = CommitMessages(Root());
  if (messages.empty()) GTEST_SKIP() << "there is no history to read";
  EXPECT_EQ(Lines(PointersOutside(messages)), "");
}

TEST(WordWallTest, PointersAreFound) {
  for (const char* const text :
       {"as the sp~ec says", "Sp~ecification", "see P~art 3.1", "P~arts 2.1 and 2.2", "is~sue 2",
        "Is~sues #3", "a Rul~ing", "by C2~5.", "in /wo~rk/notes", "\"/ho~me/ann/x\"", "/ro~ot/.x",
        "C:\\Us~ers\\ann", "Co-Au~thored-By: A", "an as~sistant", "the work~tree"}) {
    EXPECT_EQ(PointersOutside({{"README.md", "First line\n" + Joined(text) + "\n"}}).size(), 1u)
        << text;
  }
  EXPECT_EQ(PointersOutside({{Joined("docs/sp~ec.md"), ""}}).size(), 1u);
  const std::string harmless = Joined(
      "special, specific; part 3 of 4; 0xC25; the issue is open; network/; $HOME/wo~rk/a; users");
  EXPECT_EQ(PointersOutside({{"a.cpp", harmless}}), Complaints{});
  EXPECT_EQ(PointersOutside({{"assets/a.svg", "M1 2 " + Joined("C1~2") + " 3"}}), Complaints{});
}

TEST(WordWallTest, WithoutHistoryThereAreNoMessages) {
  EXPECT_EQ(CommitMessages(Root() / "no_such_folder"), Files{});
}

}  // namespace
}  // namespace walls
