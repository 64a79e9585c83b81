#include "engine/answers.h"

#include <array>
#include <cstdlib>
#include <optional>

#include "display/answer_text.h"
#include "display/exponents.h"
#include "display/grid.h"
#include "display/lesson_window.h"
#include "engine/screen_reader.h"
#include "mathkit/integers.h"
#include "mathkit/tutor_codes.h"
#include "platform/dialogs.h"
#include "platform/stop.h"
#include "session/session.h"

namespace course {

AnswerParameters answerParameters;

namespace {

constexpr int kBoxes = 5;
constexpr int kLetterSize = 34;  // pixels, width and height of the circled letters
constexpr int kLetterLeft = 5;   // pixels
constexpr double kTextLeft = 55;
constexpr double kTextTop = 12;
constexpr double kNoneFontSize = 18;  // points
constexpr const char* kNoneFont = "Times New Roman";

// Where a box of a layout stands: in which of the columns 1 to 3, so many steps down.
constexpr int kCentred = 0;
struct Place {
  int column;
  int steps;
};
constexpr std::array<std::array<Place, kBoxes>, 4> kLayouts = {{
    {{{1, 0}, {1, 1}, {1, 2}, {1, 3}, {1, 4}}},
    {{{1, 0}, {2, 0}, {1, 1}, {2, 1}, {1, 2}}},
    {{{1, 0}, {2, 0}, {1, 1}, {2, 1}, {kCentred, 2}}},
    {{{1, 0}, {2, 0}, {3, 0}, {1, 1}, {2, 1}}},
}};

double ColumnOf(int column) {
  const AnswerParameters& p = answerParameters;
  switch (column) {
    case 1:
      return p.column1;
    case 2:
      return p.column2;
    case 3:
      return p.column3;
    default:
      return (screenState.gRightColumn - p.boxWidth) / 2 + 1;
  }
}

int TwipsOf(double pixels) {
  return static_cast<int>(RoundHalfEven(pixels * platform::TwipsPerPixelY));
}

void PlaceBoxes() {
  const AnswerParameters& p = answerParameters;
  if (p.layout < 1 || p.layout > static_cast<int>(kLayouts.size()))
    platform::Stop("AnswerLayout: layout " + std::to_string(p.layout) + ", not 1 to 4");
  const int width = TwipsOf(p.boxWidth * gCellWidth);
  const int height = TwipsOf(p.boxHeight);
  const int step = TwipsOf(p.boxHeight + p.rowGap);
  for (int i = 1; i <= kBoxes; ++i) {
    const Place& place =
        kLayouts[static_cast<std::size_t>(p.layout - 1)][static_cast<std::size_t>(i - 1)];
    const platform::PixelPoint first = CellInTwips(p.answerRow, ColumnOf(place.column));
    frmPR->picAnswer[i].Move(first.x, first.y + place.steps * step, width, height);
  }
}

// Times New Roman and smaller print stay in force until the next page.
void SetLayoutFont(int box) {
  picAnswerSetFont(box, answerParameters.fontName, true, answerParameters.fontSize);
}

void DrawLetter(int box) {
  platform::PictureBox& picture = frmPR->picAnswer[box];
  const std::string name = "letter_" + std::string(1, static_cast<char>('a' + box - 1));
  const double top = (picture.ScaleHeight() - kLetterSize) / 2;
  picture.DrawPicture(name, kLetterLeft, static_cast<int>(RoundHalfEven(top)));
}

void PrintChoice(int box, const std::string& text) {
  picAnswerLocatePixels(box, kTextTop, kTextLeft);
  const std::string marked = ExponentCharsToCarets(text);
  if (answerParameters.printChoice != nullptr)
    answerParameters.printChoice(box, marked);
  else
    picAnswerPrintExponentExpression(box, marked);
}

bool IsBlank(const std::string& text) {
  return text.find_first_not_of(' ') == std::string::npos;
}

void PrintNoneOfTheAbove() {
  const AnswerParameters& p = answerParameters;
  picAnswerSetFont(kBoxes, kNoneFont, true,
                   p.lastBoxFontSize != 0 ? p.lastBoxFontSize : kNoneFontSize);
  PrintChoice(kBoxes, IsBlank(p.customLastText) ? kNoneOfTheAbove : p.customLastText);
  picAnswerRestoreFont(kBoxes);
}

void PrintFifthChoice(const std::string& text) {
  const AnswerParameters& p = answerParameters;
  if (p.lastBoxFontSize != 0) picAnswerSetFont(kBoxes, p.fontName, true, p.lastBoxFontSize);
  PrintChoice(kBoxes, text);
}

// The letter's number, nothing when the text is no letter of the choices.
std::optional<int> LetterNumber(const std::string& typed, char last) {
  const std::string text = UpperCase(typed);
  if (text < "A" || text > std::string(1, last)) return {};
  return text[0] - 'A' + 1;
}

}  // namespace

void picAnswerSetParameters(int layout, double answerRow, double column1, double column2,
                            double column3, double boxWidth, double boxHeight, double rowGap,
                            double textOffset, const std::string& fontName, double fontSize) {
  AnswerParameters& p = answerParameters;
  p.layout = layout;
  p.answerRow = answerRow;
  p.column1 = column1;
  p.column2 = column2;
  p.column3 = column3;
  p.boxWidth = boxWidth;
  p.boxHeight = boxHeight;
  p.rowGap = rowGap;
  p.textOffset = textOffset;
  p.fontName = fontName;
  if (fontName.empty()) p.fontName = "Courier New";
  if (UpperCase(fontName) == "TNR") p.fontName = "Times New Roman";
  p.fontSize = fontSize == 0 ? 20 : fontSize;
  p.parametersSet = 1;
}

std::vector<int> ChoiceOrder(int kind, RandomStream& random) {
  std::vector<int> order = {0, 1, 2, 3, 4, 5};
  if (kind < 0) return order;
  const int shuffled = kind == choice_kind::FiveShuffled ? 5 : 4;
  const std::vector<int> drawn = random.RandSeq(shuffled, shuffled);
  std::copy(drawn.begin(), drawn.end(), order.begin() + 1);
  return order;
}

int BoxOfChoice(int choice, const std::vector<int>& order, int count) {
  for (int box = 1; box <= count; ++box) {
    if (order.at(static_cast<std::size_t>(box)) == choice) return box;
  }
  return 0;
}

void AnswerLayout() {
  PlaceBoxes();
  if (session.gChoiceCount == 0) platform::Stop("gChoiceCount% hasn't been set!");
  gAnswerBaseY = answerParameters.textOffset;
  for (int i = 1; i <= session.gChoiceCount; ++i) {
    frmPR->answerText[static_cast<std::size_t>(i)]->Cls();
    frmPR->picAnswer[i].ScalePixels();
    DrawLetter(i);
    frmPR->picAnswer[i].SetVisible(true);
    SetLayoutFont(i);
  }
}

void AnswerChoicesShow(const Problem& problem, const std::vector<int>& order) {
  session.gChoiceCount = ChoiceCountOf(problem.kind);
  if (answerParameters.parametersSet != 1)
    platform::Stop("SUB picAnswerSetParameters was not called");
  AnswerLayout();
  const auto text = [&](int box) {
    return ChoiceText(problem, order[static_cast<std::size_t>(box)]);
  };
  for (int box = 1; box <= 4; ++box) PrintChoice(box, text(box));
  if (HasNoneOfTheAbove(problem.kind))
    PrintNoneOfTheAbove();
  else if (session.gChoiceCount == kBoxes)
    PrintFifthChoice(text(kBoxes));
  for (int box = 1; box <= session.gChoiceCount; ++box) frmPR->picAnswer[box].Refresh();
}

int LetterEntry(int choiceCount) {
  const char last = static_cast<char>('A' + std::abs(choiceCount) - 1);
  while (true) {
    const auto typed =
        platform::InputBox(std::string("Enter a letter from A to ") + last, session.gLessonName);
    if (const auto number = LetterNumber(typed.value_or(""), last)) return *number;
    platform::Beep();
  }
}

}  // namespace course
