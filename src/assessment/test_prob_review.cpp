#include "assessment/test_prob_review.h"

#include <string>

#include "assessment/test_scores.h"
#include "display/lesson_window.h"
#include "mathkit/tutor_codes.h"
#include "platform/look.h"
#include "platform/picture_box.h"
#include "platform/stop.h"
#include "session/session.h"

namespace course {
namespace {

using platform::look::kAmber;
using platform::look::kNavy;
using platform::look::kPaper;
using platform::look::MovePixels;
using platform::look::SetType;

constexpr int kPixel = platform::TwipsPerPixelX;

// All in pixels.  So narrow that on a screen of 1024 pixels it hides nothing of the panel.
constexpr int kWidth = 176;
constexpr int kMargin = 12;
constexpr int kInside = kWidth - 2 * kMargin;
constexpr int kHeadingHeight = 72;
constexpr int kFirstPairTop = kHeadingHeight + 20;
constexpr int kPairHeight = 30;
constexpr int kPairStep = 38;
constexpr int kValueWidth = 32;
constexpr int kButtonHeight = 44;
constexpr int kButtonGap = 12;
constexpr int kButtonsTop = kFirstPairTop + 3 * kPairStep + 12;
constexpr int kHeight = kButtonsTop + 2 * kButtonHeight + kButtonGap + kMargin;

// What is reviewed: the number of the problem and its letters.
struct Reviewed {
  std::string heading;
  int number;
  Session::AnswerLetters letters;
};

Reviewed ReviewedProblem() {
  if (session.gLessonTest == 1)
    return {"Lesson Test Problem Review", session.gLessonTestReviewNum,
            session.gLessonTestAnswers.at(static_cast<std::size_t>(session.gLessonTestReviewNum))};
  if (session.gChapterTest == 1)
    return {"Unit Test Problem Review", session.gChapterTestReviewNum,
            UnitTestLetters(session.gChapterTestReviewNum)};
  platform::Stop("frmTestProbReview: neither gLessonTest% nor gChapterTest% is 1");
}

std::string Caption() {
  // The title of a unit that tests itself in one script.
  if (UpperCase(session.gChosenTitle) == "CHAPTER10TEST") return "Unit Test - Chapter 10";
  return session.gChosenTitle;
}

class TestProbReview {
 public:
  TestProbReview()
      : form_("frmTestProbReview", kWidth * kPixel, kHeight * kPixel),
        picHeading_(form_, "picHeading"),
        lblHeading_(picHeading_, "lblHeading"),
        lblTestProbNo1_(form_, "lblTestProbNo1", "Test Problem No.:"),
        lblTestProbNo2_(form_, "lblTestProbNo2"),
        lblCorrectAns1_(form_, "lblCorrectAns1", "Correct Answer:"),
        lblCorrectAns2_(form_, "lblCorrectAns2"),
        lblYourAns1_(form_, "lblYourAns1", "Your Answer:"),
        lblYourAns2_(form_, "lblYourAns2"),
        cmdExplanation_(form_, "cmdExplanation", "See Explanation"),
        cmdContinue_(form_, "cmdContinue", "Continue") {
    PlaceHeading();
    PlacePair(0, lblTestProbNo1_, lblTestProbNo2_);
    PlacePair(1, lblCorrectAns1_, lblCorrectAns2_);
    PlacePair(2, lblYourAns1_, lblYourAns2_);
    PlaceButtons();
    Load();
  }

  void Show() {
    cmdContinue_.SetFocus();
    form_.StandBeside(frmPR->pnlLesson);
    form_.ShowModal();
  }

 private:
  void PlaceHeading() {
    MovePixels(picHeading_, 0, 0, kWidth, kHeadingHeight);
    picHeading_.BackColor = kNavy;
    picHeading_.Cls();
    picHeading_.FilledBox(0, kHeadingHeight - 4, kWidth, kHeadingHeight, kAmber);
    picHeading_.Refresh();
    MovePixels(lblHeading_, kMargin, 4, kInside, kHeadingHeight - 12);
    SetType(lblHeading_, 12, true, kPaper, kNavy);
    lblHeading_.SetAlignment(platform::Label::Align::Centre);
    lblHeading_.CentreVertically();
  }

  static void PlacePair(int row, platform::Label& name, platform::Label& value) {
    const int top = kFirstPairTop + row * kPairStep;
    MovePixels(name, kMargin, top, kInside - kValueWidth, kPairHeight);
    SetType(name, 10);
    name.CentreVertically();
    MovePixels(value, kWidth - kMargin - kValueWidth, top, kValueWidth, kPairHeight);
    SetType(value, 15, true);
    value.SetAlignment(platform::Label::Align::Centre);
    value.CentreVertically();
  }

  void PlaceButtons() {
    MovePixels(cmdExplanation_, kMargin, kButtonsTop, kInside, kButtonHeight);
    MovePixels(cmdContinue_, kMargin, kButtonsTop + kButtonHeight + kButtonGap, kInside,
               kButtonHeight);
    for (platform::Button* button : {&cmdExplanation_, &cmdContinue_})
      button->SetFont("MS Sans Serif", 10, true);
    cmdExplanation_.OnClick = [this] { Explain(); };
    cmdContinue_.OnClick = [this] { Continue(); };
    form_.SetDefaultButton(cmdContinue_);
    form_.SetNeutralButton(cmdContinue_);
  }

  void Load() {
    const Reviewed reviewed = ReviewedProblem();
    session.gLessonTestReviewExplain = 0;
    session.gChapterTestReviewExplain = 0;
    form_.SetCaption(Caption());
    lblHeading_.SetCaption(reviewed.heading);
    lblTestProbNo2_.SetCaption(std::to_string(reviewed.number));
    lblCorrectAns2_.SetCaption(reviewed.letters.correct);
    lblYourAns2_.SetCaption(reviewed.letters.student);
  }

  // The review number of a lesson test stays: its results clear it.
  void Continue() {
    session.gChapterTestReviewNum = 0;
    session.gChapterTestReviewExplain = 0;
    session.gLessonTestReviewExplain = 0;
    form_.Close();
  }

  void Explain() {
    (session.gLessonTest == 1 ? session.gLessonTestReviewExplain
                              : session.gChapterTestReviewExplain) = 1;
    form_.Close();
  }

  platform::Form form_;
  platform::PictureBox picHeading_;
  platform::Label lblHeading_;
  platform::Label lblTestProbNo1_;
  platform::Label lblTestProbNo2_;
  platform::Label lblCorrectAns1_;
  platform::Label lblCorrectAns2_;
  platform::Label lblYourAns1_;
  platform::Label lblYourAns2_;
  platform::Button cmdExplanation_;
  platform::Button cmdContinue_;
};

}  // namespace

void ShowTestProbReviewForm() {
  TestProbReview().Show();
}

}  // namespace course
