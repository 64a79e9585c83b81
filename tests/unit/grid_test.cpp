#include "display/grid.h"

#include "support/display_fixture.h"

namespace course::testing {
namespace {

class GridTest : public DisplayTest {};

TEST_F(GridTest, RowsAndColumnsBecomePixelsRoundedHalfToEven) {
  struct Case {
    double row, col;
    int x, y;
  };
  for (const Case& c : {Case{2, 1, 16, 5}, Case{24, 40, 640, 555}, Case{18.5, 1, 16, 418},
                        Case{19.5, 1, 16, 442}, Case{2, 1.5, 24, 5}, Case{1, 0, 0, -20}}) {
    Locate(c.row, c.col);
    EXPECT_EQ(Text().cursorX, c.x) << c.row << ", " << c.col;
    EXPECT_EQ(Text().cursorY, c.y) << c.row << ", " << c.col;
    EXPECT_EQ(screenState.gLocateX, c.x);
    EXPECT_EQ(screenState.gLocateY, c.y);
  }
}

TEST_F(GridTest, TheCursorCellIsThatOfTheRoundedPixel) {
  Locate(18.5, 7);
  UpdateCursorCell();
  EXPECT_FLOAT_EQ(Text().cursorRow, 18.52f);
  EXPECT_FLOAT_EQ(Text().cursorCol, 7);
  EXPECT_EQ(isCursorCol(), 7);
}

TEST_F(GridTest, TheWiperBoxCountsRowsFromOne) {
  wbLocate(1, 1);
  EXPECT_EQ(frmPR->wiperText.cursorX, 16);
  EXPECT_EQ(frmPR->wiperText.cursorY, 5);
  wbLocate(3, 5);
  wbUpdateCursorCell();
  EXPECT_EQ(frmPR->wiperText.cursorRow, 3);
  EXPECT_EQ(frmPR->wiperText.cursorCol, 5);
}

TEST_F(GridTest, ACursorBeyondSixteenBitsStopsTheProgram) {
  Locate(1300, 1);
  EXPECT_THROW(Locate(1400, 1), StoppedProgram);
  EXPECT_THROW(wbLocate(1, -2100), StoppedProgram);
}

TEST_F(GridTest, ControlsArePlacedOverTheGridInTwips) {
  EXPECT_EQ(RowOrColumnInTwips("R", 2), 60 + 5 * 15);
  EXPECT_EQ(RowOrColumnInTwips("R", 16.5), 5572.5);
  EXPECT_EQ(RowOrColumnInTwips("c", 21), 1500 + (16 + 20 * 16) * 15);
  try {
    RowOrColumnInTwips("X", 1);
    FAIL() << "the letter X was taken";
  } catch (const StoppedProgram& stopped) {
    EXPECT_EQ(stopped.message, "Function RowOrColumnInTwips: Improper parameter");
  }
  platform::PictureBox& box = frmPR->picGraph2D[1];
  box.Move(CellInTwips(8, 10).x, CellInTwips(8, 10).y, 4 * 16 * 15, 2 * 25 * 15);
  ctrlCentreCell(box);
  EXPECT_DOUBLE_EQ(screenState.gCtrlCell[0], 9);
  EXPECT_DOUBLE_EQ(screenState.gCtrlCell[1], 12);
}

TEST_F(GridTest, OldScreensAreConverted) {
  EXPECT_EQ(Pixel8X(8), 16 + 16);
  EXPECT_EQ(Pixel8Y(16), 5 + 25);
  EXPECT_EQ(Pixel8Y(0), 0);
  EXPECT_EQ(Pixel7X(7), 16 + 16 + 1);
  EXPECT_EQ(Pixel7X(-20), 1);
  EXPECT_EQ(Pixel8Y1(8), 5 + 1);
  EXPECT_EQ(Pixel8Y1(0), 1);
}

TEST_F(GridTest, ANewScreenPutsEverythingBack) {
  SetColor(platform::colour::Yellow);
  SetDontEraseBackground();
  SetFontSize(12);
  screenState.gBackColor = platform::colour::Black;
  screenState.gDrawTarget = 3;
  frmPR->picGraph2D[2].SetVisible(true);
  frmPR->cmdNavigate[2].SetVisible(true);
  ResetScreen();
  EXPECT_EQ(Text().textColour, platform::colour::White);
  EXPECT_EQ(Text().dontEraseBackground, 0);
  EXPECT_EQ(Panel().FontSize, 20);
  EXPECT_EQ(screenState.gBackColor, platform::colour::Blue);
  EXPECT_EQ(screenState.gDrawTarget, 0);
  EXPECT_FALSE(frmPR->picGraph2D[2].Visible());
  EXPECT_FALSE(frmPR->cmdNavigate[2].Visible());
  EXPECT_TRUE(frmPR->cmdNavigate[3].Visible());
}

}  // namespace
}  // namespace course::testing
