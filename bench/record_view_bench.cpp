// What the view of a thousand records costs, from the click to the painted list.
#include <benchmark/benchmark.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>

#include "platform/form.h"
#include "platform/surface.h"
#include "platform/user.h"
#include "records/record_forms_view.h"
#include "records/record_load.h"
#include "records/record_text.h"
#include "session/catalogue.h"
#include "session/session.h"

namespace {

using namespace course;

// Looks at the form once and closes it.
class Looker final : public platform::User {
 public:
  void AtWait(const std::string&) override {
    platform::Form& view = *platform::Form::ModalForm();
    benchmark::DoNotOptimize(view.Grab());
    view.Close();
  }
  void AtPause(double) override {}
  platform::Answer AtMessage(const platform::Message&) override { std::abort(); }
  std::optional<std::string> AtInput(const std::string&) override { return {}; }
  [[noreturn]] void AtStop(const std::string&) override { std::abort(); }
  [[noreturn]] void AtEnd() override { std::abort(); }
};

// A folder with 99 students and their records.
class Records {
 public:
  explicit Records(int count) {
    std::string pattern = (std::filesystem::temp_directory_path() / "records-XXXXXX").string();
    if (mkdtemp(pattern.data()) == nullptr) std::abort();
    folder_ = pattern + "/";
    session.gDataPath = folder_;
    std::ofstream students(folder_ + "STUDENTS.DAT", std::ios::binary);
    for (int i = 1; i <= 99; ++i)
      students << Padded("Student " + std::to_string(i), 21) << Padded(std::to_string(i), 2)
               << "99";
    std::ofstream records(folder_ + "RECORDS.DAT", std::ios::binary);
    for (int i = 0; i < count; ++i)
      records << "C299" << Digits(i * 37 % 99 + 1, 2) << Digits(i % 12 + 1, 2)
              << Digits(i % 28 + 1, 2) << "26" << Digits(i % 12 + 1, 2) << "0" << i % 3 + 1
              << Digits(i % 20, 3) << Digits(i % 20 / 2, 3) << Digits(i % 60 + 1, 3);
  }
  ~Records() {
    std::filesystem::remove_all(folder_);
    session = Session{};
  }

 private:
  std::string folder_;
};

void LoadSortAndShow1000Records(benchmark::State& state) {
  const Records records(1000);
  FillCourseTables();
  Looker looker;
  platform::InstallUser(&looker);
  gRecordsSortOrder = static_cast<SortOrder>(state.range(0));
  for (auto _ : state) ShowRecordView(kAllStudents, "STUDENT RECORDS: All Students");
  platform::InstallUser(nullptr);
  gRecordsSortOrder = SortOrder::Name;
}
BENCHMARK(LoadSortAndShow1000Records)->DenseRange(1, 4)->Unit(benchmark::kMillisecond);

}  // namespace
