// Records as lines: titles, percents, grades, order, pages.
#include "records/record_report.h"

#include "records/record_forms_print.h"
#include "records/record_report_order.h"
#include "records/record_text.h"
#include "session/catalogue.h"
#include "support/course_fixture.h"
#include "support/expect_stop.h"

namespace course::testing {
namespace {

using Strings = std::vector<std::string>;

// Fields of a record that the tests vary; the rest is a practice of the first lesson.
struct Fields {
  const char* code = "C2";
  const char* student = "07";
  const char* mmddyy = "112226";
  const char* unit = "01";
  const char* lesson = "01";
  const char* attempted = "010";
  const char* correct = "008";
  const char* minutes = "012";
};

std::string Record(const Fields& fields) {
  return std::string(fields.code) + "99" + fields.student + fields.mmddyy + fields.unit +
         fields.lesson + fields.attempted + fields.correct + fields.minutes;
}

class RecordReportTest : public CourseTest {
 protected:
  void SetUp() override {
    CourseTest::SetUp();
    FillCourseTables();
  }
  static ExpandedRecord Expand(const Fields& fields) {
    return ExpandRecord(Record(fields), "Ada Byron");
  }
  static std::string Title(const Fields& fields) {
    return RecordTitle(Expand(fields), UnitTitles::None);
  }
  // Names by number: 1 "Bo", 2 "Ada", 3 nobody.
  static std::string NameFromNumber(int number) {
    return number == 1 ? "Bo" : number == 2 ? "Ada" : "";
  }
  // The minutes, which tell the records apart, in the order of a view.
  static std::vector<int> Order(const Strings& records, SortOrder order, SortDirection direction,
                                int student = kAllStudents) {
    std::vector<int> minutes;
    for (const ExpandedRecord& record :
         SelectRecords(records, student, NameFromNumber, order, direction))
      minutes.push_back(record.minutes);
    return minutes;
  }
};

TEST_F(RecordReportTest, TestsAreKnownByTheirOffsets) {
  const ExpandedRecord lessonTest = Expand({.unit = "03", .lesson = "52"});
  EXPECT_EQ(lessonTest.kind, RecordKind::LessonTest);
  EXPECT_EQ(lessonTest.lesson, 2);
  EXPECT_EQ(RecordTitle(lessonTest, UnitTitles::None), "Simplifying Expr.");
  const ExpandedRecord unitTest = Expand({.unit = "53", .lesson = "08"});
  EXPECT_EQ(unitTest.kind, RecordKind::UnitTest);
  EXPECT_EQ(unitTest.unit, 3);
  EXPECT_EQ(RecordTitle(unitTest, UnitTitles::None), "Unit 3: ");
  EXPECT_EQ(RecordTitle(unitTest, UnitTitles::Catalogue), "Unit 3: Equations");
  // The offset is 50 and more than 50 is a test; a lesson test goes before a unit test.
  EXPECT_EQ(Expand({.unit = "51", .lesson = "51"}).kind, RecordKind::LessonTest);
  EXPECT_EQ(Expand({.unit = "51", .lesson = "50"}).kind, RecordKind::UnitTest);
}

TEST_F(RecordReportTest, OtherCoursesHaveTitlesOfTheirOwn) {
  EXPECT_EQ(CourseTitleFromCode("C2"), "Algebra 1 - Groundwork Series");
  EXPECT_EQ(CourseTitleFromCode("P7"), "Entrance Exam Math");
  EXPECT_EQ(CourseTitleFromCode("S1"), "");
  // An old name, replaced before all else: its tests are tests.
  const ExpandedRecord old = Expand({.code = "S1", .lesson = "53"});
  EXPECT_EQ(old.code, "C7");
  EXPECT_EQ(old.kind, RecordKind::LessonTest);
  // The drill books know no tests, and numbers beyond our catalogue.
  EXPECT_EQ(Expand({.code = "P2", .lesson = "52"}).kind, RecordKind::Practice);
  EXPECT_EQ(Title({.code = "P2", .unit = "99", .lesson = "47"}), "Test...various prob types");
  EXPECT_EQ(Title({.code = "P2", .unit = "12", .lesson = "47"}), "");
}

TEST_F(RecordReportTest, FieldsThatCannotBeRightAreReadAsZeroOrStop) {
  const ExpandedRecord garbled =
      Expand({.unit = "x1", .lesson = "  ", .attempted = "1x3", .correct = "-12"});
  EXPECT_EQ(garbled.unit, 0);
  EXPECT_EQ(garbled.lesson, 0);
  EXPECT_EQ(garbled.attempted, 1);
  EXPECT_EQ(garbled.correct, 0);
  EXPECT_EQ(RecordTitle(garbled, UnitTitles::None), "");
  EXPECT_EQ(Title({.unit = "20", .lesson = "20"}), "");
  ExpectStop("RecordTitle: unit 21", [] { Title({.unit = "21"}); });
  ExpectStop("RecordTitle: unit 1, lesson 49", [] { Title({.lesson = "99"}); });
}

TEST_F(RecordReportTest, PercentsAndGrades) {
  EXPECT_EQ(PercentCorrect(0, 0), 100);
  EXPECT_EQ(PercentCorrect(3, 2), 67);
  EXPECT_EQ(PercentCorrect(200, 179), 90);  // 89.5
  EXPECT_EQ(PercentCorrect(1, 999), 99900);
  EXPECT_EQ(PracticeGrade(4, 100), " ");
  EXPECT_EQ(PracticeGrade(5, 100), "A");
  EXPECT_EQ(PracticeGrade(200, 90), "A");
  EXPECT_EQ(PracticeGrade(5, 89), "B");
  EXPECT_EQ(PracticeGrade(5, 80), "B");
  EXPECT_EQ(PracticeGrade(5, 79), "C");
  EXPECT_EQ(PracticeGrade(5, 70), "C");
  EXPECT_EQ(PracticeGrade(5, 69), "D");
}

TEST_F(RecordReportTest, LinesKeepTheirColumns) {
  const ExpandedRecord practice = Expand({});
  EXPECT_EQ(DisplayLine(practice),
            "  Ada Byron       112226  Order of Operations       Practice     10     8    80   "
            "         B    12");
  EXPECT_EQ(
      PrintedLine(practice),
      "  Ada Byron       112226  Order of Operations                   Practice     10     8  "
      "  80             B      12");
  EXPECT_EQ(SessionLine(practice),
            "Order of Operations          Practice      10        8       80");
  session.gTestPassPercent = 67;
  const ExpandedRecord test = ExpandRecord(
      Record(
          {.unit = "09", .lesson = "53", .attempted = "999", .correct = "666", .minutes = "999"}),
      "Wilhelmina Feathersto");
  EXPECT_EQ(DisplayLine(test),
            "  Wilhelmina Feath112226  Solving Systems by Subst  Lesson Test 999   666    67      "
            "     Yes  999");
  EXPECT_EQ(
      PrintedLine(test),
      "  Wilhelmina Feath112226  Solving Systems by Substitution       Lesson Test 999   666  "
      "  67             Yes   999");
  session.gTestPassPercent = 68;
  EXPECT_EQ(DisplayLine(test).substr(81, 14), "         No   ");
  EXPECT_EQ(PrintedLine(test).substr(93, 16), "           No   ");
}

TEST_F(RecordReportTest, EveryLineHasTheSameLength) {
  for (const char* lesson : {"01", "51"})
    for (const char* number : {"000", "001", "099", "999"}) {
      const ExpandedRecord record =
          Expand({.lesson = lesson, .attempted = "999", .correct = number, .minutes = number});
      EXPECT_EQ(DisplayLine(record).size(), 98u);
      EXPECT_EQ(PrintedLine(record).size(), 113u);
      EXPECT_EQ(SessionLine(record).size(), 63u);
    }
  // The rule under the headings parts the same columns: a blank before each, and before none else.
  const std::string rule = PrintedColumnHeadings().at(2);
  for (std::size_t column : {18, 26, 64, 76, 81, 87, 93})
    EXPECT_EQ(rule.substr(column - 1, 2), " -") << column;
}

TEST_F(RecordReportTest, RecordsAreSortedByWhatIsAskedFor) {
  using enum SortDirection;
  const Strings records = {
      Record({.student = "01", .mmddyy = "010227", .lesson = "02", .minutes = "001"}),
      Record({.student = "02", .mmddyy = "123126", .unit = "51", .minutes = "002"}),
      Record({.student = "01", .mmddyy = "123126", .correct = "010", .minutes = "003"}),
      Record({.student = "03",
              .mmddyy = "050526",
              .attempted = "000",
              .correct = "000",
              .minutes = "004"}),
      Record({.student = "01", .mmddyy = "123126", .correct = "010", .minutes = "005"}),
  };
  using Minutes = std::vector<int>;
  // Nobody before Ada before Bo; equal ones as in the file.
  EXPECT_EQ(Order(records, SortOrder::Name, Increasing), (Minutes{4, 2, 3, 5, 1}));
  EXPECT_EQ(Order(records, SortOrder::Name, Decreasing), (Minutes{1, 5, 3, 2, 4}));
  // The best first, and who attempted nothing last.
  EXPECT_EQ(Order(records, SortOrder::Percent, Decreasing), (Minutes{5, 3, 1, 2, 4}));
  // The year counts before the month.
  EXPECT_EQ(Order(records, SortOrder::Date, Increasing), (Minutes{4, 2, 3, 5, 1}));
  // "Order of ...", "Unit Test: ", "Using Exponents".
  EXPECT_EQ(Order(records, SortOrder::Lesson, Increasing), (Minutes{4, 3, 5, 2, 1}));
  EXPECT_EQ(Order(records, SortOrder::Date, Increasing, 1), (Minutes{3, 5, 1}));
  EXPECT_EQ(Order(records, SortOrder::Date, Increasing, 9), Minutes{});
}

TEST_F(RecordReportTest, KeysOfPercentsAreRoundedToThreeDigits) {
  const auto key = [](const char* attempted, const char* correct) {
    return SortKey(Expand({.attempted = attempted, .correct = correct}), SortOrder::Percent, 12);
  };
  const std::string rest = "Ada Byron            2611220012";
  EXPECT_EQ(key("200", "179"), "090" + rest);
  EXPECT_EQ(key("005", "000"), "000" + rest);
  EXPECT_EQ(key("000", "000"), "   " + rest);
}

TEST_F(RecordReportTest, AViewHasPlaceForAThousandRecords) {
  Strings records(1000, Record({.student = "01"}));
  records.insert(records.end(), 500, Record({.student = "02"}));
  EXPECT_EQ(Order(records, SortOrder::Name, SortDirection::Increasing, 1).size(), 1000u);
  ExpectStop("SelectRecords", [&] { Order(records, SortOrder::Name, SortDirection::Increasing); });
}

TEST_F(RecordReportTest, PagesBeginWithTheirHeading) {
  session.gTestPassPercent = 80;
  const std::vector<ExpandedRecord> records(70, Expand({}));
  const ReportPages pages = RecordPages(records, "Ada Byron");
  const platform::PrintDocument& document = pages.Document();
  EXPECT_EQ(document.orientation, platform::Orientation::Landscape);
  EXPECT_EQ(document.face, "Courier New");
  ASSERT_EQ(document.pages.size(), 2u);
  for (std::size_t i = 0; i < 2; ++i) {
    const platform::Page& page = document.pages[i];
    EXPECT_EQ(page[0].text, "Algebra 1 - Groundwork Series");
    EXPECT_EQ(page[1].text, "          Page " + std::to_string(i + 1));
    EXPECT_EQ(page[1].y, page[0].y);
    EXPECT_NEAR(page[1].x + platform::PrintedWidth(document, page[1].text), 10.5, 0.001);
    EXPECT_EQ(page[2].text, "STUDENT RECORDS: Ada Byron");
    EXPECT_EQ(page[3].text, "Test Passing Grade: 80%");
    EXPECT_EQ(page[6].text, PrintedColumnHeadings()[2]);
    EXPECT_EQ(page[7].text, PrintedLine(records[0]));
    // Nothing stands below the bottom limit or beyond the right margin.
    EXPECT_LE(page.back().y, 8.0);
    EXPECT_LE(page[6].x + platform::PrintedWidth(document, page[6].text), 10.5);
  }
  EXPECT_EQ(document.pages[0].size() + document.pages[1].size(), 70 + 2 * 7u);
}

TEST_F(RecordReportTest, AFullPageIsNotFollowedByAnEmptyOne) {
  std::size_t count = 0;
  std::vector<ExpandedRecord> records;
  do {
    records.push_back(Expand({}));
    count = RecordPages(records, "Ada").Document().pages.size();
  } while (count == 1);
  // The record that did not fit stands below the heading of its page.
  EXPECT_EQ(RecordPages(records, "Ada").Document().pages[1].size(), 8u);
}

TEST_F(RecordReportTest, OnlyTwoOrientationsExist) {
  const ReportPages portrait("Report", platform::Orientation::Portrait);
  EXPECT_EQ(portrait.Document().points, 12);
  ExpectStop("Stop Point 022",
             [] { ReportPages("Report", static_cast<platform::Orientation>(3)); });
}

}  // namespace
}  // namespace course::testing
