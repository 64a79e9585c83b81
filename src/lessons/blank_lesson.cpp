// The student can find the value of a product with parentheses, such as 3(4 + 5).
//
// A new lesson begins as a copy of this file.  It keeps the order of what follows, the order in
// which a student meets it, and replaces the words: what the lesson can say in two or three lines,
// its class, teaching screens, generator, problem page, explanation and title.
#include "lessons/lesson.h"

namespace course {
namespace {

// --- Teaching screens --------------------------------------------------------

// A page adds a sentence, an example or a step; the question at its end wants to be answered before
// CONTINUE is pressed.
void MeaningOfParentheses() {
  NewScreen();
  Locate(3, 1);
  WordWrap(R"(\cParentheses\z show which part of an expression is worked out first.)");
  PageEnd();
  isPrint();
  WordWrap("A number in front of them multiplies what they hold:");
  isPrint("  2(3 + 4) = 2" + tutor::Dot + "7 = 14");
  PageEnd();
  isPrint();
  WordWrap(R"(Without parentheses it multiplies \yonly the first number\z:)");
  isPrint("  2" + tutor::Dot + "3 + 4 = 6 + 4 = 10");
  PageEnd();
  isPrint();
  WordWrap("What is the value of 5(1 + 2)?");
  PageEnd();
  isPrint();
  WordWrap("The sum is 3, and 5 times 3 is 15.");
  PageEnd();
}

// --- The lesson ------------------------------------------------------------

class BlankLesson final : public LessonScript {
 public:
  using LessonScript::LessonScript;

 private:
  // One entry a screen: the numbered buttons follow from it.
  std::vector<Screen> Screens() override { return {{MeaningOfParentheses}}; }
  void DrawProblem(RandomStream& random) override;
  void ShowProblem() override;
  void ExplainProblem() override;

  std::string Expression() const;
  int Sum() const { return first_ + second_; }

  // The numbers of one problem.  A run draws them anew, so nothing is kept here for the next run.
  int factor_ = 0;  // 2 to 9, in front of the parentheses
  int first_ = 0;   // 2 to 9, inside them
  int second_ = 0;
};

// --- Generator ---------------------------------------------------------------

std::string BlankLesson::Expression() const {
  return NumStr(factor_) + "(" + NumStr(first_) + " + " + NumStr(second_) + ")";
}

// Draws from this stream alone and always in this order: the seed is all that a problem, its
// explanation and its review have in common.
void BlankLesson::DrawProblem(RandomStream& random) {
  do {
    factor_ = random.Rand(2, 9);
    first_ = random.Rand(2, 9);
    second_ = random.Rand(2, 9);
  } while (first_ == factor_ || first_ == second_);  // with 2, two of the mistakes can agree

  problem.question = {"What is the value of " + Expression() + "?"};
  problem.kind = choice_kind::FourShuffled;
  problem.Right(1, NumStr(factor_ * Sum()));
  problem.Wrong(2, "multiplies the first number only", NumStr(factor_ * first_ + second_));
  problem.Wrong(3, "adds the number in front", NumStr(factor_ + Sum()));
  problem.Wrong(4, "multiplies all three numbers", NumStr(factor_ * first_ * second_));
}

// --- Problem page ------------------------------------------------------------

// The banner stands on rows 2 and 3 already.
void BlankLesson::ShowProblem() {
  Locate(6, 1);
  for (const std::string& line : problem.question) isPrint(line);
  picAnswerSetParameters(2, 10, 1, 21, 0, 16, 50, 27);
}

// --- Worked explanation ------------------------------------------------------

// Explains this problem with its own numbers, a step a page, and ends at the right choice.
void BlankLesson::ExplainProblem() {
  ProblemBanner();
  Locate(5, 1);
  WordWrap("We want the value of " + Expression() + ".");
  PageEnd();
  isPrint();
  WordWrap(R"(The parentheses tell us to \yadd first\z:)");
  isPrint("  " + NumStr(first_) + " + " + NumStr(second_) + " = " + NumStr(Sum()));
  PageEnd();
  isPrint();
  WordWrap(R"(The number in front \ymultiplies\z the sum:)");
  isPrint("  " + NumStr(factor_) + tutor::Dot + NumStr(Sum()) + " = " + problem.choices[1].text);
  PageEnd();
  isPrint();
  isPrint(Expression() + " = " + problem.choices[1].text);
  PageEnd();
}

const LessonRegistration<BlankLesson> kRegistration("Blank Lesson");

}  // namespace
}  // namespace course
