// The machine of linear equations and inequalities, and what its lessons promise of their problems
// and explanations.
#include <regex>
#include <set>

#include "display/lesson_window.h"
#include "lesson_check/pages/page_reader.h"
#include "lessons/families/equations/equation_explanation.h"
#include "lessons/registry.h"
#include "mathkit/tutor_codes.h"
#include "support/course_fixture.h"

namespace course::testing {
namespace {

using namespace equations;

constexpr const char* kOneOperation = "Solving Linear Equations With 1 Operation";
constexpr const char* kMoreComplex = "Solving More Complex Linear Equations";
constexpr const char* kEquations = "Solving Linear Equations With 2 Operations";
constexpr const char* kInequalities = "Solving Inequalities";
constexpr int kSeeds = 3000;

class EquationMachineTest : public CourseTest {};

TEST_F(EquationMachineTest, WritesNoOneNoZeroAndNoDoubleSign) {
  const auto text = [](int coef, int number) { return ToUtf8(SideText({coef, number}, "x")); };
  EXPECT_EQ(text(2, 1), "2x + 1");
  EXPECT_EQ(text(1, -1), "x - 1");
  EXPECT_EQ(text(-1, 0), "-x");
  EXPECT_EQ(text(0, -4), "-4");
  EXPECT_EQ(text(0, 0), "0");
}

// The statement after each addition; the shapes of the later lessons are among them.
TEST_F(EquationMachineTest, IsolatesTheLetterByAddingOpposites) {
  struct Case {
    LinearStatement statement;
    std::vector<std::string> after;
    std::string solution;
  };
  const std::string below = tutor::LessOrEqual;
  const Case cases[] = {
      {{"x", {3, 4}, "=", {0, 19}}, {"3x = 15"}, "x = 5"},
      {{"x", {1, 7}, "=", {0, -2}}, {"x = -9"}, "x = -9"},
      {{"x", {-4, 0}, "=", {0, 12}}, {}, "x = -3"},
      {{"x", {5, 7}, "=", {2, -8}}, {"3x + 7 = -8", "3x = -15"}, "x = -5"},
      {{"x", {5, 0}, "<", {7, 0}}, {"-2x < 0"}, "x > 0"},
      {{"x", {2, 3}, below, {6, 0}},
       {"-4x + 3 \xE2\x89\xA4 0", "-4x \xE2\x89\xA4 -3"},
       "x \xE2\x89\xA5 3/4"},
      {{"x", {-2, 5}, ">", {2, -4}}, {"-4x + 5 > -4", "-4x > -9"}, "x < 2 1/4"},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(ToUtf8(StatementText(c.statement)));
    std::vector<std::string> after;
    for (const Addition& addition : AdditionsOf(c.statement))
      after.push_back(ToUtf8(StatementText(addition.after)));
    EXPECT_EQ(after, c.after);
    EXPECT_EQ(ToUtf8(SolutionText(c.statement)), c.solution);
  }
}

TEST_F(EquationMachineTest, EquationsHaveACoefficientANumberAndAWholeAnswer) {
  const auto lesson = MakeLesson(kEquations);
  EXPECT_EQ(lesson->Title(), "Solving Linear Equations with 2 Operations");
  const std::regex form(R"((-?\d*)[mnrtxy] [+-] (\d+)  =  (-?\d+))");
  const std::regex number(R"(-?(\d+|\d+/\d+|\d+ \d+/\d+))");
  int none = 0;
  for (int seed = 0; seed < kSeeds; ++seed) {
    const Problem problem = lesson->Draw(seed).problem;
    const std::string line = ToUtf8(problem.question[1]);
    SCOPED_TRACE(line);
    std::smatch parts;
    ASSERT_TRUE(std::regex_match(line, parts, form));
    ASSERT_TRUE(parts[1] != "" && parts[1] != "1" && parts[1] != "0");
    ASSERT_NE(std::stoi(parts[2]), std::abs(std::stoi(parts[3])));
    for (int slot = 1; slot <= 5; ++slot)
      ASSERT_TRUE(std::regex_match(ToUtf8(problem.choices[slot].text), number));
    ASSERT_EQ(problem.choices[problem.correct].text.find('/'), std::string::npos);
    ASSERT_EQ(problem.choices[2].mistake == "filler" || problem.choices[4].mistake == "filler",
              true);  // both lead to the same number
    none += problem.correct == 5;
  }
  EXPECT_NEAR(none, kSeeds * 0.2, kSeeds * 0.03);
}

TEST_F(EquationMachineTest, InequalitiesTestTheTurnOfTheRelationAndHaveFractions) {
  const auto lesson = MakeLesson(kInequalities);
  int fractions = 0;
  int turns = 0;
  int none = 0;
  for (int seed = 0; seed < kSeeds; ++seed) {
    const Problem problem = lesson->Draw(seed).problem;
    const std::string& answer = problem.choices[problem.correct].text;
    const std::string reversed =
        answer.substr(0, 2) + ReversedRelation(answer.substr(2, 1)) + answer.substr(3);
    ASSERT_EQ(problem.choices[2].text, reversed);
    fractions += answer.find('/') != std::string::npos;
    turns += problem.choices[2].mistake.starts_with("forgets to reverse");
    none += problem.correct == 5;
  }
  EXPECT_NEAR(fractions, kSeeds / 3, kSeeds / 20);
  EXPECT_NEAR(turns, kSeeds / 2, kSeeds / 20);
  EXPECT_NEAR(none, kSeeds * 0.2, kSeeds * 0.03);
}

bool IsRelation(const std::string& text) {
  return text == "=" || text != ReversedRelation(text);
}

// Where the relations of an explanation stand, what its pages have on the row of the problem, and
// with which words it ends.
struct Shown {
  std::set<double> relationColumns;
  std::set<std::string> problems;
  std::string lastWords;
};

Shown Explained(const char* title, int seed) {
  Shown shown;
  lesson_check::PageReader reader;
  reader.Read(*MakeLesson(title), mode::Explanation, seed, [&] {
    std::string problem;
    for (const Fragment& fragment : frmPR->lessonText.Transcript()) {
      if (IsRelation(fragment.text)) shown.relationColumns.insert(fragment.col);
      if (fragment.row == kSheetTop) problem += fragment.text + " ";
    }
    shown.problems.insert(problem);
    shown.lastWords.clear();
    for (const std::string& line : TranscriptLines(frmPR->wiperText))
      shown.lastWords += ToUtf8(line) + " ";
  });
  return shown;
}

TEST_F(EquationMachineTest, ExplanationsOfAllKindsKeepTheirRelationsInLineAndEndAtTheAnswer) {
  for (const char* title : {kOneOperation, kEquations, kMoreComplex, kInequalities}) {
    const auto lesson = MakeLesson(title);
    for (int seed = 0; seed < 40; ++seed) {
      SCOPED_TRACE(std::string(title) + "#" + std::to_string(seed));
      const Problem problem = lesson->Draw(seed).problem;
      const std::string answer = ToUtf8(problem.choices[problem.correct].text);
      const Shown shown = Explained(title, seed);
      EXPECT_EQ(shown.relationColumns, std::set<double>{kRelationCol});
      EXPECT_EQ(shown.problems.size(), 1);  // it stays in view
      EXPECT_NE(shown.lastWords.find(answer), std::string::npos) << shown.lastWords;
      EXPECT_EQ(shown.lastWords.find(kNoneOfTheAbove) != std::string::npos, problem.correct == 5);
    }
  }
}

// -2x - 5 = 7 as a sheet: signs and digits stand under their like, and the numbers end together.
TEST_F(EquationMachineTest, PlacesOfASheetAreAsWideAsItsWidestRow) {
  const SheetColumns columns = ColumnsFor(RowsOf({"x", {-2, -5}, "=", {0, 7}}));
  EXPECT_EQ(columns.first, 12);
  EXPECT_EQ(columns.leftTerm, 14);
  EXPECT_EQ(columns.rightTerm, 23);
  EXPECT_EQ(columns.rightNumber, 26);
}

}  // namespace
}  // namespace course::testing
