#include "records/record_report_order.h"

#include <algorithm>
#include <utility>

#include "platform/stop.h"
#include "records/record_text.h"

namespace course {
namespace {

// Results from bad to good, those with nothing attempted first.
std::string PercentKey(const ExpandedRecord& record) {
  if (record.attempted == 0) return "   ";
  return Digits(PercentCorrect(record.attempted, record.correct), 3);
}

std::string LessonKey(const ExpandedRecord& record) {
  const std::string title = RecordTitle(record, UnitTitles::None);
  return record.kind == RecordKind::UnitTest ? "Unit Test: " : title;
}

}  // namespace

std::string SortKey(const ExpandedRecord& record, SortOrder order, int place) {
  const std::string byName = record.name + record.date + Digits(place, 4);
  switch (order) {
    case SortOrder::Percent:
      return PercentKey(record) + byName;
    case SortOrder::Date:
      return record.date + record.name + Digits(place, 4);
    case SortOrder::Lesson:
      return LessonKey(record) + byName;
    default:
      return byName;
  }
}

std::vector<ExpandedRecord> SelectRecords(
    const std::vector<std::string>& records, int student,
    const std::function<std::string(int student)>& nameFromNumber, SortOrder order,
    SortDirection direction) {
  using Keyed = std::pair<std::string, ExpandedRecord>;
  std::vector<Keyed> keyed;
  for (const std::string& record : records) {
    const int number = StudentOfRecord(record);
    if (student != kAllStudents && number != student) continue;
    const int place = static_cast<int>(keyed.size()) + 1;
    if (place > kMaxViewedRecords)
      platform::Stop("SelectRecords: a view has place for " + std::to_string(kMaxViewedRecords) +
                     " records");
    ExpandedRecord expanded = ExpandRecord(record, nameFromNumber(number));
    std::string key = SortKey(expanded, order, place);
    keyed.emplace_back(std::move(key), std::move(expanded));
  }
  std::sort(keyed.begin(), keyed.end(), [direction](const Keyed& a, const Keyed& b) {
    return direction == SortDirection::Increasing ? a.first < b.first : a.first > b.first;
  });
  std::vector<ExpandedRecord> sorted;
  for (Keyed& one : keyed) sorted.push_back(std::move(one.second));
  return sorted;
}

}  // namespace course
