#include "records/diagnostic_report.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <initializer_list>
#include <string>
#include <vector>

#include "records/diagnostic_tables.h"
#include "support/course_fixture.h"
#include "support/expect_stop.h"
#include "support/kept_text.h"

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

class DiagnosticReportTest : public testing::CourseTest {};

// tests/golden/diagnostic_reports.txt, as a teacher reads them.
TEST_F(DiagnosticReportTest, ReadsAsKept) {
  const std::string rightlyBut5 = "ABCDEABCDEABCDEABCDEABCDEABCDE";
  const DiagnosticResult reports[] = {
      {"C29907050312" + rightlyBut5 + "ABCDAABCDEABADEABCDEABADEABCBE", "Ann Smith            "},
      ResultWith("C2", {}),                                            // nothing is planned
      ResultWith("C1", {7, 8, 16, 17, 23, 24, 30}),                    // 24 comes before 23
      ResultWith("C2", {19, 21}),                                      // one lesson for both
      ResultWith("C2", {30, 19, 3, 2, 1}),                             // units of two series
      ResultWith("C2", {12, 13, 21, 22, 23, 24, 26, 27, 28, 29, 30}),  // lessons of one unit
      AllWrong("C1"),
      AllWrong("C2"),
      {"C29907050312" + std::string(30, ' ') + std::string(30, 'A'), ""},  // no letters
  };
  std::string text;
  for (const DiagnosticResult& result : reports)
    for (const std::string& line : DiagnosticReport(result)) {
      EXPECT_LE(line.size(), 86u) << line;
      text += line + "\n";
    }
  testing::ExpectKept(text, "tests/golden/diagnostic_reports.txt", "COURSE_BLESS");
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

}  // namespace
}  // namespace course
