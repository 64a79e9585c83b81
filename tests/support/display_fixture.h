// A loaded lesson window without a lesson: for tests of what is printed and drawn on it.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "display/grid.h"
#include "display/lesson_window.h"
#include "display/word_wrap.h"
#include "support/course_fixture.h"

namespace course::testing {

class DisplayTest : public CourseTest {
 protected:
  void SetUp() override {
    CourseTest::SetUp();
    screenState = ScreenState{};
    wrapState = WrapState{};
    frmPR = std::make_unique<LessonWindow>();
    ResetScreen();
    Locate(2, 1);
  }
  void TearDown() override {
    frmPR.reset();
    CourseTest::TearDown();
  }

  static platform::PictureBox& Panel() { return frmPR->pnlLesson; }
  static TextPanel& Text() { return frmPR->lessonText; }
  static std::vector<std::string> Lines() { return TranscriptLines(Text()); }
  // The cursor as a cell.
  static double Row() {
    UpdateCursorCell();
    return Text().cursorRow;
  }
  static double Col() {
    UpdateCursorCell();
    return Text().cursorCol;
  }
  // Whether any pixel of the rectangle has another colour than the given one.
  static bool HasInk(const platform::Surface& surface, int left, int top, int right, int bottom,
                     platform::Colour ground) {
    for (int y = top; y < bottom; ++y)
      for (int x = left; x < right; ++x)
        if (surface.Pixel(x, y) != ground) return true;
    return false;
  }
};

}  // namespace course::testing
