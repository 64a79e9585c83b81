// A folder of record files for one test, and a student of class 99 who works there.
#pragma once

#include "support/course_fixture.h"
#include "support/scratch_folder.h"

namespace course::testing {

class RecordsTest : public CourseTest {
 protected:
  void SetUp() override {
    CourseTest::SetUp();
    session.gversion = 2;
    session.gDataPath = folder.Path();
    session.gRecordKeepingEnabled = 1;
    session.gClassNum = 99;
    session.gStudentNum = 7;
    session.gClassName = "Non-Network";
    session.gStudentName = "Ada                  ";
    session.gUnitCount = 12;
    session.gLessonCount.fill(8);
    // Pauses are there, and pass quickly.
    user.OnPause = [this](double) { clock.Advance(1); };
  }

  ScratchFolder folder;
};

}  // namespace course::testing
