#include "lesson_check/check_state.h"

#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <utility>

namespace lesson_check {
namespace {

// Another program may find other faults.
std::string ProgramStamp() {
  const std::filesystem::path program = "/proc/self/exe";
  const auto changed = std::filesystem::last_write_time(std::filesystem::canonical(program));
  return "check " + std::to_string(std::filesystem::file_size(program)) + " " +
         std::to_string(changed.time_since_epoch().count());
}

}  // namespace

// A line with the program's stamp; then, for each piece, its name, the size of its report in bytes,
// and the report.  What was cut off by a stop is not read.
CheckState::CheckState(std::string path) : path_(std::move(path)) {
  if (path_.empty()) return;
  std::ifstream file(path_, std::ios::binary);
  std::string stamp;
  const bool own = std::getline(file, stamp) && stamp == ProgramStamp();
  std::string piece;
  std::size_t size = 0;
  while (own && std::getline(file, piece) && file >> size && file.get() == '\n') {
    std::string text(size, ' ');
    if (!file.read(text.data(), static_cast<std::streamsize>(size))) break;
    done_[piece] = Report::FromText(text);
  }
  file.close();
  std::ofstream anew(path_, std::ios::binary | std::ios::trunc);
  anew << ProgramStamp() << '\n';
  if (!anew.flush()) throw std::runtime_error("cannot write the state file " + path_);
  for (const auto& [name, report] : std::exchange(done_, {})) Keep(name, report);
}

const Report* CheckState::Find(const std::string& piece) const {
  const auto found = done_.find(piece);
  return found == done_.end() ? nullptr : &found->second;
}

void CheckState::Keep(const std::string& piece, const Report& report) {
  if (path_.empty()) return;
  done_[piece] = report;
  const std::string text = report.Text();
  std::ofstream file(path_, std::ios::binary | std::ios::app);
  file << piece << '\n' << text.size() << '\n' << text;
  if (!file.flush()) throw std::runtime_error("cannot write the state file " + path_);
}

}  // namespace lesson_check
