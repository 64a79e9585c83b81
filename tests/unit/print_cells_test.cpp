// Print cell tables: where the cells stand, and what is printed in them.
#include "display/print_cells.h"

#include <gtest/gtest.h>

#include "display/animation.h"
#include "support/display_fixture.h"
#include "support/expect_stop.h"
#include "support/pixel_picture.h"

namespace course::testing {
namespace {

namespace colour = platform::colour;

class PrintCellsTest : public DisplayTest {
 protected:
  static platform::PictureBox& Box() { return frmPR->picPrintCellBox; }
  static platform::PictureBox& Cell(int cell) { return frmPR->picPrintCell[cell]; }
  static std::string Place(const platform::Control& control) {
    return PlaceOf(
        {control.Left() / 15, control.Top() / 15, control.Width() / 15, control.Height() / 15});
  }
  template <class Controls>
  static int Shown(const Controls& controls) {
    int shown = 0;
    for (int i = Controls::First(); i <= Controls::Last(); ++i) shown += controls[i].Visible();
    return shown;
  }
  static int Cells() { return Shown(frmPR->picPrintCell); }
  static int Labels() { return Shown(frmPR->lblPrintCell); }
};

TEST_F(PrintCellsTest, EachTableLaysOutItsOwnCells) {
  picPrintCellBoxPrepare1(4);
  EXPECT_EQ(Box().Left(), Panel().Left() + 32 * 15);
  EXPECT_EQ(Box().Top(), RowOrColumnInTwips("R", 4));
  EXPECT_EQ(Cells(), 9);
  EXPECT_EQ(Labels(), 6);
  EXPECT_EQ(Place(Cell(5)), "(267, 100) 139 x 40");
  EXPECT_FALSE(Box().Visible());
  picPrintCellBoxShow();
  picPrintCellPrint(9, "left over", colour::Black, 12);

  picPrintCellBoxPrepare2(13);
  EXPECT_FALSE(Box().Visible()) << "a prepare hides the table";
  EXPECT_EQ(Cells(), 6);
  EXPECT_EQ(Labels(), 5);
  EXPECT_EQ(Place(Cell(4)), "(97, 105) 152 x 52");
}

TEST_F(PrintCellsTest, TheLabelsNameColumnsAndRows) {
  struct Label {
    std::string caption, place;
  };
  const auto expect = [](const std::vector<Label>& labels) {
    for (std::size_t i = 0; i < labels.size(); ++i) {
      const platform::Label& label = frmPR->lblPrintCell[static_cast<int>(i) + 1];
      EXPECT_EQ(label.Caption(), labels[i].caption);
      EXPECT_EQ(Place(label), labels[i].place) << labels[i].caption;
    }
  };
  picPrintCellBoxPrepare1(4);
  expect({{"Percent\nof acid", "(97, 4) 139 x 50"},
          {"Quantity", "(267, 2) 139 x 50"},
          {"Amount\nof acid", "(437, 4) 139 x 50"},
          {"Original", "(6, 58) 85 x 44"},
          {"Additive", "(6, 108) 85 x 44"},
          {"Final", "(6, 158) 85 x 40"}});
  picPrintCellBoxPrepare2(4);
  expect({{"Rate", "(115, 1) 121 x 35"},
          {"Time", "(285, 1) 121 x 35"},
          {"Distance", "(456, 1) 121 x 35"},
          {"Train A", "(6, 52) 79 x 52"},
          {"Train B", "(6, 113) 79 x 52"}});
}

TEST_F(PrintCellsTest, OnlyTheDistanceTableReadsAsAFormula) {
  const auto marks = [] {  // between the columns, above the cells
    const platform::Colour ground = Box().Pixel(200, 10);
    return std::pair(HasInk(Box(), 250, 0, 285, 30, ground),
                     HasInk(Box(), 416, 0, 455, 30, ground));
  };
  picPrintCellBoxPrepare1(4);
  EXPECT_EQ(marks(), std::pair(false, false));
  picPrintCellBoxPrepare2(4);
  EXPECT_EQ(marks(), std::pair(true, true));
  picPrintCellBoxPrepare1(4);
  EXPECT_EQ(marks(), std::pair(false, false));
}

TEST_F(PrintCellsTest, TextsStandInTheMiddle) {
  picPrintCellBoxPrepare1(4);
  picPrintCellPrint(5, "40", colour::Red, 14);
  const platform::PixelRect ink = ExtentOf(Cell(5), colour::Red);
  EXPECT_NEAR(ink.left + ink.width / 2.0, Cell(5).PixelWidth() / 2.0, 1.5);
  EXPECT_NEAR(ink.top + ink.height / 2.0, Cell(5).PixelHeight() / 2.0, 3);
  // Wider than the cell: clipped on both sides.
  picPrintCellPrint(6, "mmmmmmmmmmmmmmmmmmmm", colour::Red, 14);
  const platform::PixelRect wide = ExtentOf(Cell(6), colour::Red);
  EXPECT_LE(wide.left, 3);
  EXPECT_GE(wide.left + wide.width, Cell(6).PixelWidth() - 3);
  // A text lies over the one before it, until the cell is cleared.
  picPrintCellPrint(5, "-", colour::Blue, 14);
  EXPECT_GT(ExtentOf(Cell(5), colour::Red).width, 0);
  picPrintCellCls(5);
  EXPECT_FALSE(HasInk(Cell(5), 0, 0, Cell(5).PixelWidth(), Cell(5).PixelHeight(), colour::White));
  EXPECT_TRUE(frmPR->cellText[5]->Transcript().empty());
  EXPECT_EQ(frmPR->cellText[6]->Transcript().at(0).text, "mmmmmmmmmmmmmmmmmmmm");
}

TEST_F(PrintCellsTest, ANewScreenHidesTheTableWhereverItIs) {
  picPrintCellBoxPrepare1(4);
  picPrintCellBoxShow();
  picPrintCellBoxMove(3, 0, "V", 0);
  EXPECT_EQ(Box().Top(), RowOrColumnInTwips("R", 7));
  ResetScreen();
  EXPECT_FALSE(Box().Visible());
  picPrintCellBoxPrepare1(4);
  EXPECT_EQ(Box().Top(), RowOrColumnInTwips("R", 4));
}

TEST_F(PrintCellsTest, ALessonLaysOutItsOwnTable) {
  PrintCellTable table;
  table.widthPixels = 400;
  table.heightPixels = 100;
  table.cells = {{50, 20, 40, 60}};
  table.labels = {{2, 20, 40, 60, "First", 12, colour::Red, false}};
  picPrintCellBoxPrepare3(6, table);
  EXPECT_EQ(Box().PixelWidth(), 400);
  EXPECT_EQ(Cells(), 1);
  EXPECT_EQ(Place(Cell(1)), "(200, 20) 160 x 60");
  table.cells.resize(13);
  ExpectStop("picPrintCellBoxPrepare3: 13 cells", [&] { picPrintCellBoxPrepare3(6, table); });
  ExpectStop("picPrintCellPrint: cell 0", [] { picPrintCellPrint(0, "", 0, 10); });
  ExpectStop("picPrintCellPrint: cell 13", [] { picPrintCellPrint(13, "", 0, 10); });
}

}  // namespace
}  // namespace course::testing
