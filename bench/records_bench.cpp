// Saving records: the course's own routine against a database on the same disk, with one, thirty
// and a hundred writers at one file.
//
// Every writer is a process.  Measured are records a second, the longest that a single save took,
// and what was lost or doubled, which must be nothing.
#include <benchmark/benchmark.h>
#include <sqlite3.h>
#include <sys/mman.h>
#include <time.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <functional>
#include <iterator>
#include <set>
#include <string>
#include <vector>

#include "platform/clock.h"
#include "platform/user.h"
#include "records/activity_records.h"
#include "records/rosters.h"
#include "session/session.h"
#include "support/child_process.h"

namespace {

using Seconds = std::chrono::duration<double>;
using Timer = std::chrono::steady_clock;
using course::testing::ChildProcess;
using course::testing::Gate;

double SecondsSince(Timer::time_point start) {
  return Seconds(Timer::now() - start).count();
}

// A person who waits: a writer has no forms and no events.
class Waiting final : public platform::User {
 public:
  void AtWait(const std::string&) override {}
  void AtPause(double) override {}
  platform::Answer AtMessage(const platform::Message&) override { return platform::Answer::Ok; }
  std::optional<std::string> AtInput(const std::string&) override { return std::nullopt; }
  [[noreturn]] void AtStop(const std::string& message) override {
    std::fprintf(stderr, "%s\n", message.c_str());
    _exit(1);
  }
  [[noreturn]] void AtEnd() override { _exit(1); }
};

// The machine's time; a pause sleeps.
class SleepingClock final : public platform::Clock {
 public:
  double SecondsSinceMidnight() override { return Counter(); }
  platform::Date Today() override { return {2026, 1, 15}; }
  double Counter() override { return SecondsSince(start_); }
  void WaitUntil(double counter) override {
    const double rest = counter - Counter();
    if (rest <= 0) return;
    const timespec pause = {static_cast<time_t>(rest), static_cast<long>(rest * 1e9) % 1000000000};
    nanosleep(&pause, nullptr);
  }

 private:
  Timer::time_point start_ = Timer::now();
};

class Folder {
 public:
  Folder() {
    std::string pattern = std::filesystem::current_path() / "records-bench-XXXXXX";
    if (mkdtemp(pattern.data()) == nullptr) std::abort();
    path_ = pattern + "/";
  }
  ~Folder() { std::filesystem::remove_all(path_); }
  Folder(const Folder&) = delete;
  Folder& operator=(const Folder&) = delete;
  const std::string& Path() const { return path_; }

 private:
  std::string path_;
};

std::string RecordOf(int writer, int n) {
  char text[40];
  std::snprintf(text, sizeof text, "C2%04d0115260101%06d001", writer, n);
  return text;
}

// One way of keeping records.
struct Store {
  int records;  // in all: enough to keep the writers at it for some seconds
  // What a writer calls for each record; made in the writer's own process.
  std::function<std::function<void(const std::string& record)>(const std::string& folder)> Open;
  // All records at the end.
  std::function<std::vector<std::string>(const std::string& folder)> ReadAll;
};

Store OwnFile() {
  return {6000,
          [](const std::string& folder) {
            static Waiting user;
            static SleepingClock clock;
            platform::InstallUser(&user);
            platform::InstallClock(&clock);
            course::session.gDataPath = folder;
            return course::SaveActivityRecord;
          },
          [](const std::string& folder) {
            std::ifstream file(folder + "RECORDS.DAT", std::ios::binary);
            const std::string bytes{std::istreambuf_iterator<char>(file), {}};
            std::vector<std::string> records;
            for (std::size_t at = 0; at < bytes.size(); at += course::kActivityRecordLength)
              records.push_back(bytes.substr(at, course::kActivityRecordLength));
            return records;
          }};
}

void Execute(sqlite3* database, const std::string& statement,
             int (*row)(void*, int, char**, char**) = nullptr, void* argument = nullptr) {
  if (sqlite3_exec(database, statement.c_str(), row, argument, nullptr) == SQLITE_OK) return;
  std::fprintf(stderr, "%s: %s\n", statement.c_str(), sqlite3_errmsg(database));
  _exit(1);
}

// Rollback journal, normal synchronisation: the setting that schools would get.
sqlite3* OpenDatabase(const std::string& folder) {
  constexpr int kPatience = 45000;  // milliseconds
  sqlite3* database = nullptr;
  if (sqlite3_open((folder + "records.db").c_str(), &database) != SQLITE_OK) _exit(1);
  sqlite3_busy_timeout(database, kPatience);
  Execute(database, "PRAGMA synchronous = NORMAL");
  return database;
}

Store Database() {
  return {600,
          [](const std::string& folder) -> std::function<void(const std::string&)> {
            sqlite3* database = OpenDatabase(folder);
            Execute(database, "CREATE TABLE IF NOT EXISTS records (record TEXT)");
            return [database](const std::string& record) {
              Execute(database, "INSERT INTO records VALUES ('" + record + "')");
            };
          },
          [](const std::string& folder) {
            std::vector<std::string> records;
            sqlite3* database = OpenDatabase(folder);
            Execute(
                database, "SELECT record FROM records",
                [](void* list, int, char** values, char**) {
                  static_cast<std::vector<std::string>*>(list)->emplace_back(values[0]);
                  return 0;
                },
                &records);
            sqlite3_close(database);
            return records;
          }};
}

// Seconds that the writers' longest saves took, written by the writers.
class SharedTimes {
 public:
  explicit SharedTimes(int count) : count_(static_cast<std::size_t>(count)) {
    void* memory = mmap(nullptr, count_ * sizeof(double), PROT_READ | PROT_WRITE,
                        MAP_SHARED | MAP_ANONYMOUS, -1, 0);
    if (memory == MAP_FAILED) std::abort();
    times_ = static_cast<double*>(memory);
  }
  ~SharedTimes() { munmap(times_, count_ * sizeof(double)); }
  SharedTimes(const SharedTimes&) = delete;
  SharedTimes& operator=(const SharedTimes&) = delete;
  double& operator[](int writer) { return times_[writer]; }
  double Longest() const { return *std::max_element(times_, times_ + count_); }

 private:
  std::size_t count_;
  double* times_;
};

// Lets the writers save at once; seconds from the first to the last.
double Save(const Store& store, const std::string& folder, int writers, SharedTimes& longest) {
  const Gate ready;
  const Gate go;
  std::vector<ChildProcess> processes;
  for (int writer = 0; writer < writers; ++writer)
    processes.emplace_back([&] {
      const auto save = store.Open(folder);
      ready.Open();
      go.Wait();
      for (int n = 0; n < store.records / writers; ++n) {
        const auto start = Timer::now();
        save(RecordOf(writer, n));
        longest[writer] = std::max(longest[writer], SecondsSince(start));
      }
      return 0;
    });
  for (int writer = 0; writer < writers; ++writer) ready.Wait();
  const auto start = Timer::now();
  for (int writer = 0; writer < writers; ++writer) go.Open();
  for (ChildProcess& process : processes)
    if (process.Wait() != 0) std::abort();
  return SecondsSince(start);
}

void Saving(benchmark::State& state, const Store& store) {
  const int writers = static_cast<int>(state.range(0));
  double seconds = 0;
  double longestWait = 0;
  double wrong = 0;  // lost or doubled
  for (auto _ : state) {
    const Folder folder;
    SharedTimes longest(writers);
    const double took = Save(store, folder.Path(), writers, longest);
    state.SetIterationTime(took);
    seconds += took;
    longestWait = std::max(longestWait, longest.Longest());
    const std::vector<std::string> records = store.ReadAll(folder.Path());
    const std::set<std::string> different(records.begin(), records.end());
    wrong += store.records - static_cast<double>(different.size());
    wrong += static_cast<double>(records.size() - different.size());
  }
  state.counters["records_a_second"] =
      store.records * static_cast<double>(state.iterations()) / seconds;
  state.counters["longest_wait_s"] = longestWait;
  state.counters["lost_or_doubled"] = wrong;
}

void Settings(benchmark::internal::Benchmark* benchmark) {
  benchmark->ArgName("writers")->Arg(1)->Arg(30)->Arg(100);
  benchmark->Iterations(1)->UseManualTime()->Unit(benchmark::kMillisecond);
}

// What a login and a view read: a file of so many records, and a roster of 99 students.
class FullFolder {
 public:
  explicit FullFolder(int records) {
    std::ofstream file(folder_.Path() + "RECORDS.DAT", std::ios::binary);
    for (int i = 0; i < records; ++i) {
      char text[40];
      std::snprintf(text, sizeof text, "C299%02d01152601%02d008005003", 1 + i % 99, 1 + i % 8);
      file << text;
    }
    std::ofstream roster(folder_.Path() + "STUDENTS.DAT", std::ios::binary);
    for (int i = 1; i <= 99; ++i)
      roster << course::MakeStudentRecord("Student " + std::to_string(i), i);
    course::session.gDataPath = folder_.Path();
    course::session.gUnitCount = 12;
  }

 private:
  Folder folder_;
};

void ReadingTheProgress(benchmark::State& state) {
  const FullFolder folder(static_cast<int>(state.range(0)));
  for (auto _ : state) course::ReadStudentProgress(99, 98);
}
BENCHMARK(ReadingTheProgress)->ArgName("records")->Arg(100000)->Unit(benchmark::kMillisecond);

BENCHMARK_CAPTURE(Saving, own_file, OwnFile())->Apply(Settings);
BENCHMARK_CAPTURE(Saving, database, Database())->Apply(Settings);

}  // namespace
