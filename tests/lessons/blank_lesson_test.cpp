// The template that authors copy must itself be a lesson without a fault.
#include "lessons/blank_lesson.h"

#include <regex>
#include <set>

#include "display/lesson_window.h"
#include "engine/navigation.h"
#include "support/course_fixture.h"

namespace course::testing {
namespace {

TEST(BlankLesson, EveryProblemHasOneRightAndThreeWrongAnswers) {
  const auto lesson = MakeBlankLesson();
  const std::regex asked(R"(What is the value of (\d)\((\d) \+ (\d)\)\?)");
  for (int seed = 0; seed <= 32766; ++seed) {
    const auto drawn = lesson->Draw(seed);
    std::smatch numbers;
    ASSERT_TRUE(std::regex_match(drawn.problem.question.at(0), numbers, asked)) << seed;
    const int value = std::stoi(numbers[1]) * (std::stoi(numbers[2]) + std::stoi(numbers[3]));
    std::set<std::string> texts;
    for (int box = 1; box <= 4; ++box) {
      const int choice = drawn.order[static_cast<std::size_t>(box)];
      const std::string text = ChoiceText(drawn.problem, choice);
      texts.insert(text);
      EXPECT_EQ(box == drawn.CorrectBox(), text == std::to_string(value)) << seed;
    }
    ASSERT_EQ(texts.size(), 4u) << seed;
  }
}

class BlankLessonRun : public CourseTest {
 protected:
  void TearDown() override {
    frmPR.reset();
    CourseTest::TearDown();
  }
};

TEST_F(BlankLessonRun, ItsExplanationEndsAtTheRightAnswer) {
  LoadLessonWindow();
  session.gActivity = activity::Practice;
  session.gExplainProblem = 1;
  session.gProblemSeed = 4711;
  const auto lesson = MakeBlankLesson();
  const Problem problem = lesson->Draw(session.gProblemSeed).problem;
  for (int page = 1; page <= 3; ++page) user.At("PageEnd").Click("pnlLesson");
  user.At("PageEnd").Do("read the last line", [&] {
    const std::string last = TranscriptLines(frmPR->lessonText).back();
    EXPECT_EQ(last.substr(last.find("= ") + 2), problem.choices[1].text);
    session.gProceed = 1;
  });
  user.At("frmCorrect").Click("cmdOption(4)");
  lesson->Run();
}

}  // namespace
}  // namespace course::testing
