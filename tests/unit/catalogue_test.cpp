#include "session/catalogue.h"

#include <gtest/gtest.h>

#include <map>
#include <set>
#include <string>

#include "mathkit/tutor_codes.h"
#include "session/session.h"
#include "support/course_fixture.h"

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

TEST_F(CatalogueTest, TwelveOfThirteenUnitsAreListed) {
  EXPECT_EQ(session.gUnitCount, 12);
  EXPECT_EQ(session.gDiagnosticProbCount, 30);
  const int rows[] = {6, 4, 8, 7, 6, 5, 8, 6, 4, 4, 3, 4, 5};
  for (int unit = 1; unit <= 13; ++unit) {
    EXPECT_EQ(session.gLessonCount[unit], rows[unit - 1]) << session.gUnitName[unit];
    EXPECT_FALSE(session.gUnitName[unit].empty());
    EXPECT_EQ(session.gLessonTitle[unit][rows[unit - 1]], "Unit Test");
    EXPECT_EQ(session.gLessonShortTitle[unit][rows[unit - 1]], "Unit Test");
    EXPECT_EQ(session.gLessonTitle[unit][rows[unit - 1] + 1], "");
    EXPECT_EQ(CatalogueScreens(unit, rows[unit - 1]), 0);
  }
  EXPECT_EQ(session.gUnitName[13], "Rational Expressions");
  EXPECT_EQ(session.gUnitName[14], "");
}

TEST_F(CatalogueTest, SeventyTwoLessonsHaveAScript) {
  const std::map<std::string, int> screens = ScreensByKey();
  EXPECT_EQ(screens.size(), 72u);  // no title stands twice
  int total = 0;
  for (const auto& [title, count] : screens) {
    EXPECT_GE(count, 1) << title;
    EXPECT_LE(count, 10) << title;
    total += count;
  }
  EXPECT_EQ(total, 200);
  EXPECT_EQ(screens.at("SIMPLE INEQUALITIES"), 2);
  EXPECT_EQ(screens.at("SOLVING QUADRATIC EQUATIONS"), 7);
  EXPECT_EQ(screens.at("FINDING THE GCF AND LCM"), 10);
  EXPECT_EQ(screens.at("WORD PROBLEMS INVOLVING PERCENT"), 4);
  EXPECT_EQ(CatalogueScreens(10, 1), 2);
  EXPECT_EQ(CatalogueScreens(13, 1), 0);
  EXPECT_EQ(CatalogueScreens(0, 1), 0);
  EXPECT_EQ(CatalogueScreens(14, 1), 0);
  EXPECT_EQ(CatalogueScreens(1, 0), 0);
}

TEST_F(CatalogueTest, TheSquareIsOneByte) {
  EXPECT_EQ(session.gLessonTitle[7][3], "Trinomials of the Form x" + Chr(178) + "+bx+c");
  EXPECT_EQ(session.gLessonTitle[7][4], "Trinomials of the Form ax" + Chr(178) + "+bx+c");
  EXPECT_EQ(session.gLessonShortTitle[7][4].size(), std::string("Trinomials: ax2+bx+c").size());
  EXPECT_EQ(UpperCase(session.gLessonTitle[7][3]), "TRINOMIALS OF THE FORM X\xB2+BX+C");
}

TEST_F(CatalogueTest, DiagnosticProblemsAllHaveAScript) {
  FillDiagnosticTable();
  EXPECT_EQ(session.gDiagnosticStatus, 1);
  const std::map<std::string, int> screens = ScreensByKey();
  const std::map<int, std::string> seeds = {{10, "32258"}, {17, "32329"}, {19, "15380"},
                                            {20, "2950"},  {21, "28024"}, {22, "24029"},
                                            {26, "29165"}, {28, "16678"}};
  std::set<std::string> reached;
  for (int row = 1; row <= 30; ++row) {
    const auto& problem = session.gDiagnosticData[row];
    EXPECT_TRUE(screens.contains(problem[diagnostic_column::Title])) << row;
    EXPECT_EQ(problem[diagnostic_column::Seed], seeds.contains(row) ? seeds.at(row) : "1") << row;
    EXPECT_EQ(problem[diagnostic_column::StudentLetter], " ");
    EXPECT_EQ(problem[diagnostic_column::CorrectLetter], " ");
    reached.insert(problem[diagnostic_column::Title]);
  }
  // What only this test reaches must be in it.
  for (const CatalogueLesson& lesson : DiagnosticLessons()) {
    EXPECT_TRUE(reached.contains(UpperCase(std::string(lesson.title)))) << lesson.title;
  }
  EXPECT_EQ(session.gDiagnosticData[1][diagnostic_column::Title], "ADDING WHOLE NUMBERS");
  EXPECT_EQ(session.gDiagnosticData[30][diagnostic_column::Title], "MULTIPLYING WITH EXPONENTS");
}

}  // namespace
}  // namespace course
