// A figure that differs from what is judged must be found, on the problem page and in the
// explanation; and what a listener hears of figures.
#include "lesson_check/pages/figure_check.h"

#include <gtest/gtest.h>

#include "display/print.h"
#include "engine/answers.h"
#include "engine/figure_words.h"
#include "engine/header.h"
#include "engine/page.h"
#include "lesson_check/pages/page_check.h"
#include "lessons/families/graphs/interval_figure.h"
#include "lessons/families/graphs/plane_figure.h"
#include "lessons/families/graphs/scale_line.h"
#include "platform/geometry.h"
#include "session/session.h"

namespace lesson_check {
namespace {

using namespace course;
using Figure = std::vector<FigureItem>;

// A lesson whose pages show the figures that they are given.
class FigureLesson final : public LessonScript {
 public:
  struct Pages {
    Figure judged;  // problem.figure
    Figure onProblem;
    std::vector<Figure> explained;  // page by page, each on a new figure
  };
  FigureLesson(std::string title, std::vector<std::string> question, Pages pages)
      : LessonScript(std::move(title)), question_(std::move(question)), pages_(std::move(pages)) {}

 private:
  std::vector<Screen> Screens() override { return {}; }
  void DrawProblem(RandomStream&) override {
    problem.question = question_;
    problem.figure = pages_.judged;
    for (int slot = 2; slot <= 4; ++slot) problem.Wrong(slot, "filler", std::string(slot, 'x'));
    problem.Right(1, "right");
  }
  void Show(const Figure& figure) const {
    if (Title() == "Solving Systems by Graphing") {
      graphs::ShowPlane(1, 4, 23, 16);
      graphs::DrawOnPlane(1, figure);
    } else {
      graphs::DrawNumberLine(4, 3);
      graphs::DrawOnLine(figure);
    }
  }
  void ShowProblem() override {
    Show(pages_.onProblem);
    picAnswerSetParameters(2, 18, 1, 21, 0, 16, 50, 27);
  }
  void ExplainProblem() override {
    ProblemBanner();
    for (const Figure& figure : pages_.explained) {
      Show(figure);
      isPrint("right");
      PageEnd();
    }
  }

  std::vector<std::string> question_;
  Pages pages_;
};

using Faults = std::vector<std::string>;

// What is complained of figures on the pages of a lesson.
Faults FigureFaults(FigureLesson&& lesson) {
  Faults faults;
  PageChecker(lesson).CheckProblem(7, [&](const std::string& fault) {
    if (fault.find(" show") != std::string::npos && fault.find('"') == std::string::npos)
      faults.push_back(fault);
  });
  session = Session{};
  return faults;
}

Faults OnLine(const Figure& judged, const Figure& onProblem, const std::vector<Figure>& explained) {
  return FigureFaults({"Simple Inequalities", {"Which?"}, {judged, onProblem, explained}});
}

Faults OfSystem(const std::vector<Figure>& explained) {
  return FigureFaults(
      {"Solving Systems by Graphing", {"x + y = 3", "x - y = 1"}, {{}, {}, explained}});
}

TEST(FigureCheck, AnotherRayOrSegmentThanTheJudgedOneIsFound) {
  const Figure ray = {graphs::GraphItem(-2.9, graphs::kFarRight)};
  const Figure closed = {graphs::GraphItem(-3, graphs::kFarRight)};
  const Figure segment = {graphs::GraphItem(-3, 4)};
  const Figure other = {graphs::GraphItem(-3, 5)};
  EXPECT_EQ(OnLine(ray, ray, {ray, ray}), Faults{});
  EXPECT_EQ(OnLine(segment, segment, {segment}), Faults{});
  EXPECT_EQ(OnLine(ray, closed, {ray}),
            Faults{"problem: the figure shows a ray from -3, the point taken in, to the right for "
                   "a ray from -3, the point left out, to the right"});
  EXPECT_EQ(OnLine(ray, {}, {ray}),
            Faults{"problem: the figure does not show a ray from -3, the point left out, to the "
                   "right"});
  EXPECT_EQ(OnLine(segment, segment, {other, segment}),
            Faults{"explanation: page 1 shows a segment from -3, the point taken in, to 5, the "
                   "point taken in, which is not of this problem"});
  EXPECT_EQ(OnLine(segment, segment, {{}}),
            Faults{"explanation: the last page does not show a segment from -3, the point taken "
                   "in, to 4, the point taken in"});
}

TEST(FigureCheck, AnExplanationOfASystemEndsAtBothLinesAndTheirPoint) {
  const FigureItem first = LineItem(-1, 3, "y = -x + 3");
  const FigureItem second = LineItem(1, -1);
  const FigureItem crossing = PointItem(2, 1);
  const Figure end = {first, second, GuidesItem(2, 1), crossing};
  EXPECT_EQ(OfSystem({{PointItem(0, 3), StepItem(0, 3, 1, -1), first}, end}), Faults{});
  EXPECT_EQ(OfSystem({{first, Broken(second), crossing}}), Faults{});
  EXPECT_EQ(OfSystem({{LineItem(-1, 2)}, end}),
            Faults{"explanation: page 1 shows a line through (0, 2) and (1, 1), which is not of "
                   "this problem"});
  EXPECT_EQ(OfSystem({{PointItem(0, 2)}, end}),
            Faults{"explanation: page 1 shows a point at (0, 2), which is not of this problem"});
  EXPECT_EQ(OfSystem({{first, crossing}}),
            Faults{"explanation: the last page does not show a line through (0, -1) and (1, 0)"});
}

TEST(FigureWords, EveryShapeIsSpoken) {
  const struct {
    FigureItem item;
    std::string words;
  } kCases[] = {
      {graphs::GraphItem(4, graphs::kFarLeft), "a ray from 4, the point taken in, to the left"},
      {graphs::GraphItem(1, -2.9),
       "a segment from -3, the point left out, to 1, the point taken in"},
      {PointOnLineItem(-2, "B"), "point B at -2"},
      {PointItem(-1, 4), "a point at (-1, 4)"},
      {LineItem(0.5, 2), "a line through (0, 2) and (2, 3)"},
      {LineItem(-3, 5, "p"), "a line, p, through (0, 5) and (1, 2)"},
      {Broken(UprightItem(3)), "a broken upright line through (3, 0)"},
      {StepItem(1, 2, -3, -1), "a step from (1, 2), 3 to the left and 1 down"},
      {graphs::ScaleItem({4, 2}), "a number at every 4, a tick at every 2"},
      {GuidesItem(2, 1), "from (2, 1) straight to both axes"},
  };
  for (const auto& [item, words] : kCases) EXPECT_EQ(WordsOf(item), words);
}

}  // namespace
}  // namespace lesson_check
