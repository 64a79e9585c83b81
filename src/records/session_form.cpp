#include "records/session_form.h"

#include <string>
#include <vector>

#include "platform/dialogs.h"
#include "records/form_parts.h"
#include "records/list_columns.h"
#include "records/record_report.h"
#include "session/session.h"

namespace course {
namespace {

using platform::Label;

constexpr const char* kTitle = "Session Results";
constexpr int kSessionPercent = 70;

constexpr ListView::Layout kLayout = {.name = "frmDisplaySession",
                                      .width = 564,  // 63 characters and a scroll bar
                                      .labelHeight = 50,
                                      .rows = 15,
                                      .rowHeight = 22,
                                      .points = 11};

using enum Label::Align;
constexpr ColumnLabel kColumns[] = {
    {"lblLesson", "\n\nLesson", 0, 27, Left},
    {"lblActivity", "\n\nActivity", 29, 40, Left},
    {"lblAttempted", "# of Probs\nAttempted", 35, 45, Right},
    {"lblCorrect", "# of\nCorrect\nAnswers", 46, 54, Right},
    {"lblPercent", "\nPercent\nCorrect", 55, 63, Right},
};

std::vector<std::string> SessionLines() {
  if (session.gSessionRecordCount == 0) return {"No records found"};
  std::vector<std::string> lines;
  for (const std::string& entry : session.gSessionRecords)
    lines.push_back(SessionLine(ExpandRecord(entry, "")));
  return lines;
}

}  // namespace

void ShowSession() {
  session.gTestPassPercent = kSessionPercent;
  ListView view(kLayout, kTitle, kTitle);
  const ColumnLabels columns = MakeColumnLabels(view.lstRecords, kColumns, kLayout.labelHeight);
  view.lstRecords.SetAccessibleName(kTitle);
  view.MakeClose("Close");
  view.Show(SessionLines());
  view.form.ShowModal();
}

void ClearSession() {
  const platform::Message question = {
      .text = "Are you sure you want to clear this session's records?",
      .title = kTitle,
      .buttons = platform::Buttons::YesNo,
      .icon = platform::Icon::Question};
  if (platform::MessageBox(question) != platform::Answer::Yes) return;
  session.gSessionRecords.clear();
  session.gSessionRecordCount = 0;
}

}  // namespace course
