#include "display/panel_views.h"

#include "display/comment_box.h"
#include "display/graphs.h"
#include "display/images.h"
#include "display/notes.h"
#include "display/print.h"
#include "display/print_cells.h"
#include "display/wiper_box.h"
#include "support/display_fixture.h"

namespace course::testing {
namespace {

class PanelViewsTest : public DisplayTest {
 protected:
  // "NAME: first line" of each.
  static std::vector<std::string> Shown() {
    std::vector<std::string> shown;
    for (const PanelView& view : ShownPanels(*frmPR)) {
      const std::vector<std::string> lines = view.Lines();
      shown.push_back(view.control->Name() + (lines.empty() ? "" : ": " + lines[0]));
    }
    return shown;
  }
};

TEST_F(PanelViewsTest, FromBackToFrontWithTheirTextsAndANewScreenHidesThem) {
  constexpr platform::Colour kWhite = platform::colour::White;
  isPrint("on the panel");
  lblNotesPrepare(2, 3, 3, "first\rsecond", kWhite, 0, true, false, 12);
  lblNotesShow(2);
  picCommentBoxPrepare2(3, 5, 1, 10, 3, kWhite, 0, 10, 2);
  picCommentBoxisPrint(3, "a comment");
  picCommentBoxShow(3);
  picGalleryImagePrepare(1, gallery::CheckMark, 3, 3);
  picGalleryImageShow(1);
  picGraph2DPrepare(4, 5, 5, 10, 8);
  picGraph2DShowPlane(4, "");
  frmPR->figureItems[4] = {{"point", {{"x", 2}}}};
  PrintCellTable table;
  table.cells = {{5, 5, 40, 90}, {55, 5, 40, 90}};
  picPrintCellBoxPrepare3(6, table);
  picPrintCellPrint(2, "x^2^", 0, 12);
  picPrintCellBoxShow();
  wbPrepare(15, 30, 4, kWhite, 0);
  wbShow();
  wbisPrint("wiped");
  frmPR->picAnswer[5].SetVisible(true);
  EXPECT_EQ(Shown(), (std::vector<std::string>{
                         "pnlLesson: on the panel", "picWiperBox: wiped", "picPrintCellBox",
                         "picPrintCell(1)", "picPrintCell(2): x^2^", "picGraph2D(4)",
                         "picGalleryImage(1): A check mark.", "picCommentBox(3): a comment",
                         "picNotes(2): first", "picAnswer(5)"}));
  for (const PanelView& view : ShownPanels(*frmPR)) {
    EXPECT_EQ(view.items != nullptr && view.items->size() == 1, view.kind == PanelKind::Figure);
    EXPECT_EQ(view.Lines().size() == 2, view.kind == PanelKind::Note);
  }
  ResetScreen();
  EXPECT_EQ(Shown(), (std::vector<std::string>{"pnlLesson: on the panel", "picAnswer(5)"}));
}

}  // namespace
}  // namespace course::testing
