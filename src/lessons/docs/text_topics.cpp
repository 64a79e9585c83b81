#include "display/drawing.h"
#include "display/exponents.h"
#include "display/fractions.h"
#include "display/grid.h"
#include "display/print.h"
#include "display/radicals.h"
#include "display/stacked_text.h"
#include "display/word_wrap.h"
#include "lessons/docs/docs_topics.h"
#include "mathkit/tutor_codes.h"

namespace course {

namespace colour = platform::colour;

std::vector<Topic> TextTopics() {
  return {
      {"display/grid.h",
       "The screen has 40 columns and the rows 2 to 24.  Locate moves the cursor to a cell or a "
       "part of one.",
       {DOCS_SAMPLE(Locate(14, 10); isPrint("row 14, column 10")),
        DOCS_SAMPLE(Locate(12.5, 4.5); isPrint("half a cell down and right")),
        DOCS_SAMPLE(SetColor(colour::Cyan); isPrint("until the next colour");
                    SetColor(colour::White); isPrint("white again"))}},
      {"display/print.h",
       "isPrint prints a line and goes to the next row.  The forms with an s stay behind the "
       "text.",
       {DOCS_SAMPLE(isPrint("first row"); isPrint("second row")),
        DOCS_SAMPLE(isPrints("one"); isPrints(" row")),
        DOCS_SAMPLE(isPrints("2x + "); isColorPrint("3", colour::Yellow)),
        DOCS_SAMPLE(isPrint("above"); isPrintLines(2); isPrint("two rows further down"))}},
      {"display/word_wrap.h",
       "The wrap breaks a paragraph at its blanks.  Inside it a backslash and a letter set the "
       "colour.",
       {DOCS_SAMPLE(WordWrap("A paragraph breaks where a word ends, within the 40 columns.")),
        DOCS_SAMPLE(WordWrap(R"(A \cnew word\z is cyan, a \rwarning\z is red.)")),
        DOCS_SAMPLE(WordWrapIndentNarrow("From column 6, and no further than 30 columns.", 6, 30)),
        DOCS_SAMPLE(NonTutorWordWrapSetup("", false, 16, 16, 600, 4);
                    NonTutorWordWrap("Proportional type, between two pixels."))}},
      {"mathkit/tutor_codes.h",
       "The course draws its own characters from code 127 on.  The menu of topics shows them all.",
       {DOCS_SAMPLE(isPrint("x " + tutor::LessOrEqual + " 3, y " + tutor::NotEqual + " 0")),
        DOCS_SAMPLE(isPrint("3" + tutor::Dot + "4, 12 " + tutor::Divided + " 4, " +
                            tutor::SquareRoot + "9")),
        DOCS_SAMPLE(
            WordWrap("No line is broken at the blank of a gap: 90" + tutor::Gap + "miles"))}},
      {"display/exponents.h",
       "Carets raise what stands between them.  The size is that of the raised letters.",
       {DOCS_SAMPLE(isPrintExponentExpression("3x^2^ - 5x + 1", 14)),
        DOCS_SAMPLE(WordWrap("The wrap knows them too: (a^m^)^n^ is a^mn^.")),
        DOCS_SAMPLE(isPrints("x"); isPrintSubscript1("1", 14); isPrints(" + x");
                    isPrintSubscript1("2", 14))}},
      {"display/fractions.h",
       "A built-up fraction takes three rows.  The cursor's row is its middle one.",
       {DOCS_SAMPLE(Locate(14, 4); isPrintFraction("3", "4")),
        DOCS_SAMPLE(Locate(14, 4); isPrintFractionExp("x^2^ + 1", "2x")),
        DOCS_SAMPLE(Locate(14, 4); isPrintFractionValue(-5, 8)),
        DOCS_SAMPLE(Locate(14, 4); isPrints("x = "); isPrintFraction("-7", "12");
                    isPrints(" = -0.58..."))}},
      {"display/stacked_text.h",
       "A line as it is typed, printed as a book shows it.",
       {DOCS_SAMPLE(Locate(14, 4); isPrintStackedText("1/2 + 2/3 = 7/6")),
        DOCS_SAMPLE(Locate(14, 4);
                    isPrintStackedText("x = (-3 + " + tutor::SquareRoot + "17)/4"))}},
      {"display/radicals.h",
       "A radical sign with its bar.  Backquotes hold the radicand.",
       {DOCS_SAMPLE(Locate(14, 4); isPrintRadicalText("`75` = 5`3`")),
        DOCS_SAMPLE(Locate(14, 4); isDrawRadical(14, 4, 3); Locate(14, 5); isPrint("x+2"))}},
      {"display/drawing.h",
       "Marks that point at something.  Rows and columns are those of the cells.",
       {DOCS_SAMPLE(Locate(13, 6); isPrint("3x + 7"); isDrawBox(13, 6, 14, 8, colour::Yellow, 2)),
        DOCS_SAMPLE(Locate(13, 6); isPrint("4 + 5 + 6"); Bracket(14, 6, 9, 2)),
        DOCS_SAMPLE(isDrawArrow1Segment(14, 6, 14, 20, colour::Cyan, "NA", "A");
                    isDrawBullet(14, 24, colour::Yellow)),
        DOCS_SAMPLE(isDrawHorizLineWithColor(14, 6, 20, 2, colour::Cyan);
                    isDrawVertLineWithColor(13, 12, 16, 2, colour::Yellow)),
        DOCS_SAMPLE(PrintNiceHeading(0, "A Heading With a Shadow", 13, -1, "", true, false, 24,
                                     colour::Cyan, colour::Black, 2))}},
  };
}

}  // namespace course
