// Every lesson, the blank one included, through the checker.  A new lesson is covered at once.
#include <gtest/gtest.h>

#include <cstdlib>
#include <sstream>

#include "lesson_check/lesson_check.h"
#include "lesson_check/not_yet.h"
#include "lessons/registry.h"
#include "mathkit/tutor_codes.h"
#include "session/session.h"

namespace lesson_check {
namespace {

std::vector<std::string> Titles() {
  std::vector<std::string> titles;
  for (const std::string_view title : course::LessonTitles()) titles.emplace_back(title);
  return titles;
}

std::string TestName(const ::testing::TestParamInfo<std::string>& parameter) {
  std::string name;
  for (const char c : parameter.param)
    if (std::isalnum(static_cast<unsigned char>(c)) != 0 && c < 127) name += c;
  return name;
}

std::string FaultsOf(const std::string& title, const Report& report) {
  std::ostringstream text;
  for (const Finding& finding : report.findings)
    text << ProblemName(title, finding.seed) << ": " << finding.fault << "\n";
  return text.str();
}

class EveryLesson : public ::testing::TestWithParam<std::string> {
 protected:
  void TearDown() override { course::session = course::Session{}; }

  MakeScript make_ = [this] { return course::MakeLesson(GetParam()); };
};

TEST_P(EveryLesson, AcceptsEnoughOfItsDraws) {
  constexpr int kSample = 20000;
  Report report = CountDraws(make_, {0, kSample - 1});
  CheckAcceptance(report);
  EXPECT_EQ(FaultsOf(GetParam(), report), "");
}

TEST_P(EveryLesson, DrawsTeachesShowsAndExplainsWithoutFault) {
  constexpr int kStep = 1309;  // its 26 seeds walk all ways to a problem's pages
  Report report = CheckPages(make_, {3, kSeeds - 1, kStep});
  EXPECT_GE(report.pages, 25 * 3);
  report.Add(CheckTeaching(make_));
  report.Add(CheckDrawing(make_, {0, kSeeds - 1, 11}));
  CheckHabits(report, make_()->ChoicesAreLaidDown());
  Pardon(ReadNotYet(std::string(std::getenv("COURSE_SOURCE_DIR")) +
                    "/tests/lessons/not_yet_brought_over.txt"),
         course::ToUtf8(make_()->Title()), true, report);
  EXPECT_EQ(FaultsOf(GetParam(), report), "");
}

INSTANTIATE_TEST_SUITE_P(Course, EveryLesson, ::testing::ValuesIn(Titles()), TestName);

}  // namespace
}  // namespace lesson_check
