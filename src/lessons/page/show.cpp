#include "lessons/page/show.h"

#include "display/grid.h"
#include "display/stacked_text.h"
#include "engine/choices.h"
#include "lessons/page/page_error.h"
#include "lessons/page/say.h"
#include "mathkit/tutor_codes.h"

namespace course::page {
namespace {

constexpr double kAir = 0.5;  // rows

bool IsBuiltUp(const std::string& math) {
  return math.find('/') != std::string::npos;
}

bool HasRadical(const std::string& math) {
  return math.find_first_of("`" + tutor::SquareRoot) != std::string::npos;
}

void CheckWidth(const std::string& math, double col) {
  const double last = col + StackedTextWidth(math) - 1;
  if (col >= 1 && last <= screenState.gRightColumn) return;
  StopPage("ShowAt prints on columns " + CellText(col) + " to " + CellText(last) +
           ", not 1 to 40: \"" + math + "\"");
}

}  // namespace

void Show(const std::string& math, double col) {
  UpdateCursorCell();
  // Behind a built-up line or a box the next row stands half a row below it.
  const double air = frmPR->lessonText.cursorCol > 1 ? 0 : kAir;
  double row = NextRow();
  if (IsBuiltUp(math))
    row += air + 1;
  else if (HasRadical(math))
    row += air;
  ShowAt(row, math, col);
}

void ShowAt(double row, const std::string& math, double col) {
  const bool builtUp = IsBuiltUp(math);
  CheckRows("ShowAt", builtUp ? row - 1 : row, builtUp ? row + 1 : row, math);
  CheckWidth(math, col);
  Locate(row, col);
  isPrintStackedText(math);
  if (builtUp)
    Locate(row + 1 + kAir, screenState.gRightColumn + 1);
  else
    Locate(row + 1, 1);
}

void Conclude(const Problem& problem) {
  // A sentence prints a radical without its bar.
  const std::string answer = RightText(problem);
  if (!HasRadical(answer) || IsBuiltUp(answer) || EndsAtNone(problem))
    return Say(ConclusionText(problem));
  const std::string words = "The answer is ";
  const double row = NextRow() + 1;
  const double col = 1 + static_cast<double>(words.size());
  ShowAt(row, words, 1);
  SetColor(platform::colour::Yellow);
  ShowAt(row, answer, col);
  SetColor(platform::colour::White);
  ShowAt(row, ".", col + StackedTextWidth(answer));
}

void ConcludeAt(double row, const Problem& problem) {
  SayAt(row, ConclusionText(problem));
}

}  // namespace course::page
