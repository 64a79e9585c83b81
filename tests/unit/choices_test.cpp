// The filler of choices: the order of the slots, what is passed over, and what may hide.
#include "engine/choices.h"

#include "mathkit/expressions.h"
#include "mathkit/fraction.h"
#include "support/course_fixture.h"
#include "support/expect_stop.h"

namespace course::testing {
namespace {

using Slots = std::vector<std::string>;

class ChoicesTest : public CourseTest {
 protected:
  // "text: mistake" of all slots that are filled.
  Slots Filled() const {
    Slots slots;
    for (const Choice& choice : problem.choices)
      if (!choice.text.empty())
        slots.push_back(choice.text + (choice.mistake.empty() ? "" : ": " + choice.mistake));
    return slots;
  }
  Problem problem;
};

TEST_F(ChoicesTest, MistakesTakeTheSlotsInTheirOrderAndFillersTheRest) {
  Choices choices(problem, choice_kind::FiveShuffled, MixedText);
  choices.Right(Reduced(1, 2));
  choices.Wrong("adds", Reduced(3, 4));
  choices.Wrong("gives the right value", Reduced(2, 4));
  choices.Wrong("gives a known value", Reduced(6, 8));
  choices.Wrong("turns it", Reduced(3, 2));
  int next = 0;
  choices.Fill([&] { return Reduced(++next, 4); });  // 2/4 and 3/4 are there already
  EXPECT_EQ(Filled(), (Slots{"1/2", "3/4: adds",
                             "1\xFF"
                             "1/2: turns it",
                             "1/4: filler", "1: filler"}));
  choices.Wrong("comes too late", Reduced(7, 1));
  EXPECT_EQ(problem.choices[5].text, "1");
  EXPECT_EQ(problem.kind, choice_kind::FiveShuffled);
  EXPECT_EQ(problem.correct, 1);
}

TEST_F(ChoicesTest, EqualTextsAreEqualChoices) {
  Choices<int> choices(problem, choice_kind::FourShuffled, [](int n) { return NumStr(n % 10); });
  choices.Right(3);
  choices.Wrong("adds ten", 13);
  choices.Wrong("adds one", 4);
  EXPECT_EQ(Filled(), (Slots{"3", "4: adds one"}));
  EXPECT_FALSE(choices.Full());
  ExpectStop("Choices: no filler differs from the choices of 3",
             [&] { choices.Fill([] { return 23; }); });
  ExpectStop("Choices: the right one comes first, 5", [&] { choices.Right(5); });
  ExpectStop("Choices: kind 1 can hide no right choice", [&] { choices.RightBehindNone(5); });
}

TEST_F(ChoicesTest, TheRightOneHidesWhereItsPlaceIsTaken) {
  const auto fill = [this](int slots) {
    problem = {};
    Choices choices(problem, choice_kind::FourShuffledAndNone, NumStr, slots);
    choices.Right(1);
    choices.Fill([n = 1]() mutable { return ++n; });
  };
  fill(0);
  EXPECT_EQ(Filled(), (Slots{"1", "2: filler", "3: filler", "4: filler"}));
  ExpectStop("HideRight: slot 1", [this] { HideRight(problem); });
  fill(5);
  HideRight(problem);
  EXPECT_EQ(Filled(), (Slots{"5: filler", "2: filler", "3: filler", "4: filler", "1"}));
  EXPECT_TRUE(RightIsHidden(problem));
  ExpectStop("HideRight: slot 5", [this] { HideRight(problem); });

  problem = {};
  Choices choices(problem, choice_kind::FourShuffledAndNone, NumStr, 5);
  choices.RightBehindNone(7);
  choices.Wrong("is right", 7);
  choices.Fill([n = 5]() mutable { return ++n; });
  EXPECT_EQ(Filled(), (Slots{"6: filler", "8: filler", "9: filler", "10: filler", "7"}));
}

TEST_F(ChoicesTest, HidingDrawsOnceAndHidesItsShare) {
  RandomStream random(1);
  int hidden = 0;
  for (int i = 0; i < 1000; ++i) {
    problem = {};
    problem.kind = choice_kind::FourInOrderAndNone;
    problem.Right(1, "a");
    problem.Wrong(5, "b", "b");
    HideRightAtTimes(problem, random);
    hidden += problem.correct == 5 ? 1 : 0;
  }
  EXPECT_EQ(random.Draws(), 1000u);
  EXPECT_NEAR(hidden, 200, 50);
}

TEST_F(ChoicesTest, TheConclusionEndsWithTheRightBox) {
  problem.kind = choice_kind::FourShuffledAndNone;
  problem.Right(1, "x < 5");
  problem.Wrong(5, "adds", "x < 7");
  EXPECT_EQ(RightText(problem), "x < 5");
  EXPECT_EQ(ConclusionText(problem),
            "The answer is \\yx\xFF<\xFF"
            "5\\z.");
  HideRight(problem);
  EXPECT_EQ(RightText(problem), "x < 5");
  session.gMode = mode::Example;  // it has no boxes to speak of
  EXPECT_EQ(ConclusionText(problem),
            "The answer is \\yx\xFF<\xFF"
            "5\\z.");
  session.gMode = mode::Explanation;
  EXPECT_EQ(ConclusionText(problem, 'b'),
            "The answer is \\bx\xFF<\xFF"
            "5\\z.  It is not among the choices, so the right one is "
            "\\bNone of the above\\z.");
  problem = {};
  problem.kind = choice_kind::FiveShuffled;
  problem.Right(5, "There are no numbers of this kind.");  // longer than a line: it may break
  EXPECT_EQ(ConclusionText(problem), R"(The answer is \yThere are no numbers of this kind.\z)");
}

}  // namespace
}  // namespace course::testing
