#include "lesson_check/report.h"

#include <algorithm>
#include <sstream>

namespace lesson_check {

void Report::Add(int seed, const std::string& fault) {
  ++faults;
  if (findings.size() < kKept) findings.push_back({seed, fault});
}

void Report::Add(const Report& other) {
  problems += other.problems;
  pages += other.pages;
  draws += other.draws;
  if (other.slowest > slowest) {
    slowest = other.slowest;
    slowestSeed = other.slowestSeed;
  }
  faults += other.faults;
  for (const auto& [name, count] : other.mistakes) {
    mistakes[name].met += count.met;
    mistakes[name].derived += count.derived;
  }
  for (const Finding& finding : other.findings)
    if (findings.size() < kKept) findings.push_back(finding);
}

// A line a value: numbers first, then mistakes ("m met derived name") and findings ("f seed text").
std::string Report::Text() const {
  std::ostringstream text;
  text << problems << ' ' << pages << ' ' << draws << ' ' << slowest << ' ' << slowestSeed << ' '
       << faults << '\n';
  for (const auto& [name, count] : mistakes)
    text << "m " << count.met << ' ' << count.derived << ' ' << name << '\n';
  for (const Finding& finding : findings) {
    std::string line = finding.fault;
    std::ranges::replace(line, '\n', ' ');
    text << "f " << finding.seed << ' ' << line << '\n';
  }
  return text.str();
}

Report Report::FromText(const std::string& text) {
  std::istringstream input(text);
  Report report;
  input >> report.problems >> report.pages >> report.draws >> report.slowest >>
      report.slowestSeed >> report.faults;
  for (std::string kind; input >> kind;) {
    std::string rest;
    if (kind == "m") {
      MistakeCount count;
      input >> count.met >> count.derived >> std::ws;
      std::getline(input, rest);
      report.mistakes[rest] = count;
    } else {
      Finding finding;
      input >> finding.seed >> std::ws;
      std::getline(input, finding.fault);
      report.findings.push_back(finding);
    }
  }
  return report;
}

std::string ProblemName(const std::string& title, int seed) {
  return seed == kNoSeed ? title : title + "#" + std::to_string(seed);
}

}  // namespace lesson_check
