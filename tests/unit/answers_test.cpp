#include "engine/answers.h"

#include <set>

#include "display/paragraph.h"
#include "session/session.h"
#include "support/display_fixture.h"
#include "support/expect_stop.h"

namespace course::testing {
namespace {

class AnswersTest : public DisplayTest {
 protected:
  static Problem FiveChoices(int kind) {
    Problem problem;
    problem.kind = kind;
    for (int i = 1; i <= 5; ++i) problem.Wrong(i, "a mistake", "x^" + std::to_string(i) + "^");
    problem.correct = 1;
    return problem;
  }
  // Left and top of a box in pixels of the form.
  static std::pair<int, int> PlaceOf(int box) {
    return {frmPR->picAnswer[box].Left() / 15, frmPR->picAnswer[box].Top() / 15};
  }
  static std::string TextOf(int box) {
    return LTrim(TranscriptLines(*frmPR->answerText[static_cast<std::size_t>(box)]).at(0));
  }
};

TEST_F(AnswersTest, TheLastBoxMovesOnlyWhenAllFiveAreShuffled) {
  RandomStream random(1);
  std::set<std::vector<int>> four;
  std::set<std::vector<int>> five;
  for (int i = 0; i < 5000; ++i) {
    four.insert(ChoiceOrder(choice_kind::FourShuffledAndNone, random));
    five.insert(ChoiceOrder(choice_kind::FiveShuffled, random));
  }
  EXPECT_EQ(four.size(), 24u);
  EXPECT_EQ(five.size(), 120u);
  for (const std::vector<int>& order : four) EXPECT_EQ(order[5], 5);
}

TEST_F(AnswersTest, ChoicesInOrderDrawNothing) {
  RandomStream random(7);
  RandomStream untouched(7);
  for (const int kind : {-1, -2, -3}) {
    EXPECT_EQ(ChoiceOrder(kind, random), (std::vector<int>{0, 1, 2, 3, 4, 5}));
  }
  EXPECT_EQ(random.Rnd(), untouched.Rnd());
}

TEST_F(AnswersTest, LayoutsPlaceTheBoxes) {
  using Places = std::vector<std::pair<int, int>>;
  const struct {
    int layout;
    Places places;
  } cases[] = {
      {1, {{116, 309}, {116, 386}, {116, 463}, {116, 540}, {116, 617}}},
      {2, {{116, 309}, {276, 309}, {116, 386}, {276, 386}, {116, 463}}},
      {3, {{116, 309}, {276, 309}, {116, 386}, {276, 386}, {372, 463}}},
      {4, {{116, 309}, {276, 309}, {436, 309}, {116, 386}, {276, 386}}},
  };
  session.gChoiceCount = 4;
  for (const auto& c : cases) {
    picAnswerSetParameters(c.layout, 14, 1, 11, 21, 8, 50, 27);
    AnswerLayout();
    for (int box = 1; box <= 5; ++box)
      EXPECT_EQ(PlaceOf(box), c.places[static_cast<std::size_t>(box - 1)])
          << "layout " << c.layout << ", box " << box;
    EXPECT_EQ(frmPR->picAnswer[1].Width(), 8 * 16 * 15);
    EXPECT_EQ(frmPR->picAnswer[1].Height(), 50 * 15);
    EXPECT_TRUE(frmPR->picAnswer[4].Visible());
    EXPECT_FALSE(frmPR->picAnswer[5].Visible());
  }
}

TEST_F(AnswersTest, EachBoxHasItsLetterAndItsChoice) {
  picAnswerSetParameters(2, 14, 1, 21, 0, 16, 50, 27);
  const std::vector<int> order = {0, 3, 5, 1, 2, 4};
  AnswerChoicesShow(FiveChoices(choice_kind::FiveShuffled), order);
  EXPECT_EQ(session.gChoiceCount, 5);
  for (int box = 1; box <= 5; ++box) {
    EXPECT_EQ(TextOf(box), "x^" + std::to_string(order[static_cast<std::size_t>(box)]) + "^");
    const platform::PictureBox& picture = frmPR->picAnswer[box];
    EXPECT_TRUE(HasInk(picture, 5, 8, 39, 42, platform::colour::AnswerBox));
    EXPECT_FALSE(HasInk(picture, 41, 0, 55, 50, platform::colour::AnswerBox));
    EXPECT_TRUE(HasInk(picture, 55, 12, 71, 45, platform::colour::AnswerBox));
  }
}

TEST_F(AnswersTest, TheFixedChoiceHasAFaceOfItsOwn) {
  picAnswerSetParameters(2, 14, 1, 21, 0, 16, 50, 27, 3, "tnr", 14);
  AnswerChoicesShow(FiveChoices(choice_kind::FourInOrderAndNone));
  EXPECT_EQ(TextOf(5), "None of the above");
  EXPECT_EQ(frmPR->picAnswer[1].FontName, "Times New Roman");
  EXPECT_EQ(frmPR->picAnswer[1].FontSize, 14);
  EXPECT_EQ(frmPR->picAnswer[5].FontName, "Courier New");
  EXPECT_EQ(frmPR->answerText[1]->cursorY, 15);  // 12 and the text offset
  // It fits the usual box: nothing reaches the last columns.
  EXPECT_FALSE(HasInk(frmPR->picAnswer[5], 240, 0, 256, 50, platform::colour::AnswerBox));

  answerParameters.customLastText = "All are correct.";
  AnswerChoicesShow(FiveChoices(choice_kind::FourInOrderAndNone));
  EXPECT_EQ(TextOf(5), "All are correct.");
  answerParameters.customLastText.clear();
}

TEST_F(AnswersTest, AuthorsErrorsStopTheProgram) {
  picAnswerSetParameters(5, 14, 1, 21, 0, 16, 50, 27);
  ExpectStop("AnswerLayout: layout 5, not 1 to 4",
             [] { AnswerChoicesShow(FiveChoices(choice_kind::FourShuffled)); });
  picAnswerSetParameters(2, 14, 1, 21, 0, 16, 50, 27);
  session.gChoiceCount = 0;
  ExpectStop("gChoiceCount% hasn't been set!", [] { AnswerLayout(); });
}

TEST_F(AnswersTest, ALetterIsAskedForUntilItIsOne) {
  user.Type("F").Type("").CancelInput().Type("c");
  EXPECT_EQ(LetterEntry(-5), 3);
  EXPECT_EQ(user.prompts[0], "Enter a letter from A to E");
}

}  // namespace
}  // namespace course::testing
