#include "roster_tool/results.h"

#include <algorithm>
#include <map>
#include <utility>

#include "records/diagnostic_report.h"
#include "records/diagnostic_tables.h"
#include "records/record_report.h"
#include "records/record_report_order.h"
#include "records/record_text.h"
#include "session/session.h"

namespace roster_tool {
namespace {

using course::ExpandedRecord;
using Strings = std::vector<std::string>;

struct Listed {
  int student = 0;
  ExpandedRecord record;
};
// The records of each class by names and dates; the classes by their numbers.
using ByClass = std::map<int, std::vector<Listed>>;

ByClass Sorted(const Rosters& rosters, const Strings& records, const Selection& selection,
               Complaints& complaints) {
  std::map<int, std::map<std::string, Listed>> sorted;
  for (std::size_t i = 0; i < records.size(); ++i) {
    if (!selection.Has(records[i])) continue;
    const int inClass = ClassOfRecord(records[i]);
    const int student = course::StudentOfRecord(records[i]);
    ExpandedRecord record =
        course::ExpandRecord(records[i], StudentName(rosters, inClass, student));
    if (!course::HasTitle(record)) {
      complaints.push_back(PlaceOf(kRecords, i) + ": unit " + std::to_string(record.unit) +
                           ", lesson " + std::to_string(record.lesson) +
                           " is not in the catalogue");
      continue;
    }
    const std::string key =
        course::SortKey(record, course::SortOrder::Name, static_cast<int>(i) + 1);
    sorted[inClass].emplace(key, Listed{student, std::move(record)});
  }
  ByClass byClass;
  for (auto& [inClass, keyed] : sorted)
    for (auto& [key, shown] : keyed) byClass[inClass].push_back(std::move(shown));
  return byClass;
}

std::string CsvField(const std::string& text) {
  if (text.find_first_of(",\"") == std::string::npos) return text;
  std::string quoted = "\"";
  for (const char c : text) quoted += c == '"' ? "\"\"" : std::string(1, c);
  return quoted + "\"";
}

std::string CsvLine(const Strings& fields) {
  std::string line;
  for (std::size_t i = 0; i < fields.size(); ++i) line += (i == 0 ? "" : ",") + CsvField(fields[i]);
  return line;
}

std::string CsvOf(const std::string& className, const Listed& shown, int passPercent) {
  const ExpandedRecord& record = shown.record;
  const bool practice = record.kind == course::RecordKind::Practice;
  const int percent = course::PercentCorrect(record.attempted, record.correct);
  const std::string& date = record.date;  // yymmdd
  const std::string grade = course::PracticeGrade(record.attempted, percent);
  return CsvLine({className, course::Trimmed(record.name), std::to_string(shown.student),
                  "20" + date.substr(0, 2) + "-" + date.substr(2, 2) + "-" + date.substr(4, 2),
                  course::RecordTitle(record, course::UnitTitles::Catalogue),
                  course::ActivityName(record.kind), std::to_string(record.attempted),
                  std::to_string(record.correct), std::to_string(percent),
                  practice ? course::Trimmed(grade) : "",
                  practice ? "" : (percent >= passPercent ? "Yes" : "No"),
                  std::to_string(record.minutes)});
}

}  // namespace

Listing RecordLines(const Rosters& rosters, const Strings& records, const Selection& selection) {
  Listing listing;
  for (const auto& [inClass, shown] : Sorted(rosters, records, selection, listing.complaints)) {
    course::session.gTestPassPercent = PassPercent(rosters, inClass);
    Strings& lines = listing.lines;
    if (!lines.empty()) lines.push_back("");
    lines.push_back(course::CourseTitleFromCode("C2"));
    lines.push_back("STUDENT RECORDS: " + ClassName(rosters, inClass));
    lines.push_back("Test Passing Grade: " + std::to_string(course::session.gTestPassPercent) +
                    "%");
    lines.push_back("");
    for (const std::string& heading : course::PrintedColumnHeadings()) lines.push_back(heading);
    for (const Listed& one : shown) lines.push_back(course::PrintedLine(one.record));
  }
  return listing;
}

Listing RecordCsv(const Rosters& rosters, const Strings& records, const Selection& selection) {
  Listing listing;
  listing.lines.push_back(
      "class,student,number,date,lesson,activity,attempted,correct,percent,grade,passed,minutes");
  for (const auto& [inClass, shown] : Sorted(rosters, records, selection, listing.complaints))
    for (const Listed& one : shown)
      listing.lines.push_back(
          CsvOf(ClassName(rosters, inClass), one, PassPercent(rosters, inClass)));
  return listing;
}

Listing ResultLines(const Rosters& rosters, const Strings& results, const Selection& selection) {
  Listing listing;
  std::map<std::pair<std::string, std::size_t>, course::DiagnosticResult> sorted;
  for (std::size_t i = 0; i < results.size(); ++i) {
    if (!selection.Has(results[i])) continue;
    if (course::FindDiagnosticProgram(results[i].substr(0, 2)) == nullptr) {
      listing.complaints.push_back(PlaceOf(kDiagnostics, i) + ": no result of this series");
      continue;
    }
    const std::string name =
        StudentName(rosters, ClassOfRecord(results[i]), course::StudentOfRecord(results[i]));
    const std::string inClass = ClassName(rosters, ClassOfRecord(results[i]));
    sorted[{inClass + "\t" + name, i}] = {results[i], name + ", " + inClass};
  }
  std::vector<course::DiagnosticResult> inOrder;
  for (const auto& [key, result] : sorted) inOrder.push_back(result);
  listing.lines = course::DiagnosticReports(inOrder);
  return listing;
}

std::size_t Erase(const std::string& folder, const KindOfFile& kind, const Selection& selection,
                  bool really) {
  const auto file = Open(folder, kind, platform::Access::ReadWrite, platform::Sharing::Exclusive);
  Strings records = file->ReadAll();
  const std::size_t erased = std::erase_if(
      records, [&selection](const std::string& record) { return selection.Has(record); });
  if (really && erased > 0) Replace(*file, kind, records);
  return erased;
}

}  // namespace roster_tool
