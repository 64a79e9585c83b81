// What the results forms of both tests are made of: a heading band, and a sheet of rows, one a
// problem.
#pragma once

#include <string>

#include "platform/form.h"
#include "platform/picture_box.h"
#include "session/session.h"

namespace course {

// The band across the top of a form: a title, and below it what was tested.
class HeadingBand {
 public:
  static constexpr int kHeight = 100;  // pixels, its lower edge included

  // Names are those of the two labels.  The width is that of the form, in pixels; so many of them
  // are kept free at the right margin.
  HeadingBand(platform::Form& form, int width, const std::string& titleName,
              const std::string& subjectName, int keptFree = 0);
  void Show(const std::string& title, const std::string& subject);

 private:
  platform::Label lblBand_;
  platform::Label lblBandEdge_;
  platform::Label lblTitle_;
  platform::Label lblSubject_;
};

// Left edges of the columns, in pixels of the sheet.
struct ResultColumns {
  int number;
  int correct;
  int yours;
  int verdict;
  int review;
};

// Widths of the columns, in pixels.
inline constexpr int kNumberWidth = 28;
inline constexpr int kLetterWidth = 60;
inline constexpr int kReviewWidth = 88;

// One problem of a test: its number, the two letters, the verdict, and the button that shows the
// problem again.
class ResultRow {
 public:
  // A row from 1, with its middle at a height in pixels of the sheet.
  ResultRow(platform::PictureBox& sheet, int index, int middle, const ResultColumns& columns);

  void Fill(int number, const Session::AnswerLetters& letters, const std::string& verdict);
  void SetVisible(bool visible);

  platform::Label lblTestProbNo;
  platform::Label lblCorrectAns;
  platform::Label lblYourAns;
  platform::Label lblIsCorrect;
  platform::Button cmdReview;
};

// Clears a sheet and rules it under each row.  Top and height of a row in pixels.
void RuleSheet(platform::PictureBox& sheet, int top, int rowHeight, int rows);

// The name of a control in an array, such as "cmdReview(3)".
std::string ArrayName(const std::string& name, int index);

}  // namespace course
