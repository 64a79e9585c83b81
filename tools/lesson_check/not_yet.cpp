#include "lesson_check/not_yet.h"

#include <fstream>
#include <stdexcept>

namespace lesson_check {

NotYet ReadNotYet(const std::string& path) {
  std::ifstream file(path);
  if (!file) throw std::runtime_error("there is no file " + path);
  NotYet notYet;
  for (std::string line; std::getline(file, line);) {
    const std::size_t colon = line.find(": ");
    if (line.starts_with('#') || colon == std::string::npos) continue;
    notYet[line.substr(0, colon)].insert(line.substr(colon + 2));
  }
  return notYet;
}

void Pardon(const NotYet& notYet, const std::string& title, bool withPages, Report& report) {
  const auto listed = notYet.find(title);
  if (listed == notYet.end()) return;
  for (const std::string& known : listed->second)
    if (report.Forget(known) == 0 && withPages)
      report.Add(kNoSeed,
                 "is listed as not yet brought over for \"" + known + "\", and has no such fault");
}

}  // namespace lesson_check
