#include "records/record_forms_print.h"

#include "platform/dialogs.h"
#include "records/record_load.h"
#include "session/session.h"

namespace course {
namespace {

constexpr const char* kTitle = "Printing Student Records";
constexpr double kPoints = 9;  // the largest that nine lines an inch have place for

}  // namespace

ReportPages RecordPages(const std::vector<ExpandedRecord>& records, const std::string& name) {
  ReportPages pages(kTitle, platform::Orientation::Landscape, kPoints);
  pages.PrintHeading = [&pages, &name] {
    pages.PrintLine(CourseTitleFromCode("C2"),
                    "          Page " + std::to_string(pages.PageNumber()));
    pages.PrintLine("STUDENT RECORDS: " + name);
    pages.PrintLine("Test Passing Grade: " + std::to_string(session.gTestPassPercent) + "%");
    pages.Skip(1);
    for (const std::string& line : PrintedColumnHeadings()) pages.PrintLine(line);
  };
  for (const ExpandedRecord& record : records) pages.PrintLine(PrintedLine(record));
  pages.PrintHeading = nullptr;  // it speaks of these pages, which move out now
  return pages;
}

void PrintRecords(int student) {
  const std::vector<ExpandedRecord> records = LoadRecords(student);
  if (records.empty()) return;
  const platform::Message question = {.text = "Turn printer on, then click OK",
                                      .title = kTitle,
                                      .buttons = platform::Buttons::OkCancel};
  if (platform::MessageBox(question) != platform::Answer::Ok) return;
  platform::PrintAfterPreview(RecordPages(records, NameOfLoaded()).Document());
}

}  // namespace course
