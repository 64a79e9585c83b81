// The student can find the value of a product with parentheses, such as 3(4 + 5).
//
// A smallest complete lesson, to be read before another is written.  All keep the order of what
// follows, the order in which a student meets it: what the lesson is for in two or three lines, the
// teaching screens, the class, the generator, the problem page, the explanation, the title.
#include "lessons/lesson.h"

namespace course {
namespace {

// --- Teaching screens --------------------------------------------------------

// A page adds a sentence, an example or a step; the question at its end wants to be answered before
// CONTINUE is pressed.
void MeaningOfParentheses() {
  NewScreen();
  Say(R"(\cParentheses\z show which part of an expression is worked out first.)");
  PageEnd();
  Say("A number in front of them multiplies what they hold:");
  Show("2(3 + 4) = 2 " + tutor::Times + " 7 = 14");
  PageEnd();
  Say(R"(Without parentheses it multiplies \yonly the first number\z:)");
  Show("2 " + tutor::Times + " 3 + 4 = 6 + 4 = 10");
  PageEnd();
  Say(Text("What is the value of {}?", "5(1 + 2)"));
  PageEnd();
  Say("The sum is 3, and 5 times 3 is 15.");
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
  Choices choices(problem, choice_kind::FourShuffled, NumStr);
  choices.Right(factor_ * Sum());
  choices.Wrong("multiplies the first number only", factor_ * first_ + second_);
  choices.Wrong("adds the number in front", factor_ + Sum());
  choices.Wrong("multiplies all three numbers", factor_ * first_ * second_);
}

// --- Problem page ------------------------------------------------------------

// The banner stands on rows 2 and 3 already.
void BlankLesson::ShowProblem() {
  SayAt(5, problem.question[0]);
  ShowAnswersInTwoColumns(problem);
}

// --- Worked explanation ------------------------------------------------------

// Explains this problem with its own numbers, a step a page, and ends at the right choice.
void BlankLesson::ExplainProblem() {
  ProblemBanner();
  SayAt(5, Text("We want the value of {}.", Expression()));
  PageEnd();
  Say(R"(The parentheses tell us to \yadd first\z:)");
  Show(Text("{} + {} = {}", first_, second_, Sum()));
  PageEnd();
  Say(R"(The number in front \ymultiplies\z the sum:)");
  Show(Text("{} {} {} = {}", factor_, tutor::Times, Sum(), RightText(problem)));
  PageEnd();
  Conclude(problem);
}

const LessonRegistration<BlankLesson> kRegistration("Blank Lesson");

}  // namespace
}  // namespace course
