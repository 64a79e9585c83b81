// Notes, pictures of the gallery, transparent images.
#include <gtest/gtest.h>

#include "display/images.h"
#include "display/notes.h"
#include "display/print.h"
#include "mathkit/tutor_codes.h"
#include "support/display_fixture.h"
#include "support/expect_stop.h"
#include "support/pixel_picture.h"

namespace course::testing {
namespace {

namespace colour = platform::colour;

class NotesTest : public DisplayTest {};
class ImagesTest : public DisplayTest {};

TEST_F(NotesTest, TakeTheSizeOfTheirText) {
  const auto prepare = [](const std::string& text, const std::string& font = "") {
    lblNotesPrepare(1, 7.5, 30, text, 0xFFFFFF, 0xFF0000, true, false, 12, font);
    return std::pair(frmPR->lblNotes[1].Width(), frmPR->lblNotes[1].Height());
  };
  const auto [width, height] = prepare("text");
  EXPECT_EQ(frmPR->picNotes[1].Left(), RowOrColumnInTwips("C", 30));
  Locate(7.5, 30);  // a text of that row stands on the same pixel
  EXPECT_EQ(frmPR->picNotes[1].Top(), Panel().Top() + 15 * Text().cursorY);
  EXPECT_EQ(frmPR->picNotes[1].Width(), width);
  EXPECT_EQ(frmPR->picNotes[1].Height(), height);
  EXPECT_FALSE(frmPR->picNotes[1].Visible());
  lblNotesShow(1);
  EXPECT_TRUE(frmPR->picNotes[1].Visible());

  const auto [twoLinesWidth, twoLinesHeight] = prepare("text\rwith a second line");
  EXPECT_GT(twoLinesWidth, width);
  EXPECT_NEAR(twoLinesHeight, 2 * height, 2 * 15);  // and the space between lines
  EXPECT_FALSE(frmPR->picNotes[1].Visible()) << "a prepare hides it";
  const auto serif = prepare("text", "tnr");
  EXPECT_NE(serif, std::pair(width, height));
  EXPECT_EQ(prepare("text", "Times New Roman"), serif);
}

TEST_F(NotesTest, ReadTheCoursesCharactersAndGoWithTheScreen) {
  lblNotesPrepare(5, 3, 3, "3" + tutor::Gap + tutor::Times + " ~a~", 0xFFFFFF, 0, false, false, 10);
  EXPECT_EQ(frmPR->lblNotes[5].Caption(), "3 \xD7 \"a\"");
  EXPECT_EQ(TranscriptLines(*frmPR->noteText[5]).size(), 1u);
  lblNotesShow(5);
  ResetScreen();
  EXPECT_FALSE(frmPR->picNotes[5].Visible());
  ExpectStop("lblNotesShow: note 6", [] { lblNotesShow(6); });
}

TEST_F(ImagesTest, ABoxTakesItsPicturesSizeAndKeepsItsBorder) {
  platform::PictureBox& box = frmPR->picGalleryImage[1];
  picGalleryImagePrepare(1, gallery::OrderOfOperations, 6, 23, SHOWBORDER);
  EXPECT_EQ(box.Left(), RowOrColumnInTwips("C", 23));
  EXPECT_EQ(box.Top(), RowOrColumnInTwips("R", 6));
  // Right of the problem, left of the margin, above the answers.
  EXPECT_LE(box.PixelWidth(), 18 * gCellWidth);
  EXPECT_LE(box.PixelHeight(), 10 * gCellHeight);
  EXPECT_FALSE(box.Visible());
  picGalleryImagePrepare(1, gallery::InequalityFlip, 6, 2);
  EXPECT_EQ(box.PixelHeight(), GalleryImage(gallery::InequalityFlip)->PixelHeight());
  EXPECT_TRUE(box.Border());
  picGalleryImagePrepare(1, gallery::InequalityFlip, 6, 2, NOBORDER);
  EXPECT_FALSE(box.Border());
  picGalleryImageShow(1);
  EXPECT_TRUE(box.Visible());
  EXPECT_FALSE(box.AccessibleText().empty());
  ResetScreen();
  EXPECT_FALSE(box.Visible());
  ExpectStop("picGalleryImagePrepare: the gallery has no image 99",
             [] { picGalleryImagePrepare(1, 99, 2, 1); });
  ExpectStop("picGalleryImageShow: image box 0", [] { picGalleryImageShow(0); });
}

TEST_F(ImagesTest, WhiteIsTransparentAndTheScreenComesBack) {
  RestorepnlLesson();  // nothing was shown: nothing happens
  Locate(4, 5);
  isPrint("====");
  const auto image = GalleryImage(gallery::CheckMark);
  const platform::PixelPoint size = {image->PixelWidth(), image->PixelHeight()};
  const PixelPicture before = PictureOf(Panel(), 64, 30, 100, 80);
  const PixelPicture underCorner = PictureOf(Panel(), 80, 68, 7, 12);
  ASSERT_TRUE(HasInk(Panel(), 80, 68, 87, 80, colour::Blue));
  DisplayTransparentImage(gallery::CheckMark, 3, 5);
  EXPECT_NE(PictureOf(Panel(), 64, 30, 100, 80), before);
  // The picture's corners are white: text and ground show through.
  EXPECT_EQ(Panel().Pixel(80 + 1, 30 + 1), colour::Blue);
  EXPECT_EQ(PictureOf(Panel(), 80, 68, 7, 12), underCorner);
  EXPECT_EQ(Text().cursorY, 80) << "the cursor stays";

  Locate(5, 5);
  isPrint("later");
  RestorepnlLesson();
  EXPECT_EQ(PictureOf(Panel(), 64, 30, 100, 80), before);
  EXPECT_EQ(Lines(), std::vector<std::string>{"    ===="});

  DisplayTransparentImage(gallery::CheckMark, 10, 5);
  const PixelPicture first = PictureOf(Panel(), 80, 205, size.x, size.y);
  DisplayTransparentImage(gallery::CheckMark, 15, 5);
  RestorepnlLesson();  // as it was before the second one
  EXPECT_EQ(PictureOf(Panel(), 80, 205, size.x, size.y), first);
  EXPECT_FALSE(HasInk(Panel(), 80, 330, 80 + size.x, 330 + size.y, colour::Blue));
}

}  // namespace
}  // namespace course::testing
