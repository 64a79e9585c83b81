#include "records/diagnostic_report.h"

#include <algorithm>
#include <bitset>
#include <cstddef>
#include <set>

#include "platform/stop.h"
#include "records/diagnostic_file.h"
#include "records/diagnostic_tables.h"

namespace course {
namespace {

using Lines = std::vector<std::string>;

constexpr const char* kBlankLine = " ";
constexpr int kHalf = kDiagnosticQuestions / 2;
constexpr int kRuleWidth = 69;
constexpr int kReportRuleWidth = 94;  // between two students

// Places in the record, from 0.
constexpr std::size_t kCodeLength = 2;
constexpr std::size_t kDatePlace = 6;
constexpr std::size_t kStudentLetters = 12;
constexpr std::size_t kCorrectLetters = kStudentLetters + kDiagnosticQuestions;

// Lengths inside a cell of the plan, see StudyCell.
constexpr std::size_t kSeriesLength = 2;
constexpr std::size_t kKeyLength = 6;
constexpr std::size_t kUnitMarkLength = 10;  // enough of a unit's title to tell it from the next

void Append(Lines& lines, const Lines& more) {
  lines.insert(lines.end(), more.begin(), more.end());
}

std::string RightAligned(const std::string& text, std::size_t width) {
  return text.size() >= width ? text : std::string(width - text.size(), ' ') + text;
}

std::string RightAligned(int number, std::size_t width) {
  return RightAligned(std::to_string(number), width);
}

// A result with its tables and its score.
struct Scored {
  explicit Scored(const DiagnosticResult& from)
      : result(from), program(FindDiagnosticProgram(from.record.substr(0, kCodeLength))) {
    const std::string& record = result.record;
    if (record.size() != kDiagnosticRecordLength)
      platform::Stop("DiagnosticReport: a record of " + std::to_string(record.size()) +
                     " characters");
    if (program == nullptr)
      platform::Stop("DiagnosticReport: no tables for the program code " +
                     record.substr(0, kCodeLength));
    for (int question = 1; question <= kDiagnosticQuestions; ++question)
      right[question] = StudentLetter(question) == CorrectLetter(question);
  }

  char StudentLetter(int question) const { return result.record[kStudentLetters + question - 1]; }
  char CorrectLetter(int question) const { return result.record[kCorrectLetters + question - 1]; }

  const DiagnosticResult& result;
  const DiagnosticProgram* program;
  std::bitset<kDiagnosticQuestions + 1> right;
};

Lines StudentLines(const DiagnosticResult& result) {
  const std::string date = result.record.substr(kDatePlace, 6);
  return {"Student: " + result.studentName,
          "Date:    " + date.substr(0, 2) + "/" + date.substr(2, 2) + "/" + date.substr(4, 2)};
}

std::string QuestionText(const Scored& scored, int question) {
  return RightAligned(question, 3) + " " + "      " + scored.StudentLetter(question) + "  " +
         "     " + scored.CorrectLetter(question) + "  " +
         (scored.right[question] ? "    Yes  " : "     No  ");
}

std::string ScoreLine(const Scored& scored) {
  const int correct = static_cast<int>(scored.right.count());
  const int percent = static_cast<int>(1.0 * correct / kDiagnosticQuestions * 100 + 0.5);
  return "# OF PROBLEMS: 30   # CORRECT: " + RightAligned(correct, 2) +
         "   PERCENT CORRECT: " + RightAligned(percent, 3) + "%";
}

Lines AnswerTable(const Scored& scored) {
  Lines lines = {"Prob  Student Correct            Prob  Student Correct",
                 "  #    Answer  Answer Correct?     #    Answer  Answer Correct?",
                 "====  ======= ======= ========   ====  ======= ======= ========", kBlankLine};
  for (int question = 1; question <= kHalf; ++question)
    lines.push_back(QuestionText(scored, question) + "   " +
                    QuestionText(scored, question + kHalf));
  lines.push_back(kBlankLine);
  lines.push_back(ScoreLine(scored));
  return lines;
}

std::string AreaLine(const Scored& scored, const SkillArea& area) {
  int questions = 0;
  int correct = 0;
  for (int question = 1; question <= kDiagnosticQuestions; ++question) {
    if (!area.Holds(question)) continue;
    ++questions;
    if (scored.right[question]) ++correct;
  }
  return std::string(area.title) + "    " + RightAligned(questions, 2) + "   " + "     " +
         RightAligned(correct, 2) + "    " + "     " + SkillVerdict(questions, correct);
}

Lines SkillAnalysis(const Scored& scored) {
  Lines lines = {kBlankLine,
                 std::string(kRuleWidth, '='),
                 "                        SKILL AREA ANALYSIS",
                 kBlankLine,
                 "          Skill Area               # Probs   # Correct  Performance",
                 "-------------------------------   ---------  ---------  -----------"};
  for (const SkillArea& area : scored.program->areas) lines.push_back(AreaLine(scored, area));
  return lines;
}

std::string SeriesHeading(const std::string& series) {
  return series == "PA" ? "LESSONS TO STUDY IN PRE-ALGEBRA, GROUNDWORK SERIES:"
                        : "LESSONS TO STUDY IN ALGEBRA 1, GROUNDWORK SERIES:";
}

Lines StudyPlan(const Scored& scored) {
  Lines lines = {std::string(kRuleWidth, '='), kBlankLine,
                 std::string(24, ' ') + "RECOMMENDED PLAN OF STUDY",
                 std::string(24, ' ') + "========================="};
  // In course order, and each lesson once however many of its questions were missed.
  std::set<std::string> cells;
  for (int question = 1; question <= kDiagnosticQuestions; ++question)
    if (!scored.right[question]) cells.insert(StudyCell(scored.program->lessons[question - 1]));
  std::string lastSeries;
  std::string lastUnit;
  for (const std::string& cell : cells) {
    const std::string series = cell.substr(0, kSeriesLength);
    const std::string unit = cell.substr(kKeyLength, kUnitMarkLength);
    if (series != lastSeries) Append(lines, {kBlankLine, SeriesHeading(series)});
    if (unit != lastUnit) lines.push_back(kBlankLine);
    lines.push_back(cell.substr(kKeyLength));
    lastSeries = series;
    lastUnit = unit;
  }
  return lines;
}

}  // namespace

std::vector<std::string> DiagnosticReport(const DiagnosticResult& result) {
  const Scored scored(result);
  Lines lines = {std::string(scored.program->title), kBlankLine};
  Append(lines, StudentLines(result));
  lines.push_back(kBlankLine);
  Append(lines, AnswerTable(scored));
  Append(lines, SkillAnalysis(scored));
  lines.push_back(kBlankLine);
  Append(lines, StudyPlan(scored));
  return lines;
}

std::vector<std::string> DiagnosticReports(const std::vector<DiagnosticResult>& results) {
  const std::string rule(kReportRuleWidth, '=');
  Lines lines;
  for (const DiagnosticResult& result : results) {
    if (!lines.empty()) Append(lines, {rule, rule, kBlankLine});
    Append(lines, DiagnosticReport(result));
  }
  return lines;
}

std::vector<std::vector<std::string>> DiagnosticReportPages(const DiagnosticResult& result) {
  const Scored scored(result);
  const auto heading = [&](int page) {
    Lines lines = {std::string(scored.program->title),
                   "                     Page " + std::to_string(page) + " of 2", kBlankLine};
    Append(lines, StudentLines(result));
    lines.push_back(kBlankLine);
    return lines;
  };
  Lines first = heading(1);
  Append(first, AnswerTable(scored));
  Append(first, SkillAnalysis(scored));
  Lines second = heading(2);
  Append(second, StudyPlan(scored));
  return {first, second};
}

}  // namespace course
