// Which of four drawn lines, Graph 1 to Graph 4, is the graph of an equation in x and y.
#include "lesson_check/exact/notation.h"
#include "lesson_check/exact/relations.h"
#include "lesson_check/exact/unreadable.h"
#include "lesson_check/judge.h"

namespace lesson_check {
namespace {

// y = slope x + intercept
struct Line {
  Rational slope, intercept;
  std::string Text() const { return slope.get_str() + "x + " + intercept.get_str(); }
};

Line LineOf(const std::string& equation) {
  const Statement cut = CutAtRelations(equation);
  const Polynomial left = ValueOf(cut.sides[0]) - ValueOf(cut.sides[1]);
  if (left.Letters() != "xy" || left.Degree('x') != 1 || left.Degree('y') != 1)
    throw Unreadable("\"" + equation + "\" is no slanting line");
  const Polynomial withoutX = left.Coefficient('x', 0);
  const Rational a = left.Coefficient('x', 1).Number();
  const Rational b = withoutX.Coefficient('y', 1).Number();
  const Rational c = withoutX.Coefficient('y', 0).Number();
  return {-a / b, -c / b};
}

// A drawn number is that of the fraction with the smallest denominator that is as near as can be
// told: slopes here are quarters, thirds and halves.
Rational ExactOf(double drawn) {
  constexpr long kDenominators = 12;
  const Rational scaled(static_cast<long>(drawn * kDenominators + (drawn < 0 ? -0.5 : 0.5)),
                        kDenominators);
  Rational exact = scaled;
  exact.canonicalize();
  return exact;
}

Line LineOf(const course::FigureItem& item) {
  if (item.shape != "line" || item.Find("x")) throw Unreadable("a figure is no slanting line");
  return {ExactOf(item.Value("slope")), ExactOf(item.Value("intercept"))};
}

std::string LineOfGraph(const std::vector<course::FigureItem>& figure, const std::string& choice) {
  for (std::size_t i = 0; i < figure.size(); ++i)
    if (choice == "Graph " + std::to_string(i + 1)) return LineOf(figure[i]).Text();
  throw Unreadable("there is no \"" + choice + "\"");
}

Reading ReadGraphOfEquation(const course::Problem& problem) {
  if (problem.question.size() != 2 || problem.figure.size() != 4)
    throw Unreadable("not an equation and four graphs");
  const Line line = LineOf(problem.question[1]);
  Reading reading;
  reading.kind = problem.question[1].starts_with("y =") ? "y = mx + b" : "Ax + By = C";
  reading.answer = line.Text();
  reading.value = [figure = problem.figure](const std::string& choice) {
    return LineOfGraph(figure, choice);
  };
  reading.mistakes["takes the wrong sign for the slope"] = {
      Line{-line.slope, line.intercept}.Text()};
  reading.mistakes["takes the wrong sign for the intercept"] = {
      Line{line.slope, -line.intercept}.Text()};
  reading.mistakes["takes both signs wrong"] = {Line{-line.slope, -line.intercept}.Text()};
  reading.Within("the intercept", line.intercept, -2, 2);
  reading.Within("the slope", line.slope, -3, 3);
  return reading;
}

const JudgeRegistration kRegistration(ReadGraphOfEquation, {"Graphing Linear Equations"});

}  // namespace
}  // namespace lesson_check
