// The buttons under the panel: which of them a wait shows, and the numbers of the screens.
#include <algorithm>
#include <array>

#include "display/lesson_window.h"
#include "engine/navigation.h"
#include "session/session.h"

namespace course {
namespace {

using platform::TwipsPerPixelX;
using platform::colour::Red;
using platform::colour::White;

constexpr int kContinue = 2;  // index of cmdNavigate
constexpr int kContinueLeft = 5805;
constexpr int kContinueLeftBesideNumbers = 6480;

constexpr int kMaxNumbers = 9;
constexpr int kNumberSize = 27;         // pixels
constexpr int kCurrentNumberSize = 26;  // it has no rectangle around it

// Distance from number to number, and place of the first, in pixels.
struct NumberRow {
  int step;
  int base;
};

NumberRow NumberRowOf(int screens) {
  if (screens < 7) return {40, 27};
  switch (screens) {
    case 7:
      return {35, 27};
    case 8:
      return {32, 20};
    default:
      return {30, 13};
  }
}

void DrawNumber(int number, const NumberRow& row) {
  platform::PictureBox& picture = frmPR->picScreenNum[number];
  const bool current = number == session.gScreenNum;
  const int size = (current ? kCurrentNumberSize : kNumberSize) * TwipsPerPixelX;
  picture.Move(((number - 1) * row.step + row.base) * TwipsPerPixelX, picture.Top(), size, size);
  picture.BackColor = current ? Red : White;
  picture.ForeColor = current ? White : Red;
  picture.Cls();
  if (!current) picture.Box(1, 1, 26, 26);
  picture.FontName = "Arial";
  picture.FontBold = true;
  picture.FontSize = 14;
  picture.CurrentX = 7;
  picture.CurrentY = 2;
  picture.Print(std::to_string(number));
  picture.SetVisible(true);
  picture.Refresh();
}

void ShowNumbers() {
  const int count = std::min(session.gScreenCount, kMaxNumbers);
  const NumberRow row = NumberRowOf(session.gScreenCount);
  for (int i = 1; i <= kMaxNumbers; ++i) frmPR->picScreenNum[i].SetVisible(false);
  for (int i = 1; i <= count; ++i) DrawNumber(i, row);
  frmPR->picScreenBox.SetVisible(true);
}

// The END and BEGIN buttons of a mode, as indexes of cmdNavigate; 0 for none.
struct Pair {
  int end = 0;
  int begin = 0;
};

Pair EndAndBegin() {
  switch (session.gMode) {
    case mode::Explanation:
      return {6, 9};
    case mode::Example:
      return {5, 8};
    case mode::LessonTestExplanation:
    case mode::UnitTestExplanation:
      return {7, 10};
    default:
      return {};
  }
}

void ShowContinue() {
  frmPR->cmdNavigate[kContinue].SetVisible(true);
  frmPR->cmdNavigate[kContinue].SetEnabled(true);
  // The keyboard alone leads through a lesson: Space and Enter continue.
  frmPR->cmdNavigate[kContinue].SetFocus();
}

}  // namespace

void ShowNavButtons() {
  frmPR->picScreenBox.SetVisible(false);
  frmPR->cmdNavigate[kContinue].SetLeft(kContinueLeft);
  if (session.gMode == mode::Lesson) {
    frmPR->cmdNavigate[kContinue].SetLeft(kContinueLeftBesideNumbers);
    ShowNumbers();
    return ShowContinue();
  }
  const Pair pair = EndAndBegin();
  if (pair.end == 0) return;
  frmPR->cmdNavigate[pair.end].SetVisible(true);
  frmPR->cmdNavigate[pair.begin].SetVisible(true);
  ShowContinue();
}

}  // namespace course
