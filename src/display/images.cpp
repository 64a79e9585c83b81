#include "display/images.h"

#include <memory>
#include <string>

#include "display/drawing_cells.h"
#include "display/grid.h"
#include "display/lesson_window.h"
#include "platform/picture.h"
#include "platform/stop.h"

namespace course {
namespace {

struct StoredPicture {
  int number;
  const char* picture;  // of the artwork
  const char* text;     // what a screen reader says
};

constexpr StoredPicture kPicGallery[] = {
    {gallery::LawsOfExponents, "gallery_laws_of_exponents",
     "Laws of exponents.  To multiply powers of one base, add the exponents.  To divide them, "
     "subtract the exponents.  To raise a power to a power, multiply the exponents.  To raise a "
     "product to a power, raise every factor.  A base that is not 0 to the power 0 is 1."},
    {gallery::QuadraticFormula, "gallery_quadratic_formula",
     "The quadratic formula.  If a x squared plus b x plus c equals 0, x is minus b plus or minus "
     "the square root of b squared minus 4 a c, all divided by 2 a."},
    {gallery::InequalityFlip, "gallery_inequality_flip",
     "Multiplying or dividing both sides of an inequality by a negative number reverses its "
     "symbol."},
    {gallery::OrderOfOperations, "gallery_order_of_operations",
     "Order of operations.  1: what is in parentheses, the innermost first.  2: exponents.  3: "
     "multiplication and division, from left to right.  4: addition and subtraction, from left to "
     "right."},
    {gallery::CheckMark, "gallery_check_mark", "A check mark."},
};

const StoredPicture& PicGallery(int image, const char* routine) {
  for (const StoredPicture& stored : kPicGallery)
    if (stored.number == image) return stored;
  platform::Stop(std::string(routine) + ": the gallery has no image " + std::to_string(image));
}

platform::PictureBox& ImageBox(int slot, const char* routine) {
  auto& boxes = frmPR->picGalleryImage;
  if (slot < boxes.First() || slot > boxes.Last())
    platform::Stop(std::string(routine) + ": image box " + std::to_string(slot) +
                   ".  Boxes 1 to 5 exist.");
  return boxes[slot];
}

void KeepPanel() {
  const platform::PictureBox& panel = frmPR->pnlLesson;
  if (!frmPR->pnlLessonCopy)
    frmPR->pnlLessonCopy.reset(
        new LessonWindow::PanelCopy{{panel.PixelWidth(), panel.PixelHeight()}, {}});
  frmPR->pnlLessonCopy->picture.BitBlt(0, 0, panel.PixelWidth(), panel.PixelHeight(), panel, 0, 0);
  frmPR->pnlLessonCopy->transcript = frmPR->lessonText.Transcript();
}

// Runs of white pixels of the mask get back what the target showed before.
void KeepUnderWhite(platform::Surface& target, const platform::Surface& before,
                    const platform::Surface& mask, platform::PixelPoint at) {
  const int width = mask.PixelWidth();
  for (int y = 0; y < mask.PixelHeight(); ++y) {
    for (int x = 0; x < width;) {
      int end = x;
      while (end < width && mask.Pixel(end, y) == platform::colour::White) ++end;
      if (end > x) target.BitBlt(at.x + x, at.y + y, end - x, 1, before, at.x + x, at.y + y);
      x = end + 1;
    }
  }
}

}  // namespace

std::unique_ptr<platform::Surface> GalleryImage(int image) {
  const char* picture = PicGallery(image, "GalleryImage").picture;
  const platform::PixelPoint size = platform::PictureExtent(picture);
  auto surface = std::make_unique<platform::Surface>(size.x, size.y);
  surface->DrawPicture(picture, 0, 0);
  return surface;
}

void picGalleryImagePrepare(int slot, int image, double row, double col, ImageBorder border) {
  platform::PictureBox& box = ImageBox(slot, "picGalleryImagePrepare");
  const StoredPicture& stored = PicGallery(image, "picGalleryImagePrepare");
  const platform::PixelPoint size = platform::PictureExtent(stored.picture);
  const platform::PixelPoint at = CellInTwips(row, col);
  box.Move(at.x, at.y, size.x * platform::TwipsPerPixelX, size.y * platform::TwipsPerPixelY);
  if (border != ImageBorder::Keep) box.SetBorder(border == ImageBorder::Thin);
  box.BackColor = platform::colour::White;
  box.Cls();
  box.DrawPicture(stored.picture, 0, 0);
  box.Refresh();
  box.SetAccessibleText(stored.text);
}

void picGalleryImageShow(int slot) {
  ImageBox(slot, "picGalleryImageShow").SetVisible(true);
}

void picGalleryImageHide(int slot) {
  ImageBox(slot, "picGalleryImageHide").SetVisible(false);
}

void DisplayTransparentImage(int image, double row, double col) {
  const StoredPicture& stored = PicGallery(image, "DisplayTransparentImage");
  KeepPanel();
  const platform::PixelPoint at{RoundedPixel(frmPR->lessonText.CellX(col)),
                                RoundedPixel(frmPR->lessonText.CellY(row))};
  const platform::PixelPoint size = platform::PictureExtent(stored.picture);
  platform::Surface mask(size.x, size.y);
  mask.DrawPicture(stored.picture, 0, 0);
  platform::Surface& panel = frmPR->pnlLesson;
  panel.DrawPicture(stored.picture, at.x, at.y);
  KeepUnderWhite(panel, frmPR->pnlLessonCopy->picture, mask, at);
  panel.Refresh();
}

void RestorepnlLesson() {
  if (!frmPR->pnlLessonCopy) return;
  platform::PictureBox& panel = frmPR->pnlLesson;
  panel.BitBlt(0, 0, panel.PixelWidth(), panel.PixelHeight(), frmPR->pnlLessonCopy->picture, 0, 0);
  frmPR->lessonText.SetTranscript(frmPR->pnlLessonCopy->transcript);
  panel.Refresh();
}

}  // namespace course
