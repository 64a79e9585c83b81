#include "lesson_lab/form_gallery.h"

#include <filesystem>
#include <fstream>

#include "assessment/lesson_test_results.h"
#include "assessment/test_prob_review.h"
#include "assessment/unit_test_results.h"
#include "assessment/unit_test_start.h"
#include "engine/navigation.h"
#include "engine/result_form.h"
#include "guidance/dpi_alert_form.h"
#include "guidance/guidance_forms.h"
#include "lessons/docs/docs_form.h"
#include "lessons/docs/docs_topics.h"
#include "lessons/docs/gallery_form.h"
#include "lessons/docs/layout_form.h"
#include "lessons/docs/tutor_chars_form.h"
#include "platform/printer.h"
#include "records/activity_records.h"
#include "records/diagnostic_file.h"
#include "records/diagnostic_forms.h"
#include "records/diagnostic_report_paper.h"
#include "records/login_form.h"
#include "records/login_form_network.h"
#include "records/login_form_password.h"
#include "records/record_forms.h"
#include "records/record_forms_print.h"
#include "records/record_forms_view.h"
#include "records/record_load.h"
#include "records/record_text.h"
#include "records/rosters.h"
#include "records/session_form.h"
#include "records/student_form.h"
#include "records/student_form_add.h"
#include "session/catalogue.h"
#include "session/session.h"
#include "shell/start_forms.h"
#include "shell/tour_steps.h"

namespace lesson_lab {
namespace {

using course::Digits;
using course::Padded;
using course::session;

constexpr int kStudents = 30;
constexpr int kLongUnit = 9;  // its short titles are the longest

std::string LongName() {
  return "A" + std::string(course::kStudentNameLength - 1, 'W');  // the first of a list
}

void Put(const std::string& path, const std::string& bytes) {
  std::ofstream(path, std::ios::binary) << bytes;
}

std::string Name(int i) {
  return i == 1 ? LongName() : "Student " + std::to_string(i);
}

// A record of practice, of a lesson test, of a unit test, in turn.
std::string Activity(int i) {
  const int kind = i % 3;
  const int lessons = session.gLessonCount[kLongUnit];
  const int lesson = kind == 2 ? lessons : i % (lessons - 1) + 1;
  return "C299" + Digits(i % kStudents + 1, 2) + "0115" + Digits(i % 100, 2) +
         Digits(kLongUnit + (kind == 2 ? 50 : 0), 2) + Digits(lesson + (kind == 1 ? 50 : 0), 2) +
         Digits(i < 3 ? 999 : 20, 3) + Digits(i < 3 ? 999 : i % 21, 3) +
         Digits(i < 3 ? 999 : 12, 3);
}

std::string Result(int student, char letter) {
  return "C299" + Digits(student, 2) + "011526" + std::string(15, letter) + std::string(15, 'A') +
         std::string(30, 'A');
}

// The files of a machine on its own.
void FillFolder(const std::string& folder) {
  std::filesystem::create_directories(folder + "network");
  std::string students;
  std::string activities;
  std::string results;
  for (int i = 1; i <= kStudents; ++i) {
    students += course::MakeStudentRecord(Name(i), i);
    results += Result(i, "AB"[i % 2]);
  }
  for (int i = 0; i < 200; ++i) activities += Activity(i);
  Put(folder + "STUDENTS.DAT", students);
  Put(folder + "RECORDS.DAT", activities);
  Put(folder + "Diag.dat", results);
}

// The files of a network, in a folder below it.
void FillNetwork(const std::string& folder) {
  std::string classes;
  std::string students;
  for (int i = 1; i <= kStudents; ++i) {
    const std::string name = i == 1 ? "A" + std::string(24, 'W') : "Period " + std::to_string(i);
    classes += Padded(name, 25) + "  60 " + Digits(i, 2);
    students += Padded(Name(i), 21) + Digits(i, 2) + "01      ";
  }
  Put(folder + "CLASSES.DAT", classes);
  Put(folder + "STUDENTS.DAT", students);
}

// --- Start, login and help --------------------------------------------------------------------

void ShowNetworkLogin(const std::string& folder) {
  session.gversion = 3;
  session.gDataPath = folder + "network/";
  course::NetworkLoginForm(course::ReadClasses()).form.ShowModal();
}

void ShowPassword() {
  session.gStudentName = LongName();
  course::PasswordForm().ShowModal();
}

void ShowStudentName() {
  course::AddStudentForm("Edit Student Name",
                         "In the box below, enter new name of student: " + LongName(), LongName(),
                         {})
      .ShowModal();
}

void ShowDpiAlertOf(const std::string& system) {
  session.gWindowsVersionName = system;
  course::ShowDpiAlert();
}

// --- Records -------------------------------------------------------------------------------------

void ShowSession(int entries) {
  for (int i = 0; i < entries; ++i) session.gSessionRecords.push_back(Activity(i) + "P36000");
  session.gSessionRecordCount = entries;
  course::ShowSession();
}

std::vector<course::DiagnosticResult> Results() {
  return {{Result(1, 'B'), LongName()}, {Result(2, 'A'), "Student 2"}};
}

platform::PrintDocument PrintedRecords() {
  const auto records = course::LoadRecords(course::kAllStudents);
  return course::RecordPages(records, course::NameOfLoaded()).Document();
}

void UseFolder(const std::string& folder) {
  session = course::Session{};
  course::FillCourseTables();
  session.gversion = 2;
  session.gDataPath = folder;
}

// --- Lessons and tests ---------------------------------------------------------------------------

// What is shown before the lesson window.
void InLesson(const std::function<void()>& show) {
  session.gUnitNum = 3;
  session.gLessonName = "Solving Linear Equations With 2 Operations";  // the longest title
  session.gChosenTitle = session.gLessonName;
  course::LoadLessonWindow();
  show();
  course::UnloadLessonWindow();
}

void InLessonTest(int review, const std::function<void()>& show) {
  session.gLessonTest = 1;
  session.gLessonTestReviewNum = review;
  for (int i = 1; i <= course::kLessonTestProblems; ++i)
    session.gLessonTestAnswers.at(static_cast<std::size_t>(i)) = {"A", i % 2 == 1 ? "A" : "E"};
  InLesson(show);
}

// So many problems, as many a lesson of a unit as that gives.
void InUnitTest(int unit, int problems, int review, const std::function<void()>& show) {
  const int lessons = session.gLessonCount.at(static_cast<std::size_t>(unit)) - 1;
  session.gChapterTest = 1;
  session.gChapterTestProbCount = problems;
  session.gChapterTestReviewNum = review;
  for (int i = 1; i <= problems; ++i) {
    auto& row = session.gChapterTestData.at(static_cast<std::size_t>(i));
    const auto lesson = static_cast<std::size_t>((i - 1) * lessons / problems + 1);
    row[course::unit_test_column::Title] =
        session.gLessonTitle.at(static_cast<std::size_t>(unit)).at(lesson);
    row[course::unit_test_column::ShortTitle] =
        session.gLessonShortTitle.at(static_cast<std::size_t>(unit)).at(lesson);
    row[course::unit_test_column::CorrectLetter] = "A";
    row[course::unit_test_column::StudentLetter] = i % 3 == 0 ? "E" : "A";
  }
  InLesson([unit, &show] {
    session.gUnitNum = unit;
    show();
  });
}

void ShowVerdict(course::Verdict verdict) {
  session.gActivity = course::activity::Practice;
  InLesson([verdict] { course::ShowResultForm(verdict); });
}

std::vector<std::string> TopicNames() {
  std::vector<std::string> names;
  for (const course::Topic& topic : course::DocsTopics()) names.push_back(topic.module);
  return names;
}

}  // namespace

std::vector<GalleryForm> ModalForms(const std::string& folder) {
  course::FillCourseTables();
  FillFolder(folder);
  FillNetwork(folder + "network/");
  using namespace course;
  std::vector<GalleryForm> forms = {
      {"logo", ShowLogo},
      {"welcome", ShowWelcome},
      {"login", [] { LoginForm(ReadStudents(0)).form.ShowModal(); }},
      {"network_login", [folder] { ShowNetworkLogin(folder); }},
      {"password", ShowPassword},
      {"students", ShowStudents},
      {"student_name", ShowStudentName},
      {"records", [] { ShowRecords(nullptr); }},
      {"record_view", [] { ShowRecordView(kAllStudents, "STUDENT RECORDS: All Students"); }},
      {"record_view_one", [] { ShowRecordView(1, "STUDENT RECORDS: " + LongName()); }},
      {"record_preview", [] { platform::PrintAfterPreview(PrintedRecords()); }},
      {"session", [] { lesson_lab::ShowSession(40); }},
      {"session_empty", [] { lesson_lab::ShowSession(0); }},
      {"diagnostics", ShowDiagnostics},
      {"diagnostic_report", [] { ShowDiagnosticReport(LongName(), Results()); }},
      {"diagnostic_preview", [] { platform::PrintAfterPreview(DiagnosticDocument(Results())); }},
      {"correct", [] { ShowVerdict(Verdict::Correct); }},
      {"incorrect", [] { ShowVerdict(Verdict::Incorrect); }},
      {"explained", [] { ShowVerdict(Verdict::None); }},
      {"lesson_test_results", [] { InLessonTest(0, ShowLessonTestResultsForm); }},
      {"lesson_test_review", [] { InLessonTest(5, ShowTestProbReviewForm); }},
      {"unit_test_start", [] { InUnitTest(kLongUnit, 0, 0, ShowUnitTestStartForm); }},
      {"unit_test_results", [] { InUnitTest(kLongUnit, 20, 0, ShowUnitTestResultsForm); }},
      {"unit_test_results_14", [] { InUnitTest(7, 14, 0, ShowUnitTestResultsForm); }},
      {"help", ShowHelp},
      {"dpi_alert", [] { ShowDpiAlertOf("XP"); }},
      {"dpi_alert_unknown", [] { ShowDpiAlertOf("NOTA"); }},
      {"tech_support", ShowTechSupportForm},
      {"about", ShowAboutForm},
      {"tour", [] { ShowTour(TourSteps()); }},
      {"docs", [] { ShowDocsMenu(TopicNames(), 0, {}); }},
      {"characters", ShowTutorCharsDisplay},
      {"gallery", [] { ShowGallery(TourHolders()); }},
      {"layout", ShowGeoUtility},
      {"unit_test_review", [] { InUnitTest(kLongUnit, 20, 20, ShowTestProbReviewForm); }},
  };
  for (GalleryForm& form : forms)
    form.Show = [folder, show = std::move(form.Show)] {
      UseFolder(folder);
      show();
    };
  return forms;
}

std::vector<GalleryDocument> Documents(const std::string& folder) {
  UseFolder(folder);
  return {{"records", PrintedRecords()}, {"diagnostics", course::DiagnosticDocument(Results())}};
}

}  // namespace lesson_lab
