#include "records/diagnostic_report.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <initializer_list>
#include <string>
#include <vector>

#include "records/diagnostic_tables.h"
#include "support/course_fixture.h"
#include "support/expect_stop.h"

namespace course {
namespace {

using Lines = std::vector<std::string>;

// A result in which all questions but these were answered rightly.
DiagnosticResult ResultWith(const std::string& code, std::initializer_list<int> wrong) {
  std::string student(30, 'C');
  const std::string correct(30, 'C');
  for (const int question : wrong) student[question - 1] = 'B';
  return {code + "9907" + "050312" + student + correct, "Ann Smith            "};
}

DiagnosticResult AllWrong(const std::string& code) {
  return {code + "9907" + "050312" + std::string(30, 'A') + std::string(30, 'E'), "Ann Smith"};
}

// The lines from this one on; none when it is missing.
Lines From(const Lines& lines, const std::string& first) {
  return {std::find(lines.begin(), lines.end(), first), lines.end()};
}

Lines PlanOf(const DiagnosticResult& result) {
  const Lines lines =
      From(DiagnosticReport(result), std::string(24, ' ') + "RECOMMENDED PLAN OF STUDY");
  return {lines.begin() + std::min<std::size_t>(2, lines.size()), lines.end()};
}

// The line that begins like this, "" for none.
std::string LineWith(const Lines& lines, const std::string& beginning) {
  const auto line = std::find_if(lines.begin(), lines.end(), [&](const std::string& text) {
    return text.starts_with(beginning);
  });
  return line == lines.end() ? "" : *line;
}

class DiagnosticReportTest : public testing::CourseTest {};

TEST_F(DiagnosticReportTest, AReportReadsLikeThis) {
  const DiagnosticResult result = {
      "C2"
      "99"
      "07"
      "050312"
      "ABCDEABCDEABCDEABCDEABCDEABCDE"
      "ABCDAABCDEABADEABCDEABADEABCBE",
      "Ann Smith            "};
  const Lines expected = {
      "Algebra 1 Diagnostic Test Results",
      " ",
      "Student: Ann Smith            ",
      "Date:    05/03/12",
      " ",
      "Prob  Student Correct            Prob  Student Correct",
      "  #    Answer  Answer Correct?     #    Answer  Answer Correct?",
      "====  ======= ======= ========   ====  ======= ======= ========",
      " ",
      "  1       A       A      Yes      16       A       A      Yes  ",
      "  2       B       B      Yes      17       B       B      Yes  ",
      "  3       C       C      Yes      18       C       C      Yes  ",
      "  4       D       D      Yes      19       D       D      Yes  ",
      "  5       E       A       No      20       E       E      Yes  ",
      "  6       A       A      Yes      21       A       A      Yes  ",
      "  7       B       B      Yes      22       B       B      Yes  ",
      "  8       C       C      Yes      23       C       A       No  ",
      "  9       D       D      Yes      24       D       D      Yes  ",
      " 10       E       E      Yes      25       E       E      Yes  ",
      " 11       A       A      Yes      26       A       A      Yes  ",
      " 12       B       B      Yes      27       B       B      Yes  ",
      " 13       C       A       No      28       C       C      Yes  ",
      " 14       D       D      Yes      29       D       B       No  ",
      " 15       E       E      Yes      30       E       E      Yes  ",
      " ",
      "# OF PROBLEMS: 30   # CORRECT: 26   PERCENT CORRECT:  87%",
      " ",
      "=====================================================================",
      "                        SKILL AREA ANALYSIS",
      " ",
      "          Skill Area               # Probs   # Correct  Performance",
      "-------------------------------   ---------  ---------  -----------",
      "Basic Operations with Integers         4         4         Good",
      "Basic Operations with Fractions        5         4         Good",
      "Basic Operations with Decimals         3         3         Good",
      "Other Operations with Integers        10         9         Good",
      "Percent                                3         2         Fair",
      "Variables, Expressions, Equations      5         4         Good",
      " ",
      "=====================================================================",
      " ",
      "                        RECOMMENDED PLAN OF STUDY",
      "                        =========================",
      " ",
      "LESSONS TO STUDY IN PRE-ALGEBRA, GROUNDWORK SERIES:",
      " ",
      "UNIT 3: Whole Numbers: Other Operations    LESSON - Factoring Whole Numbers",
      " ",
      "UNIT 4: Fractions & Mixed Nos: Add/Subtr   LESSON - Fractions and Mixed Numbers",
      " ",
      "UNIT 10: Percent                            LESSON - Using the Percent Equation",
      " ",
      "LESSONS TO STUDY IN ALGEBRA 1, GROUNDWORK SERIES:",
      " ",
      "UNIT 3: Equations                          LESSON - Solving Literal Eqns and Formulas",
  };
  EXPECT_EQ(DiagnosticReport(result), expected);
}

TEST_F(DiagnosticReportTest, NothingIsPlannedForAFullScore) {
  const Lines lines = DiagnosticReport(ResultWith("C2", {}));
  EXPECT_EQ(lines.size(), 43u);
  EXPECT_EQ(LineWith(lines, "# OF"), "# OF PROBLEMS: 30   # CORRECT: 30   PERCENT CORRECT: 100%");
  EXPECT_EQ(std::count_if(lines.begin(), lines.end(),
                          [](const std::string& line) { return line.ends_with("     Good"); }),
            6);
  EXPECT_EQ(PlanOf(ResultWith("C2", {})), Lines{});
}

TEST_F(DiagnosticReportTest, TheLongestReports) {
  const Lines preAlgebra = DiagnosticReport(AllWrong("C1"));
  const Lines algebra = DiagnosticReport(AllWrong("C2"));
  EXPECT_EQ(preAlgebra.size(), 81u);
  EXPECT_EQ(algebra.size(), 87u);
  EXPECT_EQ(preAlgebra[0], "Pre-Algebra Diagnostic Test Results");
  EXPECT_EQ(LineWith(algebra, "# OF"), "# OF PROBLEMS: 30   # CORRECT:  0   PERCENT CORRECT:   0%");
  EXPECT_EQ(algebra[9], "  1       A       E       No      16       A       E       No  ");
  for (const Lines& lines : {preAlgebra, algebra})
    for (const std::string& line : lines) EXPECT_LE(line.size(), 86u) << line;
}

TEST_F(DiagnosticReportTest, ThePercentIsRounded) {
  const auto scoreOf = [](int correct) {
    const std::string letters = std::string(correct, 'A') + std::string(30 - correct, 'B');
    const DiagnosticResult result = {"C29907050312" + letters + std::string(30, 'A'), ""};
    return LineWith(DiagnosticReport(result), "# OF").substr(31);
  };
  EXPECT_EQ(scoreOf(1), " 1   PERCENT CORRECT:   3%");
  EXPECT_EQ(scoreOf(2), " 2   PERCENT CORRECT:   7%");
  EXPECT_EQ(scoreOf(15), "15   PERCENT CORRECT:  50%");
  EXPECT_EQ(scoreOf(29), "29   PERCENT CORRECT:  97%");
}

// --- Skill areas ---------------------------------------------------------------------------------

TEST_F(DiagnosticReportTest, EachQuestionBelongsToOneArea) {
  const auto areasOf = [](const std::string& code) {
    std::string areas;
    for (int question = 1; question <= 30; ++question) {
      int number = 0;
      int found = 0;
      for (const SkillArea& area : FindDiagnosticProgram(code)->areas) {
        ++number;
        EXPECT_EQ(area.title.size(), 34u) << area.title;
        if (!area.Holds(question)) continue;
        ++found;
        areas += static_cast<char>('0' + number);
      }
      EXPECT_EQ(found, 1) << code << " " << question;
    }
    return areas;
  };
  EXPECT_EQ(areasOf("C1"), "111111122222222233333334444444");
  EXPECT_EQ(areasOf("C2"), "111122222333444444444555666664");
}

TEST_F(DiagnosticReportTest, AnAreaCountsItsOwnQuestions) {
  const Lines lines = DiagnosticReport(ResultWith("C2", {12, 13, 21, 22, 23, 24, 30}));
  EXPECT_EQ(LineWith(lines, "Basic Operations with Dec"),
            "Basic Operations with Decimals         3         2         Fair");
  EXPECT_EQ(LineWith(lines, "Other"),
            "Other Operations with Integers        10         7         Fair");
  EXPECT_EQ(LineWith(lines, "Percent "),
            "Percent                                3         0         Poor");
  EXPECT_EQ(LineWith(lines, "Variables"),
            "Variables, Expressions, Equations      5         5         Good");
  const Lines preAlgebra = DiagnosticReport(ResultWith("C1", {7, 8, 16, 17}));
  EXPECT_EQ(LineWith(preAlgebra, "Basic Operations with Int"),
            "Basic Operations with Integers         7         6         Good");
  EXPECT_EQ(LineWith(preAlgebra, "Basic Operations with Fra"),
            "Basic Operations with Fractions        9         7         Fair");
}

TEST_F(DiagnosticReportTest, VerdictsByTheSizeOfTheArea) {
  struct Bounds {
    int questions, poor, fair;
  };
  for (const Bounds& area : {Bounds{3, 1, 2},
                             {4, 1, 2},
                             {5, 2, 3},
                             {6, 3, 4},
                             {7, 3, 5},
                             {8, 4, 6},
                             {9, 5, 7},
                             {10, 5, 7}}) {
    SCOPED_TRACE(area.questions);
    EXPECT_EQ(SkillVerdict(area.questions, 0), "Poor");
    EXPECT_EQ(SkillVerdict(area.questions, area.poor), "Poor");
    EXPECT_EQ(SkillVerdict(area.questions, area.poor + 1), "Fair");
    EXPECT_EQ(SkillVerdict(area.questions, area.fair), "Fair");
    EXPECT_EQ(SkillVerdict(area.questions, area.fair + 1), "Good");
    EXPECT_EQ(SkillVerdict(area.questions, area.questions), "Good");
  }
  testing::ExpectStop("SkillVerdict: no bounds for 2 questions", [] { SkillVerdict(2, 1); });
  testing::ExpectStop("SkillVerdict: no bounds for 11 questions", [] { SkillVerdict(11, 1); });
}

// --- Plan of study -------------------------------------------------------------------------------

TEST_F(DiagnosticReportTest, ALessonIsPlannedOnce) {
  EXPECT_EQ(PlanOf(ResultWith("C2", {19, 21})),
            (Lines{" ", "LESSONS TO STUDY IN ALGEBRA 1, GROUNDWORK SERIES:", " ",
                   "UNIT 1: Review of Arithmetic               LESSON - Using Exponents"}));
}

TEST_F(DiagnosticReportTest, TheSeriesComeInOrderWithABlankLineBeforeEachUnit) {
  // Questions 1 and 2 share a unit; 19 and 1 have a unit 1 of two series.
  EXPECT_EQ(
      PlanOf(ResultWith("C2", {30, 19, 3, 2, 1})),
      (Lines{" ", "LESSONS TO STUDY IN PRE-ALGEBRA, GROUNDWORK SERIES:", " ",
             "UNIT 1: Whole Numbers: Adding & Subtr.     LESSON - Adding Whole Numbers",
             "UNIT 1: Whole Numbers: Adding & Subtr.     LESSON - Subtracting Whole Numbers", " ",
             "UNIT 2: Whole Numbers: Mult. & Dividing    LESSON - Multiplying by Whole "
             "Numbers",
             " ", "LESSONS TO STUDY IN ALGEBRA 1, GROUNDWORK SERIES:", " ",
             "UNIT 1: Review of Arithmetic               LESSON - Using Exponents", " ",
             "UNIT 5: Exponents and Powers               LESSON - Multiplying with "
             "Exponents"}));
}

TEST_F(DiagnosticReportTest, LessonsOfOneKeyComeByTheirTitles) {
  const Lines plan = PlanOf(ResultWith("C2", {26, 27, 28, 29}));
  EXPECT_EQ(Lines(plan.begin() + 3, plan.end()),
            (Lines{"UNIT 3: Equations                          LESSON - Like Terms",
                   "UNIT 3: Equations                          LESSON - Simplifying Expressions",
                   "UNIT 3: Equations                          LESSON - Solving Linear Equations",
                   "UNIT 3: Equations                          LESSON - Solving Literal Eqns and "
                   "Formulas"}));
}

TEST_F(DiagnosticReportTest, APreAlgebraPlanFollowsItsOwnTable) {
  // The divisibility rules, question 24, come before the decimals of question 23.
  EXPECT_EQ(PlanOf(ResultWith("C1", {23, 24, 30})),
            (Lines{" ", "LESSONS TO STUDY IN PRE-ALGEBRA, GROUNDWORK SERIES:", " ",
                   "UNIT 3: Whole Numbers: Other Operations    LESSON - Divisibility Rules", " ",
                   "UNIT 6: Operations With Decimals           LESSON - Word Problems", " ",
                   "UNIT 10: Percent                            LESSON - Percents and Decimal "
                   "Numbers"}));
}

TEST_F(DiagnosticReportTest, EveryLessonHasAUnitAndAPlaceOfItsOwn) {
  for (const char* const code : {"C1", "C2"}) {
    std::vector<std::string> cells;
    for (const StudyLesson& lesson : FindDiagnosticProgram(code)->lessons)
      cells.push_back(StudyCell(lesson));
    std::sort(cells.begin(), cells.end());
    cells.erase(std::unique(cells.begin(), cells.end()), cells.end());
    EXPECT_EQ(cells.size(), code[1] == '1' ? 30u : 29u) << code;
  }
}

// --- Several students, paper, bad records --------------------------------------------------------

TEST_F(DiagnosticReportTest, RulesStandBetweenStudents) {
  const DiagnosticResult result = ResultWith("C2", {});
  EXPECT_EQ(DiagnosticReports({}), Lines{});
  EXPECT_EQ(DiagnosticReports({result}), DiagnosticReport(result));
  const Lines lines = DiagnosticReports({result, AllWrong("C1"), result});
  ASSERT_EQ(lines.size(), 43u + 3 + 81 + 3 + 43);
  for (const std::size_t first : {43u, 43u + 3 + 81}) {
    EXPECT_EQ(lines[first], std::string(94, '='));
    EXPECT_EQ(lines[first + 1], std::string(94, '='));
    EXPECT_EQ(lines[first + 2], " ");
  }
  EXPECT_EQ(lines[46], "Pre-Algebra Diagnostic Test Results");
}

TEST_F(DiagnosticReportTest, TwoSheetsHoldAllLinesOfTheReport) {
  const auto pages = DiagnosticReportPages(AllWrong("C2"));
  ASSERT_EQ(pages.size(), 2u);
  for (int sheet = 0; sheet < 2; ++sheet) {
    const Lines& page = pages[sheet];
    const std::string mark = "Page " + std::to_string(sheet + 1) + " of 2";
    EXPECT_EQ(Lines(page.begin(), page.begin() + 6),
              (Lines{"Algebra 1 Diagnostic Test Results", std::string(21, ' ') + mark, " ",
                     "Student: Ann Smith", "Date:    05/03/12", " "}));
    EXPECT_LE(page.size(), 57u);
  }
  // What the sheets add to the report are their headings.
  const Lines report = DiagnosticReport(AllWrong("C2"));
  Lines body(pages[0].begin() + 6, pages[0].end());
  body.push_back(" ");
  body.insert(body.end(), pages[1].begin() + 6, pages[1].end());
  EXPECT_EQ(body, Lines(report.begin() + 5, report.end()));
}

TEST_F(DiagnosticReportTest, AForeignOrBrokenRecordStopsTheProgram) {
  testing::ExpectStop("DiagnosticReport: no tables for the program code C3",
                      [] { DiagnosticReport(ResultWith("C3", {})); });
  testing::ExpectStop("DiagnosticReport: a record of 71 characters", [] {
    DiagnosticResult result = ResultWith("C2", {});
    result.record.pop_back();
    DiagnosticReport(result);
  });
  testing::ExpectStop("DiagnosticReport: a record of 0 characters", [] {
    DiagnosticReportPages({"", ""});
  });
}

TEST_F(DiagnosticReportTest, LettersThatAreNoneAreShownAndCountAsWrong) {
  const DiagnosticResult result = {"C29907050312" + std::string(30, ' ') + std::string(30, 'A'),
                                   ""};
  const Lines lines = DiagnosticReport(result);
  EXPECT_EQ(lines[2], "Student: ");
  EXPECT_EQ(lines[9], "  1               A       No      16               A       No  ");
}

}  // namespace
}  // namespace course
