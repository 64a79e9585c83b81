#include "shell/record_hooks.h"

#include "engine/hooks.h"
#include "records/activity_records.h"
#include "records/diagnostic_file.h"
#include "session/session.h"
#include "shell/progress_marks.h"

namespace course {

void BindRecords(StartUp& startUp) {
  engineHooks.SavePracticeRecord = records::SavePracticeRecord;
  engineHooks.SaveTestRecord = records::SaveTestRecord;
  engineHooks.SaveDiagnosticRecord = records::SaveDiagnosticRecord;
  startUp.MakeDataFiles = MakeDiagnosticFile;
  startUp.ReadProgress = [] { ReadStudentProgress(session.gClassNum, session.gStudentNum); };
  recordHooks.RefreshProgress = [] {
    if (frmMenu) DrawProgressMarks();
  };
}

}  // namespace course
