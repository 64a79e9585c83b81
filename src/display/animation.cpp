#include "display/animation.h"

#include <cmath>

#include "display/animation_frame.h"
#include "display/drawing.h"
#include "display/drawing_cells.h"
#include "display/grid.h"
#include "display/lesson_window.h"
#include "mathkit/expressions.h"
#include "mathkit/integers.h"
#include "mathkit/tutor_codes.h"
#include "platform/stop.h"

namespace course {
namespace {

enum Direction { kUp = 1, kDown = 2, kLeft = 3, kRight = 4 };

bool IsVertical(int dr) {
  return dr == kUp || dr == kDown;
}
bool IsHorizontal(int dr) {
  return dr == kLeft || dr == kRight;
}

enum class Trail { None, Erase, Copy };

// The two axes read the flag differently, as scripts expect.
Trail TrailOf(int dr, int er) {
  if (IsVertical(dr)) return er == 1 ? Trail::Erase : er == 0 ? Trail::Copy : Trail::None;
  if (IsHorizontal(dr))
    return er == 1 || er == 0 ? Trail::Erase : er == -1 ? Trail::Copy : Trail::None;
  return Trail::None;
}

// A rectangle on its way over a surface, and the text on it when the surface has one.
class MovingRect {
 public:
  MovingRect(platform::Surface& surface, TextPanel* text, platform::PixelRect rect, int dr, int er,
             platform::Colour backColor)
      : surface_(surface),
        text_(text),
        start_(rect),
        rect_(rect),
        dr_(dr),
        trail_(TrailOf(dr, er)),
        backColor_(backColor) {}
  ~MovingRect() {
    if (text_ != nullptr && step_ > 0)
      text_->MoveTranscript(start_, rect_.left - start_.left, rect_.top - start_.top,
                            trail_ == Trail::Copy);
  }
  MovingRect(const MovingRect&) = delete;
  MovingRect& operator=(const MovingRect&) = delete;

  bool Moves() const { return trail_ != Trail::None; }

  // One pixel further, shown at once, and the pause behind it.
  void Step(double pause) {
    ++step_;
    const auto [x, y, w, h] = rect_;
    const int dx = dr_ == kRight ? 1 : dr_ == kLeft ? -1 : 0;
    const int dy = dr_ == kDown ? 1 : dr_ == kUp ? -1 : 0;
    surface_.BitBlt(x + dx, y + dy, w, h, surface_, x, y);
    MendTrail();
    surface_.Refresh();
    rect_.left += dx;
    rect_.top += dy;
    Delay(pause);
  }

 private:
  // The line of pixels that the rectangle has just left.
  platform::PixelRect TrailingLine() const {
    const auto [x, y, w, h] = rect_;
    switch (dr_) {
      case kUp:
        return {x, y + h - 1, w, 1};
      case kDown:
        return {x, y, w, 1};
      case kLeft:
        return {x + w - 1, y, 1, h};
      default:
        return {x, y, 1, h};
    }
  }

  void MendTrail() {
    const platform::PixelRect line = TrailingLine();
    const int extent = IsVertical(dr_) ? rect_.height : rect_.width;
    if (trail_ == Trail::Copy && step_ <= extent)
      CopyFromPicture(line);
    else
      surface_.FillRect(line, backColor_);
  }

  // The picture has been moved step_ pixels by now, so that it shows what belongs into the line as
  // far inside as the line lies outside of it.
  void CopyFromPicture(const platform::PixelRect& line) {
    int sourceX = line.left;
    int sourceY = line.top;
    switch (dr_) {
      case kUp:
        sourceY -= step_;
        break;
      case kDown:
        sourceY += step_;
        break;
      case kLeft:
        sourceX -= step_;
        break;
      default:
        sourceX += step_;
    }
    surface_.BitBlt(line.left, line.top, line.width, line.height, surface_, sourceX, sourceY);
  }

  platform::Surface& surface_;
  TextPanel* text_;  // nullptr when the surface holds no text
  platform::PixelRect start_;
  platform::PixelRect rect_;  // where the rectangle stands
  int dr_;
  Trail trail_;
  platform::Colour backColor_;
  int step_ = 0;  // pixels moved
};

// Cells and origin of the surface that an animation runs on.
struct Ground {
  platform::Surface& surface;
  TextPanel* text;
  int cellWidth;
  int cellHeight;
  int originX;  // pixel X of column firstCell
  int originY;  // pixel Y of the first row's erased band
  double firstCol;
  double firstRow;
};

// A band of text is erased 4 pixels below its cell's top: a rectangle so placed holds whole
// letters.
constexpr int kBandOffset = 4;

Ground LessonGround(int bandOffset = kBandOffset) {
  return {frmPR->pnlLesson, &frmPR->lessonText,      gCellWidth, gCellHeight,
          gLeftMargin,      gTopMargin + bandOffset, 1,          2};
}

platform::PixelRect PixelsOf(const Ground& ground, double rp, double cp, double wd, double ht) {
  return {RoundedPixel((cp - ground.firstCol) * ground.cellWidth + ground.originX),
          RoundedPixel((rp - ground.firstRow) * ground.cellHeight + ground.originY),
          RoundedPixel(ground.cellWidth * wd), RoundedPixel(ground.cellHeight * ht)};
}

int StepsOf(const Ground& ground, int dr, double ds) {
  return StepCount((IsVertical(dr) ? ground.cellHeight : ground.cellWidth) * ds);
}

void AnimCore(const Ground& ground, double rp, double cp, double wd, double ht, int dr, double ds,
              double sp, int er, platform::Colour backColor) {
  const AnimationFrame frame;
  MovingRect rect(ground.surface, ground.text, PixelsOf(ground, rp, cp, wd, ht), dr, er, backColor);
  if (!rect.Moves()) return;
  const double pause = StepPause(sp);
  const int steps = StepsOf(ground, dr, ds);
  for (int i = 1; i <= steps; ++i) rect.Step(pause);
}

// The comment and gallery boxes that scripts number from 1 to 5.
void CheckBoxIndex(int index) {
  if (index < 1 || index > 5) platform::Stop("AnimGenlCase: index = " + std::to_string(index));
}

Ground GroundOf(int surface, int index) {
  switch (surface) {
    case 1:
      return LessonGround();
    case 2:
      return {frmPR->picWiperBox, &frmPR->wiperText,          gCellWidth, gCellHeight,
              gWbLeftMargin,      gWbTopMargin + kBandOffset, 1,          1};
    case 3:
      CheckBoxIndex(index);
      return {frmPR->picCommentBox[index],
              frmPR->commentText[static_cast<std::size_t>(index)].get(),
              gCellWidth,
              gCellHeight,
              4,
              7,
              1,
              1};
    case 4:
      CheckBoxIndex(index);
      return {frmPR->picGalleryImage[index], nullptr, 1, 1, 0, 0, 0, 0};
    default:
      platform::Stop("AnimGenlCase: surface = " + std::to_string(surface));
  }
}

// 1 for "U", 2 for "D".
int VerticalDirection(const char* routine, const std::string& direction) {
  const std::string letter = UpperCase(direction);
  if (letter == "U") return kUp;
  if (letter == "D") return kDown;
  platform::Stop(std::string(routine) + ": direction = \"" + direction + "\"");
}

struct Move {
  int dr;
  int distance;  // rows or columns
};

std::vector<Move> ParseMoves(const std::string& moves) {
  constexpr std::size_t kGroup = 3;
  const auto stop = [&moves] { platform::Stop("MultiAnim: moves = \"" + moves + "\""); };
  if (moves.size() % kGroup != 0) stop();
  std::vector<Move> parsed;
  for (std::size_t i = 0; i < moves.size(); i += kGroup) {
    const std::size_t dr = std::string("UDLR").find(UpperCase(moves.substr(i, 1)));
    const char tens = moves[i + 1];
    const char ones = moves[i + 2];
    const bool digits = tens >= '0' && tens <= '9' && ones >= '0' && ones <= '9';
    if (dr == std::string::npos || !digits) stop();
    parsed.push_back({static_cast<int>(dr) + 1, (tens - '0') * 10 + (ones - '0')});
  }
  return parsed;
}

}  // namespace

void Anim(double rp, double cp, double wd, double ht, int dr, double ds, double sp, int er) {
  for (const double value : {rp, cp, wd, ht, ds})
    if (value != std::floor(value)) platform::Stop("A Call to SUB Anim used non-integer values");
  AnimCore(LessonGround(), rp, cp, wd, ht, dr, ds, sp, er, screenState.gBackColor);
}

void Anim2(double rp, double cp, double wd, double ht, int dr, double ds, double sp, int er) {
  AnimCore(LessonGround(), rp, cp, wd, ht, dr, ds, sp, er, screenState.gBackColor);
}

void Anim3(double rp1, double cp1, double wd1, double ht1, int dr1, double rp2, double cp2,
           double wd2, double ht2, int dr2, double ds, double sp, int er, double dsMult) {
  const bool oneAxis =
      (IsVertical(dr1) && IsVertical(dr2)) || (IsHorizontal(dr1) && IsHorizontal(dr2));
  if (!oneAxis)
    platform::Stop("Anim3: dr1 = " + std::to_string(dr1) + ", dr2 = " + std::to_string(dr2));
  if (dsMult != std::floor(dsMult)) platform::Stop("Invalid parameter: dsMult");
  const AnimationFrame frame;
  const Ground ground = LessonGround(6);
  const platform::Colour back = screenState.gBackColor;
  MovingRect first(ground.surface, ground.text, PixelsOf(ground, rp1, cp1, wd1, ht1), dr1, er,
                   back);
  MovingRect second(ground.surface, ground.text, PixelsOf(ground, rp2, cp2, wd2, ht2), dr2, er,
                    back);
  if (!first.Moves()) return;
  const double pause = StepPause(sp);
  const int steps = StepsOf(ground, dr1, ds);
  for (int i = 1; i <= steps; ++i) {
    first.Step(pause);
    for (int j = 1; j <= dsMult; ++j) second.Step(pause);
  }
}

void AnimGenlCase(double rp, double cp, double wd, double ht, int dr, double ds, double sp, int er,
                  platform::Colour backColor, int surface, int index) {
  AnimCore(GroundOf(surface, index), rp, cp, wd, ht, dr, ds, sp, er, backColor);
}

void MultiAnim(double rp, double cp, double wd, double ht, const std::string& moves, double sp,
               int er, double pause) {
  for (const auto [dr, distance] : ParseMoves(moves)) {
    Anim2(rp, cp, wd, ht, dr, distance, sp, er);
    if (IsVertical(dr))
      rp += dr == kDown ? distance : -distance;
    else
      cp += dr == kRight ? distance : -distance;
    if (pause > 0) Delay(pause);
  }
}

void WipeAndErase(const std::string& direction, double rp, double ds, double sp, int er) {
  // The row and the half column at either side.
  Anim2(rp, 0.5, 41, 1, VerticalDirection("WipeAndErase", direction), ds, sp, er);
}

void WipeAndEraseLine(const std::string& direction, double rp, double ds, double sp) {
  const int dr = VerticalDirection("WipeAndEraseLine", direction);
  isDrawHorizLine(rp, 1, 40, 2);
  Anim2(rp, 0.5, 41, 1, dr, ds, sp, 1);
  // Where the line has come to in whole pixels.
  const double moved = static_cast<double>(StepCount(gCellHeight * ds)) / gCellHeight;
  const double end = dr == kUp ? rp - moved : rp + moved;
  isDrawDiagonalLineWithColor(end, 0.5, end, 40.5, 3, platform::colour::Blue);
}

void wbWipeAndErase(double sp) {
  platform::PictureBox& box = frmPR->picWiperBox;
  box.FilledBox(6, 3, box.ScaleWidth() - 5, 5, platform::colour::Black);
  AnimGenlCase(0.7, 0, screenState.gWbWidth + 2, 0.2, kDown, screenState.gWbHeight + 0.5, sp, 1,
               platform::colour::Black, 2, 0);
  frmPR->wiperText.Cls();
  wbLocate(1, 1);
}

}  // namespace course
