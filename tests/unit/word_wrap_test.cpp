#include "display/word_wrap.h"

#include <random>

#include "display/exponents.h"
#include "display/paragraph.h"
#include "display/print.h"
#include "mathkit/tutor_codes.h"
#include "support/display_fixture.h"

namespace course::testing {
namespace {

using Lines_ = std::vector<std::string>;

class WordWrapTest : public DisplayTest {};

TEST_F(WordWrapTest, ColoursChangeAtTheirCodesAndAClosingCodeOpensNoSegment) {
  WordWrap(R"(Hello \rworld\z)");
  const auto& fragments = Text().Transcript();
  ASSERT_EQ(fragments.size(), 2u);
  EXPECT_EQ(fragments[0].text, "Hello ");
  EXPECT_EQ(fragments[0].colour, platform::colour::White);
  EXPECT_EQ(fragments[1].text, "world");
  EXPECT_EQ(fragments[1].colour, platform::colour::Red);
  EXPECT_EQ(Panel().ForeColor, platform::colour::White);
}

TEST_F(WordWrapTest, ColourCodesAreCutAsAuthorsWriteThem) {
  struct Case {
    std::string text;
    std::vector<std::pair<platform::Colour, std::string>> segments;
  };
  using namespace platform::colour;
  const std::vector<Case> cases = {
      {"plain", {{White, "plain"}}},
      {R"(\Ccyan\z back)", {{Cyan, "cyan"}, {White, " back"}}},
      {R"(a\yb\gc\bd\me\kf\wg)",
       {{White, "a"},
        {Yellow, "b"},
        {Green, "c"},
        {Blue, "d"},
        {Magenta, "e"},
        {Black, "f"},
        {White, "g"}}},
      {R"(end\q)", {{White, "end"}}},  // whatever the letter at the very end
      {"end\\", {{White, "end"}}},
      {R"(\rvar\ziable)", {{Red, "var"}, {White, "iable"}}},
  };
  for (const Case& c : cases) {
    const std::vector<Segment> segments = CutAtColours(c.text, White);
    ASSERT_EQ(segments.size(), c.segments.size()) << c.text;
    for (std::size_t i = 0; i < segments.size(); ++i) {
      EXPECT_EQ(segments[i].colour, c.segments[i].first) << c.text;
      EXPECT_EQ(segments[i].text, c.segments[i].second) << c.text;
    }
  }
  EXPECT_THROW(CutAtColours(R"(a\qb)", White), StoppedProgram);
  std::string many;
  for (int i = 0; i < 20; ++i) many += R"(\ra)";
  EXPECT_EQ(CutAtColours(many, White).size(), 20u);
  EXPECT_THROW(CutAtColours(many + R"(\ra)", White), StoppedProgram);
}

TEST_F(WordWrapTest, MacrosComeFirstAndAreCaseSensitive) {
  EXPECT_EQ(ExpandMacros(R"(\TS2T\)"), "\"sin^2^" + tutor::Theta + "\"");
  EXPECT_EQ(ExpandMacros(R"(\ST\ and \1CT\)"),
            "sin " + tutor::Theta + " and 1/cos " + tutor::Theta);
  EXPECT_EQ(ExpandMacros(R"(\cT\z)"), R"(\cT\z)");
  EXPECT_EQ(ExpandMacros("~x`1`~"),
            "\"x\xFA"
            "1\xFA\"");
  EXPECT_EQ(ExpandMacros(R"(3\248\4 \249\)"), "3" + tutor::Dot + "4 " + tutor::Pi);
}

TEST_F(WordWrapTest, BreaksAreFoundByCells) {
  struct Case {
    int col, wid;
    std::string text, lookahead;
    int expected;
  };
  const std::vector<Case> cases = {
      {1, 10, "one two", "", -1},       {1, 10, "0123456789", "", -1},
      {1, 10, "0123456789 ", "", -3},   {1, 10, "012345678 ", "", -1},
      {1, 10, "0123456789 ab", "", 10},  // a blank just behind the last column is a legal break
      {1, 10, "01234567890", "", -2},   {5, 10, "one two", "", 3},
      {9, 10, "one two", "", -2},       {11, 10, "x", "", -2},
      {1, 10, " 123456789012", "", 0},  {1, 10, "var", "iable x", -1},
      {4, 10, "var", "iable x", -2},  // glued to the next colour's first word
      {4, 10, "a var", "iable x", 1},   {1, 10, "var ", "iable x", -1},
      {1, 10, "x^2^ + y^2^", "", -1},    // marks take no cell
      {1, 10, "ab^1 2^ cdefgh", "", 7},  // no break inside an exponent
  };
  for (const Case& c : cases)
    EXPECT_EQ(WordWrapFindBreak(c.col, c.wid, c.text, c.lookahead), c.expected)
        << c.col << " " << c.wid << " \"" << c.text << "\" \"" << c.lookahead << "\"";
}

TEST_F(WordWrapTest, AWordThatGoesOnInTheNextColourStaysWhole) {
  Locate(2, 32);
  WordWrap(R"(\rvar\ziable.)");
  Locate(5, 1);
  WordWraps(std::string(33, '-') + R"( \rvar\ziable)");
  EXPECT_EQ(Lines(),
            (Lines_{std::string(31, ' ') + "variable.", std::string(33, '-'), "variable"}));
}

TEST_F(WordWrapTest, IndentsNarrowsAndKeepsTheCursorAsAsked) {
  Locate(3, 2);
  WordWrapIndentNarrow("aaaa bbbb cccc dddd", 4, 12);
  EXPECT_EQ(Lines(), (Lines_{" aaaa bbbb", "   cccc dddd"}));
  EXPECT_EQ(Row(), 5);
  EXPECT_EQ(Col(), 1);
  WordWraps("behind");
  EXPECT_EQ(Row(), 5);
  EXPECT_EQ(Col(), 7);
  EXPECT_THROW(WordWrapNarrow("text", 9), StoppedProgram);
  WordWrap("goes on");  // a stopped wrap leaves no width behind
}

TEST_F(WordWrapTest, LineBreaksInAParagraph) {
  WordWrap("one\rtwo\r");
  EXPECT_EQ(Row(), 5);  // the break at the end, and the paragraph's own
  WordWraps("three\r");
  EXPECT_EQ(Row(), 6);
}

TEST_F(WordWrapTest, MeasuringTellsRowsAndMovesNothing) {
  Locate(4, 3);
  EXPECT_EQ(WordWrapRows("short"), 1);
  EXPECT_EQ(WordWrapRows(std::string(30, 'a') + " " + std::string(30, 'b')), 2);
  EXPECT_EQ(WordWrap38Rows(std::string(36, 'a') + " bb cc"), 2);
  EXPECT_EQ(Row(), 4);
  EXPECT_EQ(Col(), 3);
  EXPECT_TRUE(Lines().empty());
}

TEST_F(WordWrapTest, AWordTooLongStopsTheProgramInsteadOfGoingDownForEver) {
  EXPECT_THROW(WordWrap(std::string(41, 'x')), StoppedProgram);
  EXPECT_THROW(WordWrapRows(std::string(41, 'x')), StoppedProgram);
  EXPECT_THROW(WordWrapIndent("a " + std::string(38, 'x'), 6), StoppedProgram);
}

TEST_F(WordWrapTest, AWordThatFitsAloneIsPrintedThoughItsGluedNeighbourDoesNot) {
  WordWrap("Heading\r\\y" + std::string(40, '-'));
  EXPECT_EQ(Lines(), (Lines_{"Heading", std::string(40, '-')}));
}

// The layout that a reader expects, by a rule of its own: words go to the next line when they do
// not fit.
Lines_ GreedyLines(const std::vector<std::string>& words, std::size_t width) {
  Lines_ lines(1);
  for (const std::string& word : words) {
    if (!lines.back().empty() && lines.back().size() + 1 + word.size() > width)
      lines.emplace_back();
    lines.back() += (lines.back().empty() ? "" : " ") + word;
  }
  return lines;
}

TEST_F(WordWrapTest, ManyParagraphsWrapAsAReaderExpects) {
  std::mt19937 random(7);
  for (int paragraph = 0; paragraph < 300; ++paragraph) {
    std::vector<std::string> words;
    std::string text;
    const std::size_t count = 1 + random() % 30;
    for (std::size_t i = 0; i < count; ++i) {
      words.push_back(std::string(1 + random() % 11, static_cast<char>('a' + i % 26)));
      text += (i == 0 ? "" : " ") + words.back();
      // Now and then a word begins, or changes, its colour in the middle.
    }
    std::string coloured = text;
    for (std::size_t at = 3; at < coloured.size(); at += 17 + random() % 20)
      coloured.insert(at, R"(\y)");
    Text().Cls();
    Locate(2, 1);
    WordWrap(coloured);
    EXPECT_EQ(Lines(), GreedyLines(words, 40)) << coloured;
  }
}

class WiperWrapTest : public DisplayTest {
 protected:
  void SetUp() override {
    DisplayTest::SetUp();
    screenState.gWbWidth = 20;
    frmPR->picWiperBox.Move(0, 0, 22 * 16 * 15, 10 * 25 * 15);
    wbLocate(1, 1);
  }
  static Lines_ WiperLines() { return TranscriptLines(frmPR->wiperText); }
};

TEST_F(WiperWrapTest, MayBreakInsideAnExponent) {
  wbWordWrap("0123456789 x^12 34567890123^");
  EXPECT_EQ(WiperLines(), (Lines_{"0123456789 x^12^", "^34567890123^"}));
}

// Twenty columns; where the cursor ends tells what a line has swallowed.
TEST_F(WiperWrapTest, EveryWayToFillALine) {
  struct Case {
    const char* text;
    Lines_ lines;
    double col;
  };
  const Case cases[] = {{"aaaa bbbb cccc ddddd", {"aaaa bbbb cccc ddddd"}, 21},
                        {"aaaa bbbb cccc dddd ee", {"aaaa bbbb cccc dddd", "ee"}, 3},
                        {"aaaa bbbb cccc ddddd ee", {"aaaa bbbb cccc ddddd", "ee"}, 3},
                        {"aaaa bbbb cccc dddd ", {"aaaa bbbb cccc dddd"}, 21},
                        {"aaaa bbbb cccc ddddd ", {"aaaa bbbb cccc ddddd"}, 22},
                        {"aaaa\rbbbb cccc", {"aaaa", "bbbb cccc"}, 10},
                        // A word that goes on in another colour, and one that does not.
                        {R"(aaaa bbbb cccc \rddddd\z e)", {"aaaa bbbb cccc ddddd", "e"}, 2},
                        {R"(aaaa bbbb cccc \rddddd\ze f)", {"aaaa bbbb cccc", "ddddde f"}, 9},
                        {R"(aaaa bbbb cccc \rdddd\ze f)", {"aaaa bbbb cccc dddde", "f"}, 2},
                        {R"(\raaaaaaaaaa bbbbbbbbb\zc)", {"aaaaaaaaaa", "bbbbbbbbbc"}, 11},
                        {"aaaa bbbb cccc ddd^2^ e", {"aaaa bbbb cccc ddd^2^", "e"}, 2},
                        {"aaaa bbbb cccc dddd^2^ e", {"aaaa bbbb cccc dddd^2^", "e"}, 2},
                        {"aaaa bbbb cccc ddddd^2^ e", {"aaaa bbbb cccc", "ddddd^2^ e"}, 9}};
  for (const Case& c : cases) {
    frmPR->wiperText.Cls();
    wbLocate(1, 1);
    wbWordWraps(c.text);
    wbUpdateCursorCell();
    EXPECT_EQ(WiperLines(), c.lines) << c.text;
    EXPECT_EQ(frmPR->wiperText.cursorCol, c.col) << c.text;
  }
}

TEST_F(WiperWrapTest, IndentsAndNarrowsLikeTheOthers) {
  wbWordWrapIndent("1. aaaa bbbb cccc dddd eeee", 4);
  EXPECT_EQ(WiperLines(), (Lines_{"1. aaaa bbbb cccc", "   dddd eeee"}));
  frmPR->wiperText.Cls();
  wbLocate(1, 1);
  wbWordWrapNarrow("aaaa bbbb cccc", 10);
  EXPECT_EQ(WiperLines(), (Lines_{"aaaa bbbb", "cccc"}));
  screenState.gWbLineGap = 5;
  frmPR->wiperText.Cls();
  wbLocate(1, 1);
  wbWordWraps("aaaa bbbb cccc dddd eeee");
  EXPECT_EQ(frmPR->wiperText.cursorY, 5 + 25 + 5);
}

TEST_F(WiperWrapTest, AWordTooLongStopsTheProgram) {
  EXPECT_THROW(wbWordWrap(std::string(21, 'x')), StoppedProgram);
  EXPECT_THROW(wbWordWrap("x\r" + std::string(21, 'x')), StoppedProgram);
}

class ProportionalWrapTest : public DisplayTest {};

TEST_F(ProportionalWrapTest, NeedsItsSetup) {
  EXPECT_THROW(NonTutorWordWrap("text"), StoppedProgram);
}

TEST_F(ProportionalWrapTest, StaysBetweenItsEdges) {
  NonTutorWordWrapSetup("", false, 14, 40, 300, 4);
  Locate(3, 2.5);
  NonTutorWordWrap("The quick brown fox jumps over the lazy dog, and then he does it once more.");
  EXPECT_FALSE(HasInk(Panel(), 0, 0, 38, 300, platform::colour::Blue));
  EXPECT_FALSE(HasInk(Panel(), 301, 0, 672, 300, platform::colour::Blue));
  EXPECT_GE(Lines().size(), 2u);
  // A word wider than the whole line is printed on a line of its own.
  NonTutorWordWrap("a " + std::string(60, 'w') + " b");
}

}  // namespace
}  // namespace course::testing
