// A student of a full roster logs in where years of records have been kept: from the click on Login
// to the painted menu.
#include <benchmark/benchmark.h>

#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>

#include "platform/events.h"
#include "platform/user.h"
#include "records/record_text.h"
#include "session/session.h"
#include "shell/login_binding.h"
#include "shell/record_hooks.h"

namespace {

constexpr int kStudents = 99;
constexpr int kRecords = 100000;

// Presses the logo away, picks the last student and logs in.
class ImpatientUser final : public platform::User {
 public:
  std::chrono::steady_clock::time_point clicked;

  void AtWait(const std::string& place) override {
    platform::Form& form = *platform::Form::ModalForm();
    if (place == "frmLogo") {
      form.Find("Command1")->Click();
      return;
    }
    dynamic_cast<platform::ListBox&>(*form.Find("lstStudents")).SetListIndex(kStudents - 1);
    clicked = std::chrono::steady_clock::now();
    form.Find("cmdLogin")->Click();
  }
  void AtPause(double) override {}
  platform::Answer AtMessage(const platform::Message&) override { return platform::Answer::Ok; }
  std::optional<std::string> AtInput(const std::string&) override { return {}; }
  void AtStop(const std::string& message) override {
    std::fprintf(stderr, "%s\n", message.c_str());
    std::abort();
  }
  void AtEnd() override { std::abort(); }
};

std::filesystem::path MakeFolder() {
  std::string pattern = (std::filesystem::temp_directory_path() / "login-XXXXXX").string();
  const std::filesystem::path folder = mkdtemp(pattern.data());
  std::ofstream students(folder / "STUDENTS.DAT", std::ios::binary);
  for (int i = 1; i <= kStudents; ++i)
    students << course::Padded("Student " + course::Digits(i, 2), 21)
             << course::Padded(std::to_string(i), 2) << "99";
  std::ofstream records(folder / "RECORDS.DAT", std::ios::binary);
  for (int i = 0; i < kRecords; ++i)
    records << "C299" << course::Digits(i % kStudents + 1, 2) << "011526"
            << course::Digits(i / kStudents % 12 + 1, 2) << course::Digits(i % 5 + 1, 2)
            << "005004010";
  return folder;
}

void LoginToMenu(benchmark::State& state) {
  const std::filesystem::path folder = MakeFolder();
  ImpatientUser user;
  course::StartUp startUp;
  startUp.ReadSettings = [&] { return platform::InstallationSettings{2, folder}; };
  startUp.ReadScreen = [] { return course::ScreenFacts{}; };
  course::BindRecords(startUp);
  course::BindLogin(startUp);
  platform::InstallUser(&user);
  for (auto _ : state) {
    course::session = {};
    course::LoadMenu(startUp);
    platform::PumpEvents();
    const std::chrono::duration<double> taken = std::chrono::steady_clock::now() - user.clicked;
    state.SetIterationTime(taken.count());
    course::frmMenu.reset();
  }
  platform::InstallUser(nullptr);
  std::filesystem::remove_all(folder);
}
BENCHMARK(LoginToMenu)->UseManualTime()->Unit(benchmark::kMillisecond);

}  // namespace
