#include "lessons/docs/tutor_chars_form.h"

#include "display/special_characters.h"
#include "display/text_panel.h"
#include "guidance/form_frame.h"
#include "mathkit/tutor_codes.h"
#include "platform/picture_box.h"

namespace course {
namespace {

using platform::look::MovePixels;

// Pixels.
constexpr int kRowsPerColumn = 24;
constexpr int kRowHeight = 27;
constexpr int kColumnWidth = 290;
constexpr int kCodeLeft = 8;
constexpr int kNameLeft = 46;
constexpr int kCharacterLeft = 246;
constexpr int kTextSize = 10;  // points

// Of the names of characters that the course does not draw.
constexpr platform::Colour kPlain = platform::Rgb(150, 170, 255);

const TextPanel::Layout kLayout = {.restoredColour = platform::colour::White};

int ColumnCount() {
  return (static_cast<int>(TutorCharacters().size()) + kRowsPerColumn - 1) / kRowsPerColumn;
}

int ChartWidth() {
  return ColumnCount() * kColumnWidth + 1;
}

constexpr int kChartHeight = kRowsPerColumn * kRowHeight + 1;

class TutorCharsForm {
 public:
  TutorCharsForm()
      : form("frmTutorCharsDisplay", FormTwips(ChartWidth() + 2 * kFormMargin),
             FormTwips(kChartHeight + kFormButtonHeight + 3 * kFormMargin)),
        Picture1_(form, "Picture1"),
        chart_(Picture1_, kLayout),
        lblNote_(form, "lblNote",
                 "Pale names: the course does not draw these codes; they show what the typeface "
                 "has.  Print exponents between carets."),
        cmdClose_(form, "cmdClose", "Close") {
    form.SetCaption("Characters");
    Picture1_.BackColor = platform::colour::Blue;
    MovePixels(Picture1_, kFormMargin, kFormMargin, ChartWidth(), kChartHeight);
    chart_.Cls();
    for (std::size_t i = 0; i < TutorCharacters().size(); ++i) Draw(static_cast<int>(i));
    Rule();
    Picture1_.Refresh();
    MovePixels(lblNote_, kFormMargin, kChartHeight + 2 * kFormMargin, 560, kFormButtonHeight);
    platform::look::SetType(lblNote_, 11);
    MakeClosingButton(form, cmdClose_);
  }

  platform::Form form;

 private:
  void Draw(int index) {
    const ChartedCharacter& entry = TutorCharacters()[static_cast<std::size_t>(index)];
    const int left = index / kRowsPerColumn * kColumnWidth;
    const int top = index % kRowsPerColumn * kRowHeight;
    Picture1_.ForeColor = IsDrawnCharacter(entry.code) ? platform::colour::White : kPlain;
    Picture1_.FontName = "MS Sans Serif";
    Picture1_.FontSize = kTextSize;
    Picture1_.FontBold = false;
    PrintAt(left + kCodeLeft, top + 5, std::to_string(entry.code));
    PrintAt(left + kNameLeft, top + 5, entry.name);
    chart_.RestoreFont();
    chart_.SetFontSize(entry.size);
    chart_.SetCursor(left + kCharacterLeft, top + 1);
    chart_.TextOut(Chr(entry.code));
  }

  void PrintAt(int x, int y, const std::string& text) {
    Picture1_.CurrentX = x;
    Picture1_.CurrentY = y;
    Picture1_.Print(text);
  }

  void Rule() {
    for (int row = 0; row <= kRowsPerColumn; ++row)
      Picture1_.Line(0, row * kRowHeight, ChartWidth() - 1, row * kRowHeight,
                     platform::look::kSlate);
    for (int column = 0; column <= ColumnCount(); ++column)
      Picture1_.Line(column * kColumnWidth, 0, column * kColumnWidth, kChartHeight - 1,
                     platform::look::kSlate);
  }

  platform::PictureBox Picture1_;
  TextPanel chart_;
  platform::Label lblNote_;
  platform::Button cmdClose_;
};

}  // namespace

const std::vector<ChartedCharacter>& TutorCharacters() {
  static const std::vector<ChartedCharacter> characters = {
      {127, "Delta", 16},
      {129, "Theta", 16},
      {130, "Raised minus", 18},
      {131, "Greater than or equal", 16},
      {132, "Less than or equal", 16},
      {133, "Square root", 16},
      {134, "Division", 16},
      {135, "Left arrow", 20},
      {136, "Right arrow", 20},
      {137, "Down arrow", 18},
      {138, "Up arrow", 18},
      {141, "Multiplication", 18},
      {143, "Exponent 0", 18},
      {144, "Exponent 1", 18},
      {145, "Exponent 2", 20},
      {146, "Exponent 3", 20},
      {147, "Exponent 4", 20},
      {148, "Exponent 5", 20},
      {149, "Exponent 6", 20},
      {150, "Exponent 7", 20},
      {151, "Exponent 8", 20},
      {152, "Exponent 9", 20},
      {153, "Exponent m", 18},
      {154, "Exponent n", 18},
      {155, "Exponent p", 18},
      {156, "Raised dot", 18},
      {157, "Raised +", 18},
      {161, "Circle with dot", 20},
      {162, "a bar", 16},
      {163, "b bar", 16},
      {164, "c bar", 16},
      {165, "d bar", 16},
      {166, "e bar", 16},
      {167, "o bar", 16},
      {168, "Congruent", 16},
      {169, "Parallel", 16},
      {170, "Perpendicular", 16},
      {171, "Parallelogram", 18},
      {172, "Circle", 18},
      {173, "Square", 18},
      {174, "Trapezoid", 18},
      {176, "p bar", 14},
      {177, "Similar", 16},
      {179, "Raised (", 18},
      {180, "Raised )", 18},
      {191, "Plus or minus", 16},
      {192, "One half", 16},
      {212, "Diagonal arrow 1", 16},
      {213, "Diagonal arrow 2", 16},
      {214, "Diagonal arrow 3", 16},
      {215, "Diagonal arrow 4", 16},
      {216, "Right arrow", 16},
      {217, "Angle", 16},
      {218, "Infinity", 16},
      {219, "Vertical bar", 12},
      {220, "Raised x", 16},
      {221, "Not equal", 16},
      {223, "Apostrophe", 18},
      {224, "Top loop", 16},
      {225, "Bottom loop", 16},
      {226, "Approximately", 16},
      {247, "Raised minus", 16},
      {248, "Dot", 20},
      {249, "Pi", 16},
      {251, "Underline", 16},
      {252, "Fraction bar", 16},
      {253, "Filled box", 16},
  };
  return characters;
}

void ShowTutorCharsDisplay() {
  TutorCharsForm().form.ShowModal();
}

}  // namespace course
