#include "lesson_check/report.h"

#include <algorithm>
#include <sstream>

namespace lesson_check {

namespace {

// A fault without what is quoted in it and without numbers.
std::string Gist(const std::string& fault) {
  std::string gist;
  bool quoted = false;
  for (const char c : fault) {
    if (c == '"') quoted = !quoted;
    const bool number = (c >= '0' && c <= '9') || c == '.';
    if (!quoted && !number) gist += c;
  }
  return gist;
}

std::string OnOneLine(std::string text) {
  std::ranges::replace(text, '\n', ' ');
  return text;
}

}  // namespace

void Report::Keep(const Finding& finding) {
  Alike& alike = alike_[Gist(finding.fault)];
  if (findings.size() >= kKept || alike.kept >= kKeptOfOne) return;
  ++alike.kept;
  findings.push_back(finding);
}

long Report::Forget(const std::string& beginning) {
  const std::string wanted = Gist(beginning);
  const auto matches = [&](const std::string& gist) {
    return gist.starts_with(wanted) || gist.find(": " + wanted) != std::string::npos;
  };
  long forgotten = 0;
  std::erase_if(alike_, [&](const auto& entry) {
    if (!matches(entry.first)) return false;
    forgotten += entry.second.met;
    return true;
  });
  std::erase_if(findings, [&](const Finding& finding) { return matches(Gist(finding.fault)); });
  faults -= forgotten;
  return forgotten;
}

void Report::Add(int seed, const std::string& fault) {
  ++faults;
  ++alike_[Gist(fault)].met;
  Keep({seed, fault});
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
  for (const auto& [gist, alike] : other.alike_) alike_[gist].met += alike.met;
  tally.Add(other.tally);
  for (const Finding& finding : other.findings) Keep(finding);
}

// A line a value: numbers and habits first, then hashes of questions ("d"), mistakes ("m met
// derived name"), kinds ("k count kind"), faults ("g count gist") and findings ("f seed text").
std::string Report::Text() const {
  std::ostringstream text;
  text.precision(17);
  text << problems << ' ' << pages << ' ' << draws << ' ' << slowest << ' ' << slowestSeed << ' '
       << faults << '\n';
  const Habits& habits = tally.habits;
  text << habits.problems << ' ' << habits.chance;
  for (const double wins : habits.wins) text << ' ' << wins;
  text << '\n';
  for (const std::uint32_t hash : tally.different) text << "d " << hash << '\n';
  for (const auto& [name, count] : tally.mistakes)
    text << "m " << count.met << ' ' << count.derived << ' ' << name << '\n';
  for (const auto& [kind, count] : tally.kinds)
    text << "k " << count << ' ' << OnOneLine(kind) << '\n';
  for (const auto& [gist, alike] : alike_)
    text << "g " << alike.met << ' ' << OnOneLine(gist) << '\n';
  for (const Finding& finding : findings)
    text << "f " << finding.seed << ' ' << OnOneLine(finding.fault) << '\n';
  return text.str();
}

Report Report::FromText(const std::string& text) {
  std::istringstream input(text);
  Report report;
  input >> report.problems >> report.pages >> report.draws >> report.slowest >>
      report.slowestSeed >> report.faults;
  Habits& habits = report.tally.habits;
  input >> habits.problems >> habits.chance;
  for (double& wins : habits.wins) input >> wins;
  const auto rest = [&input] {
    std::string line;
    input >> std::ws;
    std::getline(input, line);
    return line;
  };
  for (std::string kind; input >> kind;) {
    if (kind == "d") {
      std::uint32_t hash = 0;
      input >> hash;
      report.tally.different.insert(hash);
    } else if (kind == "m") {
      MistakeCount count;
      input >> count.met >> count.derived;
      report.tally.mistakes[rest()] = count;
    } else if (kind == "k") {
      long count = 0;
      input >> count;
      report.tally.kinds[rest()] = count;
    } else if (kind == "g") {
      long count = 0;
      input >> count;
      report.alike_[rest()].met = count;
    } else {
      int seed = kNoSeed;
      input >> seed;
      report.Keep({seed, rest()});
    }
  }
  return report;
}

std::string ProblemName(const std::string& title, int seed) {
  return seed == kNoSeed ? title : title + "#" + std::to_string(seed);
}

}  // namespace lesson_check
