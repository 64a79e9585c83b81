#include "display/animation.h"
#include "display/comment_box.h"
#include "display/graphs.h"
#include "display/grid.h"
#include "display/images.h"
#include "display/notes.h"
#include "display/print.h"
#include "display/print_cells.h"
#include "display/wiper_box.h"
#include "display/word_wrap.h"
#include "lessons/docs/docs_topics.h"

namespace course {

namespace colour = platform::colour;

std::vector<Topic> FigureTopics() {
  return {
      {"display/graphs.h",
       "A plane or a number line in a box of its own.  Points and lines take the units of the "
       "figure.",
       {DOCS_SAMPLE(picGraph2DPrepare(1, 12, 8, 24, 12); picGraph2DShowPlane(1, "shownumbers");
                    picGraph2DPlotPoint(1, 2, 3, colour::Red)),
        DOCS_SAMPLE(picGraph2DPrepare(1, 12, 8, 24, 12); picGraph2DShowPlane(1, "nonumbers");
                    picGraph2DLine(1, 2, -1, colour::Blue, 2)),
        DOCS_SAMPLE(picGraph2DPrepare(1, 13, 4, 33, 2.9);
                    picGraph2DShowNumberLine(1, "noarrows", 2))}},
      {"display/animation.h",
       "A block of cells slides up (1), down (2), left (3) or right (4), so many cells far.",
       {DOCS_SAMPLE(isPrint("this slides down"); Anim(kSampleRow, 1, 16, 1, 2, 4, 20, 1)),
        DOCS_SAMPLE(isPrint("to the right"); Anim(kSampleRow, 1, 12, 1, 4, 20, 20, 1)),
        DOCS_SAMPLE(isPrint("wiped away from below"); isPrint("and gone");
                    WipeAndErase("U", 25, 13, 30))}},
      {"display/wiper_box.h",
       "A panel over the screen for an explanation, cleared by a falling curtain.  wbPrepare, "
       "wbShow, then print.",
       {DOCS_SAMPLE(wbPrepare(13, 30, 4, colour::White, colour::Black); wbShow();
                    wbWordWrap("The wiper box wraps in its own width.")),
        DOCS_SAMPLE(wbPrepareAtColumn(13, 4, 18, 4, colour::White, colour::Black); wbShow();
                    wbisPrint("x = 4"); wbLocate(2.5, 1); wbisPrint("check it"))}},
      {"display/comment_box.h",
       "Remarks in small type anywhere.  The size of its box is told in cells of the screen.",
       {DOCS_SAMPLE(picCommentBoxPrepare2(1, 13, -1, 30, 4, colour::White, colour::Blue, 12, 6);
                    picCommentBoxWordWrap(1, "A reminder in a box of its own.");
                    picCommentBoxShow(1)),
        DOCS_SAMPLE(picCommentBoxPrepare2(1, 13, 4, 30, 6, colour::Yellow, colour::Black, 14, 6);
                    picCommentBoxWordWrap0(1, "This box has shrunk to its text.");
                    picCommentBoxShow(1)),
        DOCS_SAMPLE(picCommentBoxWithNiceHeadingPrepare(1, "A Rule", 14, -1, "", true, false, 22,
                                                        colour::Blue, colour::FormGrey, 2, 12, 6,
                                                        colour::White);
                    picCommentBoxWithNiceHeadingShow(1))}},
      {"display/notes.h",
       "A label of one colour in any face, as large as its text.",
       {DOCS_SAMPLE(
            lblNotesPrepare(1, 14, 20, "look here", colour::White, colour::Blue, true, false, 12);
            lblNotesShow(1)),
        DOCS_SAMPLE(lblNotesPrepare(1, 13, 10, "two lines,\rcentred", colour::Yellow, colour::Black,
                                    false, true, 14, "TNR", "C");
                    lblNotesShow(1))}},
      {"display/images.h",
       "Pictures of the gallery, in a box of their own or on the screen itself, where white is "
       "transparent.",
       {DOCS_SAMPLE(picGalleryImagePrepare(1, gallery::OrderOfOperations, 12, 10, SHOWBORDER);
                    picGalleryImageShow(1)),
        DOCS_SAMPLE(DisplayTransparentImage(gallery::CheckMark, 13, 10))}},
      {"display/print_cells.h",
       "A table with labels, filled as the quantities are worked out.  Texts are centred in "
       "their cells.",
       {DOCS_SAMPLE(picPrintCellBoxPrepare1(13); picPrintCellPrint(1, "20%", colour::Black, 14);
                    picPrintCellBoxShow()),
        DOCS_SAMPLE(picPrintCellBoxPrepare2(13); picPrintCellPrint(1, "55", colour::Blue, 14);
                    picPrintCellPrint(2, "3", colour::Blue, 14); picPrintCellBoxShow())}},
  };
}

}  // namespace course
