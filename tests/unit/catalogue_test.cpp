#include "session/catalogue.h"

#include <gtest/gtest.h>

#include <map>
#include <set>
#include <string>

#include "mathkit/tutor_codes.h"
#include "session/session.h"
#include "support/course_fixture.h"
#include "support/kept_text.h"

namespace course {
namespace {

class CatalogueTest : public testing::CourseTest {
 protected:
  void SetUp() override {
    CourseTest::SetUp();
    FillCourseTables();
  }

  // Upper-cased titles of all lessons with a script, with their screens.
  static std::map<std::string, int> ScreensByKey() {
    std::map<std::string, int> screens;
    for (const auto& [title, count] : CatalogueLessons())
      screens[UpperCase(std::string(title))] = count;
    return screens;
  }
};

// tests/golden/catalogue.txt: the thirteen units, what only the diagnostic test reaches, and that
// test's problems.
TEST_F(CatalogueTest, ReadsAsKept) {
  FillDiagnosticTable();
  std::string text;
  for (int unit = 1; unit <= 14; ++unit) {
    text += "== " + std::to_string(unit) + " " + session.gUnitName[unit] + "\n";
    for (int row = 1; row <= session.gLessonCount[unit] + 1; ++row)
      text += session.gLessonTitle[unit][row] + " | " + session.gLessonShortTitle[unit][row] +
              " | " + std::to_string(CatalogueScreens(unit, row)) + "\n";
  }
  for (const CatalogueLesson& lesson : DiagnosticLessons())
    text += std::string(lesson.title) + " | " + std::to_string(lesson.screens) + "\n";
  for (int row = 1; row <= session.gDiagnosticProbCount; ++row)
    for (const std::string& field : session.gDiagnosticData[row])
      text += field + (&field == &session.gDiagnosticData[row].back() ? "\n" : " | ");
  testing::ExpectKept(ToUtf8(text), "tests/golden/catalogue.txt", "COURSE_BLESS");
}

TEST_F(CatalogueTest, SeventyTwoLessonsHaveAScript) {
  EXPECT_EQ(session.gUnitCount, 12);
  EXPECT_EQ(ScreensByKey().size(), 72u);  // no title stands twice
  EXPECT_EQ(CatalogueScreens(13, 1), 0);
  EXPECT_EQ(CatalogueScreens(0, 1), 0);
  EXPECT_EQ(CatalogueScreens(14, 1), 0);
  EXPECT_EQ(CatalogueScreens(1, 0), 0);
  // In bytes the raised 2 is one.
  EXPECT_EQ(UpperCase(session.gLessonTitle[7][3]), "TRINOMIALS OF THE FORM X\xB2+BX+C");
}

TEST_F(CatalogueTest, TheDiagnosticTestReachesEveryLessonOutsideOfTheUnits) {
  FillDiagnosticTable();
  EXPECT_EQ(session.gDiagnosticStatus, 1);
  const std::map<std::string, int> screens = ScreensByKey();
  std::set<std::string> reached;
  for (int row = 1; row <= 30; ++row) {
    const std::string& title = session.gDiagnosticData[row][diagnostic_column::Title];
    EXPECT_TRUE(screens.contains(title)) << row;
    reached.insert(title);
  }
  for (const CatalogueLesson& lesson : DiagnosticLessons())
    EXPECT_TRUE(reached.contains(UpperCase(std::string(lesson.title)))) << lesson.title;
}

}  // namespace
}  // namespace course
