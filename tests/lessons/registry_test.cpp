// The tables that lessons and judges fill by themselves.
#include "lessons/registry.h"

#include <gtest/gtest.h>

#include "engine/title_table.h"
#include "session/catalogue.h"
#include "support/course_fixture.h"
#include "support/expect_stop.h"

namespace course::testing {
namespace {

using Rows = std::vector<TitledRow<int>>;

class RegistryTest : public CourseTest {};

TEST_F(RegistryTest, RowsStandInTheOrderOfTheCourse) {
  const Rows rows = InCourseOrder(Rows{{kBlankLesson, 4},
                                       {"Adding Fractions", 3},
                                       {"SIMPLE INEQUALITIES", 2},
                                       {"Order of Operations", 1}});
  for (std::size_t i = 0; i < rows.size(); ++i) EXPECT_EQ(rows[i].value, static_cast<int>(i) + 1);
  EXPECT_EQ(FindTitle(rows, "adding fractions")->value, 3);
  EXPECT_EQ(FindTitle(rows, "Adding Fractions "), nullptr);
}

TEST_F(RegistryTest, ARowTooManyStops) {
  ExpectStop("InCourseOrder: \"ORDER OF OPERATIONS\" stands twice", [] {
    InCourseOrder(Rows{{"ORDER OF OPERATIONS", 1}, {"Addition", 2}, {"ORDER OF OPERATIONS", 3}});
  });
  ExpectStop("InCourseOrder: the catalogue has no lesson \"Order of Operation\"", [] {
    InCourseOrder(Rows{{"Order of Operation", 1}});
  });
}

TEST_F(RegistryTest, LessonsHaveTheScreensThatTheCatalogueTells) {
  std::size_t lessons = 0;
  for (const auto& [title, screens] : CatalogueLessons()) {
    const auto lesson = MakeLesson(title);
    if (!lesson) continue;
    ++lessons;
    EXPECT_EQ(lesson->ScreenCount(), screens) << title;
  }
  EXPECT_EQ(LessonTitles().size(), lessons + 1);  // the blank one is in no catalogue
  EXPECT_EQ(LessonTitles().back(), kBlankLesson);
}

TEST_F(RegistryTest, ALessonIsFoundWhateverTheCaseAndSpellsItsTitle) {
  EXPECT_EQ(MakeLesson("sOLVING lINEAR eQUATIONS WITH 2 oPERATIONS")->Title(),
            "Solving Linear Equations with 2 Operations");
  EXPECT_EQ(MakeLesson("Simple Inequalities "), nullptr);
  EXPECT_EQ(MakeLesson("Properties of Inequalities"), nullptr);
}

}  // namespace
}  // namespace course::testing
