#include "session/session.h"

namespace course {

Session session;

void ClearTestBlock(Session& s) {
  s.gLessonTest = 0;
  s.gLessonTestProb = 0;
  s.gLessonTestReviewNum = 0;
  s.gLessonTestReviewExplain = 0;
  s.gChapterTest = 0;
  s.gChapterTestProb = 0;
  s.gChapterTestStatus = 0;
  s.gChapterTestReviewNum = 0;
  s.gChapterTestReviewExplain = 0;
}

bool TestRunning(const Session& s) {
  return s.gLessonTest == 1 || s.gChapterTest == 1 || s.gDiagnosticTest == 1;
}

}  // namespace course
