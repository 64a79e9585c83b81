// The tables that lessons and judges fill by themselves.
#include "lessons/registry.h"

#include <gtest/gtest.h>

#include "engine/title_table.h"
#include "session/catalogue.h"
#include "support/course_fixture.h"
#include "support/expect_stop.h"

namespace course::testing {
namespace {

class RegistryTest : public CourseTest {
 protected:
  // Each title with its place in the list.
  static TitleTable<int> TableOf(const std::vector<std::string_view>& titles) {
    TitleTable<int> table;
    int place = 0;
    for (const std::string_view title : titles) table.Add(title, ++place);
    return table;
  }
};

TEST_F(RegistryTest, RowsStandInTheOrderOfTheCourse) {
  auto table =
      TableOf({kBlankLesson, "Adding Fractions", "SIMPLE INEQUALITIES", "Order of Operations"});
  int place = 4;
  for (const auto& row : table.Rows()) EXPECT_EQ(row.value, place--) << row.title;
  EXPECT_EQ(table.Find("adding fractions")->value, 2);
  EXPECT_EQ(table.Find("Adding Fractions "), nullptr);
}

TEST_F(RegistryTest, ARowTooManyStops) {
  auto twice = TableOf({"ORDER OF OPERATIONS", "Addition", "Order of Operations"});
  ExpectStop("TitleTable: \"O", [&] { twice.Rows(); });
  auto unknown = TableOf({"Order of Operation"});
  ExpectStop("TitleTable: the catalogue has no lesson \"Order of Operation\"",
             [&] { unknown.Rows(); });
  auto late = TableOf({"Addition"});
  late.Rows();
  ExpectStop("TitleTable: \"Multiplication\" comes after the table was read",
             [&] { late.Add("Multiplication", 2); });
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
