#include "lesson_check/judge.h"

#include "engine/title_table.h"

namespace lesson_check {
namespace {

course::TitleTable<Judge>& Judges() {
  static course::TitleTable<Judge> judges;
  return judges;
}

}  // namespace

JudgeRegistration::JudgeRegistration(Judge judge, std::initializer_list<std::string_view> titles) {
  for (const std::string_view title : titles) Judges().Add(title, judge);
}

Judge JudgeOf(std::string_view title) {
  const auto* row = Judges().Find(title);
  return row == nullptr ? nullptr : row->value;
}

}  // namespace lesson_check
