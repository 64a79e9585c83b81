// Records as lines: titles, percents, grades, order, pages.
#include "records/record_report.h"

#include "records/record_forms_print.h"
#include "records/record_report_order.h"
#include "records/record_text.h"
#include "session/catalogue.h"
#include "support/course_fixture.h"
#include "support/expect_stop.h"
#include "support/kept_text.h"

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

// tests/golden/record_lines.txt: kinds, titles and columns, at a passing percent of 67.
TEST_F(RecordReportTest, LinesReadAsKept) {
  session.gTestPassPercent = 67;
  const std::pair<Fields, std::string> records[] = {
      {{}, "Ada Byron"},
      {{.unit = "03", .lesson = "52", .correct = "006"}, ""},
      {{.unit = "09", .lesson = "53", .attempted = "999", .correct = "666", .minutes = "999"},
       "Wilhelmina Feathersto"},
      {{.unit = "53", .lesson = "08", .correct = "001", .minutes = "001"}, "Ada Byron"},
      {{.unit = "51", .lesson = "20"}, "Ada Byron"},
      {{.attempted = "000", .correct = "000", .minutes = "000"}, "Ada Byron"},
      {{.attempted = "999", .correct = "999"}, "Ada Byron"},
      // An old name of another course, replaced before all else: its tests are tests.
      {{.code = "S1", .lesson = "53"}, "Ada Byron"},
      // The drill books know no tests, and numbers beyond our catalogue.
      {{.code = "P2", .lesson = "52"}, "Ada Byron"},
      {{.code = "P2", .unit = "99", .lesson = "47"}, "Ada Byron"},
      {{.code = "P2", .unit = "12", .lesson = "47"}, "Ada Byron"},
      // Fields that cannot be right.
      {{.unit = "x1", .lesson = "  ", .attempted = "1x3", .correct = "-12"}, "Ada Byron"},
      {{.unit = "20", .lesson = "20"}, "Ada Byron"},
  };
  std::string text;
  for (const std::string& heading : PrintedColumnHeadings()) text += heading + "|\n";
  for (const auto& [fields, name] : records) {
    const ExpandedRecord record = ExpandRecord(Record(fields), name);
    text += record.code + ": " + RecordTitle(record, UnitTitles::None) + "|\n" +
            PrintedLine(record) + "|\n" + DisplayLine(record) + "|\n" + SessionLine(record) + "|\n";
  }
  ExpectKept(text, "tests/golden/record_lines.txt", "COURSE_BLESS");
}

TEST_F(RecordReportTest, KindsAndTitlesAtTheirLimits) {
  EXPECT_EQ(CourseTitleFromCode("C2"), "Algebra 1 - Groundwork Series");
  EXPECT_EQ(CourseTitleFromCode("P7"), "Entrance Exam Math");
  EXPECT_EQ(CourseTitleFromCode("S1"), "");
  // More than 50 is a test; a lesson test goes before a unit test.
  EXPECT_EQ(Expand({.unit = "51", .lesson = "51"}).kind, RecordKind::LessonTest);
  EXPECT_EQ(Expand({.unit = "51", .lesson = "50"}).kind, RecordKind::UnitTest);
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
