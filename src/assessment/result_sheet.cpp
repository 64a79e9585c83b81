#include "assessment/result_sheet.h"

#include "platform/look.h"

namespace course {
namespace {

using platform::look::kAmber;
using platform::look::kNavy;
using platform::look::kPaper;
using platform::look::kSlate;
using platform::look::MovePixels;
using platform::look::SetType;

constexpr int kMargin = 32;  // pixels
constexpr int kBandEdge = 4;

constexpr platform::Colour kWrong = platform::Rgb(176, 24, 24);
constexpr platform::Colour kRule = platform::Rgb(214, 210, 200);

constexpr int kTextHeight = 24;
constexpr int kReviewHeight = 30;
constexpr double kTextPoints = 11;

}  // namespace

std::string ArrayName(const std::string& name, int index) {
  return name + "(" + std::to_string(index) + ")";
}

HeadingBand::HeadingBand(platform::Form& form, int width, const std::string& titleName,
                         const std::string& subjectName, int keptFree)
    : lblBand_(form, "lblBand"),
      lblBandEdge_(form, "lblBandEdge"),
      lblTitle_(form, titleName),
      lblSubject_(form, subjectName) {
  constexpr int kBand = kHeight - kBandEdge;
  MovePixels(lblBand_, 0, 0, width, kBand);
  lblBand_.SetColours(kPaper, kNavy);
  MovePixels(lblBandEdge_, 0, kBand, width, kBandEdge);
  lblBandEdge_.SetColours(kAmber, kAmber);
  const int textWidth = width - 2 * kMargin - keptFree;
  MovePixels(lblTitle_, kMargin, 16, textWidth, 36);
  SetType(lblTitle_, 18, true, kPaper, kNavy);
  MovePixels(lblSubject_, kMargin, 56, textWidth, 28);
  SetType(lblSubject_, 13, true, kAmber, kNavy);
}

void HeadingBand::Show(const std::string& title, const std::string& subject) {
  lblTitle_.SetCaption(title);
  lblSubject_.SetCaption(subject);
}

ResultRow::ResultRow(platform::PictureBox& sheet, int index, int middle,
                     const ResultColumns& columns)
    : lblTestProbNo(sheet, ArrayName("lblTestProbNo", index)),
      lblCorrectAns(sheet, ArrayName("lblCorrectAns", index)),
      lblYourAns(sheet, ArrayName("lblYourAns", index)),
      lblIsCorrect(sheet, ArrayName("lblIsCorrect", index)),
      cmdReview(sheet, ArrayName("cmdReview", index), "Review") {
  const int top = middle - kTextHeight / 2;
  MovePixels(lblTestProbNo, columns.number, top, kNumberWidth, kTextHeight);
  MovePixels(lblCorrectAns, columns.correct, top, kLetterWidth, kTextHeight);
  MovePixels(lblYourAns, columns.yours, top, kLetterWidth, kTextHeight);
  MovePixels(lblIsCorrect, columns.verdict, top, kLetterWidth, kTextHeight);
  for (platform::Label* label : {&lblTestProbNo, &lblCorrectAns, &lblYourAns, &lblIsCorrect}) {
    SetType(*label, kTextPoints, label != &lblTestProbNo, kNavy, kPaper);
    label->SetAlignment(platform::Label::Align::Centre);
    label->CentreVertically();
  }
  lblTestProbNo.SetAlignment(platform::Label::Align::Right);
  MovePixels(cmdReview, columns.review, middle - kReviewHeight / 2, kReviewWidth, kReviewHeight);
  cmdReview.SetFont("MS Sans Serif", 10, true);
  cmdReview.SetAccessibleName("Review problem " + std::to_string(index));
}

void ResultRow::Fill(int number, const Session::AnswerLetters& letters,
                     const std::string& verdict) {
  const std::string problem = " to problem " + std::to_string(number) + ": ";
  lblTestProbNo.SetCaption(std::to_string(number));
  lblCorrectAns.SetCaption(letters.correct);
  lblCorrectAns.SetAccessibleName("Correct answer" + problem + letters.correct);
  lblYourAns.SetCaption(letters.student);
  lblYourAns.SetAccessibleName("Your answer" + problem + letters.student);
  lblIsCorrect.SetCaption(verdict);
  const bool right = letters.correct == letters.student;
  lblIsCorrect.SetAccessibleName(right ? "Correct" : "Incorrect");
  lblIsCorrect.SetColours(right ? platform::colour::Blue : kWrong, kPaper);
}

void ResultRow::SetVisible(bool visible) {
  for (platform::Label* label : {&lblTestProbNo, &lblCorrectAns, &lblYourAns, &lblIsCorrect})
    label->SetVisible(visible);
  cmdReview.SetVisible(visible);
}

void RuleSheet(platform::PictureBox& sheet, int top, int rowHeight, int rows) {
  sheet.BackColor = kPaper;
  sheet.Cls();
  const int right = sheet.PixelWidth() - 1;
  for (int row = 1; row < rows; ++row) {
    const int y = top + row * rowHeight;
    sheet.Line(0, y, right, y, kRule);
  }
  sheet.Box(0, 0, right, sheet.PixelHeight() - 1, kSlate);
  sheet.Refresh();
}

}  // namespace course
