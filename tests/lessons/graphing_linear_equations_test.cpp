// What is special to "Graphing Linear Equations": its two forms take turns in practice, and the
// seed alone still tells the form.
#include <gtest/gtest.h>

#include "lesson_check/pages/page_reader.h"
#include "lessons/registry.h"
#include "session/session.h"

namespace course::testing {
namespace {

class GraphingLinearEquationsTest : public ::testing::Test {
 protected:
  void TearDown() override { session = Session{}; }

  bool IsSolvedForY(int seed) { return lesson_->Draw(seed).problem.question[1].starts_with("y ="); }
  // A run of an activity with a new seed, up to its first wait.
  bool FormOfNewProblem(int wanted) {
    session.gActivity = wanted;
    session.gLeaveLesson = 0;
    session.gRepeatExample = 0;
    lesson_->Run();
    return IsSolvedForY(session.gProblemSeed);
  }

  std::unique_ptr<LessonScript> lesson_ = MakeLesson("Graphing Linear Equations");
  lesson_check::PageReader reader_;
};

TEST_F(GraphingLinearEquationsTest, FormsTakeTurnsInPractice) {
  reader_.Read(*lesson_, mode::SameProblem, 1, [] {});
  session = Session{};
  bool last = FormOfNewProblem(activity::Practice);
  for (int i = 0; i < 12; ++i) {
    const bool form = FormOfNewProblem(activity::Practice);
    EXPECT_NE(form, last);
    last = form;
  }
}

// An explanation draws from a seed that has been seen, whatever the last form was.
TEST_F(GraphingLinearEquationsTest, ProblemThatIsSeenAgainKeepsItsSeed) {
  reader_.Read(*lesson_, mode::SameProblem, 1, [] {});
  session = Session{};
  FormOfNewProblem(activity::Practice);
  for (int seed = 1; seed <= 6; ++seed) {
    session.gProblemSeed = seed;
    session.gRepeatProblem = 1;
    FormOfNewProblem(activity::Practice);
    EXPECT_EQ(session.gProblemSeed, seed);
  }
}

}  // namespace
}  // namespace course::testing
