#include <gtest/gtest.h>

#include "records/rosters.h"
#include "support/expect_stop.h"
#include "support/record_fixture.h"

namespace course {
namespace {

using testing::ExpectStop;
using Strings = std::vector<std::string>;

const std::string kGap(100, ' ');

std::string Filled(std::string text, std::size_t width) {
  text.resize(width, ' ');
  return text;
}

// A record of a local roster.
std::string Local(const std::string& name, const std::string& number) {
  return Filled(name, 21) + Filled(number, 2) + "99";
}

class RostersTest : public testing::RecordsTest {
 protected:
  std::string File() const { return folder.Bytes("STUDENTS.DAT"); }
};

TEST_F(RostersTest, StudentsAreWrittenByteByByte) {
  EXPECT_EQ(MakeStudentRecord("Ada", 7), "Ada                  7 99");
  EXPECT_EQ(MakeStudentRecord("Bartholomew Featherstone-Hay", 12), "Bartholomew Featherst1299");
  FileAddStudent("Ada");
  FileAddStudent("Ben");
  EXPECT_EQ(File(), "Ada                  1 99Ben                  2 99");
}

TEST_F(RostersTest, FreedNumbersAreUsedAgain) {
  for (const char* name : {"Ada", "Ben", "Cleo", "Dan", "Eve"}) FileAddStudent(name);
  FileDeleteStudent(3, DeleteMode::OneStudent);
  EXPECT_EQ(File(), Local("Ada", "1") + Local("Ben", "2") + Local("Dan", "4") + Local("Eve", "5"));
  FileAddStudent("Fay");
  EXPECT_EQ(File().substr(100), Local("Fay", "3"));
  EXPECT_EQ(StudentNameFromNumber(3), Filled("Fay", 21));
  EXPECT_EQ(StudentNameFromNumber(6), "");
  EXPECT_TRUE(StudentNumberExists(5));
  EXPECT_FALSE(StudentNumberExists(6));
}

TEST_F(RostersTest, RenamingReachesEverybodyWithTheNumber) {
  folder.Put("STUDENTS.DAT",
             Local("Ada", "1") + Local("Ben", "12") + Local("Old", "12") + Local("Cleo", "2"));
  FileEditStudent(12, "Bartholomew Featherstone-Hay");
  EXPECT_EQ(File(), Local("Ada", "1") + Local("Bartholomew Featherst", "12") +
                        Local("Bartholomew Featherst", "12") + Local("Cleo", "2"));
}

TEST_F(RostersTest, WorkFileIsNeitherShortenedNorRemoved) {
  folder.Put("STUDENTS.TMP", std::string(60, 'x'));
  folder.Put("STUDENTS.DAT", Local("Ada", "1") + Local("Ben", "2"));
  FileDeleteStudent(1, DeleteMode::OneStudent);
  EXPECT_EQ(File(), Local("Ben", "2"));
  EXPECT_EQ(folder.Bytes("STUDENTS.TMP"), Local("Ben", "2") + std::string(35, 'x'));
  FileDeleteStudent(0, DeleteMode::All);
  EXPECT_EQ(File(), "");
  EXPECT_EQ(folder.Bytes("STUDENTS.TMP").size(), 60U);
}

TEST_F(RostersTest, LocalItemsHideTheNumberBehindTheGap) {
  EXPECT_EQ(CountStudents(), 0);
  EXPECT_EQ(File(), "");
  EXPECT_EQ(ReadStudents(99), Strings{});
  folder.Put("STUDENTS.DAT", Local("Zoe", "12") + Local("Ada", "7"));
  const Strings items = ReadStudents(99);
  EXPECT_EQ(items, (Strings{Filled("Zoe", 21) + kGap + "12", Filled("Ada", 21) + kGap + "7 "}));
  EXPECT_EQ(StudentListItems(), items);
  EXPECT_EQ(StudentNumberOf(items[1]), 7);
  EXPECT_EQ(StudentNameOf(items[1]), Filled("Ada", 21));
  EXPECT_EQ(CountStudents(), 2);
}

TEST_F(RostersTest, LargerHalfOfATailIsAStudentForTheLocalLogin) {
  folder.Put("STUDENTS.DAT", Local("Ada", "1") + "Ben         ");
  EXPECT_EQ(ReadStudents(99).size(), 1U);
  folder.Put("STUDENTS.DAT", Local("Ada", "1") + "Ben          ");
  EXPECT_EQ(ReadStudents(99),
            (Strings{Filled("Ada", 21) + kGap + "1 ", Filled("Ben", 21) + kGap + "  "}));
  EXPECT_EQ(CountStudents(), 1);
  EXPECT_EQ(StudentListItems().size(), 1U);
  FileAddStudent("Cleo");
  EXPECT_EQ(File(), Local("Ada", "1") + Local("Cleo", "2"));
}

TEST_F(RostersTest, NetworkStudentsComeByClassWithTheirPassword) {
  session.gversion = 3;
  folder.Put("students.dat", Filled("Ada", 21) + "7 12" + "KL;   " +       //
                                 Filled("Ben", 21) + "8 11" + "KL;   " +   //
                                 Filled("Cleo", 21) + "1012" + "      " +  //
                                 Filled("Torn", 21));
  const Strings items = ReadStudents(12);
  EXPECT_EQ(items, (Strings{Filled("Ada", 21) + kGap + "7 KL;   ",
                            Filled("Cleo", 21) + kGap + "10      "}));
  EXPECT_EQ(StudentNumberOf(items[1]), 10);
  EXPECT_EQ(PasswordOf(items[0]), "AB1");
  EXPECT_EQ(PasswordOf(items[1]), "");
}

TEST_F(RostersTest, ClassesHidePercentAndNumber) {
  session.gversion = 3;
  folder.Put("classes.dat", Filled("Algebra Monday", 25) + "??75 12" +  //
                                Filled("Evening", 25) + "     3 " + Filled("Odd", 25) + "  7.513");
  const Strings items = ReadClasses();
  EXPECT_EQ(items[0], Filled("Algebra Monday", 25) + kGap + "75 12");
  EXPECT_EQ(items[0].size(), 130U);
  EXPECT_EQ(ClassNameOf(items[0]), Filled("Algebra Monday", 25));
  EXPECT_EQ(ClassNumberOf(items[0]), 12);
  EXPECT_EQ(ClassPercentOf(items[0]), 75);
  EXPECT_EQ(ClassNumberOf(items[1]), 3);
  EXPECT_EQ(ClassPercentOf(items[1]), 60);
  EXPECT_EQ(ClassPercentOf(items[2]), 60);
  EXPECT_EQ(session.gClassNum, 0);
  EXPECT_EQ(session.gClassName, "");
}

TEST_F(RostersTest, AHundredClassesAndAnUnreadableFolderEndTheProgram) {
  session.gversion = 3;
  folder.Put("CLASSES.DAT", std::string(99 * 32, '1'));
  EXPECT_EQ(ReadClasses().size(), 99U);
  folder.Put("CLASSES.DAT", std::string(100 * 32, '1'));
  ExpectStop("Failed in attempt to read file CLASSES.DAT", ReadClasses);
  session.gDataPath = folder.Path() + "missing/";
  ExpectStop("Failed in attempt to read file CLASSES.DAT", ReadClasses);
  ExpectStop("Failed in attempt to read file STUDENTS.DAT", [] { ReadStudents(1); });
  ExpectStop("Failed in attempt to read file STUDENTS.DAT", [] { CountStudents(); });
  ExpectStop("Failed in attempt to read file STUDENTS.DAT", [] { StudentNameFromNumber(1); });
}

}  // namespace
}  // namespace course
