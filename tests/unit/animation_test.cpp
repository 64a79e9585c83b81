// Movements: every step pauses, every pixel ends where it belongs, every flag comes back.
#include "display/animation.h"

#include <gtest/gtest.h>

#include "display/print.h"
#include "support/display_fixture.h"
#include "support/expect_stop.h"
#include "support/pixel_picture.h"

namespace course::testing {
namespace {

namespace colour = platform::colour;

class AnimationTest : public DisplayTest {
 protected:
  void SetUp() override {
    DisplayTest::SetUp();
    user.OnPause = [this](double seconds) {
      pauses_.push_back(seconds);
      if (duringPause_) duringPause_();
    };
  }
  std::size_t Steps() const { return pauses_.size(); }
  bool AtRest() const {
    return session.gInDelay == 0 && session.gInAnimation == 0 && frmPR->fraAnimSpeed.Enabled();
  }
  // Gives every pixel of a rectangle a colour of its own, none of them blue.
  static void Scatter(platform::Surface& surface, const platform::PixelRect& rect) {
    for (int y = rect.top; y < rect.top + rect.height; ++y)
      for (int x = rect.left; x < rect.left + rect.width; ++x)
        surface.PSet(x, y, platform::Rgb(x % 256, y % 256, 1 + (x / 256) * 16 + y / 256));
  }

  std::vector<double> pauses_;
  std::function<void()> duringPause_;
};

// What is left of a picture when a rectangle has moved so many pixels over it, worked out from the
// first picture alone.
class Moved {
 public:
  Moved(const platform::Surface& surface, platform::PixelRect rect, int dr, int pixels, bool copies)
      : width_(surface.PixelWidth()), rect_(rect), pixels_(pixels), copies_(copies) {
    dx_ = dr == 4 ? 1 : dr == 3 ? -1 : 0;
    dy_ = dr == 2 ? 1 : dr == 1 ? -1 : 0;
    for (int y = 0; y < surface.PixelHeight(); ++y)
      for (int x = 0; x < surface.PixelWidth(); ++x) before_.push_back(surface.Pixel(x, y));
  }

  void ExpectOn(const platform::Surface& surface) const {
    int wrong = 0;
    for (int y = 0; y < surface.PixelHeight(); ++y)
      for (int x = 0; x < surface.PixelWidth(); ++x)
        if (surface.Pixel(x, y) != Expected(x, y) && ++wrong == 1)
          ADD_FAILURE() << "first wrong pixel: (" << x << ", " << y << ")";
    EXPECT_EQ(wrong, 0);
  }

 private:
  bool Inside(int x, int y, int moved) const {
    const int left = rect_.left + dx_ * moved;
    const int top = rect_.top + dy_ * moved;
    return x >= left && x < left + rect_.width && y >= top && y < top + rect_.height;
  }
  platform::Colour Expected(int x, int y) const {
    if (Inside(x, y, pixels_)) return Before(x - dx_ * pixels_, y - dy_ * pixels_);
    const bool keeps = copies_ && Inside(x, y, 0);
    for (int i = 0; i < pixels_ && !keeps; ++i)
      if (Inside(x, y, i)) return colour::Blue;
    return Before(x, y);
  }
  platform::Colour Before(int x, int y) const {
    return before_.at(static_cast<std::size_t>(y * width_ + x));
  }

  int width_;
  platform::PixelRect rect_;
  int pixels_;
  bool copies_;
  int dx_;
  int dy_;
  std::vector<platform::Colour> before_;  // row by row
};

TEST_F(AnimationTest, ARowMovesAPixelAStepAndIsErasedBehind) {
  // Row 18 begins at y 405; its erased band 4 pixels below.
  const platform::PixelRect rect{16, 409, 48, 25};
  Scatter(Panel(), {10, 380, 120, 90});
  const Moved expected(Panel(), rect, 2, 25, false);
  Anim(18, 1, 3, 1, 2, 1, 50, 1);
  EXPECT_EQ(Steps(), 25u);
  expected.ExpectOn(Panel());
  EXPECT_TRUE(AtRest());
}

struct Way {
  int dr;
  int er;
  double ds;
  bool copies;
};

class Ways : public AnimationTest, public ::testing::WithParamInterface<Way> {};

// Short of the rectangle's own extent, and beyond it.
TEST_P(Ways, EveryPixelEndsWhereItBelongs) {
  const auto [dr, er, ds, copies] = GetParam();
  Scatter(Panel(), {0, 0, Panel().PixelWidth(), Panel().PixelHeight()});
  const int pixels = static_cast<int>(ds * (dr <= 2 ? 25 : 16));
  const Moved expected(Panel(), {160, 259, 48, 50}, dr, pixels, copies);
  Anim2(12, 10, 3, 2, dr, ds, 0, er);
  EXPECT_EQ(Steps(), static_cast<std::size_t>(pixels));
  expected.ExpectOn(Panel());
}

INSTANTIATE_TEST_SUITE_P(Erasing, Ways,
                         ::testing::Values(Way{1, 1, 1, false}, Way{2, 1, 3, false},
                                           Way{3, 1, 2, false}, Way{4, 1, 5, false},
                                           Way{3, 0, 5, false}, Way{4, 0, 1, false}));
INSTANTIATE_TEST_SUITE_P(Copying, Ways,
                         ::testing::Values(Way{1, 0, 1, true}, Way{1, 0, 4, true},
                                           Way{2, 0, 1, true}, Way{2, 0, 3, true},
                                           Way{3, -1, 2, true}, Way{3, -1, 6, true},
                                           Way{4, -1, 2, true}, Way{4, -1, 5, true}));

TEST_F(AnimationTest, OtherDirectionsAndFlagsDoNothing) {
  Scatter(Panel(), {0, 0, 300, 300});
  const PixelPicture before = PictureOf(Panel());
  Anim(5, 3, 2, 1, 1, 5, 50, -1);
  Anim(5, 3, 2, 1, 2, 5, 50, -1);
  Anim(5, 3, 2, 1, 2, 5, 50, 2);
  Anim(5, 3, 2, 1, 3, 5, 50, -2);
  Anim(5, 3, 2, 1, 5, 5, 50, 1);
  Anim(5, 3, 2, 1, 1, -3, 50, 1);
  EXPECT_EQ(PictureOf(Panel()), before);
  EXPECT_EQ(Steps(), 0u);
  EXPECT_TRUE(AtRest());
}

TEST_F(AnimationTest, TheTrailHasTheBackColourInForce) {
  screenState.gBackColor = colour::Green;
  Anim(5, 3, 1, 1, 4, 1, 50, 1);
  EXPECT_EQ(PlaceOf(ExtentOf(Panel(), colour::Green)), "(48, 84) 16 x 25");
}

TEST_F(AnimationTest, AnimWantsWholeNumbersAndAnim2DoesNot) {
  const char* message = "A Call to SUB Anim used non-integer values";
  ExpectStop(message, [] { Anim(18.5, 1, 3, 1, 2, 1, 50, 1); });
  ExpectStop(message, [] { Anim(18, 1.5, 3, 1, 2, 1, 50, 1); });
  ExpectStop(message, [] { Anim(18, 1, 3.5, 1, 2, 1, 50, 1); });
  ExpectStop(message, [] { Anim(18, 1, 3, 1.5, 2, 1, 50, 1); });
  ExpectStop(message, [] { Anim(18, 1, 3, 1, 2, 1.5, 50, 1); });
  Anim(18, 1, 3, 1, 2, 1, 62.5, 1);  // the speed may be anything
  EXPECT_EQ(Steps(), 25u);
  pauses_.clear();
  Anim2(18.5, 1, 3, 1, 2, 0.5, 300, 1);  // 12.5 pixels
  EXPECT_EQ(Steps(), 12u);
  pauses_.clear();
  Anim2(10, 1, 3, 1, 1, 1.16, 50, 1);  // 29 pixels, a hair below as a product
  EXPECT_EQ(Steps(), 29u);
}

TEST_F(AnimationTest, TheSpeedGivesThePause) {
  const auto pauseAt = [this](double unit, double speed) {
    session.gAnimDelayUnit = unit;
    pauses_.clear();
    Anim(5, 3, 1, 1, 4, 1, speed, 1);
    return pauses_.at(15);
  };
  EXPECT_DOUBLE_EQ(pauseAt(0.005, 0), 0.005);
  EXPECT_DOUBLE_EQ(pauseAt(0.005, 49), 0.005);
  EXPECT_DOUBLE_EQ(pauseAt(0.005, 50), 0.010);
  EXPECT_DOUBLE_EQ(pauseAt(0.005, 300), 0.035);
  EXPECT_DOUBLE_EQ(pauseAt(0, 300), 0.002);  // the shortest there is
  pauses_.clear();
  Delay(-1);
  Delay(1.5);
  EXPECT_EQ(pauses_, (std::vector{0.002, 1.5}));
}

TEST_F(AnimationTest, HandlersSeeThatAnAnimationRuns) {
  duringPause_ = [] {
    EXPECT_EQ(session.gInDelay, 1);
    EXPECT_EQ(session.gInAnimation, 1);
    EXPECT_FALSE(frmPR->fraAnimSpeed.Enabled());
  };
  Anim(5, 3, 1, 1, 4, 1, 50, 1);
  Anim2(5, 3, 1, 1, 4, 1, 50, 1);
  Anim3(5, 3, 1, 1, 4, 8, 3, 1, 1, 4, 1, 50, 1);
  AnimGenlCase(5, 3, 1, 1, 4, 1, 50, 1, 0, 1, 0);
  picCommentBoxMove(1, 1, 1, "H", 50);
  picPrintCellBoxMove(1, 1, "V", 50);
  wbWipeAndErase();
  EXPECT_TRUE(AtRest());
  duringPause_ = [] {
    EXPECT_EQ(session.gInDelay, 1);
    EXPECT_EQ(session.gInAnimation, 0);
  };
  Delay(1);
  EXPECT_TRUE(AtRest());
}

TEST_F(AnimationTest, FlagsComeBackWhenAStepIsAbandoned) {
  struct Abandoned {};
  duringPause_ = [this] {
    if (Steps() == 3) throw Abandoned();
  };
  EXPECT_THROW(Anim(5, 3, 1, 1, 4, 1, 50, 1), Abandoned);
  EXPECT_TRUE(AtRest());
}

TEST_F(AnimationTest, TwoRectanglesMoveByTurns) {
  Scatter(Panel(), {0, 0, Panel().PixelWidth(), Panel().PixelHeight()});
  // Six pixels below their cells' tops.
  const Moved first(Panel(), {48, 86, 16, 25}, 4, 32, false);
  Anim3(5, 3, 1, 1, 4, 5, 3, 0, 0, 4, 2, 50, 1);
  EXPECT_EQ(Steps(), 64u);
  first.ExpectOn(Panel());

  pauses_.clear();
  const Moved second(Panel(), {304, 236, 16, 25}, 3, 32, true);
  Anim3(5, 3, 0, 0, 4, 11, 19, 1, 1, 3, 1, 50, -1,
        2);  // two steps to the left for each to the right
  EXPECT_EQ(Steps(), 48u);
  second.ExpectOn(Panel());
}

TEST_F(AnimationTest, TwoRectanglesKeepToOneAxis) {
  const auto move = [](int dr1, int dr2, double dsMult) {
    return [=] { Anim3(5, 3, 1, 1, dr1, 8, 3, 1, 1, dr2, 1, 50, 1, dsMult); };
  };
  ExpectStop("Anim3: dr1 = 1, dr2 = 3", move(1, 3, 1));
  ExpectStop("Anim3: dr1 = 5, dr2 = 5", move(5, 5, 1));
  ExpectStop("Invalid parameter: dsMult", move(1, 2, 1.5));
  EXPECT_TRUE(AtRest());
}

TEST_F(AnimationTest, AChainStartsEachMoveWhereTheLastOneEnded) {
  Panel().FillRect({160, 259, 32, 25}, colour::Yellow);
  MultiAnim(12, 10, 2, 1, "U02r05D02", 0, 1, 0.5);
  EXPECT_EQ(PlaceOf(ExtentOf(Panel(), colour::Yellow)), "(240, 259) 32 x 25");
  EXPECT_EQ(Steps(), 50u + 80 + 50 + 3);
  EXPECT_EQ(pauses_[50], 0.5);
  MultiAnim(12, 15, 2, 1, "L05d10", 0, 1, 0);
  EXPECT_EQ(PlaceOf(ExtentOf(Panel(), colour::Yellow)), "(160, 509) 32 x 25");
}

TEST_F(AnimationTest, AChainThatCannotBeReadStopsBeforeItMoves) {
  for (const char* moves : {"U2", "D10X02", "D10U-2", "D10U 2"})
    ExpectStop("MultiAnim: moves = \"" + std::string(moves) + "\"",
               [&] { MultiAnim(12, 10, 2, 1, moves, 0, 1, 0); });
  EXPECT_EQ(Steps(), 0u);
}

TEST_F(AnimationTest, AWipedRowTakesTheHalfColumnsAtItsSides) {
  Scatter(Panel(), {0, 0, Panel().PixelWidth(), Panel().PixelHeight()});
  const Moved expected(Panel(), {8, 259, 656, 25}, 1, 25, false);
  WipeAndErase("u", 12, 1, 50);
  expected.ExpectOn(Panel());
  ExpectStop("WipeAndErase: direction = \"L\"", [] { WipeAndErase("L", 12, 1, 50); });
  ExpectStop("WipeAndEraseLine: direction = \"\"", [] { WipeAndEraseLine("", 12, 1, 50); });
}

TEST_F(AnimationTest, TheVisibleLineIsGoneInTheEnd) {
  for (const double row : {10.0, 11.0, 12.5})
    for (const char* direction : {"U", "D"})
      for (const double distance : {1.0, 2.0, 1.5}) {
        bool seen = false;
        duringPause_ = [&] { seen = seen || ExtentOf(Panel(), colour::White).width > 0; };
        pauses_.clear();
        WipeAndEraseLine(direction, row, distance, 0);
        EXPECT_TRUE(seen);
        EXPECT_EQ(ExtentOf(Panel(), colour::Blue).height, Panel().PixelHeight());
        EXPECT_EQ(PlaceOf(ExtentOf(Panel(), colour::White)), "(0, 0) 0 x 0")
            << direction << " " << row << " " << distance;
      }
}

TEST_F(AnimationTest, TheWiperBoxIsWipedClean) {
  screenState.gWbWidth = 10;
  screenState.gWbHeight = 4;
  platform::PictureBox& box = frmPR->picWiperBox;
  box.BackColor = colour::White;
  box.Move(0, 0, 12 * 16 * 15, 4 * 25 * 15);
  wbLocate(2, 3);
  wbisPrint("Look here");
  bool curtain = false;  // black follows the bar down
  duringPause_ = [&] {
    if (Steps() == 60)
      curtain = box.Pixel(20, 30) == colour::Black && box.Pixel(20, 80) != colour::Black;
  };
  wbWipeAndErase();
  EXPECT_TRUE(curtain);
  EXPECT_EQ(Steps(), 112u);  // 4.5 rows
  EXPECT_DOUBLE_EQ(pauses_[0], 0.010);
  EXPECT_EQ(PlaceOf(ExtentOf(box, colour::White)), "(0, 0) 192 x 100");
  EXPECT_EQ(PlaceOf(ExtentOf(box, colour::Black)), "(0, 0) 0 x 0");
  EXPECT_TRUE(frmPR->wiperText.Transcript().empty());
  EXPECT_EQ(frmPR->wiperText.cursorX, 16);
  EXPECT_EQ(frmPR->wiperText.cursorY, 5);
}

TEST_F(AnimationTest, EverySurfaceHasItsOwnOrigin) {
  for (platform::PictureBox* box :
       {&frmPR->picWiperBox, &frmPR->picCommentBox[2], &frmPR->picGalleryImage[3]})
    box->Move(0, 0, 200 * 15, 200 * 15);
  AnimGenlCase(2, 2, 1, 1, 4, 1, 50, 1, colour::Red, 1, 0);
  EXPECT_EQ(PlaceOf(ExtentOf(Panel(), colour::Red)), "(32, 9) 16 x 25");
  AnimGenlCase(2, 2, 1, 1, 4, 1, 50, 1, colour::Red, 2, 0);
  EXPECT_EQ(PlaceOf(ExtentOf(frmPR->picWiperBox, colour::Red)), "(32, 34) 16 x 25");
  AnimGenlCase(2, 2, 1, 1, 4, 1, 50, 1, colour::Red, 3, 2);
  EXPECT_EQ(PlaceOf(ExtentOf(frmPR->picCommentBox[2], colour::Red)), "(20, 32) 16 x 25");
  pauses_.clear();
  AnimGenlCase(50, 30, 20, 10, 4, 7, 50, 1, colour::Red, 4, 3);  // pixels
  EXPECT_EQ(PlaceOf(ExtentOf(frmPR->picGalleryImage[3], colour::Red)), "(30, 50) 7 x 10");
  EXPECT_EQ(Steps(), 7u);
  ExpectStop("AnimGenlCase: surface = 5", [] { AnimGenlCase(1, 1, 1, 1, 1, 1, 50, 1, 0, 5, 1); });
  ExpectStop("AnimGenlCase: index = 6", [] { AnimGenlCase(1, 1, 1, 1, 1, 1, 50, 1, 0, 3, 6); });
}

TEST_F(AnimationTest, ABoxSlidesInTheOrderTold) {
  platform::PictureBox& box = frmPR->picCommentBox[1];
  box.Move(3000, 3000, 1500, 900);
  picCommentBoxMove(1, -2, 1.5, "h", 0);
  EXPECT_EQ(box.Left(), 3000 + 24 * 15);
  EXPECT_EQ(box.Top(), 3000 - 50 * 15);
  EXPECT_EQ(Steps(), 74u);
  pauses_.clear();
  duringPause_ = [&] {
    if (Steps() == 25) {
      EXPECT_EQ(box.Left(), 3000 + 24 * 15);
      EXPECT_EQ(box.Top(), 3000 - 25 * 15);
    }
  };
  picCommentBoxMove(1, 1, -1.5, "V", 0);
  EXPECT_EQ(box.Left(), 3000);
  EXPECT_EQ(Steps(), 49u);
  EXPECT_EQ(box.PixelWidth(), 100);
}

TEST_F(AnimationTest, TheOrderMattersForTwoMovesOnly) {
  platform::PictureBox& box = frmPR->picPrintCellBox;
  box.Move(3000, 3000, 1500, 900);
  picPrintCellBoxMove(0, 0, "", 0);
  picPrintCellBoxMove(1, 0, "", 0);
  picPrintCellBoxMove(0, -1, "?", 0);
  EXPECT_EQ(box.Left(), 3000 - 16 * 15);
  EXPECT_EQ(box.Top(), 3000 + 25 * 15);
  ExpectStop("picPrintCellBoxMove: first = \"?\"", [] { picPrintCellBoxMove(1, 1, "?", 0); });
  ExpectStop("picCommentBoxMove: comment box 0", [] { picCommentBoxMove(0, 1, 1, "H", 0); });
}

}  // namespace
}  // namespace course::testing
