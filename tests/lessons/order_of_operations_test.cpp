// "Order of Operations": the steps of an evaluation, the display that shows them, and the problems.
#include <map>
#include <set>

#include "display/grid.h"
#include "display/lesson_window.h"
#include "engine/navigation.h"
#include "lessons/families/arithmetic/arithmetic_expression.h"
#include "lessons/families/arithmetic/evaluation.h"
#include "lessons/registry.h"
#include "mathkit/tutor_codes.h"
#include "support/display_fixture.h"

namespace course::testing {
namespace {

using namespace arithmetic;

TEST(ArithmeticExpressionTest, EveryOrderOfWorkHasItsOwnValue) {
  const auto value = [](const char* text, const WorkingOrder& order = kRightOrder) {
    return ValueOf(ExpressionOf(text), order);
  };
  const WorkingOrder leftToRight{.times = 1, .divided = 1};
  const WorkingOrder rightToLeft{.fromTheRight = true, .times = 1, .divided = 1};
  EXPECT_EQ(value("3+4*2"), 11);
  EXPECT_EQ(value("3+4*2", leftToRight), 14);
  EXPECT_EQ(value("12-5+4"), 11);
  EXPECT_EQ(value("12-5+4", rightToLeft), 3);
  EXPECT_EQ(value("12-5+4", {.plus = 2, .times = 3, .divided = 3}), 3);
  EXPECT_EQ(value("24/4*2"), 12);
  EXPECT_EQ(value("24/4*2", {.times = 3}), 3);
  EXPECT_EQ(value("20-6/4"), std::nullopt);  // a remainder
  EXPECT_EQ(value("8/(3-3)"), std::nullopt);

  const char* nested = "2*[9-(1+4)]";
  EXPECT_EQ(value(nested), 8);
  EXPECT_EQ(value(nested, {.heedsParentheses = false}), 24);
  EXPECT_EQ(value(nested, {.heedsBrackets = false}), 13);
  EXPECT_EQ(value(nested, {.heedsParentheses = false, .heedsBrackets = false}), 21);
  EXPECT_EQ(value(nested, {.stopsEarly = true}), 4);
}

class EvaluationTest : public DisplayTest {};

TEST_F(EvaluationTest, EveryLineKeepsTheColumnsAndTheReasonNamesTheRule) {
  Evaluation evaluation(ExpressionOf("30-[4+6*(5-2)]/2"), 3, 1);
  std::vector<std::string> reasons;
  while (!evaluation.Done()) {
    evaluation.PickOut();
    reasons.push_back(evaluation.Reason());
    evaluation.ShowResult();
  }
  const std::string times = tutor::Times;
  const std::string divided = tutor::Divided;
  EXPECT_EQ(Lines(),
            (std::vector<std::string>{"30 - [4 + 6 " + times + " (5 - 2)] " + divided + " 2",
                                      "30 - [4 + 6 " + times + "    3   ] " + divided + " 2",
                                      "30 - [4 +    18      ] " + divided + " 2",
                                      "30 -        22         " + divided + " 2",
                                      "30 -              11", "         19"}));
  EXPECT_EQ(reasons,
            (std::vector<std::string>{
                "We begin inside the parentheses.  ",
                "Now we work inside the brackets.  Multiplication comes before addition.  ",
                "We stay inside the brackets.  ",
                "No brackets are left.  Division comes before subtraction.  ", ""}));
}

TEST_F(EvaluationTest, ThePartPickedOutIsYellowWithABracketBelow) {
  Evaluation evaluation(ExpressionOf("3+4*2"), 3, 1);
  evaluation.PickOut();
  for (const Fragment& fragment : Text().Transcript()) {
    if (fragment.colour == platform::colour::Yellow) {
      EXPECT_GE(fragment.col, 5);
    }
  }
  const auto inkBelow = [](double column) {
    const int left = static_cast<int>(Text().CellX(column));
    const int top = static_cast<int>(Text().CellY(4));
    return HasInk(Panel(), left, top, left + gCellWidth, top + gCellHeight / 2,
                  platform::colour::Blue);
  };
  EXPECT_TRUE(inkBelow(5) && inkBelow(7) && inkBelow(9));
  EXPECT_FALSE(inkBelow(1) || inkBelow(3) || inkBelow(10));
}

// The question's expression as the parser takes it.
ArithmeticExpression Asked(const Problem& problem) {
  std::string plain;
  for (const char c : problem.question.back()) {
    if (c == tutor::Times[0])
      plain += '*';
    else if (c == tutor::Divided[0])
      plain += '/';
    else if (c != ' ')
      plain += c;
  }
  return ExpressionOf(plain);
}

TEST(OrderOfOperationsTest, ProblemsAreWorkInTheHeadWhereTheOrderMatters) {
  const auto lesson = MakeLesson("Order of Operations");
  std::map<std::string, int> shapes;
  constexpr int kDrawn = 4000;
  for (int seed = 0; seed < kDrawn; ++seed) {
    const Problem problem = lesson->Draw(seed).problem;
    SCOPED_TRACE(problem.question.back());
    ArithmeticExpression expression = Asked(problem);
    std::string shape;
    for (const ExpressionToken& token : expression) shape += token.kind;
    ++shapes[shape];
    while (expression.size() > 1) {
      const ExpressionStep step = NextStep(expression);
      ASSERT_TRUE(step.value && *step.value >= 1 && *step.value <= 150);
      TakeStep(expression, step);
    }
    ASSERT_EQ(problem.choices[1].text, std::to_string(expression.front().value));
    int named = 0;
    int ofOrder = 0;
    for (int slot = 2; slot <= 5; ++slot) {
      const std::string& mistake = problem.choices[static_cast<std::size_t>(slot)].mistake;
      named += mistake != "filler";
      ofOrder += mistake != "filler" && mistake != "works out only a part";
    }
    ASSERT_GE(named, 2);
    ASSERT_GE(ofOrder, 1);
    ASSERT_LE(problem.question.back().size(), 22u);  // left of the rules
  }
  EXPECT_EQ(shapes.size(), 20u);
  for (const auto& [shape, count] : shapes) EXPECT_GT(count, kDrawn / 40) << shape;
}

class RulesPictureTest : public CourseTest {
 protected:
  void SetUp() override {
    CourseTest::SetUp();
    LoadLessonWindow();
    session.gActivity = activity::Practice;
    session.gRulesShown = kTrue;
  }
  void TearDown() override {
    UnloadLessonWindow();
    CourseTest::TearDown();
  }
  // At the first wait of a run.
  bool PictureShownAt(const std::string& wait) {
    bool shown = false;
    user.At(wait).Do("look", [&shown] {
      shown = frmPR->picGalleryImage[1].Visible();
      session.gLeaveLesson = 1;
    });
    MakeLesson("Order of Operations")->Run();
    return shown;
  }
};

TEST_F(RulesPictureTest, ItStandsBesideAProblemWhenTheStudentWantsIt) {
  EXPECT_TRUE(PictureShownAt("AnswerWait"));
}

TEST_F(RulesPictureTest, ItIsHiddenUnlessTheStudentWantsIt) {
  session.gRulesShown = kFalse;
  EXPECT_FALSE(PictureShownAt("AnswerWait"));
}

TEST_F(RulesPictureTest, AnExplanationGoesWithoutIt) {
  session.gExplainProblem = 1;
  EXPECT_FALSE(PictureShownAt("PageEnd"));
}

}  // namespace
}  // namespace course::testing
